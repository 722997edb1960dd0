#pragma once
// Two fractions side by side, written large, top number over bottom number,
// with a question mark between them for the child's answer. A screen reader
// hears them as words: "three eighths and five eighths".
#include <QWidget>

class FractionPair : public QWidget {
    Q_OBJECT
public:
    explicit FractionPair(QWidget* parent = nullptr);

    // The two fractions and the words a screen reader says for them.
    void setPair(int leftTop, int leftBottom, int rightTop, int rightBottom, const QString& spoken);

    // Where each fraction and the question mark stand at the present size.
    QRectF leftRect() const;
    QRectF rightRect() const;
    QRectF markRect() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int m_leftTop = 1;
    int m_leftBottom = 2;
    int m_rightTop = 1;
    int m_rightBottom = 2;
};
