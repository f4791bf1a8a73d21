#pragma once

#include "core/screen.h"
#include "telephone/replacer/replacement.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QTabWidget;
class QTimer;

namespace widgets {
class FilledCombo;
class HeadingGrid;
} // namespace widgets

namespace telephone {

/// Brings a change of a numbering plan to all contacts: the beginnings of numbers, area codes, the names of
/// cities. What is typed is looked for at once.
class FrmPhReplacer : public core::Screen {
    Q_OBJECT

public:
    explicit FrmPhReplacer(core::Context& context, QWidget* parent = nullptr);

    void load() override;
    void bookChanged() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* layOutNumbers();
    QWidget* layOutCodes();
    QWidget* layOutCities();
    void layOutFoot();
    Replacement entered() const;
    void search();
    void fill(const QString& sql);
    void replace();
    void showReplaced(const Replacement& done);
    QString typed(const QString& field) const;

    QTabWidget* SSActiveTabs1;
    widgets::HeadingGrid* FG2;
    widgets::HeadingGrid* FGStd;
    widgets::HeadingGrid* FGCity;
    widgets::FilledCombo* DBCombo1 = nullptr;
    QCheckBox* ChkPreview;
    QLabel* m_count;
    QTimer* m_typing; ///< runs while something is being typed
};

} // namespace telephone
