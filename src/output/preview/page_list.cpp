#include "output/preview/page_list.h"

#include "output/preview/page_view.h"

#include <QAbstractListModel>
#include <QCache>

namespace output {

namespace {

constexpr int kThumbnailWidth = 96;
constexpr int kThumbnails = 60; ///< kept

} // namespace

class PageListModel : public QAbstractListModel {
public:
    PageListModel(const PageView* pages, QObject* parent)
        : QAbstractListModel(parent)
        , m_pages(pages)
        , m_drawn(kThumbnails)
    {
    }

    void followPages()
    {
        const int pages = m_pages->pageCount();
        if (m_pages->report() == m_report && pages > m_rows) {
            beginInsertRows({}, m_rows, pages - 1);
            m_rows = pages;
            endInsertRows();
        } else if (m_pages->report() != m_report || pages < m_rows) {
            beginResetModel();
            m_report = m_pages->report();
            m_rows = pages;
            m_drawn.clear();
            endResetModel();
        }
    }

    int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : m_rows; }

    QVariant data(const QModelIndex& index, int role) const override
    {
        const int page = index.row() + 1;
        switch (role) {
        case Qt::DisplayRole: return QString::number(page);
        case Qt::AccessibleTextRole: return pageNumberText(page, 0);
        case Qt::TextAlignmentRole: return int(Qt::AlignHCenter | Qt::AlignBottom);
        case Qt::DecorationRole: break;
        default: return {};
        }
        if (const QPixmap* drawn = m_drawn.object(page))
            return *drawn;
        const QPixmap pixmap = QPixmap::fromImage(m_pages->thumbnail(page, kThumbnailWidth));
        m_drawn.insert(page, new QPixmap(pixmap));
        return pixmap;
    }

private:
    const PageView* m_pages;
    const Report* m_report = nullptr;
    int m_rows = 0;
    mutable QCache<int, QPixmap> m_drawn;
};

PageList::PageList(PageView* pages, QWidget* parent)
    : QListView(parent)
    , m_pages(pages)
    , m_model(new PageListModel(pages, this))
{
    setModel(m_model);
    setAccessibleName(tr("Page list"));
    setViewMode(QListView::IconMode);
    setFlow(QListView::TopToBottom);
    setWrapping(false);
    setMovement(QListView::Static);
    setUniformItemSizes(true);
    setIconSize({kThumbnailWidth, kThumbnailWidth * 3 / 2});
    setSpacing(6);
    setFixedWidth(kThumbnailWidth + 44);
    connect(pages, &PageView::pagesChanged, this, [this] { m_model->followPages(); });
    connect(pages, &PageView::currentPageChanged, this, [this](int page) {
        const QSignalBlocker quiet(selectionModel());
        setCurrentIndex(m_model->index(page - 1));
        viewport()->update();
    });
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this,
        [this](const QModelIndex& index) { m_pages->goToPage(index.row() + 1); });
}

} // namespace output
