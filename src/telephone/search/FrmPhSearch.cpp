#include "telephone/search/FrmPhSearch.h"

#include "core/contact_tools.h"
#include "core/list_presenter.h"
#include "core/report_request.h"
#include "core/screens.h"
#include "core/sql_text.h"
#include "core/vocabularies.h"
#include "telephone/own_city.h"
#include "telephone/replacer/replace_preview.h"
#include "telephone/search/number_union.h"
#include "telephone/search/phone_search_tools.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"
#include "widgets/heading_grid.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace telephone {

namespace {

using widgets::child;

constexpr int kTypingMs = 150;
constexpr int kKeptPieces = 10;
constexpr QStringView kHeadings
    = u"           |Tel:Number            |Name                            |Category           ";

} // namespace

FrmPhSearch::FrmPhSearch(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , m_tools(new core::ContactTools(context, phoneSearchTools(),
          {.callerForm = u"FrmPhSearch"_s,
              .chosen =
                  [this] {
                      const qint64 id = FG2->currentKey();
                      return core::ChosenContact{id, id};
                  }},
          this))
    , FG2(new widgets::HeadingGrid)
    , m_list(new core::ListPresenter(context.data, FG2, this))
    , m_typing(new QTimer(this))
{
    setWindowTitle(tr("Phone Search"));
    layOut();
    connectTools();
    m_typing->setSingleShot(true);
    m_typing->setInterval(kTypingMs);
    connect(m_typing, &QTimer::timeout, this, &FrmPhSearch::search);
    for (widgets::FilledCombo* combo : {Combo1, DBCombo1})
        connect(combo, &QComboBox::currentTextChanged, m_typing, qOverload<>(&QTimer::start));
    connect(m_list, &core::ListPresenter::currentChanged, this, &FrmPhSearch::rowChanged);
    txtreplace->setMaxLength(longestNew(ReplacedPart::Numbers, context.schema));
    setFocusProxy(DBCombo1);
}

void FrmPhSearch::layOut()
{
    FG2->setHeadings(kHeadings, {QString(), u"phone"_s, u"name"_s, u"category1"_s});
    FG2->setEmptyText(tr("No number is found"));
    auto* page = new QWidget;
    widgets::FormKit form(page);
    form.group()
        .combo(u"DBCombo1"_s, tr("&Enter Tele Code"))
        .hint(tr("A piece of the number, looked for in all cities"))
        .beside()
        .combo(u"Combo1"_s, tr("&City"))
        .hint(tr("The numbers of this city; leave it empty for all"))
        .beside()
        .button(u"CmdRefresh"_s, tr("Refresh"), u"restore", tr("Show all numbers of your own city (F5)"))
        .caption(u"lblCount"_s)
        .wide(u"FG2"_s, tr("Numbers that are found"), FG2);
    form.group(tr("Change the beginning of the numbers of this city"))
        .line(u"txtFind"_s, tr("&Old beginning"))
        .beside()
        .line(u"txtreplace"_s, tr("&New beginning"))
        .beside()
        .button(u"cmdreplace"_s, tr("&Replace"), u"save", tr("Change all numbers of the city that begin so"));
    form.buttonRow()
        .button(u"CmdHelp"_s, tr("Help"), u"help")
        .stretch()
        .button(u"cmdgoto"_s, tr("View all linked data"), u"link");
    Combo1 = child<widgets::FilledCombo>(page, u"Combo1"_s);
    DBCombo1 = child<widgets::FilledCombo>(page, u"DBCombo1"_s);
    txtFind = child<QLineEdit>(page, u"txtFind"_s);
    txtreplace = child<QLineEdit>(page, u"txtreplace"_s);
    m_count = child<QLabel>(page, u"lblCount"_s);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_tools->makeToolBar(this));
    layout->addWidget(page, 1);
}

