#include "letters/creator/letter_creator.h"

#include "core/contact_lookups.h"
#include "core/date_patterns.h"
#include "core/screens.h"
#include "core/tool_set.h"
#include "core/vocabularies.h"
#include "editor/text_editor.h"
#include "letters/creator/letter_fields.h"
#include "letters/creator/letter_lists.h"
#include "letters/creator/letter_tools.h"
#include "letters/creator/recipient_panel.h"
#include "platform/clock.h"
#include "platform/message_boxes.h"
#include "widgets/fields.h"
#include "widgets/theme.h"

#include <QAction>
#include <QCoreApplication>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using widgets::child;

namespace letters {

namespace {

constexpr int kComposeDelay = 150; ///< milliseconds behind the last key
// Above this a letter that is out of sight is composed when it is looked at.
constexpr qsizetype kLongText = 50'000;
constexpr int kMostWords = 50; ///< that are offered at once

constexpr QStringView kStyles[] = {u"Style1", u"Style2", u"Style3"};

QScrollArea* scrolled(QWidget* page)
{
    auto* area = new QScrollArea;
    area->setWidget(page);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setMinimumWidth(page->minimumSizeHint().width() + 16);
    return area;
}

} // namespace

LetterCreator::LetterCreator(core::Context& context, const LetterForm& form, QWidget* parent)
    : Screen(context, parent)
    , m_form(form)
    , m_kind(form.kind.toString())
    , m_tools(new core::ToolSet(context.screens, letterTools(), this))
    , m_wholeTools(new core::ToolSet(context.screens, wholeLetterTools(), this))
    , m_recipients(new RecipientPanel(
          context, form.forGroups ? RecipientPanel::Ticks::Shown : RecipientPanel::Ticks::None))
    , m_phrases(new PhrasePanel)
    , m_details(new LetterDetails(form))
    , m_pages(new QTabWidget)
    , m_handmade(new QWidget)
    , txtdetails(new editor::TextEditor)
    , RText(new editor::TextEditor)
{
    setWindowTitle(QCoreApplication::translate("letters", form.title));
    m_composing.setSingleShot(true);
    m_composing.setInterval(kComposeDelay);
    layOut();
    connectControls();
    setFocusProxy(m_recipients);
}

LetterCreator::~LetterCreator() = default;

// ---- layout

void LetterCreator::layOut()
{
    auto* left = new QTabWidget;
    left->setObjectName(u"LetterSides"_s);
    left->setDocumentMode(true);
    left->addTab(m_recipients, tr("To"));
    left->addTab(scrolled(m_phrases), tr("Phrases"));
    left->addTab(scrolled(m_details), tr("Record"));
    auto* splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(left);
    splitter->addWidget(layOutLetter());
    splitter->setStretchFactor(0, 0);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({340, 660});
    splitter->setContentsMargins(8, 4, 8, 8);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layOutTools();
    layout->addWidget(splitter, 1);
}

QWidget* LetterCreator::layOutLetter()
{
    auto* strip = new QHBoxLayout(m_handmade);
    strip->setContentsMargins(8, 4, 8, 4);
    auto* told = new QLabel;
    told->setObjectName(u"lblHandmade"_s);
    told->setWordWrap(true);
    auto* again = new QPushButton(tr("Compose anew"));
    again->setObjectName(u"CmdCompose"_s);
    again->setToolTip(tr("Compose the letter of text and phrases, without your changes"));
    strip->addWidget(told, 1);
    strip->addWidget(again);
    m_handmade->setObjectName(u"HandmadeStrip"_s);
    m_handmade->hide();

    txtdetails->field().setObjectName(u"txtdetails"_s);
    txtdetails->field().setAccessibleName(tr("Text of the letter"));
    txtdetails->field().setPlaceholderText(
        tr("Write here what the letter says, or choose a stored text under \"Phrases\"."));
    RText->field().setObjectName(u"RText"_s);
    RText->field().setAccessibleName(tr("Whole letter"));
    m_pages->setObjectName(u"LetterPages"_s);
    m_pages->setDocumentMode(true);
    m_pages->addTab(txtdetails, tr("Text"));
    m_pages->addTab(RText, tr("Whole letter"));
    auto* bar = m_wholeTools->makeToolBar(this);
    bar->setObjectName(u"Toolbar2"_s);
    m_pages->setCornerWidget(bar);
    connect(m_pages, &QTabWidget::currentChanged, bar, [bar](int page) { bar->setVisible(page == 1); });
    bar->hide();
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_handmade);
    layout->addWidget(m_pages, 1);
    return page;
}

