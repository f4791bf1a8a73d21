#include "widgets/thumbnail_view.h"

#include "widgets/long_text.h"
#include "widgets/picture_box.h"
#include "widgets/theme.h"

#include <QAbstractListModel>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <iterator>
#include <utility>

using namespace Qt::StringLiterals;

namespace widgets {

namespace {

constexpr int KeyRole = Qt::UserRole;
constexpr int Sides[] = {72, 112, 176}; ///< small, medium, large
constexpr int Margin = 8;
constexpr int MostKilobytes = 96 * 1024;
constexpr int MostReaders = 4;

} // namespace

/// The thumbnails as rows.
class ThumbnailModel : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : int(m_rows.size());
    }
    QVariant data(const QModelIndex& index, int role) const override
    {
        const Thumbnail& row = m_rows[index.row()];
        switch (role) {
        case Qt::DisplayRole:
        case Qt::ToolTipRole: return tipOf(row.text);
        case KeyRole: return row.key;
        default: return {};
        }
    }
    const Thumbnail& at(int row) const { return m_rows[row]; }
    void append(const QList<Thumbnail>& rows)
    {
        if (rows.isEmpty())
            return;
        beginInsertRows({}, int(m_rows.size()), int(m_rows.size() + rows.size()) - 1);
        m_rows += rows;
        endInsertRows();
    }
    void clear()
    {
        beginResetModel();
        m_rows.clear();
        endResetModel();
    }

private:
    QList<Thumbnail> m_rows;
};

