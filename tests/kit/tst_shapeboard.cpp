// The shape board: a click colours exactly the part under it, the keyboard
// walks a cursor round the parts, and a screen reader finds every part as a
// check box with its own name and state.
#include "kit/parts/shapeboard.h"
#include "shapemeasure.h"

#include <QAccessible>
#include <QPushButton>
#include <QVBoxLayout>
#include <QtTest>

Q_DECLARE_METATYPE(ShapeKind)

namespace {

constexpr int kBoardSide = 300;

QString pattern(const QVector<bool>& coloured)
{
    QString text;
    for (bool on : coloured)
        text += on ? QLatin1Char('1') : QLatin1Char('0');
    return text;
}

// A window holding a button and the board, so Tab has somewhere to come from.
struct Screen {
    QWidget window;
    QPushButton* before = new QPushButton(QStringLiteral("Start"), &window);
    ShapeBoard* board = new ShapeBoard(&window);

    Screen()
    {
        before->setObjectName(QStringLiteral("cmdstart"));
        board->setObjectName(QStringLiteral("shapeBoard"));
        auto* column = new QVBoxLayout(&window);
        column->addWidget(before);
        column->addWidget(board);
        window.resize(kBoardSide, kBoardSide + before->sizeHint().height());
        window.show();
        QApplication::setActiveWindow(&window);
    }
};

} // namespace

class TestShapeBoard : public QObject {
    Q_OBJECT
private slots:
    void click_data();
    void click();
    void keys_data();
    void keys();
    void spoken();
};

void TestShapeBoard::click_data()
{
    QTest::addColumn<ShapeKind>("kind");
    QTest::addColumn<int>("parts");
    QTest::addColumn<int>("part");
    QTest::newRow("circle 4, part 3") << ShapeKind::Circle << 4 << 2;
    QTest::newRow("circle 8, part 8") << ShapeKind::Circle << 8 << 7;
    QTest::newRow("circle 3, part 1") << ShapeKind::Circle << 3 << 0;
    QTest::newRow("corners, part 2") << ShapeKind::SquareCorners << 2 << 1;
    QTest::newRow("triangles, part 3") << ShapeKind::SquareTriangles << 4 << 2;
    QTest::newRow("grid, part 4") << ShapeKind::SquareGrid << 4 << 3;
    QTest::newRow("strip 10, part 6") << ShapeKind::Strip << 10 << 5;
    QTest::newRow("rectangle 12, part 9") << ShapeKind::TwoRowRectangle << 12 << 8;
}

void TestShapeBoard::click()
{
    QFETCH(ShapeKind, kind);
    QFETCH(int, parts);
    QFETCH(int, part);

    Screen screen;
    ShapeBoard* board = screen.board;
    board->setShape(kind, parts);
    QSignalSpy changed(board, &ShapeBoard::changed);
    QWindow* window = board->window()->windowHandle();
    const QPoint at = board->mapTo(board->window(), ShapeMeasure::middle(board->partPath(part)).toPoint());

    QTest::mouseClick(window, Qt::LeftButton, {}, at);
    QVector<bool> expected(parts, false);
    expected[part] = true;
    QCOMPARE(pattern(board->coloured()), pattern(expected));
    QCOMPARE(board->colouredCount(), 1);
    QCOMPARE(board->cursorPart(), part);
    QCOMPARE(changed.count(), 1);

    // A second click uncolours it; a click beside the shape does nothing.
    QTest::mouseClick(window, Qt::LeftButton, {}, at);
    QCOMPARE(board->colouredCount(), 0);
    QTest::mouseClick(window, Qt::LeftButton, {}, board->mapTo(board->window(), QPoint(1, 1)));
    QCOMPARE(board->colouredCount(), 0);
    QCOMPARE(changed.count(), 2);

    // Only read, the board takes no clicks; a new shape starts blank.
    board->setColoured({true});
    board->setInteractive(false);
    QTest::mouseClick(window, Qt::LeftButton, {}, at);
    QCOMPARE(board->colouredCount(), 1);
    QCOMPARE(changed.count(), 2);
    board->setShape(kind, parts);
    QCOMPARE(board->colouredCount(), 0);
}

void TestShapeBoard::keys_data()
{
    // Keys: L R U D arrows, S Space, E Return, K the keypad's Enter.
    QTest::addColumn<ShapeKind>("kind");
    QTest::addColumn<int>("parts");
    QTest::addColumn<bool>("interactive");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<int>("cursor");
    QTest::addColumn<QString>("coloured");
    QTest::addColumn<int>("enters");
    QTest::newRow("space colours the first part") << ShapeKind::SquareGrid << 4 << true << "S" << 0 << "1000" << 0;
    QTest::newRow("right twice, space") << ShapeKind::SquareGrid << 4 << true << "RRS" << 2 << "0010" << 0;
    QTest::newRow("down is right") << ShapeKind::Strip << 5 << true << "DSDDS" << 3 << "01010" << 0;
    QTest::newRow("left wraps to the last") << ShapeKind::Circle << 6 << true << "LS" << 5 << "000001" << 0;
    QTest::newRow("up is left") << ShapeKind::Circle << 3 << true << "UUS" << 1 << "010" << 0;
    QTest::newRow("right wraps to the first") << ShapeKind::SquareDown << 2 << true << "RRS" << 0 << "10" << 0;
    QTest::newRow("space twice uncolours") << ShapeKind::SquareAcross << 2 << true << "SRSS" << 1 << "10" << 0;
    QTest::newRow("enter asks for a check") << ShapeKind::SquareTriangles << 4 << true << "RSE" << 1 << "0100" << 1;
    QTest::newRow("keypad enter too") << ShapeKind::TwoRowRectangle << 6 << true << "KSK" << 0 << "100000" << 2;
    QTest::newRow("only read: nothing") << ShapeKind::SquareGrid << 4 << false << "RSE" << 0 << "0000" << 0;
}

