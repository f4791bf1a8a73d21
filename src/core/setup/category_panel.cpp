#include "core/setup/category_panel.h"

#include "core/setup/category_deletion.h"
#include "core/setup/category_statements.h"
#include "core/text_pieces.h"
#include "core/vocabularies.h"
#include "platform/message_boxes.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"
#include "widgets/heading_grid.h"
#include "widgets/theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QStackedWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using core::Category;
using widgets::child;

namespace setup {

namespace {

constexpr QStringView kHeadings = u"      |Category                |Sub Category           ";
constexpr int kIdRole = Qt::UserRole;
constexpr int kFilledRole = Qt::UserRole + 1;
constexpr int kFieldsWidth = 430;
constexpr int kNarrowestList = 280;

bool isSame(const Category& one, const Category& other)
{
    return one.category == other.category && one.subcategory == other.subcategory;
}

} // namespace

CategoryPanel::CategoryPanel(core::Context& context, QWidget* parent)
    : core::SetupPanel(context, parent)
    , m_views(new QStackedWidget)
    , FG(new widgets::HeadingGrid)
    , SSTree1(new QTreeWidget)
    , CmdList(new QPushButton)
    , m_hint(core::makeHint(u"lblCatHint"_s))
    , m_deletion(new CategoryDeletion(context))
{
    auto* fields = new QWidget;
    auto* right = new QVBoxLayout(fields);
    right->setContentsMargins(0, 0, 0, 0);
    right->setSpacing(10);
    right->addWidget(layOutFields());
    right->addWidget(m_deletion);
    right->addStretch(1);
    fields->setFixedWidth(kFieldsWidth);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(14);
    layout->addWidget(layOutList(), 1);
    layout->addWidget(fields);
    connectControls();
    go(State::View);
}

QWidget* CategoryPanel::layOutList()
{
    FG->setObjectName(u"FG"_s);
    FG->setAccessibleName(tr("Categories"));
    FG->setHeadings(kHeadings, {u""_s, u"category1"_s, u"category2"_s});
    FG->setKeyColumn(u"catid"_s);
    FG->setEmptyText(tr("There is no category yet."));
    FG->mergeEqual({u"category1"_s});
    SSTree1->setObjectName(u"SSTree1"_s);
    SSTree1->setAccessibleName(tr("Categories as a tree"));
    SSTree1->setHeaderHidden(true);
    SSTree1->setUniformRowHeights(true);
    m_views->setMinimumWidth(kNarrowestList);
    m_views->addWidget(FG);
    m_views->addWidget(SSTree1);
    CmdList->setObjectName(u"CmdList"_s);
    CmdList->setAutoDefault(false);
    CmdList->setText(tr("Tree"));
    CmdList->setToolTip(tr("Show the categories as a tree or as a list"));
    widgets::setIcon(CmdList, u"tree");
    auto* list = new QWidget;
    auto* layout = new QVBoxLayout(list);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(m_views, 1);
    layout->addWidget(CmdList, 0, Qt::AlignLeft);
    return list;
}

QWidget* CategoryPanel::layOutFields()
{
    auto* page = new QWidget;
    widgets::FormKit form(
        page, [this](QStringView column) { return context().schema.textSize(u"CNTB_CATEGORIES", column); });
    form.group(tr("Category"))
        .caption(u"lblflg"_s, {}, tr("State"))
        .combo(u"DBCcat"_s, tr("&Category"), u"CATEGORY1"_s, widgets::KeyFilter::NoApostrophe)
        .combo(u"DBCSubCat"_s, tr("&Sub category"), u"CATEGORY2"_s, widgets::KeyFilter::NoApostrophe)
        .fixedCombo(u"cboDefCat"_s, tr("&Take from"))
        .hint(tr("Categories that come with the program; a choice fills the two boxes"))
        .button(u"CmdNew"_s, tr("&New"), u"add", tr("Type a new category (Ctrl+N)"))
        .button(
            u"CmdAdd"_s, tr("S&ave"), u"save", tr("Add the category, or rename it in all records (Ctrl+S)"))
        .button(u"CmdCatCancel"_s, tr("Cancel"), u"cancel", tr("Show the category as it is stored (Esc)"))
        .button(u"CmdCatDel"_s, tr("&Delete..."), u"delete", tr("Delete the chosen category"))
        .wide(u"lblCatHint"_s, tr("Hint"), m_hint);
    page->layout()->setContentsMargins(0, 0, 0, 0);
    lblflg = child<QLabel>(page, u"lblflg"_s);
    DBCcat = child<widgets::FilledCombo>(page, u"DBCcat"_s);
    DBCSubCat = child<widgets::FilledCombo>(page, u"DBCSubCat"_s);
    m_factory = child<widgets::FilledCombo>(page, u"cboDefCat"_s);
    DBCcat->setSource([this] { return core::firstColumn(data(), treeCategoriesSql()); });
    DBCSubCat->setSource(
        [this] { return core::firstColumn(data(), treeSubcategoriesSql(DBCcat->currentText())); });
    m_factory->setSource([this] { return core::firstColumn(data(), factoryCategoriesSql()); });
    return page;
}

void CategoryPanel::connectControls()
{
    connect(FG, &widgets::HeadingGrid::currentRowChanged, this, &CategoryPanel::rowChanged);
    connect(SSTree1, &QTreeWidget::currentItemChanged, this, &CategoryPanel::treeChanged);
    connect(SSTree1, &QTreeWidget::itemExpanded, this, &CategoryPanel::fillBranch);
    connect(FG, &widgets::HeadingGrid::chosen, DBCcat, qOverload<>(&QWidget::setFocus));
    connect(CmdList, &QPushButton::clicked, this, &CategoryPanel::switchView);
    connect(DBCcat, &QComboBox::currentTextChanged, DBCSubCat, &widgets::FilledCombo::refill);
    for (widgets::FilledCombo* combo : {DBCcat, DBCSubCat}) {
        connect(combo->lineEdit(), &QLineEdit::textEdited, this, &CategoryPanel::typed);
        connect(combo, &QComboBox::textActivated, this, &CategoryPanel::typed);
    }
    connect(m_factory, &QComboBox::textActivated, this, &CategoryPanel::takeFactoryCategory);
    const auto onClick = [this](const QString& name, auto handler) {
        connect(child<QPushButton>(this, name), &QPushButton::clicked, this, handler);
    };
    onClick(u"CmdNew"_s, &CategoryPanel::startNew);
    onClick(u"CmdAdd"_s, &CategoryPanel::save);
    onClick(u"CmdCatCancel"_s, &CategoryPanel::cancel);
    onClick(u"CmdCatDel"_s, &CategoryPanel::askToDelete);
    const auto onKey = [this](const QKeySequence& key, auto handler) {
        auto* shortcut = new QShortcut(key, this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, handler);
    };
    onKey(QKeySequence::New, &CategoryPanel::startNew);
    onKey(QKeySequence::Save, &CategoryPanel::save);
    auto* deleteKey = new QShortcut(QKeySequence::Delete, m_views);
    deleteKey->setContext(Qt::WidgetWithChildrenShortcut);
    connect(deleteKey, &QShortcut::activated, this, &CategoryPanel::askToDelete);
    connect(m_deletion, &CategoryDeletion::deleted, this, [this] { stored(0); });
    connect(m_deletion, &core::SetupPanel::vocabulariesChanged, this, &core::SetupPanel::vocabulariesChanged);
    connect(m_deletion, &core::SetupPanel::contactsChanged, this, &core::SetupPanel::contactsChanged);
}

// ---- lists

// What is being typed stays; the list may have changed.
void CategoryPanel::refresh()
{
    const QScopedValueRollback filling(m_isFilling, true);
    const qint64 id = m_id;
    FG->fill(data().openRecordset(categoryListSql()));
    FG->setCurrentRow(id == 0 ? -1 : FG->rowOf(id));
    readTree();
    for (widgets::FilledCombo* combo : {DBCcat, DBCSubCat, m_factory})
        combo->refill();
    if (FG->currentRow() < 0 && id != 0)
        showCategory(0, {});
    else if (id != 0)
        selectInTree(m_old, id);
}

// A branch is read when it is opened.
void CategoryPanel::readTree()
{
    SSTree1->clear();
    auto* root = new QTreeWidgetItem(SSTree1, {u"Orvane Contact Category & Subcategory"_s});
    root->setIcon(0, widgets::icon(u"category"));
    root->setData(0, kFilledRole, true);
    for (const QString& category : core::firstColumn(data(), treeCategoriesSql())) {
        auto* branch = new QTreeWidgetItem(root, {category});
        branch->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
    }
    root->setExpanded(true);
}

void CategoryPanel::fillBranch(QTreeWidgetItem* branch)
{
    if (branch->data(0, kFilledRole).toBool())
        return;
    branch->setData(0, kFilledRole, true);
    const jet::Recordset rows = data().openRecordset(treeSubcategoriesSql(branch->text(0)));
    for (int row = 0; row < rows.count(); ++row) {
        auto* leaf = new QTreeWidgetItem(branch, {rows.textAt(row, 0)});
        leaf->setData(0, kIdRole, rows.valueAt(row, 1));
    }
    if (rows.isEmpty())
        branch->setChildIndicatorPolicy(QTreeWidgetItem::DontShowIndicatorWhenChildless);
}

void CategoryPanel::selectInTree(const Category& category, qint64 id)
{
    const QTreeWidgetItem* root = SSTree1->topLevelItem(0);
    for (int i = 0; root && i < root->childCount(); ++i) {
        QTreeWidgetItem* branch = root->child(i);
        if (branch->text(0).compare(category.category, Qt::CaseInsensitive) != 0)
            continue;
        branch->setExpanded(true);
        for (int row = 0; row < branch->childCount(); ++row) {
            if (branch->child(row)->data(0, kIdRole).toLongLong() == id)
                SSTree1->setCurrentItem(branch->child(row));
        }
    }
}

void CategoryPanel::switchView()
{
    const bool toTree = m_views->currentWidget() == FG;
    m_views->setCurrentWidget(toTree ? static_cast<QWidget*>(SSTree1) : FG);
    CmdList->setText(toTree ? tr("List") : tr("Tree"));
    widgets::setIcon(CmdList, toTree ? u"list" : u"tree");
    m_views->currentWidget()->setFocus();
}

bool CategoryPanel::isTouched() const
{
    return m_state != State::View
        && (DBCcat->currentText() != m_old.category || DBCSubCat->currentText() != m_old.subcategory);
}

// Typed and not saved: where the person wants to keep it, list and tree go back behind the event that moved
// them.
bool CategoryPanel::mayShowAnother()
{
    if (!isTouched() || mayDiscard())
        return true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            const QScopedValueRollback filling(m_isFilling, true);
            FG->setCurrentRow(m_id == 0 ? -1 : FG->rowOf(m_id));
            SSTree1->setCurrentItem(nullptr);
            if (m_id != 0)
                selectInTree(m_old, m_id);
        },
        Qt::QueuedConnection);
    return false;
}

