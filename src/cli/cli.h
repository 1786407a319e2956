#pragma once

#include <QStringList>
#include <QTextStream>

class DataFolder;

// Exit codes of the command-line tool.
enum CliExit { CliOk = 0, CliBadInput = 1, CliBadUsage = 2 };

// What a command works with: the opened data folder, its own arguments and the two streams.
struct CliContext
{
    DataFolder &folder;
    QStringList arguments; // after the command name
    QTextStream &out;
    QTextStream &err;
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
