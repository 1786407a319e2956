#include "shell/defaultsviewcontroller.h"

#include "shell/appdelegate.h"
#include "shell/theme.h"
#include "store/formatters.h"

using namespace Qt::StringLiterals;

DefaultsViewController::DefaultsViewController(AppDelegate *app, QObject *parent) : ScreenController(app, parent)
{
    loadIfReady();
}

void DefaultsViewController::viewDidLoad()
{
    Settings &settings = app()->settings();
    if (settings.contains(SettingsKeys::UseDefaultDate)) {
        m_defaultDateSwitch = settings.boolValue(SettingsKeys::UseDefaultDate);
        m_dateFieldVisible = m_defaultDateSwitch;
        if (m_defaultDateSwitch && settings.contains(SettingsKeys::DefaultDate))
            m_dateText = settings.value(SettingsKeys::DefaultDate).toString();
    } else {
        settings.setValue(SettingsKeys::UseDefaultDate, false);
    }
    // Later keys override earlier ones, as the record form reads them.
    if (settings.boolValue(SettingsKeys::UseDateWheel)) {
        m_wheel = true, m_compact = false, m_inline = false;
        m_pickerStyle = u"wheel"_s;
    }
    if (settings.boolValue(SettingsKeys::UseDateCompact)) {
        m_wheel = false, m_compact = true, m_inline = false;
        m_pickerStyle = u"compact"_s;
    }
    if (settings.boolValue(SettingsKeys::UseDateInline)) {
        m_wheel = false, m_compact = false, m_inline = true;
        m_pickerStyle = u"inline"_s;
    }
    emit changed();
}

void DefaultsViewController::DefaultDateSwitchChanged(bool on)
{
    Settings &settings = app()->settings();
    m_defaultDateSwitch = on;
    m_dateFieldVisible = on;
    settings.setValue(SettingsKeys::UseDefaultDate, on);
    if (!on) {
        settings.setValue(SettingsKeys::DefaultDate, QString(u""_s));
        m_dateText.clear();
    }
    emit changed();
}

void DefaultsViewController::chooseStyle(Style style)
{
    m_wheel = style == Style::Wheel;
    m_compact = style == Style::Compact;
    m_inline = style == Style::Inline;
    m_dateFieldVisible = true;
    Settings &settings = app()->settings();
    settings.setValue(SettingsKeys::UseDateWheel, m_wheel);
    settings.setValue(SettingsKeys::UseDateCompact, m_compact);
    settings.setValue(SettingsKeys::UseDateInline, m_inline);
    m_pickerStyle = m_wheel ? u"wheel"_s : m_compact ? u"compact"_s : u"inline"_s;
    emit changed();
}

void DefaultsViewController::DateWheelSwitchChanged(bool on)
{
    if (on)
        chooseStyle(Style::Wheel);
    else
        emit changed(); // the switch shows the stored state again
}

void DefaultsViewController::DateCompactSwitchChanged(bool on)
{
    if (on)
        chooseStyle(Style::Compact);
    else
        emit changed();
}

void DefaultsViewController::DateInlineSwitchChanged(bool on)
{
    if (on)
        chooseStyle(Style::Inline);
    else
        emit changed();
}

int DefaultsViewController::appearance() const
{
    return static_cast<int>(Theme::instance()->choice());
}

void DefaultsViewController::appearanceChosen(int index)
{
    if (index < 0 || index > static_cast<int>(Theme::Choice::Desktop))
        return;
    const auto choice = static_cast<Theme::Choice>(index);
    app()->settings().setValue(Theme::kSettingsKey, Theme::choiceKey(choice));
    Theme::instance()->setChoice(choice);
    emit changed();
}

void DefaultsViewController::storeDate(QDate date)
{
    m_dateText = Formatters::mediumDate(QDateTime(date, QTime(0, 0)));
    app()->settings().setValue(SettingsKeys::DefaultDate, m_dateText);
    emit changed();
}

void DefaultsViewController::dateChanged(QDate date)
{
    storeDate(date);
}

void DefaultsViewController::doneClick(QDate date)
{
    storeDate(date);
    emit endEditing();
}

void DefaultsViewController::todayClick()
{
    storeDate(QDate::currentDate());
    emit endEditing();
}
