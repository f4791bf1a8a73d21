#include "letters/record/Frmgmail.h"

#include "core/contact_lookups.h"
#include "core/date_patterns.h"
#include "core/list_presenter.h"
#include "core/save_failure.h"
#include "core/screens.h"
#include "core/sound_files.h"
#include "core/tool_set.h"
#include "core/vocabularies.h"
#include "jet/date_text.h"
#include "letters/record/letter_actions.h"
#include "letters/record/letter_drag.h"
#include "letters/record/letter_pane.h"
#include "letters/record/record_tools.h"
#include "output/grid/list_print.h"
#include "platform/message_boxes.h"
#include "widgets/heading_grid.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QSplitter>
#include <QTabBar>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace letters {

namespace {

using enum core::Tool::Place;

constexpr core::Tool kTools[] = {
    {.id = u"MoveTo",
        .icon = u"category",
        .text = QT_TRANSLATE_NOOP("letters", "Category"),
        .toolTip
        = QT_TRANSLATE_NOOP("letters", "Put the chosen letters into a category; dragging them does the same"),
        .places = Labelled | Menu | GroupStart},
    {.id = u"PaperLetter",
        .icon = u"import",
        .text = QT_TRANSLATE_NOOP("letters", "From paper"),
        .toolTip = QT_TRANSLATE_NOOP("letters", "Keep a letter that came on paper or as a file"),
        .task = core::ToolTask::Open,
        .form = u"frmgmail1",
        .places = Labelled | GroupStart},
};

constexpr int kTypingMs = 250;
constexpr int kLongestCategory = 50;

QString monthName(const QString& yearAndMonth)
{
    const QDate first(yearAndMonth.left(4).toInt(), yearAndMonth.mid(5).toInt(), 1);
    return first.isValid()
        ? QLocale::c().standaloneMonthName(first.month()) + u' ' + QString::number(first.year())
        : QString();
}

} // namespace

Frmgmail::Frmgmail(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , m_tools(new core::ToolSet(context.screens, {kTools, "letters"}, this))
    , m_tabs(new QTabBar)
    , m_sought(new QLineEdit)
    , m_typing(new QTimer(this))
    , m_groups(new widgets::HeadingGrid)
    , m_grid(new widgets::HeadingGrid)
    , m_list(new core::ListPresenter(context.data, m_grid, this))
    , m_recordTools(new RecordTools(context, m_grid, this))
    , m_pane(new LetterPane(context))
    , m_drag(new LetterDrag(m_grid, m_groups, this))
{
    setWindowTitle(tr("Letter Record"));
    layOut();
    connectTools();
    m_typing->setSingleShot(true);
    m_typing->setInterval(kTypingMs);
    connect(m_typing, &QTimer::timeout, this, &Frmgmail::showLetters);
    connect(m_sought, &QLineEdit::textEdited, m_typing, qOverload<>(&QTimer::start));
    connect(m_sought, &QLineEdit::returnPressed, this, &Frmgmail::search);
    connect(m_tabs, &QTabBar::currentChanged, this, &Frmgmail::showGroups);
    connect(m_groups, &widgets::HeadingGrid::currentRowChanged, this, &Frmgmail::showLetters);
    connect(m_list, &core::ListPresenter::currentChanged, this, &Frmgmail::followList);
    connect(m_drag, &LetterDrag::dropped, this, [this](const QList<qint64>& letters, int row) {
        if (row > 0) // the first row is all letters
            moveTo(letters, m_groups->textAt(row, u"name"_s));
    });
}

void Frmgmail::layOut()
{
    m_tabs->setObjectName(u"SSActiveTabs1"_s);
    m_tabs->setAccessibleName(tr("How letters are put together"));
    for (const QString& tab : {tr("Person"), tr("Category"), tr("Month")})
        m_tabs->addTab(tab);
    m_tabs->setDrawBase(false);
    m_tabs->setExpanding(false);
    m_sought->setObjectName(u"txtSearch"_s);
    m_sought->setAccessibleName(tr("Search the letters"));
    m_sought->setPlaceholderText(tr("Search names and texts"));
    m_sought->setClearButtonEnabled(true);
    m_groups->setObjectName(u"Groups"_s);
    m_groups->setAccessibleName(tr("Groups of letters"));
    m_groups->letColumnsGiveWay();
    m_grid->setObjectName(u"Grid1"_s);
    m_grid->setAccessibleName(tr("Letters"));
    m_grid->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_grid->letColumnsGiveWay();
    auto* left = new QWidget;
    auto* groups = new QVBoxLayout(left);
    groups->setContentsMargins({});
    groups->addWidget(m_tabs);
    groups->addWidget(m_groups, 1);
    auto* right = new QSplitter(Qt::Vertical);
    right->setChildrenCollapsible(false);
    right->addWidget(m_grid);
    right->addWidget(m_pane);
    right->setSizes({260, 320});
    auto* splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(left);
    splitter->addWidget(right);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({240, 560});
    auto* page = new QVBoxLayout;
    page->setContentsMargins(8, 6, 8, 8);
    page->setSpacing(8);
    page->addWidget(m_sought);
    page->addWidget(splitter, 1);
    auto* bar = m_recordTools->makeToolBar(this);
    m_tools->addTo(bar);
    auto* lists = new output::ListTools(context(), m_grid, this, windowTitle());
    lists->addTo(bar);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(bar);
    layout->addLayout(page, 1);
    setFocusProxy(m_grid);
    auto* categories = new QMenu(this);
    connect(categories, &QMenu::aboutToShow, this, [this, categories] { fillCategories(categories); });
    m_tools->action(u"MoveTo")->setMenu(categories);
    if (auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(m_tools->action(u"MoveTo"))))
        button->setPopupMode(QToolButton::InstantPopup);
}

