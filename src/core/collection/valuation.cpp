#include "collection/valuation.h"

#include "store/appconfig.h"
#include "store/formatters.h"
#include "store/translations.h"

#include <QUrl>

#include <cmath>

using namespace Qt::StringLiterals;

namespace Valuation {

QString searchAddress(const QString &artist, const QString &name)
{
    QString query = u"what is a "_s + artist + u' ' + QString(name).replace(u'&', u"and"_s)
                    + u" vinyl record album worth"_s;
    query.remove(QChar(0x2019));
    QString address = AppConfig::webSearchBase + QString::fromLatin1(QUrl::toPercentEncoding(query, " "));
    address.replace(u' ', u'+');
    address.replace(u"++"_s, u"+"_s);
    return address;
}

QString lastQuoteText(const std::optional<QDateTime> &lastQuoted)
{
    return lastQuoted ? translated(kLastValued).arg(Formatters::mediumDate(*lastQuoted)) : kNotValuedYet;
}

std::optional<float> parseNewValue(const QString &text)
{
    const auto value = Formatters::parseAmount(text);
    if (!value || !std::isfinite(float(*value)))
        return std::nullopt;
    return float(*value);
}

QString copiesText(const Totals &totals)
{
    return QString::number(totals.copies);
}

QString valueText(const Totals &totals)
{
    return Formatters::currencyOrZero(totals.value);
}

QString shareText(const Totals &totals)
{
    return translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Records held: %1\nTotal value: %2\n")))
        .arg(copiesText(totals), valueText(totals));
}

RowTexts rowTexts(const Vinyl &vinyl, const RecordCaptions &captions)
{
    RowTexts texts;
    texts.name = captions.name + text(vinyl.name);
    texts.artist = captions.artist + text(vinyl.artist);
    texts.recordLabel = captions.recordLabel + text(vinyl.recordLabel);
    texts.released = captions.dateReleased
        + (vinyl.releaseDate ? Formatters::monthYear(*vinyl.releaseDate) : captions.notAvailable);
    texts.value = captions.value + Formatters::currencyOrZero(double(number(vinyl.value)));
    return texts;
}

} // namespace Valuation
