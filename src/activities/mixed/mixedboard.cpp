#include "mixedboard.h"

#include "fractions/fraction.h"
#include "kit/parts/answerchain.h"
#include "mixedpanel.h"
#include "runtime/spoken.h"
#include "runtime/twips.h"
#include "shell/module1.h"

#include <QCoreApplication>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>

using namespace MixedPanel;

namespace {
constexpr int kTwoDigits = AnswerBox::kTwoDigits;
constexpr int kProductHeight = 720; // twips, under the panel
constexpr int kProductGap = 120;
constexpr double kProductPoints = 20;

QLineEdit* addBox(AnswerChain* chain, QFrame* panel, const char* name, const QString& spoken, QLabel* place,
                  int digits = kTwoDigits)
{
    const AnswerBox::Options options{digits, false};
    QLineEdit* box = chain->addBox(panel, QString::fromLatin1(name), spoken,
                                   Twips::font(QStringLiteral("Times New Roman"), kNumberPoints, true), options);
    box->setStyleSheet(boxStyle());
    box->setGeometry(place->geometry());
    box->raise();
    return box;
}
} // namespace

MixedBoard::MixedBoard(const MixedQuestion::Range& range, QWidget* parent)
    : KitBoard(parent)
    , m_range(range)
    , m_toMixed(new AnswerChain(this))
    , m_toImproper(new AnswerChain(this))
{
    setObjectName(QStringLiteral("Board"));
    const int figures = QString::number(range.largestImproperNumerator()).size();
    const int improperWidth = improperCellWidth(figures);
    const QColor paper = Module1::kPanelPaper;

    // An improper fraction = a mixed number. The answer's places are empty
    // cells under the boxes.
    Picture2 = panel(this, "Picture2", 0, 0, kWidth, kHeight, paper);
    const Row toMixed = toMixedRow(improperWidth);
    Label7 = number(Picture2, "Label7", toMixed.improper, kNumeratorTop, improperWidth);
    QFrame* line1 = bar(Picture2, "Line1", toMixed.improper, improperWidth);
    Label9 = number(Picture2, "Label9", toMixed.improper, kDenominatorTop, improperWidth);
    QLabel* equals1 = MixedPanel::equals(Picture2, "Label11", toMixed.equals);
    QLabel* whole = number(Picture2, "Label12", toMixed.whole, kBesideTop);
    QLabel* top = number(Picture2, "Label8", toMixed.fraction, kNumeratorTop);
    QFrame* line2 = bar(Picture2, "Line2", toMixed.fraction);
    QLabel* bottom = number(Picture2, "Label10", toMixed.fraction, kDenominatorTop);
    Text1 = addBox(m_toMixed, Picture2, "Text1", tr("whole number"), whole);
    Text4 = addBox(m_toMixed, Picture2, "Text4", tr("top number"), top);
    Text2 = addBox(m_toMixed, Picture2, "Text2", tr("bottom number"), bottom);

    // A mixed number = an improper fraction.
    Picture3 = panel(this, "Picture3", 0, 0, kWidth, kHeight, paper);
    const Row toImproper = toImproperRow(improperWidth);
    Label19 = number(Picture3, "Label19", toImproper.whole, kBesideTop, kCellWidth, Qt::AlignRight | Qt::AlignVCenter);
    Label16 = number(Picture3, "Label16", toImproper.fraction, kNumeratorTop);
    QFrame* line3 = bar(Picture3, "Line3", toImproper.fraction);
    Label15 = number(Picture3, "Label15", toImproper.fraction, kDenominatorTop);
    QLabel* equals2 = MixedPanel::equals(Picture3, "Label13", toImproper.equals);
    QLabel* improperTop = number(Picture3, "Label17", toImproper.improper, kNumeratorTop, improperWidth);
    QFrame* line4 = bar(Picture3, "Line4", toImproper.improper, improperWidth);
    QLabel* improperBottom = number(Picture3, "Label14", toImproper.improper, kDenominatorTop, improperWidth);
    Text3 = addBox(m_toImproper, Picture3, "Text3", tr("top number"), improperTop, figures);
    Text5 = addBox(m_toImproper, Picture3, "Text5", tr("bottom number"), improperBottom);

    // Each panel is read as one sentence in words; only its boxes are kept in.
    for (QFrame* p : {Picture2, Picture3})
        Spoken::readAsOne(p);
    for (QWidget* w : std::initializer_list<QWidget*>{Label7, line1, Label9, equals1, whole, top, line2, bottom,
                                                        Label19, Label16, line3, Label15, equals2, improperTop,
                                                        line4, improperBottom})
        Spoken::partOfGroupName(w);
    Picture2->hide();
    Picture3->hide();

    Label20 = new QLabel(this);
    Label20->setObjectName(QStringLiteral("Label20"));
    Label20->setFont(Twips::font(QStringLiteral("Times New Roman"), kProductPoints, true));
    Label20->setAlignment(Qt::AlignCenter);
    QPalette ink = Label20->palette();
    ink.setColor(QPalette::WindowText, Module1::kPanelPaper);
    Label20->setPalette(ink);
    Spoken::markAsMessage(Label20);
    Label20->hide();

    for (AnswerChain* c : {m_toMixed, m_toImproper}) {
        connect(c, &AnswerChain::complete, this, &KitBoard::answered);
        connect(c, &AnswerChain::refused, this, [this](QLineEdit*, AnswerChain::Reason reason) {
            emit refused(reason == AnswerChain::Reason::Zero ? tr("0 is never the answer here.")
                                                             : m_question.check({}).statement);
        });
    }
}

