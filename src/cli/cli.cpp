#include "cli/cli.h"

#include "store/datafolder.h"
#include "store/version.h"
#include "store/translations.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

// Each command once: its forms (what follows "platterbox [--data-dir DIR] "), what it does, and
// the function that runs it. `--help`, `COMMAND --help` and every usage error print from here.
struct Command
{
    QString name;
    QStringList forms;
    const char *summary; // translated where it is printed
    int (*run)(CliContext &);
};

const QList<Command> &commands()
{
    static const QList<Command> list = {
        {u"demo"_s, {u"demo N"_s}, QT_TRANSLATE_NOOP("Cli", "Add N sample records (made-up albums with tracks and covers)."), demoCommand},
        {u"stats"_s, {u"stats [--json]"_s},
         QT_TRANSLATE_NOOP("Cli", "Print the number of records, copies and their total value (--json: every figure and chart)."), statsCommand},
        {u"loans"_s, {u"loans [--json]"_s}, QT_TRANSLATE_NOOP("Cli", "List the records lent out, the longest out first, and which are overdue."),
         loansCommand},
        {u"export"_s,
         {u"export FILE [--no-images]"_s, u"export FILE --csv [--one-file]"_s, u"export FILE --csv --wantlist"_s},
         QT_TRANSLATE_NOOP("Cli", "Write the collection to an exchange file or CSV files, or the wantlist to a CSV file."), exportCommand},
        {u"import"_s, {u"import FILE [--dry-run]"_s, u"import --wantlist FILE [--dry-run]"_s},
         QT_TRANSLATE_NOOP("Cli", "Merge an exchange, Discogs or CSV file into the collection, or add a file's albums to the wantlist."),
         importCommand},
        {u"report"_s,
         {u"report --pdf OUT [--origin List|ArtistBreakdown|LabelBreakdown|ProducerBreakdown|YearBreakdown] "
          "[--artist T|--label T|--producer T|--date YYYY-MM-DD] [--descending]"_s},
         QT_TRANSLATE_NOOP("Cli", "Write the printed collection report as a PDF file."), reportCommand},
        {u"backup"_s, {u"backup FILE"_s}, QT_TRANSLATE_NOOP("Cli", "Copy the whole collection, cover files included, into FILE."), backupCommand},
        {u"restore"_s, {u"restore FILE"_s}, QT_TRANSLATE_NOOP("Cli", "Replace the collection with a backup (undo-import puts it back)."),
         restoreCommand},
        {u"lookup"_s, {u"lookup BARCODE | --image FILE | --search \"ARTIST - TITLE\" [--add [--pick N]]"_s},
         QT_TRANSLATE_NOOP("Cli", "Find a release in the online catalogue; --add stores it."), lookupCommand},
        {u"undo-import"_s, {u"undo-import"_s},
         QT_TRANSLATE_NOOP("Cli", "Put the collection back as it was before the last import or restore."), undoImportCommand},
    };
    return list;
}

const Command *findCommand(const QString &name)
{
    for (const Command &c : commands()) {
        if (c.name == name)
            return &c;
    }
    return nullptr;
}

bool isHelp(const QString &argument)
{
    return argument == u"--help"_s || argument == u"-h"_s;
}

// "usage: platterbox [--data-dir DIR] FORM", one line for each form of the command.
void printForms(QTextStream &stream, const Command &command)
{
    for (qsizetype i = 0; i < command.forms.size(); ++i)
        stream << (i == 0 ? Cli::tr("usage: %1") : u"       %1"_s).arg(u"platterbox [--data-dir DIR] "_s + command.forms.at(i))
               << '\n';
}

void printCommandHelp(QTextStream &stream, const Command &command)
{
    printForms(stream, command);
    stream << '\n' << Cli::tr(command.summary) << '\n';
}

void printUsage(QTextStream &stream)
{
    stream << Cli::tr("usage: %1").arg(u"platterbox [--data-dir DIR] COMMAND [ARGUMENTS]"_s) << '\n'
           << "       platterbox COMMAND --help\n"
              "       platterbox --help | --version\n\n"
           << Cli::tr("commands:") << '\n';
    for (const Command &c : commands()) {
        for (const QString &form : c.forms)
            stream << "  " << form << '\n';
        stream << "      " << Cli::tr(c.summary) << '\n';
    }
    stream << '\n' << Cli::tr("The store is Platterbox.sqlite in DIR, in $PLATTERBOX_DATA_DIR, or in the app's data folder.")
           << '\n';
}

// Whatever was asked for, answered without a store: the version, the overall usage or a
// command's usage. nullopt when the arguments ask for none of them.
std::optional<int> answerWithoutStore(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    if (arguments.isEmpty()) {
        printUsage(err);
        return CliBadUsage;
    }
    const QString &first = arguments.first();
    if (first == u"--version"_s && arguments.size() == 1) {
        out << Version::nameAndNumber() << '\n';
        return CliOk;
    }
    if ((isHelp(first) || first == u"help"_s) && arguments.size() == 1) {
        printUsage(out);
        return CliOk;
    }
    if (first == u"help"_s && arguments.size() == 2 && findCommand(arguments.at(1))) {
        printCommandHelp(out, *findCommand(arguments.at(1)));
        return CliOk;
    }
    const Command *command = findCommand(first);
    if (!command) {
        err << "platterbox: " << Cli::tr("unknown command %1").arg(first) << "\n";
        printUsage(err);
        return CliBadUsage;
    }
    if (std::any_of(arguments.cbegin() + 1, arguments.cend(), isHelp)) {
        printCommandHelp(out, *command);
        return CliOk;
    }
    return std::nullopt;
}

} // namespace

CliContext::CliContext(QString dataDirOption, QStringList arguments, QTextStream &out, QTextStream &err)
    : arguments(std::move(arguments)), out(out), err(err), m_dataDirOption(std::move(dataDirOption))
{
}

CliContext::~CliContext() = default;

bool CliContext::openFolder()
{
    bool chosen = false;
    const QString dataDir = DataFolder::resolve(m_dataDirOption, &chosen);
    auto folder = DataFolder::open(dataDir, chosen);
    if (!folder) {
        err << Cli::tr("Unresolved error %1").arg(translated(folder.errorMessage())) << "\n";
        return false;
    }
    m_folder = std::move(*folder);
    return true;
}

DataFolder &CliContext::folder()
{
    Q_ASSERT(m_folder);
    return *m_folder;
}

int runCli(QStringList arguments, QTextStream &out, QTextStream &err)
{
    bool malformed = false;
    const QString dataDirOption = DataFolder::takeOption(arguments, &malformed);
    if (malformed) {
        printUsage(err);
        err.flush();
        return CliBadUsage;
    }
    if (const std::optional<int> answered = answerWithoutStore(arguments, out, err)) {
        out.flush();
        err.flush();
        return *answered;
    }

    const Command &command = *findCommand(arguments.takeFirst());
    CliContext context(dataDirOption, arguments, out, err);
    const int code = command.run(context);
    if (code == CliBadUsage)
        printForms(err, command);
    out.flush();
    err.flush();
    return code;
}
