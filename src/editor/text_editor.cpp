#include "editor/text_editor.h"

#include "editor/find_strip.h"
#include "editor/own_words.h"
#include "editor/spelling_strip.h"
#include "editor/spelling_words.h"
#include "editor/text_document.h"
#include "editor/text_field.h"
#include "editor/text_looks.h"
#include "editor/text_marks.h"
#include "editor/text_tools.h"
#include "editor/word_offers.h"
#include "platform/speller.h"

#include <QActionGroup>
#include <QContextMenuEvent>
#include <QFontDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QTextBlock>
#include <QToolButton>
#include <QVBoxLayout>

#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace editor {

namespace {

constexpr int kCountAfterMs = 300;
constexpr int kMostCorrections = 6;

/// "en_US" as a person knows it.
QString nameOfLanguage(const QString& dictionary)
{
    const QLocale locale(dictionary);
    if (locale.language() == QLocale::C)
        return dictionary;
    const QString name = QLocale::languageToString(locale.language());
    return dictionary.contains(u'_') ? name + u" ("_s + QLocale::territoryToString(locale.territory()) + u')'
                                     : name;
}

} // namespace

TextEditor::TextEditor(QWidget* parent)
    : QWidget(parent)
    , m_field(new TextField)
    , m_marks(new TextMarks(m_field))
    , m_tools(new TextTools(m_field))
    , m_find(new FindStrip(m_field))
    , m_spelling(new SpellingStrip(m_field, m_marks))
    , m_offers(new WordOffers(m_field))
    , m_language(new QToolButton)
    , m_spellingMenu(new QMenu(this))
    , m_counts(new QLabel)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(2);
    layout->addWidget(m_tools);
    layout->addWidget(m_find);
    layout->addWidget(m_spelling);
    layout->addWidget(m_field, 1);
    layout->addWidget(layOutFoot());
    setFocusProxy(m_field);
    m_offers->setIsWord([this](const QString& word) {
        return m_marks->speller() && !m_marks->speller()->dictionary().isEmpty()
            && m_marks->speller()->isKnown(word);
    });
    m_countSoon.setSingleShot(true);
    m_countSoon.setInterval(kCountAfterMs);
    connect(&m_countSoon, &QTimer::timeout, this, &TextEditor::tellCounts);
    connect(m_field, &QTextEdit::textChanged, this, &TextEditor::textChanged);
    connect(m_field, &QTextEdit::textChanged, &m_countSoon, qOverload<>(&QTimer::start));
    connect(m_field, &QTextEdit::selectionChanged, &m_countSoon, qOverload<>(&QTimer::start));
    connect(m_field, &TextField::commanded, this, &TextEditor::perform);
    connect(m_field, &TextField::menuWanted, this, &TextEditor::showMenu);
    connect(m_tools, &TextTools::commanded, this, &TextEditor::perform);
    connect(m_spellingMenu, &QMenu::aboutToShow, this, &TextEditor::fillSpellingMenu);
    tellCounts();
    tellLanguage();
}

QWidget* TextEditor::layOutFoot()
{
    m_language->setObjectName(u"cmdLanguage"_s);
    m_language->setAutoRaise(true);
    m_language->setPopupMode(QToolButton::InstantPopup);
    m_language->setMenu(m_spellingMenu);
    m_language->setToolTip(tr("Language of the spelling check, and your own words"));
    m_counts->setObjectName(u"lblWordCount"_s);
    m_counts->setTextFormat(Qt::PlainText);
    auto* foot = new QWidget;
    auto* layout = new QHBoxLayout(foot);
    layout->setContentsMargins(2, 0, 6, 0);
    layout->addWidget(m_language);
    layout->addStretch(1);
    layout->addWidget(m_counts);
    return foot;
}

void TextEditor::setText(const formats::RichText& text)
{
    m_marks->forgetIgnored();
    fillDocument(*m_field->document(), text);
    m_field->moveCursor(QTextCursor::Start);
    m_field->setCurrentCharFormat({});
    m_marks->refresh();
    setModified(false);
}

