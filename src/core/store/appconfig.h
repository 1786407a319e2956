#pragma once

#include <QString>

// Outside addresses the app opens, kept in one place.
namespace AppConfig {
// The app's page in the app store; rating adds the query "action=write-review".
inline const QString storePage = QStringLiteral("https://apps.example.com/platterbox");
inline const QString website = QStringLiteral("https://platterbox.example.com");
inline const QString supportAddress = QStringLiteral("support@platterbox.example.com");
// Whom the catalogue services can write to about our requests: named in the look-up's User-Agent.
inline const QString lookupContact = QStringLiteral("support@platterbox.example.com");
// The search engine's search path with its query key; the valuation screen appends the query.
inline const QString webSearchBase = QStringLiteral("https://www.google.com/search?q=");
// The auction-price archive's home page and the price guide's vinyl page.
inline const QString popsikeHome = QStringLiteral("https://www.popsike.com/");
inline const QString valueYourMusicVinyl = QStringLiteral("https://www.valueyourmusic.com/vinyl");
} // namespace AppConfig
