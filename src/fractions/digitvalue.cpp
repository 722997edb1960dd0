#include "digitvalue.h"

#include "runtime/random.h"

#include <QCoreApplication>
#include <algorithm>

namespace Digits {

namespace {
// What a digit at `power` is worth, written: 30, 3, 0.3, 0.03, 0.003.
QString worth(int digit, int power)
{
    return Places::written(digit * Places::tenTo(power + Places::kMostPlaces), std::max(0, -power));
}

// The places a card can name, largest first.
constexpr int kNamed[] = {Places::kTens, Places::kOnes, Places::kTenths, Places::kHundredths, Places::kThousandths};
} // namespace

int Question::markedIndex() const
{
    const QString text = number();
    const int point = text.indexOf(QLatin1Char('.'));
    const int onesAt = (point < 0 ? text.size() : point) - 1;
    return marked >= Places::kOnes ? onesAt - marked : point - marked;
}

QString Question::instruction() const
{
    return QCoreApplication::translate("Digits", "What is the value of the %1?").arg(digit());
}

QString valueText(int digit, int power)
{
    return QCoreApplication::translate("Digits", "%1 (%2)").arg(Places::count(digit, power), worth(digit, power));
}

QStringList Question::cardTexts() const
{
    QStringList texts;
    for (int power : cards)
        texts << valueText(digit(), power);
    return texts;
}

QStringList Question::spokenCards() const
{
    QStringList texts;
    for (int power : cards)
        texts << QCoreApplication::translate("Digits", "%1 (%2)")
                     .arg(Places::count(digit(), power), Places::spoken(worth(digit(), power)));
    return texts;
}

QString Question::statement() const
{
    return QCoreApplication::translate("Digits", "The %1 in %2 is %3.")
        .arg(QString::number(digit()), number(), valueText(digit(), marked));
}

Question draw(Random::Source& rnd, const Question* last)
{
    Question q;
    for (;;) {
        q.places = rnd.between(1, Places::kMostPlaces);
        q.thousandths = rnd.between(0, kLargestWhole) * Places::kScale + Places::drawDecimals(rnd, q.places);
        const bool hasTens = Places::digitAt(q.thousandths, Places::kTens) > 0;
        const int highest = hasTens ? Places::kTens : Places::kOnes;
        q.marked = rnd.between(-q.places, highest);
        // The digit asked about is not 0 and stands only once in the number.
        const QString text = q.number();
        const QChar d = QChar(u'0' + q.digit());
        if (q.digit() != 0 && text.count(d) == 1 && !(last && q == *last))
            break;
    }
    // The right place and three others, in a random order.
    QVector<int> others;
    for (int power : kNamed)
        if (power != q.marked)
            others << power;
    q.cards = {q.marked};
    while (q.cards.size() < kCards)
        q.cards << others.takeAt(rnd.below(int(others.size())));
    for (int i = kCards - 1; i > 0; --i)
        std::swap(q.cards[i], q.cards[rnd.below(i + 1)]);
    q.right = int(q.cards.indexOf(q.marked));
    return q;
}

Verdict check(const Question& q, int chosen)
{
    if (chosen < 0 || chosen >= q.cards.size())
        return Verdict::notCheckable(QCoreApplication::translate("Digits", "Choose a card first!"));
    return chosen == q.right ? Verdict::right(q.statement()) : Verdict::wrong(q.statement());
}

QString hint(const Question& q)
{
    return QCoreApplication::translate(
               "Digits",
               "Look at %1 in its place-value columns: the head of the column the %2 stands in names its value.")
        .arg(q.number())
        .arg(q.digit());
}

} // namespace Digits
