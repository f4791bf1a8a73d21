#include "core/shell/launch_grid.h"

#include "widgets/theme.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStandardItemModel>
#include <QStyledItemDelegate>

using namespace Qt::StringLiterals;

namespace shell {

namespace {

constexpr int kDescription = Qt::UserRole + 1;
constexpr QSize kTile(300, 100);

/// A tip would read stored text as markup, unless it is markup itself.
QString plainTip(const QString& text)
{
    return u"<span>"_s + text.toHtmlEscaped() + u"</span>"_s;
}

class TileDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override { return kTile; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const bool enabled = index.flags() & Qt::ItemIsEnabled;
        const QPalette& palette = option.palette;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        const QRect tile = option.rect.adjusted(5, 5, -5, -5);
        const bool lit = enabled && (option.state & (QStyle::State_MouseOver | QStyle::State_Selected));
        QColor edge = palette.color(lit ? QPalette::Highlight : QPalette::Mid);
        painter->setPen(QPen(edge, lit ? 1.6 : 1));
        painter->setBrush(palette.color(QPalette::Base));
        painter->drawRoundedRect(QRectF(tile).adjusted(0.5, 0.5, -0.5, -0.5), 8, 8);

        const QRect iconRect(tile.left() + 14, tile.top() + (tile.height() - 32) / 2, 32, 32);
        index.data(Qt::DecorationRole)
            .value<QIcon>()
            .paint(painter, iconRect, Qt::AlignCenter, enabled ? QIcon::Normal : QIcon::Disabled);

        const QRect text = tile.adjusted(60, 10, -10, -8);
        QFont bold = option.font;
        bold.setBold(true);
        painter->setFont(bold);
        painter->setPen(enabled ? palette.color(QPalette::Text) : widgets::quietTextColor());
        const QFontMetrics metrics(bold);
        painter->drawText(text, Qt::AlignLeft | Qt::AlignTop,
            metrics.elidedText(index.data(Qt::DisplayRole).toString(), Qt::ElideRight, text.width()));
        painter->setFont(option.font);
        painter->setPen(widgets::quietTextColor());
        painter->drawText(text.adjusted(0, metrics.lineSpacing() + 2, 0, 0),
            Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, index.data(kDescription).toString());
        painter->restore();
    }
};

} // namespace

LaunchGrid::LaunchGrid(QWidget* parent)
    : QListView(parent)
    , m_tiles(new QStandardItemModel(this))
{
    setModel(m_tiles);
    setItemDelegate(new TileDelegate(this));
    setViewMode(QListView::IconMode);
    setResizeMode(QListView::Adjust);
    setMovement(QListView::Static);
    setUniformItemSizes(true);
    setGridSize(kTile);
    setFrameShape(QFrame::NoFrame);
    setMouseTracking(true);
    viewport()->setAutoFillBackground(false);
    connect(this, &QListView::clicked, this,
        [this](const QModelIndex& index) { Q_EMIT started(index.data().toString()); });
    connect(this, &QListView::entered, this,
        [this](const QModelIndex& index) { Q_EMIT hovered(index.data().toString()); });
}

void LaunchGrid::clearTiles()
{
    m_tiles->clear();
}

void LaunchGrid::addTile(
    const QString& label, const QString& description, const QString& icon, bool available)
{
    auto* tile = new QStandardItem(widgets::icon(icon), label);
    tile->setEditable(false);
    tile->setEnabled(available);
    tile->setData(description, kDescription);
    tile->setToolTip(available ? plainTip(description) : tr("Not available yet"));
    m_tiles->appendRow(tile);
}

void LaunchGrid::keyPressEvent(QKeyEvent* event)
{
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && currentIndex().isValid())
        Q_EMIT started(currentIndex().data().toString());
    else
        QListView::keyPressEvent(event);
}

} // namespace shell
