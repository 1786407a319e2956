// The record form's rules, and the windows of rows a list reads a page at a time.
#include "collection/recordform.h"
#include "collection/recordrows.h"
#include "shell/appstate.h"
#include "store/settings.h"
#include "store/store.h"
#include "testsupport.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace RecordForm;

Q_DECLARE_METATYPE(FilteredField)
Q_DECLARE_METATYPE(FormScreen)

namespace {

// The form with one field set, by the field's attribute name.
RecordFormFields formWith(const QString &attribute, const QString &text)
{
    RecordFormFields f;
    f.name = u"Blue"_s;
    f.artist = u"Joni Mitchell"_s;
    f.recordLabel = u"Reprise"_s;
    const QHash<QString, QString *> fields = {
        {u"name"_s, &f.name}, {u"artist"_s, &f.artist}, {u"releaseDate"_s, &f.releaseDate},
        {u"recordLabel"_s, &f.recordLabel}, {u"quantity"_s, &f.quantity}, {u"albumDuration"_s, &f.recordLength},
        {u"producer"_s, &f.producer}, {u"barcode"_s, &f.barcode}, {u"vinylCondition"_s, &f.vinylCondition},
        {u"coverCondition"_s, &f.coverCondition}, {u"recordSpeed"_s, &f.recordSpeed},
        {u"doubleAlbum"_s, &f.doubleAlbum}, {u"cost"_s, &f.cost}, {u"value"_s, &f.value}, {u"notes"_s, &f.notes}};
    *fields.value(attribute) = text;
    return f;
}

// An attribute of a record as a variant; an invalid variant when absent.
QVariant attributeOf(const Vinyl &v, const QString &name)
{
    const auto get = [](const auto &optional) { return optional ? QVariant::fromValue(*optional) : QVariant(); };
    // The store keeps a null QString as an absent value, so only a non-null text counts as text.
    const auto getText = [](const std::optional<QString> &optional) {
        return optional && !optional->isNull() ? QVariant(*optional) : QVariant();
    };
    if (name == u"name") return getText(v.name);
    if (name == u"artist") return getText(v.artist);
    if (name == u"releaseDate") return get(v.releaseDate);
    if (name == u"recordLabel") return getText(v.recordLabel);
    if (name == u"quantity") return v.quantity ? QVariant(int(*v.quantity)) : QVariant();
    if (name == u"albumDuration") return get(v.albumDuration);
    if (name == u"producer") return getText(v.producer);
    if (name == u"barcode") return getText(v.barcode);
    if (name == u"vinylCondition") return getText(v.vinylCondition);
    if (name == u"coverCondition") return getText(v.coverCondition);
    if (name == u"recordSpeed") return getText(v.recordSpeed);
    if (name == u"doubleAlbum") return getText(v.doubleAlbum);
    if (name == u"cost") return v.cost ? QVariant(double(*v.cost)) : QVariant();
    if (name == u"value") return v.value ? QVariant(double(*v.value)) : QVariant();
    if (name == u"notes") return getText(v.notes);
    return {};
}

const QVariant kAbsent;

} // namespace

class TestRecordForm : public QObject
{
    Q_OBJECT

private:
    static QList<qint64> ids(const QList<Vinyl> &records)
    {
        QList<qint64> list;
        for (const Vinyl &v : records)
            list.append(v.rowId);
        return list;
    }

    // 150 records: names repeat (so ties fall to the row identity), some absent; four days.
    static void fill(Store &store)
    {
        for (int i = 0; i < 150; ++i) {
            Vinyl v;
            if (i % 11 != 0)
                v.name = u"Album %1"_s.arg(i % 17);
            v.artist = i % 2 ? u"Ärzte"_s : u"arzte"_s;
            v.releaseDate = QDateTime(QDate(1970 + i % 4, 1, 1), QTime(0, 0));
            if (i % 7 != 0) {
                v.recordSpeed = i % 3 ? u"33"_s : u"45"_s;
                v.quantity = qint16(i % 4);
                v.value = float(i % 9) * 2.5f;
            }
            v.imagesLoaded = true;
            (void)store.insert(v);
        }
    }

private slots:
    void initTestCase() { useTestLocale(); }

