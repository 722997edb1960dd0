#pragma once
// A bar model: an amount written over a bar cut into equal boxes. For a hint
// every box shows how many it holds and the first boxes are shaded, so the
// child sees 2/3 of 12 as two boxes of 4.
#include <QVector>
#include <QWidget>

class BarModel : public QWidget {
    Q_OBJECT
public:
    explicit BarModel(QWidget* parent = nullptr);

    static constexpr int kMostParts = 12;

    // The amount over a bar of `parts` equal boxes (held to 1..12). Any
    // working shown ends.
    void setBar(int amount, int parts);
    // Writes `perPart` in every box and shades the first `shadedParts`.
    void showWorking(int perPart, int shadedParts);
    void clearWorking();

    int amount() const { return m_amount; }
    int parts() const { return m_parts; }
    bool showsWorking() const { return m_working; }
    int perPart() const { return m_perPart; }
    int shadedParts() const { return m_shaded; }

    // Where the bar and each of its boxes lie, and the band the amount is
    // written in, at the widget's present size.
    QRectF barRect() const;
    QRectF boxRect(int box) const;
    QRectF amountRect() const;
    // The colour of a shaded box.
    static QColor shadeColour();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintAmount(QPainter& painter, double outline) const;
    void describe();

    int m_amount = 0;
    int m_parts = 1;
    bool m_working = false;
    int m_perPart = 0;
    int m_shaded = 0;
};
