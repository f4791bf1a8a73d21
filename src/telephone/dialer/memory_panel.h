#pragma once

#include "jet/database.h"

#include <QList>
#include <QWidget>

class QLabel;

namespace widgets {
class FilledCombo;
}

namespace telephone {

class NumberButton;

/// Ten places of a named memory, each with a number that is dialled from there.
class MemoryPanel : public QWidget {
    Q_OBJECT

public:
    explicit MemoryPanel(jet::Database& book, QWidget* parent = nullptr);

    void readLists(); ///< anew; the first one is shown when none was
    void readSlots();
    QString list() const; ///< trimmed; empty when none is named
    void showList(const QString& list);
    QString caption(int slot) const;
    bool isEmpty(int slot) const;
    void showSaved(const QString& text);
    void focusList(bool droppedDown = false);

Q_SIGNALS:
    void slotClicked(int slot);
    void assignWanted(int slot);
    void clearWanted(int slot);

private:
    void addSlot(int slot, class QGridLayout* grid);
    void offerMenu(int slot, const QPoint& at);

    jet::Database& m_data;
    widgets::FilledCombo* cmbphone;
    QList<NumberButton*> m_slots; ///< Label1(0) to Label1(9)
    QLabel* LBLSAVE;
};

} // namespace telephone