void CategoryPanel::rowChanged(int row)
{
    if (m_isFilling || row < 0 || !mayShowAnother())
        return;
    const QScopedValueRollback filling(m_isFilling, true);
    const Category category{FG->textAt(row, u"category1"_s), FG->textAt(row, u"category2"_s)};
    showCategory(FG->textAt(row, u"catid"_s).toLongLong(), category);
    selectInTree(category, m_id);
}

// A category without its subcategory is shown as well, but no row can be changed through it.
void CategoryPanel::treeChanged(QTreeWidgetItem* item)
{
    if (m_isFilling || !item || !mayShowAnother())
        return;
    const QScopedValueRollback filling(m_isFilling, true);
    const qint64 id = item->data(0, kIdRole).toLongLong();
    FG->setCurrentRow(id == 0 ? -1 : FG->rowOf(id));
    if (id != 0)
        showCategory(id, {item->parent()->text(0), item->text(0)});
    else
        showCategory(0, {item->parent() ? item->text(0) : QString(), {}});
}

void CategoryPanel::showCategory(qint64 id, const Category& category)
{
    m_id = id;
    m_old = category;
    widgets::setTextOf(DBCcat, category.category);
    widgets::setTextOf(DBCSubCat, category.subcategory);
    m_deletion->hide();
    m_hint->clear();
    go(State::View);
}

