#include "cli/cli.h"

#include "store/datafolder.h"

using namespace Qt::StringLiterals;

namespace {

struct Command
{
    QString name;
    QString usage;
    int (*run)(CliContext &);
};

const QList<Command> &commands()
{
    static const QList<Command> list = {
        {u"demo"_s, u"demo N                 add N sample records (made-up albums with tracks and covers)"_s, demoCommand},
        {u"stats"_s, u"stats [--json]         print the number of records, copies and their total value (--json: every figure and chart)"_s, statsCommand},
        {u"loans"_s, u"loans [--json]         list the records lent out, the longest out first, and which are overdue"_s, loansCommand},
        {u"export"_s, u"export FILE [--no-images | --csv [--one-file | --wantlist]]   write the collection (or the wantlist) to an exchange file or CSV files"_s, exportCommand},
        {u"import"_s, u"import [--wantlist] FILE [--dry-run]   merge an exchange, Discogs or CSV file into the collection (or add a CSV file's albums to the wantlist)"_s, importCommand},
        {u"report"_s, u"report --pdf OUT [...]  write the printed collection report as a PDF file"_s, reportCommand},
        {u"backup"_s, u"backup FILE            copy the whole collection, cover files included, into FILE"_s, backupCommand},
        {u"restore"_s, u"restore FILE           replace the collection with a backup (undo-import puts it back)"_s, restoreCommand},
        {u"lookup"_s, u"lookup BARCODE | --image FILE | --search \"ARTIST - TITLE\" [--add [--pick N]]   find a release in the online catalogue; --add stores it"_s, lookupCommand},
        {u"undo-import"_s, u"undo-import            put the collection back as it was before the last import or restore"_s, undoImportCommand},
    };
    return list;
}

void printUsage(QTextStream &stream)
{
    stream << "usage: platterbox [--data-dir DIR] COMMAND\n\ncommands:\n";
    for (const Command &c : commands())
        stream << "  " << c.usage << '\n';
    stream << "\nThe store is Platterbox.sqlite in DIR, in $PLATTERBOX_DATA_DIR, or in the app's data folder.\n";
    stream.flush();
}

int usage(QTextStream &err)
{
    printUsage(err);
    return CliBadUsage;
}

} // namespace

int runCli(QStringList arguments, QTextStream &out, QTextStream &err)
{
    bool malformed = false;
    const QString dataDirOption = DataFolder::takeOption(arguments, &malformed);
    // Asked for, the usage is the answer: on standard output, with success.
    if (!malformed && (arguments.value(0) == u"--help"_s || arguments.value(0) == u"-h"_s)) {
        printUsage(out);
        return 0;
    }
    if (malformed || arguments.isEmpty())
        return usage(err);

    const QString name = arguments.takeFirst();
    const Command *command = nullptr;
    for (const Command &c : commands()) {
        if (c.name == name)
            command = &c;
    }
    if (!command) {
        err << "platterbox: unknown command " << name << "\n";
        return usage(err);
    }

    bool chosen = false;
    const QString dataDir = DataFolder::resolve(dataDirOption, &chosen);
    auto folder = DataFolder::open(dataDir, chosen);
    if (!folder) {
        err << "Unresolved error " << folder.errorMessage() << "\n";
        err.flush();
        return CliBadInput;
    }
    CliContext context{**folder, arguments, out, err};
    const int code = command->run(context);
    out.flush();
    err.flush();
    return code;
}
