// Every activity's own-question worksheet, printed from its screen: asked once, 12 fresh questions and their answers.
#include "activitytest.h"
#include "sheetcheck.h"

class TestActivitySheets : public QObject {
    Q_OBJECT
private slots:
    void init() { world.fresh(); }

    void printedFromTheScreen_data()
    {
        QTest::addColumn<QString>("screen");
        for (const Activities::Row& row : Activities::all())
            if (row.sheet)
                QTest::newRow(row.screen) << QString::fromLatin1(row.screen);
    }

    void printedFromTheScreen()
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

private:
    TestSupport::World world;
};

QTEST_MAIN(TestActivitySheets)
#include "tst_activitysheets.moc"
