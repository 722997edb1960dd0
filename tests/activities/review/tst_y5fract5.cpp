// The Year 5 review: which board poses each question, what goes to the board on show
// and what comes back from it, and one question by the keyboard alone.
#include "activities/mixed/mixedboard.h"
#include "activities/review/y5fract5.h"
#include "activitytest.h"

#include <QSignalSpy>

using namespace Module1;

namespace {
constexpr int kDraws = 1000;

// A board that notes what is asked of it and answers with its own name.
class Probe : public KitBoard {
public:
    QStringList calls;
    void pose(Random::Source&) override {}
    QString instruction() const override { return objectName(); }
    Verdict check() override { return note("check", Verdict::right(objectName())); }
    QString hint() override { return note("hint").statement + objectName(); }
    void setAnswering(bool) override { note("setAnswering"); }
    void focusAnswer() override { note("focusAnswer"); }
    void showChecked(const Verdict&) override { note("showChecked"); }
    void giveRightAnswer() override { note("giveRightAnswer"); }

private:
    Verdict note(const char* call, const Verdict& v = Verdict())
    {
        calls << QString::fromLatin1(call);
        return v;
    }
};

const QVector<ReviewBoard::Member> kProbes{
    {"First", ReviewBoard::make<Probe>, nullptr},
    {"Second", ReviewBoard::make<Probe>, nullptr},
};

// Each number into the box holding the keyboard, then ENTER.
void typeInTurn(const QList<int>& numbers)
{
    for (int n : numbers)
        ActivityTest::enter(QString::number(n));
}
} // namespace

class TestY5fract5 : public QObject {
    Q_OBJECT
    TestSupport::World world;
private slots:
    void init() { world.fresh(5); }

    // Over many questions every board poses some, only the one posing shows, and no question
    // comes twice in a row.
    void drawsEveryBoard()
    {
        auto* form = qobject_cast<y5fract5*>(Forms::show(QStringLiteral("y5fract5")));
        ReviewBoard* review = form->review();
        QCOMPARE(review->count(), y5fract5::members().size());
        QVector<int> posed(review->count(), 0);
        QString before;
        for (int n = 0; n < kDraws; ++n) {
            review->pose(Random::program());
            // A board's instruction may not change (the chain's): the question is what its parts say.
            QString asked = review->shown()->objectName() + QLatin1Char(' ') + review->instruction();
            for (const QWidget* part : review->shown()->findChildren<QWidget*>())
                asked += QLatin1Char('|') + part->accessibleName();
            QVERIFY2(asked != before, qPrintable(asked));
            before = asked;
            ++posed[review->shownIndex()];
            for (int m = 0; m < review->count(); ++m)
                QCOMPARE(review->member(m)->isVisibleTo(review), m == review->shownIndex());
        }
        for (int count : posed)
            QVERIFY2(count > kDraws / (2 * review->count()), qPrintable(QString::number(count)));
    }

    // What the screen asks goes to the board on show alone, and its answer comes back;
    // so do its signals, never another board's.
    void forwardsToTheShownBoard()
    {
        ReviewBoard review(kProbes);
        for (int n = 0; n < kDraws && review.shownIndex() != 1; ++n)
            review.pose(Random::program());
        QCOMPARE(review.shownIndex(), 1);
        auto* shown = static_cast<Probe*>(review.shown());
        auto* other = static_cast<Probe*>(review.member(0));
        QCOMPARE(review.check().statement, QStringLiteral("Second"));
        QCOMPARE(review.hint(), QStringLiteral("Second"));
        review.setAnswering(true);
        review.focusAnswer();
        review.showChecked(Verdict());
        review.giveRightAnswer();
        QCOMPARE(shown->calls, QStringList({"check", "hint", "setAnswering", "focusAnswer", "showChecked", "giveRightAnswer"}));
        QVERIFY(other->calls.isEmpty());

        QSignalSpy answered(&review, &KitBoard::answered);
        QSignalSpy refused(&review, &KitBoard::refused);
        for (Probe* board : {other, shown}) {
            emit board->answered();
            emit board->refused(board->objectName());
        }
        QCOMPARE(answered.count(), 1);
        QCOMPARE(refused.count(), 1);
        QCOMPARE(refused.at(0).at(0).toString(), QStringLiteral("Second"));
    }

    // Start, a refused empty box, a hint, a wrong answer, then a right one, all by keys on the
    // board on show, with its own check and hint.
    void oneQuestionByKeyboard()
    {
        y5fract5* form = nullptr;
        QVERIFY(ActivityTest::start<ReviewBoard>(QStringLiteral("y5fract5"), &form));
        auto* board = qobject_cast<MixedBoard*>(form->review()->shown());
        QVERIFY(board);
        const MixedQuestion q = board->question();
        QCOMPARE(form->Label1->text(), q.instruction(true));
        const bool toMixed = q.direction == MixedQuestion::kToMixed;
        QCOMPARE(QApplication::focusWidget(), toMixed ? board->Text1 : board->Text3);

        QCOMPARE(ActivityTest::said(form, QString()), QStringLiteral("Type a number in every box first!"));
        QCOMPARE(ActivityTest::hint(form), q.hintText());
        QCOMPARE(board->Label20->isVisible(), !toMixed);

        QList<int> wrong = q.answerNumbers();
        ++wrong[0];
        typeInTurn(wrong);
        QCOMPARE(form->Label2->text(), QStringLiteral("Not quite. %1.").arg(q.answerText()));
        QCOMPARE(counter, 0);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); // on at once
        const MixedQuestion next = qobject_cast<MixedBoard*>(form->review()->shown())->question();
        typeInTurn(next.answerNumbers());
        ActivityTest::expectPraised(form, next.answerText() + QLatin1Char('.'));
    }
};

QTEST_MAIN(TestY5fract5)
#include "tst_y5fract5.moc"
