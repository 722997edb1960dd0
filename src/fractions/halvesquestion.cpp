#include "halvesquestion.h"

#include <QCoreApplication>


namespace Halves {

QString setName(int set)
{
    return set >= 1 && set <= kSetCount ? QCoreApplication::translate("Halves", kPictureSets[set - 1].name) : QString();
}

QString Question::picname() const
{
    return setName(set);
}

QString Question::onePictureName() const
{
    // One of each set, in the sets' order.
    static const char* const kOne[kSetCount] = {
        QT_TRANSLATE_NOOP("Halves", "holly leaf"), QT_TRANSLATE_NOOP("Halves", "duck"),
        QT_TRANSLATE_NOOP("Halves", "sun"),        QT_TRANSLATE_NOOP("Halves", "dinosaur"),
        QT_TRANSLATE_NOOP("Halves", "spider"),     QT_TRANSLATE_NOOP("Halves", "gorilla"),
    };
    return set >= 1 && set <= kSetCount ? QCoreApplication::translate("Halves", kOne[set - 1]) : QString();
}

QString Question::pictureFile() const
{
    return set >= 1 && set <= kSetCount ? QString::fromLatin1(kPictureSets[set - 1].file) : QString();
}

QString Question::instruction() const
{
    return (parts == 2 ? QCoreApplication::translate("Halves", "Click on one half of the %1")
                       : QCoreApplication::translate("Halves", "Click on one quarter of the %1"))
        .arg(picname());
}

QString Question::rightAnswer() const
{
    return (parts == 2 ? QCoreApplication::translate("Halves", "You chose one half of the %1")
                       : QCoreApplication::translate("Halves", "You chose one quarter of the %1"))
        .arg(picname());
}

Question drawQuestion(Random::Source& rnd, int lastset, int lasthowmany)
{
    Question q;
    rnd.randomize();
    // A 3 is thrown away rather than mapped, so halves and quarters are
    // equally likely; the same set never comes twice in a row.
    do {
        q.parts = static_cast<int>(rnd.rnd() * 3 + 2);
        q.set = static_cast<int>(rnd.rnd() * kSetCount + 1);
    } while (q.parts == 3 || q.set == lastset);

    // Re-seeded before every draw of the count, which never repeats either.
    int n = 0;
    do {
        rnd.randomize();
        n = static_cast<int>(rnd.rnd() * 15 + 2);
    } while (n % q.parts != 0 || n == lasthowmany);
    q.howmany = n;
    q.target = n / q.parts;
    return q;
}

QString shouldHaveClicked(int target)
{
    // The English singular and plural are separate texts; the count also
    // chooses a translation's own plural form.
    return target == 1 ? QCoreApplication::translate("Halves", "You should have clicked on %n picture", nullptr, target)
                       : QCoreApplication::translate("Halves", "You should have clicked on %n pictures", nullptr, target);
}

} // namespace Halves
