#pragma once

#include "core/handover/contact_screen.h"
#include "core/handover/page_screen.h"
#include "core/screen.h"
#include "letters/record/record_statements.h"

class QLineEdit;
class QMenu;
class QTabBar;
class QTimer;

namespace core {
class ListPresenter;
class ToolSet;
} // namespace core

namespace widgets {
class HeadingGrid;
}

namespace letters {

class LetterDrag;
class LetterPane;
class RecordTools;

/// The record of letters put together by person, category or month, searched by words, and arranged: letters
/// are dragged into a category.
class Frmgmail : public core::Screen, public core::ContactScreen, public core::PageScreen {
    Q_OBJECT

public:
    explicit Frmgmail(core::Context& context, QWidget* parent = nullptr);

    void load() override;
    void bookChanged() override;
    /// The letters to and from that person.
    bool showContact(qint64 id) override;
    /// "Letter" is the record by person, "Arrange" by category.
    void openPage(const QString& page) override;

private:
    void layOut();
    void connectTools();
    void fillCategories(QMenu* menu);
    LetterGroup group() const;
    void showGroups();
    void showLetters();
    void search();
    void followList();
    void moveTo(const QList<qint64>& letters, const QString& category);
    void askNewCategory();
    QList<qint64> chosenLetters() const;
    void remove();

    core::ToolSet* m_tools;
    QTabBar* m_tabs;
    QLineEdit* m_sought;
    QTimer* m_typing;
    widgets::HeadingGrid* m_groups;
    widgets::HeadingGrid* m_grid;
    core::ListPresenter* m_list;
    RecordTools* m_recordTools;
    LetterPane* m_pane;
    LetterDrag* m_drag;
};

} // namespace letters