void LetterCreator::layOutTools()
{
    auto* bar = m_tools->makeToolBar(this);
    bar->setObjectName(u"Tbar"_s);
    auto* preview = qobject_cast<QToolButton*>(bar->widgetForAction(m_tools->action(u"PrintPreview")));
    preview->setMenu(m_tools->makeMenu(u"StyleMenu"_s, this));
    preview->setPopupMode(QToolButton::MenuButtonPopup);
    for (const QStringView style : kStyles)
        m_tools->action(style)->setCheckable(true);
    m_tools->action(kStyles[0])->setChecked(true);
    addEditMenu(bar);
    auto* help = new QAction(tr("Help"), this);
    help->setToolTip(tr("What this screen is for"));
    widgets::setIcon(help, u"help");
    bar->addAction(help);
    bar->widgetForAction(help)->setObjectName(u"CmdHelp"_s);
    connect(help, &QAction::triggered, this,
        [this, bar, help] { showHelp(u"CON004"_s, bar->widgetForAction(help)); });
    layout()->addWidget(bar);
}

/// What is done with the text in front; each page has tools of its own.
void LetterCreator::addEditMenu(QToolBar* bar)
{
    auto* menu = new QMenu(this);
    menu->setObjectName(u"EditMenu"_s);
    m_tools->addTo(menu, {}, core::Tool::FilterMenu);
    m_wholeTools->addTo(menu);
    const auto follow = [this](int page) {
        for (const QStringView id : {u"Cut1", u"Copy1", u"Paste1"})
            m_tools->action(id)->setVisible(page == 0);
        for (const QStringView id : {u"Cut", u"Copy", u"Paste"})
            m_wholeTools->action(id)->setVisible(page == 1);
    };
    follow(m_pages->currentIndex());
    connect(m_pages, &QTabWidget::currentChanged, this, follow);
    menu->menuAction()->setText(tr("Edit"));
    menu->menuAction()->setToolTip(tr("Cut, copy, paste"));
    widgets::setIcon(menu->menuAction(), u"edit");
    bar->addAction(menu->menuAction());
    qobject_cast<QToolButton*>(bar->widgetForAction(menu->menuAction()))
        ->setPopupMode(QToolButton::InstantPopup);
}

