#pragma once

#include "core/screen.h"

class QFrame;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class QRadioButton;
class QStackedWidget;
class QTimer;

namespace core {
class ContactTools;
class ListPresenter;
class ToolSet;
} // namespace core

namespace widgets {
class HeadingGrid;
}

namespace views {

class SearchFilter;

/// Finds contacts: a list narrowed by what is chosen in combos, and another of those that have a word in any
/// of many fields, which follows the word as it is typed. A hit leads to the contact.
class FormSearch : public core::Screen {
    Q_OBJECT

public:
    explicit FormSearch(core::Context& context, QWidget* parent = nullptr);

    void load() override;
    void bookChanged() override;

    QString builtSql; ///< the statement behind the list of contacts

private:
    void connectTools();
    QWidget* layOutKeyword();
    QWidget* layOutResults();
    QWidget* layOutFoot();
    void connectControls();

    void showTree(const QString& kind);

    void applyChoices();
    void applyNames();
    void clearChoices();
    void list(const QString& sql);
    void query(const QString& sql);
    void queryKeyword(const QString& sql);
    void fillHits(jet::Recordset rows);
    void searchKeyword();
    void followKeyword();
    void enterGrid();
    void showKeyword(bool on);
    void showGrid(widgets::HeadingGrid* grid);
    void formatGrid();
    void rowChanged(int row);
    void showCount();
    widgets::HeadingGrid* grid() const;
    core::ListPresenter* shownList() const;

    bool m_keywordRead = false;
    QString m_word; ///< whose hits they are

    SearchFilter* m_filter;
    core::ToolSet* m_tools;
    core::ContactTools* m_hits;
    QMenu* m_hitMenu;
    widgets::HeadingGrid* FG1;
    widgets::HeadingGrid* GridKey;
    core::ListPresenter* m_contactList;
    core::ListPresenter* m_hitList;
    QStackedWidget* m_grids;
    QFrame* Frame3;
    QLineEdit* txtkey = nullptr;
    QTimer* m_typing; ///< runs while the word is being typed
    QRadioButton* Option1;
    QRadioButton* Option2;
    QPushButton* SSCommand3;
    QPushButton* cmdgo;
    QPushButton* CmdHelp;
    QLabel* m_count;
};

} // namespace views
