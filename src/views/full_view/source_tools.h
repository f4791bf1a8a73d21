#pragma once

#include "core/context.h"

#include <QObject>

class QMenu;
class QToolButton;
class QWidget;

namespace core {
class ToolSet;
}

namespace views {

/// The address books that the smart view can browse.
enum class Source { OwnBook, MailClient, CardFolder, AddressBook };

/// The choice of an address book in the smart view: four tools of which exactly one is down, in the menu of a
/// button that bears the name of the one in force, and the buttons beside it.
class SourceTools : public QObject {
    Q_OBJECT

public:
    SourceTools(core::Context& context, QWidget* screen);

    QWidget* row() const { return m_row; }
    Source current() const;
    /// Puts a tool down without telling that it was chosen.
    void setCurrent(Source source);
    /// A keyword is looked for in the own book only.
    void allowKeywords(bool allowed);

Q_SIGNALS:
    void chosen(views::Source source);
    void folderWanted();
    void keywordsWanted();

private:
    void connectTools();
    void layOutRow(core::Context& context);

    core::ToolSet* m_tools;
    QMenu* MenuDb;
    QWidget* m_row;
    QToolButton* CmdDatabase;
    QToolButton* FolderViewOff;
    QToolButton* CmdScan;
    QToolButton* CmdKey;
};

} // namespace views
