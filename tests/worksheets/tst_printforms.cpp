// The three worksheet screens: the edition's sheet, printed in its place, only after a Yes; a failing printer is told.
#include "pdfsupport.h"
#include "runtime/metafilebox.h"
#include "testsupport.h"
#include "worksheets/printforms.h"

#include <QPushButton>
#include <QtTest>

using namespace Module1;

class TestPrintForms : public QObject {
    Q_OBJECT
private slots:
    void init() { world.fresh(); pdfs = world.printToPdf(); }
    void cleanup() { PrintTarget::setPdfFolder(QString()); }

    void sheetFollowsTheEdition_data()
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

    void sheetFollowsTheEdition()
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
        const QStringList files = PdfSupport::files(pdfs);
        QCOMPARE(files.size(), 1);
        if (!PdfSupport::missingTool().isEmpty())
            QSKIP("poppler-utils is not installed");
        const QString text = PdfSupport::lines(files[0]).join(QLatin1Char(' '));
        QVERIFY2(text.contains(heading), qPrintable(text));

        // The sheet sits 1000 twips (50 points) in from the printable area's corner, at its own size.
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

    void asksFirstAndTellsAFailure_data()
    {
        QTest::addColumn<bool>("yes");
        QTest::addColumn<bool>("blocked"); // the printer fails
        QTest::newRow("yes") << true << false;
        QTest::newRow("no") << false << false;
        QTest::newRow("yes, the printer fails") << true << true;
    }

    void asksFirstAndTellsAFailure()
    {
        QFETCH(bool, yes);
        QFETCH(bool, blocked);
        version = QStringLiteral("0");
        yearlabel = QStringLiteral("Year 5");
        if (blocked)
            world.printToPdf(true);
        world.answer = yes ? MsgBox::Answer::Yes : MsgBox::Answer::No;
        QCOMPARE(Worksheets::askAndPrint(QStringLiteral("y5fracprint4")), yes && !blocked);
        QStringList told;
        for (const MsgBox::Request& m : std::as_const(world.messages))
            told << m.text + (m.buttons == MsgBox::Buttons::YesNo ? QStringLiteral(" (Yes, No: %1)").arg(m.title) : QString());
        QStringList expected{"Do you really want to print? (Yes, No: Year 5)"};
        if (blocked)
            expected << "There was a problem printing to your printer.";
        QCOMPARE(told, expected);
        QCOMPARE(PdfSupport::files(pdfs).size(), yes && !blocked ? 1 : 0);
        TestSupport::flushUnloads();
        QVERIFY(TestSupport::visibleForms().isEmpty());
    }

private:
    TestSupport::World world;
    QString pdfs;
};

QTEST_MAIN(TestPrintForms)
#include "tst_printforms.moc"