formats::RichText TextEditor::text() const
{
    return textOf(*m_field->document());
}

QString TextEditor::plainText() const
{
    return m_field->toPlainText();
}

void TextEditor::insertText(const QString& text)
{
    insertText(formats::RichText::fromPlain(text));
}

void TextEditor::insertText(const formats::RichText& text)
{
    QTextCursor caret = m_field->textCursor();
    caret.clearSelection();
    insertRichText(caret, text);
    m_field->ensureCursorVisible();
}

void TextEditor::setWordSource(WordSource words)
{
    m_offers->setSource(std::move(words));
}

void TextEditor::setSpeller(platform::Speller* speller)
{
    m_marks->setSpeller(speller);
    tellLanguage();
}

bool TextEditor::isModified() const
{
    return m_field->document()->isModified();
}

void TextEditor::setModified(bool modified)
{
    m_field->document()->setModified(modified);
}

void TextEditor::setReadOnly(bool readOnly)
{
    m_field->setReadOnly(readOnly);
    m_tools->follow();
}

QTextEdit& TextEditor::field() const
{
    return *m_field;
}

void TextEditor::perform(TextCommand command)
{
    switch (command) {
    case TextCommand::Copy: return m_field->copy();
    case TextCommand::Find: return m_find->open();
    default: break;
    }
    if (m_field->isReadOnly())
        return;
    switch (command) {
    case TextCommand::Undo: return m_field->undo();
    case TextCommand::Redo: return m_field->redo();
    case TextCommand::Cut: return m_field->cut();
    case TextCommand::Paste: return m_field->paste();
    case TextCommand::PastePlain: return m_field->pastePlain();
    case TextCommand::CheckSpelling: return m_spelling->open();
    case TextCommand::OfferWords: return m_offers->offerAll();
    default: return applyLook(*m_field, command);
    }
}

void TextEditor::checkSpelling()
{
    perform(TextCommand::CheckSpelling);
}

// A font that a person chooses is family, size and looks at once.
void TextEditor::chooseFont()
{
    bool isChosen = false;
    const QFont font = QFontDialog::getFont(&isChosen, m_field->currentFont(), window(), tr("Font"));
    if (!isChosen || m_field->isReadOnly())
        return;
    changeLooks(*m_field, [&](QTextCharFormat& format) {
        format.setFontFamilies({font.family()});
        format.setFontPointSize(font.pointSizeF());
        format.setFontWeight(font.bold() ? QFont::Bold : QFont::Normal);
        format.setFontItalic(font.italic());
        format.setFontUnderline(font.underline());
        format.setFontStrikeOut(font.strikeOut());
    });
    m_field->setFocus();
}

void TextEditor::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
        m_marks->refresh();
}

void TextEditor::fillSpellingMenu()
{
    m_spellingMenu->clear();
    platform::Speller* speller = m_marks->speller();
    const QStringList languages = speller ? speller->dictionaries() : QStringList();
    QAction* on = m_spellingMenu->addAction(tr("Mark words that are not known"));
    on->setCheckable(true);
    on->setChecked(m_marks->isOn());
    on->setEnabled(!languages.isEmpty());
    connect(on, &QAction::toggled, this, [this](bool isOn) {
        m_marks->setOn(isOn);
        tellLanguage();
    });
    QAction* check = m_spellingMenu->addAction(
        tr("Check from here (F7)"), this, [this] { perform(TextCommand::CheckSpelling); });
    check->setEnabled(!languages.isEmpty() && !m_field->isReadOnly());
    QAction* own = m_spellingMenu->addAction(tr("Your own words…"), this, &TextEditor::editOwnWords);
    own->setEnabled(speller);
    m_spellingMenu->addSeparator();
    if (languages.isEmpty())
        m_spellingMenu->addAction(tr("No dictionary is installed on this computer."))->setEnabled(false);
    auto* group = new QActionGroup(m_spellingMenu);
    for (const QString& each : languages) {
        QAction* language = m_spellingMenu->addAction(nameOfLanguage(each));
        language->setCheckable(true);
        language->setChecked(each == speller->dictionary());
        group->addAction(language);
        connect(language, &QAction::triggered, this, [this, speller, each] {
            speller->setDictionary(each);
            m_marks->setOn(true);
            tellLanguage();
        });
    }
}

