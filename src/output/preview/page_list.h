#pragma once

#include <QListView>

namespace output {

class PageListModel;
class PageView;

/// The pages of a view, small, to choose from. What is not in sight is not drawn.
class PageList : public QListView {
    Q_OBJECT

public:
    explicit PageList(PageView* pages, QWidget* parent = nullptr);

private:
    PageView* m_pages;
    PageListModel* m_model;
};

} // namespace output
