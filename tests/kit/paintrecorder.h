#pragma once
// A paint device that keeps what is painted on it instead of pixels: every
// piece of text with the box it covers, and every picture with the place it
// is drawn. A widget rendered onto it shows what a child would read where.
#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPixmap>
#include <QTextItem>
#include <QTransform>
#include <QVector>
#include <QWidget>

class PaintRecorder : public QPaintDevice {
public:
    struct Text {
        QString text;
        QRectF box; // from the top of the tallest letter to the bottom of the lowest
    };

    // Renders the widget, at its present size, onto the recorder.
    explicit PaintRecorder(QWidget& widget) : m_size(widget.size()), m_engine(this)
    {
        widget.render(this, QPoint(), QRegion(), QWidget::DrawWindowBackground);
    }

    QVector<Text> texts;
    QVector<QRectF> pictures;

    // The first text that reads exactly `text`; an empty box when none does.
    QRectF boxOf(const QString& text) const
    {
        for (const Text& t : texts)
            if (t.text == text)
                return t.box;
        return QRectF();
    }

    QPaintEngine* paintEngine() const override { return &m_engine; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth: return m_size.width();
        case PdmHeight: return m_size.height();
        case PdmDpiX: case PdmDpiY: case PdmPhysicalDpiX: case PdmPhysicalDpiY: return kDpi;
        case PdmDepth: return kDepth;
        case PdmDevicePixelRatio: return 1;
        case PdmDevicePixelRatioScaled: return int(devicePixelRatioFScale());
        default: return QPaintDevice::metric(metric);
        }
    }

private:
    static constexpr int kDpi = 96;
    static constexpr int kDepth = 32;

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
        // Shapes and lines are not kept: the engine's own versions of the
        // rest all come down to these two.
        void drawPath(const QPainterPath&) override {}
        void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}

    private:
        PaintRecorder* m_owner;
        QTransform m_transform;
    };

    QSize m_size;
    mutable Engine m_engine;
};
