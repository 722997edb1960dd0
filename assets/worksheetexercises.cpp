#include "worksheetexercises.h"

#include <algorithm>
#include <set>

namespace {

template <typename T>
void shuffle(std::vector<T> &items, Rng &rng)
{
    for (int i = int(items.size()) - 1; i > 0; --i)
        std::swap(items[i], items[rng.below(i + 1)]);
}

// Thousandths of a decimal text W.D, W.DD or W.DDD.
int thousandths(const QString &text)
{
    const int point = text.indexOf(QLatin1Char('.'));
    QString digits = text.mid(point + 1);
    while (digits.size() < 3)
        digits.append(QLatin1Char('0'));
    return text.left(point).toInt() * 1000 + digits.toInt();
}

} // namespace

std::vector<HalvesExercise> makeHalvesExercises(Rng &rng, int exercises, int pictureKinds)
{
    std::vector<int> parts;
    for (int i = 0; i < exercises; ++i)
        parts.push_back(i < (exercises + 1) / 2 ? 2 : 4);
    shuffle(parts, rng);

    std::vector<int> used(pictureKinds, 0);
    std::vector<HalvesExercise> sheet;
    int lastPicture = -1, lastCount = 0;
    for (int part : parts) {
        HalvesExercise e;
        e.parts = part;
        // Every picture comes round equally often, never twice running.
        std::vector<int> fewest;
        for (int k = 0; k < pictureKinds; ++k) {
            if (k == lastPicture)
                continue;
            if (!fewest.empty() && used[k] < used[fewest.front()])
                fewest.clear();
            if (fewest.empty() || used[k] == used[fewest.front()])
                fewest.push_back(k);
        }
        e.picture = fewest[rng.below(int(fewest.size()))];
        ++used[e.picture];
        // The board's rule: 2..16 pictures, a multiple of the parts, not the
        // same number as last time.
        do
            e.count = 2 + rng.below(15);
        while (e.count % e.parts != 0 || e.count == lastCount);
        lastPicture = e.picture;
        lastCount = e.count;
        sheet.push_back(e);
    }
    return sheet;
}

int highestCommonFactor(int a, int b)
{
    while (b != 0) {
        const int r = a % b;
        a = b;
        b = r;
    }
    return a;
}

std::vector<MixedExercise> makeMixedExercises(Rng &rng, bool toMixed, int exercises)
{
    const int largestWhole = toMixed ? 5 : 9;
    std::vector<MixedExercise> sheet;
    while (int(sheet.size()) < exercises) {
        MixedExercise e;
        do {
            e.whole = 1 + rng.below(largestWhole);
            e.numer = 1 + rng.below(9);
            e.denom = 2 + rng.below(9);
        } while (highestCommonFactor(e.numer, e.denom) != 1 || e.numer > e.denom);
        if (std::find(sheet.begin(), sheet.end(), e) == sheet.end())
            sheet.push_back(e);
    }
    return sheet;
}

std::vector<OrderingExercise> makeOrderingExercises(Rng &rng, int exercises)
{
    std::vector<OrderingExercise> sheet;
    for (int n = 0; n < exercises; ++n) {
        OrderingExercise e;
        e.whole = 1 + rng.below(5);
        // A set with two equal values is drawn again whole.
        for (;;) {
            std::set<int> values;
            for (QString &number : e.numbers) {
                number = QString::number(e.whole) + QLatin1Char('.');
                const int places = 1 + rng.below(3);
                for (int d = 0; d < places; ++d)
                    number.append(QChar(u'1' + rng.below(9)));
                values.insert(thousandths(number));
            }
            if (values.size() == e.numbers.size())
                break;
        }
        sheet.push_back(e);
    }
    return sheet;
}
