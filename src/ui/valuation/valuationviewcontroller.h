#pragma once

#include "collection/valuation.h"
#include "shell/screencontroller.h"
#include "valuation/valuationrowmodel.h"

#include <QRegularExpression>

// The collection's worth: every record with its value, the copies held and their total
// value, three web look-ups for the picked album and a new value saved to every record of
// the same name, artist and label.
class ValuationViewController : public ScreenController
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(ValuationRowModel *model READ model CONSTANT)
    Q_PROPERTY(QString quantityText READ quantityText NOTIFY totalsChanged)
    Q_PROPERTY(QString totalValueText READ totalValueText NOTIFY totalsChanged)
    Q_PROPERTY(QString nameText READ nameText WRITE setNameText NOTIFY nameTextChanged)
    Q_PROPERTY(QString newValueText READ newValueText WRITE setNewValueText NOTIFY newValueTextChanged)
    Q_PROPERTY(bool saveEnabled READ saveEnabled NOTIFY selectionChanged)
    Q_PROPERTY(int selectedRow READ selectedRow NOTIFY selectionChanged)
    // When the picked record was last given a value: "Last valued Mar 5, 2024", "" before a pick.
    Q_PROPERTY(QString lastQuoteText READ lastQuoteText NOTIFY selectionChanged)
    // What typing into the new value may leave in it: digits and the locale's separators.
    Q_PROPERTY(QRegularExpression typedValuePattern READ typedValuePattern CONSTANT)

public:
    explicit ValuationViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);

    [[nodiscard]] ValuationRowModel *model() { return &m_model; }
    [[nodiscard]] QString quantityText() const { return Valuation::copiesText(m_totals); }
    [[nodiscard]] QString totalValueText() const { return Valuation::valueText(m_totals); }
    [[nodiscard]] QString nameText() const { return m_nameText; }
    void setNameText(const QString &text);
    [[nodiscard]] QString newValueText() const { return m_newValueText; }
    void setNewValueText(const QString &text);
    [[nodiscard]] bool saveEnabled() const { return m_selectedRow >= 0; }
    [[nodiscard]] int selectedRow() const { return m_selectedRow; }
    [[nodiscard]] QString lastQuoteText() const { return m_lastQuoteText; }
    [[nodiscard]] static QRegularExpression typedValuePattern();

    Q_INVOKABLE void rowSelected(int row);
    Q_INVOKABLE void FindValueOnWeb();
    Q_INVOKABLE void PopsikePriceGuide();
    Q_INVOKABLE void ValueYourMusicPriceGuide();
    Q_INVOKABLE void SaveNewCardButtonClicked();
    // Shares the count and total value as text, where the device can send text messages.
    Q_INVOKABLE void shareButtonClicked();

    // Totals the copies and their value, and lists the records by name.
    void loadTotals();

signals:
    void totalsChanged();
    void nameTextChanged();
    void newValueTextChanged();
    void selectionChanged();

protected:
    void viewDidLoad() override;

private:
    void openPage(const QString &address);
    void readLastQuote();

    ValuationRowModel m_model;
    Valuation::Totals m_totals;
    QString m_nameText;
    QString m_newValueText;
    int m_selectedRow = -1;
    qint64 m_selectedRowId = 0;
    QString m_lastQuoteText;
    // The record a new value goes to: the last picked row that had all three.
    QString m_recordName;
    QString m_artistName;
    QString m_recordLabel;
};
