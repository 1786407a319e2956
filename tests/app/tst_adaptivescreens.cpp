// The screens at phone, tablet and desktop widths, and the keyboard and mouse wheel on them:
// the real window with a sample collection, driven by keys and wheel notches. And where the
// main window opens, for the screens it may meet.
#include "app/windowgeometry.h"
#include "entry/addvinylviewcontroller.h"
#include "shell/appstate.h"
#include "shell/mainmenuviewcontroller.h"
#include "store/samplecollection.h"
#include "store/settings.h"
#include "testsupport.h"

#include <QGuiApplication>
#include <QJSValue>
#include <QPointingDevice>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QStyleHints>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
const QSize kPhone(390, 844);
const QSize kTablet(834, 1194);
const QSize kDesktop(1400, 900);
} // namespace

using Screens = QList<QRect>;

class TestAdaptiveScreens : public QObject
{
    Q_OBJECT

private:
    QQuickItem *topScreen() const { return m_view->topScreen(); }
    QString topName() const { return m_view->topName(); }
    QQuickItem *item(const QString &objectName) const { return m_view->item(objectName); }

    void open(const QString &screen, const QSize &size)
    {
        m_window->resize(size);
        m_app->app().navigator()->show(screen);
        QTRY_COMPARE(topName(), screen);
        QVERIFY(m_view->waitForTransition());
    }

    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(m_window, Qt::Key(key), modifiers);
    }

    std::unique_ptr<TestApp> m_app;
    std::unique_ptr<TestWindow> m_view;
    QQuickWindow *m_window = nullptr;

