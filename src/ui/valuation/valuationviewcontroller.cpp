#include "valuation/valuationviewcontroller.h"

#include "shell/appdelegate.h"
#include "shell/platformservices.h"
#include "collection/recordrows.h"
#include "store/appconfig.h"
#include "store/collectiontotals.h"
#include "store/formatters.h"
#include "store/logging.h"
#include "store/store.h"
#include "store/valuehistory.h"
#include "store/translations.h"

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
    // The totals come from the store in one pass; the rows are read as they are shown, by name.
    const Store &store = app()->persistentContainer();
    auto totals = collectionTotals(store);
    if (!totals)
        consoleLine(totals.errorMessage());
    m_totals = {totals ? totals->copies : 0, totals ? totals->value : 0};
    auto rows = FetchedRows::make(store, FetchRequest(Entity::Vinyl).onlyCardAttributes().sortedBy(u"name"_s));
    if (!rows)
        consoleLine(rows.errorMessage());
    auto shared = rows ? std::make_shared<FetchedRows>(std::move(*rows)) : nullptr;
    m_model.setRecords(shared ? shared->count() : 0, [this, shared](qint64 first, int n) {
        auto read = shared->read(first, n);
        if (!read)
            consoleLine(read.errorMessage());
        return read.valueOr({});
    });
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
    const std::optional<Vinyl> picked = m_model.record(row);
    if (!picked)
        return;
    const Vinyl &vinyl = *picked;
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
        showAlert(Valuation::kPageNotOpenedTitle, translated(Valuation::kNotAnAddressMessage).arg(address));
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
        showAlert(Valuation::kNotSavedTitle, translated(Valuation::kUnreadableValueMessage).arg(m_newValueText));
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
