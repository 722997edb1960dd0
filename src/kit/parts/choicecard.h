#pragma once
// One card of a choice: a large button showing a fraction, drawn stacked
// (the top number over a bar over the bottom number) when its text reads
// "a/b", or words otherwise ("is less than"). The key that chooses it stands
// small in its top corner. Focus draws an orange frame round it; after a
// check it turns green with a tick when it was the right answer, red with a
// cross when it was a wrong one. Everything is drawn to the card's size, so
// it stays sharp however large the screen is.
#include <QAbstractButton>

class ChoiceCard : public QAbstractButton {
    Q_OBJECT
public:
    enum class Mark { None, Right, Wrong };

    ChoiceCard(QWidget* parent, int index);

    int index() const { return m_index; }
    // The text shown, and the key named in the corner.
    void setContent(const QString& text, const QString& keyName);
    QString keyName() const { return m_keyName; }

    void setMark(Mark mark);
    Mark mark() const { return m_mark; }

    // A card that cannot be chosen lets clicks and Enter through to the
    // screen behind it.
    void setInteractive(bool on);
    bool isInteractive() const { return m_interactive; }

    // Whether a card's text is a fraction "a/b", and its two numbers.
    static bool readFraction(const QString& text, int* top, int* bottom);

    QSize sizeHint() const override;

    // The activity panels' paper and ink, their blue edge and the orange
    // of the focus; green and red after a check.
    static const QColor kPaper;
    static const QColor kInk;
    static const QColor kEdge;
    static const QColor kFocusEdge;
    static const QColor kRightPaper;
    static const QColor kRightEdge;
    static const QColor kWrongPaper;
    static const QColor kWrongEdge;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    // Where the parts of the card stand, for its present size.
    struct Layout {
        qreal unit = 0;
        QRectF body;
        QRectF keyArea;
        QRectF markArea;
        QRectF content;
    };
    Layout layout() const;
    // The largest size of this card's words that fits it.
    int ownWordsPixels() const;
    void drawFraction(QPainter& p, const QRectF& area, int top, int bottom) const;
    void drawWords(QPainter& p, const QRectF& area) const;
    void drawMark(QPainter& p, const QRectF& corner) const;

    int m_index;
    QString m_keyName;
    Mark m_mark = Mark::None;
    bool m_interactive = true;
};
