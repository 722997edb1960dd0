#include "kit/parts/answerbox.h"
#include "kit/parts/answerchain.h"
#include "kit/parts/choicecard.h"
#include "kit/parts/choicecards.h"

#include <QClipboard>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QtTest>

namespace {
const QFont kFont(QStringLiteral("Times New Roman"), 20);
const AnswerBox::Options kWhole{3, false};
const AnswerBox::Options kDecimal{4, true};

// A window of its own for a test, shown and active, so that the focus and
// the window's keys behave as on screen.
struct Window : QWidget {
    Window()
    {
        setObjectName(QStringLiteral("testWindow"));
        new QVBoxLayout(this);
        resize(640, 300);
    }
    void open()
    {
        show();
        activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(this));
    }
};

QLineEdit* makeBox(QWidget* parent, const AnswerBox::Options& options, AnswerBox::KeyPress handler = {})
{
    return AnswerBox::make(parent, QStringLiteral("answerBox"), QStringLiteral("your answer"), kFont, options,
                           std::move(handler));
}

void type(QWidget* box, const QString& text, Qt::Key end)
{
    QTest::keyClicks(box, text);
    QTest::keyClick(box, end);
}
} // namespace

class TestAnswers : public QObject {
    Q_OBJECT
private slots:
    // Typing and pasting whatever the desktop's language: here one that
    // writes decimals with a comma.
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    void boxTakesOnlyWhatItMayHold_data();
    void boxTakesOnlyWhatItMayHold();
    void handlerSeesEveryKeyFirst();
    void chainMovesAndRefuses_data();
    void chainMovesAndRefuses();
    void chainChecksSkippedBoxes();
    void cardsAreChosen_data();
    void cardsAreChosen();
    void cardsSpeakAndShowMarks();
};

void TestAnswers::boxTakesOnlyWhatItMayHold_data()
{
    QTest::addColumn<bool>("decimal");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("text");
    QTest::newRow("whole: letters, blank, minus") << false << "a1 -Z2" << "" << "12";
    QTest::newRow("whole: point and comma") << false << "3.5,7" << "" << "357";
    QTest::newRow("whole: past its length") << false << "1234" << "" << "123";
    QTest::newRow("whole: paste of 12a") << false << "" << "12a" << "";
    QTest::newRow("whole: paste of 3.5") << false << "" << "3.5" << "";
    QTest::newRow("whole: paste too long") << false << "4" << "123" << "4";
    QTest::newRow("decimal: second point") << true << "3.5.2" << "" << "3.52";
    QTest::newRow("decimal: comma") << true << "3,5" << "" << "35";
    QTest::newRow("decimal: the point counts in the length") << true << "12.345" << "" << "12.3";
    QTest::newRow("decimal: backspace frees the point") << true << "1.\b.5" << "" << "1.5";
    QTest::newRow("decimal: paste of 3.5") << true << "" << "3.5" << "3.5";
    QTest::newRow("decimal: paste of a second point") << true << "4." << ".5" << "4.";
    QTest::newRow("decimal: paste of 3,5") << true << "" << "3,5" << "";
}

void TestAnswers::boxTakesOnlyWhatItMayHold()
{
    QFETCH(bool, decimal);
    QFETCH(QString, keys);
    QFETCH(QString, pasted);
    QFETCH(QString, text);
    QWidget window;
    QLineEdit* box = makeBox(&window, decimal ? kDecimal : kWhole);
    QTest::keyClicks(box, keys);
    if (!pasted.isEmpty()) {
        QGuiApplication::clipboard()->setText(pasted);
        box->paste();
    }
    QCOMPARE(box->text(), text);
}

// The screen's handler hears every key as its code before the box does;
// a key it zeroes never arrives, and Tab does not move the focus.
void TestAnswers::handlerSeesEveryKeyFirst()
{
    Window window;
    QList<int> heard;
    QLineEdit* box = makeBox(&window, kWhole, [&heard](int& keyAscii) {
        heard << keyAscii;
        if (keyAscii == '7')
            keyAscii = 0;
    });
    QLineEdit* other = makeBox(&window, kWhole);
    window.layout()->addWidget(box);
    window.layout()->addWidget(other);
    window.open();
    box->setFocus();
    QTest::keyClicks(box, QStringLiteral("17a"));
    QTest::keyClick(box, Qt::Key_Backspace);
    QTest::keyClick(box, Qt::Key_Tab);
    QTest::keyClick(box, Qt::Key_Enter);
    QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(box, Qt::Key_Left);
    // Ctrl is a key of its own before V.
    QCOMPARE(heard, (QList<int>{'1', '7', 'a', AnswerBox::kBackspace, AnswerBox::kTab, AnswerBox::kEnter, 0, 0, 0}));
    QVERIFY(box->text().isEmpty());
    QCOMPARE(QApplication::focusWidget(), box);
}

