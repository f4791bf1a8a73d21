#include "widgets/form_kit.h"

#include "widgets/date_box.h"
#include "widgets/filled_combo.h"
#include "widgets/line_guard.h"
#include "widgets/theme.h"
#include "widgets/wrapping_row.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace widgets {

using namespace Qt::StringLiterals;

namespace {

constexpr int PageMargin = 12;
constexpr int BetweenColumns = 14;
constexpr int BetweenGroups = 10;
constexpr int BetweenFields = 6;
constexpr int GroupMargin = 10;
constexpr int AnySize = 255;

QString withoutMnemonic(const QString& label)
{
    QString plain;
    for (qsizetype i = 0; i < label.size(); ++i) {
        if (label[i] == u'&' && ++i == label.size())
            break;
        plain += label[i];
    }
    return plain;
}

/// How many digits can be read of a number that is never to be cut off: 0 for any other column.
int digitsOf(const QString& column)
{
    struct Kind {
        QStringView part;
        int digits;
    };
    constexpr Kind kinds[] = {
        {u"_pin", 8}, {u"_ph", 15}, {u"mobile", 15}, {u"sms", 15}, {u"fax", 15}, {u"_std", 6}, {u"_xtn", 5}};
    for (const Kind& kind : kinds) {
        if (column.contains(kind.part, Qt::CaseInsensitive))
            return kind.digits;
    }
    return 0;
}

int widthOf(const QWidget* line, const QString& text)
{
    constexpr int Edges = 14;
    return line->fontMetrics().horizontalAdvance(text) + Edges;
}

bool growsDown(const QWidget* control)
{
    return control->sizePolicy().verticalPolicy() & QSizePolicy::ExpandFlag;
}

int heightOfRows(const QWidget* box, int rows)
{
    constexpr int Frame = 12;
    return rows * box->fontMetrics().lineSpacing() + Frame;
}

} // namespace

FormKit::FormKit(QWidget* page, SizeOf sizeOf)
    : m_page(page)
    , m_sizeOf(std::move(sizeOf))
    , m_outer(new QVBoxLayout)
    , m_columns(new QHBoxLayout)
{
    Q_ASSERT(!page->layout());
    page->setLayout(m_outer);
    m_outer->setContentsMargins(PageMargin, PageMargin, PageMargin, PageMargin);
    m_outer->setSpacing(BetweenGroups);
    m_columns->setSpacing(BetweenColumns);
    m_outer->addLayout(m_columns, 1);
}

FormKit& FormKit::nextColumn(int stretch)
{
    m_column = new QVBoxLayout;
    m_column->setSpacing(BetweenGroups);
    m_column->addStretch(1);
    if (m_wrapped)
        m_wrapped->add(m_column, stretch);
    else
        m_columns->addLayout(m_column, stretch);
    m_group = nullptr;
    m_buttons = nullptr;
    return *this;
}

FormKit& FormKit::wrap()
{
    Q_ASSERT_X(!m_column, "FormKit::wrap", "there is a column already");
    m_wrapped = new WrappingRow;
    m_wrapped->setSpacing(BetweenColumns);
    m_columns->addLayout(m_wrapped);
    return *this;
}

FormKit& FormKit::group(const QString& title)
{
    if (!m_column)
        nextColumn();
    m_group = title.isEmpty() ? new QWidget(m_page) : new QGroupBox(title, m_page);
    m_grid = new QGridLayout(m_group);
    if (title.isEmpty())
        m_grid->setContentsMargins(0, 0, 0, 0);
    else
        m_grid->setContentsMargins(GroupMargin, GroupMargin, GroupMargin, GroupMargin);
    m_grid->setHorizontalSpacing(BetweenFields + 2);
    m_grid->setVerticalSpacing(BetweenFields);
    m_grid->setColumnStretch(1, 1);
    m_column->insertWidget(m_column->count() - 1, m_group);
    m_lastLine = nullptr;
    m_buttons = nullptr;
    m_row = nullptr;
    m_rows = 0;
    m_beside = 0;
    m_flow = Flow::None;
    return *this;
}

FormKit& FormKit::buttonRow()
{
    m_buttons = new QHBoxLayout;
    m_buttons->setSpacing(BetweenFields);
    m_buttons->addStretch(1);
    m_outer->addLayout(m_buttons);
    m_group = nullptr;
    m_flow = Flow::None;
    return *this;
}

FormKit& FormKit::beside(int stretch)
{
    Q_ASSERT_X(m_row || m_buttons, "FormKit::beside", "there is no control before");
    m_beside = stretch;
    return *this;
}

