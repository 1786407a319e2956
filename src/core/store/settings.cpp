#include "store/settings.h"

Settings::Settings(const QString &iniFilePath)
    : m_settings(iniFilePath.isEmpty()
                     ? std::make_unique<QSettings>(QStringLiteral("Platterbox"), QStringLiteral("Platterbox"))
                     : std::make_unique<QSettings>(iniFilePath, QSettings::IniFormat))
{
}