    // What each field lets through; the decimal fields' locale separators are tested below.
    void filtersTypedAndPastedText_data()
    {
        QTest::addColumn<FilteredField>("field");
        QTest::addColumn<FormScreen>("screen");
        QTest::addColumn<QString>("inserted");
        QTest::addColumn<bool>("accepted");

        const auto Q = FilteredField::Quantity, D = FilteredField::Decimal, N = FilteredField::Notes,
                   B = FilteredField::Barcode;
        const auto A = FormScreen::Add, E = FormScreen::Edit;
        QTest::newRow("quantity 12") << Q << E << u"12"_s << true;
        QTest::newRow("quantity 1.5 refused") << Q << A << u"1.5"_s << false;
        QTest::newRow("quantity 1.5 refused on edit") << Q << E << u"1.5"_s << false;
        QTest::newRow("quantity minus sign") << Q << A << u"-3"_s << false;
        QTest::newRow("add quantity takes Arabic-Indic digits") << Q << A << u"\u0663\u0664"_s << true;
        QTest::newRow("edit quantity takes 0-9 only") << Q << E << u"\u0663\u0664"_s << false;
        QTest::newRow("cost 1.2.3 passes the filter") << D << E << u"1.2.3"_s << true;
        QTest::newRow("cost with dollar") << D << E << u"$5"_s << false;
        QTest::newRow("deleting is always accepted") << D << E << QString() << true;
        QTest::newRow("notes sentence") << N << A << u"Mint, signed (1971) - 50% off!"_s << true;
        QTest::newRow("notes pasted line break") << N << A << u"side one\nside two"_s << false;
        QTest::newRow("notes double quote") << N << E << u"\"live\""_s << false;
        QTest::newRow("notes caret") << N << E << u"a^b"_s << false;
        QTest::newRow("notes bar") << N << E << u"a|b"_s << false;
        QTest::newRow("notes backslash") << N << E << u"a\\b"_s << false;
        QTest::newRow("notes accented letter") << N << A << u"Bjo\u0308rk"_s << false;
        QTest::newRow("notes precomposed accent") << N << A << u"Caf\u00e9"_s << false;
        QTest::newRow("barcode pasted") << B << A << u"0724384260910"_s << true;
        QTest::newRow("barcode with spaces") << B << E << u"0 72438 42609 1"_s << false;
        QTest::newRow("barcode with a dash") << B << A << u"978-3"_s << false;
        QTest::newRow("barcode takes 0-9 only") << B << A << u"\u0663\u0664"_s << false;
    }

    void filtersTypedAndPastedText()
    {
        QFETCH(FilteredField, field);
        QFETCH(FormScreen, screen);
        QFETCH(QString, inserted);
        QFETCH(bool, accepted);
        QCOMPARE(acceptsInsertion(field, screen, inserted), accepted);
    }

