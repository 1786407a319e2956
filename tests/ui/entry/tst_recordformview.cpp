// The record form as the user meets it: taps and keys on the real screen.
#include "entry/addvinylviewcontroller.h"
#include "entry/notesviewcontroller.h"
#include "store/settings.h"
#include "testsupport.h"

#include <QInputMethodEvent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

using namespace Qt::StringLiterals;

class TestRecordFormView : public QObject
{
    Q_OBJECT

private:
    QQuickItem *topScreen() const { return m_view->topScreen(); }
    QQuickItem *item(const QString &objectName) const { return m_view->item(objectName); }

    void tap(const QString &objectName)
    {
        QQuickItem *target = item(objectName);
        QVERIFY2(target, qPrintable(objectName));
        // Fields below the fold are scrolled into sight first, as a finger would.
        if (QQuickItem *form = item(u"RecordForm"_s)) {
            form->setProperty("editedItem", QVariant::fromValue(target));
            QMetaObject::invokeMethod(form, "showEdited");
            form->setProperty("editedItem", QVariant::fromValue<QQuickItem *>(nullptr));
        }
        // The lower part of a field is its text box, below the caption.
        const QPointF point = target->mapToScene(QPointF(target->width() / 2, target->height() * 0.75));
        QTest::mouseClick(m_window, Qt::LeftButton, Qt::NoModifier, point.toPoint());
    }

    AddVinylViewController *addScreen() const
    {
        QQuickItem *screen = topScreen();
        return screen ? screen->findChild<AddVinylViewController *>() : nullptr;
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
        m_view = std::make_unique<TestWindow>(m_app->app());
        m_window = m_view->window();
        QVERIFY(m_window);
        QVERIFY(QTest::qWaitForWindowExposed(m_window));
    }

    void init()
    {
        m_app->app().navigator()->show(u"AddVinylView"_s);
        QTRY_VERIFY(addScreen());
        QVERIFY(m_view->waitForTransition());
    }

    void cleanup()
    {
        m_app->app().navigator()->unwind(u"unwindToMenu"_s);
        QTRY_COMPARE(m_view->topName(), u"MainMenuView"_s);
        QVERIFY(m_view->waitForTransition());
    }