namespace {
// Two whole-number boxes and a decimal one; the middle box may take a zero.
struct ChainBoard {
    Window window;
    AnswerChain chain;
    QList<QLineEdit*> boxes;

    explicit ChainBoard(bool zeroInMiddle)
    {
        boxes << chain.addBox(&window, QStringLiteral("Text1"), QStringLiteral("top number"), kFont, kWhole)
              << chain.addBox(&window, QStringLiteral("Text2"), QStringLiteral("bottom number"), kFont, kWhole,
                              zeroInMiddle)
              << chain.addBox(&window, QStringLiteral("Text3"), QStringLiteral("your answer"), kFont, kDecimal);
        for (QLineEdit* box : std::as_const(boxes))
            window.layout()->addWidget(box);
    }
    int nextOpen(int from) const
    {
        while (from < boxes.size() && !boxes[from]->isEnabled())
            ++from;
        return from;
    }
};
using Refusal = QPair<QLineEdit*, AnswerChain::Reason>;
} // namespace

void TestAnswers::chainMovesAndRefuses_data()
{
    QTest::addColumn<bool>("zeroInMiddle");
    QTest::addColumn<int>("offBox");
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<int>("end");
    QTest::addColumn<int>("refusedBox");
    QTest::addColumn<int>("reason");
    QTest::addColumn<QStringList>("texts");
    const int none = -1;
    const int empty = int(AnswerChain::Reason::Empty);
    const int zero = int(AnswerChain::Reason::Zero);
    const int enter = Qt::Key_Return;
    using L = QStringList;
    const L all{"3", "12", "0.5"};
    const L blank{"", "", ""};
    QTest::newRow("ENTER to the end") << false << none << all << enter << none << none << all;
    QTest::newRow("Tab to the end") << false << none << all << int(Qt::Key_Tab) << none << none << all;
    QTest::newRow("empty first box") << false << none << L{""} << enter << 0 << empty << blank;
    QTest::newRow("zero in the first box") << false << none << L{"0"} << int(Qt::Key_Tab) << 0 << zero << blank;
    QTest::newRow("zeros where zero is wrong") << false << none << L{"3", "00"} << enter << 1 << zero << L{"3", "", ""};
    QTest::newRow("zero where zero is allowed") << true << none << L{"3", "0", "1.5"} << enter << none << none
                                                << L{"3", "0", "1.5"};
    QTest::newRow("decimal zero") << false << none << L{"3", "4", "0.00"} << enter << 2 << zero << L{"3", "4", ""};
    QTest::newRow("a point alone") << false << none << L{"3", "4", "."} << enter << 2 << empty << L{"3", "4", ""};
    QTest::newRow("a switched-off box is passed") << false << 1 << L{"3", "2.5"} << enter << none << none
                                                  << L{"3", "", "2.5"};
}

// Each entry is typed into the box with the focus and ended with ENTER or
// Tab: an answer moves the focus on, the last open box completes the
// chain, and a refused entry is emptied, keeps the focus and is reported.
void TestAnswers::chainMovesAndRefuses()
{
    QFETCH(bool, zeroInMiddle);
    QFETCH(int, offBox);
    QFETCH(QStringList, entries);
    QFETCH(int, end);
    QFETCH(int, refusedBox);
    QFETCH(int, reason);
    QFETCH(QStringList, texts);
    ChainBoard board(zeroInMiddle);
    if (offBox >= 0)
        board.boxes[offBox]->setEnabled(false);
    board.window.open();
    QSignalSpy completed(&board.chain, &AnswerChain::complete);
    QList<Refusal> refusals;
    connect(&board.chain, &AnswerChain::refused, this,
            [&refusals](QLineEdit* box, AnswerChain::Reason why) { refusals << Refusal(box, why); });
    board.chain.focusFirst();
    int open = board.nextOpen(0);
    for (const QString& entry : std::as_const(entries)) {
        QCOMPARE(QApplication::focusWidget(), board.boxes[open]);
        QCOMPARE(completed.count(), 0);
        type(board.boxes[open], entry, Qt::Key(end));
        if (!refusals.isEmpty())
            break;
        open = board.nextOpen(open + 1);
    }
    if (refusedBox < 0) {
        QVERIFY(refusals.isEmpty());
        QCOMPARE(completed.count(), 1);
    } else {
        QCOMPARE(refusals, (QList<Refusal>{Refusal(board.boxes[refusedBox], AnswerChain::Reason(reason))}));
        QCOMPARE(QApplication::focusWidget(), board.boxes[refusedBox]);
        QCOMPARE(completed.count(), 0);
    }
    QCOMPARE(board.chain.texts(), texts);
}

