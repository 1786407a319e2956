// `export` and `import`: the exchange file from the command line.
#include "cli.h"

int exportCommand(CliContext &context)
{
    context.err << "platterbox: export is not available in this build\n";
    return CliBadUsage;
}

int importCommand(CliContext &context)
{
    context.err << "platterbox: import is not available in this build\n";
    return CliBadUsage;
}
