#include "editor/text_tools.h"

#include "editor/text_looks.h"
#include "widgets/filled_combo.h"
#include "widgets/flow_layout.h"
#include "widgets/theme.h"

#include <QColorDialog>
#include <QComboBox>
#include <QDoubleValidator>
#include <QFontDatabase>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QSignalBlocker>
#include <QTextDocument>
#include <QTextEdit>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace editor {

namespace {

constexpr int kGap = 6; ///< between groups of tools
constexpr double kSmallestSize = 4;
constexpr double kLargestSize = 200;

struct ToolRow {
    TextCommand command;
    QStringView name;
    QStringView icon; ///< empty for a gap in front of the next one
    const char* text;
    const char* key;
    bool isSwitch;
};
constexpr ToolRow kTools[] = {
    {TextCommand::Bold, u"Bold", u"bold", QT_TRANSLATE_NOOP("editor", "Bold"), "Ctrl+B", true},
    {TextCommand::Italic, u"Italic", u"italic", QT_TRANSLATE_NOOP("editor", "Italic"), "Ctrl+I", true},
    {TextCommand::Underline, u"Underline", u"underline", QT_TRANSLATE_NOOP("editor", "Underline"), "Ctrl+U",
        true},
    {TextCommand::StrikeOut, u"StrikeOut", u"strike-out", QT_TRANSLATE_NOOP("editor", "Strike out"), "",
        true},
    {TextCommand::ClearLooks, u"ClearLooks", u"clear-looks",
        QT_TRANSLATE_NOOP("editor", "Clear the looks of the selected text"), "", false},
    {TextCommand::Bullets, u"Bullets", u"list", QT_TRANSLATE_NOOP("editor", "Bullets"), "", true},
    {TextCommand::Numbers, u"Numbers", u"list-numbers", QT_TRANSLATE_NOOP("editor", "Numbers"), "", true},
    {TextCommand::Outdent, u"Outdent", u"outdent", QT_TRANSLATE_NOOP("editor", "Less indent"), "", false},
    {TextCommand::Indent, u"Indent", u"indent", QT_TRANSLATE_NOOP("editor", "More indent"), "", false},
    {TextCommand::AlignLeft, u"AlignLeft", u"align-left", QT_TRANSLATE_NOOP("editor", "Align left"), "",
        true},
    {TextCommand::AlignCenter, u"AlignCenter", u"align-center", QT_TRANSLATE_NOOP("editor", "Centre"), "",
        true},
    {TextCommand::AlignRight, u"AlignRight", u"align-right", QT_TRANSLATE_NOOP("editor", "Align right"), "",
        true},
    {TextCommand::Justify, u"Justify", u"align-justify", QT_TRANSLATE_NOOP("editor", "Justify"), "", true},
    {TextCommand::CheckSpelling, u"Spelling", u"spelling",
        QT_TRANSLATE_NOOP("editor", "Check the spelling from here"), "F7", false},
    {TextCommand::Find, u"FindText", u"search", QT_TRANSLATE_NOOP("editor", "Find and replace"), "Ctrl+F",
        false},
    {TextCommand::Undo, u"UndoText", u"undo", QT_TRANSLATE_NOOP("editor", "Undo typing"), "Ctrl+Z", false},
    {TextCommand::Redo, u"RedoText", u"redo", QT_TRANSLATE_NOOP("editor", "Redo typing"), "Ctrl+Y", false},
    {TextCommand::Cut, u"CutText", u"cut", QT_TRANSLATE_NOOP("editor", "Cut"), "Ctrl+X", false},
    {TextCommand::Copy, u"CopyText", u"copy", QT_TRANSLATE_NOOP("editor", "Copy"), "Ctrl+C", false},
    {TextCommand::Paste, u"PasteText", u"paste", QT_TRANSLATE_NOOP("editor", "Paste"), "Ctrl+V", false},
    {TextCommand::PastePlain, u"PastePlain", u"paste-plain",
        QT_TRANSLATE_NOOP("editor", "Paste without looks"), "Ctrl+Shift+V", false},
};

constexpr TextCommand kGapsBefore[]
    = {TextCommand::Bullets, TextCommand::AlignLeft, TextCommand::Undo, TextCommand::Cut, TextCommand::Find};

struct NamedColor {
    const char* text;
    QRgb color;
};
constexpr NamedColor kColors[] = {
    {QT_TRANSLATE_NOOP("editor", "Black"), 0xff000000},
    {QT_TRANSLATE_NOOP("editor", "Grey"), 0xff6b7280},
    {QT_TRANSLATE_NOOP("editor", "Red"), 0xffc81e1e},
    {QT_TRANSLATE_NOOP("editor", "Orange"), 0xffc2570c},
    {QT_TRANSLATE_NOOP("editor", "Green"), 0xff15803d},
    {QT_TRANSLATE_NOOP("editor", "Blue"), 0xff1d4ed8},
    {QT_TRANSLATE_NOOP("editor", "Violet"), 0xff7e22ce},
};

QString inEditor(const char* text)
{
    return QCoreApplication::translate("editor", text);
}

QIcon swatch(const QColor& color)
{
    QPixmap picture(16, 16);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(color);
    painter.setPen(QColor(0x80, 0x80, 0x80));
    painter.drawRoundedRect(QRectF(1.5, 1.5, 13, 13), 3, 3);
    return picture;
}

} // namespace