// The child clicks into the last box first: ENTER there sends the focus
// back to the empty box before it. The next question starts at the first
// open box; each box is named for a screen reader.
void TestAnswers::chainChecksSkippedBoxes()
{
    ChainBoard board(false);
    board.window.open();
    QSignalSpy completed(&board.chain, &AnswerChain::complete);
    qRegisterMetaType<QLineEdit*>();
    QSignalSpy refused(&board.chain, &AnswerChain::refused);
    board.boxes[2]->setFocus();
    type(board.boxes[2], QStringLiteral("7"), Qt::Key_Return);
    QCOMPARE(QApplication::focusWidget(), board.boxes[0]);
    QCOMPARE(refused.count(), 1);
    QCOMPARE(refused.first().first().value<QLineEdit*>(), board.boxes[0]);
    type(board.boxes[0], QStringLiteral("5"), Qt::Key_Return);
    type(board.boxes[1], QStringLiteral("6"), Qt::Key_Return);
    QCOMPARE(QApplication::focusWidget(), board.boxes[2]);
    type(board.boxes[2], QString(), Qt::Key_Return);
    QCOMPARE(completed.count(), 1);
    QCOMPARE(board.chain.values(), (QList<int>{5, 6, 7}));

    board.chain.clear();
    board.boxes[0]->setEnabled(false);
    board.chain.focusFirst();
    QCOMPARE(QApplication::focusWidget(), board.boxes[1]);
    QStringList names;
    for (const QLineEdit* box : std::as_const(board.boxes))
        names << box->objectName() + QLatin1Char(':') + box->accessibleName();
    QCOMPARE(names, (QStringList{"Text1:top number", "Text2:bottom number", "Text3:your answer"}));
}

namespace {
const QStringList kFractions{"4/6", "3/4", "2/6", "4/9"};
const QStringList kWords{"is less than", "is equal to", "is more than"};
const QStringList kSigns{"<", "=", ">"};

// Cards with a Check button and an answer box beside them.
struct CardBoard {
    Window window;
    ChoiceCards* cards = new ChoiceCards(&window);
    QPushButton* check = new QPushButton(QStringLiteral("Check"), &window);
    QLineEdit* box = makeBox(&window, kWhole);

    CardBoard()
    {
        window.layout()->addWidget(cards);
        window.layout()->addWidget(check);
        window.layout()->addWidget(box);
    }
};

QColor colourAt(QWidget* widget, qreal x, qreal y)
{
    const QImage image = widget->grab().toImage();
    return image.pixelColor(int(x * image.width()), int(y * image.height()));
}
} // namespace

void TestAnswers::cardsAreChosen_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<bool>("choosable");
    QTest::addColumn<QString>("how");
    QTest::addColumn<QString>("which");
    QTest::addColumn<int>("chosen");
    const QStringList none;
    const QStringList three = kFractions.mid(0, 3);
    QTest::newRow("click on card 3") << kFractions << none << true << "click" << "3" << 2;
    QTest::newRow("key 1") << kFractions << none << true << "key" << "1" << 0;
    QTest::newRow("keypad 2") << kFractions << none << true << "keypad" << "2" << 1;
    QTest::newRow("ENTER on card 2") << kFractions << none << true << "enter" << "2" << 1;
    QTest::newRow("key 4 with three cards") << three << none << true << "key" << "4" << -1;
    QTest::newRow("key <") << kWords << kSigns << true << "key" << "<" << 0;
    QTest::newRow("key =") << kWords << kSigns << true << "key" << "=" << 1;
    QTest::newRow("key >") << kWords << kSigns << true << "key" << ">" << 2;
    QTest::newRow("key 3 on word cards") << kWords << kSigns << true << "key" << "3" << 2;
    QTest::newRow("key > without its own keys") << kWords << none << true << "key" << ">" << -1;
    QTest::newRow("not choosable: click") << kFractions << none << false << "click" << "1" << -1;
    QTest::newRow("not choosable: key 2") << kFractions << none << false << "key" << "2" << -1;
    QTest::newRow("not choosable: ENTER") << kFractions << none << false << "enter" << "2" << -1;
    QTest::newRow("a digit typed into a box") << kFractions << none << true << "box" << "2" << -1;
}

