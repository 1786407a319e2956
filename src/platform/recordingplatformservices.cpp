#include "recordingplatformservices.h"

#include <QTextDocument>

bool RecordingPlatformServices::print(QTextDocument &document, const QString &jobName)
{
    printedJobs.append(jobName);
    printedTexts.append(document.toPlainText());
    return printAnswer;
}
