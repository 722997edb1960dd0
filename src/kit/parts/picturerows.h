#pragma once
// Copies of one picture, 1 to 20, drawn as large as the widget allows in rows
// of at most five, each row centred. For a hint the pictures regroup into
// equal groups set apart from one another, each group on a rounded
// background of its own colour; the first groups can be marked with a thick
// ring while the others fade.
#include <QPixmap>
#include <QVector>
#include <QWidget>

class PictureRows : public QWidget {
    Q_OBJECT
public:
    explicit PictureRows(QWidget* parent = nullptr);

    static constexpr int kMostPictures = 20;
    static constexpr int kRowLength = 5;

    // `count` copies (held to 1..20) of the picture at `assetPath`, which a
    // child calls `pluralName` ("ducks"). Any grouping ends.
    void setPictures(const QString& assetPath, const QString& pluralName, int count);
    // Regroups into `groups` equal groups and marks the first `shadedGroups`
    // (0: none marked, all drawn alike). A number of groups that does not
    // share the pictures equally leaves them in rows.
    void showGroups(int groups, int shadedGroups);
    void clearGroups();
    // In rows: rings the first `ringed` pictures (0: none), each with a
    // thick ring of its own, the others drawn as they are.
    void setRinged(int ringed);
    int ringed() const { return m_ringed; }
    // In rows: writes each picture's number (1, 2, ...) in its corner, so a
    // hint can count the pictures in the picture.
    void setNumbered(bool on);
    bool isNumbered() const { return m_numbered; }

    int count() const { return m_count; }
    int groups() const { return m_groups; } // 0 while in rows
    int shadedGroups() const { return m_shaded; }

    // Where each picture's tile lies, in order (group by group when grouped),
    // and each group's background, at the widget's present size.
    QVector<QRectF> pictureRects() const;
    QVector<QRectF> groupRects() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Layout {
        QVector<QRectF> tiles;
        QVector<QRectF> groups;
        double cell = 0;
    };
    Layout layout() const;
    void paintGroup(QPainter& painter, const QRectF& area, int group, double cell) const;
    void paintRingsAndNumbers(QPainter& painter, const Layout& l) const;
    void describe();

    QString m_path;
    QString m_name;
    QPixmap m_picture;
    int m_count = 0;
    int m_groups = 0;
    int m_shaded = 0;
    int m_ringed = 0;
    bool m_numbered = false;
};
