#pragma once

#include "core/command_table.h"
#include "core/context.h"

#include <QDate>
#include <QTimer>
#include <QWidget>

#include <functional>

class QLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QToolButton;

namespace shell {

/// What the frame shows while no screen is open: the day, a search box, the contacts that were changed last,
/// the birthdays of the next days, and the tools that are used most as large buttons. Into an empty book one
/// button leads.
class StartPage : public QWidget {
    Q_OBJECT

public:
    StartPage(core::Context& context, const std::function<bool(const core::Action&)>& isAvailable,
        QWidget* parent = nullptr);

    void setToday(QDate today);
    void showWhatIsToCome(bool shown);
    /// The business edition speaks of no birthdays.
    void showBirthdays(bool shown);

Q_SIGNALS:
    void toolWanted(const QString& toolId);
    void contactWanted(qint64 id);

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* layOutTools(const std::function<bool(const core::Action&)>& isAvailable);
    void placeTools();
    void readBook();
    void search();
    void fill(const QString& heading, const QString& sql);
    void readBirthdays();
    QListWidget* makeList(const QString& name, const QString& accessibleName);
    QLayout* layOutLists();
    void choose();

    core::Context& m_context;
    QLabel* m_day;
    QLabel* m_count;
    QLineEdit* m_search;
    QLabel* m_heading;
    QListWidget* m_contacts;
    QWidget* m_contactPart;
    QWidget* m_birthdayPart;
    QListWidget* m_birthdays;
    QToolButton* m_first;
    QList<QToolButton*> m_tools;
    QString m_bookRead; ///< the state of the book that is shown
    QTimer m_typed;
    QTimer m_birthdaysDue;
    bool m_showsAll = false;
    bool m_showsBirthdays = true;
};

} // namespace shell
