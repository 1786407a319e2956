// `export` and `import`: the exchange file from the command line, through the same writer and
// reader as the export and import screens.
#include "appdelegate.h"
#include "cli.h"
#include "exchangeformat.h"
#include "textfile.h"
#include "exchangereader.h"
#include "exchangewriter.h"
#include "importviewcontroller.h"
#include "snapshots.h"

#include <QFileInfo>
#include <QSaveFile>

int exportCommand(CliContext &context)
{
    QStringList arguments = context.arguments;
    const bool images = !arguments.removeOne(QStringLiteral("--no-images"));
    if (arguments.size() != 1 || arguments.first().startsWith(u'-')) {
        context.err << "usage: platterbox [--data-dir DIR] export FILE [--no-images]\n";
        return CliBadUsage;
    }
    const QString path = arguments.first();
    int unreadable = 0;
    auto text = ExchangeWriter::build(context.app.persistentContainer(), images, &unreadable);
    if (!text) {
        context.err << "platterbox: " << text.errorMessage() << "\n";
        return CliBadInput;
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(*text) != text->size() || !file.commit()) {
        context.err << "platterbox: cannot write " << path << ": " << file.errorString() << "\n";
        return CliBadInput;
    }
    if (unreadable > 0)
        context.err << "platterbox: " << unreadable << " cover pictures could not be read and were left out\n";
    context.out << "Wrote " << path << "\n";
    return CliOk;
}

int importCommand(CliContext &context)
{
    if (context.arguments.size() != 1 || context.arguments.first().startsWith(u'-')) {
        context.err << "usage: platterbox [--data-dir DIR] import FILE\n";
        return CliBadUsage;
    }
    auto text = TextFile::readUtf8(context.arguments.first());
    if (!text) {
        context.err << "platterbox: " << text.errorMessage() << "\n";
        return CliBadInput;
    }
    if (!Exchange::hasRecordSection(*text)) {
        context.err << "no " << Exchange::kRecordMarker << " section in " << context.arguments.first() << "\n";
        return CliBadInput;
    }
    if (auto kept = context.app.snapshots().take(Snapshots::kKindImport, QFileInfo(context.arguments.first()).fileName());
        !kept) {
        context.err << "platterbox: the collection could not be kept before the import: " << kept.errorMessage() << "\n";
        return CliBadInput;
    }
    auto counts = ExchangeReader::importAll(context.app.persistentContainer(), *text);
    if (!counts) {
        context.err << "Unresolved error " << counts.errorMessage() << "\n";
        return CliBadInput;
    }
    if (counts->unreadableImages > 0)
        context.err << "platterbox: " << counts->unreadableImages
                    << " cover pictures could not be read and were left out\n";
    context.out << ImportViewController::kCompleted << "\n";
    return CliOk;
}
