#pragma once
// The value of a number on the ordering board, read exactly from its
// caption: "3.472" is 3 and 472 thousandths, with "." the point whatever
// language the desktop uses. An empty caption is 0. The value is kept as a
// whole number of billionths, so two captions compare without rounding.
#include <QString>
#include <cstdint>

class DecimalValue {
public:
    DecimalValue() = default;

    // Reads a caption the way a number is read from text: leading blanks, an
    // optional sign, digits, "." and digits; reading stops at the first other
    // character, and text with no digits is 0. Places beyond the ninth are
    // dropped; whole parts beyond 999,999,999 are held at that.
    static DecimalValue fromText(const QString& text);
    // The shortest text of the value: "3.47", "3", "-0.5", "0".
    QString toText() const;

    bool isZero() const { return m_billionths == 0; }
    std::int64_t billionths() const { return m_billionths; }

    friend bool operator==(DecimalValue a, DecimalValue b) { return a.m_billionths == b.m_billionths; }
    friend bool operator!=(DecimalValue a, DecimalValue b) { return !(a == b); }
    friend bool operator<(DecimalValue a, DecimalValue b) { return a.m_billionths < b.m_billionths; }
    friend bool operator>(DecimalValue a, DecimalValue b) { return b < a; }
    friend bool operator<=(DecimalValue a, DecimalValue b) { return !(b < a); }
    friend bool operator>=(DecimalValue a, DecimalValue b) { return !(a < b); }

    static constexpr int kPlaces = 9;
    static constexpr std::int64_t kLargestWhole = 999'999'999;

private:
    explicit DecimalValue(std::int64_t billionths) : m_billionths(billionths) {}
    std::int64_t m_billionths = 0;
};

// The value of a caption: the board's one way of reading a number.
inline DecimalValue valueOf(const QString& caption) { return DecimalValue::fromText(caption); }
