#pragma once

#include "core/screen.h"

class QButtonGroup;
class QLabel;
class QTabWidget;

namespace core {
class ContactTools;
}

namespace output {
class ListTools;
}

namespace widgets {
class FilledCombo;
class HeadingGrid;
} // namespace widgets

namespace anniversaries {

/// The twelve signs: what the reference says of each, and who of the address book was born under it.
class frmzodiac : public core::Screen {
    Q_OBJECT

public:
    explicit frmzodiac(core::Context& context, QWidget* parent = nullptr);

    void load() override;
    void bookChanged() override;

private:
    QWidget* layOutSigns();
    QWidget* layOutReference();
    QWidget* layOutList();
    void choose(const QString& sign);
    void showReference(const QString& sign);
    void listPeople();

    QButtonGroup* m_signs;
    QTabWidget* SSActiveTabs1;
    widgets::HeadingGrid* VSFlexGrid1;
    widgets::FilledCombo* grp;
    output::ListTools* m_listTools;
    QLabel* LblStart;
    QLabel* LblEnd;
    QString m_sign;
};

} // namespace anniversaries
