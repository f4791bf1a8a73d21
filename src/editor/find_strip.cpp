#include "editor/find_strip.h"

#include "widgets/theme.h"
#include "widgets/wrapping_row.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextBlock>
#include <QTextEdit>

using namespace Qt::StringLiterals;

namespace editor {

namespace {

constexpr qsizetype kLongestWanted = 200;
constexpr int kMostCounted = 10'000;

} // namespace

FindStrip::FindStrip(QTextEdit* field)
    : m_field(field)
    , m_wanted(new QLineEdit)
    , m_other(new QLineEdit)
    , m_matchCase(new QCheckBox(tr("Match case")))
    , m_told(new QLabel)
{
    layOut();
    setVisible(false);
    connect(m_wanted, &QLineEdit::returnPressed, this, [this] { find(false); });
    connect(m_wanted, &QLineEdit::textEdited, this, [this] { m_told->clear(); });
    connect(m_other, &QLineEdit::returnPressed, this, &FindStrip::replace);
}

QPushButton* FindStrip::addButton(
    const QString& name, const QString& text, QStringView icon, const QString& toolTip)
{
    auto* button = new QPushButton(text);
    button->setObjectName(name);
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip);
    button->setAutoDefault(false);
    button->setFocusPolicy(Qt::TabFocus);
    if (!icon.isEmpty())
        widgets::setIcon(button, icon);
    return button;
}

void FindStrip::layOut()
{
    m_wanted->setObjectName(u"txtFind"_s);
    m_wanted->setPlaceholderText(tr("Find"));
    m_wanted->setAccessibleName(tr("Find"));
    m_wanted->setClearButtonEnabled(true);
    m_other->setObjectName(u"txtReplace"_s);
    m_other->setPlaceholderText(tr("Replace by"));
    m_other->setAccessibleName(tr("Replace by"));
    for (QLineEdit* line : {m_wanted, m_other})
        line->setMinimumWidth(120);
    m_matchCase->setObjectName(u"chkMatchCase"_s);
    m_told->setObjectName(u"lblFound"_s);
    m_told->setTextFormat(Qt::PlainText);
    auto* previous = addButton(u"cmdFindPrevious"_s, {}, u"arrow-up", tr("Find the one before (Shift+F3)"));
    auto* next = addButton(u"cmdFindNext"_s, {}, u"arrow-down", tr("Find the next one (F3)"));
    m_replace = addButton(u"cmdReplace"_s, tr("Replace"), {}, tr("Replace this one and find the next"));
    m_replaceAll = addButton(u"cmdReplaceAll"_s, tr("Replace all"), {}, tr("Replace them all"));
    auto* shut = addButton(u"cmdCloseFind"_s, {}, u"close", tr("Close (Esc)"));
    auto* rows = new widgets::WrappingRow(this);
    rows->setContentsMargins(0, 2, 0, 2);
    rows->setSpacing(4);
    auto* finding = new QHBoxLayout;
    finding->addWidget(m_wanted, 3);
    finding->addWidget(previous);
    finding->addWidget(next);
    finding->addWidget(m_matchCase);
    auto* replacing = new QHBoxLayout;
    replacing->addWidget(m_other, 3);
    replacing->addWidget(m_replace);
    replacing->addWidget(m_replaceAll);
    replacing->addWidget(m_told, 2);
    replacing->addWidget(shut);
    rows->add(finding, 2);
    rows->add(replacing, 3);
    connect(previous, &QPushButton::clicked, this, [this] { find(true); });
    connect(next, &QPushButton::clicked, this, [this] { find(false); });
    connect(m_replace, &QPushButton::clicked, this, &FindStrip::replace);
    connect(m_replaceAll, &QPushButton::clicked, this, &FindStrip::replaceAll);
    connect(shut, &QPushButton::clicked, this, &FindStrip::close);
}