void FrmPhSearch::connectTools()
{
    const auto onClick = [this](const QString& name, auto act) {
        connect(child<QPushButton>(this, name), &QPushButton::clicked, this, act);
    };
    onClick(u"CmdRefresh"_s, [this] { clearSearch(); });
    onClick(u"cmdreplace"_s, [this] { replacePrefix(); });
    onClick(u"CmdHelp"_s, [this] { showHelp(u"CON0065"_s, child<QPushButton>(this, u"CmdHelp"_s)); });
    QAction* details = m_tools->action(u"Details");
    auto* goTo = child<QPushButton>(this, u"cmdgoto"_s);
    goTo->setEnabled(details->isEnabled());
    goTo->setToolTip(details->toolTip());
    connect(goTo, &QPushButton::clicked, details, &QAction::trigger);
    connect(m_tools->action(u"Refresh"), &QAction::triggered, this, &FrmPhSearch::clearSearch);
    connect(m_tools->action(u"Print"), &QAction::triggered, this, [this] {
        const QString report = u"Phone List"_s;
        core::requestReport(context(), report, core::reportNote(report));
    });
    connect(FG2, &widgets::HeadingGrid::chosen, m_tools->action(u"FullView"), &QAction::trigger);
    QMenu* menu = m_tools->makeMenu(u"NumberMenu"_s, this);
    FG2->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(FG2, &QWidget::customContextMenuRequested, this, [this, menu](const QPoint& at) {
        if (FG2->currentRow() >= 0)
            menu->popup(FG2->viewport()->mapToGlobal(at));
    });
}

void FrmPhSearch::load()
{
    setFrameTitle(windowTitle());
    Combo1->setSource(
        [this] { return QStringList{u"All"_s} + core::firstColumn(context().data, homeCitiesSql()); });
    DBCombo1->setSource([this] { return m_pieces; });
    clearSearch();
}

void FrmPhSearch::bookChanged()
{
    Combo1->refill();
    m_list->refresh();
    showCount();
}

QString FrmPhSearch::city() const
{
    const QString text = Combo1->currentText();
    return core::isAll(text) ? QString() : text;
}

// What is no pattern leaves the list as it was.
void FrmPhSearch::search()
{
    m_typing->stop();
    const QString piece = DBCombo1->currentText();
    if (!m_list->open(numbersSql(city(), piece)))
        return;
    if (!piece.isEmpty() && FG2->rowCount() > 0 && !m_pieces.contains(piece)) {
        if (!m_pieces.isEmpty() && piece.startsWith(m_pieces.constFirst()))
            m_pieces.removeFirst(); // it was only on the way
        m_pieces.prepend(piece);
        m_pieces = m_pieces.mid(0, kKeptPieces);
        DBCombo1->refill();
    }
    showCount();
}

void FrmPhSearch::clearSearch()
{
    Combo1->setText(ownCity(context().data));
    DBCombo1->setText({});
    search();
}

void FrmPhSearch::showCount()
{
    const QString piece = DBCombo1->currentText();
    const QString count = QString::number(FG2->rowCount());
    m_count->setText(!piece.isEmpty() ? tr("%1 numbers with %2, in all cities").arg(count, piece)
            : city().isEmpty()        ? tr("%1 numbers").arg(count)
                                      : tr("%1 numbers in %2").arg(count, city()));
    setPosition(m_list->position());
}

void FrmPhSearch::rowChanged()
{
    m_tools->select(FG2->currentKey());
    setPosition(m_list->position());
}

void FrmPhSearch::replacePrefix()
{
    const Replacement wanted{ReplacedPart::Numbers, txtFind->text(), txtreplace->text(), city()};
    for (QLineEdit* line : {txtFind, txtreplace}) {
        if (line->text().trimmed().isEmpty())
            return line->setFocus();
    }
    if (wanted.city.isEmpty())
        return inform(tr("Choose the city whose numbers change. The replacer changes those of all cities."));
    if (!replaceWithPreview(context(), wanted, this))
        return;
    txtFind->clear();
    txtreplace->clear();
    m_list->refresh();
    showCount();
    context().screens.tellBookChanged(this);
}

} // namespace telephone
