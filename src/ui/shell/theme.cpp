#include "shell/theme.h"

#include "shell/desktopscheme.h"

#include <QCoreApplication>
#include <QJSEngine>
#include <QPointer>

#include <array>
#include <atomic>

using namespace Qt::StringLiterals;

namespace {

struct Variants
{
    QRgb light;
    QRgb dark;
};

// In the order of Theme::Role. The light variant keeps the app's first colours where they were
// readable; the dark one is a dark scheme of its own (light text on near-black, softer accents),
// not the light one turned over.
constexpr std::array<Variants, Theme::RoleCount> kColors = {{
    {0xffffffff, 0xff121212}, // Window
    {0xfff7f7f7, 0xff1e1e1e}, // Toolbar
    {0xff111111, 0xffececec}, // ToolbarText
    {0xff212121, 0xffe6e6e6}, // Text
    {0xff555555, 0xffb0b0b0}, // SecondaryText
    {0xff767676, 0xff969696}, // CaptionText
    {0xffffffff, 0xff1e1e1e}, // Surface
    {0xffffffff, 0xff1a1a1a}, // Field
    {0xff8f8f8f, 0xff7a7a7a}, // FieldBorder
    {0xffd0d0d0, 0xff3d3d3d}, // Border
    {0xffe2e2e2, 0xff2e2e2e}, // Divider
    {0xffe6f5f5, 0xff1b2a2b}, // Card
    {0xffd9e7e7, 0xff243738}, // CardHover
    {0xff000000, 0xff5c6e70}, // CardBorder
    {0xffe6e6e6, 0xff2a2a2a}, // HeaderFill
    {0xffc40000, 0xffff8a80}, // Attention
    {0xff1976d2, 0xff64b5f6}, // Accent
    {0xffffffff, 0xff0b1e33}, // OnAccent
    {0xff1976d2, 0xff64b5f6}, // FocusRing
    {0xffd6e8fb, 0xff1d3b5c}, // Selection
    {0xfff7f7f7, 0xff181818}, // RowAlternate
    {0xffeef4fb, 0xff1c2630}, // RowHover
    {0x405cd8ff, 0x3864b5f6}, // PickerBand
    {0xffb3261e, 0xfff2b8b5}, // Danger
    {0xfffbe9e7, 0xff3a1f1d}, // DangerFill
    {0xffe0302a, 0xffb3261e}, // DeleteFill
    {0xffffffff, 0xffffffff}, // OnDelete
    {0xff1b7f3b, 0xff81c995}, // Success
    {0xffc9ecd2, 0xff1f3d29}, // SuccessFill
    {0xffd0d0d0, 0xff333333}, // DisabledFill
    {0xffd8f0dd, 0xff22402c}, // SelectedCard
    {0xff1f7a3a, 0xff81c995}, // SelectedCardBorder
    {0xff1f5fbf, 0xff8ab4f8}, // Info
    {0xfffff1d6, 0xff3d2e12}, // WarningFill
    {0xff7a4100, 0xffffd59a}, // WarningText
    {0xffe0a040, 0xffa8741f}, // WarningBorder
    {0xff37474f, 0xff455a64}, // LoanBand
    {0xffb3261e, 0xffb3261e}, // OverdueBand
    {0xffffffff, 0xffffffff}, // OnBand
    {0xff1e88e5, 0xff64b5f6}, // ChartCount
    {0xff43a047, 0xff81c784}, // ChartAmount
    {0xff2e7d32, 0xff81c995}, // ChartLine
    {0xff333333, 0xffcfcfcf}, // ChartLabel
    {0xffe0e0e0, 0xff333333}, // ChartGrid
    {0xff8c8c8c, 0xff6e6e6e}, // ChartAxis
    {0xffffffff, 0xffffffff}, // Paper
    {0xffb0b0b0, 0xff5a5a5a}, // PaperBorder
    {0xff000000, 0xff000000}, // Viewfinder
    {0xffffffff, 0xffffffff}, // OnViewfinder
    {0x00000000, 0x00000000}, // NoFill
    {0x00000000, 0xff3a3a3a}, // CoverBackdrop
    {0x14000000, 0x24ffffff}, // HoverTint
    {0x29000000, 0x3dffffff}, // PressTint
    {0x66000000, 0xa6000000}, // Scrim
}};

const std::array<QRgb, 5> kSeriesLight = {0xff209fdf, 0xff99ca53, 0xfff6a625, 0xff6d5fd5, 0xffbf593e};
const std::array<QRgb, 5> kSeriesDark = {0xff64b5f6, 0xffaed581, 0xffffb74d, 0xff9fa8da, 0xffe57373};

std::atomic<bool> s_darkInUse = false;

} // namespace

