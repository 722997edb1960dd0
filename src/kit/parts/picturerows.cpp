#include "picturerows.h"

#include "drawingstyle.h"
#include "runtime/pictures.h"

#include <QPainter>
#include <algorithm>

namespace {

// Sizes in picture cells: the coloured margin round a group, the space
// between groups, and the space round each picture's tile.
constexpr double kGroupPad = 0.25;
constexpr double kGroupGap = 0.45;
constexpr double kTileMargin = 0.06;
constexpr double kBoardMargin = 0.03; // of the widget's smaller side
// A group drawn with a gap in it (5 as 3 and 2) must be this much larger to
// be chosen over a full one; so must a block of groups with an empty place.
constexpr double kRaggedGroupCost = 0.15;
constexpr double kRaggedBlockCost = 0.05;
constexpr double kSameSize = 1e-6;
// Outlines, as shares of a picture cell.
constexpr double kRingShare = 0.09;
constexpr double kEdgeShare = 0.035;
constexpr double kCornerShare = 0.3;
constexpr double kTileCornerShare = 0.12;
constexpr double kFaintPicture = 0.45;
constexpr int kFaintAlpha = 150;
constexpr double kNumberShare = 0.3; // of a tile's side: a picture's number in its corner
constexpr double kDigitsInDisc = 0.7; // the number's share of the disc it stands on
constexpr QSize kPreferredSize{420, 260};
constexpr QSize kSmallestSize{120, 80};

// Blocks of `per` pictures each, `blocksAcross` blocks to a row and
// `across` pictures to a row inside a block; rows are centred.
struct Arrangement {
    int blocks = 1;
    int per = 1;
    int blocksAcross = 1;
    int across = 1;
    double pad = 0;
    double gap = 0;

    int down() const { return (per + across - 1) / across; }
    int blockRows() const { return (blocks + blocksAcross - 1) / blocksAcross; }
    double blockWidth() const { return across + 2 * pad; }
    double blockHeight() const { return down() + 2 * pad; }
    double width() const { return blocksAcross * blockWidth() + (blocksAcross - 1) * gap; }
    double height() const { return blockRows() * blockHeight() + (blockRows() - 1) * gap; }
    double cell(const QSizeF& area) const { return std::min(area.width() / width(), area.height() / height()); }
    int raggedGroups() const { return across * down() - per; }
    int raggedBlocks() const { return blocksAcross * blockRows() - blocks; }
};

// The offset that centres `used` of `places` places of size `step`.
double centring(int places, int used, double step)
{
    return (places - used) * step / 2;
}

// The arrangement of the groups that draws the pictures largest.
Arrangement bestGrouping(int groups, int per, const QSizeF& area)
{
    Arrangement best;
    double bestScore = -1;
    for (int blocksAcross = 1; blocksAcross <= groups; ++blocksAcross)
        for (int across = 1; across <= std::min(per, PictureRows::kRowLength); ++across) {
            const Arrangement a{groups, per, blocksAcross, across, kGroupPad, kGroupGap};
            const double score = a.cell(area)
                / (1 + kRaggedGroupCost * a.raggedGroups() + kRaggedBlockCost * a.raggedBlocks());
            if (score > bestScore * (1 + kSameSize)) {
                best = a;
                bestScore = score;
            }
        }
    return best;
}

} // namespace

PictureRows::PictureRows(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("PictureRows"));
    describe();
}

void PictureRows::setPictures(const QString& assetPath, const QString& pluralName, int count)
{
    if (assetPath != m_path) {
        m_path = assetPath;
        m_picture = assetPath.isEmpty() ? QPixmap() : Pictures::get(assetPath);
    }
    m_name = pluralName;
    m_count = std::clamp(count, 1, kMostPictures);
    m_groups = 0;
    m_shaded = 0;
    m_ringed = 0;
    m_numbered = false;
    describe();
    update();
}

void PictureRows::setRinged(int ringed)
{
    m_ringed = std::clamp(ringed, 0, m_count);
    describe();
    update();
}

void PictureRows::setNumbered(bool on)
{
    m_numbered = on;
    update();
}

void PictureRows::showGroups(int groups, int shadedGroups)
{
    if (groups < 1 || m_count % groups != 0) {
        clearGroups();
        return;
    }
    m_groups = groups;
    m_shaded = std::clamp(shadedGroups, 0, groups);
    describe();
    update();
}

void PictureRows::clearGroups()
{
    m_groups = 0;
    m_shaded = 0;
    describe();
    update();
}

PictureRows::Layout PictureRows::layout() const
{
    Layout result;
    if (m_count < 1)
        return result;
    const double margin = std::min(width(), height()) * kBoardMargin;
    const QRectF area = QRectF(rect()).adjusted(margin, margin, -margin, -margin);
    const Arrangement a = m_groups > 0
        ? bestGrouping(m_groups, m_count / m_groups, area.size())
        : Arrangement{1, m_count, 1, std::min(m_count, kRowLength), 0, 0};
    const double cell = a.cell(area.size());
    result.cell = cell;
    const QPointF origin(area.left() + (area.width() - a.width() * cell) / 2,
                         area.top() + (area.height() - a.height() * cell) / 2);
    const double blockStepX = (a.blockWidth() + a.gap) * cell;
    const double blockStepY = (a.blockHeight() + a.gap) * cell;
    for (int b = 0; b < a.blocks; ++b) {
        const int row = b / a.blocksAcross;
        const int inRow = std::min(a.blocksAcross, a.blocks - row * a.blocksAcross);
        const QRectF block(origin.x() + centring(a.blocksAcross, inRow, blockStepX) + (b % a.blocksAcross) * blockStepX,
                           origin.y() + row * blockStepY, a.blockWidth() * cell, a.blockHeight() * cell);
        if (m_groups > 0)
            result.groups << block;
        for (int i = 0; i < a.per; ++i) {
            const int line = i / a.across;
            const int onLine = std::min(a.across, a.per - line * a.across);
            const QRectF place(block.left() + (a.pad + i % a.across) * cell + centring(a.across, onLine, cell),
                               block.top() + (a.pad + line) * cell, cell, cell);
            const double inset = cell * kTileMargin;
            result.tiles << place.adjusted(inset, inset, -inset, -inset);
        }
    }
    return result;
}

