// Asking for a review, rating, sharing the app and writing to its makers.
#include "feedback/ratesharetableviewcontroller.h"
#include "feedback/reviewservice.h"
#include "store/settings.h"
#include "testsupport.h"

#include <QTest>
#include <QUrlQuery>

using namespace Qt::StringLiterals;

class TestFeedback : public QObject
{
    Q_OBJECT

private slots:
    void rowsStartTheirActions_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<bool>("canText");
        QTest::addColumn<bool>("canMail");
        QTest::addColumn<int>("urls");
        QTest::addColumn<QStringList>("sharedTexts");
        QTest::addColumn<int>("mails");
        QTest::addColumn<QString>("alertTitle");
        QTest::addColumn<QString>("alertMessage");

        QTest::newRow("rate") << 0 << true << true << 1 << QStringList() << 0 << QString() << QString();
        QTest::newRow("share the store link")
            << 1 << true << true << 0 << QStringList{u"https://apps.example.com/platterbox"_s} << 0 << QString() << QString();
        QTest::newRow("share the instructions")
            << 2 << true << true << 0
            << QStringList{u"Click the following link to visit the Platterbox App website"_s, u"https://platterbox.example.com"_s}
            << 0 << QString() << QString();
        QTest::newRow("website") << 3 << true << true << 1 << QStringList() << 0 << QString() << QString();
        QTest::newRow("feedback mail") << 4 << true << true << 0 << QStringList() << 1 << QString() << QString();
        QTest::newRow("store link without messaging")
            << 1 << false << true << 0 << QStringList() << 0 << u"Can't Send Text Message"_s
            << u"Your Device is not able to send text messages."_s;
        QTest::newRow("instructions without messaging")
            << 2 << false << true << 0 << QStringList() << 0 << u"Can't Send Text Message"_s
            << u"Your Device is not able to send text messages."_s;
        QTest::newRow("mail without mail")
            << 4 << true << false << 0 << QStringList() << 0 << u"Can't Send Email"_s << u"Your Device is not able to send Email."_s;
        QTest::newRow("no such row") << 5 << true << true << 0 << QStringList() << 0 << QString() << QString();
    }
    void rowsStartTheirActions()
    {
        QFETCH(int, row);
        QFETCH(bool, canText);
        QFETCH(bool, canMail);
        QFETCH(int, urls);
        QFETCH(QStringList, sharedTexts);
        QFETCH(int, mails);
        QFETCH(QString, alertTitle);
        QFETCH(QString, alertMessage);

        TestApp t;
        t.platform().canSendTextAnswer = canText;
        t.platform().canSendMailAnswer = canMail;
        RateShareTableViewController screen(&t.app());
        screen.rowSelected(row);

        QCOMPARE(t.platform().openedUrls.size(), urls);
        QCOMPARE(t.platform().shared.isEmpty() ? QStringList() : t.platform().shared.first().texts, sharedTexts);
        QCOMPARE(t.platform().mails.size(), mails);
        QCOMPARE(screen.lastAlertTitle(), alertTitle);
        QCOMPARE(screen.lastAlertMessage(), alertMessage);
    }

    void rateOpensTheReviewPage()
    {
        TestApp t;
        RateShareTableViewController screen(&t.app());
        screen.rowSelected(0);
        const QUrl url = t.platform().openedUrls.value(0);
        QCOMPARE(url.host(), u"apps.example.com"_s);
        QCOMPARE(QUrlQuery(url).queryItems(), (QList<std::pair<QString, QString>>{{u"action"_s, u"write-review"_s}}));
    }

    void feedbackMailIsAddressedWithTheHtmlBody()
    {
        TestApp t;
        RateShareTableViewController screen(&t.app());
        screen.rowSelected(4);
        const MailMessage mail = t.platform().mails.value(0);
        QCOMPARE(mail.to, QStringList{u"support@platterbox.example.com"_s});
        QVERIFY(mail.subject.isEmpty());
        QCOMPARE(mail.body, u"<p>Enter your comments about Platterbox app below: </p>"_s);
        QVERIFY(mail.bodyIsHtml);
    }

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
};

QTEST_MAIN(TestFeedback)
#include "tst_feedback.moc"