void TestShapeBoard::keys()
{
    QFETCH(ShapeKind, kind);
    QFETCH(int, parts);
    QFETCH(bool, interactive);
    QFETCH(QString, keys);
    QFETCH(int, cursor);
    QFETCH(QString, coloured);
    QFETCH(int, enters);

    Screen screen;
    ShapeBoard* board = screen.board;
    board->setShape(kind, parts);
    board->setInteractive(interactive);
    QSignalSpy entered(board, &ShapeBoard::enterPressed);
    QSignalSpy changed(board, &ShapeBoard::changed);

    // Tab from the button reaches the board only when it takes clicks and keys.
    screen.before->setFocus();
    QTest::keyClick(screen.before, Qt::Key_Tab);
    QCOMPARE(board->hasFocus(), interactive);

    const QHash<QChar, QPair<Qt::Key, Qt::KeyboardModifiers>> press{
        {'L', {Qt::Key_Left, {}}},   {'R', {Qt::Key_Right, {}}},  {'U', {Qt::Key_Up, {}}},
        {'D', {Qt::Key_Down, {}}},   {'S', {Qt::Key_Space, {}}},  {'E', {Qt::Key_Return, {}}},
        {'K', {Qt::Key_Enter, Qt::KeypadModifier}}};
    for (QChar key : keys)
        QTest::keyClick(board, press.value(key).first, press.value(key).second);

    QCOMPARE(board->cursorPart(), cursor);
    QCOMPARE(pattern(board->coloured()), coloured);
    QCOMPARE(entered.count(), enters);
    QCOMPARE(changed.count(), int(keys.count(QLatin1Char('S'))) * int(interactive));
}

void TestShapeBoard::spoken()
{
    Screen screen;
    ShapeBoard* board = screen.board;
    board->setShape(ShapeKind::SquareGrid, 4);
    board->setColoured({false, false, true, false});

    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(board);
    QVERIFY(spoken);
    QCOMPARE(spoken->text(QAccessible::Name), QStringLiteral("a square cut into 4 equal parts, 1 coloured"));
    QCOMPARE(spoken->childCount(), 4);
    const QStringList names{"part 1 of 4, not coloured", "part 2 of 4, not coloured",
                            "part 3 of 4, coloured", "part 4 of 4, not coloured"};
    for (int i = 0; i < 4; ++i) {
        QAccessibleInterface* part = spoken->child(i);
        QVERIFY(part && part->isValid());
        QCOMPARE(part->role(), QAccessible::CheckBox);
        QCOMPARE(part->text(QAccessible::Name), names.at(i));
        QCOMPARE(bool(part->state().checked), i == 2);
        QCOMPARE(part->parent(), spoken);
        QCOMPARE(spoken->indexOfChild(part), i);
        const QPoint middle = board->mapToGlobal(ShapeMeasure::middle(board->partPath(i)).toPoint());
        QCOMPARE(spoken->childAt(middle.x(), middle.y()), part);
        QVERIFY(part->rect().contains(middle));
    }

    // Pressing a part's check box colours it, as a click would.
    QSignalSpy changed(board, &ShapeBoard::changed);
    QAccessibleInterface* second = spoken->child(1);
    QVERIFY(second->actionInterface());
    second->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QCOMPARE(changed.count(), 1);
    QVERIFY(board->isColoured(1));
    QVERIFY(second->state().checked);
    QCOMPARE(second->text(QAccessible::Name), QStringLiteral("part 2 of 4, coloured"));
    QCOMPARE(spoken->text(QAccessible::Name), QStringLiteral("a square cut into 4 equal parts, 2 coloured"));

    // The keyboard cursor is the focused part.
    board->setFocus();
    QTest::keyClick(board, Qt::Key_Right);
    QCOMPARE(spoken->focusChild(), second);
    QVERIFY(second->state().focused);

    // A circle of 8 has 8 parts; a board only to be read offers no presses.
    board->setShape(ShapeKind::Circle, 8);
    board->setInteractive(false);
    QCOMPARE(spoken->childCount(), 8);
    QCOMPARE(spoken->text(QAccessible::Name), QStringLiteral("a circle cut into 8 equal parts, 0 coloured"));
    QCOMPARE(spoken->child(7)->text(QAccessible::Name), QStringLiteral("part 8 of 8, not coloured"));
    QVERIFY(spoken->child(7)->actionInterface()->actionNames().isEmpty());
    spoken->child(7)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(board->colouredCount(), 0);
}

QTEST_MAIN(TestShapeBoard)
#include "tst_shapeboard.moc"
