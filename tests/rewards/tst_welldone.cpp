#include "pdfsupport.h"
#include "rewards/celebrations.h"
#include "rewards/welldone.h"
#include "runtime/formtimer.h"
#include "runtime/picturebox.h"
#include "runtime/printer.h"
#include "testsupport.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

#include <algorithm>

using namespace Module1;

namespace {
Welldone* showWelldone(int challengeState)
{
    challenge = challengeState;
    showwelldone(QString());
    return Forms::find<Welldone>();
}
} // namespace

class TestWelldone : public QObject {
    Q_OBJECT
    TestSupport::World world;
    QString pdfs;
    int printed() const { return int(PdfSupport::files(pdfs).size()); }

private slots:
    void init()
    {
        world.fresh();
        pdfs = world.printToPdf();
        activitytitle = QStringLiteral("Halves and Quarters 1");
        yearlabel = QStringLiteral("Year 2");
    }
    void cleanup() { PrintTarget::setPdfFolder(QString()); }

    void showingAndCertificate_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<QString>("name");
        QTest::newRow("practice") << 0 << "Amelia Jones";
        QTest::newRow("practice, no name") << 0 << "";
        QTest::newRow("challenge") << 1 << "Tom";
        QTest::newRow("challenge after a retry") << 2 << "Priya";
    }

    void showingAndCertificate()
    {
        QFETCH(int, state);
        QFETCH(QString, name);
        const bool practice = state == 0;
        counter = 17;
        streak = 20;
        questions = 10;
        Welldone* form = showWelldone(state);
        QVERIFY(form && form->isVisible());
        QCOMPARE(form->windowTitle(), QStringLiteral("Well Done!"));
        QVERIFY(counter == 0 && questions == 20);
        QCOMPARE(form->Label1->text(), practice ? "Excellent work you have completed this task successfully"
                                                : "Congratulations!!! You have risen to the Challenge.");
        QCOMPARE(form->Timer1->isEnabled(), !practice); // only the Challenge celebrates
        QVERIFY(form->Timer4->isEnabled());
        if (!PdfSupport::missingTool().isEmpty())
            QSKIP("poppler-utils is not installed");

        form->Text1->setText(name);
        form->Command2->click();
        QVERIFY(world.messages.isEmpty());
        QCOMPARE(challenge, state); // printing leaves the run's state alone
        const QStringList pdfFiles = PdfSupport::files(pdfs);
        QCOMPARE(pdfFiles.size(), 1);
        const QStringList lines = PdfSupport::lines(pdfFiles[0]);
        const QString all = lines.join(QLatin1Char('\n'));
        QVERIFY2(all.count(QStringLiteral("Well Done")) == 8, qPrintable(all));
        const int product = lines.indexOf(QStringLiteral("Partitude"));
        const int title = lines.indexOf(QStringLiteral("Halves and Quarters 1"));
        const int head = lines.indexOf(practice ? "Excellent!" : "Congratulations!!!");
        const int said = lines.indexOf(practice ? "you have completed the work successfully" : "you have risen to the Challenge");
        QVERIFY2(product >= 0 && title > product && head > title && said > head, qPrintable(all));
        if (name.isEmpty())
            QCOMPARE(said - head, 2); // the rule under the empty name, then the sentence
        else
            QVERIFY(lines.indexOf(name) > head && lines.indexOf(name) < said);
        QVERIFY(all.contains(QStringLiteral("Year 2")));
        QVERIFY(!all.contains(practice ? QStringLiteral("Congratulations") : QStringLiteral("Excellent")));

        // A landscape page with the words centred and the frame drawn in black.
        for (const PdfSupport::Word& w : PdfSupport::words(pdfFiles[0]))
            if (w.text == QLatin1String("Partitude"))
                QVERIFY(qAbs(w.box.center().x() - PdfSupport::kPageHeightPt / 2) < 4);
        const QImage page = PdfSupport::render(pdfFiles[0], 40);
        QVERIFY(page.width() > page.height());
        QCOMPARE(QColor(page.pixel(page.width() / 2, 10)), QColor(Qt::white));
    }

    // ENTER in the name box prints once per showing; a new showing may print again.
    void enterPrintsOncePerShowing()
    {
        Welldone* form = showWelldone(1);
        form->Text1->setText(QStringLiteral("Sam"));
        QTest::keyClick(form->Text1, Qt::Key_A);
        QCOMPARE(form->Text1->text(), QStringLiteral("Sama"));
        QCOMPARE(printed(), 0);
        QTest::keyClick(form->Text1, Qt::Key_Return);
        QVERIFY(printed() == 1 && !form->Command2->isEnabled());
        QTest::keyClick(form->Text1, Qt::Key_Enter);
        form->Command2->click();
        QCOMPARE(printed(), 1);
        showWelldone(1)->Command2->click();
        QCOMPARE(printed(), 2);
    }

    // A PDF "folder" that is a file cannot be written to; the printer tries afresh next time.
    void aPageThatCannotOpenIsTold()
    {
        world.printToPdf(true);
        Welldone* form = showWelldone(0);
        form->Command2->click();
        QCOMPARE(world.messages.size(), 1);
        QCOMPARE(world.messages[0].text, QStringLiteral("There was a problem printing to your printer."));
        QCOMPARE(world.messages[0].buttons, MsgBox::Buttons::Ok);
        QVERIFY(!form->Command2->isEnabled() && form->isVisible());
        PrintTarget::setPdfFolder(pdfs);
        showWelldone(0)->Command2->click();
        QVERIFY(world.messages.size() == 1 && printed() == 1);
    }

    void leavingArmsTheChallenge()
    {
        showWelldone(0)->cmdexit->click();
        TestSupport::flushUnloads();
        QCOMPARE(challenge, 1);
        QVERIFY(!Forms::isLoaded(QStringLiteral("Welldone")));

        showWelldone(2);
        QCloseEvent close;
        QCoreApplication::sendEvent(Forms::find<Welldone>(), &close); // not from the window system
        QVERIFY(Forms::isLoaded(QStringLiteral("Welldone")));
        Forms::find<Welldone>()->cmdexit_Click();
        QCOMPARE(challenge, 1);
        QVERIFY(!Forms::programEnded());
    }

    void celebrationLoopsItsFrames()
    {
        Welldone* form = showWelldone(1);
        form->Timer1_Timer();
        QVERIFY(!form->Timer1->isEnabled() && form->Timer3->isEnabled());
        const QString base = form->animationBase();
        const int frames = form->animationFrames();
        QVERIFY(std::any_of(std::begin(kCelebrations), std::end(kCelebrations),
                            [&](const Celebration& c) { return base == QLatin1String(c.base) && frames == c.frames; }));
        form->Timer3_Timer();
        QCOMPARE(form->Picture1->picturePath(), base + QStringLiteral("01.jpg"));
        for (int i = 2; i < frames; ++i)
            form->Timer3_Timer();
        QCOMPARE(form->Picture1->picturePath(), base + QString::number(frames - 1) + QStringLiteral(".jpg"));
        form->Timer3_Timer();
        QCOMPARE(form->Picture1->picturePath(), base + QStringLiteral("00.jpg"));

        // Every celebration comes up in a run of showings.
        QSet<QString> chosen;
        for (int i = 0; i < 60; ++i) {
            Welldone* again = showWelldone(1);
            again->Timer1_Timer();
            chosen << again->animationBase();
        }
        QCOMPARE(chosen.size(), kCelebrationCount);
    }
};

QTEST_MAIN(TestWelldone)
#include "tst_welldone.moc"
