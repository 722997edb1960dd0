#include "kit/parts/shapeboard.h"

#include <QAccessible>
#include <QPushButton>
#include <QVBoxLayout>
#include <QtTest>

namespace {
// Keys by name, or clicks on "part n" or "beside" the shape, one after another.
struct Play {
    ShapeKind kind; int parts; bool interactive; QString presses; int cursor; QString coloured; int enters;
};

// A button and the board, so Tab has somewhere to come from.
struct Screen {
    QWidget window;
    QPushButton* before = new QPushButton(QStringLiteral("Start"), &window);
    ShapeBoard* board = new ShapeBoard(&window);
    Screen()
    {
        auto* column = new QVBoxLayout(&window);
        column->addWidget(before);
        column->addWidget(board);
        window.resize(300, 340);
        window.show();
        QApplication::setActiveWindow(&window);
    }
};
} // namespace
Q_DECLARE_METATYPE(Play)

class TestShapeBoard : public QObject {
    Q_OBJECT
private slots:
    void clicksAndKeys_data()
    {
        QTest::addColumn<Play>("c");
        using K = ShapeKind;
        const QString enter = QStringLiteral("Num+Enter");
        QTest::newRow("click on a sector") << Play{K::Circle, 8, true, "part 8", 7, "00000001", 0};
        QTest::newRow("again, and beside") << Play{K::SquareTriangles, 4, true, "part 3, part 3, beside", 2, "0000", 0};
        QTest::newRow("click on a rectangle") << Play{K::TwoRowRectangle, 12, true, "part 9", 8, "000000001000", 0};
        QTest::newRow("right, down") << Play{K::SquareGrid, 4, true, "Right, Space, Down, Space", 2, "0110", 0};
        QTest::newRow("up, left, round") << Play{K::Circle, 3, true, "Up, Left, Space", 1, "010", 0};
        QTest::newRow("right, round") << Play{K::SquareDown, 2, true, "Right, Right, Space", 0, "10", 0};
        QTest::newRow("space twice") << Play{K::SquareAcross, 2, true, "Space, Right, Space, Space", 1, "10", 0};
        QTest::newRow("enter checks") << Play{K::SquareTriangles, 4, true, "Right, Space, Return", 1, "0100", 1};
        QTest::newRow("keypad enter") << Play{K::TwoRowRectangle, 6, true, enter + ", Space, " + enter, 0, "100000", 2};
        QTest::newRow("only read") << Play{K::SquareGrid, 4, false, "Right, Space, Return, part 1", 0, "0000", 0};
    }

    // Tab reaches the board only when it takes clicks and keys.
    void clicksAndKeys()
    {
        QFETCH(Play, c);
        Screen screen;
        ShapeBoard* board = screen.board;
        board->setShape(c.kind, c.parts);
        board->setInteractive(c.interactive);
        QSignalSpy entered(board, &ShapeBoard::enterPressed);
        QSignalSpy changed(board, &ShapeBoard::changed);
        screen.before->setFocus();
        QTest::keyClick(screen.before, Qt::Key_Tab);
        QCOMPARE(board->hasFocus(), c.interactive);
        int toggles = 0;
        for (const QString& press : c.presses.split(QStringLiteral(", "))) {
            if (press.startsWith(QLatin1String("part")) || press == QLatin1String("beside")) {
                // The middle of a part's bounding box is inside it, for these shapes.
                const QPointF at = press == QLatin1String("beside")
                    ? QPointF(1, 1) : board->partPath(press.mid(5).toInt() - 1).boundingRect().center();
                QTest::mouseClick(screen.window.windowHandle(), Qt::LeftButton, {},
                                  board->mapTo(&screen.window, at.toPoint()));
            } else {
                const QKeyCombination key = QKeySequence::fromString(press)[0];
                QTest::keyClick(board, key.key(), key.keyboardModifiers());
            }
            toggles += c.interactive && (press == QLatin1String("Space") || press.startsWith(QLatin1String("part")));
        }
        QCOMPARE(board->cursorPart(), c.cursor);
        QString pattern;
        for (bool on : board->coloured())
            pattern += on ? QLatin1Char('1') : QLatin1Char('0');
        QCOMPARE(pattern, c.coloured);
        QCOMPARE(entered.count(), c.enters);
        QCOMPARE(changed.count(), toggles);
        board->setShape(c.kind, c.parts);
        QCOMPARE(board->colouredCount(), 0);
    }

    void spoken()
    {
        Screen screen;
        ShapeBoard* board = screen.board;
        board->setShape(ShapeKind::SquareGrid, 4);
        board->setColoured({false, false, true, false});
        QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(board);
        QCOMPARE(spoken->text(QAccessible::Name), QStringLiteral("a square cut into 4 equal parts, 1 coloured"));
        QCOMPARE(spoken->childCount(), 4);
        for (int i = 0; i < 4; ++i) {
            QAccessibleInterface* part = spoken->child(i);
            QVERIFY(part && part->isValid());
            QCOMPARE(part->role(), QAccessible::CheckBox);
            QCOMPARE(part->text(QAccessible::Name),
                     QStringLiteral("part %1 of 4, %2coloured").arg(i + 1).arg(i == 2 ? "" : "not "));
            QCOMPARE(bool(part->state().checked), i == 2);
            QCOMPARE(part->parent(), spoken);
            QCOMPARE(spoken->indexOfChild(part), i);
            const QPoint middle = board->mapToGlobal(board->partPath(i).boundingRect().center().toPoint());
            QCOMPARE(spoken->childAt(middle.x(), middle.y()), part);
            QVERIFY(part->rect().contains(middle));
        }

        // Pressing a part's check box colours it; the keyboard cursor is the focused part.
        QSignalSpy changed(board, &ShapeBoard::changed);
        QAccessibleInterface* second = spoken->child(1);
        second->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QCOMPARE(changed.count(), 1);
        QVERIFY(board->isColoured(1) && second->state().checked);
        QCOMPARE(spoken->text(QAccessible::Name), QStringLiteral("a square cut into 4 equal parts, 2 coloured"));
        board->setFocus();
        QTest::keyClick(board, Qt::Key_Right);
        QCOMPARE(spoken->focusChild(), second);
        QVERIFY(second->state().focused);

        // A board only to be read offers no presses.
        board->setShape(ShapeKind::Circle, 8);
        board->setInteractive(false);
        QCOMPARE(spoken->childCount(), 8);
        QCOMPARE(spoken->text(QAccessible::Name), QStringLiteral("a circle cut into 8 equal parts, 0 coloured"));
        QVERIFY(spoken->child(7)->actionInterface()->actionNames().isEmpty());
        spoken->child(7)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(board->colouredCount(), 0);
    }
};

QTEST_MAIN(TestShapeBoard)
#include "tst_shapeboard.moc"
