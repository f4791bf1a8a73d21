#include "telephone/codes/FrmCityUtil.h"

#include "core/contact_tool_table.h"
#include "core/contact_tools.h"
#include "core/save_failure.h"
#include "core/screens.h"
#include "core/settings.h"
#include "core/sound_files.h"
#include "core/vocabularies.h"
#include "platform/clock.h"
#include "telephone/number_hand_over.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"
#include "widgets/heading_grid.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

#include <utility>

using namespace Qt::StringLiterals;

namespace telephone {

namespace {

using widgets::child;

constexpr QStringView kServiceHeadings = u"|Category              |Name                              |";
constexpr QStringView kSavedHeadings
    = u"|City             |Utility                       |Name                              ";

} // namespace

FrmCityUtil::FrmCityUtil(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , m_tools(new core::ContactTools(context, core::hitTools(),
          {.callerForm = u"FrmCityUtil"_s,
              .chosen =
                  [this] {
                      const qint64 id = FG2->currentKey();
                      return core::ChosenContact{id, id};
                  }},
          this))
    , FG1(new widgets::HeadingGrid)
    , FG2(new widgets::HeadingGrid)
{
    setWindowTitle(tr("City Utility"));
    layOut();
    connect(DBCity, &QComboBox::currentTextChanged, this, &FrmCityUtil::chooseCity);
    connect(DBCity->lineEdit(), &QLineEdit::editingFinished, this, [this] {
        if (m_listedCity != city())
            readServices();
    });
    connect(DBCategory, &QComboBox::currentTextChanged, this, &FrmCityUtil::readServices);
    connect(FG1, &widgets::HeadingGrid::currentRowChanged, this, &FrmCityUtil::showService);
    connect(FG1, &QTableView::clicked, this, &FrmCityUtil::clickService);
    connect(FG1, &widgets::HeadingGrid::chosen, this, &FrmCityUtil::clickService);
    connect(SSCommand4, &QPushButton::clicked, this, &FrmCityUtil::turnSaved);
    connect(CmdCall, &QPushButton::clicked, this, &FrmCityUtil::call);
    connect(child<QPushButton>(this, u"Label2"_s), &QPushButton::clicked, this, &FrmCityUtil::copyToBook);
    connect(FG2, &widgets::HeadingGrid::chosen, m_tools->action(u"OpenHit"), &QAction::trigger);
    QMenu* menu = m_tools->makeMenu(u"SavedMenu"_s, this);
    FG2->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(FG2, &QWidget::customContextMenuRequested, this, [this, menu](const QPoint& at) {
        if (FG2->currentRow() >= 0)
            menu->popup(FG2->viewport()->mapToGlobal(at));
    });
    setFocusProxy(DBCity);
}

// A field that loses the focus as it goes says that its text is entered.
FrmCityUtil::~FrmCityUtil()
{
    DBCity->lineEdit()->disconnect(this);
}

void FrmCityUtil::layOut()
{
    FG1->setHeadings(kServiceHeadings, {QString(), u"category"_s, u"uname"_s, u"city"_s});
    FG1->setEmptyText(tr("No services are known here"));
    FG2->setHeadings(kSavedHeadings, {QString(), u"b_city"_s, u"category2"_s, u"name"_s});
    FG2->setEmptyText(tr("No service has been copied into the address book yet"));
    widgets::FormKit form(this);
    form.group(tr("Services"))
        .combo(u"DBCity"_s, tr("&City"))
        .combo(u"DBCategory"_s, tr("C&ategory"))
        .wide(u"FG1"_s, tr("Services of the city"), FG1)
        .caption(u"lbluname"_s, {}, tr("Name"))
        .caption(u"lbladdress"_s, {}, tr("Address"))
        .caption(u"lblstd"_s, {}, tr("Tel code"))
        .caption(u"lblphone1"_s, {}, tr("Numbers"))
        .beside()
        .caption(u"lblphone2"_s)
        .beside()
        .caption(u"lblphone3"_s)
        .button(u"CmdCall"_s, tr("Call"), u"phone")
        .combo(u"DBCombo1"_s, tr("Category of the c&opy"))
        .beside()
        .button(u"Label2"_s, tr("City Directory"), u"person-add",
            tr("Copy this service from the city directory into the address book"));
    form.nextColumn();
    form.group(tr("In the address book"))
        .wide(u"FG2"_s, tr("Services in the address book"), FG2)
        .button(u"SSCommand4"_s, tr("View Utility Wise"), u"list", tr("Change the order of the list"));
    DBCity = child<widgets::FilledCombo>(this, u"DBCity"_s);
    DBCategory = child<widgets::FilledCombo>(this, u"DBCategory"_s);
    DBCombo1 = child<widgets::FilledCombo>(this, u"DBCombo1"_s);
    CmdCall = child<QPushButton>(this, u"CmdCall"_s);
    SSCommand4 = child<QPushButton>(this, u"SSCommand4"_s);
    for (const QString& name : {u"lblphone1"_s, u"lblphone2"_s, u"lblphone3"_s, u"lblstd"_s})
        child<QLabel>(this, name)->setTextInteractionFlags(Qt::TextSelectableByMouse);
}

void FrmCityUtil::load()
{
    setFrameTitle(windowTitle());
    DBCity->setSource([this] { return core::firstColumn(context().info, serviceCitiesSql()); });
    DBCategory->setSource([this] { return core::firstColumn(context().info, serviceCategoriesSql(city())); });
    DBCombo1->setSource(
        [this] { return core::firstColumn(context().data, contactCategoriesForServicesSql()); });
    DBCombo1->setText(u"Utilities"_s);
    enableDialling(context(), CmdCall, true, {});
    readServices();
    readSaved();
}

void FrmCityUtil::bookChanged()
{
    DBCombo1->refill();
    readSaved();
}

QString FrmCityUtil::city() const
{
    return DBCity->currentText().trimmed();
}

void FrmCityUtil::chooseCity()
{
    DBCategory->refill();
    {
        const QSignalBlocker quiet(DBCategory);
        DBCategory->setText({});
    }
    // While a name is being typed there is no such city yet, and the list stays.
    if (!city().isEmpty() && DBCity->lineEdit()->hasFocus()
        && context().info.openRecordset(servicesSql(city(), {})).isEmpty())
        return;
    readServices();
}

void FrmCityUtil::readServices()
{
    jet::Recordset rows
        = context().info.openRecordset(servicesSql(city(), DBCategory->currentText().trimmed()));
    m_listedCity = city();
    FG1->fill(std::move(rows));
    FG1->setCurrentRow(-1);
    showService(-1);
}

void FrmCityUtil::showService(int row)
{
    m_service = {};
    if (row >= 0 && !city().isEmpty()) {
        const QString sql = u"select * from WIA_CITYUTILITY where id="_s + FG1->textAt(row, u"id"_s);
        const jet::Recordset service = context().info.openRecordset(sql);
        if (service.hasRow())
            m_service = serviceOf(service, 0, context().info, shared().NationalMode);
    }
    const auto show
        = [this](const QString& label, const QString& text) { child<QLabel>(this, label)->setText(text); };
    show(u"lbluname"_s, m_service.name);
    show(u"lbladdress"_s, m_service.address);
    show(u"lblstd"_s, m_service.areaCode);
    for (int phone = 0; phone < 3; ++phone)
        show(u"lblphone%1"_s.arg(phone + 1), m_service.phones.value(phone));
    setPosition(row < 0 ? QString() : u"%1 of %2"_s.arg(row + 1).arg(FG1->rowCount()));
}

void FrmCityUtil::clickService()
{
    if (city().isEmpty())
        inform(tr("Select a city "));
}

void FrmCityUtil::readSaved()
{
    const qint64 current = FG2->currentKey();
    FG2->fill(context().data.openRecordset(savedServicesSql(m_savedBy)));
    if (current == 0 || !FG2->selectKey(current))
        FG2->setCurrentRow(-1);
}

void FrmCityUtil::turnSaved()
{
    m_savedBy = m_savedBy == SavedBy::City ? SavedBy::Utility : SavedBy::City;
    SSCommand4->setText(m_savedBy == SavedBy::City ? tr("View Utility Wise") : tr("View City Wise"));
    readSaved();
}

void FrmCityUtil::copyToBook()
{
    if (DBCombo1->currentText().trimmed().isEmpty())
        return warn(tr("Please select category"));
    if (m_service.id == 0)
        return inform(tr("Record not selected"));
    const ServiceCopy copy{DBCombo1->currentText().trimmed(),
        core::readSettings(context().data).textOrEmpty(u"Priority"), context().services.clock.today()};
    switch (copyService(context().data, m_service, copy, context().schema.textSize(u"cnt_main", u"b_add1"))) {
    case ServiceCopied::AlreadyThere: return warn(tr("This utility already existng in Orvane Contacts"));
    case ServiceCopied::NotStored: return core::tellFailedSave(context());
    case ServiceCopied::Copied: break;
    }
    playSound(core::sounds::Save);
    readSaved();
    context().screens.tellBookChanged(this);
    tellSaved(m_service.name);
}

void FrmCityUtil::call()
{
    const QString number = m_service.numberToDial();
    if (number.isEmpty())
        return inform(tr("No phone numbers to dial"));
    handOverNumber(context(), number, m_service.name);
}

} // namespace telephone