void LetterCreator::connectControls()
{
    connect(m_tools, &core::ToolSet::triggered, this, &LetterCreator::perform);
    connect(m_wholeTools, &core::ToolSet::triggered, this,
        [this](const core::Tool& tool) { performOnText(tool.id, RText); });
    connect(m_recipients, &RecipientPanel::changed, this, &LetterCreator::followRecipients);
    connect(m_recipients, &RecipientPanel::currentChanged, this, [this] {
        m_details->showHistory(context().data, m_recipients->current().name);
        composeSoon();
    });
    connect(m_recipients, &RecipientPanel::typed, this, [this] { m_isDirty = true; });
    connect(m_phrases, &PhrasePanel::changed, this, &LetterCreator::touch);
    connect(m_phrases, &PhrasePanel::captionChosen, this, &LetterCreator::chooseCaption);
    connect(m_phrases, &PhrasePanel::greetingWanted, this, &LetterCreator::greetFamily);
    connect(m_details, &LetterDetails::changed, this, [this] { m_isDirty = true; });
    connect(m_details, &LetterDetails::letterChosen, this, &LetterCreator::showLetter);
    connect(m_details, &LetterDetails::filesWanted, this, &LetterCreator::writeFiles);
    connect(m_details, &LetterDetails::databaseWanted, this, &LetterCreator::writeDatabase);
    connect(m_details, &LetterDetails::folderWanted, this, [this] {
        if (const auto folder = context().services.boxes.folder(tr("Folder for letters")))
            m_details->setFolder(*folder);
    });
    connect(txtdetails, &editor::TextEditor::textChanged, this, [this] {
        if (!m_isSetting)
            touch();
    });
    connect(RText, &editor::TextEditor::textChanged, this, &LetterCreator::followWhole);
    connect(&m_composing, &QTimer::timeout, this, &LetterCreator::compose);
    connect(m_pages, &QTabWidget::currentChanged, this, &LetterCreator::compose);
    connect(
        child<QPushButton>(this, u"CmdCompose"_s), &QPushButton::clicked, this, &LetterCreator::composeAnew);
}

void LetterCreator::load()
{
    setFrameTitle(windowTitle());
    const auto words = [&data = context().data](const QString& prefix) {
        const jet::Recordset rows = data.openRecordset(commonWordsSql(prefix));
        QStringList found;
        for (int row = 0; row < rows.count() && row < kMostWords; ++row)
            found << rows.textAt(row, rows.columnIndex(u"word"));
        return found;
    };
    for (editor::TextEditor* text : {txtdetails, RText}) {
        text->setWordSource(words);
        text->setSpeller(&context().services.speller);
    }
    m_recipients->load();
    m_phrases->load(context().data);
    m_details->load(
        context().data, core::datePattern(shared().NationalMode), context().services.clock.today());
    begin();
    showDraft();
}

void LetterCreator::bookChanged()
{
    m_recipients->bookChanged();
    if (m_isHandmade)
        putHead();
    m_details->showHistory(context().data, m_recipients->current().name);
}

// ---- tools

void LetterCreator::perform(const core::Tool& tool)
{
    for (int style = 0; style < int(std::size(kStyles)); ++style) {
        if (tool.id == kStyles[style])
            return preview(style);
    }
    struct Row {
        QStringView id;
        std::function<void()> act;
    };
    const Row rows[] = {
        {u"NewLetter",
            [this] {
                if (mayDiscard())
                    begin();
            }},
        {u"Save", [this] { save(); }},
        {u"PrintPreview", [this] { preview(m_style); }},
        {u"Select Recipients",
            [this] {
                child<QTabWidget>(this, u"LetterSides"_s)->setCurrentIndex(0);
                m_recipients->showPicker();
            }},
        {u"InserPhrase",
            [this, &tool] {
                shared().CallerForm = u"Letter"_s;
                if (auto* phrases = context().screens.load<core::PageScreen>(tool.form))
                    phrases->openPage(objectName());
                context().screens.show(tool.form, core::Shown::Modally);
            }},
        {u"Mailmerge", [this] { merge(false); }},
        {u"SaveasWord", [this] { merge(true); }},
        {u"SaveasAccess", [this] { writeDatabase(); }},
        {u"Setup",
            [this, &tool] {
                if (auto* setup = context().screens.load<core::PageScreen>(tool.form))
                    setup->openPage(u"Opening"_s);
                context().screens.show(tool.form);
            }},
    };
    for (const Row& row : rows) {
        if (tool.id == row.id)
            return row.act();
    }
    performOnText(tool.id, txtdetails);
}

void LetterCreator::performOnText(QStringView id, editor::TextEditor* text)
{
    QTextEdit& field = text->field();
    if (id.startsWith(u"Cut"))
        field.cut();
    else if (id.startsWith(u"Copy"))
        field.copy();
    else if (id.startsWith(u"Paste"))
        field.paste();
    else if (id == u"Font")
        text->chooseFont();
    else
        text->checkSpelling();
}

