#include "shell/desktopscheme.h"
#include "shell/theme.h"

#include <QDBusVariant>
#include <QGuiApplication>
#include <QMetaEnum>
#include <QPalette>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(std::optional<bool>)

namespace {

// WCAG 2.1 relative luminance of an opaque sRGB colour.
double luminance(const QColor &color)
{
    const auto channel = [](double c) { return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * channel(color.redF()) + 0.7152 * channel(color.greenF()) + 0.0722 * channel(color.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const double la = luminance(a);
    const double lb = luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

QString roleName(Theme::Role role)
{
    return QString::fromLatin1(QMetaEnum::fromType<Theme::Role>().valueToKey(role));
}

QPalette paletteWithWindow(const QColor &window)
{
    QPalette palette;
    palette.setColor(QPalette::Window, window);
    return palette;
}

} // namespace

class PaletteTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // The desktop's own choice must not reach the test: no session bus is asked.
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
        qputenv("XDG_RUNTIME_DIR", m_runtime.path().toLocal8Bit());
    }

    void everyTextIsReadableOnItsBackground_data()
    {
        QTest::addColumn<QColor>("foreground");
        QTest::addColumn<QColor>("background");
        QTest::addColumn<double>("minimum");
        for (const bool dark : {false, true}) {
            for (const Theme::ContrastPair &pair : Theme::contrastPairs()) {
                const QString name = u"%1: %2 on %3"_s.arg(dark ? u"dark"_s : u"light"_s, roleName(pair.foreground),
                                                          roleName(pair.background));
                QTest::newRow(qPrintable(name)) << Theme::color(pair.foreground, dark)
                                                << Theme::color(pair.background, dark) << pair.minimum;
            }
        }
    }
    void everyTextIsReadableOnItsBackground()
    {
        QFETCH(QColor, foreground);
        QFETCH(QColor, background);
        QFETCH(double, minimum);
        // A see-through colour has no contrast of its own: every pair is opaque.
        QCOMPARE(foreground.alpha(), 255);
        QCOMPARE(background.alpha(), 255);
        const double ratio = contrast(foreground, background);
        QVERIFY2(ratio >= minimum, qPrintable(u"%1 on %2: %3:1, needs %4:1"_s.arg(foreground.name(), background.name())
                                                  .arg(ratio, 0, 'f', 2)
                                                  .arg(minimum)));
    }

    // A button under the pointer, and held down, must look it on every fill, light or dark.
    void hoverAndPressShowOnEveryButtonFill()
    {
        for (const bool dark : {false, true}) {
            for (const Theme::Role fill : {Theme::Surface, Theme::Card, Theme::SuccessFill, Theme::DangerFill,
                                           Theme::SelectedCard, Theme::WarningFill}) {
                const QColor plain = Theme::color(fill, dark);
                const QColor hovered = Theme::tinted(plain, Theme::color(Theme::HoverTint, dark));
                const QColor pressed = Theme::tinted(plain, Theme::color(Theme::PressTint, dark));
                const QString name = roleName(fill) + (dark ? u" (dark)"_s : u" (light)"_s);
                QVERIFY2(contrast(plain, hovered) >= 1.1, qPrintable(name));
                QVERIFY2(contrast(hovered, pressed) >= 1.1, qPrintable(name));
            }
        }
    }

    // A role left out of the colour table would read as transparent black.
    void everyRoleHasBothVariants()
    {
        const QList<Theme::Role> seeThrough = {Theme::NoFill,    Theme::CoverBackdrop, Theme::PickerBand,
                                               Theme::HoverTint, Theme::PressTint,     Theme::Scrim};
        for (int r = 0; r < Theme::RoleCount; ++r) {
            const auto role = static_cast<Theme::Role>(r);
            if (seeThrough.contains(role))
                continue;
            QVERIFY2(Theme::color(role, false).alpha() == 255 && Theme::color(role, true).alpha() == 255,
                     qPrintable(roleName(role)));
        }
        // The dark variant is a scheme of its own, not the light one with another window.
        QVERIFY(luminance(Theme::color(Theme::Window, true)) < 0.02);
        QVERIFY(luminance(Theme::color(Theme::Text, true)) > 0.6);
        QCOMPARE(Theme::color(Theme::Paper, true), QColor(Qt::white)); // printed pages stay white
    }

    void portalAnswers_data()
    {
        QTest::addColumn<QVariant>("answer");
        QTest::addColumn<std::optional<bool>>("dark");
        QTest::newRow("dark") << QVariant(1u) << std::optional<bool>(true);
        QTest::newRow("light") << QVariant(2u) << std::optional<bool>(false);
        QTest::newRow("no preference") << QVariant(0u) << std::optional<bool>();
        QTest::newRow("unknown value") << QVariant(3u) << std::optional<bool>();
        QTest::newRow("not a number") << QVariant(u"dark"_s) << std::optional<bool>();
        QTest::newRow("in a variant") << QVariant::fromValue(QDBusVariant(1u)) << std::optional<bool>(true);
        QTest::newRow("in two variants")
            << QVariant::fromValue(QDBusVariant(QVariant::fromValue(QDBusVariant(2u)))) << std::optional<bool>(false);
    }
    void portalAnswers()
    {
        QFETCH(QVariant, answer);
        QFETCH(std::optional<bool>, dark);
        QCOMPARE(DesktopScheme::darkFromPortal(answer), dark);
    }

    void choiceAndDesktopPickTheVariant_data()
    {
        QTest::addColumn<Theme::Choice>("choice");
        QTest::addColumn<bool>("desktopDark");
        QTest::addColumn<bool>("dark");
        QTest::newRow("light on a dark desktop") << Theme::Choice::Light << true << false;
        QTest::newRow("dark on a light desktop") << Theme::Choice::Dark << false << true;
        QTest::newRow("as a dark desktop") << Theme::Choice::Desktop << true << true;
        QTest::newRow("as a light desktop") << Theme::Choice::Desktop << false << false;
    }
    void choiceAndDesktopPickTheVariant()
    {
        QFETCH(Theme::Choice, choice);
        QFETCH(bool, desktopDark);
        QFETCH(bool, dark);
        const QPalette before = QGuiApplication::palette();
        Theme theme(nullptr);
        theme.setChoice(choice);
        // Without a portal the platform palette speaks for the desktop, and is followed when it
        // changes while the app runs.
        QGuiApplication::setPalette(paletteWithWindow(desktopDark ? QColor(0x20, 0x20, 0x20) : QColor(0xf0, 0xf0, 0xf0)));
        QTRY_COMPARE(theme.dark(), dark);
        QCOMPARE(theme.text(), Theme::color(Theme::Text, dark));
        QCOMPARE(Theme::darkInUse(), dark);
        QGuiApplication::setPalette(before);
    }

private:
    QTemporaryDir m_runtime;
};

QTEST_MAIN(PaletteTest)
#include "tst_palette.moc"
