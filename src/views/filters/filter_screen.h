#pragma once

#include "core/screen.h"
#include "views/filters/filter_clauses.h"

namespace widgets {
class FormKit;
}

namespace views {

/// What tells the filters apart.
struct FilterKind {
    FilterForm form;
    QStringView helpCode;
    bool forgetsCaller; ///< empties the shared CallerForm when it closes
};

/// What the filters have in common: they are opened by a screen that has left its name in CallerForm, hand it
/// a where clause and go. Enter filters, Esc cancels.
class FilterScreen : public core::Screen {
    Q_OBJECT

protected:
    FilterScreen(core::Context& context, const FilterKind& kind, QWidget* parent);
    ~FilterScreen() override;

    /// The row of buttons below the choices.
    void layOutButtons(widgets::FormKit& form);
    /// "All" and the values of a list; rows without a value are left out.
    QStringList offeredValues(const QString& sql) const;
    void filterRecords();

    virtual QString whereClause() const = 0;
    virtual void chooseAll() = 0;

    void keyPressEvent(QKeyEvent* event) override;

private:
    void cancel();
    void finish();
    void releaseCaller();

    const FilterKind& m_kind;
    bool m_finished = false; ///< and so has no caller any more
};

} // namespace views
