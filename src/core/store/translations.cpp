#include "store/translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <memory>

using namespace Qt::StringLiterals;

bool installTranslations(const QLocale &locale)
{
    auto *application = QCoreApplication::instance();
    if (!application)
        return false;
    for (const QString &language : locale.uiLanguages()) {
        const QLocale candidate(language);
        if (candidate.language() == QLocale::English || candidate.language() == QLocale::C)
            return false;
        auto translator = std::make_unique<QTranslator>(application);
        // Tries platterbox_de_AT, then platterbox_de, and so on down the candidate's own list.
        if (translator->load(candidate, u"platterbox"_s, u"_"_s, u":/i18n"_s)) {
            QCoreApplication::installTranslator(translator.release());
            // Qt's own texts (a dialog's OK and Cancel, the file dialog) in the same language,
            // when the system has them.
            auto qt = std::make_unique<QTranslator>(application);
            if (qt->load(candidate, u"qt"_s, u"_"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
                QCoreApplication::installTranslator(qt.release());
            return true;
        }
    }
    return false;
}

QString translated(const QString &english)
{
    if (english.isEmpty())
        return english;
    return QCoreApplication::translate("Platterbox", english.toUtf8().constData());
}
