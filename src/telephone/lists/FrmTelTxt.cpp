#include "telephone/lists/FrmTelTxt.h"

#include "core/frame.h"
#include "core/vocabularies.h"
#include "platform/drive.h"
#include "platform/message_boxes.h"
#include "platform/shell.h"
#include "telephone/lists/chosen_pattern.h"
#include "telephone/lists/number_files.h"
#include "widgets/fields.h"
#include "widgets/form_kit.h"
#include "widgets/heading_grid.h"

#include <QLabel>
#include <QPushButton>

#include <utility>

using namespace Qt::StringLiterals;

namespace telephone {

namespace {

using widgets::child;

constexpr QStringView kHeadings
    = u"|Category                 |City                    |Priority   |Name                           |Phone"
      u"                            ";

} // namespace

FrmTelTxt::FrmTelTxt(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , FG1(new widgets::HeadingGrid)
{
    setWindowTitle(tr("Export Telephone Numbers"));
    FG1->setHeadings(kHeadings, {QString(), u"category1"_s, u"city"_s, u"priority"_s, u"desc"_s, u"phone"_s});
    FG1->setEmptyText(tr("No numbers here. The phone list maker puts them into lists."));
    widgets::FormKit form(this);
    form.group()
        .combo(u"cmbgcat"_s, tr("Cate&gory"))
        .beside()
        .combo(u"cmbgcity"_s, tr("C&ity"))
        .beside()
        .fixedCombo(u"cmbpriority"_s, tr("&Priority"))
        .beside()
        .button(u"Cmd1"_s, tr("Refresh"), u"restore", tr("Show the numbers of all lists"))
        .wide(u"FG1"_s, tr("Numbers of the lists"), FG1)
        .caption(u"lblCount"_s);
    form.buttonRow().stretch().button(
        u"Cmd2"_s, tr("Export"), u"export", tr("Write these numbers to %1").arg(kTimexFile));
    cmbgcat = child<widgets::FilledCombo>(this, u"cmbgcat"_s);
    cmbgcity = child<widgets::FilledCombo>(this, u"cmbgcity"_s);
    cmbpriority = child<widgets::FilledCombo>(this, u"cmbpriority"_s);
    m_count = child<QLabel>(this, u"lblCount"_s);
    for (widgets::FilledCombo* combo : {cmbgcat, cmbgcity, cmbpriority})
        connect(combo, &QComboBox::currentTextChanged, this, &FrmTelTxt::readNumbers);
    connect(child<QPushButton>(this, u"Cmd1"_s), &QPushButton::clicked, this, &FrmTelTxt::clearFilter);
    connect(child<QPushButton>(this, u"Cmd2"_s), &QPushButton::clicked, this, &FrmTelTxt::exportNumbers);
    setFocusProxy(FG1);
}

void FrmTelTxt::load()
{
    setFrameTitle(tr("Export - Telephone Numbers"));
    const auto offer = [this](widgets::FilledCombo* combo, const QString& sql) {
        combo->setSource([this, sql] {
            QStringList values = core::firstColumn(context().data, sql);
            values.removeIf([](const QString& value) { return value.trimmed().isEmpty(); });
            return QStringList{u"All"_s} + values;
        });
    };
    offer(cmbgcat, u"select distinct category1 from cnt_phlist"_s);
    offer(cmbgcity, u"select distinct city from cnt_phlist"_s);
    cmbpriority->setValues({u"All"_s, u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"<=2"_s, u"<=3"_s});
    clearFilter();
}

void FrmTelTxt::bookChanged()
{
    cmbgcat->refill();
    cmbgcity->refill();
    readNumbers();
}

NumberFilter FrmTelTxt::filter() const
{
    return {chosenPattern(cmbgcat), cmbpriority->currentText(), chosenPattern(cmbgcity)};
}

// What is no pattern leaves the list as it was.
void FrmTelTxt::readNumbers()
{
    const QString sql = filteredNumbersSql(filter());
    jet::Recordset rows = context().data.openRecordset(sql);
    if (!rows.isValid())
        return;
    m_sql = sql;
    FG1->fill(std::move(rows));
    m_count->setText(tr("%1 Records Selected").arg(FG1->rowCount()));
}

void FrmTelTxt::clearFilter()
{
    for (widgets::FilledCombo* combo : {cmbgcat, cmbgcity, cmbpriority}) {
        const QSignalBlocker quiet(combo);
        combo->setText(u"All"_s);
    }
    readNumbers();
}

void FrmTelTxt::exportNumbers()
{
    const platform::Drive& drive = context().services.drive;
    drive.ensureFolder(kTimexFile.left(kTimexFile.lastIndexOf(u'\\')));
    const QString why = exportTimex(context().data.openRecordset(m_sql), drive.local(kTimexFile));
    if (!why.isEmpty())
        return warn(tr("The numbers could not be saved as %1: %2.").arg(kTimexFile, why));
    const QString text
        = tr("%1 numbers saved to %2").arg(QString::number(FG1->rowCount()), kTimexFile.toString());
    context().frame.showNotice(text, tr("Open"), [&context = context()] {
        context.services.shell.openFile(context.services.drive.local(kTimexFile));
    });
}

} // namespace telephone
