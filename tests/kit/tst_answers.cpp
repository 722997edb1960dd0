#include "kit/parts/answerbox.h"
#include "kit/parts/answerchain.h"
#include "kit/parts/choicecard.h"
#include "kit/parts/choicecards.h"

#include <QClipboard>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <QtTest>

namespace {
const QFont kFont(QStringLiteral("Times New Roman"), 20);
const AnswerBox::Options kWhole{3, false};
const AnswerBox::Options kDecimal{4, true};

// Shown and active, so that the focus and the window's keys behave as on screen.
struct Window : QWidget {
    Window() { new QVBoxLayout(this); }
    template <typename W> W* add(W* widget) { return layout()->addWidget(widget), widget; }
    void open()
    {
        show();
        activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(this));
    }
};

QLineEdit* makeBox(QWidget* parent, const AnswerBox::Options& options, AnswerBox::KeyPress handler = {})
{
    return AnswerBox::make(parent, "answerBox", "your answer", kFont, options, std::move(handler));
}

// Two whole-number boxes and a decimal one; the middle box may take a zero.
struct ChainBoard {
    Window window;
    AnswerChain chain;
    QList<QLineEdit*> boxes;
    QStringList heard;
    explicit ChainBoard(bool zeroInMiddle)
    {
        boxes << window.add(chain.addBox(&window, "Text1", "top number", kFont, kWhole))
              << window.add(chain.addBox(&window, "Text2", "bottom number", kFont, kWhole, zeroInMiddle))
              << window.add(chain.addBox(&window, "Text3", "your answer", kFont, kDecimal));
        QObject::connect(&chain, &AnswerChain::complete, [this] { heard << "complete"; });
        QObject::connect(&chain, &AnswerChain::refused, [this](QLineEdit* box, AnswerChain::Reason why) {
            heard << box->objectName() + ' ' + QMetaEnum::fromType<AnswerChain::Reason>().valueToKey(int(why));
        });
        window.open();
    }

    void type(int box, const QString& text, int end = Qt::Key_Return)
    {
        QTest::keyClicks(boxes[box], text);
        QTest::keyClick(boxes[box], Qt::Key(end));
    }
};

struct Typing { bool decimal; QString keys, pasted, text; };
// What the chain says: "complete", or the box it refused and why.
struct Chain { QStringList entries; int end; bool zeroInMiddle, middleOff; QString heard; };
// Word cards with keys of their own, or fraction cards; what has the focus; a click or a key.
struct Choice { bool words, choosable; QString at, press; int chosen; };

QColor colourAt(QWidget* widget, qreal x, qreal y)
{
    const QImage image = widget->grab().toImage();
    return image.pixelColor(int(x * image.width()), int(y * image.height()));
}
} // namespace
Q_DECLARE_METATYPE(Typing)
Q_DECLARE_METATYPE(Chain)
Q_DECLARE_METATYPE(Choice)

class TestAnswers : public QObject {
    Q_OBJECT
private slots:
    // Decimals are typed with "." even where the desktop writes them with a comma.
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    void boxTakesOnlyWhatItMayHold_data()
    {
        QTest::addColumn<Typing>("c");
        QTest::newRow("whole: digits only, up to its length") << Typing{false, "a1 -Z.,234", "", "123"};
        QTest::newRow("whole: paste of 3.5") << Typing{false, "", "3.5", ""};
        QTest::newRow("whole: paste too long") << Typing{false, "4", "123", "4"};
        QTest::newRow("decimal: one point, counted in the length") << Typing{true, "3,.5.27", "", "3.52"};
        QTest::newRow("decimal: backspace frees the point") << Typing{true, "1.\b.5", "", "1.5"};
        QTest::newRow("decimal: paste of 3.5") << Typing{true, "", "3.5", "3.5"};
        QTest::newRow("decimal: paste of a second point") << Typing{true, "4.", ".5", "4."};
    }

