#pragma once
// A paint device that keeps each text with its box and each picture with its place, not pixels.
#include <QFontMetricsF>
#include <QImage>
#include <QPaintEngine>
#include <QTextItem>
#include <QWidget>

class PaintRecorder : public QImage {
public:
    struct Text {
        QString text;
        QRectF box; // from the top of the tallest letter to the bottom of the lowest
    };

    // Renders the widget, at its present size, onto the recorder.
    explicit PaintRecorder(QWidget& widget) : QImage(widget.size(), QImage::Format_ARGB32), m_engine(this)
    {
        widget.render(this, QPoint(), QRegion(), QWidget::DrawWindowBackground);
    }

    QVector<Text> texts;
    QVector<QRectF> pictures;

    QPaintEngine* paintEngine() const override { return &m_engine; }

private:
    class Engine : public QPaintEngine {
    public:
        explicit Engine(PaintRecorder* owner) : QPaintEngine(AllFeatures), m_owner(owner) {}
        bool begin(QPaintDevice*) override { return true; }
        bool end() override { return true; }
        Type type() const override { return User; }
        void updateState(const QPaintEngineState& state) override
        {
            if (state.state() & DirtyTransform)
                m_transform = state.transform();
        }
        void drawTextItem(const QPointF& p, const QTextItem& item) override
        {
            const QFontMetricsF metrics(item.font());
            const QRectF box(p.x(), p.y() - metrics.ascent(), item.width(), metrics.ascent() + metrics.descent());
            m_owner->texts << Text{item.text(), m_transform.mapRect(box)};
        }
        void drawPixmap(const QRectF& r, const QPixmap&, const QRectF&) override
        {
            m_owner->pictures << m_transform.mapRect(r);
        }
        // Shapes and lines are not kept: the engine's other drawing comes down to these.
        void drawPath(const QPainterPath&) override {}
        void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}

    private:
        PaintRecorder* m_owner;
        QTransform m_transform;
    };

    mutable Engine m_engine;
};
