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
/// name. Where a contact is needed it is looked up by the name shown. A tool whose screen is not there is
/// disabled.
class ContactTools : public QObject {
    Q_OBJECT

public:
    /// What the tools ask of the screen that has them.
    struct Host {
        QString callerForm; ///< to which filters are delivered
        std::function<QString()> shownName;
        std::function<qint64()> listedId; ///< of the current row of the list, 0 for none
    };

    ContactTools(core::Context& context, Host host, QWidget* screen);

    QAction* action(QStringView id) const;
    QToolBar* makeToolBar(QWidget* parent) const;
    QMenu* makeMenu(QWidget* parent) const;

Q_SIGNALS:
    void searchWanted();
    void listEditingWanted(bool on);

private:
    struct ToolRow;
    static const ToolRow kTools[];

    bool isAvailable(const ToolRow& tool) const;
    /// The contact of the name shown, read anew; no row when there is none or its name breaks the look-up.
    jet::Recordset contactByName() const;
    void notSelected();
    void handOver(QStringView form);

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
    void search();

    core::Context& m_context;
    Host m_host;
    QWidget* m_screen;
    QHash<QString, QAction*> m_actions;
};

} // namespace views
