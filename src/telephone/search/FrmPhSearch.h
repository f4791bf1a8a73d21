#pragma once

#include "core/screen.h"

class QLabel;
class QLineEdit;
class QTimer;

namespace core {
class ContactTools;
class ListPresenter;
} // namespace core

namespace widgets {
class FilledCombo;
class HeadingGrid;
} // namespace widgets

namespace telephone {

/// All telephone numbers of the book in one list, by city or by a piece of the number, so that a person is
/// found from a number alone. The beginning of the numbers of a city can be replaced.
class FrmPhSearch : public core::Screen {
    Q_OBJECT

public:
    explicit FrmPhSearch(core::Context& context, QWidget* parent = nullptr);

    void load() override;
    void bookChanged() override;

private:
    void layOut();
    void connectTools();
    QString city() const;
    void search();
    void clearSearch();
    void showCount();
    void rowChanged();
    void replacePrefix();

    QStringList m_pieces; ///< that were looked for, the last one first
    core::ContactTools* m_tools;
    widgets::HeadingGrid* FG2;
    core::ListPresenter* m_list;
    widgets::FilledCombo* Combo1 = nullptr;
    widgets::FilledCombo* DBCombo1 = nullptr;
    QLineEdit* txtFind = nullptr;
    QLineEdit* txtreplace = nullptr;
    QLabel* m_count = nullptr;
    QTimer* m_typing; ///< runs while something is being typed
};

} // namespace telephone