// ---- the letter

LetterParts LetterCreator::parts() const
{
    LetterParts parts;
    m_phrases->fill(parts);
    parts.body = txtdetails->text();
    return parts;
}

bool LetterCreator::isGroup() const
{
    return m_form.forGroups || m_recipients->recipients().size() > 1;
}

formats::RichText LetterCreator::head() const
{
    return isGroup() ? groupHead() : letterHead(m_recipients->current());
}

MergedFor LetterCreator::lettersTo() const
{
    if (!m_isHandmade)
        return [parts = parts()](const Recipient& to) { return composedLetter(to, parts); };
    const formats::RichText whole = RText->text();
    if (!isGroup())
        return [whole](const Recipient&) { return whole; };
    return [whole](const Recipient& to) { return mergedLetter(whole, to); };
}

void LetterCreator::touch()
{
    m_isDirty = true;
    composeSoon();
}

void LetterCreator::composeSoon()
{
    if (!m_isHandmade)
        m_composing.start();
}

void LetterCreator::compose()
{
    m_composing.stop();
    const bool isInSight = m_pages->currentIndex() == 1;
    if (m_isHandmade || (!isInSight && txtdetails->field().document()->characterCount() > kLongText))
        return;
    m_head = head();
    setWhole(composedLetter(m_head, parts()));
}

void LetterCreator::setWhole(const formats::RichText& letter)
{
    m_isSetting = true;
    RText->setText(letter);
    m_isSetting = false;
}

void LetterCreator::setHandmade(bool handmade)
{
    m_isHandmade = handmade;
    m_hasOwnHead = false;
    child<QLabel>(m_handmade, u"lblHandmade"_s)
        ->setText(tr("You have changed the whole letter by hand: text and phrases no longer go into it."));
    m_handmade->setVisible(handmade);
}

void LetterCreator::followWhole()
{
    if (m_isSetting)
        return;
    m_isDirty = true;
    if (!m_isHandmade)
        setHandmade(true);
}

void LetterCreator::composeAnew()
{
    if (context().services.boxes.ask(
            tr("Do you want to compose the letter anew? What you have changed in it by hand is lost."),
            shared().AppTitle, platform::Icon::Warning)
        == platform::Answer::No)
        return;
    setHandmade(false);
    m_isDirty = true;
    m_head = head();
    setWhole(composedLetter(m_head, parts()));
}

/// Another address on a letter that was changed by hand; false when it has lost the place for it.
bool LetterCreator::putHead()
{
    const formats::RichText newHead = head();
    if (m_hasOwnHead || newHead == m_head)
        return true;
    const auto changed = withOtherHead(RText->text(), m_head, newHead);
    if (!changed)
        return false;
    m_head = newHead;
    setWhole(*changed);
    return true;
}

void LetterCreator::followRecipients()
{
    if (!m_isHandmade)
        return composeSoon();
    if (putHead())
        return;
    m_hasOwnHead = true;
    child<QLabel>(m_handmade, u"lblHandmade"_s)
        ->setText(tr("You have changed the whole letter and its address by hand: no other address, text or "
                     "phrase goes into it, whoever it is for."));
    composeAnew();
}

void LetterCreator::chooseCaption(const QString& caption)
{
    if (caption.isEmpty())
        return m_caption.clear();
    const QString there = txtdetails->plainText();
    if (!there.trimmed().isEmpty() && (there != m_stock || txtdetails->text().isFormatted())
        && context().services.boxes.ask(
               tr("Do you want to replace the text that you have written by the stored text \"%1\"?")
                   .arg(caption),
               shared().AppTitle, platform::Icon::Warning)
            == platform::Answer::No)
        return m_phrases->setCaption(m_caption);
    m_caption = caption;
    m_stock = context().data.openRecordset(stockTextSql(caption)).textOrEmpty(u"ltcontent");
    m_stock.replace(u"\r\n"_s, u"\n"_s);
    m_isSetting = true;
    txtdetails->setText(formats::RichText::fromPlain(m_stock));
    m_isSetting = false;
    m_phrases->setCaption(caption);
    touch();
}

