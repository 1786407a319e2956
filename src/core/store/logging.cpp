#include "store/logging.h"

Q_LOGGING_CATEGORY(lcPlatterbox, "platterbox", QtInfoMsg)

void consoleLine(const QString &line)
{
    qCInfo(lcPlatterbox).noquote() << line;
}

void installConsoleFormat()
{
    qSetMessagePattern(QStringLiteral("%{message}"));
}
