#pragma once

#include "shell/screencontroller.h"

#include <QStringList>

// The current record's covers, large, to pinch and drag; and shared as pictures.
class ZoomViewController : public ScreenController
{
    Q_OBJECT
    QML_ELEMENT
    // One image source per cover of the record, front first; empty without covers.
    Q_PROPERTY(QStringList images READ images NOTIFY loaded)

public:
    explicit ZoomViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);

    [[nodiscard]] QStringList images() const { return m_images; }

    Q_INVOKABLE void shareButtonClicked();

protected:
    void viewDidLoad() override;

private:
    QStringList m_images;
};
