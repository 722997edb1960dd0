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
    // `count` units of the given place: fromUnits(345, 2) is 3.45,
    // fromUnits(7, 0) is 7 (places 0..9).
    static DecimalValue fromUnits(std::int64_t count, int places);
    // The shortest text of the value: "3.47", "3", "-0.5", "0".
    QString toText() const;
    // The value written with exactly `places` places, dropping any further
    // digits: "3.40" for 3.4 with 2, "5" for 5 with 0.
    QString toFixed(int places) const;
    // The value cut after `places` places (towards zero), and rounded to
    // them with a half rounded up, away from zero: 2.5 to 0 places is 3.
    DecimalValue truncated(int places) const;
    DecimalValue rounded(int places) const;
    // The digit at a place after the point (1 the tenths, 2 the hundredths).
    int digitAt(int place) const;

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
