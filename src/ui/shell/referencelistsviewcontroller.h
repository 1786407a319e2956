#pragma once

#include "shell/screencontroller.h"

// The small menu that leads to the two condition lists.
class ReferenceListsViewController : public ScreenController
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool conditionListsAvailable READ conditionListsAvailable NOTIFY loaded)

public:
    explicit ReferenceListsViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);

    [[nodiscard]] bool conditionListsAvailable() const;
    Q_INVOKABLE void VinylConditionButtonClicked();
    Q_INVOKABLE void CoverConditionButtonClicked();
};