void LetterCreator::greetFamily()
{
    QString names = u"all"_s;
    const Recipient to = m_recipients->current();
    if (!isGroup() && to.id != 0) {
        const jet::Recordset contact = context().data.openRecordset(core::contactByIdSql(to.id));
        if (contact.hasRow())
            names = familyNames(contact);
    }
    const QString greeting = familyGreeting(names);
    if (txtdetails->plainText().endsWith(greeting))
        return;
    m_pages->setCurrentIndex(0);
    txtdetails->field().moveCursor(QTextCursor::End);
    txtdetails->insertText(u'\n' + greeting);
}

void LetterCreator::begin()
{
    m_composing.stop();
    setHandmade(false);
    m_kind = m_form.kind.toString();
    m_caption.clear();
    m_stock.clear();
    m_isSetting = true;
    m_phrases->clear();
    txtdetails->setText({});
    m_isSetting = false;
    m_details->show({.date = context().services.clock.today()});
    setPosition({});
    m_recipients->setRecipients({});
    compose();
    m_isDirty = false;
}

void LetterCreator::showParts(const LetterParts& parts)
{
    m_phrases->show(parts);
    m_isSetting = true;
    txtdetails->setText(parts.body);
    m_isSetting = false;
}

void LetterCreator::showStored(const StoredLetter& stored)
{
    const LetterToKeep& letter = stored.letter;
    begin();
    m_kind = letter.kind;
    showParts(letter.parts);
    m_details->show({letter.date, letter.type, letter.category, letter.serialNumber, letter.note});
    Recipient to = stored.recipient;
    if (to.id != 0 && context().data.openRecordset(core::contactNameSql(to.id)).isEmpty())
        to.id = 0;
    m_recipients->setRecipients({to}, false);
    m_head = letterHead(to);
    setWhole(stored.merged);
    setHandmade(composedLetter(to, parts()) != RText->text());
    m_composing.stop();
    m_isDirty = false;
}

// ---- hand-overs

bool LetterCreator::showContact(qint64 id)
{
    return takeContacts({id}, {});
}

bool LetterCreator::takeContacts(const QList<qint64>& ids, const QString& listName)
{
    const auto found = m_recipients->readContacts(ids);
    if (!found || found->isEmpty())
        return false;
    if (m_isDirty && m_recipients->isTyped()
        && context().services.boxes.ask(
               tr("You have typed an address by hand. Do you want to write to somebody else instead?"),
               shared().AppTitle, platform::Icon::Warning)
            == platform::Answer::No)
        return false;
    m_recipients->setRecipients(*found);
    if (!listName.isEmpty())
        setPosition(tr("Mailing list %1").arg(listName));
    return true;
}

bool LetterCreator::showLetter(qint64 letterId)
{
    const auto stored = storedLetter(context().data, context().services.drive, letterId);
    if (!stored || !mayDiscard())
        return false;
    showStored(*stored);
    m_pages->setCurrentIndex(1);
    return true;
}

void LetterCreator::openPage(const QString& page)
{
    const QString caption = stockTextFor(page).toString();
    if (caption.isEmpty())
        return;
    shared().LetterKind = page;
    m_kind = page;
    if (!context().data.openRecordset(stockTextSql(caption)).isEmpty()) {
        const bool wasTouched = m_isDirty;
        chooseCaption(caption);
        m_isDirty = wasTouched; // nothing of it was typed
    }
}

void LetterCreator::insertPhrase(const QString& text)
{
    (m_pages->currentIndex() == 1 ? RText : txtdetails)->insertText(text);
}

} // namespace letters
