#pragma once

#include <QCoreApplication>
#include <QStringList>
#include <QTextStream>

#include <memory>

class DataFolder;

// The command line's texts for people, in the user's language: Cli::tr("..."). What programs
// read (--json output, the files written) never changes with the language.
struct Cli
{
    Q_DECLARE_TR_FUNCTIONS(Cli)
};

// Exit codes of the command-line tool.
enum CliExit { CliOk = 0, CliBadInput = 1, CliBadUsage = 2 };

// What a command works with: its own arguments, the two streams and the data folder, which it
// opens only once its arguments are known to be good. A command that returns CliBadUsage may say
// why first; its usage follows from the one table of commands (cli.cpp).
class CliContext
{
public:
    CliContext(QString dataDirOption, QStringList arguments, QTextStream &out, QTextStream &err);
    ~CliContext();

    QStringList arguments; // after the command name
    QTextStream &out;
    QTextStream &err;

    // Opens the store in the data folder (creating the folder when missing); false, with the
    // error said on err, when it cannot be opened. --help and a usage error never get here, so
    // they leave no folder and no store behind.
    [[nodiscard]] bool openFolder();
    // The folder openFolder() opened.
    [[nodiscard]] DataFolder &folder();

private:
    QString m_dataDirOption;
    std::unique_ptr<DataFolder> m_folder;
};

// Runs `platterbox [--data-dir DIR] COMMAND ...` (arguments without the program name).
int runCli(QStringList arguments, QTextStream &out, QTextStream &err);

// The commands; each lives in a file of its own.
int demoCommand(CliContext &context);
int statsCommand(CliContext &context);
int loansCommand(CliContext &context);
int exportCommand(CliContext &context);
int importCommand(CliContext &context);
int reportCommand(CliContext &context);
int backupCommand(CliContext &context);
int restoreCommand(CliContext &context);
int undoImportCommand(CliContext &context);
int lookupCommand(CliContext &context);