// ---- states

void CategoryPanel::go(State state)
{
    m_state = state;
    lblflg->setText(state == State::New ? u"New"_s : state == State::Edit ? u"Edit"_s : u"View"_s);
    child<QPushButton>(this, u"CmdCatCancel"_s)->setEnabled(state != State::View);
}

void CategoryPanel::typed()
{
    m_hint->clear();
    m_deletion->hide();
    go(m_id != 0 ? State::Edit : State::New);
}

void CategoryPanel::startNew()
{
    if (isTouched() && !mayDiscard())
        return;
    const QScopedValueRollback filling(m_isFilling, true);
    const QString category = m_old.category;
    FG->setCurrentRow(-1);
    SSTree1->setCurrentItem(nullptr);
    // A new subcategory of the chosen category is the usual wish.
    showCategory(0, {category, {}});
    go(State::New);
    QWidget* first = category.isEmpty() ? DBCcat : DBCSubCat;
    first->setFocus();
}

void CategoryPanel::takeFactoryCategory(const QString& both)
{
    if (m_state != State::New)
        startNew();
    widgets::setTextOf(DBCcat, core::PickByDash(both, 1));
    widgets::setTextOf(DBCSubCat, core::PickByDash(both, 2));
}

void CategoryPanel::cancel()
{
    playSound(u"Cancel");
    showCategory(m_id, m_id != 0 ? m_old : Category());
}

