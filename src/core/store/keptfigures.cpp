#include "store/keptfigures.h"

using namespace Qt::StringLiterals;

namespace KeptFigures {

namespace {

// Each kind of tally and the attribute it groups by; the collection's one row has no attribute.
const QList<std::pair<QString, QString>> &kinds()
{
    static const QList<std::pair<QString, QString>> list = {
        {kCollection, QString()},         {u"artist"_s, u"artist"_s},
        {u"recordLabel"_s, u"recordLabel"_s}, {u"producer"_s, u"producer"_s},
        {u"recordSpeed"_s, u"recordSpeed"_s}, {u"doubleAlbum"_s, u"doubleAlbum"_s},
        {u"vinylCondition"_s, u"vinylCondition"_s}, {u"coverCondition"_s, u"coverCondition"_s},
    };
    return list;
}

const QString kQuarterHourMs = u"900000"_s;

// Amounts are summed in whole cents, so adding and taking away the same record leaves no trace.
QString cents(const QString &amount)
{
    return u"CAST(ROUND(COALESCE(%1, 0) * 100) AS INTEGER)"_s.arg(amount);
}

QString nameOf(const QString &row, const QString &attribute)
{
    return attribute.isEmpty() ? u"''"_s : u"COALESCE(%1.%2, '')"_s.arg(row, attribute);
}

// Adds (sign "+") or takes away (sign "-") a record's row of every tally, in one statement:
// a statement per tally would cost an import several times the record's own write.
QString tally(const QString &row, const QString &sign)
{
    const QString copies = u"COALESCE(%1.quantity, 0)"_s.arg(row);
    QStringList rows;
    QStringList keys;
    for (const auto &[kind, attribute] : kinds()) {
        rows << u"('%1', %2, %3 1, %3 %4, %3 %4 * %5, %3 %4 * %6)"_s.arg(kind, nameOf(row, attribute), sign, copies,
                                                                       cents(row + u".cost"_s), cents(row + u".value"_s));
        keys << u"('%1', %2)"_s.arg(kind, nameOf(row, attribute));
    }
    QString sql = u"INSERT INTO Tallies (kind, name, records, copies, cost, worth) VALUES %1 ON CONFLICT (kind, name) "
                  "DO UPDATE SET records = records + excluded.records, copies = copies + excluded.copies, "
                  "cost = cost + excluded.cost, worth = worth + excluded.worth; "_s.arg(rows.join(u", "_s));
    if (sign == u"-")
        sql += u"DELETE FROM Tallies WHERE records = 0 AND (kind, name) IN (VALUES %1); "_s.arg(keys.join(u", "_s));
    return sql;
}

QString addStep(const QString &quarterHour, const QString &change, const QString &quotes)
{
    return u"INSERT INTO ValueSteps (quarterHour, change, quotes) VALUES (%1, %2, %3) ON CONFLICT (quarterHour) "
           "DO UPDATE SET change = change + excluded.change, quotes = quotes + excluded.quotes; "_s
        .arg(quarterHour, change, quotes);
}

// Every quote of record `rowId` adds `factor` times its difference from the one before, and
// `quotes` to its quarter hour's count: a record's copies arriving, leaving or changing.
QString stepsOfRecord(const QString &rowId, const QString &factor, const QString &quotes)
{
    QString sql = u"INSERT INTO ValueSteps (quarterHour, change, quotes) SELECT quoted / %1, (%2) * (%3 - %4), %5 "
                  "FROM (SELECT quoted, value, LAG(value) OVER (ORDER BY quoted, rowid) AS previous "
                  "FROM Quotes WHERE vinylRowId = %6) WHERE true ON CONFLICT (quarterHour) DO UPDATE SET "
                  "change = change + excluded.change, quotes = quotes + excluded.quotes; "_s
                      .arg(kQuarterHourMs, factor, cents(u"value"_s), cents(u"previous"_s), quotes, rowId);
    if (quotes.startsWith(u'-'))
        sql += u"DELETE FROM ValueSteps WHERE quotes = 0 AND quarterHour IN "
               "(SELECT quoted / %1 FROM Quotes WHERE vinylRowId = %2); "_s.arg(kQuarterHourMs, rowId);
    return sql;
}

// A quote arriving (sign "+") or leaving ("-") changes its own step and that of the record's
// next quote, which is now measured from it (or no longer is).
QString quoteSteps(const QString &row, const QString &sign)
{
    const QString record = row + u".vinylRowId"_s;
    const QString copies = u"(SELECT COALESCE(quantity, 0) FROM Vinyl WHERE rowid = %1)"_s.arg(record);
    const QString previous = u"(SELECT value FROM Quotes WHERE vinylRowId = %1 AND (quoted, rowid) < (%2.quoted, %2.rowid) "
                             "ORDER BY quoted DESC, rowid DESC LIMIT 1)"_s.arg(record, row);
    const QString difference = u"(%1 - %2)"_s.arg(cents(row + u".value"_s), cents(previous));
    QString sql = addStep(u"%1.quoted / %2"_s.arg(row, kQuarterHourMs), u"%1 %2 * %3"_s.arg(sign, copies, difference),
                          sign + u"1"_s);
    const QString other = sign == u"+" ? u"-"_s : u"+"_s;
    sql += u"INSERT INTO ValueSteps (quarterHour, change, quotes) SELECT * FROM (SELECT quoted / %1, %2 %3 * %4, 0 "
           "FROM Quotes WHERE vinylRowId = %5 AND (quoted, rowid) > (%6.quoted, %6.rowid) ORDER BY quoted, rowid LIMIT 1) "
           "WHERE true ON CONFLICT (quarterHour) DO UPDATE SET change = change + excluded.change; "_s
               .arg(kQuarterHourMs, other, copies, difference, record, row);
    if (sign == u"-")
        sql += u"DELETE FROM ValueSteps WHERE quarterHour = %1.quoted / %2 AND quotes = 0; "_s.arg(row, kQuarterHourMs);
    return sql;
}

QString tallyColumns()
{
    QStringList columns;
    for (const auto &[kind, attribute] : kinds()) {
        if (!attribute.isEmpty())
            columns << attribute;
    }
    return columns.join(u", "_s);
}

} // namespace

QStringList schema()
{
    const QString recordExists = u"EXISTS (SELECT 1 FROM Vinyl WHERE rowid = %1.vinylRowId)"_s;
    const QString hasQuotes = u"EXISTS (SELECT 1 FROM Quotes WHERE vinylRowId = %1.rowid)"_s;
    QStringList changed;
    for (const QString &column : tallyColumns().split(u", "_s) + QStringList{u"quantity"_s, u"cost"_s, u"value"_s})
        changed << u"NEW.%1 IS NOT OLD.%1"_s.arg(column);
    return QStringList{
               u"CREATE TABLE main.Tallies (kind TEXT NOT NULL, name TEXT NOT NULL, records INTEGER NOT NULL, "
               "copies INTEGER NOT NULL, cost INTEGER NOT NULL, worth INTEGER NOT NULL, PRIMARY KEY (kind, name)) WITHOUT ROWID"_s,
               u"CREATE TABLE main.ValueSteps (quarterHour INTEGER PRIMARY KEY, change INTEGER NOT NULL, quotes INTEGER NOT NULL)"_s,
               u"CREATE TRIGGER main.TalliedAdded AFTER INSERT ON Vinyl BEGIN "_s + tally(u"NEW"_s, u"+"_s) + u"END"_s,
               u"CREATE TRIGGER main.TalliedRemoved AFTER DELETE ON Vinyl BEGIN "_s + tally(u"OLD"_s, u"-"_s) + u"END"_s,
               u"CREATE TRIGGER main.TalliedChanged AFTER UPDATE OF %1, quantity, cost, value ON Vinyl WHEN %2 BEGIN "_s.arg(
                   tallyColumns(), changed.join(u" OR "_s))
                   + tally(u"OLD"_s, u"-"_s) + tally(u"NEW"_s, u"+"_s) + u"END"_s,
               // A record's quotes are stored after it and removed before it, so these fire only
               // where quotes outlived their record and its row number is taken again.
               u"CREATE TRIGGER main.StepsAdded AFTER INSERT ON Vinyl WHEN %1 BEGIN "_s.arg(hasQuotes.arg(u"NEW"_s))
                   + stepsOfRecord(u"NEW.rowid"_s, u"COALESCE(NEW.quantity, 0)"_s, u"1"_s) + u"END"_s,
               u"CREATE TRIGGER main.StepsRemoved AFTER DELETE ON Vinyl WHEN %1 BEGIN "_s.arg(hasQuotes.arg(u"OLD"_s))
                   + stepsOfRecord(u"OLD.rowid"_s, u"-COALESCE(OLD.quantity, 0)"_s, u"-1"_s) + u"END"_s,
               u"CREATE TRIGGER main.TalliedCopies AFTER UPDATE OF quantity ON Vinyl "
               "WHEN NEW.quantity IS NOT OLD.quantity AND %1 BEGIN "_s.arg(hasQuotes.arg(u"NEW"_s))
                   + stepsOfRecord(u"NEW.rowid"_s, u"COALESCE(NEW.quantity, 0) - COALESCE(OLD.quantity, 0)"_s, u"0"_s)
                   + u"END"_s,
               u"CREATE TRIGGER main.QuoteAdded AFTER INSERT ON Quotes WHEN %1 BEGIN "_s.arg(recordExists.arg(u"NEW"_s))
                   + quoteSteps(u"NEW"_s, u"+"_s) + u"END"_s,
               u"CREATE TRIGGER main.QuoteRemoved AFTER DELETE ON Quotes WHEN %1 BEGIN "_s.arg(recordExists.arg(u"OLD"_s))
                   + quoteSteps(u"OLD"_s, u"-"_s) + u"END"_s,
           }
        + recount();
}

QStringList dropped()
{
    QStringList sql;
    for (const QString &trigger : {u"TalliedAdded"_s, u"TalliedRemoved"_s, u"TalliedChanged"_s, u"TalliedCopies"_s,
                                   u"StepsAdded"_s, u"StepsRemoved"_s, u"QuoteAdded"_s, u"QuoteRemoved"_s})
        sql << u"DROP TRIGGER IF EXISTS main."_s + trigger;
    return sql << u"DROP TABLE IF EXISTS main.Tallies"_s << u"DROP TABLE IF EXISTS main.ValueSteps"_s;
}

QStringList recount()
{
    QStringList sql{u"DELETE FROM main.Tallies"_s, u"DELETE FROM main.ValueSteps"_s};
    for (const auto &[kind, attribute] : kinds()) {
        const QString grouped = attribute.isEmpty() ? u"''"_s : u"COALESCE(%1, '')"_s.arg(attribute);
        sql << u"INSERT INTO main.Tallies (kind, name, records, copies, cost, worth) SELECT '%1', %2, COUNT(*), "
               "TOTAL(COALESCE(quantity, 0)), TOTAL(COALESCE(quantity, 0) * %3), TOTAL(COALESCE(quantity, 0) * %4) "
               "FROM main.Vinyl GROUP BY 2"_s.arg(kind, grouped, cents(u"cost"_s), cents(u"value"_s));
    }
    sql << u"INSERT INTO main.ValueSteps (quarterHour, change, quotes) SELECT quotes.quoted / %1 AS quarterHour, "
           "TOTAL(COALESCE(Vinyl.quantity, 0) * (%2 - %3)), COUNT(*) "
           "FROM (SELECT vinylRowId, quoted, value, LAG(value) OVER (PARTITION BY vinylRowId ORDER BY quoted, rowid) AS previous "
           "FROM main.Quotes) AS quotes JOIN main.Vinyl AS Vinyl ON Vinyl.rowid = quotes.vinylRowId GROUP BY quarterHour"_s
               .arg(kQuarterHourMs, cents(u"quotes.value"_s), cents(u"quotes.previous"_s));
    return sql;
}

QString amount(const QString &centsColumn)
{
    return u"(%1 / 100.0)"_s.arg(centsColumn);
}

} // namespace KeptFigures
