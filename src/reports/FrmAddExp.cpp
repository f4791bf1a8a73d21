#include "reports/FrmAddExp.h"

#include "core/date_patterns.h"
#include "core/settings.h"
#include "core/vocabularies.h"
#include "jet/date_text.h"
#include "output/grid/grid_export.h"
#include "output/grid/selection_grid.h"
#include "platform/drive.h"
#include "platform/message_boxes.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"
#include "widgets/heading_grid.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSettings>
#include <QSignalBlocker>

#include <utility>

using namespace Qt::StringLiterals;

namespace reports {

namespace {

using widgets::child;

constexpr int kSampleRows = 50;
constexpr auto kColumnRole = Qt::UserRole;
constexpr auto kRemembered = "addressBook/columns";

QString all()
{
    return u"All"_s;
}

QString distinctSql(QStringView column, const QString& where = {})
{
    return u"select distinct %1 from cnt_main%2 order by %1"_s.arg(column, where);
}

} // namespace

FrmAddExp::FrmAddExp(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , LstColumns(new QListWidget)
    , FG1(new widgets::HeadingGrid)
{
    setWindowTitle(tr("Export Address Book"));
    layOut();
    connect(LstColumns, &QListWidget::itemChanged, this, &FrmAddExp::showSample);
    connect(LstColumns->model(), &QAbstractItemModel::rowsMoved, this, &FrmAddExp::showSample);
    const auto onClick = [this](const QString& name, auto act) {
        connect(child<QPushButton>(this, name), &QPushButton::clicked, this, act);
    };
    onClick(u"CmdUp"_s, [this] { moveColumn(-1); });
    onClick(u"CmdDown"_s, [this] { moveColumn(1); });
    onClick(u"CmdAll"_s, [this] { tickAll(true); });
    onClick(u"CmdNone"_s, [this] { tickAll(false); });
    onClick(u"SSCommand1"_s, [this] { exportBook(); });
    onClick(u"CmdExit"_s, [this] { Q_EMIT closeRequested(); });
    onClick(u"CmdHelp"_s, [this] { showHelp(u"CON0082"_s, child<QPushButton>(this, u"CmdHelp"_s)); });
    for (widgets::FilledCombo* combo : {CmbCategory, CmbSubCategory, CmbPriority})
        connect(combo, &QComboBox::currentTextChanged, this, &FrmAddExp::showSample);
    connect(CmbCategory, &QComboBox::currentTextChanged, this, [this] {
        CmbSubCategory->refill();
        CmbSubCategory->setText(all());
    });
    setFocusProxy(LstColumns);
}

void FrmAddExp::layOut()
{
    LstColumns->setDragDropMode(QAbstractItemView::InternalMove);
    // Print and export of lists would take the sample for the whole.
    FG1->setContextMenuPolicy(Qt::NoContextMenu);
    FG1->setEmptyText(tr("No contact is as wanted, or no column is ticked"));
    widgets::FormKit form(this);
    form.group(tr("Columns"))
        .wide(u"LstColumns"_s, tr("Columns, those with a tick are exported"), LstColumns)
        .hint(tr("Space ticks a column; drag it to where it shall stand"))
        .button(u"CmdUp"_s, tr("&Up"), u"arrow-up", tr("Move the column to the left of the one before it"))
        .button(
            u"CmdDown"_s, tr("&Down"), u"arrow-down", tr("Move the column to the right of the one behind it"))
        .button(u"CmdAll"_s, tr("&All"), {}, tr("Tick all columns"))
        .button(u"CmdNone"_s, tr("&None"), {}, tr("Take all ticks away"));
    form.nextColumn(3);
    form.group(tr("Contacts"))
        .fixedCombo(u"CmbCategory"_s, tr("&Category"))
        .fixedCombo(u"CmbSubCategory"_s, tr("&Subcategory"))
        .fixedCombo(u"CmbPriority"_s, tr("&Priority"))
        .caption(u"lblCount"_s);
    form.group(tr("The first rows")).wide(u"FG1"_s, tr("The first rows of the export"), FG1);
    form.buttonRow()
        .button(u"CmdHelp"_s, tr("&Help"), u"help")
        .stretch()
        .button(u"SSCommand1"_s, tr("&Export..."), u"export",
            tr("Save as an Excel, CSV, text or HTML file; which one is chosen with the name"))
        .button(u"CmdExit"_s, tr("E&xit"), u"cancel");
    CmbCategory = child<widgets::FilledCombo>(this, u"CmbCategory"_s);
    CmbSubCategory = child<widgets::FilledCombo>(this, u"CmbSubCategory"_s);
    CmbPriority = child<widgets::FilledCombo>(this, u"CmbPriority"_s);
    lblCount = child<QLabel>(this, u"lblCount"_s);
}

void FrmAddExp::load()
{
    m_isFilling = true;
    fillColumns();
    fillFilters();
    m_isFilling = false;
    showSample();
}

void FrmAddExp::bookChanged()
{
    showSample();
}

void FrmAddExp::vocabulariesChanged()
{
    Screen::vocabulariesChanged();
    // A field of the person's own may have another name now.
    rememberColumns();
    fillColumns();
    showSample();
}

// First those chosen the last time in their order, then the others in that of the table.
void FrmAddExp::fillColumns()
{
    const QSignalBlocker quiet(LstColumns);
    LstColumns->clear();
    const QStringList userLabels = core::userFieldLabels(core::readSettings(context().data));
    const auto add = [&](const ExportColumn& column, bool ticked) {
        auto* item = new QListWidgetItem(exportCaption(column, userLabels), LstColumns);
        item->setData(kColumnRole, column.name.toString());
        item->setFlags(
            Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable | Qt::ItemIsDragEnabled);
        item->setCheckState(ticked ? Qt::Checked : Qt::Unchecked);
    };
    const QStringList remembered = rememberedColumns();
    for (const QString& name : remembered) {
        for (const ExportColumn& column : exportColumns()) {
            if (column.name == name)
                add(column, true);
        }
    }
    for (const ExportColumn& column : exportColumns()) {
        if (!remembered.contains(column.name))
            add(column, remembered.isEmpty() && column.isUsual);
    }
    LstColumns->setCurrentRow(0);
}

void FrmAddExp::fillFilters()
{
    const auto offer = [this](widgets::FilledCombo* combo, const std::function<QString()>& sql) {
        combo->setSource([this, sql] {
            QStringList values = core::firstColumn(context().data, sql());
            values.removeIf([](const QString& value) { return value.trimmed().isEmpty(); });
            return QStringList{all()} + values;
        });
        combo->setText(all());
    };
    offer(CmbCategory, [] { return distinctSql(u"category1"); });
    offer(CmbSubCategory, [this] {
        const ExportFilter chosen = filter();
        return chosen.category == all() || chosen.category.isEmpty()
            ? distinctSql(u"category2")
            : distinctSql(u"category2",
                u" where category1='"_s + QString(chosen.category).replace(u'\'', u"''"_s) + u'\'');
    });
    offer(CmbPriority, [] { return distinctSql(u"Priority"); });
}

QStringList FrmAddExp::chosenColumns() const
{
    QStringList columns;
    for (int row = 0; row < LstColumns->count(); ++row) {
        if (LstColumns->item(row)->checkState() == Qt::Checked)
            columns << LstColumns->item(row)->data(kColumnRole).toString();
    }
    return columns;
}

QStringList FrmAddExp::chosenCaptions() const
{
    QStringList captions;
    for (int row = 0; row < LstColumns->count(); ++row) {
        if (LstColumns->item(row)->checkState() == Qt::Checked)
            captions << LstColumns->item(row)->text();
    }
    return captions;
}

QString FrmAddExp::settingsFile() const
{
    return context().services.drive.programFolder() + u"/export.ini"_s;
}

QStringList FrmAddExp::rememberedColumns() const
{
    return QSettings(settingsFile(), QSettings::IniFormat).value(kRemembered).toStringList();
}

void FrmAddExp::rememberColumns() const
{
    QSettings(settingsFile(), QSettings::IniFormat).setValue(kRemembered, chosenColumns());
}

void FrmAddExp::tickAll(bool ticked)
{
    {
        const QSignalBlocker quiet(LstColumns);
        for (int row = 0; row < LstColumns->count(); ++row)
            LstColumns->item(row)->setCheckState(ticked ? Qt::Checked : Qt::Unchecked);
    }
    LstColumns->viewport()->update();
    showSample();
}

void FrmAddExp::moveColumn(int by)
{
    const int row = LstColumns->currentRow();
    const int there = row + by;
    if (row < 0 || there < 0 || there >= LstColumns->count())
        return;
    {
        const QSignalBlocker quiet(LstColumns);
        LstColumns->insertItem(there, LstColumns->takeItem(row));
        LstColumns->setCurrentRow(there);
    }
    showSample();
}

ExportFilter FrmAddExp::filter() const
{
    return {CmbCategory->currentText(), CmbSubCategory->currentText(), CmbPriority->currentText()};
}

void FrmAddExp::showSample()
{
    if (m_isFilling)
        return;
    const QStringList columns = chosenColumns();
    const jet::Recordset contacts = context().data.openRecordset(exportKeysSql(filter()));
    lblCount->setText(tr("%1 contacts, %2 columns").arg(contacts.count()).arg(columns.size()));
    child<QPushButton>(this, u"SSCommand1"_s)->setEnabled(!columns.isEmpty() && !contacts.isEmpty());
    // A name that the person gave to a field may have a bar in it.
    FG1->setHeadings(chosenCaptions().replaceInStrings(u"|"_s, u"/"_s).join(u'|'), columns);
    if (columns.isEmpty() || contacts.isEmpty())
        return FG1->clearRows();
    QStringList keys;
    for (int row = 0; row < std::min(kSampleRows, contacts.count()); ++row)
        keys << contacts.textAt(row, 0);
    const output::GridTable table
        = output::selectionGrid(context().data.openRecordset(exportSampleSql(columns, keys)),
            chosenCaptions(), {}, core::datePattern(shared().NationalMode));
    QList<QStringList> rows;
    for (int row = 0; row < table.rowCount(); ++row) {
        QStringList texts;
        for (int column = 0; column < columns.size(); ++column)
            texts << output::textOf(table.columns[column], table.rows->cell(row, column));
        rows << texts;
    }
    FG1->setRows(rows, columns);
}

void FrmAddExp::exportBook()
{
    const output::GridTable table
        = output::selectionGrid(context().data.openRecordset(exportSql(chosenColumns(), filter())),
            chosenCaptions(), tr("Address Book"), core::datePattern(shared().NationalMode));
    if (output::GridXLS(context(), table, this))
        rememberColumns();
}

} // namespace reports
