#include "decimalvalue.h"

#include <algorithm>

namespace {
constexpr std::int64_t kOne = 1'000'000'000; // billionths in a unit

// Billionths in one unit of a place: 10^(9 - places).
std::int64_t unitOf(int places)
{
    std::int64_t unit = kOne;
    for (int p = 0; p < places && unit > 1; ++p)
        unit /= 10;
    return unit;
}

bool isDigit(QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); }
} // namespace

DecimalValue DecimalValue::fromText(const QString& text)
{
    int i = 0;
    const int n = text.size();
    while (i < n && (text[i] == QLatin1Char(' ') || text[i] == QLatin1Char('\t')))
        ++i;
    bool negative = false;
    if (i < n && (text[i] == QLatin1Char('-') || text[i] == QLatin1Char('+'))) {
        negative = text[i] == QLatin1Char('-');
        ++i;
    }
    std::int64_t whole = 0;
    for (; i < n && isDigit(text[i]); ++i)
        whole = std::min(whole * 10 + text[i].digitValue(), kLargestWhole);
    std::int64_t fraction = 0;
    if (i < n && text[i] == QLatin1Char('.')) {
        std::int64_t place = kOne / 10;
        for (++i; i < n && isDigit(text[i]); ++i) {
            fraction += text[i].digitValue() * place;
            place /= 10;
        }
    }
    const std::int64_t value = whole * kOne + fraction;
    return DecimalValue(negative ? -value : value);
}

QString DecimalValue::toText() const
{
    const std::int64_t magnitude = m_billionths < 0 ? -m_billionths : m_billionths;
    QString text = QString::number(magnitude / kOne);
    QString fraction = QString::number(magnitude % kOne).rightJustified(kPlaces, QLatin1Char('0'));
    while (fraction.endsWith(QLatin1Char('0')))
        fraction.chop(1);
    if (!fraction.isEmpty())
        text += QLatin1Char('.') + fraction;
    return m_billionths < 0 ? QLatin1Char('-') + text : text;
}

DecimalValue DecimalValue::fromUnits(std::int64_t count, int places)
{
    return DecimalValue(count * unitOf(places));
}

QString DecimalValue::toFixed(int places) const
{
    const std::int64_t magnitude = truncated(places).m_billionths;
    const std::int64_t whole = (magnitude < 0 ? -magnitude : magnitude) / kOne;
    QString text = QString::number(whole);
    if (places > 0) {
        const std::int64_t part = (magnitude < 0 ? -magnitude : magnitude) % kOne / unitOf(places);
        text += QLatin1Char('.') + QString::number(part).rightJustified(places, QLatin1Char('0'));
    }
    return magnitude < 0 ? QLatin1Char('-') + text : text;
}

DecimalValue DecimalValue::truncated(int places) const
{
    const std::int64_t unit = unitOf(places);
    return DecimalValue(m_billionths / unit * unit);
}

DecimalValue DecimalValue::rounded(int places) const
{
    const std::int64_t unit = unitOf(places);
    const std::int64_t magnitude = (m_billionths < 0 ? -m_billionths : m_billionths) + unit / 2;
    const std::int64_t result = magnitude / unit * unit;
    return DecimalValue(m_billionths < 0 ? -result : result);
}

int DecimalValue::digitAt(int place) const
{
    const std::int64_t magnitude = m_billionths < 0 ? -m_billionths : m_billionths;
    return int(magnitude / unitOf(place) % 10);
}
