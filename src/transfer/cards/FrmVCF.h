#pragma once

#include "core/screen.h"

#include <QSet>

class QCheckBox;
class QLabel;
class QTabBar;

namespace widgets {
class FilledCombo;
class HeadingGrid;
} // namespace widgets

namespace transfer {

/// Writes the contacts that are ticked as vCards: a file each in the form that this program has always
/// written, or all that a contact holds in the form that others read today. What is ticked stays so whatever
/// the list is narrowed to.
class FrmVCF : public core::Screen {
    Q_OBJECT

public:
    explicit FrmVCF(core::Context& context, QWidget* parent = nullptr);
    ~FrmVCF() override;

    void load() override;
    void bookChanged() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void layOut();
    void connectControls();
    void readList();
    void showTicked();
    void chooseTab(int tab);
    void toggle(int row);
    void tickAll(bool ticked);
    void followTicks();
    QList<qint64> tickedIds() const; ///< in the order of their numbers
    void save();
    void saveWhole(const QList<qint64>& ids, int format);

    QSet<qint64> m_ticked;
    widgets::HeadingGrid* Grid1;
    QTabBar* m_tabs;
    widgets::FilledCombo* m_category = nullptr;
    widgets::FilledCombo* m_subcategory = nullptr;
    widgets::FilledCombo* m_priority = nullptr;
    widgets::FilledCombo* m_format = nullptr;
    QCheckBox* ChkSelect = nullptr;
    QLabel* m_count = nullptr;
};

} // namespace transfer
