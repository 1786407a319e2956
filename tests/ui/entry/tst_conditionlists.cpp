#include "entry/conditioncontrollers.h"
#include "testsupport.h"

#include <QAbstractItemModelTester>
#include <QtTest>

using namespace Qt::StringLiterals;

class TestConditionLists : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestApp> m_app;

    QStringList stored(Entity entity)
    {
        QStringList out;
        for (const Condition &c : fetchConditionList(m_app->store(), entity, true).valueOr({}))
            out << text(c.condition);
        return out;
    }
    static QStringList shown(ConditionTableViewController &c)
    {
        QStringList out;
        for (const Condition &entry : c.model()->entries())
            out << text(entry.condition);
        return out;
    }
    void seed(Entity entity, const QStringList &texts)
    {
        for (const QString &t : texts) {
            Condition c;
            c.condition = t;
            QVERIFY(m_app->store().insert(entity, c).ok());
        }
    }

private slots:
    void init()
    {
        useTestLocale();
        m_app = std::make_unique<TestApp>();
        QVERIFY(m_app->ok());
        // Start from known lists whatever the first launch seeded.
        for (Entity e : {Entity::VinylCondition, Entity::CoverCondition})
            for (const Condition &c : fetchConditionList(m_app->store(), e, true).valueOr({}))
                QVERIFY(m_app->store().remove(e, c.rowId).ok());
        seed(Entity::VinylCondition, {u"Mint"_s, u"Very Fine/Near Mint"_s, u"Good"_s});
        seed(Entity::CoverCondition, {u"Worn"_s});
    }

    void duplicateRuleLooksAtTheTypedText_data()
    {
        QTest::addColumn<bool>("cover");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("alert");
        QTest::addColumn<QStringList>("after");
        const QStringList before{u"Good"_s, u"Mint"_s, u"Very Fine/Near Mint"_s};
        QTest::addRow("leading blank accepted, stored trimmed")
            << false << u" Mint"_s << QString() << QStringList{u"Good"_s, u"Mint"_s, u"Mint"_s, u"Very Fine/Near Mint"_s};
        QTest::addRow("exact refused") << false << u"Mint"_s << u"Duplicates not allowed"_s << before;
        QTest::addRow("other case accepted")
            << false << u"mint"_s << QString() << QStringList{u"Good"_s, u"Mint"_s, u"Very Fine/Near Mint"_s, u"mint"_s};
        QTest::addRow("empty refused") << false << QString() << u"Required Fields in RED not Entered"_s << before;
        QTest::addRow("tab trimmed") << false << u"Fair\t"_s << QString()
                                     << QStringList{u"Fair"_s, u"Good"_s, u"Mint"_s, u"Very Fine/Near Mint"_s};
        QTest::addRow("cover list is its own") << true << u"Mint"_s << QString() << QStringList{u"Mint"_s, u"Worn"_s};
        QTest::addRow("cover duplicate") << true << u"Worn"_s << u"Duplicates not allowed"_s << QStringList{u"Worn"_s};
    }
    void duplicateRuleLooksAtTheTypedText()
    {
        QFETCH(bool, cover);
        QFETCH(QString, typed);
        QFETCH(QString, alert);
        QFETCH(QStringList, after);
        std::unique_ptr<ConditionFormController> c;
        if (cover)
            c = std::make_unique<AddCoverConditionViewController>(&m_app->app());
        else
            c = std::make_unique<AddVinylConditionViewController>(&m_app->app());
        QCOMPARE(c->title(), u"Add Condition"_s);
        c->setCondition(typed);
        c->SaveCondition();
        QCOMPARE(c->lastAlertMessage(), alert);
        if (!alert.isEmpty())
            QCOMPARE(c->lastAlertTitle(), u"Record not Saved!"_s);
        QCOMPARE(stored(cover ? Entity::CoverCondition : Entity::VinylCondition), after);
    }

    void listSearchesAndSorts()
    {
        VinylConditionTableViewController c(&m_app->app());
        QAbstractItemModelTester tester(c.model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(shown(c), (QStringList{u"Good"_s, u"Mint"_s, u"Very Fine/Near Mint"_s}));
        c.SortButtonTapped();
        QCOMPARE(shown(c), (QStringList{u"Very Fine/Near Mint"_s, u"Mint"_s, u"Good"_s}));
        c.setSearchText(u"near"_s);
        QCOMPARE(shown(c), (QStringList{u"Very Fine/Near Mint"_s}));
        c.setSearchText(u"MINT"_s);
        QCOMPARE(shown(c), (QStringList{u"Very Fine/Near Mint"_s, u"Mint"_s}));
        QCOMPARE(c.conditionCount(), 3);
        // Leaving the screen ends the search.
        c.viewWillDisappear();
        QCOMPARE(c.searchText(), QString());
        QCOMPARE(shown(c), (QStringList{u"Very Fine/Near Mint"_s, u"Mint"_s, u"Good"_s}));
    }

    void emptyListStillSorts()
    {
        CoverConditionTableViewController c(&m_app->app());
        QVERIFY(m_app->store().remove(Entity::CoverCondition, c.model()->entries().first().rowId).ok());
        c.load();
        QCOMPARE(c.model()->rowCount(), 0);
        QVERIFY(c.sortAsc());
        c.SortButtonTapped();
        QVERIFY(!c.sortAsc());
        c.rowSelected(0); // nothing to open
        c.deleteRow(0);
        QVERIFY(c.lastAlertTitle().isEmpty());
    }

    void deleteWhileSearchingDeletesTheShownEntry()
    {
        Vinyl v = m_app->addVinyl(u"Kind of Blue"_s);
        v.vinylCondition = u"Good"_s;
        QVERIFY(m_app->store().update(v).ok());
        VinylConditionTableViewController c(&m_app->app());
        QAbstractItemModelTester tester(c.model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        c.setSearchText(u"oo"_s);
        c.deleteRow(0);
        QCOMPARE(stored(Entity::VinylCondition), (QStringList{u"Mint"_s, u"Very Fine/Near Mint"_s}));
        QCOMPARE(c.model()->rowCount(), 0);
        // Records keep their condition text.
        const auto kept = m_app->store().vinylByRowId(v.rowId);
        QCOMPARE(text(kept->value().vinylCondition), u"Good"_s);
    }

    void editRenamesEveryEntryWithTheOldText_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QStringList>("after");
        QTest::addRow("renamed and trimmed") << u" Near Mint "_s << QStringList{u"Good"_s, u"Near Mint"_s, u"Near Mint"_s, u"Very Fine/Near Mint"_s};
        QTest::addRow("emptied") << QString() << QStringList{QString(), QString(), u"Good"_s, u"Very Fine/Near Mint"_s};
        QTest::addRow("no duplicate check") << u"Good"_s << QStringList{u"Good"_s, u"Good"_s, u"Good"_s, u"Very Fine/Near Mint"_s};
    }
    void editRenamesEveryEntryWithTheOldText()
    {
        QFETCH(QString, typed);
        QFETCH(QStringList, after);
        seed(Entity::VinylCondition, {u"Mint"_s});
        VinylConditionTableViewController list(&m_app->app());
        QCOMPARE(shown(list).at(1), u"Mint"_s);
        list.rowSelected(1);
        QCOMPARE(m_app->app().state()->originScreen(), u"Menu"_s);
        EditVinylConditionViewController c(&m_app->app());
        QCOMPARE(c.title(), u"Edit Condition"_s);
        QCOMPARE(c.condition(), u"Mint"_s);
        c.setCondition(typed);
        c.SaveCondition();
        QVERIFY(c.lastAlertTitle().isEmpty());
        QCOMPARE(stored(Entity::VinylCondition), after);
        QCOMPARE(stored(Entity::CoverCondition), QStringList{u"Worn"_s});
    }
};

QTEST_MAIN(TestConditionLists)
#include "tst_conditionlists.moc"
