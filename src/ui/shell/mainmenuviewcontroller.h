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
    // What a wide window shows beside the menu, read again each time the menu shows (a few
    // kept figures and indexed rows): the collection's figures as {label, value}, and the
    // records added last as {rowId, album, artist, coverSource}, newest first.
    Q_PROPERTY(QVariantList figures READ figures NOTIFY glanceChanged)
    Q_PROPERTY(QVariantList recentRecords READ recentRecords NOTIFY glanceChanged)

public:
    explicit MainMenuViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);

    [[nodiscard]] bool menuUnfolded() const { return m_menuUnfolded; }
    [[nodiscard]] QVariantList menuButtons() const;
    [[nodiscard]] QVariantList figures() const { return m_figures; }
    [[nodiscard]] QVariantList recentRecords() const { return m_recentRecords; }

    // Each time the menu shows: folded, and OriginScreen is "Menu".
    void viewWillAppear() override;
    // The control button: unfolds the menu, or folds it again.
    Q_INVOKABLE void HandleButtonClick();
    // A menu button: opens its screen.
    Q_INVOKABLE void open(const QString &buttonName);
    // A record of those added last: opens it in the editor, which returns here.
    Q_INVOKABLE void openRecent(int index);

signals:
    void menuUnfoldedChanged();
    void glanceChanged();

protected:
    void viewDidLoad() override;

private:
    void readGlance();

    bool m_menuUnfolded = false;
    QVariantList m_figures;
    QVariantList m_recentRecords;
};
