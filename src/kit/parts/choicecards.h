#pragma once
// The answer cards of a choice question: two to four large cards side by
// side ("Which fraction is equal to 2/3?"), or a row of three word cards
// ("is less than", "is equal to", "is more than"). A card is chosen by a
// click, by its number key 1 to 4, or by a key of its own ("<", "=", ">").
// The keys work wherever the focus is on the cards' window, except that a
// text box with the focus keeps the digits typed into it.
#include <QStringList>
#include <QWidget>

class ChoiceCard;
class QShortcut;

class ChoiceCards : public QWidget {
    Q_OBJECT
public:
    static constexpr int kMostCards = 4;

    explicit ChoiceCards(QWidget* parent = nullptr);

    // The cards' texts ("4/6" or words), each card's own key ("<"; none when
    // empty), and what a screen reader says of each card after its number
    // ("card 2: four sixths"): by default the words of a fraction, or the
    // text itself. Up to kMostCards cards; the marks are cleared.
    void setCards(const QStringList& texts, const QStringList& keys = {}, const QStringList& spokenTexts = {});
    int count() const { return m_count; }
    ChoiceCard* card(int index) const;

    // How many cards stand side by side; the others wrap onto rows below
    // (two by two for long words on a narrow board). All in one row unless set.
    void setColumns(int columns);

    // When not choosable, neither clicks nor keys choose a card.
    void setChoosable(bool on);
    bool isChoosable() const { return m_choosable; }

    // After a check: the right card green with a tick, a wrong one red with
    // a cross.
    void markRight(int index);
    void markWrong(int index);
    void clearMarks();

signals:
    void chosen(int index);

private:
    void choose(int index);
    void updateKeys();

    // Every card is made once; those beyond the count stand hidden.
    QList<ChoiceCard*> m_cards;
    QList<QShortcut*> m_numberKeys;
    QList<QShortcut*> m_ownKeys;
    int m_count = 0;
    bool m_choosable = true;
};