AnswerChain* MixedBoard::chain() const
{
    return m_question.direction == MixedQuestion::kToMixed ? m_toMixed : m_toImproper;
}

void MixedBoard::pose(Random::Source& rnd)
{
    showQuestion(MixedQuestion::draw(rnd, m_range, m_asked ? &m_question : nullptr));
    m_asked = true;
}

void MixedBoard::showQuestion(const MixedQuestion& question)
{
    m_question = question;
    const bool toMixed = question.direction == MixedQuestion::kToMixed;
    Picture2->setVisible(toMixed);
    Picture3->setVisible(!toMixed);
    Label20->hide();
    if (toMixed) {
        Label7->setText(QString::number(question.improperNumerator()));
        Label9->setText(QString::number(question.denom));
        Picture2->setAccessibleName(tr("%1 equals").arg(Fractions::words(question.improperNumerator(), question.denom)));
    } else {
        Label19->setText(QString::number(question.whole));
        Label16->setText(QString::number(question.numer));
        Label15->setText(QString::number(question.denom));
        Picture3->setAccessibleName(
            tr("%1 equals").arg(Fractions::mixedWords(question.whole, question.numer, question.denom)));
    }
    m_toMixed->clear();
    m_toImproper->clear();
}

QString MixedBoard::instruction() const
{
    return m_question.instruction(true);
}

Verdict MixedBoard::check()
{
    return m_question.check(chain()->values());
}

QString MixedBoard::hint()
{
    const QString product = m_question.productText();
    if (!product.isEmpty()) {
        Label20->setText(product);
        // "2 x 4 = 8" read out as a child says it.
        Label20->setAccessibleName(
            tr("%1 times %2 is %3").arg(m_question.whole).arg(m_question.denom).arg(m_question.whole * m_question.denom));
        Label20->show();
        Spoken::showMessage(Label20);
    }
    return m_question.hintText();
}

void MixedBoard::setAnswering(bool on)
{
    for (AnswerChain* c : {m_toMixed, m_toImproper})
        for (QLineEdit* box : c->boxes())
            box->setReadOnly(!on);
}

void MixedBoard::focusAnswer()
{
    // Where the child types next: the first empty box, or the last one.
    const QList<QLineEdit*>& boxes = chain()->boxes();
    for (QLineEdit* box : boxes) {
        if (box->text().isEmpty()) {
            box->setFocus();
            return;
        }
    }
    boxes.last()->setFocus();
}

void MixedBoard::giveRightAnswer()
{
    const QList<int> right = m_question.answerNumbers();
    const QList<QLineEdit*>& boxes = chain()->boxes();
    for (int i = 0; i < boxes.size(); ++i)
        boxes[i]->setText(QString::number(right[i]));
}

Worksheets::Sheet MixedBoard::worksheet(Random::Source& rnd, const MixedQuestion::Range& range, const QString& title)
{
    const QString instruction = range.direction == MixedQuestion::kToMixed
        ? tr("Change each improper fraction to a mixed number.")
        : range.direction == MixedQuestion::kToImproper
        ? tr("Change each mixed number to an improper fraction.")
        : tr("Change each improper fraction to a mixed number, and each mixed number to an improper fraction.");
    return Worksheets::drawSheet<MixedQuestion>(
        title, instruction, [&rnd, &range](const MixedQuestion* last) { return MixedQuestion::draw(rnd, range, last); },
        [](const MixedQuestion& q) {
            Worksheets::Row row;
            row.question = q.instruction(false);
            row.answer = q.answerText();
            return row;
        });
}

void MixedBoard::resizeEvent(QResizeEvent*)
{
    // The panel across the top middle, the product under it.
    const int left = (width() - Picture2->width()) / 2;
    Picture2->move(left, 0);
    Picture3->move(left, 0);
    Label20->setGeometry(left, Picture2->height() + Twips::toPixels(kProductGap), Picture2->width(),
                         Twips::toPixels(kProductHeight));
}
