#pragma once

#include "views/filters/filter_screen.h"

#include <QHash>

class QLabel;
class QTabWidget;

namespace widgets {
class RecordList;
}

namespace views {

/// The simple filter: a tab with a list for each field, of which as many count as are not on "All".
class frmTabFilter : public FilterScreen {
    Q_OBJECT

public:
    explicit frmTabFilter(core::Context& context, QWidget* parent = nullptr);

    void load() override;

protected:
    QString whereClause() const override;
    void chooseAll() override;
    void showEvent(QShowEvent* event) override;

private:
    QWidget* layOutPage(int page);
    void fillPage(int page);
    void fillList(const FilterList& list);
    FilterChoices choices() const;
    void tellChoices();

    QTabWidget* SSActiveTabs1;
    QLabel* lblChoices = nullptr;
    QHash<QString, widgets::RecordList*> m_lists;
    QHash<QString, QString> m_statements; ///< by which each list was filled
};

} // namespace views
