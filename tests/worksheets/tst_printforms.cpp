#include "pdfsupport.h"
#include "runtime/metafilebox.h"
#include "runtime/printer.h"
#include "testsupport.h"
#include "worksheets/printforms.h"

#include <QPushButton>
#include <QtTest>

using namespace Module1;

class TestPrintForms : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup() { PrintTarget::setPdfFolder(QString()); }
    void sheetFollowsTheEdition_data();
    void sheetFollowsTheEdition();
    void printsOnlyWhenTheAnswerIsYes_data();
    void printsOnlyWhenTheAnswerIsYes();
    void aFailingPrinterIsTold();

private:
    TestSupport::World world;
    std::unique_ptr<QTemporaryDir> pdfs;
};

void TestPrintForms::init()
{
    world.fresh();
    pdfs = std::make_unique<QTemporaryDir>();
    PrintTarget::setPdfFolder(pdfs->path());
}

void TestPrintForms::sheetFollowsTheEdition_data()
{
    QTest::addColumn<QString>("form");
    QTest::addColumn<QString>("edition");
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<QString>("heading"); // words the printed sheet must carry
    QTest::newRow("halves, primary") << "y2fracprint1" << "0" << "wmf\\y2print1.wmf" << "Year 2";
    QTest::newRow("halves, secondary") << "y2fracprint1" << "1" << "wmf\\u1print1.wmf" << "Unit 1";
    QTest::newRow("halves, not chosen") << "y2fracprint1" << "-1" << "wmf\\y2print1.wmf" << "Year 2";
    QTest::newRow("mixed, primary") << "y5fracprint4" << "0" << "wmf\\y5print4.wmf" << "Year 5";
    QTest::newRow("mixed, secondary") << "y5fracprint4" << "1" << "wmf\\u4print4.wmf" << "Unit 4";
    QTest::newRow("ordering, primary") << "y6fracprint3" << "0" << "wmf\\y6print3.wmf" << "Year 6";
    QTest::newRow("ordering, secondary") << "y6fracprint3" << "1" << "wmf\\u5print3.wmf" << "Unit 5";
}

void TestPrintForms::sheetFollowsTheEdition()
{
    QFETCH(QString, form);
    QFETCH(QString, edition);
    QFETCH(QString, sheet);
    QFETCH(QString, heading);
    version = edition;
    auto* printForm = qobject_cast<WorksheetForm*>(Forms::load(form));
    QVERIFY(printForm);
    QCOMPARE(printForm->windowTitle(), QStringLiteral("Form1"));
    QCOMPARE(printForm->Command1->text(), QStringLiteral("Print a worksheet"));
    QCOMPARE(printForm->Picture1->picturePath(), sheet);
    QVERIFY(!printForm->isVisible());

    // The form's own button prints without asking.
    const double margin = (PdfSupport::kPageWidthPt - printer().scaleWidth() / 20) / 2;
    printForm->Command1->click();
    QVERIFY(world.messages.isEmpty());
    const QStringList files = PdfSupport::files(pdfs->path());
    QCOMPARE(files.size(), 1);
    if (!PdfSupport::missingTool().isEmpty())
        QSKIP("poppler-utils is not installed");
    const QString text = PdfSupport::lines(files[0]).join(QLatin1Char(' '));
    QVERIFY2(text.contains(heading), qPrintable(text));

    // The sheet sits 1000 twips (50 points) in from the printable area's
    // corner, at its own size.
    const double corner = margin + 50;
    const QSizeF size = printForm->Picture1->picture()->sizeInTwips();
    const QImage page = PdfSupport::render(files[0], 72);
    QRect inked;
    for (int y = 0; y < page.height(); ++y)
        for (int x = 0; x < page.width(); ++x)
            if (qGray(page.pixel(x, y)) < 200)
                inked |= QRect(x, y, 1, 1);
    const QString where = QStringLiteral("%1,%2 %3x%4").arg(inked.x()).arg(inked.y()).arg(inked.width()).arg(inked.height());
    QVERIFY2(inked.left() >= corner - 2 && inked.top() >= corner - 2, qPrintable(where));
    QVERIFY2(inked.right() <= corner + size.width() / 20 + 2, qPrintable(where));
    QVERIFY2(inked.bottom() <= corner + size.height() / 20 + 2, qPrintable(where));
    QVERIFY(inked.width() > size.width() / 20 * 0.6);
}

void TestPrintForms::printsOnlyWhenTheAnswerIsYes_data()
{
    QTest::addColumn<bool>("yes");
    QTest::newRow("yes") << true;
    QTest::newRow("no") << false;
}

void TestPrintForms::printsOnlyWhenTheAnswerIsYes()
{
    QFETCH(bool, yes);
    version = QStringLiteral("0");
    yearlabel = QStringLiteral("Year 5");
    world.answer = yes ? MsgBox::Answer::Yes : MsgBox::Answer::No;
    QCOMPARE(Worksheets::askAndPrint(QStringLiteral("y5fracprint4")), yes);
    QCOMPARE(world.messages.size(), 1);
    QCOMPARE(world.messages[0].text, QStringLiteral("Do you really want to print?"));
    QCOMPARE(world.messages[0].title, QStringLiteral("Year 5"));
    QCOMPARE(world.messages[0].buttons, MsgBox::Buttons::YesNo);
    QCOMPARE(PdfSupport::files(pdfs->path()).size(), yes ? 1 : 0);
    TestSupport::flushUnloads();
    QVERIFY(TestSupport::visibleForms().isEmpty());
}

void TestPrintForms::aFailingPrinterIsTold()
{
    const QString blocked = pdfs->filePath(QStringLiteral("blocked"));
    TestSupport::writeBytes(blocked, "not a folder");
    PrintTarget::setPdfFolder(blocked);
    version = QStringLiteral("1");
    world.answer = MsgBox::Answer::Yes;
    QVERIFY(!Worksheets::askAndPrint(QStringLiteral("y6fracprint3")));
    QCOMPARE(world.messages.size(), 2);
    QCOMPARE(world.messages[1].text, QStringLiteral("There was a problem printing to your printer."));
}

QTEST_MAIN(TestPrintForms)
#include "tst_printforms.moc"
