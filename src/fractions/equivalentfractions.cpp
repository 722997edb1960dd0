#include "equivalentfractions.h"

#include "fraction.h"
#include "runtime/random.h"

#include <QCoreApplication>
#include <algorithm>

namespace Equivalent {

namespace {
QString fractionText(int top, int bottom)
{
    return QStringLiteral("%1/%2").arg(top).arg(bottom);
}

// A top 1..bottom-1 that makes top/bottom a fraction in lowest terms.
int lowestTermsTop(Random::Source& rnd, int bottom)
{
    int top = 0;
    do
        top = rnd.between(1, bottom - 1);
    while (!Fractions::inLowestTerms(top, bottom));
    return top;
}

bool inFirst(Blank place)
{
    return place == Blank::FirstTop || place == Blank::FirstBottom;
}

bool onTop(Blank place)
{
    return place == Blank::FirstTop || place == Blank::SecondTop;
}

// Addition trap: at most this much added to the top and the bottom.
constexpr int kLargestAdded = 3;
// The bottom-only trap multiplies by 2..4.
constexpr int kLargestBottomOnly = 4;
} // namespace

int Pair::number(Blank place) const
{
    const bool larger = inFirst(place) == largerFirst;
    const int n = onTop(place) ? top : bottom;
    return larger ? n * factor : n;
}

bool Pair::multiplying() const
{
    return inFirst(blank) == largerFirst;
}

QString Pair::text() const
{
    const auto at
        = [this](Blank place) { return place == blank ? QStringLiteral("?") : QString::number(number(place)); };
    return QStringLiteral("%1/%2 = %3/%4")
        .arg(at(Blank::FirstTop), at(Blank::FirstBottom), at(Blank::SecondTop), at(Blank::SecondBottom));
}

QString Pair::spoken() const
{
    const bool first = inFirst(blank);
    // The fraction without the blank, in words, and the other one's known number.
    const QString whole = first ? Fractions::words(number(Blank::SecondTop), number(Blank::SecondBottom))
                                : Fractions::words(number(Blank::FirstTop), number(Blank::FirstBottom));
    switch (blank) {
    case Blank::SecondTop:
        return QCoreApplication::translate("Equivalent", "%1 equals how many %2?")
            .arg(whole, Fractions::partsName(number(Blank::SecondBottom)));
    case Blank::SecondBottom:
        return QCoreApplication::translate("Equivalent", "%1 equals %2 out of how many?")
            .arg(whole, Fractions::numberWord(number(Blank::SecondTop)));
    case Blank::FirstTop:
        return QCoreApplication::translate("Equivalent", "How many %1 equal %2?")
            .arg(Fractions::partsName(number(Blank::FirstBottom)), whole);
    case Blank::FirstBottom:
        break;
    }
    return QCoreApplication::translate("Equivalent", "%1 out of how many equals %2?")
        .arg(Fractions::numberWord(number(Blank::FirstTop)), whole);
}

QString Pair::statement() const
{
    return QCoreApplication::translate("Equivalent", "%1 is equal to %2.")
        .arg(fractionText(number(Blank::FirstTop), number(Blank::FirstBottom)),
            fractionText(number(Blank::SecondTop), number(Blank::SecondBottom)));
}

Pair drawOnWall(Random::Source& rnd, const Pair* last)
{
    Pair p;
    do {
        p.bottom = rnd.between(kWallSmallestBottom, kWallLargestBottom);
        p.top = lowestTermsTop(rnd, p.bottom);
        p.factor = rnd.between(kWallSmallestFactor, std::min(kWallLargestFactor, kWallLargestSecondBottom / p.bottom));
    } while (last && p == *last);
    return p;
}

Pair drawAnywhere(Random::Source& rnd, const Pair* last)
{
    Pair p;
    do {
        p.bottom = rnd.between(kSmallestBottom, kLargestBottom);
        p.top = lowestTermsTop(rnd, p.bottom);
        p.factor = rnd.between(kSmallestFactor, kLargestFactor);
        p.largerFirst = rnd.below(2) == 1;
        p.blank = Blank(rnd.below(4));
    } while (last && p == *last);
    return p;
}

Verdict check(const Pair& pair, const QString& typed)
{
    bool isNumber = false;
    const int value = typed.toInt(&isNumber);
    if (typed.isEmpty() || !isNumber)
        return Verdict::notCheckable(
            QCoreApplication::translate("Equivalent", "Type the missing number in the box first!"));
    if (value == 0)
        return Verdict::notCheckable(
            QCoreApplication::translate("Equivalent", "The missing number is never 0: look at the fractions again."));
    return value == pair.answer() ? Verdict::right(pair.statement()) : Verdict::wrong(pair.statement());
}

QString wallHint(const Pair& pair)
{
    const int small = pair.bottom;
    const int large = pair.bottom * pair.factor;
    return QCoreApplication::translate("Equivalent", "%1 ÷ %2 = %3, so the top is multiplied by %3 too: %4 × %3 = %5.")
        .arg(large)
        .arg(small)
        .arg(pair.factor)
        .arg(pair.top)
        .arg(pair.top * pair.factor);
}

QString hint(const Pair& pair)
{
    // The two numbers shown in full (tops or bottoms), then the blank's row.
    const bool blankOnTop = onTop(pair.blank);
    const int knownSmall = blankOnTop ? pair.bottom : pair.top;
    const int otherSmall = blankOnTop ? pair.top : pair.bottom;
    const int k = pair.factor;
    if (pair.multiplying()) {
        const QString text = blankOnTop
            ? QCoreApplication::translate("Equivalent",
                                          "%1 × %2 = %3, so the top is multiplied by %2 too: %4 × %2 = %5.")
            : QCoreApplication::translate("Equivalent",
                                          "%1 × %2 = %3, so the bottom is multiplied by %2 too: %4 × %2 = %5.");
        return text.arg(knownSmall).arg(k).arg(knownSmall * k).arg(otherSmall).arg(otherSmall * k);
    }
    const QString text = blankOnTop
        ? QCoreApplication::translate("Equivalent", "%1 ÷ %2 = %3, so the top is divided by %2 too: %4 ÷ %2 = %5.")
        : QCoreApplication::translate("Equivalent", "%1 ÷ %2 = %3, so the bottom is divided by %2 too: %4 ÷ %2 = %5.");
    return text.arg(knownSmall * k).arg(k).arg(knownSmall).arg(otherSmall * k).arg(otherSmall);
}

QString Card::text() const
{
    return fractionText(top, bottom);
}

QString Choice::fractionText() const
{
    return Equivalent::fractionText(top, bottom);
}

QString Choice::instruction() const
{
    return QCoreApplication::translate("Equivalent", "Which fraction is equal to %1?").arg(fractionText());
}

QString Choice::spoken() const
{
    return QCoreApplication::translate("Equivalent", "Which fraction is equal to %1?")
        .arg(Fractions::words(top, bottom));
}

Choice drawChoice(Random::Source& rnd, const Choice* last)
{
    Choice c;
    do {
        c.bottom = rnd.between(kSmallestBottom, kChoiceLargestBottom);
        c.top = lowestTermsTop(rnd, c.bottom);
        c.factor = rnd.between(kSmallestFactor, std::min(kLargestFactor, kCardLargestBottom / c.bottom));
    } while (last && c == *last);

    const Fractions::Fraction asked(c.top, c.bottom);
    std::array<Card, kCards> cards;
    cards[0] = {c.top * c.factor, c.bottom * c.factor};
    // Each trap is drawn again until it differs in value from the fraction
    // and from every card before it.
    const auto unlikeTheOthers = [&](const Card& card, int count) {
        const Fractions::Fraction value(card.top, card.bottom);
        if (value == asked || card.top >= card.bottom || card.bottom > kCardLargestBottom)
            return false;
        for (int i = 1; i < count; ++i)
            if (Fractions::Fraction(cards[i].top, cards[i].bottom) == value)
                return false;
        return true;
    };
    do {
        const int added = rnd.between(1, kLargestAdded);
        cards[1] = {c.top + added, c.bottom + added};
    } while (!unlikeTheOthers(cards[1], 1));
    do
        cards[2] = {c.top, c.bottom * rnd.between(kSmallestFactor, kLargestBottomOnly)};
    while (!unlikeTheOthers(cards[2], 2));
    do {
        const int onTop = rnd.between(kSmallestFactor, kLargestFactor);
        const int below = rnd.between(kSmallestFactor, kLargestFactor);
        cards[3] = {c.top * onTop, c.bottom * below};
    } while (!unlikeTheOthers(cards[3], 3));

    // The right card to a random place, the traps in random order round it.
    for (int i = kCards - 1; i > 0; --i)
        std::swap(cards[i], cards[rnd.between(0, i)]);
    c.cards = cards;
    const Card right{c.top * c.factor, c.bottom * c.factor};
    c.right = int(std::find_if(cards.begin(), cards.end(), [&](const Card& card) {
        return card.top == right.top && card.bottom == right.bottom;
    }) - cards.begin());
    return c;
}

Verdict checkChoice(const Choice& choice, int chosen)
{
    if (chosen < 0 || chosen >= kCards)
        return Verdict::notCheckable(QCoreApplication::translate("Equivalent", "Choose one of the cards first!"));
    const Card& card = choice.cards[std::size_t(chosen)];
    const Card& right = choice.cards[std::size_t(choice.right)];
    if (Fractions::Fraction(card.top, card.bottom) == Fractions::Fraction(choice.top, choice.bottom))
        return Verdict::right(
            QCoreApplication::translate("Equivalent", "%1 is equal to %2.").arg(card.text(), choice.fractionText()));
    return Verdict::wrong(QCoreApplication::translate("Equivalent", "%1 is not equal to %2: %3 is.")
                              .arg(card.text(), choice.fractionText(), right.text()));
}

QString choiceHint(const Choice& choice)
{
    return QCoreApplication::translate(
        "Equivalent", "Multiply the top and the bottom by the same number: %1 × %2 = %3 and %4 × %2 = %5.")
        .arg(choice.top)
        .arg(choice.factor)
        .arg(choice.top * choice.factor)
        .arg(choice.bottom)
        .arg(choice.bottom * choice.factor);
}

} // namespace Equivalent
