#pragma once

#include "core/context.h"
#include "output/labels/label_report.h"

#include <QWidget>

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QSpinBox;

namespace letters {

class SheetPicture;

/// What is to be printed of people and their addresses.
struct LabelChoice {
    enum class What { Labels, NameList, AddressList };
    What what = What::Labels;
    output::AddressSet address = output::AddressSet::Home;
    output::LabelSheet sheet; ///< with first label, copies and frame
    bool isByHousehold = false;
};

/// The choices before labels are printed: one of five types of sheets or one of the person's own, which
/// address, where on the sheet to begin, how often each.
class LabelPanel : public QWidget {
    Q_OBJECT

public:
    enum class For {
        List, ///< people, whose names or addresses can be listed too
        Person, ///< one, for whom a whole sheet is printed
    };
    LabelPanel(core::Context& context, For who, QWidget* parent = nullptr);

    LabelChoice choice() const;

Q_SIGNALS:
    void previewWanted();
    void testWanted(); ///< a page with crosses for the sheet of the choice

private:
    QWidget* layOutTypes(For who);
    QWidget* layOutSheet(For who);
    QWidget* layOutOwn();
    void readOwn(const QString& current = {});
    void follow();
    int chosenOwn() const; ///< index among the person's own, -1 for none
    void editOwn(bool isNew);
    void deleteOwn();
    bool storeOwn(const QList<output::LabelSheet>& sheets, const QString& current);

    core::Context& m_context;
    QList<output::LabelSheet> m_own;
    QButtonGroup* m_types;
    QComboBox* cmbOwnSheet;
    QPushButton* m_edit = nullptr;
    QPushButton* m_delete = nullptr;
    QPushButton* m_test = nullptr;
    SheetPicture* m_picture;
    QSpinBox* spnFirst;
    QSpinBox* spnCopies;
    QCheckBox* chkHousehold;
    QCheckBox* chkFrame;
    QLabel* lblSheet;
};

/// Previews what was chosen for people; false when there is nobody.
/// @param list what they have in common, for the heading of a list
bool showLabels(core::Context& context, jet::Recordset rows, const LabelChoice& choice, const QString& list);

} // namespace letters
