#pragma once
// The shared module: every value that passes from one screen to another, and
// the routines that every activity calls around its Challenge.
// Integers that the screens never assigned are 0; texts are "".
#include <QColor>
#include <QString>
#include <QtGlobal>

class ActivityForm;
class Form;

namespace Module1 {

// The edition and sound settings, as read from primary.inf and sound.inf.
inline QString version;      // "0" primary (Year 2..6), "1" secondary (Unit 1..5), "-1" not chosen
inline QString soundsetting; // "1": the sound option is removed; "0": offered
inline int soundoption = 0;  // 1: the year menu offers "Play Sound"

inline const QString kPrimaryEdition = QStringLiteral("0");
inline const QString kSecondaryEdition = QStringLiteral("1");
inline const QString kNoEdition = QStringLiteral("-1");
// The edition a settings value names, read as a number: "0" or "1", and
// kNoEdition for anything else (-1 itself, "-1.0", 2, words). The title
// screen and the settings screen both go by this, so they always agree.
QString editionOf(const QString& value);
// Whether version names an edition; if not, the title screen leads on to the
// settings screen, which offers the choice.
bool editionChosen();

// The chosen year and the run.
inline QString yearlabel;    // "Year 2".."Year 6" or "Unit 1".."Unit 5"
inline int streak = 0;       // right answers in a row that open the Challenge: 10 or 20
inline int questions = 0;    // length of a run: 10 or 20
inline int challenge = 0;    // 0 practice, 1 Challenge, 2 Challenge again after a failure
inline int counter = 0;      // title frame; during a run, right answers = reward frame
inline QString picset;       // reward-picture set of this run
inline QString praisetext;   // the last phrase from praise()
inline int retry = 0;        // 1: the retry screen shows its message, not stars
inline int visits = 0;       // activity screens loaded so far
inline QString activitytitle; // printed on the certificate

// Animation state that outlives a single screen.
inline int logoframe = 0;    // logo frame of the year and activity menus, 0..19
inline QString setname;      // picture set of the current halves-and-quarters question
inline int starset = 0;      // star series on the retry screen, 0..3
inline int starstep = 0;     // -1 or +1
inline int starframe = 0;    // star frame counter

// The activity screens' back colour.
inline const QColor kActivityBack{48, 133, 214};
// The cream panel and its dark blue ink, on the title and notice screens.
inline const QColor kPanelPaper{255, 251, 238};
inline const QColor kPanelInk{0, 58, 140};

// The reward-picture sets, numbered as pickpicture draws them.
struct RewardSet {
    const char* name;
    int top; // twips
};
inline constexpr RewardSet kRewardSets[] = {
    {"solita", 1200}, {"neckla", 1200}, {"hanoi", 1200}, {"sphfra", 1200}, {"starfr", 1200},
    {"gazebo", 1200}, {"thermo", 600},  {"cake", 600},   {"greenb", 600},  {"earthc", 1200},
};
inline constexpr int kRewardSetCount = 10;
inline constexpr int kLastRewardFrame = 20;

// The twelve praise phrases, each with its trailing blank.
// (translated where shown)
inline constexpr const char* kPraise[] = {
    QT_TRANSLATE_NOOP("Module1", "Well done! "),
    QT_TRANSLATE_NOOP("Module1", "Good work! "),
    QT_TRANSLATE_NOOP("Module1", "Cool! "),
    QT_TRANSLATE_NOOP("Module1", "Smart cookie! "),
    QT_TRANSLATE_NOOP("Module1", "Yes! "),
    QT_TRANSLATE_NOOP("Module1", "Great! "),
    QT_TRANSLATE_NOOP("Module1", "Yipee! "),
    QT_TRANSLATE_NOOP("Module1", "Brilliant! "),
    QT_TRANSLATE_NOOP("Module1", "Wicked! "),
    QT_TRANSLATE_NOOP("Module1", "Wonderful! "),
    QT_TRANSLATE_NOOP("Module1", "Super! "),
    QT_TRANSLATE_NOOP("Module1", "Excellent! "),
};

void setupform(ActivityForm& form);
void centreform(Form& form);
void praise();
void pickpicture(ActivityForm& form);
void nextpicture(ActivityForm& form);
void showwelldone(const QString& unused);
void showreward();
int hcf(int a, int b);
QString randomdecimal(int whole, int places);

// "jpg2\sphfra05.jpg": the reward frame file of a set.
QString rewardFrameFile(const QString& set, int frame);

// Everything back to the values of a fresh start.
void reset();

} // namespace Module1
