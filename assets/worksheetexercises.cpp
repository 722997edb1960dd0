#include "worksheetexercises.h"

#include "fractions/halvesquestion.h"
#include "fractions/mixedquestion.h"
#include "fractions/numberset.h"

#include <algorithm>

namespace {

template <typename T>
void shuffle(std::vector<T> &items, Random::Source &rng)
{
    for (int i = int(items.size()) - 1; i > 0; --i)
        std::swap(items[i], items[rng.below(i + 1)]);
}

} // namespace

std::vector<HalvesExercise> makeHalvesExercises(Random::Source &rng, int exercises, int pictureKinds)
{
    std::vector<int> parts;
    for (int i = 0; i < exercises; ++i)
        parts.push_back(i < (exercises + 1) / 2 ? 2 : 4);
    shuffle(parts, rng);

    std::vector<int> used(pictureKinds, 0);
    std::vector<HalvesExercise> sheet;
    Halves::Question last;
    for (int part : parts) {
        // Every picture comes round equally often: the fewest uses so far
        // among the pictures the board may show next.
        int fewest = exercises;
        for (int k = 0; k < pictureKinds; ++k)
            if (k + 1 != last.set)
                fewest = std::min(fewest, used[k]);
        Halves::Question q;
        do
            q = Halves::drawQuestion(rng, last.set, last.howmany);
        while (q.parts != part || q.set > pictureKinds || used[q.set - 1] != fewest);
        ++used[q.set - 1];
        sheet.push_back(HalvesExercise{q.parts, q.howmany, q.set - 1});
        last = q;
    }
    return sheet;
}

std::vector<MixedExercise> makeMixedExercises(Random::Source &rng, bool toMixed, int exercises)
{
    std::vector<MixedExercise> sheet;
    while (int(sheet.size()) < exercises) {
        const MixedQuestion q = toMixed ? MixedQuestion::drawImproper(rng) : MixedQuestion::drawMixed(rng);
        const MixedExercise e{q.whole, q.numer, q.denom};
        if (std::find(sheet.begin(), sheet.end(), e) == sheet.end())
            sheet.push_back(e);
    }
    return sheet;
}

std::vector<OrderingExercise> makeOrderingExercises(Random::Source &rng, int exercises)
{
    std::vector<OrderingExercise> sheet;
    for (int n = 0; n < exercises; ++n) {
        const auto q = NumberSet::newnumbers(rng, NumberSet::kSharedWholePart);
        OrderingExercise e;
        e.whole = q->wholepart;
        std::copy(q->numbers.begin(), q->numbers.end(), e.numbers.begin());
        sheet.push_back(e);
    }
    return sheet;
}
