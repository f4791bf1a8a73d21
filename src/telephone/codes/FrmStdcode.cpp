#include "telephone/codes/FrmStdcode.h"

#include "output/grid/list_print.h"
#include "telephone/number_hand_over.h"
#include "widgets/fields.h"
#include "widgets/form_kit.h"
#include "widgets/heading_grid.h"

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTabBar>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace telephone {

namespace {

using widgets::child;

constexpr int kTypingMs = 150;

} // namespace

FrmStdcode::FrmStdcode(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , SSActiveTabs1(new QTabBar)
    , FGCity(new widgets::HeadingGrid)
    , m_typing(new QTimer(this))
{
    setWindowTitle(tr("City Tel code"));
    layOut();
    m_typing->setSingleShot(true);
    m_typing->setInterval(kTypingMs);
    connect(m_typing, &QTimer::timeout, this, &FrmStdcode::search);
    connect(Text1, &QLineEdit::textEdited, this, [this] { typed(SearchBy::City); });
    connect(Text2, &QLineEdit::textEdited, this, [this] { typed(SearchBy::Code); });
    for (QLineEdit* line : {Text1, Text2})
        connect(line, &QLineEdit::returnPressed, this, &FrmStdcode::search);
    connect(SSActiveTabs1, &QTabBar::currentChanged, this, &FrmStdcode::showList);
    connect(chkMain, &QCheckBox::toggled, this, &FrmStdcode::showList);
    connect(FGCity, &widgets::HeadingGrid::chosen, this, &FrmStdcode::takeRow);
    connect(FGCity, &widgets::HeadingGrid::currentRowChanged, this, &FrmStdcode::showFound);
    connect(SSCommand1, &QPushButton::clicked, this, &FrmStdcode::dial);
    setFocusProxy(Text1);
}

void FrmStdcode::layOut()
{
    SSActiveTabs1->setDrawBase(false);
    SSActiveTabs1->setExpanding(false);
    for (const QString& caption : {tr("All"), tr("Country"), tr("India"), tr("US"), tr("US-City")})
        SSActiveTabs1->addTab(caption);
    FGCity->setEmptyText(tr("No city is found"));
    auto* page = new QWidget;
    widgets::FormKit form(page);
    form.group()
        .line(u"Text1"_s, tr("&City"))
        .hint(tr("The beginning of the name of a city"))
        .beside()
        .line(u"Text2"_s, tr("C&ode"))
        .hint(tr("The beginning of a telephone code"))
        .beside()
        .check(u"chkMain"_s, tr("&Main cities"))
        .hint(tr("Only the main cities of India"))
        .wide(u"SSActiveTabs1"_s, tr("Which cities are listed"), SSActiveTabs1)
        .wide(u"FGCity"_s, tr("Cities and their codes"), FGCity);
    form.buttonRow()
        .caption(u"lblCount"_s)
        .stretch()
        .button(u"SSCommand1"_s, tr("Dial to selected area code"), u"dial");
    Text1 = child<QLineEdit>(page, u"Text1"_s);
    Text2 = child<QLineEdit>(page, u"Text2"_s);
    for (QLineEdit* line : {Text1, Text2})
        line->setClearButtonEnabled(true);
    chkMain = child<QCheckBox>(page, u"chkMain"_s);
    SSCommand1 = child<QPushButton>(page, u"SSCommand1"_s);
    m_count = child<QLabel>(page, u"lblCount"_s);
    m_count->setWordWrap(false);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(layOutTools());
    layout->addWidget(page, 1);
}

QToolBar* FrmStdcode::layOutTools()
{
    auto* tools = new output::ListTools(context(), FGCity, this);
    QToolBar* bar = tools->makeToolBar(this);
    bar->setObjectName(u"Tbar"_s);
    auto* sizes = new QToolButton;
    sizes->setObjectName(u"ListSizes"_s);
    sizes->setText(tr("Size"));
    sizes->setToolTip(tr("Size of the texts of the list"));
    sizes->setPopupMode(QToolButton::InstantPopup);
    auto* menu = new QMenu(sizes);
    for (const QString& size : {u"VerySmall"_s, u"Small"_s, u"Medium"_s, u"Large"_s})
        menu->addAction(tools->action(size));
    sizes->setMenu(menu);
    bar->addWidget(sizes);
    return bar;
}

void FrmStdcode::load()
{
    setFrameTitle(windowTitle());
    showList();
}

void FrmStdcode::showList()
{
    m_typing->stop();
    const auto list = static_cast<CodeList>(SSActiveTabs1->currentIndex());
    const bool national = shared().NationalMode;
    chkMain->setEnabled(list == CodeList::India || (list == CodeList::All && national));
    Text1->clear();
    Text2->clear();
    jet::Recordset rows = context().info.openRecordset(codeListSql(list, national, chkMain->isChecked()));
    if (hasGroups(list)) {
        const QStringList columns{u"state"_s, u"city"_s, u"std"_s};
        FGCity->setHeadings(codeListHeadings(list), QStringList{QString()} + columns);
        FGCity->setRows(groupedRows(rows, list), columns);
    } else {
        FGCity->fill(codeListHeadings(list), std::move(rows), {QString(), u"city"_s, u"std"_s});
    }
    showFound();
}

void FrmStdcode::typed(SearchBy by)
{
    m_searchBy = by;
    (by == SearchBy::City ? Text2 : Text1)->clear();
    m_typing->start();
}

void FrmStdcode::search()
{
    m_typing->stop();
    const bool national = shared().NationalMode;
    const QString& text = m_searchBy == SearchBy::City ? Text1->text() : Text2->text();
    jet::Recordset rows = context().info.openRecordset(codeSearchSql(m_searchBy, text, national));
    if (!rows.isValid())
        return;
    FGCity->fill(
        codeListHeadings(CodeList::All), std::move(rows), {QString(), u"city"_s, codeColumn(national)});
    showFound();
}

void FrmStdcode::showFound()
{
    const int row = FGCity->currentRow();
    const int count = FGCity->rowCount();
    m_count->setText(count == 1 ? tr("1 city") : tr("%1 cities").arg(count));
    setPosition(row < 0 ? QString() : u"%1 of %2"_s.arg(row + 1).arg(count));
    enableDialling(
        context(), SSCommand1, row >= 0 && !codeOf(row).isEmpty(), tr("Choose a city with a code"));
}

void FrmStdcode::takeRow(int row)
{
    Text1->setText(FGCity->textAt(row, u"city"_s));
    Text2->setText(codeOf(row));
}

QString FrmStdcode::codeOf(int row) const
{
    const QString code = FGCity->textAt(row, u"std"_s);
    return code.isEmpty() ? FGCity->textAt(row, u"cityisd"_s) : code;
}

void FrmStdcode::dial()
{
    const int row = FGCity->currentRow();
    handOverNumber(context(), codeOf(row), FGCity->textAt(row, u"city"_s));
}

} // namespace telephone
