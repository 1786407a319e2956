// `report`: the printed collection report as a PDF file, through the same builder as the
// printed-report screen.
#include "cli/cli.h"
#include "reports/coverpictures.h"
#include "reports/reportbuilder.h"
#include "reports/reportpdf.h"
#include "reports/reporttexts.h"
#include "store/currentrecord.h"
#include "store/datafolder.h"
#include "store/store.h"
#include "store/translations.h"

#include <QDate>

using namespace Qt::StringLiterals;

namespace {
// The group option each origin needs.
QString groupOption(const QString &origin)
{
    if (origin == ReportOrigins::ArtistBreakdown)
        return u"--artist"_s;
    if (origin == ReportOrigins::LabelBreakdown)
        return u"--label"_s;
    if (origin == ReportOrigins::ProducerBreakdown)
        return u"--producer"_s;
    if (origin == ReportOrigins::YearBreakdown)
        return u"--date"_s;
    return {};
}

QString originOf(const QString &option)
{
    for (const QString &origin : {ReportOrigins::ArtistBreakdown, ReportOrigins::LabelBreakdown,
                                  ReportOrigins::ProducerBreakdown, ReportOrigins::YearBreakdown}) {
        if (groupOption(origin) == option)
            return origin;
    }
    return {};
}
} // namespace

int reportCommand(CliContext &context)
{
    QString output;
    QString origin;
    QString option; // the group option given
    QString group;
    bool ascending = true;
    const QStringList &args = context.arguments;
    for (int i = 0; i < args.size(); ++i) {
        const QString &a = args.at(i);
        if (a == u"--descending"_s) {
            ascending = false;
            continue;
        }
        const bool takesValue = a == u"--pdf"_s || a == u"--origin"_s || !originOf(a).isEmpty();
        if (!takesValue || i + 1 >= args.size())
            return CliBadUsage;
        const QString value = args.at(++i);
        if (a == u"--pdf"_s) {
            output = value;
        } else if (a == u"--origin"_s) {
            origin = value;
        } else if (!option.isEmpty()) {
            context.err << "platterbox: " << Cli::tr("give only one of --artist, --label, --producer and --date") << "\n";
            return CliBadUsage;
        } else {
            option = a;
            group = value;
        }
    }
    if (origin.isEmpty())
        origin = option.isEmpty() ? ReportOrigins::List : originOf(option);
    if (output.isEmpty() || (origin != ReportOrigins::List && groupOption(origin).isEmpty()))
        return CliBadUsage;
    if (groupOption(origin) != option) {
        if (option.isEmpty())
            context.err << "platterbox: " << Cli::tr("--origin %1 needs %2").arg(origin, groupOption(origin)) << "\n";
        else
            context.err << "platterbox: " << Cli::tr("%1 does not go with --origin %2").arg(option, origin) << "\n";
        return CliBadUsage;
    }

    CurrentRecord selected;
    if (origin == ReportOrigins::ArtistBreakdown)
        selected.artist = group;
    else if (origin == ReportOrigins::LabelBreakdown)
        selected.recordLabel = group;
    else if (origin == ReportOrigins::ProducerBreakdown)
        selected.producer = group;
    else if (origin == ReportOrigins::YearBreakdown) {
        const QDate date = QDate::fromString(group, u"yyyy-MM-dd"_s);
        if (!date.isValid()) {
            context.err << "platterbox: " << Cli::tr("--date wants a date like 1975-03-05, not \"%1\"").arg(group) << "\n";
            return CliBadInput;
        }
        selected.releaseDate = date.startOfDay();
    }

    if (!context.openFolder())
        return CliBadInput;
    Store &store = context.folder().persistentContainer();
    auto records = ReportBuilder::fetchReport(store, origin, selected, ascending);
    if (!records) {
        context.err << "platterbox: " << translated(records.errorMessage()) << "\n";
        return CliBadInput;
    }
    const qsizetype count = records->size();
    auto content = ReportContent::printedReport(origin, std::move(records).value());
    if (!content) {
        context.err << "platterbox: " << translated(content.errorMessage()) << "\n";
        return CliBadInput;
    }
    // The covers are read a page at a time, so a report of any length runs in little memory.
    CoverReader covers(store.filePath());
    const auto written = ReportPdf::write(*content, output, &covers);
    if (!written) {
        context.err << "platterbox: " << translated(written.errorMessage()) << "\n";
        return CliBadInput;
    }
    context.out << Cli::tr("Wrote %n records to %1", nullptr, int(count)).arg(output) << "\n";
    return CliOk;
}
