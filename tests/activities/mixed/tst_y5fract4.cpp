#include "activities/mixed/y5fract4.h"
#include "rewards/grey.h"
#include "rewards/reward.h"
#include "rewards/welldone.h"
#include "runtime/formtimer.h"
#include "runtime/picturebox.h"
#include "runtime/printtarget.h"
#include "testsupport.h"

#include <QClipboard>
#include <QDir>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

using namespace Module1;

namespace {
const int kToMixed = MixedQuestion::kToMixed;
const int kToImproper = MixedQuestion::kToImproper;

y5fract4* openScreen()
{
    yearlabel = QStringLiteral("Year 5");
    streak = 20;
    return qobject_cast<y5fract4*>(Forms::show(QStringLiteral("y5fract4")));
}

// Start is pressed until a question of that direction comes up.
void startWith(y5fract4* form, int direction)
{
    do
        form->cmdstart_Click();
    while (form->question().direction != direction);
}

void type(QLineEdit* box, int number, Qt::Key end = Qt::Key_Return)
{
    QTest::keyClicks(box, QString::number(number));
    QTest::keyClick(box, end);
}

// Types the answer to the question on show, box by box; `offset` spoils it.
void answer(y5fract4* form, int offset = 0)
{
    const MixedQuestion q = form->question();
    if (q.direction == kToMixed) {
        type(form->Text1, q.whole);
        type(form->Text4, q.numer, Qt::Key_Tab);
        type(form->Text2, q.denom + offset);
    } else {
        type(form->Text3, q.improperNumerator() + offset);
        type(form->Text5, q.denom);
    }
}
} // namespace

class TestY5fract4 : public QObject {
    Q_OBJECT
private slots:
    void init() { world.fresh(); }
    void cleanup() { PrintTarget::setPdfFolder(QString()); }
    void boxesTakeOnlyDigits_data();
    void boxesTakeOnlyDigits();
    void emptyOrZeroIsRefused_data();
    void emptyOrZeroIsRefused();
    void boxesLeadOnAndTheLastChecks_data();
    void boxesLeadOnAndTheLastChecks();
    void partialAnswerIsWrong_data();
    void partialAnswerIsWrong();
    void practiceThenChallenge();
    void failedChallengeBeginsAgain();
    void printAsksFirst();

private:
    TestSupport::World world;
};

void TestY5fract4::boxesTakeOnlyDigits_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    for (int direction : {kToMixed, kToImproper}) {
        const char* way = direction == kToMixed ? "mixed" : "improper";
        QTest::addRow("%s letters", way) << direction << "aZ4q" << "4";
        QTest::addRow("%s blank", way) << direction << " 1 " << "1";
        QTest::addRow("%s minus", way) << direction << "-7" << "7";
        QTest::addRow("%s point", way) << direction << "3.5" << "35";
        QTest::addRow("%s two digits at most", way) << direction << "123" << "12";
    }
}

void TestY5fract4::boxesTakeOnlyDigits()
{
    QFETCH(int, direction);
    QFETCH(QString, keys);
    QFETCH(QString, text);
    y5fract4* form = openScreen();
    startWith(form, direction);
    QLineEdit* box = direction == kToMixed ? form->Text1 : form->Text3;
    for (const QChar c : keys) {
        int code = c.unicode();
        direction == kToMixed ? form->Text1_KeyPress(code) : form->Text3_KeyPress(code);
        QCOMPARE(code != 0, c.isDigit());
    }
    QTest::keyClicks(box, keys);
    QCOMPARE(box->text(), text);
    QTest::keyClick(box, Qt::Key_Backspace);
    QCOMPARE(box->text(), text.chopped(1));

    // Nothing but digits comes in by pasting either.
    box->clear();
    QGuiApplication::clipboard()->setText(QStringLiteral("5a"));
    QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
    box->paste();
    QCOMPARE(box->text(), QString());
}