    void typedCharactersPassTheFieldFilters_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("kept");
        QTest::newRow("album name takes anything") << u"AlbumNameTextField"_s << u"Blue 1.5"_s << u"Blue 1.5"_s;
        QTest::newRow("quantity refuses the point") << u"QuantityTextField"_s << u"1.5"_s << u"15"_s;
        QTest::newRow("cost takes the point") << u"CostTextField"_s << u"1.5"_s << u"1.5"_s;
        QTest::newRow("cost refuses letters") << u"CostTextField"_s << u"2x0"_s << u"20"_s;
    }

    void typedCharactersPassTheFieldFilters()
    {
        QFETCH(QString, field);
        QFETCH(QString, typed);
        QFETCH(QString, kept);
        tap(field);
        QTRY_VERIFY(m_window->activeFocusItem() && m_window->activeFocusItem()->inherits("QQuickTextInput"));
        for (const QChar c : typed)
            QTest::keyClick(m_window, c.toLatin1());
        AddVinylViewController *add = addScreen();
        const QString stored = field == u"AlbumNameTextField" ? add->albumName()
                               : field == u"QuantityTextField" ? add->quantity()
                                                                : add->cost();
        QCOMPARE(stored, kept);
        QCOMPARE(m_window->activeFocusItem()->property("text").toString(), kept);
    }

    void pickersFillTheirField()
    {
        tap(u"VinylConditionTextField"_s);
        QQuickItem *sheet = item(u"ListPickerView"_s);
        QVERIFY(sheet);
        QTRY_VERIFY(sheet->isVisible());
        // The first grade's row, once the sheet's list has made it.
        QQuickItem *list = nullptr;
        for (QQuickItem *child : sheet->findChildren<QQuickItem *>()) {
            if (child->inherits("QQuickListView"))
                list = child;
        }
        QVERIFY(list);
        QQuickItem *first = nullptr;
        QTRY_VERIFY(QMetaObject::invokeMethod(list, "itemAtIndex", Q_RETURN_ARG(QQuickItem *, first), Q_ARG(int, 0))
                    && first && first->height() > 0);
        const QPointF row = first->mapToScene(QPointF(first->width() / 2, first->height() / 2));
        QTest::mouseClick(m_window, Qt::LeftButton, Qt::NoModifier, row.toPoint());
        const QStringList grades = addScreen()->listOfVinylConditions();
        QVERIFY(!grades.isEmpty());
        QTRY_COMPARE(addScreen()->vinylCondition(), grades.first());
        QTRY_VERIFY(!sheet->isVisible());
    }

    void releaseDatePickerOpensWithToday()
    {
        tap(u"ReleaseDateTextField"_s);
        QQuickItem *picker = item(u"ReleaseDatePickerView"_s);
        QVERIFY(picker);
        QTRY_VERIFY(picker->isVisible());
        QCOMPARE(addScreen()->releaseDate(), QLocale().toString(QDate::currentDate(), u"MMM d, yyyy"_s));
        // The field stays in sight above the picker.
        QQuickItem *field = item(u"ReleaseDateTextField"_s);
        const qreal fieldBottom = field->mapToScene(QPointF(0, field->height())).y();
        QVERIFY(fieldBottom <= picker->mapToScene(QPointF(0, 0)).y());

        // Picked and closed, the picker opens at today's date again next time.
        picker->setProperty("selectedDate", QDateTime(QDate(1971, 6, 22), QTime(0, 0)));
        addScreen()->doneDateIssuedClick(QDate(1971, 6, 22));
        QTRY_VERIFY(!picker->isVisible());
        tap(u"ReleaseDateTextField"_s);
        QTRY_VERIFY(picker->isVisible());
        QCOMPARE(picker->property("selectedDate").toDateTime().date(), QDate::currentDate());
    }

    // The calendar is one stop of the Tab chain; the keys move the chosen day.
    void calendarKeysMoveTheChosenDay_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QDate>("from");
        QTest::addColumn<QDate>("to");
        QTest::newRow("right to the next month") << int(Qt::Key_Right) << QDate(2024, 1, 31) << QDate(2024, 2, 1);
        QTest::newRow("left to the last year") << int(Qt::Key_Left) << QDate(2024, 1, 1) << QDate(2023, 12, 31);
        QTest::newRow("down a week") << int(Qt::Key_Down) << QDate(2024, 2, 26) << QDate(2024, 3, 4);
        QTest::newRow("up a week") << int(Qt::Key_Up) << QDate(2024, 3, 4) << QDate(2024, 2, 26);
        QTest::newRow("a month on from the 31st") << int(Qt::Key_PageDown) << QDate(2024, 1, 31) << QDate(2024, 2, 29);
        QTest::newRow("a month back") << int(Qt::Key_PageUp) << QDate(2024, 3, 31) << QDate(2024, 2, 29);
    }

    void calendarKeysMoveTheChosenDay()
    {
        QFETCH(int, key);
        QFETCH(QDate, from);
        QFETCH(QDate, to);
        // The form takes the picker's style when it opens.
        m_app->app().settings().setValue(SettingsKeys::UseDateInline, true);
        cleanup();
        init();
        m_app->app().settings().remove(SettingsKeys::UseDateInline);
        tap(u"ReleaseDateTextField"_s);
        QQuickItem *picker = item(u"ReleaseDatePickerView"_s);
        QVERIFY(picker);
        QTRY_VERIFY(picker->isVisible());
        QQuickItem *calendar = nullptr;
        QTRY_VERIFY((calendar = [picker] {
            for (QQuickItem *child : picker->findChildren<QQuickItem *>()) {
                if (child->inherits("QQuickMonthGrid") && child->isVisible())
                    return child;
            }
            return static_cast<QQuickItem *>(nullptr);
        }()));
        picker->setProperty("selectedDate", QDateTime(from, QTime(0, 0)));
        calendar->forceActiveFocus(Qt::TabFocusReason);
        QTRY_VERIFY(calendar->hasActiveFocus());
        QTest::keyClick(m_window, Qt::Key(key));
        QCOMPARE(picker->property("selectedDate").toDateTime().date(), to);
        QCOMPARE(addScreen()->releaseDate(), QLocale().toString(to, u"MMM d, yyyy"_s));
    }

    // The notes screen takes any text: line breaks, quotes and accented letters included.
    void notesScreenTakesAnyCharacters()
    {
        const Vinyl v = m_app->addVinyl(u"Blue"_s, u"Joni"_s, u"Reprise"_s, 1);
        m_app->app().state()->setCurrentRecord(v);
        m_app->app().navigator()->show(u"NotesView"_s);
        QTRY_COMPARE(m_view->topName(), u"NotesView"_s);
        QVERIFY(m_view->waitForTransition());
        QQuickItem *notes = item(u"NotesTextView"_s);
        QVERIFY(notes);
        notes->forceActiveFocus();
        QInputMethodEvent pasted;
        const QString text = u"Sign\u00e9 \"live\"\n\u00e0 Paris"_s;
        pasted.setCommitString(text);
        QCoreApplication::sendEvent(notes, &pasted);
        QCOMPARE(notes->property("text").toString(), text);
        auto *controller = topScreen()->findChild<NotesViewController *>();
        QVERIFY(controller);
        QCOMPARE(controller->notes(), text);
    }
};

QTEST_MAIN(TestRecordFormView)
#include "tst_recordformview.moc"