// ---- changes

void CategoryPanel::save()
{
    const Category category{DBCcat->currentText().trimmed(), DBCSubCat->currentText().trimmed()};
    if (category.category.isEmpty() && category.subcategory.isEmpty())
        return inform(tr("Please fill category and subCategory"));
    if (category.category.isEmpty())
        return m_hint->setText(tr("A subcategory needs a category."));
    if (m_state == State::View || (m_state == State::Edit && isSame(category, m_old)))
        return m_hint->setText(tr("Nothing was changed."));
    if (isCategoryKnown(data(), category, m_id))
        return m_hint->setText(
            tr("This category is there already. To join two of them, delete one and move its records."));
    if (m_state == State::New)
        add(category);
    else
        rename(category);
}

void CategoryPanel::add(const Category& category)
{
    const jet::Step step(data(), tr("adding the category %1").arg(category.category));
    const qint64 id = addCategory(data(), category);
    if (id == 0)
        return m_hint->setText(notStored(tr("The category could not be stored.")));
    playSound(u"save");
    stored(id);
    Q_EMIT vocabulariesChanged();
}

void CategoryPanel::rename(const Category& category)
{
    const auto answer = context().services.boxes.ask(
        renameQuestion(m_old, category), u"Orvane Contacts"_s, platform::Icon::Warning);
    if (answer != platform::Answer::Yes)
        return;
    const qint64 id = m_id;
    const jet::Step step(data(), tr("renaming the category %1").arg(m_old.category));
    if (!renameCategory(data(), id, m_old, category))
        return m_hint->setText(notStored(tr("The category could not be renamed.")));
    playSound(u"save");
    stored(id);
    Q_EMIT vocabulariesChanged();
    Q_EMIT contactsChanged();
}

void CategoryPanel::askToDelete()
{
    if (m_id == 0)
        return inform(tr("First Select Category & Sub-Category"));
    showCategory(m_id, m_old);
    m_deletion->ask(m_old);
}

void CategoryPanel::stored(qint64 id)
{
    showCategory(0, {});
    refresh();
    if (id != 0)
        FG->selectKey(id);
}

} // namespace setup
