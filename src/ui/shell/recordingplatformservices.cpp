#include "shell/recordingplatformservices.h"

#include <QDir>
#include <QPrinter>

std::unique_ptr<QPrinter> RecordingPlatformServices::choosePrinter(const QString &jobName)
{
    printedJobs.append(jobName);
    if (!printAnswer)
        return nullptr;
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setDocName(jobName);
    printer->setOutputFormat(QPrinter::PdfFormat);
    printedFiles.append(QDir(m_printouts.path()).filePath(QStringLiteral("printout-%1.pdf").arg(printedFiles.size())));
    printer->setOutputFileName(printedFiles.constLast());
    return printer;
}