QVector<QRectF> PictureRows::pictureRects() const
{
    return layout().tiles;
}

QVector<QRectF> PictureRows::groupRects() const
{
    return layout().groups;
}

void PictureRows::paintGroup(QPainter& painter, const QRectF& area, int group, double cell) const
{
    const bool marked = group < m_shaded;
    const bool faint = m_shaded > 0 && !marked;
    const double ring = cell * (marked ? kRingShare : kEdgeShare);
    const double corner = cell * kCornerShare;
    QColor fill = DrawingStyle::soft(group);
    QColor edge = marked ? DrawingStyle::deep(group) : DrawingStyle::colour(group);
    if (faint) {
        fill.setAlpha(kFaintAlpha);
        edge.setAlpha(kFaintAlpha);
    }
    painter.setPen(QPen(edge, ring));
    painter.setBrush(fill);
    painter.drawRoundedRect(area.adjusted(ring / 2, ring / 2, -ring / 2, -ring / 2), corner, corner);
}

void PictureRows::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    DrawingStyle::paintBoard(painter, rect());
    const Layout l = layout();
    for (int g = 0; g < l.groups.size(); ++g)
        paintGroup(painter, l.groups[g], g, l.cell);

    const int per = m_groups > 0 ? m_count / m_groups : m_count;
    const double corner = l.cell * kTileCornerShare;
    for (int i = 0; i < l.tiles.size(); ++i) {
        const QRectF tile = l.tiles[i];
        const bool faint = m_shaded > 0 && i / per >= m_shaded;
        painter.setOpacity(faint ? kFaintPicture : 1.0);
        painter.setPen(Qt::NoPen);
        painter.setBrush(DrawingStyle::kBoard);
        painter.drawRoundedRect(tile, corner, corner);
        if (m_picture.isNull())
            continue;
        QSizeF size = m_picture.deviceIndependentSize();
        size.scale(tile.size(), Qt::KeepAspectRatio);
        QRectF target(QPointF(0, 0), size);
        target.moveCenter(tile.center());
        painter.drawPixmap(target, m_picture, QRectF(m_picture.rect()));
    }
    painter.setOpacity(1.0);
    paintRingsAndNumbers(painter, l);
}

void PictureRows::paintRingsAndNumbers(QPainter& painter, const Layout& l) const
{
    if (m_groups > 0)
        return;
    const double ring = l.cell * kRingShare;
    for (int i = 0; i < l.tiles.size(); ++i) {
        const QRectF tile = l.tiles[i];
        if (i < m_ringed) {
            painter.setPen(QPen(DrawingStyle::deep(0), ring));
            painter.setBrush(Qt::NoBrush);
            painter.drawEllipse(tile.adjusted(ring / 2, ring / 2, -ring / 2, -ring / 2));
        }
        if (m_numbered) {
            const QString number = QString::number(i + 1);
            const QRectF corner(tile.topLeft(), tile.size() * kNumberShare);
            painter.setPen(Qt::NoPen);
            painter.setBrush(DrawingStyle::kBoard);
            painter.drawEllipse(corner);
            painter.setPen(DrawingStyle::kInk);
            painter.setFont(DrawingStyle::digitFont(DrawingStyle::fittingSize({number}, corner.size() * kDigitsInDisc, l.cell)));
            painter.drawText(corner, Qt::AlignCenter, number);
        }
    }
}

void PictureRows::describe()
{
    // The picture set names are plural; one picture drops the final "s".
    QString name = m_name;
    if (m_count == 1 && name.endsWith(QLatin1Char('s')))
        name.chop(1);
    QString text = QString::number(m_count) + QLatin1Char(' ') + name;
    // Each sentence names its English singular and plural; the count also
    // picks a translation's own plural form.
    if (m_groups > 0) {
        text = (m_groups == 1 ? tr("%1 in %n group of %2", nullptr, m_groups)
                              : tr("%1 in %n groups of %2", nullptr, m_groups))
                   .arg(text)
                   .arg(m_count / m_groups);
        if (m_shaded > 0)
            text = (m_shaded == 1 ? tr("%1, %n group marked", nullptr, m_shaded)
                                  : tr("%1, %n groups marked", nullptr, m_shaded))
                       .arg(text);
    }
    if (m_groups == 0 && m_ringed > 0)
        text = tr("%1, %n ringed", nullptr, m_ringed).arg(text);
    setAccessibleName(m_count > 0 ? text : tr("no pictures yet"));
}

QSize PictureRows::sizeHint() const
{
    return kPreferredSize;
}

QSize PictureRows::minimumSizeHint() const
{
    return kSmallestSize;
}