// Keys go to whatever has the focus: the Check button, a card, or the
// answer box, which keeps its digits.
void TestAnswers::cardsAreChosen()
{
    QFETCH(QStringList, texts);
    QFETCH(QStringList, keys);
    QFETCH(bool, choosable);
    QFETCH(QString, how);
    QFETCH(QString, which);
    QFETCH(int, chosen);
    CardBoard board;
    board.cards->setCards(texts, keys);
    board.cards->setChoosable(choosable);
    board.window.open();
    QSignalSpy spy(board.cards, &ChoiceCards::chosen);
    const int number = which.toInt();
    const char key = which.at(0).toLatin1();
    board.check->setFocus();
    if (how == QLatin1String("click")) {
        QTest::mouseClick(board.cards->card(number - 1), Qt::LeftButton);
    } else if (how == QLatin1String("key")) {
        QTest::keyClick(board.check, key);
    } else if (how == QLatin1String("keypad")) {
        QTest::keyClick(board.check, Qt::Key(Qt::Key_0 + number), Qt::KeypadModifier);
    } else if (how == QLatin1String("box")) {
        board.box->setFocus();
        QTest::keyClick(board.box, key);
        QCOMPARE(board.box->text(), which);
    } else {
        ChoiceCard* card = board.cards->card(number - 1);
        card->setFocus();
        QTest::keyClick(card, Qt::Key_Return);
    }
    QCOMPARE(spy.count(), chosen < 0 ? 0 : 1);
    if (chosen >= 0) {
        QCOMPARE(spy.first().first().toInt(), chosen);
        QCOMPARE(QApplication::focusWidget(), board.cards->card(chosen));
    }
}

// Every card is named for a screen reader and shows its key; a check
// paints the right card green and a wrong one red, and new cards come
// unmarked. The card with the focus wears an orange frame.
void TestAnswers::cardsSpeakAndShowMarks()
{
    CardBoard board;
    board.cards->setCards({"4/6", "3/4"}, {}, {"4 sixths", ""});
    QCOMPARE(board.cards->count(), 2);
    QVERIFY(!board.cards->card(2));
    QStringList seen;
    for (int i = 0; i < board.cards->count(); ++i) {
        const ChoiceCard* card = board.cards->card(i);
        seen << card->objectName() + QLatin1Char('|') + card->keyName() + QLatin1Char('|') + card->accessibleName();
    }
    QCOMPARE(seen, (QStringList{"card1|1|card 1: 4 sixths", "card2|2|card 2: three quarters"}));
    board.cards->setCards(kWords, kSigns);
    QCOMPARE(board.cards->card(2)->accessibleName(), QStringLiteral("card 3: is more than"));
    QCOMPARE(board.cards->card(2)->keyName(), QStringLiteral(">"));

    board.cards->setCards(kFractions);
    board.window.open();
    const qreal x = 0.25;
    const qreal y = 0.85;
    board.cards->markRight(1);
    board.cards->markWrong(2);
    QCOMPARE(colourAt(board.cards->card(0), x, y), ChoiceCard::kPaper);
    QCOMPARE(colourAt(board.cards->card(1), x, y), ChoiceCard::kRightPaper);
    QCOMPARE(colourAt(board.cards->card(2), x, y), ChoiceCard::kWrongPaper);
    board.cards->setCards(kFractions);
    QCOMPARE(colourAt(board.cards->card(1), x, y), ChoiceCard::kPaper);

    const qreal middle = 0.5;
    const qreal frameLine = 0.01;
    board.check->setFocus();
    QVERIFY(colourAt(board.cards->card(3), middle, frameLine) != ChoiceCard::kFocusEdge);
    board.cards->card(3)->setFocus();
    QCOMPARE(colourAt(board.cards->card(3), middle, frameLine), ChoiceCard::kFocusEdge);
}

QTEST_MAIN(TestAnswers)
#include "tst_answers.moc"
