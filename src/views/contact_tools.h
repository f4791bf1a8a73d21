#pragma once

#include "core/context.h"

#include <QHash>
#include <QObject>

#include <functional>

class QAction;
class QMenu;
class QToolBar;
class QWidget;

namespace views {

/// The tools of a screen that shows one contact: each hands the contact to another screen, found by form
/// name. The contact is that of the id shown; calls, mails, letters and linked records of a screen that tells
/// its name go by the name. A tool whose screen is not there is disabled.
class ContactTools : public QObject {
    Q_OBJECT

public:
    /// What the tools ask of the screen that has them.
    struct Host {
        QString callerForm; ///< to which filters are delivered
        std::function<qint64()> shownId; ///< of the contact shown, 0 for none
        std::function<qint64()> listedId; ///< of the current row of the list, 0 for none
        std::function<QString()> shownName = {}; ///< without it everything goes by id
    };

    ContactTools(core::Context& context, Host host, QWidget* screen);

    QAction* action(QStringView id) const;
    QToolBar* makeToolBar(QWidget* parent) const;
    /// With find and replace, which has no place in a bar.
    QMenu* makeMenu(QWidget* parent);
    /// Bar and menu of a screen that has other tools too: those of `without` are left out.
    void addTo(QToolBar* bar, const QStringList& without) const;
    void addTo(QMenu* menu, const QStringList& without);

Q_SIGNALS:
    void searchWanted();
    void listEditingWanted(bool on);

private:
    struct ToolRow;
    static const ToolRow kTools[];

    bool isAvailable(const ToolRow& tool) const;
    /// The contact shown, read anew; no row when there is none. What stands in another address book has no id
    /// here and is looked for by its name.
    jet::Recordset shownContact() const;
    /// The first contact of the name shown; no row when its name breaks the look-up.
    jet::Recordset namedContact() const;
    void notSelected();
    void handOver(QStringView form, const jet::Recordset& contact);

    void openSelector();
    void openBriefView();
    void editDetails();
    void printLabel();
    void viewLinkedItem();
    void call();
    void letter();
    void email();
    void sms();
    void editList();
    void printRecord();
    void commonFilter();
    void tabFilter();
    void askFilter(QStringView form);
    void saveAsCard();
    void saveToDesktop();
    void saveCard(const QString& folder);
    void saveAllToDesktop();
    void replaceIn(QStringView callerWord);
    void search();

    core::Context& m_context;
    Host m_host;
    QWidget* m_screen;
    QHash<QString, QAction*> m_actions;
};

} // namespace views