void TestY5fract4::emptyOrZeroIsRefused_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<int>("end");
    for (int direction : {kToMixed, kToImproper}) {
        const char* way = direction == kToMixed ? "mixed" : "improper";
        QTest::addRow("%s empty ENTER", way) << direction << "" << int(Qt::Key_Return);
        QTest::addRow("%s zero ENTER", way) << direction << "0" << int(Qt::Key_Enter);
        QTest::addRow("%s zeros Tab", way) << direction << "00" << int(Qt::Key_Tab);
    }
}

// Each box of the answer refuses an empty or zero entry without a word: it
// is emptied and keeps the focus, and the next box stays shut.
void TestY5fract4::emptyOrZeroIsRefused()
{
    QFETCH(int, direction);
    QFETCH(QString, keys);
    QFETCH(int, end);
    y5fract4* form = openScreen();
    startWith(form, direction);
    const MixedQuestion q = form->question();
    QList<QLineEdit*> boxes = direction == kToMixed ? QList<QLineEdit*>{form->Text1, form->Text4, form->Text2}
                                                    : QList<QLineEdit*>{form->Text3, form->Text5};
    const QList<int> right = direction == kToMixed ? QList<int>{q.whole, q.numer, q.denom}
                                                   : QList<int>{q.improperNumerator(), q.denom};
    for (int i = 0; i < boxes.size(); ++i) {
        QTest::keyClicks(boxes[i], keys);
        QTest::keyClick(boxes[i], Qt::Key(end));
        QCOMPARE(boxes[i]->text(), QString());
        QVERIFY(boxes[i]->isVisible());
        QCOMPARE(form->focusWidget(), boxes[i]);
        if (i + 1 < boxes.size())
            QVERIFY(!boxes[i + 1]->isEnabled());
        type(boxes[i], right[i]);
    }
    QCOMPARE(counter, 1);
    QVERIFY(world.messages.isEmpty());
}

void TestY5fract4::boxesLeadOnAndTheLastChecks_data()
{
    QTest::addColumn<int>("direction");
    QTest::newRow("improper fraction to mixed number") << kToMixed;
    QTest::newRow("mixed number to improper fraction") << kToImproper;
}

void TestY5fract4::boxesLeadOnAndTheLastChecks()
{
    QFETCH(int, direction);
    y5fract4* form = openScreen();
    startWith(form, direction);
    const MixedQuestion q = form->question();
    QVERIFY(form->Label5->isVisible());
    QVERIFY(form->Timer5->isEnabled());

    // The hint takes the typing instruction's place at once.
    form->cmdhint->click();
    QVERIFY(!form->Label5->isVisible());
    QVERIFY(!form->Timer5->isEnabled());
    QCOMPARE(form->Label18->text(), q.hintText());
    QVERIFY(form->Label18->isVisible());
    QCOMPARE(form->Label20->isVisible(), direction == kToImproper);
    if (direction == kToImproper)
        QCOMPARE(form->Label20->text(), q.productText());

    struct Step {
        QLineEdit* box;
        QLabel* label;
        int number;
    };
    const QList<Step> steps = direction == kToMixed
        ? QList<Step>{{form->Text1, form->Label12, q.whole}, {form->Text4, form->Label8, q.numer},
                      {form->Text2, form->Label10, q.denom}}
        : QList<Step>{{form->Text3, form->Label17, q.improperNumerator()}, {form->Text5, form->Label14, q.denom}};
    QCOMPARE(form->focusWidget(), steps[0].box);
    for (int i = 0; i < steps.size(); ++i) {
        const Step& s = steps[i];
        QVERIFY(s.box->isEnabled());
        for (int j = i + 1; j < steps.size(); ++j)
            QVERIFY(!steps[j].box->isEnabled());
        QVERIFY(!form->Label2->isVisible());
        type(s.box, s.number, i == 1 ? Qt::Key_Tab : Qt::Key_Return);
        QVERIFY(!s.box->isVisible());
        QVERIFY(s.label->isVisible());
        QCOMPARE(s.label->text(), QString::number(s.number));
        if (i + 1 < steps.size())
            QCOMPARE(form->focusWidget(), steps[i + 1].box);
    }

    // The last box checked at once.
    QCOMPARE(counter, 1);
    QCOMPARE(form->Label2->text(), praisetext + QStringLiteral(" ") + q.answerText());
    QVERIFY(form->Label2->isVisible() && !form->Label1->isVisible());
    QVERIFY(!form->Label18->isVisible() && !form->Label20->isVisible());
    QVERIFY(!form->isEnabled() && !form->cmdhint->isEnabled());
    QVERIFY(form->Timer1->isEnabled());
    QVERIFY(Forms::find<Grey>()->Timer1->isEnabled());

    // The next question gives the screen back with fresh boxes.
    form->Timer1_Timer();
    QVERIFY(form->isEnabled() && form->cmdhint->isEnabled());
    QVERIFY(form->Label1->isVisible() && !form->Label2->isVisible());
    QLineEdit* first = form->question().direction == kToMixed ? form->Text1 : form->Text3;
    QVERIFY(first->isVisible() && first->isEnabled() && first->text().isEmpty());
    QCOMPARE(form->focusWidget(), first);
}

