#pragma once

#include "core/setup_panel.h"
#include "letters/ltr_setup/stored_lists.h"

class QListWidget;

namespace letters {

class EntryPanel;

/// Several lists of which one is in hand: their names on the left, the chosen one beside them.
class ListChoice : public core::SetupPanel {
    Q_OBJECT

public:
    ListChoice(core::Context& context, const QList<const StoredList*>& lists, QWidget* parent = nullptr);

    void refresh() override;
    bool isTouched() const override;

private:
    void choose(int row);
    void take(int row);

    QList<const StoredList*> m_lists;
    QListWidget* m_names;
    EntryPanel* m_panel = nullptr;
    int m_row = -1;
};

} // namespace letters
