// Every activity whose worksheet is made from its own questions, printed from
// its screen: the question is asked once, then the sheet holds 12 fresh
// questions from the activity's generator and a page with their answers.
#include "activitytest.h"
#include "sheetcheck.h"

class TestActivitySheets : public QObject {
    Q_OBJECT
private slots:
    void init() { world.fresh(); }
    void printedFromTheScreen_data();
    void printedFromTheScreen();

private:
    TestSupport::World world;
};

void TestActivitySheets::printedFromTheScreen_data()
{
    QTest::addColumn<QString>("screen");
    for (const Activities::Row& row : Activities::all())
        if (row.sheet)
            QTest::newRow(row.screen) << QString::fromLatin1(row.screen);
}

void TestActivitySheets::printedFromTheScreen()
{
    if (!PdfSupport::missingTool().isEmpty())
        QSKIP("poppler-utils is not installed");
    QFETCH(QString, screen);
    auto* form = ActivityTest::open<ActivityForm>(screen);
    QVERIFY(form);
    world.answer = MsgBox::Answer::Yes;
    QCOMPARE(SheetCheck::printAndRead(form->cmdprint, Activities::forScreen(screen)->sheet), QString());
    QCOMPARE(world.messages.size(), 1);
    QCOMPARE(world.messages[0].text, QStringLiteral("Do you really want to print?"));
}

QTEST_MAIN(TestActivitySheets)
#include "tst_activitysheets.moc"