void TestY5fract4::partialAnswerIsWrong_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<bool>("byTimer4");
    QTest::newRow("whole number only, Check Answers") << kToMixed << false;
    QTest::newRow("numerator only, Check Answers") << kToImproper << false;
    QTest::newRow("whole number only, Timer4") << kToMixed << true;
}

// Checking before every box is filled counts the missing ones as 0.
void TestY5fract4::partialAnswerIsWrong()
{
    QFETCH(int, direction);
    QFETCH(bool, byTimer4);
    y5fract4* form = openScreen();
    startWith(form, direction);
    const MixedQuestion q = form->question();
    type(direction == kToMixed ? form->Text1 : form->Text3,
         direction == kToMixed ? q.whole : q.improperNumerator());
    counter = 3;
    if (byTimer4)
        form->Timer4_Timer();
    else
        form->cmdcheck_Click();
    QCOMPARE(form->Label2->text(), QStringLiteral("Incorrect! ") + q.answerText());
    QVERIFY(form->Label2->isVisible() && !form->Label1->isVisible());
    QVERIFY(form->Timer3->isEnabled() && !form->Timer1->isEnabled());
    QCOMPARE(form->Timer1->interval(), byTimer4 ? y5fract4::kTimer1QuickMs : y5fract4::kTimer1Ms);
    QCOMPARE(counter, 3);
    QCOMPARE(challenge, 0);

    form->Timer3_Timer();
    QVERIFY(!form->Timer3->isEnabled());
    QVERIFY(form->Label1->isVisible() && !form->Label2->isVisible());
    QVERIFY(form->cmdhint->isEnabled());
    QVERIFY(form->Picture2->isVisible() != form->Picture3->isVisible());
}

