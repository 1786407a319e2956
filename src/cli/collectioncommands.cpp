// `demo`, `stats` and `loans`: fill the store with sample records, sum it up (every figure and
// chart series as JSON with --json), and list the records lent out.
#include "cli/cli.h"
#include "collection/loans.h"
#include "collection/statistics.h"
#include "store/collectiontotals.h"
#include "store/datafolder.h"
#include "store/formatters.h"
#include "store/samplecollection.h"
#include "store/translations.h"

#include <QJsonDocument>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace {
// What scripts read is the same in every language and locale: the amounts and dates --json
// writes as texts are written as in the United States.
void useScriptLocale()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
}
} // namespace

int demoCommand(CliContext &context)
{
    bool isNumber = false;
    const int count = context.arguments.value(0).toInt(&isNumber);
    if (context.arguments.size() != 1 || !isNumber)
        return CliBadUsage;
    if (count < 1 || count > 32767) {
        context.err << "platterbox: " << Cli::tr("N must be between 1 and 32767") << "\n";
        return CliBadInput;
    }
    if (!context.openFolder())
        return CliBadInput;
    SampleOptions options;
    options.records = count;
    options.loansFrom = QDate::currentDate();
    options.wantlist = true;
    auto done = addSampleCollection(context.folder().persistentContainer(), options);
    if (!done) {
        context.err << "platterbox: " << translated(done.errorMessage()) << "\n";
        return CliBadInput;
    }
    context.out << Cli::tr("Added %n sample records.", nullptr, count) << "\n";
    return CliOk;
}

int statsCommand(CliContext &context)
{
    const bool json = context.arguments == QStringList{u"--json"_s};
    if (!context.arguments.isEmpty() && !json)
        return CliBadUsage;
    if (!context.openFolder())
        return CliBadInput;
    if (json) {
        useScriptLocale();
        auto statistics = StatisticsQueries::compute(context.folder().persistentContainer());
        if (!statistics) {
            context.err << "platterbox: " << translated(statistics.errorMessage()) << "\n";
            return CliBadInput;
        }
        context.out << QJsonDocument(statisticsJson(*statistics)).toJson(QJsonDocument::Indented);
        return CliOk;
    }
    auto totals = collectionTotals(context.folder().persistentContainer());
    if (!totals) {
        context.err << "platterbox: " << translated(totals.errorMessage()) << "\n";
        return CliBadInput;
    }
    const QLocale locale;
    context.out << Cli::tr("Records: %1").arg(locale.toString(totals->records)) << "\n"
                << Cli::tr("Copies: %1").arg(locale.toString(totals->copies)) << "\n"
                << Cli::tr("Total value: %1").arg(Formatters::currency(totals->value)) << "\n";
    return CliOk;
}

int loansCommand(CliContext &context)
{
    const bool json = context.arguments == QStringList{u"--json"_s};
    if (!context.arguments.isEmpty() && !json)
        return CliBadUsage;
    if (!context.openFolder())
        return CliBadInput;
    auto out = context.folder().persistentContainer().loansOut();
    if (!out) {
        context.err << "platterbox: " << translated(out.errorMessage()) << "\n";
        return CliBadInput;
    }
    const QDate today = QDate::currentDate();
    if (json) {
        useScriptLocale();
        context.out << QJsonDocument(Loans::json(*out, today)).toJson(QJsonDocument::Indented);
        return CliOk;
    }
    context.out << Loans::summary(*out, today) << "\n";
    for (const LoanOut &o : std::as_const(*out))
        context.out << Cli::tr("%1 by %2: %3")
                           .arg(o.name, o.artist.isEmpty() ? Cli::tr("no artist") : o.artist, Loans::status(o.loan, today))
                    << "\n";
    return CliOk;
}
