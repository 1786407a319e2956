#include "shell/appdelegate.h"

#include "shell/coverimageprovider.h"
#include "shell/platformservices.h"
#include "shell/theme.h"
#include "store/snapshots.h"

#include <QJSEngine>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace {
QPointer<AppDelegate> s_current;
}

AppDelegate::AppDelegate(std::unique_ptr<DataFolder> folder, std::unique_ptr<PlatformServices> platform)
    : m_folder(std::move(folder)), m_platform(std::move(platform))
{
    Theme::instance()->setChoice(Theme::choiceFromKey(settings().value(Theme::kSettingsKey).toString()));
    s_current = this;
}

AppDelegate::~AppDelegate() = default;

Result<std::unique_ptr<AppDelegate>> AppDelegate::create(const QString &dataDir, bool dataDirChosen,
                                                         std::unique_ptr<PlatformServices> platform)
{
    auto folder = DataFolder::open(dataDir, dataDirChosen);
    if (!folder)
        return folder.error();
    return std::unique_ptr<AppDelegate>(new AppDelegate(std::move(folder).value(), std::move(platform)));
}

AppDelegate *AppDelegate::current()
{
    return s_current.data();
}

AppDelegate *AppDelegate::create(QQmlEngine *, QJSEngine *)
{
    AppDelegate *app = current();
    if (app)
        QJSEngine::setObjectOwnership(app, QJSEngine::CppOwnership);
    return app;
}

Result<void> AppDelegate::saveContext()
{
    return {};
}

Snapshots AppDelegate::snapshots() const
{
    return m_folder->snapshots();
}

void AppDelegate::collectionReplaced()
{
    CoverImageProvider::forgetAll();
    m_state.setCurrentRecord(Vinyl());
}
