#include "collection/browsetexts.h"
#include "collection/loans.h"
#include "shell/appdelegate.h"
#include "shell/defaultsviewcontroller.h"
#include "shell/desktopplatformservices.h"
#include "shell/mainmenuviewcontroller.h"
#include "shell/theme.h"
#include "store/samplecollection.h"
#include "testsupport.h"

#include <QMimeData>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class ShellTest : public QObject
{
    Q_OBJECT

private:
    QStringList grades(Store &store, Entity entity)
    {
        QStringList list;
        for (const Condition &c : *store.fetchConditions(FetchRequest(entity)))
            list << text(c.condition);
        return list;
    }

private slots:
    void initTestCase() { useTestLocale(); }

    void firstLaunchSeedsBothListsOnce()
    {
        QTemporaryDir dir;
        {
            ConsoleCapture console;
            auto app = AppDelegate::create(dir.path(), true, std::make_unique<RecordingPlatformServices>());
            QVERIFY(app.ok());
            MainMenuViewController menu(app->get());
            QCOMPARE(console.lines(), QStringList{u"First Launch"_s});
            const QStringList seeded = {u"Mint"_s, u"Near Mint/Mint"_s, u"Near Mint"_s, u"Very Fine/Near Mint"_s,
                                        u"Very Fine"_s, u"Fine"_s, u"Very Good/Fine"_s, u"Very Good"_s,
                                        u"Good/Very Good"_s, u"Good"_s, u"Fair/Good"_s, u"Fair"_s, u"Poor"_s};
            QCOMPARE(grades((*app)->persistentContainer(), Entity::VinylCondition), seeded);
            QCOMPARE(grades((*app)->persistentContainer(), Entity::CoverCondition), seeded);
            QVERIFY((*app)->settings().boolValue(SettingsKeys::AboutHasBeenLaunchedBeforeFlag));
        }
        ConsoleCapture console;
        auto again = AppDelegate::create(dir.path(), true, std::make_unique<RecordingPlatformServices>());
        MainMenuViewController menu(again->get());
        QCOMPARE(console.lines(), QStringList{u"Not First Launch"_s});
        QCOMPARE(grades((*again)->persistentContainer(), Entity::VinylCondition).size(), 13);
    }

    void menuFoldsAgainEachTimeItShows()
    {
        TestApp t;
        MainMenuViewController menu(&t.app());
        t.app().state()->setOriginScreen(u"List"_s);
        menu.viewWillAppear();
        QVERIFY(!menu.menuUnfolded());
        QCOMPARE(t.app().state()->originScreen(), u"Menu"_s);
        menu.HandleButtonClick();
        QVERIFY(menu.menuUnfolded());
        menu.HandleButtonClick();
        QVERIFY(!menu.menuUnfolded());
        menu.HandleButtonClick();
        menu.viewWillAppear();
        QVERIFY(!menu.menuUnfolded());
        QCOMPARE(menu.menuButtons().size(), 12);
        // Every button leads to a screen that exists.
        for (const QVariant &button : menu.menuButtons())
            QVERIFY2(button.toMap().value(u"enabled"_s).toBool(), qPrintable(button.toMap().value(u"screen"_s).toString()));
    }

    // Beside the menu on a wide window: the figures, and the records added last, newest first,
    // read again each time the menu shows. One picked opens in the editor, which returns here;
    // one deleted meanwhile is said so and leaves the list.
    void startScreenShowsTheFiguresAndTheRecordsAddedLast()
    {
        TestApp t;
        const Vinyl lent = RecordBuilder(u"Ärger im Paradies"_s).artist(u"Zoë"_s).value(1234.5f, 2).store(t.store());
        for (int i = 1; i <= 6; ++i)
            t.addVinyl(u"Album %1"_s.arg(i), u"Artist"_s);
        const QDate today = QDate::currentDate();
        QVERIFY(Loans::lend(t.store(), lent.rowId, u"Sam"_s, today.addDays(-30), today.addDays(-1)));
        MainMenuViewController menu(&t.app());
        menu.viewWillAppear();

        QStringList figures;
        for (const QVariant &figure : menu.figures())
            figures << figure.toMap().value(u"label"_s).toString() + u": "_s + figure.toMap().value(u"value"_s).toString();
        QCOMPARE(figures, QStringList({u"Records: 7"_s, u"Copies: 2"_s, u"Total value: $2,469.00"_s,
                                       u"On loan, 1 overdue: 1"_s, u"Wanted: 0"_s}));
        const auto albums = [&menu] {
            QStringList list;
            for (const QVariant &record : menu.recentRecords())
                list << record.toMap().value(u"album"_s).toString();
            return list;
        };
        QCOMPARE(albums(), QStringList({u"Album 6"_s, u"Album 5"_s, u"Album 4"_s, u"Album 3"_s, u"Album 2"_s}));

        menu.openRecent(1);
        QCOMPARE(t.app().state()->currentRecord().rowId, menu.recentRecords().at(1).toMap().value(u"rowId"_s).toLongLong());
        QCOMPARE(t.app().state()->originScreen(), u"Menu"_s);
        QCOMPARE(t.app().navigator()->lastShown(), u"EditVinylView"_s);

        QVERIFY(t.store().remove(Entity::Vinyl, menu.recentRecords().at(0).toMap().value(u"rowId"_s).toLongLong()));
        menu.openRecent(0);
        QCOMPARE(menu.lastAlertTitle(), BrowseTexts::kRecordNotFoundTitle);
        QCOMPARE(albums().first(), u"Album 5"_s);
        QCOMPARE(albums().last(), u"Album 1"_s);
    }

    // A collection whose folder cannot be written opens to be looked at: the main screen says so,
    // its add is off and refused, and nothing (no seeding, no Documents folder) is written.
    void readOnlyCollectionOpensWithItsNoticeAndNoAdd()
    {
        QTemporaryDir dir;
        QVERIFY(Store::open(dir.filePath(Store::kFileName)).ok());
        const ScopedReadOnly readOnly(dir.path());
        QVERIFY(readOnly.ok());
        auto app = AppDelegate::create(dir.path(), true, std::make_unique<RecordingPlatformServices>());
        QVERIFY(app.ok() && (*app)->readOnly());
        QCOMPARE((*app)->readOnlyNotice(), Store::kReadOnlyMessage.arg(Store::kReadOnlyFolder.arg(dir.path())));
        MainMenuViewController menu(app->get());
        QVERIFY(!menu.menuButtons().at(2).toMap().value(u"enabled"_s).toBool());
        menu.open(u"AddButton"_s);
        QCOMPARE(menu.lastAlertMessage(), (*app)->readOnlyNotice());
        QVERIFY(grades((*app)->persistentContainer(), Entity::VinylCondition).isEmpty());
        QVERIFY(!QFileInfo::exists((*app)->documentsDir()));
        TestWindow window(**app);
        QQuickItem *notice = window.item(u"ReadOnlyNotice"_s);
        QVERIFY(notice && notice->isVisible());
        QCOMPARE(notice->property("text").toString(), (*app)->readOnlyNotice());
    }

    void unopenableStoreIsAnErrorWithItsCause()
    {
        QTemporaryDir dir;
        QVERIFY(writeBytes(dir.filePath(u"Platterbox.sqlite"_s),
                           "this is not a database, just some text long enough to be read as a header...."));
        auto app = AppDelegate::create(dir.path(), true, std::make_unique<RecordingPlatformServices>());
        QVERIFY(!app.ok());
        QVERIFY(!app.errorMessage().isEmpty());
    }

    void pickingARecordCopiesEveryField()
    {
        TestApp t;
        Vinyl v;
        v.id = 4;
        v.name = u"Blue"_s;
        v.cost = 12.5f;
        v.frontImage = sampleCoverJpeg(2, true);
        v.frontImagePath = u"/covers/front.jpg"_s;
        v.backImagePath = u"/covers/back.jpg"_s;
        v.imagesLoaded = true;
        QVERIFY(t.store().insert(v).ok());
        t.app().state()->editCurrentRecord().backImagePath = u"kept"_s;
        t.app().state()->setCurrentRecord(**t.store().vinylByRowId(v.rowId));
        const CurrentRecord &c = t.app().state()->currentRecord();
        QCOMPARE(c.rowId, v.rowId);
        QCOMPARE(c.name, u"Blue"_s);
        QCOMPARE(c.artist, u""_s);
        QCOMPARE(c.cost, 12.5f);
        QVERIFY(!c.releaseDate.has_value());
        QCOMPARE(c.images.size(), 1);
        QVERIFY(c.frontImage.has_value() && !c.backImage.has_value());
        QCOMPARE(c.frontImagePath, u"/covers/front.jpg"_s);
        QCOMPARE(c.backImagePath, u"kept"_s); // no back cover: the path is not taken
    }

    void firstOpeningOfSettingsWritesUseDefaultDateFalse()
    {
        TestApp t;
        QVERIFY(!t.app().settings().contains(SettingsKeys::UseDefaultDate));
        DefaultsViewController settings(&t.app());
        QVERIFY(t.app().settings().contains(SettingsKeys::UseDefaultDate));
        QCOMPARE(t.app().settings().value(SettingsKeys::UseDefaultDate).toBool(), false);
        QVERIFY(!settings.dateFieldVisible());
    }

    void styleSwitches_data()
    {
        QTest::addColumn<QString>("switchOn");
        QTest::addColumn<bool>("wheel");
        QTest::addColumn<bool>("compact");
        QTest::addColumn<bool>("inlineStyle");
        QTest::newRow("wheel") << u"wheel"_s << true << false << false;
        QTest::newRow("compact") << u"compact"_s << false << true << false;
        QTest::newRow("inline") << u"inline"_s << false << false << true;
    }
    void styleSwitches()
    {
        QFETCH(QString, switchOn);
        QFETCH(bool, wheel);
        QFETCH(bool, compact);
        QFETCH(bool, inlineStyle);
        TestApp t;
        DefaultsViewController settings(&t.app());
        if (switchOn == u"wheel"_s)
            settings.DateWheelSwitchChanged(true);
        else if (switchOn == u"compact"_s)
            settings.DateCompactSwitchChanged(true);
        else
            settings.DateInlineSwitchChanged(true);
        const QList<bool> expected{wheel, compact, inlineStyle};
        const auto keys = [&t] {
            Settings &s = t.app().settings();
            return QList<bool>{s.boolValue(SettingsKeys::UseDateWheel), s.boolValue(SettingsKeys::UseDateCompact),
                               s.boolValue(SettingsKeys::UseDateInline)};
        };
        QCOMPARE(keys(), expected);
        QCOMPARE((QList<bool>{settings.dateWheelSwitch(), settings.dateCompactSwitch(), settings.dateInlineSwitch()}), expected);
        QVERIFY(settings.dateFieldVisible());

        // Turning the active style off changes no key.
        settings.DateWheelSwitchChanged(false);
        settings.DateCompactSwitchChanged(false);
        settings.DateInlineSwitchChanged(false);
        QCOMPARE(keys(), expected);
    }

    void inlineWinsOverWheelOnOpening()
    {
        TestApp t;
        t.app().settings().setValue(SettingsKeys::UseDateWheel, true);
        t.app().settings().setValue(SettingsKeys::UseDateInline, true);
        DefaultsViewController settings(&t.app());
        QCOMPARE(settings.pickerStyle(), u"inline"_s);
        QVERIFY(settings.dateInlineSwitch());
        QVERIFY(!settings.dateWheelSwitch());
    }

    void appearanceIsAppliedAtOnceAndKept_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<bool>("dark");
        // The test platform's palette is light, and no portal is asked here.
        QTest::newRow("light") << 0 << u"light"_s << false;
        QTest::newRow("dark") << 1 << u"dark"_s << true;
        QTest::newRow("as the desktop") << 2 << u"desktop"_s << false;
    }
    void appearanceIsAppliedAtOnceAndKept()
    {
        QFETCH(int, index);
        QFETCH(QString, stored);
        QFETCH(bool, dark);
        TestApp t;
        DefaultsViewController settings(&t.app());
        QCOMPARE(settings.appearance(), 2); // as the desktop until chosen
        // Another choice first, so that the one under test has to change the window.
        settings.appearanceChosen(dark ? 0 : 1);
        Theme *theme = Theme::instance();
        QSignalSpy themeChanged(theme, &Theme::changed);
        settings.appearanceChosen(index);
        QCOMPARE(themeChanged.count(), 1);
        QCOMPARE(theme->dark(), dark);
        QCOMPARE(theme->window(), Theme::color(Theme::Window, dark));
        QCOMPARE(t.app().settings().value(Theme::kSettingsKey).toString(), stored);
        settings.appearanceChosen(7); // not a choice: nothing changes
        QCOMPARE(settings.appearance(), index);

        // Started again on the same data folder, the app shows the same appearance.
        t.app().settings().sync();
        theme->setChoice(dark ? Theme::Choice::Light : Theme::Choice::Dark);
        auto again = AppDelegate::create(t.dataDir(), true, std::make_unique<RecordingPlatformServices>());
        QVERIFY(again);
        QCOMPARE(theme->dark(), dark);
        QCOMPARE(DefaultsViewController(again->get()).appearance(), index);
    }

    // The window's QML takes the same theme the settings screen changes.
    void windowShowsTheChosenVariant()
    {
        TestApp t;
        TestWindow window(t.app());
        QVERIFY(window.window());
        DefaultsViewController settings(&t.app());
        for (const bool dark : {true, false}) {
            settings.appearanceChosen(dark ? 1 : 0);
            QTRY_COMPARE(window.window()->color(), Theme::color(Theme::Window, dark));
        }
    }

    void defaultDateIsStoredAndShownAgain()
    {
        TestApp t;
        {
            DefaultsViewController settings(&t.app());
            settings.DefaultDateSwitchChanged(true);
            QSignalSpy closed(&settings, &DefaultsViewController::endEditing);
            settings.doneClick(QDate(2021, 1, 5));
            QCOMPARE(closed.count(), 1);
            QCOMPARE(t.app().settings().value(SettingsKeys::DefaultDate).toString(), u"Jan 5, 2021"_s);
            QCOMPARE(t.app().settings().value(SettingsKeys::UseDefaultDate).toBool(), true);
        }
        DefaultsViewController reopened(&t.app());
        QVERIFY(reopened.defaultDateSwitch());
        QCOMPARE(reopened.dateText(), u"Jan 5, 2021"_s);

        reopened.DefaultDateSwitchChanged(false);
        QCOMPARE(t.app().settings().value(SettingsKeys::DefaultDate).toString(), u""_s);
        QVERIFY(t.app().settings().contains(SettingsKeys::DefaultDate));
        QCOMPARE(reopened.dateText(), QString());
        QVERIFY(!reopened.dateFieldVisible());
    }

    // What the desktop hands to the clipboard and the mail client.
    void shareKeepsTheTextAndEveryPicture()
    {
        QImage front(40, 40, QImage::Format_RGB32);
        front.fill(Qt::red);
        QImage back(30, 20, QImage::Format_RGB32);
        back.fill(Qt::blue);
        ShareItems items;
        items.texts = {u"Album Name: <Blue> & more\nQuantity: 1"_s};
        items.images = {front, back};

        const auto data = shareMimeData(items);
        QCOMPARE(data->text(), items.texts.first());
        QCOMPARE(qvariant_cast<QImage>(data->imageData()), front);
        const QString html = data->html();
        QVERIFY(html.contains(u"Album Name: &lt;Blue&gt; &amp; more<br>Quantity: 1"_s));
        QCOMPARE(html.count(u"<img src=\"data:image/png;base64,"_s), 2);
        // The back cover is there too, after the front.
        const qsizetype last = html.lastIndexOf(u"base64,"_s) + 7;
        const QByteArray png = QByteArray::fromBase64(html.mid(last, html.indexOf(u'"', last) - last).toLatin1());
        QCOMPARE(QImage::fromData(png, "PNG").convertToFormat(QImage::Format_RGB32), back);
    }

    void mailClientGetsReadableText_data()
    {
        QTest::addColumn<QString>("body");
        QTest::addColumn<bool>("html");
        QTest::addColumn<QString>("text");
        QTest::newRow("feedback paragraph") << u"<p>Enter your comments about Platterbox app below: </p>"_s << true
                                            << u"Enter your comments about Platterbox app below: "_s;
        QTest::newRow("entities") << u"<p>Rock &amp; Roll</p>"_s << true << u"Rock & Roll"_s;
        QTest::newRow("plain text as it is") << u"<p> is text here"_s << false << u"<p> is text here"_s;
    }

    void mailClientGetsReadableText()
    {
        QFETCH(QString, body);
        QFETCH(bool, html);
        QFETCH(QString, text);
        MailMessage message;
        message.body = body;
        message.bodyIsHtml = html;
        QCOMPARE(mailClientBody(message), text);
    }
};

QTEST_MAIN(ShellTest)
#include "tst_shell.moc"
