#pragma once
// Questions drawn as an activity draws them: from one fixed seed, each draw
// handed the question before it.
#include "runtime/random.h"

#include <QVector>
#include <algorithm>
#include <functional>

template <class Question, class Draw>
QVector<Question> drawMany(Draw draw, int count, quint64 seed = 3)
{
    Random::Source rnd(seed);
    QVector<Question> all;
    while (all.size() < count)
        all << draw(rnd, all.isEmpty() ? nullptr : &all.last());
    return all;
}

// Whether two questions running are the same, or `same` in another way.
template <class Question, class Same = std::equal_to<>>
bool repeatsRunning(const QVector<Question>& all, Same same = {})
{
    return std::adjacent_find(all.cbegin(), all.cend(), same) != all.cend();
}