TextTools::TextTools(QTextEdit* field)
    : m_field(field)
    , m_family(new widgets::FilledCombo(nullptr, widgets::FilledCombo::Typing::ListOnly))
    , m_size(new QComboBox)
{
    setObjectName(u"barText"_s);
    auto* layout = new widgets::FlowLayout(this);
    layout->setContentsMargins(4, 2, 4, 4);
    addBoxes();
    addTools();
    connect(field, &QTextEdit::currentCharFormatChanged, this, &TextTools::follow);
    connect(field, &QTextEdit::cursorPositionChanged, this, &TextTools::follow);
    connect(field->document(), &QTextDocument::undoAvailable, this, &TextTools::follow);
    connect(field->document(), &QTextDocument::redoAvailable, this, &TextTools::follow);
    connect(field, &QTextEdit::copyAvailable, this, &TextTools::follow);
    follow();
}

void TextTools::addBoxes()
{
    m_family->setObjectName(u"cmbFontFamily"_s);
    m_family->setAccessibleName(tr("Font"));
    m_family->setToolTip(tr("Font"));
    m_family->setFixedWidth(128);
    m_family->setSource([] { return QStringList{inEditor("Standard font")} + QFontDatabase::families(); });
    m_size->setObjectName(u"cmbFontSize"_s);
    m_size->setAccessibleName(tr("Size of letters"));
    m_size->setToolTip(tr("Size of letters, in points"));
    m_size->setEditable(true);
    m_size->setInsertPolicy(QComboBox::NoInsert);
    m_size->setCompleter(nullptr);
    m_size->setFixedWidth(58);
    for (const int size : {8, 9, 10, 11, 12, 14, 16, 18, 20, 24, 28, 36, 48, 72})
        m_size->addItem(QString::number(size));
    auto* numbers = new QDoubleValidator(kSmallestSize, kLargestSize, 1, m_size);
    numbers->setLocale(QLocale::c());
    m_size->setValidator(numbers);
    layout()->addWidget(m_family);
    layout()->addWidget(m_size);
    connect(m_family, &QComboBox::textActivated, this, &TextTools::setFamily);
    connect(m_size, &QComboBox::activated, this, &TextTools::setSize);
    connect(m_size->lineEdit(), &QLineEdit::returnPressed, this, &TextTools::setSize);
}

void TextTools::addTools()
{
    for (const ToolRow& row : kTools) {
        if (std::ranges::find(kGapsBefore, row.command) != std::end(kGapsBefore))
            layout()->addItem(new QSpacerItem(kGap, 1));
        if (row.command == TextCommand::ClearLooks)
            m_color = colorTool();
        auto* action = new QAction(widgets::icon(row.icon), inEditor(row.text), this);
        action->setObjectName(row.name.toString());
        const QString key = QString::fromLatin1(row.key);
        action->setToolTip(key.isEmpty() ? action->text() : action->text() + u" ("_s + key + u')');
        action->setCheckable(row.isSwitch);
        connect(action, &QAction::triggered, this, [this, command = row.command] {
            Q_EMIT commanded(command);
            follow(); // A switch that can not be switched shows what it is.
        });
        addButton(action);
        m_tools.insert(row.command, action);
    }
}