void TextEditor::tellLanguage()
{
    const platform::Speller* speller = m_marks->speller();
    m_language->setVisible(speller);
    if (!speller)
        return;
    const QString dictionary = speller->dictionary();
    m_tools->tool(TextCommand::CheckSpelling)->setVisible(true);
    if (speller->dictionaries().isEmpty())
        m_language->setText(tr("Spelling: no dictionary"));
    else if (dictionary.isEmpty())
        m_language->setText(tr("Spelling: choose a language"));
    else
        m_language->setText(
            m_marks->isOn() ? tr("Spelling: %1").arg(nameOfLanguage(dictionary)) : tr("Spelling: off"));
}

void TextEditor::showMenu(QContextMenuEvent* event)
{
    const std::unique_ptr<QMenu> menu(m_field->createStandardContextMenu(event->pos()));
    menu->setObjectName(u"mnuText"_s);
    QTextCursor word = m_field->cursorForPosition(event->pos());
    if (event->reason() == QContextMenuEvent::Keyboard)
        word = m_field->textCursor();
    offerCorrections(menu.get(), word);
    if (!m_field->isReadOnly()) {
        menu->addSeparator();
        menu->addAction(m_tools->tool(TextCommand::PastePlain));
        menu->addAction(m_tools->tool(TextCommand::CheckSpelling));
    }
    menu->exec(event->globalPos());
}

// In front of what each text has: what may have been meant by the word below the mouse.
void TextEditor::offerCorrections(QMenu* menu, const QTextCursor& word)
{
    const QTextBlock block = word.block();
    const QString text = block.text();
    const auto words = wordsToCheck(text);
    const auto found = std::find_if(words.begin(), words.end(), [&](const WordPlace& place) {
        return place.begin <= word.positionInBlock() && word.positionInBlock() <= place.end();
    });
    if (found == words.end() || m_field->isReadOnly())
        return;
    const QString wrong = text.sliced(found->begin, found->length);
    if (!m_marks->isUnknown(wrong))
        return;
    QTextCursor place(block);
    place.setPosition(block.position() + int(found->begin));
    place.setPosition(block.position() + int(found->end()), QTextCursor::KeepAnchor);
    QAction* first = menu->actions().value(0);
    const auto add = [&](const QString& caption, auto action) {
        auto* entry = new QAction(caption, menu);
        connect(entry, &QAction::triggered, this, action);
        menu->insertAction(first, entry);
        return entry;
    };
    const QStringList suggestions = m_marks->speller()->suggestions(wrong).mid(0, kMostCorrections);
    for (const QString& each : suggestions) {
        QAction* entry = add(each, [place, each]() mutable { place.insertText(each); });
        QFont font = entry->font();
        font.setBold(true);
        entry->setFont(font);
    }
    if (suggestions.isEmpty())
        add(tr("No suggestions"), [] {})->setEnabled(false);
    menu->insertSeparator(first);
    add(tr("Add to dictionary"), [this, wrong] { m_spelling->addWord(wrong); });
    add(tr("Ignore"), [this, wrong] { m_marks->ignore(wrong); });
    menu->insertSeparator(first);
}

void TextEditor::editOwnWords()
{
    showOwnWords(*m_marks->speller(), window());
    m_marks->refresh();
}

void TextEditor::tellCounts()
{
    const QTextCursor caret = m_field->textCursor();
    if (caret.hasSelection())
        return m_counts->setText(tr("%n word(s) selected", nullptr, int(countWords(caret.selectedText()))));
    qsizetype words = 0;
    for (QTextBlock block = m_field->document()->begin(); block.isValid(); block = block.next())
        words += countWords(block.text());
    m_counts->setText(words == 1 ? tr("1 word") : tr("%1 words").arg(QLocale().toString(words)));
}

} // namespace editor
