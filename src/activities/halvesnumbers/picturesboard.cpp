#include "picturesboard.h"

#include "fractions/halvesquestion.h"
#include "kit/parts/answerchain.h"
#include "kit/parts/picturerows.h"
#include "runtime/twips.h"

#include "runtime/pictures.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QPainter>

namespace {
constexpr double kBoxPoints = 24;
constexpr int kBoxWidth = 1200; // twips: two large digits
constexpr int kBoxHeight = 720;
constexpr int kGap = 120;
// On a worksheet the pictures stand in rows of ten, each this many twips.
constexpr int kSheetPicturesPerRow = 10;
constexpr double kSheetPicture = 380;
constexpr double kSheetPictureFill = 0.92; // of its place: a gap between pictures
} // namespace

PicturesBoard::PicturesBoard(QWidget* parent)
    : KitBoard(parent)
    , Picture2(new PictureRows(this))
    , m_chain(new AnswerChain(this))
{
    setObjectName(QStringLiteral("Board"));
    Picture2->setObjectName(QStringLiteral("Picture2"));
    AnswerBox::Options digits;
    digits.maxLength = HalvesOfNumbers::kAnswerDigits;
    Text1 = m_chain->addBox(this, QStringLiteral("Text1"), tr("your answer"),
                            Twips::font(QStringLiteral("Times New Roman"), kBoxPoints, true), digits);
    connect(m_chain, &AnswerChain::complete, this, &KitBoard::answered);
    connect(m_chain, &AnswerChain::refused, this, [this](QLineEdit*, AnswerChain::Reason reason) {
        const QString typed = reason == AnswerChain::Reason::Zero ? QStringLiteral("0") : QString();
        emit refused(HalvesOfNumbers::check(m_question, typed).statement);
    });
}

QString PicturesBoard::picname() const
{
    return Halves::setName(m_question.set);
}

void PicturesBoard::pose(Random::Source& rnd)
{
    m_question = HalvesOfNumbers::draw(rnd, m_asked ? &m_question : nullptr);
    m_asked = true;
    Picture2->setPictures(QString::fromLatin1(Halves::kPictureSets[m_question.set - 1].file), picname(),
                          m_question.amount);
    m_chain->clear();
}

QString PicturesBoard::instruction() const
{
    return m_question.instruction();
}

Verdict PicturesBoard::check()
{
    return HalvesOfNumbers::check(m_question, Text1->text());
}

QString PicturesBoard::hint()
{
    Picture2->showGroups(m_question.bottom, m_question.top);
    return HalvesOfNumbers::hint(m_question, picname());
}

void PicturesBoard::setAnswering(bool on)
{
    Text1->setReadOnly(!on);
}

void PicturesBoard::focusAnswer()
{
    Text1->setFocus();
}

void PicturesBoard::giveRightAnswer()
{
    Text1->setText(QString::number(m_question.answer()));
}

Worksheets::Sheet PicturesBoard::worksheet(Random::Source& rnd)
{
    return Worksheets::drawSheet<HalvesOfNumbers::Question>(
        QCoreApplication::translate("Activities", "Halves and Quarters 3"),
        QCoreApplication::translate("PicturesBoard", "Share the pictures into equal groups to find the answer."),
        [&rnd](const HalvesOfNumbers::Question* last) { return HalvesOfNumbers::draw(rnd, last); },
        [](const HalvesOfNumbers::Question& q) {
            Worksheets::Row row;
            row.question = q.instruction();
            row.answer = QString::number(q.answer());
            return withPictures(row, q.set, q.amount);
        });
}

Worksheets::Row PicturesBoard::withPictures(Worksheets::Row row, int set, int count)
{
    const int rows = (count + kSheetPicturesPerRow - 1) / kSheetPicturesPerRow;
    row.pictureHeight = rows * kSheetPicture;
    const QPixmap picture = Pictures::get(QString::fromLatin1(Halves::kPictureSets[set - 1].file));
    row.picture = [count, picture](QPainter& painter, const QRectF& box) {
        const double size = std::min(kSheetPicture, box.width() / kSheetPicturesPerRow);
        for (int n = 0; n < count; ++n)
            painter.drawPixmap(QRectF(box.left() + (n % kSheetPicturesPerRow) * size,
                                      box.top() + (n / kSheetPicturesPerRow) * size, size * kSheetPictureFill,
                                      size * kSheetPictureFill),
                               picture, QRectF(picture.rect()));
    };
    return row;
}

void PicturesBoard::resizeEvent(QResizeEvent*)
{
    const int boxWidth = Twips::toPixels(kBoxWidth);
    const int boxHeight = Twips::toPixels(kBoxHeight);
    const int gap = Twips::toPixels(kGap);
    Picture2->setGeometry(0, 0, width(), height() - boxHeight - gap);
    Text1->setGeometry((width() - boxWidth) / 2, height() - boxHeight, boxWidth, boxHeight);
}