// The caret stays where it is when a tool is clicked.
QToolButton* TextTools::addButton(QAction* action)
{
    auto* button = new QToolButton;
    button->setDefaultAction(action);
    button->setAutoRaise(true);
    button->setIconSize({18, 18});
    button->setFocusPolicy(Qt::NoFocus);
    connect(action, &QAction::changed, button, [action, button] { button->setVisible(action->isVisible()); });
    addAction(action);
    layout()->addWidget(button);
    return button;
}

QAction* TextTools::colorTool()
{
    auto* action = new QAction(widgets::icon(u"text-color"), tr("Colour"), this);
    action->setObjectName(u"TextColor"_s);
    auto* menu = new QMenu(this);
    menu->addAction(tr("Standard colour"), this, [this] { setColor({}); });
    for (const NamedColor& each : kColors)
        menu->addAction(
            swatch(each.color), inEditor(each.text), this, [this, each] { setColor(QColor(each.color)); });
    menu->addAction(tr("Another colour…"), this, [this] {
        const QColor color
            = QColorDialog::getColor(m_field->textColor(), m_field->window(), tr("Colour of letters"));
        if (color.isValid())
            setColor(color);
    });
    action->setMenu(menu);
    addButton(action)->setPopupMode(QToolButton::InstantPopup);
    return action;
}

void TextTools::setFamily(const QString& family)
{
    const bool isStandard = m_family->currentIndex() == 0;
    changeLooks(*m_field, [&](QTextCharFormat& format) {
        format.clearProperty(QTextFormat::FontFamilies);
        if (!isStandard)
            format.setFontFamilies({family});
    });
    m_field->setFocus();
}

void TextTools::setSize()
{
    bool isNumber = false;
    const double size = m_size->currentText().toDouble(&isNumber);
    if (isNumber && size >= kSmallestSize && size <= kLargestSize)
        changeLooks(*m_field, [&](QTextCharFormat& format) { format.setFontPointSize(size); });
    m_field->setFocus();
    follow();
}

void TextTools::setColor(const QColor& color)
{
    changeLooks(*m_field, [&](QTextCharFormat& format) {
        format.clearForeground();
        if (color.isValid())
            format.setForeground(color);
    });
}

void TextTools::follow()
{
    const bool canChange = !m_field->isReadOnly();
    for (const ToolRow& row : kTools) {
        QAction* action = m_tools.value(row.command);
        if (row.isSwitch)
            action->setChecked(hasLook(*m_field, row.command));
        const bool looksOnly = row.command == TextCommand::Copy || row.command == TextCommand::Find;
        action->setEnabled(canChange || looksOnly);
    }
    const bool isSelected = m_field->textCursor().hasSelection();
    m_tools.value(TextCommand::Undo)->setEnabled(canChange && m_field->document()->isUndoAvailable());
    m_tools.value(TextCommand::Redo)->setEnabled(canChange && m_field->document()->isRedoAvailable());
    m_tools.value(TextCommand::Cut)->setEnabled(canChange && isSelected);
    m_tools.value(TextCommand::Copy)->setEnabled(isSelected);
    m_color->setEnabled(canChange);
    m_family->setEnabled(canChange);
    m_size->setEnabled(canChange);
    const QTextCharFormat format = m_field->currentCharFormat();
    const QSignalBlocker silent(m_family);
    const QString family = format.fontFamilies().toStringList().value(0);
    m_family->setPlaceholderText(family.isEmpty() ? tr("Standard font") : family);
    m_family->setCurrentIndex(-1);
    if (!m_size->lineEdit()->hasFocus()) {
        const double points = format.hasProperty(QTextFormat::FontPointSize)
            ? format.fontPointSize()
            : m_field->document()->defaultFont().pointSizeF();
        m_size->setEditText(QString::number(points, 'g', 4));
    }
}

} // namespace editor
