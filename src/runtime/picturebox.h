#pragma once
// A picture on a screen: the picture boxes and image controls of the forms.
// It remembers the asset path it shows, so tests can read which frame is up.
#include <QImage>
#include <QWidget>

class PictureBox : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString picturePath READ picturePath)
public:
    explicit PictureBox(QWidget* parent, const QString& name);

    // Loads the asset into the box ("" clears it). With auto-size on, the box
    // takes the picture's size, as an image control does.
    void load(const QString& assetPath);
    void clear();
    QString picturePath() const { return m_path; }
    QImage picture() const { return m_picture; }
    // The picture's size on screen: its designed size times the scale.
    QSize drawnSize() const;

    void setAutoSize(bool on) { m_autoSize = on; }
    void setBackColour(const QColor& colour);

signals:
    void clicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QString m_path;
    QImage m_picture;
    QColor m_back;
    bool m_autoSize = false;
};
