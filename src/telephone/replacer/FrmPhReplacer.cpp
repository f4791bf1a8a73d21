#include "telephone/replacer/FrmPhReplacer.h"

#include "core/screens.h"
#include "core/sql_text.h"
#include "core/vocabularies.h"
#include "telephone/replacer/replace_preview.h"
#include "telephone/replacer/replacer_lists.h"
#include "telephone/search/number_union.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"
#include "widgets/heading_grid.h"
#include "widgets/theme.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace telephone {

namespace {

using widgets::child;

constexpr int kTypingMs = 150;
/// What is replaced and by what, tab by tab.
constexpr const char16_t* kBoxes[][2]
    = {{u"txtFind", u"txtreplace"}, {u"txtFstd", u"txtRstd"}, {u"txtFcity", u"txtRcity"}};

ReplacedPart partOf(const QTabWidget* tabs)
{
    return static_cast<ReplacedPart>(tabs->currentIndex());
}

} // namespace

FrmPhReplacer::FrmPhReplacer(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , SSActiveTabs1(new QTabWidget)
    , FG2(new widgets::HeadingGrid)
    , FGStd(new widgets::HeadingGrid)
    , FGCity(new widgets::HeadingGrid)
    , ChkPreview(makePreviewBox(context, this))
    , m_count(new QLabel)
    , m_typing(new QTimer(this))
{
    setWindowTitle(tr("Replace Phone number, Phone codes & Cities"));
    SSActiveTabs1->setObjectName(u"SSActiveTabs1"_s);
    SSActiveTabs1->addTab(layOutNumbers(), tr("Numbers"));
    SSActiveTabs1->addTab(layOutCodes(), tr("Codes"));
    SSActiveTabs1->addTab(layOutCities(), tr("Cities"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(SSActiveTabs1, 1);
    layOutFoot();
    m_typing->setSingleShot(true);
    m_typing->setInterval(kTypingMs);
    connect(m_typing, &QTimer::timeout, this, &FrmPhReplacer::search);
    for (const QString& name : {u"txtFind"_s, u"txtFstd"_s, u"txtFcity"_s})
        connect(child<QLineEdit>(this, name), &QLineEdit::textEdited, m_typing, qOverload<>(&QTimer::start));
    connect(DBCombo1, &QComboBox::currentTextChanged, m_typing, qOverload<>(&QTimer::start));
    connect(SSActiveTabs1, &QTabWidget::currentChanged, this, &FrmPhReplacer::search);
    for (int part = 0; part < SSActiveTabs1->count(); ++part)
        child<QLineEdit>(this, QString::fromUtf16(kBoxes[part][1]))
            ->setMaxLength(longestNew(static_cast<ReplacedPart>(part), context.schema));
    for (const QString& name : {u"cmdreplace"_s, u"CmdStdReplace"_s, u"CmdCity"_s})
        connect(child<QPushButton>(this, name), &QPushButton::clicked, this, &FrmPhReplacer::replace);
    setFocusProxy(child<QLineEdit>(this, u"txtFind"_s));
}

QWidget* FrmPhReplacer::layOutNumbers()
{
    auto* page = new QWidget;
    FG2->setHeadings(
        u"           |Tel:Number            |Name                         |Category                   ",
        {QString(), u"phone"_s, u"name"_s, u"category1"_s});
    widgets::FormKit form(page);
    form.group()
        .line(u"txtFind"_s, tr("&Number begins with"))
        .beside()
        .line(u"txtreplace"_s, tr("Replace b&y"))
        .beside()
        .combo(u"DBCombo1"_s, tr("&City"))
        .hint(tr("Only the numbers of this city; leave it empty for all"))
        .wide(u"FG2"_s, tr("Numbers that begin so"), FG2);
    DBCombo1 = child<widgets::FilledCombo>(page, u"DBCombo1"_s);
    return page;
}

QWidget* FrmPhReplacer::layOutCodes()
{
    auto* page = new QWidget;
    FGStd->setHeadings(u"    |Phone Code         |City                   |Name                           ",
        {QString(), u"std"_s, u"h_city"_s, u"name"_s});
    widgets::FormKit form(page);
    form.group()
        .line(u"txtFstd"_s, tr("Old c&ode"))
        .beside()
        .line(u"txtRstd"_s, tr("Ne&w code"))
        .beside()
        .button(u"CmdStdReplace"_s, tr("Replace"), u"save", tr("Replace the code in all contacts"))
        .wide(u"FGStd"_s, tr("Codes that begin so"), FGStd);
    return page;
}

QWidget* FrmPhReplacer::layOutCities()
{
    auto* page = new QWidget;
    FGCity->setHeadings(
        u"    |City                   |Category                  |Name                           ",
        {QString(), u"city"_s, u"category1"_s, u"name"_s});
    widgets::FormKit form(page);
    form.group()
        .line(u"txtFcity"_s, tr("&Old city"))
        .beside()
        .line(u"txtRcity"_s, tr("Ne&w city"))
        .beside()
        .button(u"CmdCity"_s, tr("Replace"), u"save", tr("Replace the city in all contacts"))
        .wide(u"FGCity"_s, tr("Cities that begin so"), FGCity);
    return page;
}

void FrmPhReplacer::layOutFoot()
{
    auto* foot = new QWidget;
    auto* row = new QHBoxLayout(foot);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(12);
    const auto button = [&](const QString& name, const QString& text, QStringView icon) {
        auto* made = new QPushButton(text);
        made->setObjectName(name);
        made->setAutoDefault(false);
        widgets::setIcon(made, icon);
        return made;
    };
    QPushButton* help = button(u"CmdHelp"_s, tr("Help"), u"help");
    QPushButton* go = button(u"cmdreplace"_s, tr("&Replace"), u"save");
    go->setToolTip(tr("Replace what the tab in front says, in all contacts"));
    m_count->setForegroundRole(QPalette::PlaceholderText);
    m_count->setAccessibleName(tr("Entries listed"));
    row->addWidget(help);
    row->addWidget(m_count);
    row->addStretch(1);
    row->addWidget(ChkPreview);
    row->addWidget(go);
    layout()->addWidget(foot);
    connect(help, &QPushButton::clicked, this, [this, help] { showHelp(u"CON0064"_s, help); });
}

void FrmPhReplacer::load()
{
    setFrameTitle(windowTitle());
    setPosition(u"Replacer"_s);
    DBCombo1->setSource(
        [this] { return QStringList{u"All"_s} + core::firstColumn(context().data, allCitiesSql()); });
    search();
}

void FrmPhReplacer::bookChanged()
{
    DBCombo1->refill();
    search();
}

// The preview can be switched off in its own dialog, also by another screen.
void FrmPhReplacer::showEvent(QShowEvent* event)
{
    followPreviewSetting(context(), ChkPreview);
    Screen::showEvent(event);
}

QString FrmPhReplacer::typed(const QString& field) const
{
    return child<QLineEdit>(this, field)->text();
}

Replacement FrmPhReplacer::entered() const
{
    switch (partOf(SSActiveTabs1)) {
    case ReplacedPart::Codes: return {ReplacedPart::Codes, typed(u"txtFstd"_s), typed(u"txtRstd"_s)};
    case ReplacedPart::Cities: return {ReplacedPart::Cities, typed(u"txtFcity"_s), typed(u"txtRcity"_s)};
    case ReplacedPart::Numbers: break;
    }
    const QString city = DBCombo1->currentText();
    return {ReplacedPart::Numbers, typed(u"txtFind"_s), typed(u"txtreplace"_s),
        core::isAll(city) ? QString() : city};
}

// Only the list in front is read.
void FrmPhReplacer::search()
{
    m_typing->stop();
    const Replacement now = entered();
    switch (now.part) {
    case ReplacedPart::Codes: return fill(now.from.isEmpty() ? codesSql() : codesBeginningSql(now.from));
    case ReplacedPart::Cities: return fill(now.from.isEmpty() ? citiesSql() : citiesBeginningSql(now.from));
    case ReplacedPart::Numbers: break;
    }
    if (!now.from.isEmpty())
        return fill(numbersBeginningSql(now.from, now.city));
    FG2->clearRows();
    FG2->setEmptyText(tr("Enter how the numbers begin"));
    m_count->clear();
}

// What is no pattern leaves the list as it was.
void FrmPhReplacer::fill(const QString& sql)
{
    jet::Recordset rows = context().data.openRecordset(sql);
    if (!rows.isValid())
        return;
    widgets::HeadingGrid* const grids[] = {FG2, FGStd, FGCity};
    widgets::HeadingGrid* grid = grids[SSActiveTabs1->currentIndex()];
    grid->setEmptyText(tr("Nothing begins so"));
    grid->fill(std::move(rows));
    m_count->setText(grid->rowCount() == 1 ? tr("1 entry") : tr("%1 entries").arg(grid->rowCount()));
}

void FrmPhReplacer::replace()
{
    m_typing->stop();
    const Replacement wanted = entered();
    const bool lacksOld = wanted.from.trimmed().isEmpty();
    if (lacksOld || wanted.to.trimmed().isEmpty()) {
        const auto& [from, to] = kBoxes[SSActiveTabs1->currentIndex()];
        return child<QLineEdit>(this, QString::fromUtf16(lacksOld ? from : to))->setFocus();
    }
    const bool isDone = replaceWithPreview(context(), wanted, this);
    followPreviewSetting(context(), ChkPreview);
    if (!isDone)
        return;
    DBCombo1->refill();
    context().screens.tellBookChanged(this);
    showReplaced(wanted);
}

// Once the numbers are replaced the boxes are blank, and a blank beginning finds all of them.
void FrmPhReplacer::showReplaced(const Replacement& done)
{
    switch (done.part) {
    case ReplacedPart::Codes: return fill(codesBeginningSql(done.to));
    case ReplacedPart::Cities: return fill(contactsOfCitySql(done.to));
    case ReplacedPart::Numbers: break;
    }
    child<QLineEdit>(this, u"txtFind"_s)->clear();
    child<QLineEdit>(this, u"txtreplace"_s)->clear();
    fill(numbersBeginningSql({}, done.city));
}

} // namespace telephone
