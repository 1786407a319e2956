#pragma once

#include <QSettings>
#include <QString>
#include <QVariant>

#include <memory>

// The user-defaults store. Key names are part of the stored format: keep them exactly.
namespace SettingsKeys {
inline const QString AboutHasBeenLaunchedBeforeFlag = QStringLiteral("AboutHasBeenLaunchedBeforeFlag");
inline const QString UseDefaultDate = QStringLiteral("UseDefaultDate");
inline const QString DefaultDate = QStringLiteral("DefaultDate");
inline const QString UseDateWheel = QStringLiteral("UseDateWheel");
inline const QString UseDateCompact = QStringLiteral("UseDateCompact");
inline const QString UseDateInline = QStringLiteral("UseDateInline");
inline const QString ReviewServiceLastRequest = QStringLiteral("ReviewService.lastRequest");
// The collection list shows a table rather than cards (on a desktop-wide window).
inline const QString ListShowsTable = QStringLiteral("ListVinylTableView.showsTable");
} // namespace SettingsKeys

class Settings
{
public:
    // With a file path the settings live in that INI file (a --data-dir run or a test);
    // without one, in the platform's place for organisation and application "Platterbox".
    explicit Settings(const QString &iniFilePath = QString());

    [[nodiscard]] bool contains(const QString &key) const { return m_settings->contains(key); }
    [[nodiscard]] QVariant value(const QString &key) const { return m_settings->value(key); }
    // Absent reads as false.
    [[nodiscard]] bool boolValue(const QString &key) const { return m_settings->value(key, false).toBool(); }
    void setValue(const QString &key, const QVariant &value) { m_settings->setValue(key, value); }
    void remove(const QString &key) { m_settings->remove(key); }
    // Writes pending values to disk at once.
    void sync() { m_settings->sync(); }

private:
    std::unique_ptr<QSettings> m_settings;
};
