#pragma once

#include "widgets/key_filter.h"

#include <QList>
#include <QString>

#include <functional>

class QBoxLayout;
class QButtonGroup;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QVBoxLayout;
class QWidget;

namespace widgets {

class WrappingRow;

/// One control of a form, and the column that it shows ("" when it shows none).
struct Control {
    QString name;
    QString column;
    QWidget* widget = nullptr;
};

/// Under this property each field that a person enters something into keeps the column it shows, for
/// FieldSet.
inline constexpr char kFieldColumn[] = "fieldColumn";

/// Lays out the controls of a page, one call a control, in the order in which Tab walks through them.
///
/// A call says the control's name, its label (with & for the mnemonic) and its column; the kit sets object
/// name, buddy, accessible name, tool tip, tab order, length and place. An empty label carries on under the
/// control above and takes its accessible name: of two lines, a pasted address fills both. The kit itself is
/// done with when the layout is: the page owns all it made.
class FormKit {
public:
    using SizeOf = std::function<int(QStringView column)>; ///< how many characters a column takes

    explicit FormKit(QWidget* page, SizeOf sizeOf = {});

    /// Starts a titled group of label and field rows. Without a title the rows stand on the page itself.
    FormKit& group(const QString& title = {});
    /// The groups that follow stand to the right of those so far.
    FormKit& nextColumn(int stretch = 1);
    /// Before the first group: where the page is too narrow for all columns they go on below one another. The
    /// page must be one that scrolls.
    FormKit& wrap();
    /// The buttons that follow stand in a row below all columns, until the next group.
    FormKit& buttonRow();
    /// Puts the next control into the row of the previous one; its label, if any, stands between them.
    FormKit& beside(int stretch = 1);
    /// The control before takes as many shares of the room in its row.
    FormKit& grow(int stretch);
    /// Takes up the room that is left: below the group so far, or between the buttons of a button row.
    FormKit& stretch();

    FormKit& line(const QString& name, const QString& label, const QString& column = {},
        KeyFilter filter = KeyFilter::None);
    FormKit& combo(const QString& name, const QString& label, const QString& column = {},
        KeyFilter filter = KeyFilter::None); ///< FilledCombo, may be typed into
    FormKit& fixedCombo(const QString& name, const QString& label, const QString& column = {});
    FormKit& date(const QString& name, const QString& label, const QString& column = {}); ///< DateBox
    FormKit& memo(const QString& name, const QString& label, const QString& column = {}, int rows = 4);
    FormKit& check(const QString& name, const QString& label, const QString& column = {});
    /// Radio buttons that follow one another within a group are one choice and stand side by side.
    FormKit& radio(const QString& name, const QString& label);
    /// Buttons that follow one another stand side by side.
    FormKit& button(
        const QString& name, const QString& text, QStringView icon = {}, const QString& toolTip = {});
    /// A label that shows a value.
    FormKit& caption(const QString& name, const QString& text = {}, const QString& label = {});
    /// A line, or for more than one row a text box, that can be read and copied from only.
    FormKit& readOnly(const QString& name, const QString& label, int rows = 1, const QString& column = {});
    /// Any other control, as a field with a label.
    FormKit& widget(const QString& name, const QString& label, QWidget* control, const QString& column = {});
    /// Any other control over the whole width of the group: grids, pictures, tabs.
    FormKit& wide(const QString& name, const QString& accessibleName, QWidget* control);
    /// The line before never shows less than such a text.
    FormKit& least(QStringView sample);
    /// Says what the control before is for, where its label does not.
    FormKit& hint(const QString& toolTip);

    const QList<Control>& controls() const { return m_controls; }
    /// The control that the last call made.
    QWidget* last() const { return m_controls.isEmpty() ? nullptr : m_controls.constLast().widget; }

private:
    enum class Flow { None, Radios, Buttons };

    void needGroup();
    void letGroupGrow();
    void place(QWidget* control, const QString& label, Qt::Alignment labelAlignment = Qt::AlignVCenter);
    void newRow(QLabel* label, Qt::Alignment labelAlignment);
    void keep(const QString& name, QWidget* control, const QString& column);
    FormKit& field(const QString& name, const QString& label, QWidget* control, const QString& column);
    void describe(QWidget* control, const QString& label, QLabel* shown);
    int sizeOf(const QString& column) const;

    QWidget* m_page;
    SizeOf m_sizeOf;
    QVBoxLayout* m_outer;
    QHBoxLayout* m_columns; ///< of groups, side by side
    WrappingRow* m_wrapped = nullptr; ///< in place of them
    QVBoxLayout* m_column = nullptr;
    QWidget* m_group = nullptr;
    QGridLayout* m_grid = nullptr;
    QBoxLayout* m_row = nullptr; ///< the field cell of the current row
    QHBoxLayout* m_buttons = nullptr; ///< only while a button row is being filled
    int m_rowEnd = 0; ///< stretches at the end of the current row
    int m_rows = 0;
    int m_beside = 0; ///< the stretch of a control that goes into the current row, 0 for a new row
    Flow m_flow = Flow::None;
    QButtonGroup* m_choice = nullptr; ///< of the radio buttons that are being added
    QString m_lastLabel;
    QLineEdit* m_lastLine = nullptr; ///< when the control before is one
    QWidget* m_lastFocus = nullptr;
    QList<Control> m_controls;
};

} // namespace widgets