    void boxTakesOnlyWhatItMayHold()
    {
        QFETCH(Typing, c);
        QWidget window;
        QLineEdit* box = makeBox(&window, c.decimal ? kDecimal : kWhole);
        QTest::keyClicks(box, c.keys);
        if (!c.pasted.isEmpty()) {
            QGuiApplication::clipboard()->setText(c.pasted);
            box->paste();
        }
        QCOMPARE(box->text(), c.text);
    }

    // Ctrl is a key of its own before V.
    void handlerSeesEveryKeyFirst()
    {
        Window window;
        QList<int> heard;
        QLineEdit* box = window.add(makeBox(&window, kWhole, [&heard](int& keyAscii) {
            heard << keyAscii;
            if (keyAscii == '7')
                keyAscii = 0;
        }));
        window.add(makeBox(&window, kWhole));
        window.open();
        box->setFocus();
        QTest::keyClicks(box, QStringLiteral("17a"));
        for (Qt::Key key : {Qt::Key_Backspace, Qt::Key_Tab, Qt::Key_Enter})
            QTest::keyClick(box, key);
        QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
        QTest::keyClick(box, Qt::Key_Left);
        using namespace AnswerBox;
        QCOMPARE(heard, (QList<int>{'1', '7', 'a', kBackspace, kTab, kEnter, 0, 0, 0}));
        QVERIFY(box->text().isEmpty());
        QCOMPARE(QApplication::focusWidget(), box);
    }

    void chainMovesAndRefuses_data()
    {
        QTest::addColumn<Chain>("c");
        const int enter = Qt::Key_Return;
        QTest::newRow("empty first box") << Chain{{""}, enter, false, false, "Text1 Empty"};
        QTest::newRow("zeros where zero is wrong") << Chain{{"3", "00"}, enter, false, false, "Text2 Zero"};
        QTest::newRow("decimal zero") << Chain{{"3", "4", "0.00"}, enter, false, false, "Text3 Zero"};
        QTest::newRow("a point alone") << Chain{{"3", "4", "."}, enter, false, false, "Text3 Empty"};
        QTest::newRow("Tab, zero where allowed") << Chain{{"3", "0", "1.5"}, Qt::Key_Tab, true, false, "complete"};
        QTest::newRow("a switched-off box is passed") << Chain{{"3", "2.5"}, enter, false, true, "complete"};
    }

    void chainMovesAndRefuses()
    {
        QFETCH(Chain, c);
        ChainBoard board(c.zeroInMiddle);
        board.boxes[1]->setEnabled(!c.middleOff);
        board.chain.focusFirst();
        QStringList texts(board.boxes.size());
        for (int i = 0, box = 0; i < c.entries.size(); ++i, ++box) {
            box += c.middleOff && box == 1;
            QVERIFY(board.heard.isEmpty());
            QCOMPARE(QApplication::focusWidget(), board.boxes[box]);
            board.type(box, c.entries[i], c.end);
            texts[box] = c.heard != "complete" && i + 1 == c.entries.size() ? QString() : c.entries[i];
        }
        QCOMPARE(board.heard, QStringList{c.heard});
        if (c.heard != "complete")
            QCOMPARE(QApplication::focusWidget()->objectName(), c.heard.section(' ', 0, 0));
        QCOMPARE(board.chain.texts(), texts);
    }

    // ENTER in the last box, clicked into first, goes back to the empty box before it.
    void chainChecksSkippedBoxes()
    {
        ChainBoard board(false);
        board.boxes[2]->setFocus();
        board.type(2, QStringLiteral("7"));
        QCOMPARE(QApplication::focusWidget(), board.boxes[0]);
        board.type(0, QStringLiteral("5"));
        board.type(1, QStringLiteral("6"));
        board.type(2, QString());
        QCOMPARE(board.heard, (QStringList{"Text1 Empty", "complete"}));
        QCOMPARE(board.chain.values(), (QList<int>{5, 6, 7}));
        board.chain.clear();
        board.boxes[0]->setEnabled(false);
        board.chain.focusFirst();
        QCOMPARE(QApplication::focusWidget(), board.boxes[1]);
    }