namespace {

class ThumbnailDelegate : public QStyledItemDelegate {
public:
    ThumbnailDelegate(const ThumbnailView* view, const int& side)
        : QStyledItemDelegate(const_cast<ThumbnailView*>(view))
        , m_view(view)
        , m_side(side)
    {
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override
    {
        return {m_side + 3 * Margin, m_side + option.fontMetrics.height() + 3 * Margin};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        const QRect cell = option.rect.adjusted(2, 2, -2, -2);
        const bool selected = option.state.testFlag(QStyle::State_Selected);
        if (selected || option.state.testFlag(QStyle::State_MouseOver)) {
            QColor back = option.palette.color(QPalette::Highlight);
            if (!selected)
                back.setAlphaF(0.15F);
            painter->setPen(Qt::NoPen);
            painter->setBrush(back);
            painter->drawRoundedRect(cell, 5, 5);
        }
        QRect room(0, 0, m_side, m_side);
        room.moveCenter(cell.center());
        room.moveTop(cell.top() + Margin - 2);
        paintPicture(painter, option, room, m_view->pictureOf(index.row()));
        const QRect words(
            cell.left() + 4, room.bottom() + 4, cell.width() - 8, option.fontMetrics.height() + 2);
        painter->setPen(option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
        painter->drawText(words, Qt::AlignCenter,
            option.fontMetrics.elidedText(
                index.data().toString().simplified(), Qt::ElideRight, words.width()));
        painter->restore();
    }

private:
    void paintPicture(QPainter* painter, const QStyleOptionViewItem& option, const QRect& room,
        const QPixmap& picture) const
    {
        if (!picture.isNull()) {
            QRect place(QPoint(), (QSizeF(picture.size()) / picture.devicePixelRatio()).toSize());
            place.moveCenter(room.center());
            painter->drawPixmap(place.topLeft(), picture);
            return;
        }
        painter->setPen(option.palette.color(QPalette::Mid));
        painter->setBrush(option.palette.color(QPalette::Window));
        painter->drawRoundedRect(QRectF(room).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
        painter->setOpacity(0.45);
        QRect middle(0, 0, m_side / 2, m_side / 2);
        middle.moveCenter(room.center());
        icon(u"picture").paint(painter, middle);
        painter->setOpacity(1);
    }

    const ThumbnailView* m_view;
    const int& m_side;
};

} // namespace

ThumbnailView::ThumbnailView(QWidget* parent)
    : QListView(parent)
    , m_model(new ThumbnailModel(this))
    , m_side(Sides[int(Size::Medium)])
    , m_pictures(MostKilobytes)
{
    m_readers.setMaxThreadCount(std::clamp(QThread::idealThreadCount() - 1, 1, MostReaders));
    setModel(m_model);
    setItemDelegate(new ThumbnailDelegate(this, m_side));
    setFlow(QListView::LeftToRight);
    setWrapping(true);
    setResizeMode(QListView::Adjust);
    setUniformItemSizes(true);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalScrollBar()->setObjectName(u"VScroll1"_s);
    setMouseTracking(true);
    const auto choose = [this](const QModelIndex& index) { Q_EMIT chosen(index.data(KeyRole).toLongLong()); };
    connect(this, &QListView::clicked, this, choose);
    connect(this, &QListView::activated, this, choose);
}

void ThumbnailView::setSize(Size size)
{
    if (std::exchange(m_side, Sides[int(size)]) == Sides[int(size)])
        return;
    forgetPictures();
    doItemsLayout();
    if (currentIndex().isValid())
        scrollTo(currentIndex());
}

void ThumbnailView::clear()
{
    m_model->clear();
    forgetPictures(); // their files may have changed
}

void ThumbnailView::append(const QList<Thumbnail>& thumbnails)
{
    m_model->append(thumbnails);
}

int ThumbnailView::count() const
{
    return m_model->rowCount();
}

qint64 ThumbnailView::currentKey() const
{
    return currentIndex().data(KeyRole).toLongLong();
}

QPixmap ThumbnailView::pictureOf(int row) const
{
    const QPixmap* picture = m_pictures.object(m_model->at(row).path);
    return picture ? *picture : QPixmap();
}

void ThumbnailView::paintEvent(QPaintEvent* event)
{
    QListView::paintEvent(event);
    readWhatIsInSight();
}

// The rows stand from top to bottom.
QList<int> ThumbnailView::rowsInSight() const
{
    const auto place = [this](int row) { return visualRect(m_model->index(row)); };
    int first = 0;
    for (int last = count(); first < last;) {
        const int middle = (first + last) / 2;
        if (place(middle).bottom() < 0)
            first = middle + 1;
        else
            last = middle;
    }
    QList<int> rows;
    for (int row = first; row < count() && place(row).top() < viewport()->height(); ++row)
        rows << row;
    return rows;
}

// What has been scrolled away before its turn came is not read.
void ThumbnailView::readWhatIsInSight()
{
    for (const int row : rowsInSight()) {
        if (m_underWay.size() >= m_readers.maxThreadCount())
            return;
        const QString& path = m_model->at(row).path;
        if (!m_pictures.contains(path) && !m_underWay.contains(path))
            read(path);
    }
}

void ThumbnailView::read(const QString& path)
{
    m_underWay.insert(path);
    const int side = m_side;
    const QSize within = QSize(side, side) * devicePixelRatioF();
    m_readers.start([this, path, side, within] {
        QImage image = readPicture(path, within);
        if (image.width() > within.width() || image.height() > within.height())
            image = image.scaled(within, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        QMetaObject::invokeMethod(
            this, [this, path, side, image] { arrived(path, side, image); }, Qt::QueuedConnection);
    });
}

void ThumbnailView::arrived(const QString& path, int side, const QImage& image)
{
    m_underWay.remove(path);
    if (side == m_side) {
        ++m_readings;
        auto* picture = new QPixmap(QPixmap::fromImage(image));
        picture->setDevicePixelRatio(devicePixelRatioF());
        m_pictures.insert(path, picture, std::max(1, int(image.sizeInBytes() / 1024)));
    }
    viewport()->update();
    readWhatIsInSight();
}

void ThumbnailView::forgetPictures()
{
    m_pictures.clear();
    viewport()->update();
}

} // namespace widgets
