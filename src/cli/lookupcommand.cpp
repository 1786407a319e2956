// `lookup`: find a release in the catalogue by its barcode (typed, or read from a photo of the
// sleeve) or by "ARTIST - TITLE", list the candidates, and with --add store one as a record.
#include "cli/cli.h"
#include "lookup/barcodereader.h"
#include "lookup/lookupclient.h"
#include "lookup/lookuprecord.h"
#include "store/datafolder.h"
#include "store/store.h"
#include "store/translations.h"

using namespace Qt::StringLiterals;

namespace {
struct LookupOptions
{
    QString barcode;
    QString image;
    QString search;
    bool add = false;
    int pick = 1;
};

// nullopt for a command line that does not say one thing to look up.
std::optional<LookupOptions> parse(const QStringList &args)
{
    LookupOptions o;
    bool picked = false;
    for (int i = 0; i < args.size(); ++i) {
        const QString &a = args.at(i);
        const bool takesValue = a == u"--image"_s || a == u"--search"_s || a == u"--pick"_s;
        if (takesValue && i + 1 >= args.size())
            return std::nullopt;
        if (a == u"--add"_s) {
            o.add = true;
        } else if (a == u"--image"_s) {
            o.image = args.at(++i);
        } else if (a == u"--search"_s) {
            o.search = args.at(++i);
        } else if (a == u"--pick"_s) {
            bool isNumber = false;
            o.pick = args.at(++i).toInt(&isNumber);
            if (!isNumber || o.pick < 1)
                return std::nullopt;
            picked = true;
        } else if (!a.startsWith(u"--"_s) && o.barcode.isEmpty()) {
            o.barcode = a;
        } else {
            return std::nullopt;
        }
    }
    const int sources = int(!o.barcode.isEmpty()) + int(!o.image.isEmpty()) + int(!o.search.trimmed().isEmpty());
    if (sources != 1 || (picked && !o.add))
        return std::nullopt;
    return o;
}

QString describe(const LookupCandidate &c)
{
    return u"%1 - %2 (%3)"_s.arg(c.artist, c.title, LookedUp::details(c).join(u", "_s));
}
} // namespace

int lookupCommand(CliContext &context)
{
    const auto options = parse(context.arguments);
    if (!options)
        return CliBadUsage;
    if (!options->barcode.isEmpty() && BarcodeDigits::searchForms(options->barcode).isEmpty()) {
        context.err << "platterbox: " << Cli::tr("\"%1\" is not a barcode: give its 8, 12 or 13 digits").arg(options->barcode)
                    << "\n";
        return CliBadUsage;
    }
    if (!context.openFolder())
        return CliBadInput;
    Store &store = context.folder().persistentContainer();
    if (options->add) {
        if (const auto writable = store.checkWritable(); !writable) {
            context.err << "platterbox: " << translated(writable.errorMessage()) << "\n";
            return CliBadInput;
        }
    }

    QString barcode = options->barcode;
    if (!options->image.isEmpty()) {
        const auto read = BarcodeReader::readFile(options->image);
        if (!read) {
            context.err << "platterbox: " << translated(read.errorMessage()) << "\n";
            return CliBadInput;
        }
        barcode = read->digits;
        context.out << Cli::tr("Read %1 %2 from %3").arg(read->formatName(), barcode, options->image) << "\n";
    }

    LookupClient client;
    const auto candidates = barcode.isEmpty() ? searchTextAndWait(client, options->search)
                                              : searchBarcodeAndWait(client, barcode);
    if (!candidates) {
        context.err << "platterbox: " << translated(candidates.errorMessage()) << "\n";
        return CliBadInput;
    }
    if (candidates->isEmpty()) {
        context.err << "platterbox: "
                    << Cli::tr("no release found for %1").arg(barcode.isEmpty() ? u"\"%1\""_s.arg(options->search) : barcode)
                    << "\n";
        return CliBadInput;
    }
    if (!options->add) {
        for (qsizetype i = 0; i < candidates->size(); ++i)
            context.out << (i + 1) << ". " << describe(candidates->at(i)) << "\n";
        return CliOk;
    }
    if (options->pick > candidates->size()) {
        context.err << "platterbox: " << Cli::tr("there are only %n candidates", nullptr, int(candidates->size())) << "\n";
        return CliBadInput;
    }

    const LookupCandidate &chosen = candidates->at(options->pick - 1);
    const auto release = fetchReleaseAndWait(client, chosen.releaseId);
    if (!release) {
        context.err << "platterbox: " << translated(release.errorMessage()) << "\n";
        return CliBadInput;
    }
    const auto existing = LookedUp::inCollection(store, *release);
    if (!existing) {
        context.err << "platterbox: " << translated(existing.errorMessage()) << "\n";
        return CliBadInput;
    }
    if (*existing) {
        context.err << "platterbox: "
                    << Cli::tr("already in the collection: %1; nothing was added").arg(LookedUp::nameOf(**existing)) << "\n";
        return CliBadInput;
    }
    const auto covers = fetchCoversAndWait(client, chosen.releaseId);
    if (!covers) {
        context.err << "platterbox: " << translated(covers.errorMessage()) << "\n";
        return CliBadInput;
    }
    auto record = LookedUp::record(*release, *covers);
    if (!record) {
        context.err << "platterbox: " << translated(record.errorMessage()) << "\n";
        return CliBadInput;
    }
    if (auto added = LookedUp::add(store, *record); !added) {
        context.err << "platterbox: " << translated(added.errorMessage()) << "\n";
        return CliBadInput;
    }
    const int coverCount = int(!covers->front.isNull()) + int(!covers->back.isNull());
    // "Added NAME with 12 tracks and 1 cover": each count with its own plural.
    context.out << Cli::tr("Added %1 with %n tracks and %2", nullptr, int(record->tracks.size()))
                       .arg(LookedUp::nameOf(record->vinyl), coverCount == 1 ? Cli::tr("%n cover", nullptr, coverCount)
                                                                            : Cli::tr("%n covers", nullptr, coverCount))
                << "\n";
    return CliOk;
}
