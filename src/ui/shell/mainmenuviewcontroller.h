#pragma once

#include "shell/screencontroller.h"

#include <QVariantList>

// The first screen: seeds the condition lists on the first launch and leads to every other
// part of the app. Its menu buttons fold and unfold under the control button.
class MainMenuViewController : public ScreenController
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool menuUnfolded READ menuUnfolded NOTIFY menuUnfoldedChanged)
    // One entry per menu button: {name, title, screen, enabled}. A destination that is not
    // part of this build is a disabled button.
    Q_PROPERTY(QVariantList menuButtons READ menuButtons NOTIFY loaded)

public:
    explicit MainMenuViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);

    [[nodiscard]] bool menuUnfolded() const { return m_menuUnfolded; }
    [[nodiscard]] QVariantList menuButtons() const;

    // Each time the menu shows: folded, and OriginScreen is "Menu".
    void viewWillAppear() override;
    // The control button: unfolds the menu, or folds it again.
    Q_INVOKABLE void HandleButtonClick();
    // A menu button: opens its screen.
    Q_INVOKABLE void open(const QString &buttonName);

signals:
    void menuUnfoldedChanged();

protected:
    void viewDidLoad() override;

private:
    bool m_menuUnfolded = false;
};
