#include "namingboard.h"

#include "fractions/halvesquestion.h"
#include "kit/parts/answerchain.h"
#include "kit/parts/drawingstyle.h"
#include "kit/parts/hundredsquare.h"
#include "kit/parts/picturerows.h"
#include "kit/parts/shapeboard.h"
#include "namingsheet.h"
#include "runtime/twips.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QPainter>

namespace {
constexpr double kBoxPoints = 20;
constexpr int kBoxWidth = 1200; // twips: three large digits
constexpr int kBoxHeight = 600;
constexpr int kBarHeight = 300; // the room between the boxes, where the fraction's line is drawn
constexpr int kBarThickness = 60;
constexpr int kGap = 90; // between the picture and the top box
} // namespace

NamingBoard::NamingBoard(NameFraction::Mode mode, QWidget* parent)
    : KitBoard(parent)
    , Shape1(new ShapeBoard(this))
    , Square1(new HundredSquare(this))
    , Picture2(new PictureRows(this))
    , m_mode(mode)
    , m_chain(new AnswerChain(this))
{
    setObjectName(QStringLiteral("Board"));
    Shape1->setObjectName(QStringLiteral("Shape1"));
    Square1->setObjectName(QStringLiteral("Square1"));
    Picture2->setObjectName(QStringLiteral("Picture2"));
    Shape1->setInteractive(false);
    Shape1->setShadedWords(true);
    Square1->hide();
    Picture2->hide();

    AnswerBox::Options digits;
    digits.maxLength = NameFraction::answerDigits(mode);
    const QFont font = Twips::font(QStringLiteral("Times New Roman"), kBoxPoints, true);
    Text1 = m_chain->addBox(this, QStringLiteral("Text1"), tr("top number"), font, digits);
    Text2 = m_chain->addBox(this, QStringLiteral("Text2"), tr("bottom number"), font, digits);
    connect(m_chain, &AnswerChain::complete, this, &KitBoard::answered);
    connect(m_chain, &AnswerChain::refused, this, [this](QLineEdit* box, AnswerChain::Reason reason) {
        // The check's own words: a zero in the box refused, a number in the other.
        QString top, bottom;
        if (reason == AnswerChain::Reason::Zero) {
            top = box == Text1 ? QStringLiteral("0") : QStringLiteral("1");
            bottom = box == Text2 ? QStringLiteral("0") : QStringLiteral("1");
        }
        emit refused(NameFraction::check(m_question, top, bottom).statement);
    });
}

void NamingBoard::pose(Random::Source& rnd)
{
    m_question = NameFraction::draw(m_mode, rnd, m_asked ? &m_question : nullptr);
    m_asked = true;
    const NameFraction::Question& q = m_question;
    Shape1->setVisible(q.picture == NameFraction::Picture::Shape);
    Square1->setVisible(q.picture == NameFraction::Picture::HundredSquare);
    Picture2->setVisible(q.picture == NameFraction::Picture::Pictures);
    switch (q.picture) {
    case NameFraction::Picture::Shape: {
        Shape1->setShape(q.kind, q.parts);
        Shape1->setNumbered(false);
        QVector<bool> shaded(q.parts, false);
        std::fill(shaded.begin(), shaded.begin() + q.shaded, true);
        Shape1->setColoured(shaded);
        break;
    }
    case NameFraction::Picture::HundredSquare:
        Square1->setShaded(q.shaded, false);
        break;
    case NameFraction::Picture::Pictures:
        Picture2->setPictures(QString::fromLatin1(Halves::kPictureSets[q.set - 1].file), Halves::setName(q.set),
                              q.parts);
        Picture2->setRinged(q.shaded);
        break;
    }
    m_chain->clear();
}

QString NamingBoard::instruction() const
{
    return m_question.instruction();
}

Verdict NamingBoard::check()
{
    return NameFraction::check(m_question, Text1->text(), Text2->text());
}

QString NamingBoard::hint()
{
    // The parts counted in the picture: each shape part or picture numbered.
    Shape1->setNumbered(true);
    Picture2->setNumbered(true);
    return NameFraction::hint(m_question);
}

void NamingBoard::setAnswering(bool on)
{
    Text1->setReadOnly(!on);
    Text2->setReadOnly(!on);
}

void NamingBoard::focusAnswer()
{
    // The first box still empty: after a refused bottom number, the bottom box.
    const bool onlyBottomEmpty = !Text1->text().isEmpty() && Text2->text().isEmpty();
    (onlyBottomEmpty ? Text2 : Text1)->setFocus();
}

void NamingBoard::giveRightAnswer()
{
    Text1->setText(QString::number(m_question.shaded));
    Text2->setText(QString::number(m_question.parts));
}

namespace {
Worksheets::Sheet namingSheet(NameFraction::Mode mode, const char* title, Random::Source& rnd)
{
    return Worksheets::drawSheet<NameFraction::Question>(
        QCoreApplication::translate("Activities", title),
        QCoreApplication::translate("NamingBoard", "Write the fraction each picture shows: the top number over the bottom number."),
        [&rnd, mode](const NameFraction::Question* last) { return NameFraction::draw(mode, rnd, last); },
        [](const NameFraction::Question& q) {
            Worksheets::Row row;
            row.question = q.instruction();
            row.answer = NameFraction::counted(q);
            row.pictureHeight = NamingSheet::pictureHeight(q);
            row.picture = [q](QPainter& painter, const QRectF& box) { NamingSheet::paintPicture(painter, box, q); };
            return row;
        });
}
} // namespace

Worksheets::Sheet NamingBoard::year3Worksheet(Random::Source& rnd)
{
    return namingSheet(NameFraction::Mode::Year3Shapes, "Halves, Quarters, Thirds and Tenths 2", rnd);
}

Worksheets::Sheet NamingBoard::year4Worksheet(Random::Source& rnd)
{
    return namingSheet(NameFraction::Mode::Year4Pictures, "Write A Fraction", rnd);
}

QRect NamingBoard::fractionBar() const
{
    const int boxWidth = Twips::toPixels(kBoxWidth);
    const int thickness = std::max(1, Twips::toPixels(kBarThickness));
    const int middle = height() - Twips::toPixels(kBoxHeight) - Twips::toPixels(kBarHeight) / 2;
    return QRect((width() - boxWidth) / 2, middle - thickness / 2, boxWidth, thickness);
}

void NamingBoard::resizeEvent(QResizeEvent*)
{
    const int boxWidth = Twips::toPixels(kBoxWidth);
    const int boxHeight = Twips::toPixels(kBoxHeight);
    const int bar = Twips::toPixels(kBarHeight);
    const int pictureHeight = height() - 2 * boxHeight - bar - Twips::toPixels(kGap);
    for (QWidget* picture : {static_cast<QWidget*>(Shape1), static_cast<QWidget*>(Square1),
                             static_cast<QWidget*>(Picture2)})
        picture->setGeometry(0, 0, width(), pictureHeight);
    const int left = (width() - boxWidth) / 2;
    Text2->setGeometry(left, height() - boxHeight, boxWidth, boxHeight);
    Text1->setGeometry(left, height() - 2 * boxHeight - bar, boxWidth, boxHeight);
}

void NamingBoard::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(fractionBar(), DrawingStyle::kBoard);
}
