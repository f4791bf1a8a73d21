#pragma once

#include "output/report/page_painter.h"

#include <QAbstractScrollArea>
#include <QBasicTimer>
#include <QCache>
#include <QElapsedTimer>
#include <QPixmap>

#include <memory>

namespace output {

/// The pages of a report, one below the other. Pages are counted while the window lives, set when they come
/// in sight and forgotten when they are far from it.
class PageView : public QAbstractScrollArea {
    Q_OBJECT

public:
    enum class Fit { Width, Page, None };

    explicit PageView(PictureOf pictures, QWidget* parent = nullptr);
    ~PageView() override;

    /// In place of the one shown; a report without rows is an empty view.
    void show(const Report& report);
    using QAbstractScrollArea::show;
    void clear();
    /// No more pages are looked for; those that are known stay.
    void stopCounting();

    bool hasPages() const { return pageCount() > 0; }
    int pageCount() const; ///< known so far
    bool isCounting() const { return m_timer.isActive(); }
    int currentPage() const; ///< from 1; 0 without a page
    void goToPage(int number);
    const Report* report() const;
    const PictureOf& pictures() const { return m_pictures; }
    QImage thumbnail(int number, int width) const;
    QString pageText(int number) const;

    double zoom() const { return m_zoom; } ///< 1 is as large as on paper
    void setZoom(double zoom);
    void zoomBy(double factor);
    void setFit(Fit fit);

    /// Marks a text wherever it stands and goes to the first page that has it, from the current one on and
    /// around; also a page that was not counted yet. Empty ends it.
    void find(const QString& text);
    void findNext();
    bool isSearching() const { return m_searching.isActive(); }

Q_SIGNALS:
    void pagesChanged(); ///< more are known, or it is another report
    void currentPageChanged(int number);
    void zoomChanged();
    void searched(bool found);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void timerEvent(QTimerEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    double scale() const; ///< pixels a twip
    double pageStep() const; ///< from the top of a page to that of the next one
    QSizeF pageSize() const;
    void layOut();
    void applyFit();
    void countOn();
    void searchOn();
    void beginSearch(int fromPage);
    bool has(int number, const QString& text) const;
    Page pageOf(int number) const;
    QPixmap rendered(int number) const;

    PictureOf m_pictures;
    std::unique_ptr<ReportPager> m_pager;
    mutable QCache<int, QPixmap> m_rendered;
    QBasicTimer m_timer;
    double m_zoom = 1;
    Fit m_fit = Fit::Width;
    int m_current = 0;
    QString m_sought;
    QBasicTimer m_searching;
    int m_searchPage = 0;
    int m_searchFrom = 0;
    bool m_hasWrapped = false;
};

} // namespace output
