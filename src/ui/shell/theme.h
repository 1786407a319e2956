#pragma once

#include <QColor>
#include <QList>
#include <QObject>
#include <QString>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

class DesktopScheme;
class QJSEngine;
class QQmlEngine;

// The colours of every screen, by what they are for, in a light and a dark variant. The choice
// (light, dark or as the desktop) picks the variant; as the desktop, it follows the desktop while
// the app runs. QML takes every colour from here (the Theme singleton), and so do the Material
// controls: a screen's own QML names no colour.
class Theme : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool dark READ dark NOTIFY changed)
    Q_PROPERTY(QColor window READ window NOTIFY changed)
    Q_PROPERTY(QColor toolbar READ toolbar NOTIFY changed)
    Q_PROPERTY(QColor toolbarText READ toolbarText NOTIFY changed)
    Q_PROPERTY(QColor text READ text NOTIFY changed)
    Q_PROPERTY(QColor secondaryText READ secondaryText NOTIFY changed)
    Q_PROPERTY(QColor captionText READ captionText NOTIFY changed)
    Q_PROPERTY(QColor surface READ surface NOTIFY changed)
    Q_PROPERTY(QColor field READ field NOTIFY changed)
    Q_PROPERTY(QColor fieldBorder READ fieldBorder NOTIFY changed)
    Q_PROPERTY(QColor border READ border NOTIFY changed)
    Q_PROPERTY(QColor divider READ divider NOTIFY changed)
    Q_PROPERTY(QColor card READ card NOTIFY changed)
    Q_PROPERTY(QColor cardHover READ cardHover NOTIFY changed)
    Q_PROPERTY(QColor cardBorder READ cardBorder NOTIFY changed)
    Q_PROPERTY(QColor headerFill READ headerFill NOTIFY changed)
    Q_PROPERTY(QColor attention READ attention NOTIFY changed)
    Q_PROPERTY(QColor accent READ accent NOTIFY changed)
    Q_PROPERTY(QColor onAccent READ onAccent NOTIFY changed)
    Q_PROPERTY(QColor focusRing READ focusRing NOTIFY changed)
    Q_PROPERTY(QColor selection READ selection NOTIFY changed)
    Q_PROPERTY(QColor rowAlternate READ rowAlternate NOTIFY changed)
    Q_PROPERTY(QColor rowHover READ rowHover NOTIFY changed)
    Q_PROPERTY(QColor pickerBand READ pickerBand NOTIFY changed)
    Q_PROPERTY(QColor danger READ danger NOTIFY changed)
    Q_PROPERTY(QColor dangerFill READ dangerFill NOTIFY changed)
    Q_PROPERTY(QColor deleteFill READ deleteFill NOTIFY changed)
    Q_PROPERTY(QColor onDelete READ onDelete NOTIFY changed)
    Q_PROPERTY(QColor success READ success NOTIFY changed)
    Q_PROPERTY(QColor successFill READ successFill NOTIFY changed)
    Q_PROPERTY(QColor disabledFill READ disabledFill NOTIFY changed)
    Q_PROPERTY(QColor selectedCard READ selectedCard NOTIFY changed)
    Q_PROPERTY(QColor selectedCardBorder READ selectedCardBorder NOTIFY changed)
    Q_PROPERTY(QColor info READ info NOTIFY changed)
    Q_PROPERTY(QColor warningFill READ warningFill NOTIFY changed)
    Q_PROPERTY(QColor warningText READ warningText NOTIFY changed)
    Q_PROPERTY(QColor warningBorder READ warningBorder NOTIFY changed)
    Q_PROPERTY(QColor loanBand READ loanBand NOTIFY changed)
    Q_PROPERTY(QColor overdueBand READ overdueBand NOTIFY changed)
    Q_PROPERTY(QColor onBand READ onBand NOTIFY changed)
    Q_PROPERTY(QColor chartCount READ chartCount NOTIFY changed)
    Q_PROPERTY(QColor chartAmount READ chartAmount NOTIFY changed)
    Q_PROPERTY(QColor chartLine READ chartLine NOTIFY changed)
    Q_PROPERTY(QColor chartLabel READ chartLabel NOTIFY changed)
    Q_PROPERTY(QColor chartGrid READ chartGrid NOTIFY changed)
    Q_PROPERTY(QColor chartAxis READ chartAxis NOTIFY changed)
    Q_PROPERTY(QColor paper READ paper NOTIFY changed)
    Q_PROPERTY(QColor paperBorder READ paperBorder NOTIFY changed)
    Q_PROPERTY(QColor viewfinder READ viewfinder NOTIFY changed)
    Q_PROPERTY(QColor onViewfinder READ onViewfinder NOTIFY changed)
    Q_PROPERTY(QColor noFill READ noFill NOTIFY changed)
    Q_PROPERTY(QColor scrim READ scrim NOTIFY changed)
    Q_PROPERTY(QColor coverBackdrop READ coverBackdrop NOTIFY changed)
    // The slices of a pie chart, in turn.
    Q_PROPERTY(QVariantList chartSeries READ chartSeries NOTIFY changed)

