// The wantlist screens driven through their controllers: adding, editing and searching wanted
// albums, Got It, and the add screen offering to take a record it stores off the wantlist.
#include "collection/wantlist.h"
#include "entry/addvinylviewcontroller.h"
#include "store/wantedalbums.h"
#include "testsupport.h"
#include "wantlist/wantedviewcontroller.h"
#include "wantlist/wantlistviewcontroller.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// Adds an album through the form, as the collector does.
qint64 addThroughForm(TestApp &t, const QString &name, const QString &artist, const QString &priority,
                      const QString &maxPrice = {})
{
    t.app().state()->setCurrentWantedRowId(0);
    WantedViewController form(&t.app());
    form.setAlbumName(name);
    form.setArtist(artist);
    form.setPriorityName(priority);
    form.setMaxPrice(maxPrice);
    form.save();
    const auto all = WantedAlbums::all(t.store());
    for (const WantedAlbum &w : all.valueOr({})) {
        if (text(w.album.name) == name)
            return w.rowId;
    }
    return 0;
}

QStringList rows(const WantlistViewController &list)
{
    QStringList lines;
    for (const QVariant &row : list.albums()) {
        const QVariantMap map = row.toMap();
        lines << map.value(u"album"_s).toString() + u" | "_s + map.value(u"detail"_s).toString();
    }
    return lines;
}

} // namespace

class TestWantlistScreens : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { useTestLocale(); }

    // Added and edited through the form, listed sought first, found by album or artist.
    void addEditAndSearch()
    {
        TestApp t;
        WantlistViewController list(&t.app());
        QCOMPARE(list.summary(), Wantlist::summary(0, 0));
        {
            ScopedLocale german(u"de_DE"_s);
            QVERIFY(addThroughForm(t, u"Salt Lanterns"_s, u"Mira Okonjo"_s, u"Low"_s, u"1.234,50 €"_s) > 0);
        }
        const qint64 aurora = addThroughForm(t, u"Åsa's Garden"_s, u"Ole Brekke"_s, u"High"_s);
        QVERIFY(aurora > 0);
        QCOMPARE(t.app().navigator()->lastUnwind(), u"unwindToWantlist"_s);
        list.viewWillAppear();
        QCOMPARE(rows(list), (QStringList{u"Åsa's Garden | High"_s, u"Salt Lanterns | Low · up to $1,234.50"_s}));
        QCOMPARE(list.summary(), u"2 albums wanted"_s);

        list.setSearchText(u"å"_s);
        QCOMPARE(rows(list).size(), 1);
        QCOMPARE(list.summary(), u"1 of 2 albums wanted"_s);
        list.setSearchText(u"okonjo"_s);
        QVERIFY(rows(list).first().startsWith(u"Salt Lanterns"_s));

        // Picked, it opens its form; saved with another priority, it moves down the list.
        list.setSearchText(QString());
        list.rowPicked(0);
        QCOMPARE(t.app().navigator()->lastShown(), u"WantedView"_s);
        WantedViewController edit(&t.app());
        QVERIFY(!edit.isNew());
        QCOMPARE(edit.albumName(), u"Åsa's Garden"_s);
        edit.setPriorityName(u"Low"_s);
        edit.setRecordLabel(u"Fjord"_s);
        edit.save();
        list.viewWillAppear();
        QCOMPARE(rows(list), (QStringList{u"Salt Lanterns | Low · up to $1,234.50"_s, u"Åsa's Garden | Low · Fjord"_s}));
        QCOMPARE(t.count(), 0);
    }

    // A form that cannot be saved says why and stores nothing.
    void refusedSave_data()
    {
        QTest::addColumn<QString>("artist");
        QTest::addColumn<QString>("maxPrice");
        QTest::addColumn<QString>("message");
        QTest::newRow("no artist") << QString() << QString() << Wantlist::kRequiredMessage;
        QTest::newRow("price not a number") << u"Mira Okonjo"_s << u"lots"_s << u"Most I Would Pay"_s;
    }
    void refusedSave()
    {
        QFETCH(QString, artist);
        QFETCH(QString, maxPrice);
        QFETCH(QString, message);
        TestApp t;
        WantedViewController form(&t.app());
        form.setAlbumName(u"Salt Lanterns"_s);
        form.setArtist(artist);
        form.setMaxPrice(maxPrice);
        form.save();
        QCOMPARE(form.lastAlertTitle(), Wantlist::kNotSavedTitle);
        QVERIFY2(form.lastAlertMessage().contains(message), qPrintable(form.lastAlertMessage()));
        QCOMPARE(*WantedAlbums::count(t.store()), 0);
        QCOMPARE(t.app().navigator()->lastUnwind(), QString());
    }

    // Got It asks the cost in the collector's locale; a cost that does not read changes nothing.
    void gotItFromTheForm()
    {
        TestApp t;
        const qint64 rowId = addThroughForm(t, u"Salt Lanterns"_s, u"Mira Okonjo"_s, u"High"_s);
        t.app().state()->setCurrentWantedRowId(rowId);
        WantedViewController form(&t.app());
        QCOMPARE(form.gotItPrompt(), u"What did \"Salt Lanterns\" cost?"_s);
        QVERIFY(!form.gotIt(u"a bargain"_s));
        QCOMPARE(form.lastAlertTitle(), Wantlist::kGotItTitle);
        QCOMPARE(t.count(), 0);
        {
            ScopedLocale french(u"fr_FR"_s);
            QVERIFY(form.gotIt(u"12,50"_s));
        }
        QCOMPARE(form.lastAlertMessage(), u"\"Salt Lanterns\" is in the collection now, numbered 1."_s);
        form.answerAlert(0);
        QCOMPARE(t.app().navigator()->lastUnwind(), u"unwindToWantlist"_s);
        QCOMPARE(t.vinyl(form.collectedRowId()).cost, std::optional<float>(12.5f));
        QCOMPARE(*WantedAlbums::count(t.store()), 0);
    }

    // A record added that is on the wantlist may come off it.
    void addedRecordOffersToTakeItOff_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<int>("left");
        QTest::newRow("keep") << 0 << 1;
        QTest::newRow("take off") << 1 << 0;
    }
    void addedRecordOffersToTakeItOff()
    {
        QFETCH(int, button);
        QFETCH(int, left);
        TestApp t;
        addThroughForm(t, u"Salt Lanterns"_s, u"Mira Okonjo"_s, u"High"_s);
        t.app().state()->setOriginScreen(OriginScreens::List);
        AddVinylViewController add(&t.app());
        add.setAlbumName(u"salt lanterns"_s);
        add.setArtist(u"Mira Okonjo"_s);
        add.setRecordLabel(u"Ember Row"_s);
        add.SaveNewVinylButtonClicked();
        QCOMPARE(t.count(), 1);
        QCOMPARE(add.lastAlertTitle(), Wantlist::kTakeOffTitle);
        add.SaveNewVinylButtonClicked(); // the question is open: nothing is stored twice
        QCOMPARE(t.count(), 1);
        add.answerAlert(button);
        QCOMPARE(*WantedAlbums::count(t.store()), left);
        QCOMPARE(t.app().navigator()->lastUnwind(), u"unwindToList"_s);
    }
};

QTEST_MAIN(TestWantlistScreens)
#include "tst_wantlistscreens.moc"