    void cardsAreChosen_data()
    {
        QTest::addColumn<Choice>("c");
        QTest::newRow("click on card 3") << Choice{false, true, "card3", "click", 2};
        QTest::newRow("key 1") << Choice{false, true, "check", "1", 0};
        QTest::newRow("keypad 2") << Choice{false, true, "check", "Num+2", 1};
        QTest::newRow("ENTER on card 2") << Choice{false, true, "card2", "Return", 1};
        QTest::newRow("key 4 with three cards") << Choice{true, true, "check", "4", -1};
        QTest::newRow("key >") << Choice{true, true, "check", ">", 2};
        QTest::newRow("not choosable: click") << Choice{false, false, "card1", "click", -1};
        QTest::newRow("not choosable: key 2") << Choice{false, false, "check", "2", -1};
        QTest::newRow("not choosable: ENTER") << Choice{false, false, "card2", "Return", -1};
        QTest::newRow("a digit typed into a box stays there") << Choice{false, true, "box", "2", -1};
    }

    void cardsAreChosen()
    {
        QFETCH(Choice, c);
        Window window;
        auto* cards = window.add(new ChoiceCards(&window));
        window.add(new QPushButton(QStringLiteral("Check"), &window))->setObjectName("check");
        window.add(makeBox(&window, kWhole))->setObjectName("box");
        if (c.words)
            cards->setCards({"is less than", "is equal to", "is more than"}, {"<", "=", ">"});
        else
            cards->setCards({"4/6", "3/4", "2/6", "4/9"});
        cards->setChoosable(c.choosable);
        window.open();
        QSignalSpy spy(cards, &ChoiceCards::chosen);
        QWidget* target = window.findChild<QWidget*>(c.at);
        target->setFocus();
        if (c.press == QLatin1String("click")) {
            QTest::mouseClick(target, Qt::LeftButton);
        } else {
            const QKeyCombination key = QKeySequence::fromString(c.press)[0];
            QTest::keyClick(target, key.key(), key.keyboardModifiers());
        }
        if (auto* box = qobject_cast<QLineEdit*>(target))
            QCOMPARE(box->text(), c.press);
        QCOMPARE(spy.count(), c.chosen < 0 ? 0 : 1);
        if (c.chosen >= 0)
            QVERIFY(spy.first().first().toInt() == c.chosen && QApplication::focusWidget() == cards->card(c.chosen));
    }

    void cardsSpeakAndShowMarks()
    {
        Window window;
        auto* cards = window.add(new ChoiceCards(&window));
        QWidget* other = window.add(makeBox(&window, kWhole));
        cards->setCards({"4/6", "3/4", "is more than"}, {"", "", ">"}, {"4 sixths"});
        QStringList seen;
        for (int i = 0; i < cards->count(); ++i)
            seen << cards->card(i)->objectName() + '|' + cards->card(i)->keyName() + '|' + cards->card(i)->accessibleName();
        QCOMPARE(seen, (QStringList{"card1|1|card 1: 4 sixths", "card2|2|card 2: three quarters",
                                    "card3|>|card 3: is more than"}));

        cards->setCards({"4/6", "3/4", "2/6"});
        window.open();
        const qreal x = 0.25, y = 0.85;
        cards->markRight(1);
        cards->markWrong(2);
        QCOMPARE(colourAt(cards->card(0), x, y), ChoiceCard::kPaper);
        QCOMPARE(colourAt(cards->card(1), x, y), ChoiceCard::kRightPaper);
        QCOMPARE(colourAt(cards->card(2), x, y), ChoiceCard::kWrongPaper);
        cards->setCards({"4/6", "3/4"});
        QCOMPARE(colourAt(cards->card(1), x, y), ChoiceCard::kPaper);

        const qreal middle = 0.5, frameLine = 0.01;
        other->setFocus();
        QVERIFY(colourAt(cards->card(1), middle, frameLine) != ChoiceCard::kFocusEdge);
        cards->card(1)->setFocus();
        QCOMPARE(colourAt(cards->card(1), middle, frameLine), ChoiceCard::kFocusEdge);
    }
};

QTEST_MAIN(TestAnswers)
#include "tst_answers.moc"
