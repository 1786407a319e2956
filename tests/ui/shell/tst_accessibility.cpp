// Every screen the tour visits, as a screen reader and a keyboard meet it: each control says
// what it does, and Tab goes round all of them and back.
#include "tour.h"

#include <QAccessible>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
// What a person presses, types into, ticks or chooses from.
bool isControl(QAccessible::Role role)
{
    switch (role) {
    case QAccessible::Button:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::ComboBox:
    case QAccessible::SpinBox:
    case QAccessible::Slider:
    case QAccessible::EditableText:
    case QAccessible::ListItem:
    case QAccessible::PageTab:
    case QAccessible::MenuItem:
        return true;
    default:
        return false;
    }
}

QString describe(QObject *object)
{
    if (!object)
        return u"(no object)"_s;
    const QString text = object->property("text").toString();
    return u"%1 \"%2\" %3"_s.arg(object->objectName(), text, QString::fromLatin1(object->metaObject()->className()));
}

// A name a reader can say: a glyph such as "‹" or "✕" names nothing.
bool saysSomething(const QString &name)
{
    static const QRegularExpression letter(u"\\p{L}"_s);
    return name.contains(letter);
}

void walk(QAccessibleInterface *node, QStringList &unnamed, QList<QQuickItem *> &controls)
{
    if (!node || node->state().invisible)
        return;
    QObject *object = node->object();
    // A screen is a page, not a control.
    if (isControl(node->role()) && object && !object->inherits("QQuickPage")) {
        QString name = node->text(QAccessible::Name);
        // A button takes its text as its name when a reader is listening from the start; here the
        // reader comes later, so the text stands in for it.
        if (name.isEmpty() && object->inherits("QQuickAbstractButton"))
            name = object->property("text").toString();
        if (!saysSomething(name))
            unnamed.append(describe(object));
        auto *item = qobject_cast<QQuickItem *>(object);
        if (item && item->isEnabled() && node->role() != QAccessible::ListItem)
            controls.append(item);
    }
    // A combo box's text field is part of the box.
    if (node->role() == QAccessible::ComboBox)
        return;
    for (int i = 0; i < node->childCount(); ++i)
        walk(node->child(i), unnamed, controls);
}

// A control of a popup (a dialog, a sheet): while one is open, Tab stays in it.
bool inPopup(QQuickItem *item)
{
    for (; item; item = item->parentItem()) {
        if (item->inherits("QQuickPopupItem"))
            return true;
    }
    return false;
}

// The items Tab visits from the first one; false when it never comes back there.
bool tabRound(QQuickItem *first, QList<QQuickItem *> &visited)
{
    visited = {first};
    for (QQuickItem *item = first->nextItemInFocusChain(true); item != first; item = item->nextItemInFocusChain(true)) {
        if (!item || visited.contains(item))
            return false;
        visited.append(item);
    }
    return true;
}
} // namespace

class TestAccessibility : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyControlIsNamedAndTabReachesIt_data();
    void everyControlIsNamedAndTabReachesIt();

private:
    std::unique_ptr<TourApp> m_app;
    std::unique_ptr<TourContext> m_tour;
    QList<TourStep> m_steps = tourSteps();
};

void TestAccessibility::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    m_app = std::make_unique<TourApp>();
    QVERIFY2(m_app->errorMessage().isEmpty(), qPrintable(m_app->errorMessage()));
    QVERIFY(QTest::qWaitForWindowExposed(&m_app->window()));
    m_tour = std::make_unique<TourContext>(m_app->app(), m_app->window());
}

void TestAccessibility::everyControlIsNamedAndTabReachesIt_data()
{
    QTest::addColumn<int>("step");
    for (int i = 0; i < m_steps.size(); ++i)
        QTest::newRow(qPrintable(m_steps.at(i).fileName)) << i;
}

void TestAccessibility::everyControlIsNamedAndTabReachesIt()
{
    QFETCH(int, step);
    // A screen that warns has a binding that does not hold, such as a focus ring without its control.
    QTest::failOnWarning(QRegularExpression(u"\\.qml:\\d+"_s));
    m_steps.at(step).prepare(*m_tour);
    m_tour->settle();
    // Controls give themselves roles and names once a reader is listening.
    QAccessible::setActive(true);

    QStringList unnamed;
    QList<QQuickItem *> controls;
    walk(QAccessible::queryAccessibleInterface(&m_app->window()), unnamed, controls);
    QVERIFY2(unnamed.isEmpty(), qPrintable(u"without a name: "_s + unnamed.join(u"; "_s)));
    QVERIFY(!controls.isEmpty());
    if (std::any_of(controls.cbegin(), controls.cend(), inPopup))
        controls.removeIf([](QQuickItem *c) { return !inPopup(c); });

    const auto first = std::find_if(controls.cbegin(), controls.cend(), [](QQuickItem *c) { return c->activeFocusOnTab(); });
    QVERIFY2(first != controls.cend(), "no control takes the focus from Tab");
    QList<QQuickItem *> round;
    QVERIFY2(tabRound(*first, round), qPrintable(u"Tab is caught after "_s + describe(round.last())));
    QStringList skipped;
    for (QQuickItem *control : std::as_const(controls)) {
        if (!round.contains(control))
            skipped.append(describe(control));
    }
    QVERIFY2(skipped.isEmpty(), qPrintable(u"Tab never reaches: "_s + skipped.join(u"; "_s)));

    // A text area passes Tab on rather than typing it.
    for (QQuickItem *control : std::as_const(controls)) {
        if (!control->inherits("QQuickTextEdit") || !control->activeFocusOnTab())
            continue;
        control->forceActiveFocus(Qt::TabFocusReason);
        QTRY_VERIFY(control->hasActiveFocus());
        QTest::keyClick(&m_app->window(), Qt::Key_Tab);
        QVERIFY2(!control->hasActiveFocus(), qPrintable(u"Tab is typed into "_s + describe(control)));
    }
}

QTEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"