void Frmgmail::connectTools()
{
    connect(m_recordTools, &RecordTools::removeWanted, this, &Frmgmail::remove);
    m_grid->addAction(m_tools->action(u"MoveTo"));
    findChild<QMenu*>(u"LetterMenu"_s)->addAction(m_tools->action(u"MoveTo"));
}

void Frmgmail::fillCategories(QMenu* menu)
{
    menu->clear();
    QStringList categories = core::firstColumn(context().data, mailCategoriesSql());
    categories.removeDuplicates();
    for (const QString& category : categories) {
        if (!category.trimmed().isEmpty())
            menu->addAction(QString(category).replace(u'&', u"&&"_s), this,
                [this, category] { moveTo(chosenLetters(), category); });
    }
    menu->addSeparator();
    menu->addAction(tr("No category"), this, [this] { moveTo(chosenLetters(), {}); });
    menu->addAction(tr("Another category..."), this, &Frmgmail::askNewCategory);
}

void Frmgmail::load()
{
    m_grid->showAs(u"Date"_s, [pattern = core::datePattern(shared().NationalMode)](const QVariant& date) {
        return date.toDate().isValid() ? jet::formatDate(date.toDate(), pattern) : QString();
    });
    m_grid->setHeadings(u"|Date            |Direction   |Person                      |Type          "
                        u"|Category          |City       ",
        {{}, u"Date"_s, u"type1"_s, u"person"_s, u"Mailtype"_s, u"mailcateg"_s, u"city"_s});
    showGroups();
}

void Frmgmail::bookChanged()
{
    const QString name = m_groups->currentText(u"name"_s);
    const qint64 person = m_groups->currentKey();
    const int place = m_groups->currentRow();
    const qint64 letter = m_grid->currentKey();
    {
        const QSignalBlocker quiet(m_groups);
        showGroups();
        for (int row = 1; place > 0 && row < m_groups->rowCount(); ++row) {
            if (m_groups->textAt(row, u"name"_s) == name && m_groups->keyAt(row) == person) {
                m_groups->setCurrentRow(row);
                break;
            }
        }
    }
    showLetters();
    if (m_list->point(letter))
        followList();
}

bool Frmgmail::showContact(qint64 id)
{
    const jet::Recordset contact = context().data.openRecordset(core::contactNameSql(id));
    if (!contact.hasRow())
        return false;
    m_tabs->setCurrentIndex(int(LetterGroup::Person));
    m_sought->clear();
    if (!m_groups->selectKey(id)) {
        m_groups->setCurrentRow(0);
        m_sought->setText(contact.textOrEmpty(u"Name").simplified());
    }
    showLetters();
    return true;
}

