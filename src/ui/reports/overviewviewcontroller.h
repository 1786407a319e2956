#pragma once

#include "shell/screencontroller.h"

#include <QUrl>

// The app's own guide, a PDF document carried as a resource, in a PDF viewer.
class OverviewViewController : public ScreenController
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QUrl documentSource READ documentSource CONSTANT)
    Q_PROPERTY(bool documentFound READ documentFound CONSTANT)

public:
    explicit OverviewViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);

    [[nodiscard]] QString title() const;
    [[nodiscard]] static QUrl documentSource();
    // The resource is built with the app; without it the viewer stays empty and says so.
    [[nodiscard]] static bool documentFound();

protected:
    void viewDidLoad() override;
};
