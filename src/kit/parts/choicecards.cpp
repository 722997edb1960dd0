#include "choicecards.h"

#include "choicecard.h"
#include "fractions/fraction.h"
#include "runtime/twips.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QShortcut>

namespace {
// Between two cards, in twips.
constexpr int kCardGap = 240;

QString spokenText(const QString& text)
{
    int top = 0;
    int bottom = 0;
    if (ChoiceCard::readFraction(text, &top, &bottom) && bottom > 0)
        return Fractions::words(top, bottom);
    return text;
}
} // namespace

ChoiceCards::ChoiceCards(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("choiceCards"));
    setAccessibleName(tr("answer cards"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Twips::toPixels(kCardGap));
    for (int i = 0; i < kMostCards; ++i) {
        auto* card = new ChoiceCard(this, i);
        card->hide();
        row->addWidget(card);
        connect(card, &QAbstractButton::clicked, this, [this, i] { choose(i); });
        m_cards << card;

        auto* number = new QShortcut(QKeySequence(Qt::Key_1 + i), this);
        number->setObjectName(QStringLiteral("cardKey%1").arg(i + 1));
        connect(number, &QShortcut::activated, this, [this, i] { choose(i); });
        m_numberKeys << number;
        auto* own = new QShortcut(this);
        own->setObjectName(QStringLiteral("cardOwnKey%1").arg(i + 1));
        connect(own, &QShortcut::activated, this, [this, i] { choose(i); });
        m_ownKeys << own;
    }
    updateKeys();
}

void ChoiceCards::setCards(const QStringList& texts, const QStringList& keys, const QStringList& spokenTexts)
{
    Q_ASSERT(texts.size() <= kMostCards);
    m_count = std::min(int(texts.size()), kMostCards);
    for (int i = 0; i < kMostCards; ++i) {
        ChoiceCard* card = m_cards[i];
        card->setMark(ChoiceCard::Mark::None);
        card->setAccessibleDescription(QString());
        if (i >= m_count) {
            card->hide();
            continue;
        }
        const QString own = keys.value(i);
        card->setContent(texts[i], own.isEmpty() ? QString::number(i + 1) : own);
        const QString spoken = spokenTexts.value(i);
        card->setAccessibleName(
            tr("card %1: %2").arg(i + 1).arg(spoken.isEmpty() ? spokenText(texts[i]) : spoken));
        m_ownKeys[i]->setKey(QKeySequence(own));
        card->show();
    }
    updateKeys();
}

void ChoiceCards::setColumns(int columns)
{
    columns = std::clamp(columns, 1, int(kMostCards));
    delete layout();
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(Twips::toPixels(kCardGap));
    for (int i = 0; i < kMostCards; ++i)
        grid->addWidget(m_cards[i], i / columns, i % columns);
}

ChoiceCard* ChoiceCards::card(int index) const
{
    return index >= 0 && index < m_count ? m_cards[index] : nullptr;
}

void ChoiceCards::setChoosable(bool on)
{
    m_choosable = on;
    for (ChoiceCard* card : std::as_const(m_cards))
        card->setInteractive(on);
    updateKeys();
}

void ChoiceCards::markRight(int index)
{
    if (ChoiceCard* c = card(index)) {
        c->setMark(ChoiceCard::Mark::Right);
        c->setAccessibleDescription(tr("the right answer"));
    }
}

void ChoiceCards::markWrong(int index)
{
    if (ChoiceCard* c = card(index)) {
        c->setMark(ChoiceCard::Mark::Wrong);
        c->setAccessibleDescription(tr("not the right answer"));
    }
}

void ChoiceCards::clearMarks()
{
    for (ChoiceCard* card : std::as_const(m_cards)) {
        card->setMark(ChoiceCard::Mark::None);
        card->setAccessibleDescription(QString());
    }
}

void ChoiceCards::choose(int index)
{
    if (!m_choosable || index >= m_count)
        return;
    m_cards[index]->setFocus();
    emit chosen(index);
}

void ChoiceCards::updateKeys()
{
    for (int i = 0; i < kMostCards; ++i) {
        const bool open = m_choosable && i < m_count;
        m_numberKeys[i]->setEnabled(open);
        m_ownKeys[i]->setEnabled(open && !m_ownKeys[i]->key().isEmpty());
    }
}
