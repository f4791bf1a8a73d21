#pragma once

#include "core/context.h"
#include "letters/lists/mail_list_sql.h"

#include <QWidget>

class QLabel;
class QPushButton;

namespace widgets {
class HeadingGrid;
}

namespace letters {

/// The members of a group with the marks of the print selection, which are stored as they are ticked.
class MemberPane : public QWidget {
    Q_OBJECT

public:
    explicit MemberPane(core::Context& context, QWidget* parent = nullptr);

    /// @param empty what is said when there are none
    void show(const MailGroup& group, const MailFilter& filter, const QString& empty);
    void showNone(const QString& empty);
    void readAgain();

    widgets::HeadingGrid* grid() const { return FG; }
    const MailGroup& group() const { return m_group; }
    const MailFilter& filter() const { return m_filter; }
    bool isShowing() const { return m_isShowing; } ///< a group, be it without members
    QString sql() const { return m_sql; } ///< of the grid
    jet::Way way() const;
    int selected() const { return m_selected; } ///< members that bear the mark

    /// Of the current row; looked up by its name where the rows have no ids. 0 for none.
    qint64 currentId() const;
    QString currentName() const;
    QList<qint64> memberIds(bool onlySelected) const; ///< by name

Q_SIGNALS:
    void currentChanged();
    void selectionChanged(); ///< some were ticked or unticked
    void choiceWanted(); ///< among all contacts, who is to be printed

private:
    void read();
    void storeTick(int row);
    void selectAll(bool selected);
    void countSelected();
    void tellCount();
    QString condition() const;

    core::Context& m_context;
    MailGroup m_group;
    MailFilter m_filter;
    QString m_sql;
    bool m_isShowing = false;
    int m_selected = 0;
    widgets::HeadingGrid* FG;
    QLabel* lblHead;
    QLabel* lblCount;
    QPushButton* m_all;
    QPushButton* m_none;
};

} // namespace letters