// Ten right answers through the boxes, with a wrong answer and a hint
// between, make the child ready; the certificate arms the Challenge, and
// twenty right answers in the Challenge lead back to the menu and the
// certificate.
void TestY5fract4::practiceThenChallenge()
{
    y5fract4* form = openScreen();
    QCOMPARE(activitytitle, form->Label4->text());
    QCOMPARE(visits, 1);
    QVERIFY(form->Option2->isChecked());
    QVERIFY(form->Picture1->isVisible() && !form->Picture2->isVisible() && !form->Picture3->isVisible());
    QVERIFY(!form->cmdcheck->isEnabled() && !form->cmdhint->isEnabled());
    form->Option1->click();
    QCOMPARE(questions, 10);
    form->cmdstart->click();
    QVERIFY(!form->Picture1->isVisible());
    for (int right = 1; right <= 10; ++right) {
        if (right == 4) {
            form->cmdhint->click();
            answer(form, 1);
            QVERIFY(form->Label2->text().startsWith(QStringLiteral("Incorrect! ")));
            form->Timer3_Timer();
        }
        answer(form);
        QCOMPARE(counter, right % 10);
        if (right < 10) {
            QVERIFY(!form->Label2->text().startsWith(QStringLiteral("Incorrect! ")));
            form->Timer1_Timer();
        }
    }
    QCOMPARE(form->Label80->text(), QStringLiteral("  You are now ready for the Challenge.   20 correct answers on "
                                                   "the run, with no hints. Click Start to take the Challenge."));
    QVERIFY(form->Label80->isVisible());
    QVERIFY(!form->Picture2->isVisible() && !form->Picture3->isVisible());
    QVERIFY(!form->cmdhint->isEnabled());
    QCOMPARE(TestSupport::visibleForms(), (QStringList{QStringLiteral("Welldone"), QStringLiteral("y5fract4")}));

    Forms::find<Welldone>()->cmdexit->click();
    TestSupport::flushUnloads();
    QCOMPARE(challenge, 1);
    QCOMPARE(questions, 20);
    form->cmdstart->click();
    QVERIFY(!form->cmdhint->isEnabled());
    QVERIFY(!form->Label80->isVisible());
    for (int right = 1; right < 20; ++right) {
        answer(form);
        QCOMPARE(counter, right);
        form->Timer1_Timer();
        QVERIFY(!form->cmdhint->isEnabled());
    }
    QPointer<y5fract4> leaving(form);
    answer(form);
    TestSupport::flushUnloads();
    QVERIFY(!leaving);
    QCOMPARE(TestSupport::visibleForms(), (QStringList{QStringLiteral("Welldone"), QStringLiteral("y5Intro2")}));
    QCOMPARE(Forms::find<Welldone>()->Label1->text(),
             QStringLiteral("Congratulations!!! You have risen to the Challenge."));
}

void TestY5fract4::failedChallengeBeginsAgain()
{
    y5fract4* form = openScreen();
    challenge = 1;
    form->cmdstart->click();
    QVERIFY(!form->cmdhint->isEnabled());
    answer(form);
    form->Timer1_Timer();
    const QString set = picset;
    const MixedQuestion q = form->question();
    answer(form, 1);
    QCOMPARE(challenge, 2);
    QCOMPARE(counter, 0);
    QCOMPARE(picset, set);
    QCOMPARE(form->Label2->text(), QStringLiteral("Incorrect! ") + q.answerText());
    auto* retry = Forms::find<Reward>();
    QVERIFY(retry && retry->isVisible() && retry->Label1->isVisible());

    form->Timer3_Timer();
    QVERIFY(form->Label1->isVisible() && !form->Label2->isVisible());
    QVERIFY(!form->cmdhint->isEnabled());
    form->cmdstart->click();
    QVERIFY(!form->cmdhint->isEnabled());
}

void TestY5fract4::printAsksFirst()
{
    QTemporaryDir pdfs;
    PrintTarget::setPdfFolder(pdfs.path());
    y5fract4* form = openScreen();
    world.answer = MsgBox::Answer::No;
    form->cmdprint->click();
    QCOMPARE(world.messages.size(), 1);
    QCOMPARE(world.messages[0].text, QStringLiteral("Do you really want to print?"));
    QCOMPARE(world.messages[0].title, QStringLiteral("Year 5"));
    QVERIFY(QDir(pdfs.path()).isEmpty());
    world.answer = MsgBox::Answer::Yes;
    form->cmdprint->click();
    QCOMPARE(QDir(pdfs.path()).entryList(QDir::Files).size(), 1);
}

QTEST_MAIN(TestY5fract4)
#include "tst_y5fract4.moc"
