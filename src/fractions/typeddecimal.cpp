#include "typeddecimal.h"

#include <QCoreApplication>

namespace TypedDecimal {

namespace {
constexpr QChar kPoint = u'.';
constexpr QChar kComma = u',';

QString message(const char* text)
{
    return QCoreApplication::translate("TypedDecimal", text);
}

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}
} // namespace

QString commaMessage()
{
    return message(QT_TRANSLATE_NOOP("TypedDecimal", "Type a point for a decimal, not a comma."));
}

Reading read(const QString& typed, int longest)
{
    Reading r;
    const QString text = typed.trimmed();
    int points = 0;
    int digits = 0;
    for (const QChar c : text) {
        if (c == kComma) {
            r.problem = commaMessage();
            return r;
        }
        if (c == kPoint)
            ++points;
        else if (isDigit(c))
            ++digits;
        else {
            r.problem = message(QT_TRANSLATE_NOOP("TypedDecimal", "Type only digits and a point."));
            return r;
        }
    }
    if (digits == 0) {
        r.problem = message(QT_TRANSLATE_NOOP("TypedDecimal", "Type a number in the box first!"));
        return r;
    }
    if (points > 1) {
        r.problem = message(QT_TRANSLATE_NOOP("TypedDecimal", "A number has only one point."));
        return r;
    }
    if (text.size() > longest) {
        r.problem = message(QT_TRANSLATE_NOOP("TypedDecimal", "That number is too long."));
        return r;
    }
    const int point = int(text.indexOf(kPoint));
    const int wholeDigits = point < 0 ? int(text.size()) : point;
    if (wholeDigits > 1 && text.front() == u'0') {
        r.problem = message(QT_TRANSLATE_NOOP("TypedDecimal", "Write the number without a 0 in front."));
        return r;
    }
    r.ok = true;
    r.value = DecimalValue::fromText(text);
    r.places = point < 0 ? 0 : int(text.size()) - point - 1;
    r.written = r.places == 0 && point >= 0 ? text.left(point) : text;
    return r;
}

} // namespace TypedDecimal
