#include "decimalvalue.h"

#include <algorithm>

namespace {
constexpr std::int64_t kOne = 1'000'000'000; // billionths in a unit

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
