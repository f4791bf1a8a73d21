#pragma once

#include "core/context.h"

#include <QFrame>
#include <QHash>

class QLabel;
class QPushButton;
class QRadioButton;

namespace widgets {
class FilledCombo;
class HeadingGrid;
} // namespace widgets

namespace telephone {

/// Chooses a contact and one of its numbers for a place of the memory, and stores it there.
class MemoryChooser : public QFrame {
    Q_OBJECT

public:
    explicit MemoryChooser(core::Context& context, QWidget* parent = nullptr);

    void open(const QString& list, int slot);

Q_SIGNALS:
    void saved(int slot);
    void cancelled();

private:
    void layOut();
    void connectControls();
    void readGrid();
    void showColumns();
    void choosePerson(int row);
    void forgetPerson();
    void save();

    core::Context& m_context;
    widgets::HeadingGrid* FG1;
    widgets::FilledCombo* cmbcat1 = nullptr;
    widgets::FilledCombo* cmbcat2 = nullptr;
    widgets::FilledCombo* CmbCity = nullptr;
    widgets::FilledCombo* Combo1 = nullptr;
    QLabel* lblname = nullptr;
    QPushButton* cmdsl = nullptr;
    QList<QRadioButton*> m_options;
    QStringList m_captions; ///< of the options, as they are stored
    QString m_list;
    QString m_name;
    qint64 m_person = 0;
    int m_slot = 0;
    bool m_isShort = false;
    bool m_isFilling = false;
};

} // namespace telephone