    // The decimal fields let the current locale's separators through, and only those.
    void decimalFieldsTakeTheLocaleSeparators_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("inserted");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("en_US grouping") << u"en_US"_s << u"1,234.50"_s << true;
        QTest::newRow("en_US space") << u"en_US"_s << u"1 234"_s << false;
        QTest::newRow("de_DE") << u"de_DE"_s << u"1.234,50"_s << true;
        QTest::newRow("de_DE euro sign") << u"de_DE"_s << u"12,50\u20AC"_s << false;
        QTest::newRow("fr_FR narrow no-break space") << u"fr_FR"_s << u"12\u202F345,50"_s << true;
        QTest::newRow("fr_FR no-break space") << u"fr_FR"_s << u"12\u00A0345,50"_s << true;
        QTest::newRow("fr_FR space") << u"fr_FR"_s << u"12 345,50"_s << true;
    }

    void decimalFieldsTakeTheLocaleSeparators()
    {
        QFETCH(QString, locale);
        QFETCH(QString, inserted);
        QFETCH(bool, accepted);
        ScopedLocale scoped(locale);
        QCOMPARE(acceptsInsertion(FilteredField::Decimal, FormScreen::Edit, inserted), accepted);
    }

    void findsWhatAnEditInserted_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        QTest::addColumn<QString>("inserted");
        QTest::newRow("typed at the end") << u"12"_s << u"123"_s << u"3"_s;
        QTest::newRow("typed in the middle") << u"1250"_s << u"12.50"_s << u"."_s;
        QTest::newRow("pasted over a selection") << u"10.00"_s << u"1x5.00"_s << u"x5"_s;
        QTest::newRow("repeated character typed") << u"11"_s << u"111"_s << u"1"_s;
        QTest::newRow("deleted") << u"123"_s << u"13"_s << QString();
        QTest::newRow("emptied") << u"123"_s << QString() << QString();
        QTest::newRow("pasted into empty") << QString() << u"a\nb"_s << u"a\nb"_s;
    }

    void findsWhatAnEditInserted()
    {
        QFETCH(QString, before);
        QFETCH(QString, after);
        QFETCH(QString, inserted);
        QCOMPARE(insertedText(before, after), inserted);
    }

    void requiresNameArtistAndLabel_data()
    {
        QTest::addColumn<QString>("attribute");
        QTest::addColumn<bool>("saved");
        QTest::newRow("all there") << u"producer"_s << true;
        QTest::newRow("no name") << u"name"_s << false;
        QTest::newRow("no artist") << u"artist"_s << false;
        QTest::newRow("no label") << u"recordLabel"_s << false;
    }

    void requiresNameArtistAndLabel()
    {
        QFETCH(QString, attribute);
        QFETCH(bool, saved);
        QCOMPARE(hasRequiredFields(formWith(attribute, QString())), saved);
    }

    // The add screen sets only what the user typed; the record length is the exception.
    void newRecordTakesEachField_data()
    {
        QTest::addColumn<QString>("attribute");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QVariant>("stored");

        QTest::newRow("name trimmed of spaces and tabs") << u"name"_s << u" \tBlue\t "_s << QVariant(u"Blue"_s);
        QTest::newRow("line breaks are not trimmed") << u"name"_s << u"Blue\n"_s << QVariant(u"Blue\n"_s);
        QTest::newRow("producer absent when empty") << u"producer"_s << QString() << kAbsent;
        QTest::newRow("producer trimmed") << u"producer"_s << u"  Henry Lewy "_s << QVariant(u"Henry Lewy"_s);
        QTest::newRow("only spaces become empty text") << u"producer"_s << u"   "_s << QVariant(QString(u""_s));
        QTest::newRow("release date") << u"releaseDate"_s << u"Jun 22, 1971"_s
                                      << QVariant(QDateTime(QDate(1971, 6, 22), QTime(0, 0)));
        QTest::newRow("unreadable date gives none") << u"releaseDate"_s << u"soon"_s << kAbsent;
        QTest::newRow("empty date gives none") << u"releaseDate"_s << QString() << kAbsent;
        QTest::newRow("quantity") << u"quantity"_s << u"3"_s << QVariant(3);
        QTest::newRow("quantity 32767") << u"quantity"_s << u"32767"_s << QVariant(32767);
        QTest::newRow("quantity in Arabic-Indic digits") << u"quantity"_s << u"\u0664\u0665"_s << QVariant(45);
        QTest::newRow("quantity absent when empty") << u"quantity"_s << QString() << kAbsent;
        QTest::newRow("empty record length stores 0") << u"albumDuration"_s << QString() << QVariant(0.0);
        QTest::newRow("record length") << u"albumDuration"_s << u"36.5"_s << QVariant(36.5);
        QTest::newRow("speed as it stands") << u"recordSpeed"_s << u" 33 RPM "_s << QVariant(u" 33 RPM "_s);
        QTest::newRow("notes as they stand") << u"notes"_s << u" gatefold "_s << QVariant(u" gatefold "_s);
        QTest::newRow("barcode absent when empty") << u"barcode"_s << QString() << kAbsent;
        QTest::newRow("barcode keeps its leading zero") << u"barcode"_s << u"0724384260910"_s
                                                        << QVariant(u"0724384260910"_s);
        QTest::newRow("cost absent when empty") << u"cost"_s << QString() << kAbsent;
        QTest::newRow("cost with grouping") << u"cost"_s << u"1,250.5"_s << QVariant(1250.5);
        QTest::newRow("value with dollar sign") << u"value"_s << u"$1,000"_s << QVariant(1000.0);
        QTest::newRow("value absent when empty") << u"value"_s << QString() << kAbsent;
    }

    void newRecordTakesEachField()
    {
        QFETCH(QString, attribute);
        QFETCH(QString, text);
        QFETCH(QVariant, stored);
        const auto vinyl = newVinylFromForm(formWith(attribute, text));
        QVERIFY2(vinyl.ok(), qPrintable(vinyl.errorMessage()));
        QCOMPARE(attributeOf(*vinyl, attribute), stored);
    }

    // The edit screen writes every field: an emptied one clears its attribute.
    void editWritesEachField_data()
    {
        QTest::addColumn<QString>("attribute");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QVariant>("stored");

        QTest::newRow("emptied producer is empty text") << u"producer"_s << QString() << QVariant(QString(u""_s));
        QTest::newRow("emptied condition is empty text") << u"vinylCondition"_s << QString() << QVariant(QString(u""_s));
        QTest::newRow("emptied quantity is 0") << u"quantity"_s << QString() << QVariant(0);
        QTest::newRow("emptied length is 0") << u"albumDuration"_s << QString() << QVariant(0.0);
        QTest::newRow("emptied cost is 0") << u"cost"_s << QString() << QVariant(0.0);
        QTest::newRow("emptied date is none") << u"releaseDate"_s << QString() << kAbsent;
        QTest::newRow("notes are trimmed here") << u"notes"_s << u"\t gatefold "_s << QVariant(u"gatefold"_s);
        QTest::newRow("shown cost reads back") << u"cost"_s << u"1,234.50"_s << QVariant(1234.5);
        QTest::newRow("cost still as shown keeps its cents") << u"cost"_s << u"9.13"_s << QVariant(double(9.126f));
        QTest::newRow("label trimmed") << u"recordLabel"_s << u" Asylum"_s << QVariant(u"Asylum"_s);
        QTest::newRow("emptied barcode is empty text") << u"barcode"_s << QString() << QVariant(QString(u""_s));
        QTest::newRow("barcode replaced") << u"barcode"_s << u"0724384260910"_s << QVariant(u"0724384260910"_s);
        QTest::newRow("barcode as shown") << u"barcode"_s << u"5012345678900"_s << QVariant(u"5012345678900"_s);
    }

    void editWritesEachField()
    {
        QFETCH(QString, attribute);
        QFETCH(QString, text);
        QFETCH(QVariant, stored);
        Vinyl vinyl;
        vinyl.producer = u"someone"_s;
        vinyl.vinylCondition = u"Mint"_s;
        vinyl.quantity = 4;
        vinyl.albumDuration = 40.0;
        vinyl.cost = 9.126f; // shown as 9.13
        vinyl.releaseDate = QDateTime(QDate(1970, 1, 2), QTime(0, 0));
        vinyl.notes = u"old"_s;
        vinyl.barcode = u"5012345678900"_s;
        const QString releaseId = u"4f1c2a3b-0d5e-4c6f-9a8b-7e6d5c4b3a21"_s;
        vinyl.musicBrainzReleaseId = releaseId;
        QVERIFY(applyFormToVinyl(formWith(attribute, text), vinyl).ok());
        QCOMPARE(attributeOf(vinyl, attribute), stored);
        // The form does not show the release id: no edit may drop it.
        QCOMPARE(vinyl.musicBrainzReleaseId, std::optional<QString>(releaseId));
    }

    // Numbers that do not read or do not fit: an alert naming the field, nothing changed.
    void unreadableNumbersAreRefusedByName_data()
    {
        QTest::addColumn<QString>("attribute");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("message");

        QTest::newRow("quantity 40000") << u"quantity"_s << u"40000"_s
                                        << u"Quantity \"40000\" is not a whole number from 0 to 32767."_s;
        QTest::newRow("quantity 1.5") << u"quantity"_s << u"1.5"_s
                                      << u"Quantity \"1.5\" is not a whole number from 0 to 32767."_s;
        QTest::newRow("cost 1.2.3") << u"cost"_s << u"1.2.3"_s << u"Cost \"1.2.3\" is not an amount."_s;
        QTest::newRow("value of a lone dot") << u"value"_s << u"."_s << u"Value \".\" is not an amount."_s;
        QTest::newRow("value of a lone dollar") << u"value"_s << u"$"_s << u"Value \"$\" is not an amount."_s;
        QTest::newRow("cost beyond a float") << u"cost"_s << u"9"_s.repeated(50)
                                             << u"Cost \"%1\" is not an amount."_s.arg(u"9"_s.repeated(50));
        QTest::newRow("length 1.2.3") << u"albumDuration"_s << u"1.2.3"_s
                                      << u"Run Length \"1.2.3\" is not a number of minutes."_s;
    }

    void unreadableNumbersAreRefusedByName()
    {
        QFETCH(QString, attribute);
        QFETCH(QString, text);
        QFETCH(QString, message);
        const RecordFormFields form = formWith(attribute, text);

        const auto added = newVinylFromForm(form);
        QVERIFY(!added.ok());
        QCOMPARE(added.errorMessage(), message);

        Vinyl stored;
        stored.name = u"before"_s;
        stored.quantity = 7;
        const auto edited = applyFormToVinyl(form, stored);
        QCOMPARE(edited.errorMessage(), message);
        QCOMPARE(stored.name, std::optional<QString>(u"before"_s));
        QCOMPARE(stored.quantity, std::optional<qint16>(7));
    }

    void showsStoredNumbersInFormFormats()
    {
        CurrentRecord record;
        record.quantity = 0;
        record.albumDuration = 45;
        record.cost = 1234.5f;
        record.value = 0.1f;
        RecordFormFields fields = fieldsFromRecord(record);
        QCOMPARE(fields.quantity, u"0"_s);
        QCOMPARE(fields.recordLength, u"45.0"_s);
        QCOMPARE(fields.cost, u"1,234.50"_s);
        QCOMPARE(fields.value, u"0.10"_s);
        QCOMPARE(fields.releaseDate, QString());

        record.albumDuration = 45.5;
        record.releaseDate = QDateTime(QDate(2021, 1, 5), QTime(0, 0));
        fields = fieldsFromRecord(record);
        QCOMPARE(fields.recordLength, u"45.5"_s);
        QCOMPARE(fields.releaseDate, u"Jan 5, 2021"_s);
    }

    void sharesOneLinePerField()
    {
        RecordFormFields f;
        f.name = u"Blue"_s;
        f.artist = u"Joni Mitchell"_s;
        f.releaseDate = u"Jun 22, 1971"_s;
        f.recordLabel = u"Reprise"_s;
        f.quantity = u"1"_s;
        f.recordLength = u"36.0"_s;
        f.cost = u"1,234.50"_s;
        f.value = u"20.00"_s;
        const auto shared = shareText(f);
        QVERIFY(shared.ok());
        QCOMPARE(shared.value(), u"Album Name: Blue\n"
                                 "Year Issued: Joni Mitchell\n"
                                 "Release Date: Jun 22, 1971\n"
                                 "Record Label: Reprise\n"
                                 "Quantity: 1\n"
                                 "Run Length (min): 36.0\n"
                                 "Producer: N/A\n"
                                 "Vinyl Condition: N/A\n"
                                 "Cover Condition: N/A\n"
                                 "Record Speed: N/A\n"
                                 "Single/Double: N/A\n"
                                 "Cost: $1,234.50\n"
                                 "Value: $20.00\n"
                                 "Notes: N/A\n"_s);
        // Empty amounts share with labels of their own; an unreadable cost shares nothing.
        QCOMPARE(shareText(RecordFormFields{})->split(u'\n').mid(11, 2), (QStringList{u"Cost: N/A"_s, u"Est. Value: N/A"_s}));
        f.cost = u"1.2.3"_s;
        QCOMPARE(shareText(f).errorMessage(), u"Cost \"1.2.3\" is not an amount."_s);
    }

    void laterStyleSwitchWins_data()
    {
        QTest::addColumn<QVariantList>("wheelCompactInline"); // invalid entries are absent keys
        QTest::addColumn<QString>("style");
        QTest::newRow("none set") << QVariantList{QVariant(), QVariant(), QVariant()} << QString();
        QTest::newRow("all off") << QVariantList{false, false, false} << QString();
        QTest::newRow("wheel") << QVariantList{true, false, false} << u"wheel"_s;
        QTest::newRow("compact") << QVariantList{QVariant(), true, QVariant()} << u"compact"_s;
        QTest::newRow("wheel and inline give inline") << QVariantList{true, QVariant(), true} << u"inline"_s;
        QTest::newRow("wheel and compact give compact") << QVariantList{true, true, false} << u"compact"_s;
        QTest::newRow("all on give inline") << QVariantList{true, true, true} << u"inline"_s;
    }

    void laterStyleSwitchWins()
    {
        QFETCH(QVariantList, wheelCompactInline);
        QFETCH(QString, style);
        QTemporaryDir dir;
        Settings settings(dir.filePath(u"s.ini"_s));
        const QStringList keys = {SettingsKeys::UseDateWheel, SettingsKeys::UseDateCompact, SettingsKeys::UseDateInline};
        for (int i = 0; i < 3; ++i) {
            if (wheelCompactInline.at(i).isValid())
                settings.setValue(keys.at(i), wheelCompactInline.at(i));
        }
        QCOMPARE(datePickerStyle(settings), style);
    }

    void bothConditionPickersListRecordGrades()
    {
        auto store = Store::open(u":memory:"_s);
        QVERIFY(store.ok());
        QCOMPARE(conditionEntries(**store).value(), QStringList());
        for (const QString &grade : {u"Very Good"_s, u"Mint"_s, u"good"_s}) {
            Condition c;
            c.condition = grade;
            QVERIFY((*store)->insert(Entity::VinylCondition, c).ok());
        }
        Condition cover;
        cover.condition = u"Cover Only"_s;
        QVERIFY((*store)->insert(Entity::CoverCondition, cover).ok());
        QCOMPARE(conditionEntries(**store).value(), (QStringList{u"Mint"_s, u"Very Good"_s, u"good"_s}));
    }


    // The windows a list reads a page at a time put together give the whole list in the store's
    // order, whether a window is read from the start or backwards from the end.
    void windowsMakeTheWholeOrder_data()
    {
        QTest::addColumn<QString>("attribute");
        QTest::addColumn<bool>("ascending");
        QTest::addColumn<QString>("search");
        QTest::addColumn<qint64>("first");
        QTest::addColumn<int>("n");
        for (const bool ascending : {true, false}) {
            const char *direction = ascending ? "ascending" : "descending";
            QTest::addRow("first page, %s", direction) << u"name"_s << ascending << QString() << qint64(0) << 64;
            QTest::addRow("across the middle, %s", direction) << u"name"_s << ascending << QString() << qint64(60) << 30;
            QTest::addRow("last row, %s", direction) << u"name"_s << ascending << QString() << qint64(149) << 64;
            QTest::addRow("by date, last page, %s", direction) << u"releaseDate"_s << ascending << QString() << qint64(100) << 64;
            QTest::addRow("searched, late window, %s", direction) << u"artist"_s << ascending << u"ä"_s << qint64(50) << 20;
            // Few distinct values, some absent: long runs of ties across the window's edges.
            QTest::addRow("by speed, across the middle, %s", direction) << u"recordSpeed"_s << ascending << QString() << qint64(60) << 30;
            QTest::addRow("by copies, last page, %s", direction) << u"quantity"_s << ascending << QString() << qint64(100) << 64;
            QTest::addRow("by value, across the middle, %s", direction) << u"value"_s << ascending << QString() << qint64(70) << 20;
            QTest::addRow("by total value, last page, %s", direction) << Store::kTotalValue << ascending << QString() << qint64(90) << 64;
        }
        QTest::addRow("past the end") << u"name"_s << true << QString() << qint64(200) << 64;
    }
    void windowsMakeTheWholeOrder()
    {
        QFETCH(QString, attribute);
        QFETCH(bool, ascending);
        QFETCH(QString, search);
        QFETCH(qint64, first);
        QFETCH(int, n);
        TestApp app;
        fill(app.store());
        FetchRequest request = FetchRequest().onlyCardAttributes().sortedBy(attribute, ascending);
        if (!search.isEmpty())
            request.where(Predicate::contains(attribute, search));
        const QList<Vinyl> records = *app.store().fetchVinyl(request);
        const QList<qint64> whole = ids(records);
        // The figures' orders: by the figure (an absent one first, total value counting it as 0),
        // ties by the order the records were added in, reversed with the direction.
        const auto figure = [&](const Vinyl &v) -> std::optional<double> {
            if (attribute == u"quantity"_s)
                return v.quantity ? std::optional<double>(*v.quantity) : std::nullopt;
            if (attribute == u"value"_s)
                return v.value ? std::optional<double>(*v.value) : std::nullopt;
            return double(v.quantity.value_or(0)) * double(v.value.value_or(0));
        };
        if (attribute == u"quantity"_s || attribute == u"value"_s || attribute == Store::kTotalValue) {
            for (qsizetype i = 1; i < records.size(); ++i) {
                const auto a = figure(records.at(i - 1));
                const auto b = figure(records.at(i));
                QVERIFY(ascending ? a <= b : a >= b);
                QVERIFY(a != b || (records.at(i - 1).rowId < records.at(i).rowId) == ascending);
            }
        }
        auto rows = FetchedRows::make(app.store(), request);
        QVERIFY(rows);
        QCOMPARE(rows->count(), whole.size());
        QCOMPARE(ids(*rows->read(first, n)), whole.mid(first, n));
    }

    void daysListTheirRecordsInOrder()
    {
        TestApp app;
        fill(app.store());
        auto days = RecordQueries::releaseDays(app.store());
        QVERIFY(days);
        QCOMPARE(days->size(), 4);
        // The latest two days, latest first, as a descending search by year would list them.
        DayRows rows(app.store(), {days->at(3), days->at(2)});
        const auto byDay = [&](int day) {
            return ids(*app.store().fetchVinyl(
                FetchRequest().where(Predicate::equal(u"releaseDate"_s, days->at(day).millis)).sortedBy(u"releaseDate"_s)));
        };
        const QList<qint64> whole = byDay(3) + byDay(2);
        QCOMPARE(rows.count(), whole.size());
        QCOMPARE(ids(*rows.read(30, 20)), whole.mid(30, 20));
        QVERIFY(app.store().remove(Entity::Vinyl, whole.first()));
        rows.removeRow(0);
        QCOMPARE(rows.count(), whole.size() - 1);
        QCOMPARE(ids(*rows.read(36, 2)), whole.mid(37, 2));
    }
};

QTEST_MAIN(TestRecordForm)
#include "tst_recordform.moc"
