#pragma once

#include <QLocale>
#include <QString>

// Loads the program's translation (built in as :/i18n/platterbox_<language>.qm) for the first of
// the locale's UI languages that has one, and installs it on the application, which must exist.
// English is the language of the source texts: a language list that names English before any
// translated language (LANG=C, en_GB, LANGUAGE=en:de) keeps the program English. Returns whether
// a translation was installed. Tests never call this, so they read English on every machine.
bool installTranslations(const QLocale &locale = QLocale::system());

// Texts kept as named constants (recordform.h, loans.h, ...) are English QStrings made before any
// translation can load; their definitions mark them for translation in one context,
// QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Record not Saved!")), and they are translated
// where they are shown: the text in the user's language, or the text itself when it has none.
// A template is translated before its arguments are filled in: translated(kGotItPrompt).arg(name).
[[nodiscard]] QString translated(const QString &english);