private slots:
    void initTestCase()
    {
        useTestLocale();
        m_app = std::make_unique<TestApp>();
        QVERIFY(m_app->ok());
        SampleOptions sample;
        sample.records = 60;
        sample.tracksPerRecord = 3;
        sample.covers = false;
        QVERIFY(addSampleCollection(m_app->store(), sample).ok());
        m_view = std::make_unique<TestWindow>(m_app->app());
        m_window = m_view->window();
        QVERIFY(m_window);
        m_window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(m_window));
    }

    void cleanup()
    {
        m_app->app().settings().setValue(SettingsKeys::ListShowsTable, false);
        m_app->app().navigator()->unwind(u"unwindToMenu"_s);
        QTRY_COMPARE(topName(), u"MainMenuView"_s);
        QVERIFY(m_view->waitForTransition());
    }

    void listsShowMoreCardsOnWiderWindows_data()
    {
        QTest::addColumn<QString>("screen");
        QTest::addColumn<QString>("list");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("columns");
        // The fewest cards wholly in sight: a phone shows five records, a desktop window at
        // least three times as many (its cards, narrower than a phone's, are taller).
        QTest::addColumn<int>("fullyShown");
        QTest::newRow("collection, phone") << u"ListVinylTableView"_s << u"VinylList"_s << kPhone << 1 << 5;
        QTest::newRow("collection, tablet") << u"ListVinylTableView"_s << u"VinylList"_s << kTablet << 2 << 15;
        // Two columns only where both cards keep their promised width.
        QTest::newRow("collection, 659 px") << u"ListVinylTableView"_s << u"VinylList"_s << QSize(659, 900) << 1 << 5;
        QTest::newRow("collection, 1,037 px") << u"ListVinylTableView"_s << u"VinylList"_s << QSize(1037, 900) << 2 << 10;
        QTest::newRow("collection, desktop") << u"ListVinylTableView"_s << u"VinylList"_s << kDesktop << 4 << 16;
        QTest::newRow("groups, desktop") << u"GroupListsView"_s << u"GroupList"_s << kDesktop << 4 << 33;
        QTest::newRow("valuation, desktop") << u"ValuationView"_s << u"ValueTableView"_s << kDesktop << 4 << 18;
    }

    void listsShowMoreCardsOnWiderWindows()
    {
        QFETCH(QString, screen);
        QFETCH(QString, list);
        QFETCH(QSize, size);
        QFETCH(int, columns);
        QFETCH(int, fullyShown);
        open(screen, size);
        QQuickItem *grid = nullptr;
        for (QQuickItem *candidate : topScreen()->findChildren<QQuickItem *>(list)) {
            if (candidate->isVisible())
                grid = candidate;
        }
        QVERIFY(grid);
        QTRY_VERIFY(grid->property("count").toInt() > 0);
        QCOMPARE(grid->property("columns").toInt(), columns);
        const int rows = int(grid->height() / grid->property("cellHeight").toReal());
        QVERIFY2(columns * rows >= fullyShown, qPrintable(QString::number(columns * rows)));
    }

    // The title of the collection list shows whole beside its four buttons on the narrowest phone.
    void titleShowsWholeOnANarrowPhone()
    {
        open(u"ListVinylTableView"_s, QSize(320, 640));
        const auto texts = topScreen()->findChildren<QQuickItem *>();
        const auto title = std::ranges::find_if(texts, [](QQuickItem *t) { return t->property("text") == u"List Vinyl's"_s; });
        QVERIFY(title != texts.end());
        QTRY_VERIFY(!(*title)->property("truncated").toBool());
    }

    void formsKeepAReadableWidth_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<bool>("coversBeside");
        QTest::newRow("phone") << kPhone << false;
        QTest::newRow("tablet") << kTablet << false;
        QTest::newRow("desktop") << kDesktop << true;
    }

    void formsKeepAReadableWidth()
    {
        QFETCH(QSize, size);
        QFETCH(bool, coversBeside);
        open(u"AddVinylView"_s, size);
        QQuickItem *name = item(u"AlbumNameTextField"_s);
        QQuickItem *cover = item(u"FrontCoverImage"_s);
        QVERIFY(name && cover);
        const QRectF field = name->mapRectToScene(QRectF(0, 0, name->width(), name->height()));
        const QRectF picture = cover->mapRectToScene(QRectF(0, 0, cover->width(), cover->height()));
        if (size == kPhone)
            QCOMPARE(field.width(), size.width() - 32.0); // as it always was
        QVERIFY(field.width() <= 720);
        QCOMPARE(picture.right() < field.left(), coversBeside);
        // Centred: the covers and fields together leave the same room on both sides.
        const qreal left = std::min(field.left(), picture.left());
        QVERIFY(qAbs(left - (size.width() - field.right())) <= 1);
    }

    void unfoldedMenuFitsTheWindow_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("phone") << kPhone;
        QTest::newRow("tablet") << kTablet;
        QTest::newRow("tablet, landscape") << QSize(1024, 700);
        QTest::newRow("desktop") << kDesktop;
        QTest::newRow("small desktop") << QSize(1100, 620);
    }

    void unfoldedMenuFitsTheWindow()
    {
        QFETCH(QSize, size);
        m_window->resize(size);
        QQuickItem *menu = topScreen();
        QVERIFY(menu);
        auto *controller = menu->findChild<MainMenuViewController *>();
        QVERIFY(controller);
        if (!controller->menuUnfolded())
            QMetaObject::invokeMethod(menu->findChild<QObject *>(u"MenuControlButton"_s), "clicked");
        // Unfolded once every menu button has grown to its full height.
        QTRY_VERIFY(std::ranges::all_of(controller->menuButtons(), [this](const QVariant &button) {
            const QQuickItem *shown = item(button.toMap().value(u"name"_s).toString());
            return shown && shown->height() > 0 && shown->height() == shown->implicitHeight();
        }));
        // The menu itself; on a short desktop window the collection beside it may scroll.
        auto *flick = menu->findChild<QQuickItem *>(u"MenuFlickable"_s);
        auto *column = menu->findChild<QQuickItem *>(u"MenuColumn"_s);
        QVERIFY(flick && column);
        const qreal bottom = column->mapToItem(flick, QPointF(0, column->implicitHeight())).y();
        QVERIFY2(bottom <= flick->height(), qPrintable(u"%1 > %2"_s.arg(bottom).arg(flick->height())));
    }

    void shortcutsPressTheButtonsOfTheScreenShown_data()
    {
        QTest::addColumn<QString>("screen");
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<QString>("shown");
        QTest::newRow("Ctrl+N in the collection adds a record")
            << u"ListVinylTableView"_s << int(Qt::Key_N) << int(Qt::ControlModifier) << u"AddVinylView"_s;
        QTest::newRow("Ctrl+N on the main menu adds a record")
            << u""_s << int(Qt::Key_N) << int(Qt::ControlModifier) << u"AddVinylView"_s;
        QTest::newRow("Ctrl+N in a condition list adds a grade")
            << u"VinylConditionTableView"_s << int(Qt::Key_N) << int(Qt::ControlModifier) << u"AddVinylConditionView"_s;
        QTest::newRow("Ctrl+P in the collection opens its report")
            << u"ListVinylTableView"_s << int(Qt::Key_P) << int(Qt::ControlModifier) << u"PrintVinylView"_s;
        QTest::newRow("Escape goes back") << u"DefaultsView"_s << int(Qt::Key_Escape) << 0 << u"MainMenuView"_s;
        QTest::newRow("Alt+Left goes back")
            << u"ListVinylTableView"_s << int(Qt::Key_Left) << int(Qt::AltModifier) << u"MainMenuView"_s;
    }

    void shortcutsPressTheButtonsOfTheScreenShown()
    {
        QFETCH(QString, screen);
        QFETCH(int, key);
        QFETCH(int, modifiers);
        QFETCH(QString, shown);
        if (!screen.isEmpty())
            open(screen, kDesktop);
        this->key(key, Qt::KeyboardModifiers(modifiers));
        QTRY_COMPARE(topName(), shown);
    }

    // On the add form Escape closes an open picker, not the screen; then Ctrl+S saves the form.
    void escapeClosesAPickerAndCtrlSSavesTheForm()
    {
        open(u"AddVinylView"_s, kDesktop);
        QMetaObject::invokeMethod(item(u"VinylConditionTextField"_s), "tapped");
        QQuickItem *picker = item(u"ListPickerView"_s);
        QTRY_VERIFY(picker->isVisible());
        // A popover beside its field, not a sheet across the window.
        QVERIFY(picker->width() < kDesktop.width() / 2);
        key(Qt::Key_Escape);
        QTRY_VERIFY(!picker->isVisible());
        QCOMPARE(topName(), u"AddVinylView"_s);

        auto *add = topScreen()->findChild<AddVinylViewController *>();
        QVERIFY(add);
        QSignalSpy alerts(add, &ScreenController::alert);
        key(Qt::Key_S, Qt::ControlModifier);
        // An empty form is refused with its alert: the save ran.
        QTRY_COMPARE(alerts.count(), 1);
        QCOMPARE(topName(), u"AddVinylView"_s);
    }

    void keysFindSelectAndOpenARecord()
    {
        open(u"ListVinylTableView"_s, kDesktop);
        QQuickItem *grid = item(u"VinylList"_s);
        QVERIFY(grid);
        key(Qt::Key_F, Qt::ControlModifier);
        QTRY_COMPARE(m_window->activeFocusItem(), item(u"SearchField"_s));
        key(Qt::Key_Down);
        QTRY_VERIFY(grid->hasActiveFocus());
        QCOMPARE(grid->property("currentIndex").toInt(), 0);
        key(Qt::Key_Right);
        key(Qt::Key_Down);
        const int picked = 1 + grid->property("columns").toInt();
        QCOMPARE(grid->property("currentIndex").toInt(), picked);
        // The selected card is outlined.
        auto *outline = grid->property("highlightItem").value<QQuickItem *>();
        QVERIFY(outline && outline->isVisible());
        QCOMPARE(outline->position(), grid->property("currentItem").value<QQuickItem *>()->position());

        auto *card = grid->property("currentItem").value<QQuickItem *>();
        QVERIFY(card);
        const QString name = card->property("nameLabel").toString();
        key(Qt::Key_Return);
        QTRY_COMPARE(topName(), u"EditVinylView"_s);
        QVERIFY2(name.startsWith(u"Album: "_s + m_app->app().state()->currentRecordName() + u"  "_s), qPrintable(name));
    }

    // The table chosen on a desktop-wide window: the arrow keys move its current row, Enter opens
    // it; a header click sorts by its column. Narrower, the cards show.
    void tableRowsMoveByKeysAndOpen()
    {
        m_app->app().settings().setValue(SettingsKeys::ListShowsTable, true);
        open(u"ListVinylTableView"_s, kDesktop);
        QQuickItem *table = item(u"VinylTable"_s);
        QVERIFY(table && table->isVisible());
        QTRY_VERIFY(table->property("count").toInt() > 2);
        QVERIFY(!item(u"VinylList"_s)->isVisible());
        QQuickItem *header = item(u"TableHeader"_s);
        QVERIFY(header);
        // The Value header (the seventh), then the list's keys.
        QQuickItem *value = nullptr;
        for (QQuickItem *cell : header->childItems().constFirst()->childItems()) {
            if (cell->property("modelData").toString() == u"Value"_s)
                value = cell;
        }
        QVERIFY(value);
        QTest::mouseClick(m_window, Qt::LeftButton, {}, value->mapToScene(QPointF(value->width() / 3, value->height() / 2)).toPoint());
        QTRY_COMPARE(value->property("sorted").toBool(), true);
        key(Qt::Key_F, Qt::ControlModifier);
        QTRY_COMPARE(m_window->activeFocusItem(), item(u"SearchField"_s));
        key(Qt::Key_Down);
        QTRY_VERIFY(table->hasActiveFocus());
        QCOMPARE(table->property("currentIndex").toInt(), 0);
        key(Qt::Key_Down);
        key(Qt::Key_Down);
        QCOMPARE(table->property("currentIndex").toInt(), 2);
        QVariant cells = table->property("currentItem").value<QQuickItem *>()->property("cells");
        if (cells.metaType() == QMetaType::fromType<QJSValue>())
            cells = cells.value<QJSValue>().toVariant();
        key(Qt::Key_Return);
        QTRY_COMPARE(topName(), u"EditVinylView"_s);
        QCOMPARE(cells.toStringList().value(0), m_app->app().state()->currentRecordName());

        m_app->app().navigator()->unwind(u"unwindToMenu"_s);
        QTRY_COMPARE(topName(), u"MainMenuView"_s);
        QVERIFY(m_view->waitForTransition());
        open(u"ListVinylTableView"_s, QSize(1037, 900));
        QVERIFY(item(u"VinylList"_s)->isVisible());
        QVERIFY(!item(u"VinylTable"_s)->isVisible());
    }

    void aRowOffersItsDeleteAsASwipeDoes_data()
    {
        QTest::addColumn<QString>("screen");
        QTest::addColumn<QString>("list");
        QTest::addColumn<bool>("byKey");
        QTest::newRow("record card, Delete key") << u"ListVinylTableView"_s << u"VinylList"_s << true;
        QTest::newRow("record card, right-click") << u"ListVinylTableView"_s << u"VinylList"_s << false;
        QTest::newRow("table row, Delete key") << u"ListVinylTableView"_s << u"VinylTable"_s << true;
        QTest::newRow("table row, right-click") << u"ListVinylTableView"_s << u"VinylTable"_s << false;
        QTest::newRow("grade, Delete key") << u"VinylConditionTableView"_s << u"ConditionList"_s << true;
        QTest::newRow("grade, right-click") << u"VinylConditionTableView"_s << u"ConditionList"_s << false;
    }

    void aRowOffersItsDeleteAsASwipeDoes()
    {
        QFETCH(QString, screen);
        QFETCH(QString, list);
        QFETCH(bool, byKey);
        m_app->app().settings().setValue(SettingsKeys::ListShowsTable, list == u"VinylTable"_s);
        open(screen, kDesktop);
        QQuickItem *grid = item(list);
        QVERIFY(grid);
        QTRY_VERIFY(grid->property("count").toInt() > 1);
        const int count = grid->property("count").toInt();
        QQuickItem *row = nullptr;
        QMetaObject::invokeMethod(grid, "itemAtIndex", Q_RETURN_ARG(QQuickItem *, row), Q_ARG(int, 1));
        QVERIFY(row);
        if (byKey) {
            grid->forceActiveFocus();
            grid->setProperty("currentIndex", 1);
            key(Qt::Key_Delete);
        } else {
            QTest::mouseClick(m_window, Qt::RightButton, {}, row->mapToScene(QPointF(row->width() / 2, row->height() / 2)).toPoint());
        }
        // The row's delete button shows; nothing is deleted or opened yet.
        auto *swipe = row->property("swipe").value<QObject *>();
        QTRY_VERIFY(swipe->property("complete").toBool());
        QCOMPARE(swipe->property("position").toReal(), -1.0);
        QCOMPARE(grid->property("count").toInt(), count);
        QCOMPARE(topName(), screen);

        auto *button = swipe->property("rightItem").value<QQuickItem *>();
        QVERIFY(button && button->isVisible());
        QTest::mouseClick(m_window, Qt::LeftButton, {}, button->mapToScene(QPointF(button->width() / 2, button->height() / 2)).toPoint());
        QTRY_COMPARE(grid->property("count").toInt(), count - 1);
    }

    void aWheelNotchScrollsThreeLinesAtOnce_data()
    {
        QTest::addColumn<QString>("screen");
        QTest::addColumn<QString>("view");
        QTest::newRow("collection list") << u"ListVinylTableView"_s << u"VinylList"_s;
        QTest::newRow("report preview") << u"PrintVinylView"_s << u"FileTextView"_s;
    }

    void aWheelNotchScrollsThreeLinesAtOnce()
    {
        QFETCH(QString, screen);
        QFETCH(QString, view);
        // The report preview shows the whole collection.
        m_app->app().state()->setOriginScreen(OriginScreens::List);
        open(screen, kDesktop);
        QQuickItem *target = item(view);
        QVERIFY(target);
        // A text scrolls in the flickable around it.
        QQuickItem *flickable = target;
        while (flickable && !flickable->inherits("QQuickFlickable"))
            flickable = flickable->parentItem();
        QVERIFY(flickable);
        const qreal step = QGuiApplication::styleHints()->wheelScrollLines() * 40.0;
        QTRY_VERIFY(flickable->property("contentHeight").toReal() > flickable->height() + 2 * step);
        const QPointF at = target->mapToScene(QPointF(target->width() / 2, flickable->height() / 2));
        QWheelEvent notch(at, m_window->mapToGlobal(at), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false, Qt::MouseEventNotSynthesized, QPointingDevice::primaryPointingDevice());
        QCoreApplication::sendEvent(m_window, &notch);
        QCOMPARE(flickable->property("contentY").toReal(), step);
        // No fling runs on after it.
        QVERIFY(!flickable->property("moving").toBool());
    }

    // Where the main window opens, for the screens it may meet.
    void opensWhereItFits_data()
    {
        QTest::addColumn<Screens>("screens");
        QTest::addColumn<std::optional<QRect>>("saved");
        QTest::addColumn<QRect>("expected");

        const QRect fullHd(0, 0, 1920, 1040);
        QTest::newRow("desktop, first start: 1200 x 800 centred")
            << Screens{fullHd} << std::optional<QRect>() << QRect(360, 120, 1200, 800);
        QTest::newRow("small laptop: nine tenths of the screen")
            << Screens{QRect(0, 0, 1280, 700)} << std::optional<QRect>() << QRect(64, 35, 1152, 630);
        QTest::newRow("phone: the whole screen")
            << Screens{QRect(0, 0, 412, 892)} << std::optional<QRect>() << QRect(0, 0, 412, 892);
        QTest::newRow("where it was left")
            << Screens{fullHd} << std::optional<QRect>(QRect(100, 50, 900, 700)) << QRect(100, 50, 900, 700);
        QTest::newRow("left half off the right edge: moved in")
            << Screens{fullHd} << std::optional<QRect>(QRect(1500, 100, 800, 600)) << QRect(1120, 100, 800, 600);
        QTest::newRow("larger than the screen: shrunk to it")
            << Screens{QRect(0, 0, 1280, 700)} << std::optional<QRect>(QRect(0, 0, 1600, 1000)) << QRect(0, 0, 1280, 700);
        QTest::newRow("on a second screen that is still there")
            << Screens{fullHd, QRect(1920, 0, 1280, 1024)} << std::optional<QRect>(QRect(2000, 100, 800, 600))
            << QRect(2000, 100, 800, 600);
        QTest::newRow("on a screen that is gone: centred on the first")
            << Screens{fullHd} << std::optional<QRect>(QRect(2000, 100, 800, 600)) << QRect(360, 120, 1200, 800);
        QTest::newRow("no size saved: as on a first start")
            << Screens{fullHd} << std::optional<QRect>(QRect()) << QRect(360, 120, 1200, 800);
    }

    void opensWhereItFits()
    {
        QFETCH(Screens, screens);
        QFETCH(std::optional<QRect>, saved);
        QFETCH(QRect, expected);
        QCOMPARE(WindowGeometry::initial(screens, saved), expected);
    }
};

QTEST_MAIN(TestAdaptiveScreens)
#include "tst_adaptivescreens.moc"
