#include "feedback/reviewservice.h"
#include "store/settings.h"
#include "testsupport.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestReviewService : public QObject
{
    Q_OBJECT

private slots:
    void asksAtMostOnceAWeek_data()
    {
        QTest::addColumn<QVariant>("stored"); // invalid: nothing stored
        QTest::addColumn<bool>("requested");

        const QDateTime now(QDate(2026, 3, 12), QTime(10, 30));
        QTest::newRow("nothing stored") << QVariant() << true;
        QTest::newRow("six days ago") << QVariant(now.addDays(-6)) << false;
        QTest::newRow("eight days ago") << QVariant(now.addDays(-8)) << true;
        QTest::newRow("exactly seven days ago") << QVariant(now.addDays(-7)) << false;
        QTest::newRow("seven days and a second ago") << QVariant(now.addDays(-7).addSecs(-1)) << true;
        QTest::newRow("a stored text, not a date") << QVariant(u"last Tuesday"_s) << true;
        QTest::newRow("a stored number") << QVariant(42) << true;
    }

    void asksAtMostOnceAWeek()
    {
        QFETCH(QVariant, stored);
        QFETCH(bool, requested);

        // Across the change to daylight-saving time in New York (March 8, 2026): calendar
        // days, not multiples of 24 hours.
        const QDateTime now(QDate(2026, 3, 12), QTime(10, 30));
        QTemporaryDir dir;
        Settings settings(dir.filePath(u"settings.ini"_s));
        if (stored.isValid())
            settings.setValue(SettingsKeys::ReviewServiceLastRequest, stored);
        RecordingPlatformServices platform;
        ReviewService service(settings, platform, [&] { return now; });

        service.requestReview();

        QCOMPARE(platform.reviewPrompts, requested ? 1 : 0);
        const QVariant after = settings.value(SettingsKeys::ReviewServiceLastRequest);
        if (requested)
            QCOMPARE(after.toDateTime(), now);
        else
            QCOMPARE(after, stored);
    }

    void storedDateSurvivesARestart()
    {
        QTemporaryDir dir;
        const QString file = dir.filePath(u"settings.ini"_s);
        const QDateTime now(QDate(2026, 5, 1), QTime(9, 0));
        RecordingPlatformServices platform;
        {
            Settings settings(file);
            ReviewService(settings, platform, [&] { return now; }).requestReview();
            settings.sync();
        }
        Settings reopened(file);
        ReviewService later(reopened, platform, [&] { return now.addDays(3); });
        QCOMPARE(later.lastRequest(), std::optional<QDateTime>(now));
        later.requestReview();
        QCOMPARE(platform.reviewPrompts, 1);
    }

    void clearingTheDateRemovesTheKey()
    {
        QTemporaryDir dir;
        Settings settings(dir.filePath(u"settings.ini"_s));
        RecordingPlatformServices platform;
        ReviewService service(settings, platform);
        service.setLastRequest(QDateTime::currentDateTime());
        QVERIFY(settings.contains(SettingsKeys::ReviewServiceLastRequest));
        service.setLastRequest(std::nullopt);
        QVERIFY(!settings.contains(SettingsKeys::ReviewServiceLastRequest));
        QVERIFY(service.canRequestReview());
    }
};

QTEST_GUILESS_MAIN(TestReviewService)
#include "tst_reviewservice.moc"
