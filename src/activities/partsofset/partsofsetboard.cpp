#include "partsofsetboard.h"

#include "activities/halves/picturecell.h"
#include "activities/halvesnumbers/picturesboard.h"
#include "fractions/halvesquestion.h"
#include "kit/parts/drawingstyle.h"
#include "runtime/spoken.h"
#include "runtime/twips.h"
#include "shell/activityform.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>

namespace {
constexpr int kRows = PartsOfSet::kMostPictures / PartsOfSet::kRowLength;
constexpr int kCellGap = 90;       // twips between cells
constexpr int kProgressHeight = 330; // twips: one line under the pictures
constexpr double kProgressPoints = 12;
const QColor kProgressInk{255, 236, 120};
} // namespace

PartsOfSetBoard::PartsOfSetBoard(QWidget* parent)
    : KitBoard(parent)
    , Label9(wordLabel(this, QStringLiteral("Label9"), QString(), kProgressPoints, kProgressInk))
{
    setObjectName(QStringLiteral("PartsOfSetBoard"));
    Spoken::markAsMessage(Label9);
    Label9->hide();
    for (int i = 0; i < PartsOfSet::kMostPictures; ++i) {
        auto* cell = new PictureCell(this, i);
        cell->hide();
        cell->installEventFilter(this);
        connect(cell, &QAbstractButton::clicked, this, [this, i] { toggle(i); });
        Image1.append(cell);
    }
}

int PartsOfSetBoard::chosenCount() const
{
    int count = 0;
    for (const PictureCell* cell : Image1)
        count += cell->isVisibleTo(this) && cell->isSelected();
    return count;
}

void PartsOfSetBoard::pose(Random::Source& rnd)
{
    m_question = PartsOfSet::draw(rnd, m_asked ? &m_question : nullptr);
    m_asked = true;
    const QString file = QString::fromLatin1(Halves::kPictureSets[m_question.set - 1].file);
    for (PictureCell* cell : Image1) {
        cell->setSelected(false);
        cell->setGroupColour(QColor());
        cell->setVisible(cell->index() < m_question.howmany);
        if (cell->index() < m_question.howmany)
            cell->setPicture(file, m_question.onePictureName(), m_question.howmany);
    }
    Label9->hide();
    m_cursor = 0;
    moveCursor(0);
    layOut();
}

QString PartsOfSetBoard::instruction() const
{
    return m_question.instruction();
}

Verdict PartsOfSetBoard::check()
{
    return PartsOfSet::check(m_question, chosenCount());
}

QString PartsOfSetBoard::hint()
{
    showGroups(true);
    showProgress();
    return PartsOfSet::hint(m_question);
}

void PartsOfSetBoard::showProgress()
{
    Label9->setText(PartsOfSet::progress(m_question, chosenCount()));
    Spoken::showMessage(Label9);
}

void PartsOfSetBoard::showGroups(bool on)
{
    const int each = m_question.howmany / m_question.bottom;
    for (PictureCell* cell : Image1) {
        const int group = cell->index() / each;
        const bool shown = on && cell->index() < m_question.howmany;
        cell->setGroupColour(shown ? DrawingStyle::colour(group) : QColor(), group < m_question.top);
    }
}

void PartsOfSetBoard::setAnswering(bool on)
{
    m_answering = on;
}

void PartsOfSetBoard::focusAnswer()
{
    Image1[m_cursor]->setFocus();
}

void PartsOfSetBoard::giveRightAnswer()
{
    for (PictureCell* cell : Image1)
        cell->setSelected(cell->index() < m_question.target());
}

void PartsOfSetBoard::showChecked(const Verdict&)
{
    Label9->hide(); // the verdict says it now
}

void PartsOfSetBoard::toggle(int index)
{
    moveCursor(index);
    if (!m_answering)
        return;
    Image1[index]->setSelected(!Image1[index]->isSelected());
    if (Label9->isVisibleTo(this))
        showProgress(); // the hint keeps count as the child chooses
}

void PartsOfSetBoard::moveCursor(int to)
{
    if (to < 0 || to >= m_question.howmany)
        return;
    const bool hadFocus = Image1[m_cursor]->hasFocus();
    m_cursor = to;
    // Only the cursor's picture takes Tab: the board is one stop.
    for (PictureCell* cell : Image1)
        cell->setFocusPolicy(cell->index() == m_cursor ? Qt::StrongFocus : Qt::ClickFocus);
    if (hadFocus)
        Image1[m_cursor]->setFocus();
}

bool PartsOfSetBoard::eventFilter(QObject* watched, QEvent* event)
{
    auto* cell = qobject_cast<PictureCell*>(watched);
    if (cell && event->type() == QEvent::FocusIn && cell->index() != m_cursor)
        moveCursor(cell->index());
    if (!cell || event->type() != QEvent::KeyPress)
        return KitBoard::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Left:
        moveCursor(m_cursor - 1);
        return true;
    case Qt::Key_Right:
        moveCursor(m_cursor + 1);
        return true;
    case Qt::Key_Up:
        moveCursor(m_cursor - PartsOfSet::kRowLength);
        return true;
    case Qt::Key_Down:
        moveCursor(m_cursor + PartsOfSet::kRowLength);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (m_answering)
            emit answered();
        return true;
    default:
        return KitBoard::eventFilter(watched, event);
    }
}

void PartsOfSetBoard::resizeEvent(QResizeEvent*)
{
    layOut();
}

void PartsOfSetBoard::layOut()
{
    // Cells of one size whatever the count; the rows in use stand centred.
    const int count = std::max(m_question.howmany, 1);
    const int columns = std::min(count, PartsOfSet::kRowLength);
    const int rows = (count + PartsOfSet::kRowLength - 1) / PartsOfSet::kRowLength;
    const int pitchX = width() / PartsOfSet::kRowLength;
    const int progress = Twips::toPixels(kProgressHeight);
    Label9->setGeometry(0, height() - progress, width(), progress);
    const int pitchY = (height() - progress) / kRows;
    const int gap = Twips::toPixels(kCellGap);
    const int left = (width() - columns * pitchX + gap) / 2;
    const int top = (height() - progress - rows * pitchY + gap) / 2;
    for (PictureCell* cell : Image1)
        cell->setGeometry(left + (cell->index() % PartsOfSet::kRowLength) * pitchX,
                          top + (cell->index() / PartsOfSet::kRowLength) * pitchY, pitchX - gap, pitchY - gap);
}

Worksheets::Sheet PartsOfSetBoard::worksheet(Random::Source& rnd)
{
    return Worksheets::drawSheet<PartsOfSet::Question>(
        QCoreApplication::translate("Activities", "Halves, Quarters, Thirds and Tenths 1"),
        QCoreApplication::translate("PartsOfSetBoard",
                                    "Share the pictures into equal groups, then ring the ones asked for."),
        [&rnd](const PartsOfSet::Question* last) { return PartsOfSet::draw(rnd, last); },
        [](const PartsOfSet::Question& q) {
            Worksheets::Row row;
            row.question = q.sheetQuestion();
            row.answer = q.sheetAnswer();
            return PicturesBoard::withPictures(row, q.set, q.howmany);
        });
}
