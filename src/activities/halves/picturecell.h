#pragma once
// One picture cell of the Halves and Quarters board (Image1(i)). A click or
// Space asks the board to toggle it; selected, it stands out with a raised
// 3D border (Appearance 1, BorderStyle 1), unselected it is flat (0 and 0).
// It is a checkable button, so Tab reaches it and screen readers hear its
// name and whether it is chosen.
#include <QAbstractButton>
#include <QPixmap>

class PictureCell : public QAbstractButton {
    Q_OBJECT
    Q_PROPERTY(int Appearance READ appearance)
    Q_PROPERTY(int BorderStyle READ borderStyle)
    Q_PROPERTY(QString picturePath READ picturePath)
public:
    PictureCell(QWidget* parent, int index);

    int index() const { return m_index; }
    int appearance() const { return isChecked() ? 1 : 0; }
    int borderStyle() const { return isChecked() ? 1 : 0; }
    bool isSelected() const { return isChecked(); }
    void setSelected(bool on) { setChecked(on); }

    // The picture, what it shows ("duck", the tool tip) and how many cells
    // show it: a screen reader says "duck 3 of 12, chosen".
    void setPicture(const QString& assetPath, const QString& name, int shown);
    QString picturePath() const { return m_path; }

    // A hint shows which equal group the cell is in: a frame of the group's
    // colour round the picture, thick for a group the question asks for and
    // thin for the others. An invalid colour (the default) shows no group.
    void setGroupColour(const QColor& colour, bool asked = true);
    QColor groupColour() const { return m_group; }
    bool groupAsked() const { return m_groupAsked; }

    QSize sizeHint() const override;

    // The tile behind every picture; the pictures' edges are drawn for it.
    static const QColor kTile;

protected:
    void paintEvent(QPaintEvent* event) override;
    // The board decides what a click does; the button does not toggle itself.
    void nextCheckState() override {}

private:
    void nameForReader();

    int m_index;
    int m_shown = 0;
    QString m_name;
    QString m_path;
    QPixmap m_picture;
    QColor m_group;
    bool m_groupAsked = true;
};