void Frmgmail::openPage(const QString& page)
{
    m_tabs->setCurrentIndex(int(page == u"Arrange" ? LetterGroup::Category : LetterGroup::Person));
}

LetterGroup Frmgmail::group() const
{
    return static_cast<LetterGroup>(m_tabs->currentIndex());
}

void Frmgmail::showGroups()
{
    const jet::Recordset groups = context().data.openRecordset(letterGroupsSql(group()));
    QList<QStringList> rows;
    const bool isPerson = group() == LetterGroup::Person;
    const int name = groups.columnIndex(u"name");
    const int count = groups.columnIndex(u"letters");
    int total = 0;
    QStringList seen;
    for (int row = 0; row < groups.count(); ++row) {
        const QString key = isPerson ? groups.textAt(row, groups.columnIndex(u"key")) : QString();
        const QString text = groups.textAt(row, name);
        const QString shown = group() == LetterGroup::Month ? monthName(text) : text.simplified();
        total += groups.valueAt(row, count).toInt();
        seen << text.toCaseFolded();
        rows << QStringList{shown.isEmpty() ? tr("(none)") : shown, groups.textAt(row, count), text, key};
    }
    // A category without a letter can be dragged into.
    if (group() == LetterGroup::Category) {
        for (const QString& category : core::firstColumn(context().data, mailCategoriesSql())) {
            if (!category.trimmed().isEmpty() && !seen.contains(category.toCaseFolded()))
                rows << QStringList{category, u"0"_s, category, {}};
        }
    }
    rows.prepend({tr("All letters"), QString::number(total), {}, {}});
    const QSignalBlocker quiet(m_groups);
    m_groups->setHeadings(u"|Letters of                  |Count  ", {{}, u"shown"_s, u"letters"_s});
    m_groups->setRows(rows, {u"shown"_s, u"letters"_s, u"name"_s, u"id"_s});
    m_groups->setCurrentRow(0);
    m_drag->setEnabled(group() == LetterGroup::Category);
    showLetters();
}

void Frmgmail::search()
{
    m_typing->stop();
    showLetters();
    m_grid->setFocus();
}

void Frmgmail::showLetters()
{
    const int row = m_groups->currentRow();
    const LetterChoice choice{
        group(), row <= 0, m_groups->currentText(u"name"_s), m_groups->currentKey(), m_sought->text()};
    m_grid->setEmptyText(m_sought->text().trimmed().isEmpty()
            ? tr("No letter was kept yet. Letters that you save in the letter creator stand here.")
            : tr("No letter holds these words"));
    m_list->open(lettersOfSql(choice));
    if (m_grid->currentRow() < 0)
        m_grid->setCurrentRow(0);
    followList();
}

void Frmgmail::followList()
{
    const qint64 letter = m_grid->currentKey();
    m_pane->show(letter);
    m_recordTools->follow();
    m_tools->action(u"MoveTo")->setEnabled(letter != 0);
    setPosition(m_list->position());
}

QList<qint64> Frmgmail::chosenLetters() const
{
    const QList<qint64> selected = m_grid->selectedKeys();
    if (!selected.isEmpty() || m_grid->currentKey() == 0)
        return selected;
    return {m_grid->currentKey()};
}

void Frmgmail::moveTo(const QList<qint64>& letters, const QString& category)
{
    if (letters.isEmpty())
        return inform(tr("Record not selected"));
    {
        const jet::Step step(
            context().data, letters.size() == 1 ? tr("a letter's category") : tr("the category of letters"));
        if (!context().data.execute(moveLettersSql(letters, category)))
            return core::tellFailedSave(context());
    }
    playSound(core::sounds::Save);
    tellSaved(letters.size() == 1 ? tr("the letter's category")
                                  : tr("the category of %1 letters").arg(letters.size()));
    context().screens.tellBookChanged(this);
    bookChanged();
}

void Frmgmail::askNewCategory()
{
    const auto category
        = context().services.boxes.inputText(shared().AppTitle, tr("Put the letters into the category:"));
    if (category && !category->trimmed().isEmpty())
        moveTo(chosenLetters(), category->simplified().left(kLongestCategory));
}

void Frmgmail::remove()
{
    if (!deleteLetters(context(), chosenLetters()))
        return;
    context().screens.tellBookChanged(this);
    bookChanged();
}

} // namespace letters
