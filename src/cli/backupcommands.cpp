// `backup`, `restore` and `undo-import`: the lossless copies of the collection from the command
// line, through the same logic as the import/export screen.
#include "cli/cli.h"
#include "store/datafolder.h"
#include "store/formatters.h"
#include "store/snapshots.h"


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
        context.err << "platterbox: " << writable.errorMessage() << "\n";
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
        context.err << "platterbox: " << written.errorMessage() << "\n";
        return CliBadInput;
    }
    context.out << "Backed up " << written->records << " records and " << written->coverFiles << " cover files to "
                << context.arguments.first() << "\n";
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
        context.err << "platterbox: " << info.errorMessage() << "\n";
        return CliBadInput;
    }
    if (auto restored = context.folder().snapshots().restore(path); !restored) {
        context.err << "platterbox: " << restored.errorMessage() << "\n";
        return CliBadInput;
    }
    context.out << "Restored " << info->records << " records from " << path
                << "; 'platterbox undo-import' puts back the collection it replaced\n";
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
        context.err << "platterbox: " << undone.errorMessage() << "\n";
        return CliBadInput;
    }
    context.out << "The collection is back as it was before the " << undone->kind << " of " << undone->source << " on "
                << Formatters::mediumDate(undone->created) << " " << undone->created.toString(u"HH:mm") << "\n";
    return CliOk;
}