QList<Theme::ContrastPair> Theme::contrastPairs()
{
    constexpr double kText = 4.5;
    constexpr double kLarge = 3.0;
    return {
        {Text, Window, kText},
        {Text, Surface, kText},
        {Text, Field, kText},
        {Text, Card, kText},
        {Text, CardHover, kText},
        {Text, Selection, kText},
        {Text, RowAlternate, kText},
        {Text, RowHover, kText},
        {Text, HeaderFill, kText},
        {Text, DangerFill, kText},
        {Text, WarningFill, kText},
        {Text, SuccessFill, kText},
        {Text, SelectedCard, kText},
        {ToolbarText, Toolbar, kText},
        {SecondaryText, Window, kText},
        {SecondaryText, Surface, kText},
        {SecondaryText, Card, kText},
        {SecondaryText, WarningFill, kText},
        {CaptionText, Window, kText},
        {CaptionText, Surface, kText},
        {Attention, HeaderFill, kText},
        {Attention, Window, kText},
        {Danger, Window, kText},
        {Danger, Card, kText},
        {Danger, DangerFill, kText},
        {Success, Window, kText},
        {Success, Card, kText},
        {Info, Window, kText},
        {Info, Card, kText},
        {WarningText, WarningFill, kText},
        {OnAccent, Accent, kText},
        {OnDelete, DeleteFill, kText},
        {OnBand, LoanBand, kText},
        {OnBand, OverdueBand, kText},
        {ChartLabel, Window, kText},
        {OnViewfinder, Viewfinder, kText},
        {Accent, Window, kLarge},
        {FocusRing, Window, kLarge},
        {FocusRing, Card, kLarge},
        {FieldBorder, Field, kLarge},
        {CardBorder, Window, kLarge},
        {Attention, Surface, kLarge},
        {ChartCount, Window, kLarge},
        {ChartAmount, Window, kLarge},
        {ChartLine, Window, kLarge},
        {SelectedCardBorder, Window, kLarge},
    };
}

QColor Theme::color(Role role, bool dark)
{
    if (role < 0 || role >= RoleCount)
        return {};
    const Variants &v = kColors[role];
    return QColor::fromRgba(dark ? v.dark : v.light);
}

QVariantList Theme::chartSeries(bool dark)
{
    QVariantList colors;
    for (QRgb rgb : dark ? kSeriesDark : kSeriesLight)
        colors.append(QColor::fromRgba(rgb));
    return colors;
}

QString Theme::choiceKey(Choice choice)
{
    switch (choice) {
    case Choice::Light:
        return u"light"_s;
    case Choice::Dark:
        return u"dark"_s;
    case Choice::Desktop:
        break;
    }
    return u"desktop"_s;
}

Theme::Choice Theme::choiceFromKey(const QString &key)
{
    if (key == u"light"_s)
        return Choice::Light;
    if (key == u"dark"_s)
        return Choice::Dark;
    return Choice::Desktop;
}

QColor Theme::tinted(const QColor &fill, const QColor &tint)
{
    const double a = tint.alphaF();
    const auto mix = [a](double under, double over) { return under * (1 - a) + over * a; };
    return QColor::fromRgbF(float(mix(fill.redF(), tint.redF())), float(mix(fill.greenF(), tint.greenF())),
                            float(mix(fill.blueF(), tint.blueF())), fill.alphaF());
}

bool Theme::darkInUse()
{
    return s_darkInUse;
}

Theme::Theme(QObject *parent) : QObject(parent), m_desktop(new DesktopScheme(this))
{
    connect(m_desktop, &DesktopScheme::changed, this, &Theme::update);
    update();
}

Theme::~Theme() = default;

Theme *Theme::instance()
{
    static QPointer<Theme> s_instance;
    if (!s_instance)
        s_instance = new Theme(QCoreApplication::instance());
    return s_instance;
}

Theme *Theme::create(QQmlEngine *, QJSEngine *)
{
    Theme *theme = instance();
    QJSEngine::setObjectOwnership(theme, QJSEngine::CppOwnership);
    return theme;
}

void Theme::setChoice(Choice choice)
{
    m_choice = choice;
    update();
}

void Theme::update()
{
    const bool dark = m_choice == Choice::Dark || (m_choice == Choice::Desktop && m_desktop->dark());
    s_darkInUse = dark;
    if (dark == m_dark)
        return;
    m_dark = dark;
    emit changed();
}
