#include "store/logging.h"

Q_LOGGING_CATEGORY(lcPlatterbox, "platterbox", QtInfoMsg)

namespace {

QtMessageHandler s_qtHandler = nullptr;

// Without XDG_RUNTIME_DIR (cron, a login without a session) Qt says so on every start and then
// makes the private folder it falls back to itself; the collector can do nothing about it, so
// only that one line is dropped and every other message goes on as before.
void dropRuntimeDirNotice(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    static const QString kRuntimeDirNotice = QStringLiteral("QStandardPaths: XDG_RUNTIME_DIR not set, defaulting to ");
    if (type == QtWarningMsg && message.startsWith(kRuntimeDirNotice))
        return;
    s_qtHandler(type, context, message);
}

} // namespace

void consoleLine(const QString &line)
{
    qCInfo(lcPlatterbox).noquote() << line;
}

void installConsoleFormat()
{
    qSetMessagePattern(QStringLiteral("%{message}"));
    if (!s_qtHandler)
        s_qtHandler = qInstallMessageHandler(dropRuntimeDirNotice);
}
