#include "valuation.h"

#include "appconfig.h"
#include "formatters.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace Valuation {

QString searchAddress(const QString &artist, const QString &name)
{
    QString address = AppConfig::webSearchBase + u"what is a "_s + artist + u' ' + QString(name).replace(u'&', u"and"_s)
                      + u" vinyl record album worth"_s;
    address.replace(u' ', u'+');
    address.replace(u"++"_s, u"+"_s);
    address.remove(QChar(0x2019));
    return address;
}

bool acceptsTyped(const QString &replacement)
{
    return std::all_of(replacement.cbegin(), replacement.cend(),
                       [](QChar c) { return c == u'.' || (c >= u'0' && c <= u'9'); });
}

std::optional<float> parseNewValue(QString text)
{
    text.remove(u'$');
    bool ok = false;
    const float value = text.trimmed().toFloat(&ok);
    if (!ok || !std::isfinite(value))
        return std::nullopt;
    return value;
}

Totals totals(const QList<Vinyl> &records)
{
    Totals sum;
    for (const Vinyl &vinyl : records) {
        sum.copies += number(vinyl.quantity);
        sum.value += double(number(vinyl.quantity)) * double(number(vinyl.value));
    }
    return sum;
}

QString copiesText(const Totals &totals)
{
    return QString::number(totals.copies);
}

QString valueText(const Totals &totals)
{
    return Formatters::currencyOrZero(totals.value);
}

RowTexts rowTexts(const Vinyl &vinyl)
{
    RowTexts texts;
    texts.name = u"Name: "_s + text(vinyl.name);
    texts.artist = u"Artist: "_s + text(vinyl.artist);
    texts.recordLabel = u"Record Label: "_s + text(vinyl.recordLabel);
    texts.released =
        u"Date Released: "_s + (vinyl.releaseDate ? Formatters::monthYear(*vinyl.releaseDate) : u"N/A"_s);
    texts.value = u"Value: "_s + Formatters::currencyOrZero(double(number(vinyl.value)));
    return texts;
}

} // namespace Valuation