FormKit& FormKit::grow(int stretch)
{
    Q_ASSERT(m_row && last());
    m_row->setStretchFactor(last(), stretch);
    return *this;
}

FormKit& FormKit::stretch()
{
    if (m_buttons) {
        m_buttons->setStretch(0, 0); // what follows is pushed to the right, what came before to the left
        m_buttons->addStretch(1);
        if (auto* first = m_buttons->itemAt(0)->spacerItem())
            first->changeSize(0, 0);
    } else if (m_column) {
        m_column->insertStretch(m_column->count() - 1, 1);
    }
    return *this;
}

FormKit& FormKit::line(const QString& name, const QString& label, const QString& column, KeyFilter filter)
{
    auto* edit = new QLineEdit(m_page);
    edit->setMaxLength(sizeOf(column));
    setKeyFilter(edit, filter);
    if (const int digits = digitsOf(column))
        edit->setMinimumWidth(widthOf(edit, QString(digits, u'0')));
    guardLine(edit);
    QLineEdit* above = label.isEmpty() && m_beside == 0 ? m_lastLine : nullptr;
    field(name, label, edit, column);
    if (above)
        continueIn(above, edit);
    m_lastLine = edit;
    return *this;
}

FormKit& FormKit::combo(const QString& name, const QString& label, const QString& column, KeyFilter filter)
{
    auto* combo = new FilledCombo(m_page);
    // As narrow as a line may become: a page with many combos must fit beside lists and panels.
    combo->setMinimumWidth(56);
    combo->lineEdit()->setMaxLength(sizeOf(column));
    setKeyFilter(combo, filter);
    return field(name, label, combo, column);
}

FormKit& FormKit::fixedCombo(const QString& name, const QString& label, const QString& column)
{
    return field(name, label, new FilledCombo(m_page, FilledCombo::Typing::ListOnly), column);
}

FormKit& FormKit::date(const QString& name, const QString& label, const QString& column)
{
    return field(name, label, new DateBox(m_page), column);
}

FormKit& FormKit::memo(const QString& name, const QString& label, const QString& column, int rows)
{
    auto* box = new QPlainTextEdit(m_page);
    box->setTabChangesFocus(true);
    box->setMinimumHeight(heightOfRows(box, rows));
    box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    box->setMaximumHeight(heightOfRows(box, rows) * 3 / 2);
    box->setProperty(kFieldColumn, column);
    place(box, label, Qt::AlignTop);
    keep(name, box, column);
    return *this;
}

FormKit& FormKit::field(const QString& name, const QString& label, QWidget* control, const QString& column)
{
    control->setProperty(kFieldColumn, column);
    return widget(name, label, control, column);
}

FormKit& FormKit::check(const QString& name, const QString& label, const QString& column)
{
    auto* box = new QCheckBox(label, m_page);
    place(box, {});
    box->setAccessibleName(withoutMnemonic(label));
    keep(name, box, column);
    return *this;
}

FormKit& FormKit::radio(const QString& name, const QString& label)
{
    auto* button = new QRadioButton(label, m_page);
    const bool first = m_flow != Flow::Radios;
    if (!first)
        m_beside = 1;
    place(button, {});
    if (first)
        m_choice = new QButtonGroup(m_page);
    m_choice->addButton(button);
    m_flow = Flow::Radios;
    button->setAccessibleName(withoutMnemonic(label));
    keep(name, button, {});
    return *this;
}

FormKit& FormKit::button(const QString& name, const QString& text, QStringView icon, const QString& toolTip)
{
    auto* button = new QPushButton(text, m_page);
    if (!icon.isEmpty())
        setIcon(button, icon);
    button->setToolTip(toolTip);
    button->setAutoDefault(false);
    button->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    if (m_buttons) {
        m_buttons->addWidget(button);
    } else {
        if (m_flow == Flow::Buttons)
            m_beside = 1;
        place(button, {});
        m_flow = Flow::Buttons;
    }
    button->setAccessibleName(text.isEmpty() ? toolTip : withoutMnemonic(text));
    keep(name, button, {});
    return *this;
}

FormKit& FormKit::caption(const QString& name, const QString& text, const QString& label)
{
    auto* value = new QLabel(text, m_page);
    value->setTextFormat(Qt::PlainText);
    value->setWordWrap(true);
    value->setMinimumWidth(1); // no text of a contact makes the window wider
    return widget(name, label, value);
}

