#include "numberset.h"

#include "decimalvalue.h"

namespace NumberSet {

std::optional<Question> newnumbers(Random::Source& rnd, int numberkind)
{
    if (numberkind != kSharedWholePart)
        return std::nullopt;
    Question question;
    rnd.randomize();
    question.wholepart = static_cast<int>(rnd.rnd() * kLargestWholePart + 1);
    do
        question.numbers = drawFive(rnd, question.wholepart);
    while (hasRepeats(question.numbers));
    return question;
}

Texts drawFive(Random::Source& rnd, int wholepart)
{
    Texts numbers;
    for (QString& number : numbers) {
        rnd.randomize();
        const int places = static_cast<int>(rnd.rnd() * kMostPlaces + 1);
        number = randomDecimal(rnd, wholepart, places);
    }
    return numbers;
}

QString randomDecimal(Random::Source& rnd, int whole, int places)
{
    rnd.randomize();
    const int digits = (places == 1 || places == 2) ? places : kMostPlaces;
    QString text = QString::number(whole) + QLatin1Char('.');
    for (int i = 0; i < digits; ++i)
        text += QString::number(static_cast<int>(rnd.rnd() * 9 + 1));
    return text;
}

bool hasRepeats(const Texts& texts)
{
    for (int i = 0; i < kCount; ++i)
        for (int j = i + 1; j < kCount; ++j)
            if (valueOf(texts[i]) == valueOf(texts[j]))
                return true;
    return false;
}

int firstFreeSlot(const Texts& answers)
{
    for (int i = 0; i < kCount; ++i)
        if (valueOf(answers[i]).isZero())
            return i;
    return -1;
}

int undoSlot(const Texts& answers)
{
    for (int i = 0; i < kCount - 1; ++i)
        if (valueOf(answers[i + 1]).isZero())
            return i;
    return -1;
}

int numberWithValue(const Texts& numbers, const QString& caption)
{
    for (int j = 0; j < kCount; ++j)
        if (valueOf(numbers[j]) == valueOf(caption))
            return j;
    return -1;
}

bool inOrder(const Texts& answers)
{
    bool yes = false;
    if (valueOf(answers[1]) >= valueOf(answers[0])) {
        for (int i = 1; i < kCount - 1; ++i) {
            if (valueOf(answers[i + 1]) < valueOf(answers[i])) {
                yes = false;
                break;
            }
            yes = true;
        }
    }
    return yes;
}

Texts sortedOrder(Texts answers)
{
    for (int pass = 0; pass < kCount; ++pass)
        for (int j = 0; j < kCount - 1; ++j)
            if (valueOf(answers[j + 1]) < valueOf(answers[j])) {
                const DecimalValue lower = valueOf(answers[j + 1]);
                answers[j + 1] = answers[j];
                answers[j] = lower.toText();
            }
    return answers;
}

} // namespace NumberSet
