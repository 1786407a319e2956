// `backup`, `restore` and `undo-import`: the lossless copies of the collection from the command
// line, through the same logic as the import/export screen.
#include "cli/cli.h"
#include "store/datafolder.h"
#include "store/formatters.h"
#include "store/snapshots.h"
#include "store/translations.h"


namespace {

bool oneFileArgument(const CliContext &context)
{
    return context.arguments.size() == 1 && !context.arguments.first().startsWith(u'-');
}

// A read-only collection is neither replaced nor put back; said before anything is read.
bool writable(CliContext &context)
{
    const auto writable = context.folder().persistentContainer().checkWritable();
    if (!writable)
        context.err << "platterbox: " << translated(writable.errorMessage()) << "\n";
    return writable.ok();
}

} // namespace

int backupCommand(CliContext &context)
{
    if (!oneFileArgument(context))
        return CliBadUsage;
    if (!context.openFolder())
        return CliBadInput;
    auto written = Backup::backUp(context.folder().backupPaths(), context.arguments.first());
    if (!written) {
        context.err << "platterbox: " << translated(written.errorMessage()) << "\n";
        return CliBadInput;
    }
    // "Backed up 12 records and 20 cover files to FILE": each count with its own plural.
    context.out << Cli::tr("Backed up %n records and %1 to %2", nullptr, int(written->records))
                       .arg(Cli::tr("%n cover files", nullptr, int(written->coverFiles)), context.arguments.first())
                << "\n";
    return CliOk;
}

int restoreCommand(CliContext &context)
{
    if (!oneFileArgument(context))
        return CliBadUsage;
    if (!context.openFolder() || !writable(context))
        return CliBadInput;
    const QString path = context.arguments.first();
    const auto info = Backup::inspect(path);
    if (!info) {
        context.err << "platterbox: " << translated(info.errorMessage()) << "\n";
        return CliBadInput;
    }
    if (auto restored = context.folder().snapshots().restore(path); !restored) {
        context.err << "platterbox: " << translated(restored.errorMessage()) << "\n";
        return CliBadInput;
    }
    context.out << Cli::tr("Restored %n records from %1; 'platterbox undo-import' puts back the collection it replaced",
                           nullptr, int(info->records))
                       .arg(path)
                << "\n";
    return CliOk;
}

int undoImportCommand(CliContext &context)
{
    if (!context.arguments.isEmpty())
        return CliBadUsage;
    if (!context.openFolder() || !writable(context))
        return CliBadInput;
    const auto undone = context.folder().snapshots().undoLatest();
    if (!undone) {
        context.err << "platterbox: " << translated(undone.errorMessage()) << "\n";
        return CliBadInput;
    }
    const QString back = undone->kind == Snapshots::kKindRestore
                             ? Cli::tr("The collection is back as it was before the restore of %1 on %2 %3")
                             : Cli::tr("The collection is back as it was before the import of %1 on %2 %3");
    context.out << back.arg(undone->source, Formatters::mediumDate(undone->created), undone->created.toString(u"HH:mm"))
                << "\n";
    return CliOk;
}