FormKit& FormKit::readOnly(const QString& name, const QString& label, int rows, const QString& column)
{
    if (rows > 1) {
        memo(name, label, column, rows);
        auto* box = qobject_cast<QPlainTextEdit*>(last());
        box->setReadOnly(true);
        box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        return *this;
    }
    auto* edit = new QLineEdit(m_page);
    edit->setReadOnly(true);
    return widget(name, label, edit, column);
}

FormKit& FormKit::widget(const QString& name, const QString& label, QWidget* control, const QString& column)
{
    place(control, label, growsDown(control) ? Qt::AlignTop : Qt::AlignVCenter);
    keep(name, control, column);
    return *this;
}

FormKit& FormKit::wide(const QString& name, const QString& accessibleName, QWidget* control)
{
    needGroup();
    m_grid->addWidget(control, m_rows, 0, 1, 2);
    if (growsDown(control)) {
        m_grid->setRowStretch(m_rows, 1);
        letGroupGrow();
    }
    ++m_rows;
    m_row = nullptr;
    m_flow = Flow::None;
    control->setAccessibleName(withoutMnemonic(accessibleName));
    keep(name, control, {});
    return *this;
}

FormKit& FormKit::least(QStringView sample)
{
    Q_ASSERT(last());
    last()->setMinimumWidth(widthOf(last(), sample.toString()));
    return *this;
}

FormKit& FormKit::hint(const QString& toolTip)
{
    Q_ASSERT(last());
    last()->setToolTip(toolTip);
    return *this;
}

void FormKit::needGroup()
{
    if (!m_group)
        group();
}

/// The group takes the height that is left in its column, instead of the empty room at the column's end.
void FormKit::letGroupGrow()
{
    m_column->setStretchFactor(m_group, 1);
    m_column->setStretch(m_column->count() - 1, 0);
}

void FormKit::place(QWidget* control, const QString& label, Qt::Alignment labelAlignment)
{
    const int besideStretch = std::exchange(m_beside, 0);
    const bool beside = besideStretch > 0;
    auto* shown = label.isEmpty() ? nullptr : new QLabel(label, m_page);
    if (shown)
        shown->setTextFormat(Qt::PlainText);
    if (m_buttons) {
        if (shown)
            m_buttons->addWidget(shown);
        m_buttons->addWidget(control);
    } else {
        needGroup();
        if (!beside || !m_row)
            newRow(shown, labelAlignment);
        else if (shown)
            m_row->insertWidget(m_row->count() - m_rowEnd, shown);
        const bool keepsItsSize = qobject_cast<QAbstractButton*>(control) != nullptr;
        m_row->insertWidget(
            m_row->count() - m_rowEnd, control, keepsItsSize ? 0 : std::max(1, besideStretch));
        // A row of nothing but buttons stays to the left.
        if (keepsItsSize && !beside) {
            m_row->addStretch(1);
            m_rowEnd = 1;
        }
        if (growsDown(control)) {
            m_grid->setRowStretch(m_rows - 1, 1);
            letGroupGrow();
        }
    }
    m_flow = Flow::None;
    describe(control, label, shown);
}

void FormKit::newRow(QLabel* label, Qt::Alignment labelAlignment)
{
    m_row = new QHBoxLayout;
    m_row->setSpacing(BetweenFields);
    m_rowEnd = 0;
    if (label) {
        m_grid->addWidget(label, m_rows, 0, Qt::AlignRight | labelAlignment);
        if (labelAlignment & Qt::AlignTop)
            label->setContentsMargins(0, 4, 0, 0);
    }
    m_grid->addLayout(m_row, m_rows, 1);
    ++m_rows;
}

void FormKit::describe(QWidget* control, const QString& label, QLabel* shown)
{
    if (shown) {
        shown->setBuddy(control);
        m_lastLabel = withoutMnemonic(label);
    } else if (control->toolTip().isEmpty() && !qobject_cast<QAbstractButton*>(control)) {
        control->setToolTip(m_lastLabel);
    }
    control->setAccessibleName(m_lastLabel);
}

void FormKit::keep(const QString& name, QWidget* control, const QString& column)
{
    control->setObjectName(name);
    const bool reachedByTab = (control->focusPolicy() & Qt::TabFocus) || control->focusProxy();
    if (reachedByTab) {
        if (m_lastFocus)
            QWidget::setTabOrder(m_lastFocus, control);
        m_lastFocus = control;
    }
    m_lastLine = nullptr;
    m_controls += Control{name, column, control};
}

int FormKit::sizeOf(const QString& column) const
{
    const int size = m_sizeOf && !column.isEmpty() ? m_sizeOf(column) : AnySize;
    return size > 0 ? size : AnySize;
}

} // namespace widgets
