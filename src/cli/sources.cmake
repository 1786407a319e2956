list(APPEND PB_SOURCES
    cli/cli.h cli/cli.cpp
    cli/collectioncommands.cpp
    cli/exchangecommands.cpp
    cli/reportcommand.cpp
    cli/backupcommands.cpp
)
