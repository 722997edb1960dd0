#pragma once
// A picture box that holds a metafile (a printed worksheet) and shows it
// scaled to fit, on white paper.
#include "metafile.h"

#include <QWidget>
#include <optional>

class MetafileBox : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString picturePath READ picturePath)
public:
    MetafileBox(QWidget* parent, const QString& name);

    void load(const QString& assetPath);
    QString picturePath() const { return m_path; }
    // The loaded picture; empty before load.
    const std::optional<Metafile>& picture() const { return m_picture; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_path;
    std::optional<Metafile> m_picture;
};
