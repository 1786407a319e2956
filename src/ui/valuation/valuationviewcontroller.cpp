#include "valuation/valuationviewcontroller.h"

#include "shell/appdelegate.h"
#include "shell/platformservices.h"
#include "store/appconfig.h"
#include "store/formatters.h"
#include "store/logging.h"
#include "store/store.h"
#include "store/valuehistory.h"

#include <QUrl>

using namespace Qt::StringLiterals;

ValuationViewController::ValuationViewController(AppDelegate *app, QObject *parent) : ScreenController(app, parent)
{
    loadIfReady();
}

void ValuationViewController::viewDidLoad()
{
    loadTotals();
}

QRegularExpression ValuationViewController::typedValuePattern()
{
    return QRegularExpression(u"["_s + QRegularExpression::escape(Formatters::numberFieldCharacters()) + u"]*"_s);
}

void ValuationViewController::loadTotals()
{
    if (!app())
        return;
    // A row shows only what a list card reads, so the fetch stays on the name index.
    auto fetched = app()->persistentContainer().fetchVinyl(
        FetchRequest(Entity::Vinyl).onlyCardAttributes().sortedBy(u"name"_s));
    QList<Vinyl> records;
    if (fetched)
        records = std::move(fetched).value();
    else
        consoleLine(fetched.errorMessage());
    m_totals = Valuation::totals(records);
    m_model.setRecords(std::move(records));
    emit totalsChanged();
}

void ValuationViewController::setNameText(const QString &text)
{
    if (text == m_nameText)
        return;
    m_nameText = text;
    emit nameTextChanged();
}

void ValuationViewController::setNewValueText(const QString &text)
{
    if (text == m_newValueText)
        return;
    m_newValueText = text;
    emit newValueTextChanged();
}

void ValuationViewController::rowSelected(int row)
{
    if (row < 0 || row >= m_model.records().size())
        return;
    const Vinyl &vinyl = m_model.records().at(row);
    setNameText(text(vinyl.name));
    if (vinyl.name && vinyl.recordLabel && vinyl.artist) {
        m_recordName = *vinyl.name;
        m_recordLabel = *vinyl.recordLabel;
        m_artistName = *vinyl.artist;
    }
    m_selectedRow = row;
    m_selectedRowId = vinyl.rowId;
    readLastQuote();
    emit selectionChanged();
}

void ValuationViewController::readLastQuote()
{
    if (!app())
        return;
    auto quotes = app()->persistentContainer().quotes(m_selectedRowId);
    if (!quotes)
        consoleLine(quotes.errorMessage());
    const QList<Quote> list = quotes.valueOr({});
    m_lastQuoteText = Valuation::lastQuoteText(list.isEmpty() ? std::nullopt : std::optional(list.first().quoted));
}

void ValuationViewController::FindValueOnWeb()
{
    if (m_nameText.isEmpty()) {
        showAlert(Valuation::kNoSearchTitle, Valuation::kNoSearchMessage);
        return;
    }
    openPage(Valuation::searchAddress(m_artistName, m_nameText));
}

void ValuationViewController::PopsikePriceGuide()
{
    openPage(AppConfig::popsikeHome);
}

void ValuationViewController::ValueYourMusicPriceGuide()
{
    openPage(AppConfig::valueYourMusicVinyl);
}

void ValuationViewController::openPage(const QString &address)
{
    const QUrl url(address, QUrl::StrictMode);
    if (!url.isValid() || url.scheme().isEmpty()) {
        showAlert(Valuation::kPageNotOpenedTitle, Valuation::kNotAnAddressMessage.arg(address));
        return;
    }
    if (app())
        app()->platform().openUrl(url);
}

void ValuationViewController::SaveNewCardButtonClicked()
{
    if (!app())
        return;
    if (m_newValueText.isEmpty()) {
        showAlert(Valuation::kNotSavedTitle, Valuation::kNoNewValueMessage);
        return;
    }
    // A value that does not read is said, and kept for correcting, rather than dropped.
    const std::optional<float> newValue = Valuation::parseNewValue(m_newValueText);
    if (!newValue) {
        showAlert(Valuation::kNotSavedTitle, Valuation::kUnreadableValueMessage.arg(m_newValueText));
        return;
    }
    Store &store = app()->persistentContainer();
    const QDateTime now = QDateTime::currentDateTime();
    auto saved = store.transaction([&]() -> Result<void> {
        auto matches = store.fetchVinyl(FetchRequest(Entity::Vinyl)
                                            .where(Predicate::equal(u"name"_s, m_recordName))
                                            .where(Predicate::equal(u"artist"_s, m_artistName))
                                            .where(Predicate::equal(u"recordLabel"_s, m_recordLabel)));
        if (!matches)
            return matches.error();
        for (Vinyl &vinyl : *matches) {
            const std::optional<float> before = vinyl.value;
            vinyl.value = newValue;
            // A valued record always counts at least once in the total.
            if (number(vinyl.quantity) == 0)
                vinyl.quantity = 1;
            if (auto r = store.update(vinyl); !r)
                return r;
            if (auto r = ValueHistory::noteSave(store, vinyl, before, QuoteSources::Valuation, now); !r)
                return r;
        }
        return {};
    });
    if (!saved) {
        showAlert(kStoreErrorTitle, saved.errorMessage());
        return;
    }
    (void)app()->saveContext();
    loadTotals();
    setNewValueText(QString());
    if (m_selectedRowId != 0) {
        readLastQuote();
        emit selectionChanged();
    }
}

void ValuationViewController::shareButtonClicked()
{
    if (!app())
        return;
    PlatformServices &platform = app()->platform();
    if (!platform.canSendText()) {
        showAlert(Valuation::kCantSendTextTitle, Valuation::kCantSendTextMessage);
        return;
    }
    ShareItems items;
    items.texts.append(Valuation::shareText(m_totals));
    platform.share(items);
}