void FindStrip::open()
{
    const QString selected = m_field->textCursor().selectedText();
    if (!selected.isEmpty() && selected.size() <= kLongestWanted
        && !selected.contains(QChar::ParagraphSeparator))
        m_wanted->setText(selected);
    for (QWidget* each : std::initializer_list<QWidget*>{m_other, m_replace, m_replaceAll})
        each->setVisible(!m_field->isReadOnly());
    m_told->clear();
    setVisible(true);
    m_wanted->setFocus();
    m_wanted->selectAll();
}

void FindStrip::close()
{
    setVisible(false);
    m_field->setFocus();
}

bool FindStrip::event(QEvent* event)
{
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
        return QWidget::event(event);
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool isEscape = key->key() == Qt::Key_Escape && key->modifiers() == Qt::NoModifier;
    const bool isNext = key->key() == Qt::Key_F3;
    // The lines have done with Enter what it is for; no button of a dialog around may do more.
    const bool isEnter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    if (!isEscape && !isNext && !isEnter)
        return QWidget::event(event);
    if (event->type() == QEvent::KeyPress && isEscape)
        close();
    else if (event->type() == QEvent::KeyPress && isNext)
        find(key->modifiers() & Qt::ShiftModifier);
    event->accept();
    return true;
}

bool FindStrip::isFound() const
{
    const auto sense = m_matchCase->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive;
    const QString selected = m_field->textCursor().selectedText();
    return !selected.isEmpty() && selected.compare(m_wanted->text(), sense) == 0;
}

void FindStrip::find(bool backward)
{
    const QString wanted = m_wanted->text();
    if (wanted.isEmpty())
        return;
    QTextDocument::FindFlags flags;
    flags.setFlag(QTextDocument::FindBackward, backward);
    flags.setFlag(QTextDocument::FindCaseSensitively, m_matchCase->isChecked());
    QTextCursor found = m_field->document()->find(wanted, m_field->textCursor(), flags);
    if (found.isNull()) {
        QTextCursor edge(m_field->document());
        edge.movePosition(backward ? QTextCursor::End : QTextCursor::Start);
        found = m_field->document()->find(wanted, edge, flags);
    }
    if (found.isNull())
        return m_told->setText(tr("Not found"));
    m_field->setTextCursor(found);
    tellPlace();
}

void FindStrip::tellPlace()
{
    const auto sense = m_matchCase->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive;
    const int here = m_field->textCursor().selectionStart();
    int all = 0;
    int place = 0;
    for (QTextBlock block = m_field->document()->begin(); block.isValid() && all < kMostCounted;
         block = block.next()) {
        const QString text = block.text();
        for (qsizetype at = text.indexOf(m_wanted->text(), 0, sense); at >= 0 && all < kMostCounted;
             at = text.indexOf(m_wanted->text(), at + m_wanted->text().size(), sense)) {
            ++all;
            place += block.position() + at <= here;
        }
    }
    m_told->setText(tr("%1 of %2").arg(place).arg(all));
}

void FindStrip::replace()
{
    if (m_field->isReadOnly())
        return;
    if (isFound())
        m_field->textCursor().insertText(m_other->text());
    find(false);
}

void FindStrip::replaceAll()
{
    if (m_wanted->text().isEmpty() || m_field->isReadOnly())
        return;
    QTextDocument::FindFlags flags;
    flags.setFlag(QTextDocument::FindCaseSensitively, m_matchCase->isChecked());
    QTextCursor step(m_field->document());
    step.beginEditBlock();
    int count = 0;
    QTextCursor at(m_field->document());
    for (at = m_field->document()->find(m_wanted->text(), at, flags); !at.isNull();
         at = m_field->document()->find(m_wanted->text(), at, flags)) {
        at.insertText(m_other->text());
        ++count;
    }
    step.endEditBlock();
    m_told->setText(count == 0 ? tr("Not found") : tr("%n replaced", nullptr, count));
}

} // namespace editor
