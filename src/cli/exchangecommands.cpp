// `export` and `import`: the exchange file and CSV files from the command line, through the same
// writers, readers and merge as the export and import screens.
#include "cli/cli.h"
#include "exchange/collectioncsv.h"
#include "exchange/exchangeformat.h"
#include "exchange/exchangewriter.h"
#include "exchange/importfile.h"
#include "exchange/importmerge.h"
#include "exchange/wantlistcsv.h"
#include "store/datafolder.h"
#include "store/snapshots.h"
#include "store/textfile.h"
#include "store/translations.h"

#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace {

bool writeFile(CliContext &context, const QString &path, const QByteArray &data)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(data) != data.size() || !file.commit()) {
        context.err << "platterbox: " << Cli::tr("cannot write %1: %2").arg(path, file.errorString()) << "\n";
        return false;
    }
    context.out << Cli::tr("Wrote %1").arg(path) << "\n";
    return true;
}

int exportCsv(CliContext &context, const QString &path, bool oneFile)
{
    auto files = CollectionCsv::write(context.folder().persistentContainer(), oneFile);
    if (!files) {
        context.err << "platterbox: " << translated(files.errorMessage()) << "\n";
        return CliBadInput;
    }
    if (!writeFile(context, path, files->records))
        return CliBadInput;
    if (!oneFile && !writeFile(context, CollectionCsv::tracksPath(path), files->tracks))
        return CliBadInput;
    return CliOk;
}

int exportWantlist(CliContext &context, const QString &path)
{
    auto text = WantlistCsv::write(context.folder().persistentContainer());
    if (!text) {
        context.err << "platterbox: " << translated(text.errorMessage()) << "\n";
        return CliBadInput;
    }
    return writeFile(context, path, *text) ? CliOk : CliBadInput;
}

void printProblems(CliContext &context, const QList<ImportProblem> &problems, qint64 more)
{
    for (const ImportProblem &problem : problems)
        context.out << ImportMerge::problemText(problem) << "\n";
    if (more > 0)
        context.out << translated(ImportMessages::kMoreProblems).arg(more) << "\n";
}

// The file's albums go onto the wantlist; the collection is not touched.
int importWantlist(CliContext &context, const QString &path, const QByteArray &bytes, bool dryRun)
{
    const WantlistCsv::WantlistFile file = WantlistCsv::read(bytes);
    if (file.format() == ImportFormat::Unknown) {
        context.err << "platterbox: " << Cli::tr("%1 in %2").arg(WantlistCsv::kNotAWantlist, path) << "\n";
        return CliBadInput;
    }
    context.out << file.summary() << "\n";
    if (!file.ignoredColumns().isEmpty())
        context.out << Cli::tr("Not read: %1").arg(file.ignoredColumns().join(u", "_s)) << "\n";
    Store &store = context.folder().persistentContainer();
    Result<WantlistCsv::WantlistCounts> counts = Error{};
    if (dryRun) {
        counts = WantlistCsv::preview(store, file);
    } else {
        Snapshots snapshots = context.folder().snapshots();
        counts = WantlistCsv::applyAfterSnapshot(store, file, snapshots, QFileInfo(path).fileName());
    }
    if (!counts) {
        context.err << Cli::tr("Unresolved error %1").arg(translated(counts.errorMessage())) << "\n";
        return CliBadInput;
    }
    context.out << (dryRun ? WantlistCsv::previewText(*counts) : WantlistCsv::countsText(*counts)) << "\n";
    printProblems(context, counts->problems, counts->moreProblems);
    if (dryRun)
        context.out << Cli::tr("Dry run: nothing was changed.") << "\n";
    return CliOk;
}

} // namespace

int exportCommand(CliContext &context)
{
    QStringList arguments = context.arguments;
    const bool images = !arguments.removeOne(u"--no-images"_s);
    const bool csv = arguments.removeOne(u"--csv"_s);
    const bool oneFile = arguments.removeOne(u"--one-file"_s);
    const bool wantlist = arguments.removeOne(u"--wantlist"_s);
    if (arguments.size() != 1 || arguments.first().startsWith(u'-') || (oneFile && !csv) || (wantlist && (!csv || oneFile)))
        return CliBadUsage;
    if (!context.openFolder())
        return CliBadInput;
    const QString path = arguments.first();
    if (wantlist)
        return exportWantlist(context, path);
    if (csv)
        return exportCsv(context, path, oneFile);
    int unreadable = 0;
    auto text = ExchangeWriter::build(context.folder().persistentContainer(), images, &unreadable);
    if (!text) {
        context.err << "platterbox: " << translated(text.errorMessage()) << "\n";
        return CliBadInput;
    }
    if (!writeFile(context, path, *text))
        return CliBadInput;
    if (unreadable > 0)
        context.err << "platterbox: " << Cli::tr("%n cover pictures could not be read and were left out", nullptr, unreadable) << "\n";
    return CliOk;
}

int importCommand(CliContext &context)
{
    QStringList arguments = context.arguments;
    const bool dryRun = arguments.removeOne(u"--dry-run"_s);
    const bool wantlist = arguments.removeOne(u"--wantlist"_s);
    if (arguments.size() != 1 || arguments.first().startsWith(u'-'))
        return CliBadUsage;
    if (!context.openFolder())
        return CliBadInput;
    const QString path = arguments.first();
    if (const auto writable = context.folder().persistentContainer().checkWritable(); !dryRun && !writable) {
        context.err << "platterbox: " << translated(writable.errorMessage()) << "\n";
        return CliBadInput;
    }
    auto bytes = TextFile::readUtf8(path);
    if (!bytes) {
        context.err << "platterbox: " << translated(bytes.errorMessage()) << "\n";
        return CliBadInput;
    }
    if (wantlist)
        return importWantlist(context, path, *bytes, dryRun);
    const ImportFile file = ImportFiles::read(std::move(*bytes));
    if (file.format == ImportFormat::Unknown
        || (file.format == ImportFormat::Exchange && !Exchange::hasRecordSection(file.text))) {
        context.err << "platterbox: "
                    << Cli::tr("no %1 section in %2, and no CSV header line that names record attributes")
                           .arg(Exchange::kRecordMarker, path)
                    << "\n";
        return CliBadInput;
    }
    context.out << ImportFiles::summary(file) << "\n";
    if (!file.ignoredColumns.isEmpty())
        context.out << Cli::tr("Not read: %1").arg(file.ignoredColumns.join(u", "_s)) << "\n";

    Store &store = context.folder().persistentContainer();
    Result<ImportCounts> counts = Error{};
    if (dryRun) {
        auto preview = ImportMerge::preview(store, file);
        counts = preview ? Result<ImportCounts>(preview->counts) : Result<ImportCounts>(preview.error());
    } else {
        Snapshots snapshots = context.folder().snapshots();
        counts = ImportMerge::applyAfterSnapshot(store, file, snapshots, QFileInfo(path).fileName());
    }
    if (!counts) {
        context.err << Cli::tr("Unresolved error %1").arg(translated(counts.errorMessage())) << "\n";
        return CliBadInput;
    }
    context.out << ImportMerge::countsText(*counts) << "\n";
    printProblems(context, counts->problems, counts->moreProblems);
    if (counts->unreadableImages > 0)
        context.err << "platterbox: "
                    << Cli::tr("%n cover pictures could not be read and were left out", nullptr, int(counts->unreadableImages))
                    << "\n";
    context.out << (dryRun ? Cli::tr("Dry run: nothing was changed.") : ImportMessages::kCompleted) << "\n";
    return CliOk;
}
