// `report`: the printed collection report as a PDF file.
#include "cli.h"

int reportCommand(CliContext &context)
{
    context.err << "platterbox: report is not available in this build\n";
    return CliBadUsage;
}
