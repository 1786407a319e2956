#include "entry/trackscontrollers.h"
#include "testsupport.h"

#include <QAbstractItemModelTester>
#include <QtTest>

using namespace Qt::StringLiterals;

class TestTracks : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestApp> m_app;

    Track addTrack(qint16 vinylId, const QString &song, std::optional<qint16> number, std::optional<double> duration = {})
    {
        Track t;
        t.vinylID = vinylId;
        t.song = song;
        t.trackNumber = number;
        t.duration = duration;
        [[maybe_unused]] auto r = m_app->store().insert(t);
        return t;
    }
    QStringList songs(const TracksTableViewController &c)
    {
        QStringList out;
        for (const TrackRow &row : const_cast<TracksTableViewController &>(c).model()->rows())
            out << row.songLabel;
        return out;
    }
    QList<Track> storedTracks()
    {
        return m_app->store().fetchTracks(FetchRequest(Entity::Tracks).sortedBy(u"song"_s)).valueOr({});
    }

private slots:
    void init()
    {
        useTestLocale();
        m_app = std::make_unique<TestApp>();
        QVERIFY(m_app->ok());
        const Vinyl vinyl = m_app->addVinyl(u"Blue Train"_s, u"Coltrane"_s, u"Blue Note"_s, 7);
        m_app->app().state()->setCurrentRecord(vinyl);
        m_app->addVinyl(u"Other"_s, u"Someone"_s, QString(), 8);
        addTrack(7, u"Moment's Notice"_s, 2, 9.17);
        addTrack(7, u"Blue Train"_s, 1, 10.7);
        addTrack(7, u"Locomotion"_s, 3);
        addTrack(7, QString(), 4);
        addTrack(8, u"Blue Monk"_s, 1);
    }

    void listShowsOnlyThisRecordsTracksInOrder()
    {
        TracksTableViewController c(&m_app->app());
        QAbstractItemModelTester tester(c.model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(songs(c), (QStringList{u"Blue Train"_s, u"Moment's Notice"_s, u"Locomotion"_s, QString()}));
        QCOMPARE(c.trackCount(), 4);
        c.SortButtonTapped();
        QCOMPARE(songs(c).first(), QString());
        QCOMPARE(songs(c).last(), u"Blue Train"_s);
        c.SortButtonTapped();
        QCOMPARE(songs(c).first(), u"Blue Train"_s);
    }

    void cellsShowZeroForUnsetNumbersAndNoEmptyWriter()
    {
        addTrack(7, u"Untitled"_s, std::nullopt);
        Track written = addTrack(7, u"Written"_s, 5, 3.5);
        written.writtenBy = u"Coltrane"_s;
        QVERIFY(m_app->store().update(written).ok());
        TracksTableViewController c(&m_app->app());
        const auto row = [&c](const QString &song) {
            const QList<TrackRow> rows = c.model()->rows();
            return *std::find_if(rows.begin(), rows.end(), [&](const TrackRow &r) { return r.songLabel == song; });
        };
        QCOMPARE(row(u"Untitled"_s).trackNumberLabel, u"Track # 0"_s);
        QCOMPARE(row(u"Untitled"_s).durationLabel, u"Duration: 0.00"_s);
        QCOMPARE(row(u"Untitled"_s).writtenByLabel, QString());
        QCOMPARE(row(u"Written"_s).trackNumberLabel, u"Track # 5"_s);
        QCOMPARE(row(u"Written"_s).durationLabel, u"Duration: 3.50"_s);
        QCOMPARE(row(u"Written"_s).writtenByLabel, u"Written By: Coltrane"_s);
    }

    // A duration is read as the locale writes it, and shown again the same way.
    void durationReadsTheLocale_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<double>("minutes");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("cell");
        QTest::addRow("en_US") << u"en_US"_s << u"7.05"_s << 7.05 << u"7.05"_s << u"Duration: 7.05"_s;
        QTest::addRow("de_DE") << u"de_DE"_s << u"7,05"_s << 7.05 << u"7,05"_s << u"Duration: 7,05"_s;
        QTest::addRow("fr_FR grouped") << u"fr_FR"_s << u"1 234,5"_s << 1234.5 << u"1234,5"_s
                                       << u"Duration: 1\u202F234,50"_s;
    }
    void durationReadsTheLocale()
    {
        QFETCH(QString, locale);
        QFETCH(QString, typed);
        QFETCH(double, minutes);
        QFETCH(QString, shown);
        QFETCH(QString, cell);
        ScopedLocale scoped(locale);
        AddTracksViewController add(&m_app->app());
        add.setForm({u"9"_s, u"Lazy Bird"_s, typed, QString()});
        add.SaveTrack();
        QCOMPARE(add.lastAlertMessage(), QString());
        const auto lazyBird = [this] {
            const QList<Track> tracks = storedTracks();
            return *std::find_if(tracks.begin(), tracks.end(), [](const Track &t) { return t.song == u"Lazy Bird"_s; });
        };
        const Track saved = lazyBird();
        QCOMPARE(saved.duration, std::optional<double>(minutes));

        TracksTableViewController list(&m_app->app());
        QCOMPARE(list.model()->rows().last().durationLabel, cell);
        m_app->app().state()->setCurrentTrackRowId(saved.rowId);
        EditTracksViewController edit(&m_app->app());
        QCOMPARE(edit.form().duration, shown);
        edit.SaveTrack();
        QCOMPARE(edit.lastAlertMessage(), QString());
        QCOMPARE(lazyBird().duration, std::optional<double>(minutes));
    }

    void searchMatchesSongIgnoringCase_data()
    {
        QTest::addColumn<QString>("search");
        QTest::addColumn<QStringList>("expected");
        QTest::addRow("lower") << u"blue"_s << QStringList{u"Blue Train"_s};
        QTest::addRow("upper inside") << u"OTION"_s << QStringList{u"Locomotion"_s};
        QTest::addRow("several") << u"o"_s << QStringList{u"Moment's Notice"_s, u"Locomotion"_s};
        QTest::addRow("other record never") << u"monk"_s << QStringList{};
        QTest::addRow("cleared") << QString() << QStringList{u"Blue Train"_s, u"Moment's Notice"_s, u"Locomotion"_s, QString()};
    }
    void searchMatchesSongIgnoringCase()
    {
        QFETCH(QString, search);
        QFETCH(QStringList, expected);
        TracksTableViewController c(&m_app->app());
        QAbstractItemModelTester tester(c.model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        c.setSearchText(u"x"_s);
        c.setSearchText(search);
        QCOMPARE(songs(c), expected);
    }

    void deleteWhileSearchingRemovesTheShownTrack()
    {
        TracksTableViewController c(&m_app->app());
        QAbstractItemModelTester tester(c.model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        c.setSearchText(u"loco"_s);
        c.deleteRow(0);
        QCOMPARE(c.model()->rowCount(), 0);
        c.setSearchText(QString());
        QCOMPARE(songs(c), (QStringList{u"Blue Train"_s, u"Moment's Notice"_s, QString()}));
        QCOMPARE(storedTracks().size(), 4);
    }

    void addTrackValidatesFields_data()
    {
        QTest::addColumn<QString>("number");
        QTest::addColumn<QString>("song");
        QTest::addColumn<QString>("duration");
        QTest::addColumn<QString>("alert"); // empty: saved
        QTest::addRow("saved") << u"5"_s << u"\tLazy Bird "_s << u"7.05"_s << QString();
        QTest::addRow("empty number and duration") << QString() << u"Lazy Bird"_s << QString() << QString();
        QTest::addRow("no song") << u"5"_s << QString() << u"7"_s << u"Required Fields in RED not Entered"_s;
        QTest::addRow("letters for number") << u"five"_s << u"Lazy Bird"_s << u"7"_s << TrackTexts::BadTrackNumber;
        QTest::addRow("number too big") << u"40000"_s << u"Lazy Bird"_s << u"7"_s << TrackTexts::BadTrackNumber;
        QTest::addRow("bad duration") << u"5"_s << u"Lazy Bird"_s << u"7m"_s << u"Duration must be a number, such as 3.5."_s;
    }
    void addTrackValidatesFields()
    {
        QFETCH(QString, number);
        QFETCH(QString, song);
        QFETCH(QString, duration);
        QFETCH(QString, alert);
        AddTracksViewController c(&m_app->app());
        c.setForm({number, song, duration, u" Coltrane "_s});
        c.SaveTrack();
        const QList<Track> tracks = storedTracks();
        if (alert.isEmpty()) {
            QCOMPARE(tracks.size(), 6);
            const auto it = std::find_if(tracks.begin(), tracks.end(), [](const Track &t) { return t.song == u"Lazy Bird"_s; });
            QVERIFY(it != tracks.end());
            QCOMPARE(it->vinylID, std::optional<qint16>(7));
            QCOMPARE(it->writtenBy, std::optional<QString>(u"Coltrane"_s));
            QCOMPARE(it->trackNumber.has_value(), !number.isEmpty());
        } else {
            QCOMPARE(c.lastAlertTitle(), u"Record not Saved!"_s);
            QCOMPARE(c.lastAlertMessage(), alert);
            QCOMPARE(tracks.size(), 5);
            QCOMPARE(c.form().song, song); // the form is kept
        }
    }

    // Two tracks with the same song, number and duration: the editor changes the one opened.
    void editChangesExactlyTheOpenedTrack()
    {
        const Track twin = addTrack(7, u"Blue Train"_s, 1, 10.7);
        TracksTableViewController list(&m_app->app());
        m_app->app().state()->setCurrentTrackRowId(twin.rowId);
        EditTracksViewController c(&m_app->app());
        QCOMPARE(c.form().song, u"Blue Train"_s);
        QCOMPARE(c.form().duration, u"10.7"_s);
        c.setForm({u"1"_s, u"Blue Train (alt)"_s, u"10.5"_s, QString()});
        c.SaveTrack();
        QVERIFY(c.lastAlertTitle().isEmpty());
        list.loadTracks();
        QCOMPARE(songs(list).count(u"Blue Train"_s), 1);
        QCOMPARE(songs(list).count(u"Blue Train (alt)"_s), 1);
        const QList<Track> tracks = storedTracks();
        const auto it = std::find_if(tracks.begin(), tracks.end(), [&](const Track &t) { return t.rowId == twin.rowId; });
        QCOMPARE(it->duration, std::optional<double>(10.5));
        QCOMPARE(it->writtenBy, std::optional<QString>(QString()));
    }

    void editWithBadNumberKeepsTheStore()
    {
        m_app->app().state()->setCurrentTrackRowId(storedTracks().first().rowId);
        EditTracksViewController c(&m_app->app());
        TrackForm form = c.form();
        form.duration = u"long"_s;
        c.setForm(form);
        c.SaveTrack();
        QCOMPARE(c.lastAlertMessage(), u"Duration must be a number, such as 3.5."_s);
        QCOMPARE(c.form().duration, u"long"_s);
        QCOMPARE(storedTracks().first().duration, std::optional<double>());
    }
};

QTEST_MAIN(TestTracks)
#include "tst_tracks.moc"
