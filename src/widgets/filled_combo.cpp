#include "widgets/filled_combo.h"

#include "widgets/line_guard.h"
#include "widgets/suggestion_list.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QSignalBlocker>
#include <QStringListModel>
#include <QWheelEvent>

#include <algorithm>

namespace widgets {

namespace {

constexpr int VisibleRows = 12;
constexpr int WidthInCharacters = 12;

bool isSorted(const QStringList& values)
{
    return std::is_sorted(values.begin(), values.end(),
        [](const QString& one, const QString& other) { return one.compare(other, Qt::CaseInsensitive) < 0; });
}

} // namespace

FilledCombo::FilledCombo(QWidget* parent, Typing typing)
    : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus); // not by the wheel
    setMaxVisibleItems(VisibleRows);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon); // never measures the values
    setMinimumContentsLength(WidthInCharacters);
    if (auto* list = qobject_cast<QListView*>(view()))
        list->setUniformItemSizes(true);
    if (typing == Typing::ListOnly)
        return;

    setModel(new QStringListModel(this));
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setDuplicatesEnabled(true); // else Enter respells the typed text as the list has it
    disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr); // and so does leaving the field
    connect(lineEdit(), &QLineEdit::editingFinished, this, &FilledCombo::followTypedText);
    setCompleter(nullptr); // its list would take the next click and the next keys
    m_suggestions = new SuggestionList(lineEdit(), model());
    connect(lineEdit(), &QLineEdit::textEdited, this, &FilledCombo::suggest);
    connect(m_suggestions, &SuggestionList::picked, this, &FilledCombo::pick);
    connect(m_suggestions, &SuggestionList::passedOver, this, &FilledCombo::followTypedText);
    lineEdit()->installEventFilter(this);
    guardLine(lineEdit());
}

void FilledCombo::setSource(std::function<QStringList()> source)
{
    m_source = std::move(source);
    refill();
}

void FilledCombo::refill()
{
    m_stale = static_cast<bool>(m_source);
}

void FilledCombo::setValues(const QStringList& values)
{
    m_stale = false;
    showValues(values);
}

QStringList FilledCombo::values()
{
    ensureFilled();
    if (const auto* model = qobject_cast<QStringListModel*>(this->model()))
        return model->stringList();
    QStringList values;
    for (int row = 0; row < count(); ++row)
        values += itemText(row);
    return values;
}

void FilledCombo::setText(const QString& text)
{
    if (isEditable()) {
        setEditText(text);
        lineEdit()->setCursorPosition(0);
    } else {
        ensureFilled();
        setCurrentIndex(findText(text));
    }
}

QStringList FilledCombo::suggestions() const
{
    return m_suggestions ? m_suggestions->suggestions() : QStringList();
}

void FilledCombo::showPopup()
{
    if (m_suggestions)
        m_suggestions->hide();
    ensureFilled();
    QComboBox::showPopup();
}

// A key of the list of suggestions is no shortcut of the screen meanwhile.
bool FilledCombo::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && m_suggestions
        && m_suggestions->isForList(static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QComboBox::event(event);
}

void FilledCombo::keyPressEvent(QKeyEvent* event)
{
    if (m_suggestions && m_suggestions->isForList(event))
        return m_suggestions->take(event);
    if (!event->text().isEmpty() || event->key() == Qt::Key_Up || event->key() == Qt::Key_Down)
        ensureFilled();
    QComboBox::keyPressEvent(event);
}

void FilledCombo::inputMethodEvent(QInputMethodEvent* event)
{
    ensureFilled();
    QComboBox::inputMethodEvent(event);
}

void FilledCombo::wheelEvent(QWheelEvent* event)
{
    if (!hasFocus()) {
        event->ignore();
        return;
    }
    ensureFilled();
    QComboBox::wheelEvent(event);
}

bool FilledCombo::eventFilter(QObject* watched, QEvent* event)
{
    // A key sent to the line itself does not pass through keyPressEvent() here.
    if (watched == lineEdit() && event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (m_suggestions->isForList(key)) {
            m_suggestions->take(key);
            return true;
        }
        if (!key->text().isEmpty())
            ensureFilled();
    }
    return QComboBox::eventFilter(watched, event);
}

void FilledCombo::ensureFilled()
{
    if (!m_stale)
        return;
    m_stale = false;
    showValues(m_source());
}

void FilledCombo::showValues(const QStringList& values)
{
    const QSignalBlocker quiet(this);
    const QString typed = currentText();
    auto* texts = qobject_cast<QStringListModel*>(model());
    if (!texts) {
        clear();
        addItems(values);
        setCurrentIndex(findText(typed, Qt::MatchFixedString | Qt::MatchCaseSensitive));
        return;
    }

    const QSignalBlocker quietLine(lineEdit());
    const int cursor = lineEdit()->cursorPosition();
    const int selectedFrom = lineEdit()->selectionStart();
    const auto selected = static_cast<int>(lineEdit()->selectedText().size());
    texts->setStringList(values);
    m_suggestions->setSorted(isSorted(values));
    setCurrentIndex(static_cast<int>(values.indexOf(typed)));
    lineEdit()->setText(typed);
    if (selected > 0)
        lineEdit()->setSelection(selectedFrom, selected);
    else
        lineEdit()->setCursorPosition(cursor);
}

void FilledCombo::suggest(const QString& typed)
{
    ensureFilled(); // a paste by the mouse comes without a key
    m_suggestions->suggestFor(typed);
}

void FilledCombo::pick(int row)
{
    setCurrentIndex(row);
    lineEdit()->setText(itemText(row)); // as the list has it, also when the row was current before
    Q_EMIT activated(row);
    Q_EMIT textActivated(itemText(row));
}

void FilledCombo::followTypedText()
{
    const QString typed = currentText();
    if (typed.isEmpty() || itemText(currentIndex()) == typed)
        return;
    const int row = findText(typed, Qt::MatchFixedString | Qt::MatchCaseSensitive);
    if (row < 0)
        return;
    setCurrentIndex(row);
    Q_EMIT activated(row);
}

} // namespace widgets
