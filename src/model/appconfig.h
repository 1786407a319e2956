#pragma once

#include <QString>

// Outside addresses the app opens, kept in one place.
namespace AppConfig {
inline const QString storePage = QStringLiteral("https://apps.example.com/platterbox");
inline const QString reviewPage = storePage + QStringLiteral("?action=write-review");
inline const QString website = QStringLiteral("https://platterbox.example.com");
inline const QString supportAddress = QStringLiteral("support@platterbox.example.com");
inline const QString webSearchBase = QStringLiteral("https://www.google.com/search?q=");
inline const QString popsikeBase = QStringLiteral("https://www.popsike.com/php/quicksearch.php?searchtext=");
inline const QString valueYourMusicBase = QStringLiteral("https://www.valueyourmusic.com/search?q=");
} // namespace AppConfig
