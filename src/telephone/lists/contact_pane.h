#pragma once

#include "jet/database.h"
#include "telephone/lists/list_members.h"
#include "telephone/lists/phone_list_sql.h"

#include <QWidget>

class QPushButton;

namespace widgets {
class FilledCombo;
class HeadingGrid;
} // namespace widgets

namespace telephone {

class SlotTicks;

/// The contacts of the book, narrowed by three choices, and the numbers of the one that is chosen.
class ContactPane : public QWidget {
    Q_OBJECT

public:
    explicit ContactPane(jet::Database& book, QWidget* parent = nullptr);

    void load();
    void readAgain();
    widgets::HeadingGrid* grid() const { return FG; }
    /// The chosen contact with the numbers that have a tick; without an id for none.
    NewMember member() const;
    void noteAdded(); ///< a number has been put into a list

Q_SIGNALS:
    void rowChanged();
    void addWanted();

private:
    ContactFilter filter() const;
    void read(const QString& sql);
    void clearFilter();
    void showNumbers();

    jet::Database& m_book;
    QString m_sql;
    widgets::HeadingGrid* FG;
    SlotTicks* m_slots;
    widgets::FilledCombo* dcmbcat = nullptr;
    widgets::FilledCombo* Dcmbsubcat = nullptr;
    widgets::FilledCombo* dcmbcity = nullptr;
    QPushButton* CmdList = nullptr;
};

} // namespace telephone
