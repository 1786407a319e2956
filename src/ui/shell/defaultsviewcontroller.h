#pragma once

#include "shell/screencontroller.h"

#include <QDate>

// The settings screen: whether a default date is used and which, and which of the three
// date-picker styles the record form uses. Every change is stored the moment it is made.
// Turning a style switch off does nothing: the style last chosen stays in force. The appearance
// (light, dark or as the desktop) is applied to the window at once.
class DefaultsViewController : public ScreenController
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool defaultDateSwitch READ defaultDateSwitch NOTIFY changed)
    Q_PROPERTY(bool dateFieldVisible READ dateFieldVisible NOTIFY changed)
    Q_PROPERTY(QString dateText READ dateText NOTIFY changed)
    Q_PROPERTY(bool dateWheelSwitch READ dateWheelSwitch NOTIFY changed)
    Q_PROPERTY(bool dateCompactSwitch READ dateCompactSwitch NOTIFY changed)
    Q_PROPERTY(bool dateInlineSwitch READ dateInlineSwitch NOTIFY changed)
    // "wheel", "compact", "inline" or "" (the default look) for the date picker.
    Q_PROPERTY(QString pickerStyle READ pickerStyle NOTIFY changed)
    // The index of the appearance in use: 0 light, 1 dark, 2 as the desktop.
    Q_PROPERTY(int appearance READ appearance NOTIFY changed)

public:
    explicit DefaultsViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);

    [[nodiscard]] bool defaultDateSwitch() const { return m_defaultDateSwitch; }
    [[nodiscard]] bool dateFieldVisible() const { return m_dateFieldVisible; }
    [[nodiscard]] QString dateText() const { return m_dateText; }
    [[nodiscard]] bool dateWheelSwitch() const { return m_wheel; }
    [[nodiscard]] bool dateCompactSwitch() const { return m_compact; }
    [[nodiscard]] bool dateInlineSwitch() const { return m_inline; }
    [[nodiscard]] QString pickerStyle() const { return m_pickerStyle; }
    [[nodiscard]] int appearance() const;

    Q_INVOKABLE void DefaultDateSwitchChanged(bool on);
    Q_INVOKABLE void DateWheelSwitchChanged(bool on);
    Q_INVOKABLE void DateCompactSwitchChanged(bool on);
    Q_INVOKABLE void DateInlineSwitchChanged(bool on);
    // 0 light, 1 dark, 2 as the desktop; anything else is ignored.
    Q_INVOKABLE void appearanceChosen(int index);
    // The picker's value changed, "Done" or "Today".
    Q_INVOKABLE void dateChanged(QDate date);
    Q_INVOKABLE void doneClick(QDate date);
    Q_INVOKABLE void todayClick();

signals:
    void changed();
    // "Done" and "Today" close the picker.
    void endEditing();

protected:
    void viewDidLoad() override;

private:
    enum class Style { Wheel, Compact, Inline };
    void chooseStyle(Style style);
    void storeDate(QDate date);

    bool m_defaultDateSwitch = false;
    bool m_dateFieldVisible = false;
    QString m_dateText;
    bool m_wheel = false;
    bool m_compact = false;
    bool m_inline = false;
    QString m_pickerStyle;
};