public:
    enum class Choice { Light, Dark, Desktop };
    Q_ENUM(Choice)

    enum Role {
        Window, // the background of every screen
        Toolbar, // the title bar
        ToolbarText, // titles and buttons on the title bar
        Text, // body text on any background below
        SecondaryText, // field labels, sources, explanations
        CaptionText, // section captions, hints and empty-list notes
        Surface, // boxes drawn over a screen: pickers, sheets, the progress panel, buttons
        Field, // the inside of a text field
        FieldBorder, // the edge of a text field
        Border, // the edge of a picker or sheet
        Divider, // lines between rows
        Card, // the rounded background of a list cell
        CardHover, // a list cell under the pointer
        CardBorder, // the edge of cards, buttons and panels
        HeaderFill, // the count line above a list and a table's column header
        Attention, // the count line, required fields and the menu button's edge
        Accent, // switches, the chosen day, links
        OnAccent, // text on the accent colour
        FocusRing, // the ring around the card or field with the keyboard focus
        Selection, // the current row of a table
        RowAlternate, // every other row of a table
        RowHover, // a table row under the pointer
        PickerBand, // the band of the chosen value in a date picker
        Danger, // overdue loans and problems
        DangerFill, // the card of an overdue loan
        DeleteFill, // the delete button a swipe opens
        OnDelete, // text on the delete button
        Success, // new records of an import, values
        SuccessFill, // the valuation's action button
        DisabledFill, // a button that cannot be pressed
        SelectedCard, // a chosen card of the valuation
        SelectedCardBorder, // the edge of a chosen card
        Info, // records an import updates
        WarningFill, // the read-only notice and wanted records of high priority
        WarningText, // text of the read-only notice
        WarningBorder, // the edge of the read-only notice
        LoanBand, // the band on the cover of a lent record
        OverdueBand, // the band on the cover of an overdue record
        OnBand, // text on the loan band
        ChartCount, // bars of counts
        ChartAmount, // bars of amounts
        ChartLine, // the value-history line
        ChartLabel, // axis labels and the labels of bars and slices
        ChartGrid, // grid lines of a chart
        ChartAxis, // the axis lines of a chart
        Paper, // a printed page in its preview: always white
        PaperBorder, // the edge of a page in the preview
        Viewfinder, // behind the camera picture
        OnViewfinder, // text over the camera picture
        NoFill, // the inside of a shape that is only an outline
        CoverBackdrop, // behind the drawn record of a record without a cover
        HoverTint, // laid over a button under the pointer: darker on light, lighter on dark
        PressTint, // laid over a button held down
        Scrim, // dims the screen behind a modal dialog
        RoleCount
    };
    Q_ENUM(Role)

    // A text (or icon) colour and the background it is shown on, with the least contrast ratio
    // it needs: 4.5 for text, 3 for large titles, icons and the edges of controls.
    struct ContrastPair
    {
        Role foreground;
        Role background;
        double minimum;
    };
    // Every pair the screens show, for both variants.
    [[nodiscard]] static QList<ContrastPair> contrastPairs();

    [[nodiscard]] static QColor color(Role role, bool dark);
    // fill with a translucent tint laid over it.
    [[nodiscard]] static QColor tinted(const QColor &fill, const QColor &tint);
    [[nodiscard]] static QVariantList chartSeries(bool dark);

    // The stored form of a choice ("light", "dark", "desktop") and back; anything else reads as
    // the desktop.
    [[nodiscard]] static QString choiceKey(Choice choice);
    [[nodiscard]] static Choice choiceFromKey(const QString &key);

    // Whether the dark variant is shown, for code off the UI thread (the cover pictures).
    [[nodiscard]] static bool darkInUse();

    // The user-defaults key of the choice: "light", "dark" or "desktop" (also when absent).
    static inline const QString kSettingsKey = QStringLiteral("Appearance");

    // Not default-constructible, so that QML takes the one theme from create() rather than
    // making one of its own.
    explicit Theme(QObject *parent);
    ~Theme() override;

    // The one theme of the window, which the QML singleton is too. The colours belong to the
    // program rather than to a collection: the app sets the choice its settings keep.
    [[nodiscard]] static Theme *instance();
    static Theme *create(QQmlEngine *, QJSEngine *);

    [[nodiscard]] Choice choice() const { return m_choice; }
    void setChoice(Choice choice);
    [[nodiscard]] bool dark() const { return m_dark; }

    [[nodiscard]] QColor color(Role role) const { return color(role, m_dark); }
    [[nodiscard]] QColor window() const { return color(Window); }
    [[nodiscard]] QColor toolbar() const { return color(Toolbar); }
    [[nodiscard]] QColor toolbarText() const { return color(ToolbarText); }
    [[nodiscard]] QColor text() const { return color(Text); }
    [[nodiscard]] QColor secondaryText() const { return color(SecondaryText); }
    [[nodiscard]] QColor captionText() const { return color(CaptionText); }
    [[nodiscard]] QColor surface() const { return color(Surface); }
    [[nodiscard]] QColor field() const { return color(Field); }
    [[nodiscard]] QColor fieldBorder() const { return color(FieldBorder); }
    [[nodiscard]] QColor border() const { return color(Border); }
    [[nodiscard]] QColor divider() const { return color(Divider); }
    [[nodiscard]] QColor card() const { return color(Card); }
    [[nodiscard]] QColor cardHover() const { return color(CardHover); }
    [[nodiscard]] QColor cardBorder() const { return color(CardBorder); }
    [[nodiscard]] QColor headerFill() const { return color(HeaderFill); }
    [[nodiscard]] QColor attention() const { return color(Attention); }
    [[nodiscard]] QColor accent() const { return color(Accent); }
    [[nodiscard]] QColor onAccent() const { return color(OnAccent); }
    [[nodiscard]] QColor focusRing() const { return color(FocusRing); }
    [[nodiscard]] QColor selection() const { return color(Selection); }
    [[nodiscard]] QColor rowAlternate() const { return color(RowAlternate); }
    [[nodiscard]] QColor rowHover() const { return color(RowHover); }
    [[nodiscard]] QColor pickerBand() const { return color(PickerBand); }
    [[nodiscard]] QColor danger() const { return color(Danger); }
    [[nodiscard]] QColor dangerFill() const { return color(DangerFill); }
    [[nodiscard]] QColor deleteFill() const { return color(DeleteFill); }
    [[nodiscard]] QColor onDelete() const { return color(OnDelete); }
    [[nodiscard]] QColor success() const { return color(Success); }
    [[nodiscard]] QColor successFill() const { return color(SuccessFill); }
    [[nodiscard]] QColor disabledFill() const { return color(DisabledFill); }
    [[nodiscard]] QColor selectedCard() const { return color(SelectedCard); }
    [[nodiscard]] QColor selectedCardBorder() const { return color(SelectedCardBorder); }
    [[nodiscard]] QColor info() const { return color(Info); }
    [[nodiscard]] QColor warningFill() const { return color(WarningFill); }
    [[nodiscard]] QColor warningText() const { return color(WarningText); }
    [[nodiscard]] QColor warningBorder() const { return color(WarningBorder); }
    [[nodiscard]] QColor loanBand() const { return color(LoanBand); }
    [[nodiscard]] QColor overdueBand() const { return color(OverdueBand); }
    [[nodiscard]] QColor onBand() const { return color(OnBand); }
    [[nodiscard]] QColor chartCount() const { return color(ChartCount); }
    [[nodiscard]] QColor chartAmount() const { return color(ChartAmount); }
    [[nodiscard]] QColor chartLine() const { return color(ChartLine); }
    [[nodiscard]] QColor chartLabel() const { return color(ChartLabel); }
    [[nodiscard]] QColor chartGrid() const { return color(ChartGrid); }
    [[nodiscard]] QColor chartAxis() const { return color(ChartAxis); }
    [[nodiscard]] QColor paper() const { return color(Paper); }
    [[nodiscard]] QColor paperBorder() const { return color(PaperBorder); }
    [[nodiscard]] QColor viewfinder() const { return color(Viewfinder); }
    [[nodiscard]] QColor onViewfinder() const { return color(OnViewfinder); }
    [[nodiscard]] QColor noFill() const { return color(NoFill); }
    [[nodiscard]] QColor coverBackdrop() const { return color(CoverBackdrop); }
    // A fill under the pointer, and held down: the tint of the variant laid over it.
    [[nodiscard]] Q_INVOKABLE QColor hovered(const QColor &fill) const { return tinted(fill, color(HoverTint)); }
    [[nodiscard]] Q_INVOKABLE QColor pressed(const QColor &fill) const { return tinted(fill, color(PressTint)); }
    [[nodiscard]] QColor scrim() const { return color(Scrim); }
    [[nodiscard]] QVariantList chartSeries() const { return chartSeries(m_dark); }

signals:
    // The variant changed: every colour may have.
    void changed();

private:
    void update();

    DesktopScheme *m_desktop = nullptr;
    Choice m_choice = Choice::Desktop;
    bool m_dark = false;
};
