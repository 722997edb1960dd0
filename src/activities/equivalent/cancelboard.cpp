#include "cancelboard.h"

#include "fractionline.h"
#include "fractions/fraction.h"
#include "kit/parts/answerchain.h"

#include <QCoreApplication>
#include <QLineEdit>

CancelBoard::CancelBoard(QWidget* parent)
    : KitBoard(parent)
    , Picture2(new FractionLine(this))
    , m_chain(new AnswerChain(this))
{
    setObjectName(QStringLiteral("Board"));
    Picture2->setObjectName(QStringLiteral("Picture2"));
    Text1 = Picture2->addBox(m_chain, QStringLiteral("Text1"), tr("top number"), Cancelling::kAnswerDigits);
    Text2 = Picture2->addBox(m_chain, QStringLiteral("Text2"), tr("bottom number"), Cancelling::kAnswerDigits);
    connect(m_chain, &AnswerChain::complete, this, &KitBoard::answered);
    connect(m_chain, &AnswerChain::refused, this,
            [this](QLineEdit*, AnswerChain::Reason) { emit refused(check().statement); });
}

void CancelBoard::pose(Random::Source& rnd)
{
    showQuestion(Cancelling::draw(rnd, m_asked ? &m_question : nullptr));
}

void CancelBoard::showQuestion(const Cancelling::Question& question)
{
    m_question = question;
    m_asked = true;
    m_chain->clear();
    Picture2->setFractions({{{question.top(), nullptr}, {question.bottom(), nullptr}}, {{0, Text1}, {0, Text2}}});
    Picture2->setNotes({});
    //: the fraction to cancel, before the answer boxes: "eighteen 24ths equals"
    Picture2->setAccessibleName(tr("%1 equals").arg(Fractions::words(question.top(), question.bottom())));
}

QString CancelBoard::instruction() const
{
    return m_question.instruction();
}

Verdict CancelBoard::check()
{
    return Cancelling::check(m_question, Text1->text(), Text2->text());
}

QString CancelBoard::hint()
{
    Picture2->setNotes({QString(), QStringLiteral("÷ %1").arg(m_question.factor)});
    return Cancelling::hint(m_question);
}

void CancelBoard::setAnswering(bool on)
{
    Text1->setReadOnly(!on);
    Text2->setReadOnly(!on);
}

void CancelBoard::focusAnswer()
{
    (Text1->text().isEmpty() || !Text2->text().isEmpty() ? Text1 : Text2)->setFocus();
}

void CancelBoard::giveRightAnswer()
{
    Text1->setText(QString::number(m_question.simplestTop));
    Text2->setText(QString::number(m_question.simplestBottom));
}

Worksheets::Sheet CancelBoard::worksheet(Random::Source& rnd)
{
    return Worksheets::drawSheet<Cancelling::Question>(
        QCoreApplication::translate("Activities", "Cancelling"),
        QCoreApplication::translate("CancelBoard", "Cancel each fraction to its simplest form."),
        [&rnd](const Cancelling::Question* last) { return Cancelling::draw(rnd, last); },
        [](const Cancelling::Question& q) {
            Worksheets::Row row;
            row.question = q.instruction();
            row.answer = q.answerText();
            return row;
        });
}

void CancelBoard::resizeEvent(QResizeEvent*)
{
    Picture2->setGeometry(rect());
}
