#pragma once

#include <QLoggingCategory>
#include <QString>

// Diagnostic console lines ("First Launch", "Option 1 selected", ...). The user never sees them.
Q_DECLARE_LOGGING_CATEGORY(lcPlatterbox)

// Writes one console line exactly as given.
void consoleLine(const QString &line);
// Console lines are printed as they are, without a category prefix, and Qt's notice that
// XDG_RUNTIME_DIR is not set is left out: every program calls this first.
void installConsoleFormat();
