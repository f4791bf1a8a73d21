#include "transfer/cards/FrmVCF.h"

#include "core/contact_names.h"
#include "core/progress.h"
#include "core/save_cards.h"
#include "core/sound_files.h"
#include "core/vocabularies.h"
#include "platform/drive.h"
#include "platform/message_boxes.h"
#include "transfer/cards/card_list_sql.h"
#include "transfer/cards/export_cards.h"
#include "widgets/button_key.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"
#include "widgets/heading_grid.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>

#include <algorithm>

using namespace Qt::StringLiterals;
using widgets::child;

namespace transfer {

namespace {

constexpr QStringView kFolder = u"C:\\OVUserFiles\\Exported Files\\VCF";
constexpr QStringView kHeadings
    = u"||Category        |Sub                |Name                      |First              |Last           "
      u"|Company                |Priority |Web (home)          |Web (work)          ";
const QStringList kColumns{QString(), u"id"_s, u"category1"_s, u"category2"_s, u"name"_s, u"first"_s,
    u"last"_s, u"company"_s, u"priority"_s, u"h_web"_s, u"b_web"_s};
constexpr int kTickColumn = 1;

enum Tab { kAllTab, kSelectedTab };

// Above this a list of numbers is read in pieces.
constexpr qsizetype kIdsInAStatement = 250;

struct Format {
    const char* text;
    formats::CardVersion version;
    bool isOneFile;
};
/// Behind the form that this program has always written.
constexpr Format kFormats[] = {
    {QT_TRANSLATE_NOOP("transfer::FrmVCF", "vCard 3.0 (one file of all)"), formats::CardVersion::Three, true},
    {QT_TRANSLATE_NOOP("transfer::FrmVCF", "vCard 3.0 (one file each)"), formats::CardVersion::Three, false},
    {QT_TRANSLATE_NOOP("transfer::FrmVCF", "vCard 4.0 (one file of all)"), formats::CardVersion::Four, true},
    {QT_TRANSLATE_NOOP("transfer::FrmVCF", "vCard 4.0 (one file each)"), formats::CardVersion::Four, false},
};

} // namespace

FrmVCF::FrmVCF(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , Grid1(new widgets::HeadingGrid)
    , m_tabs(new QTabBar)
{
    setWindowTitle(tr("Export To VCF"));
    layOut();
    connectControls();
}

FrmVCF::~FrmVCF() = default;

void FrmVCF::layOut()
{
    m_tabs->addTab(tr("View All"));
    m_tabs->addTab(tr("View Selected"));
    m_tabs->setDrawBase(false);
    Grid1->setEmptyText(tr("No contacts here"));
    Grid1->setHeadings(kHeadings, kColumns);
    Grid1->showAs(u"id"_s, [this](const QVariant& id) {
        return m_ticked.contains(id.toLongLong()) ? u"\u2611"_s : u"\u2610"_s;
    });
    widgets::FormKit form(this);
    form.group()
        .combo(u"CmbCategory"_s, tr("Cate&gory"))
        .beside()
        .combo(u"CmbSubCategory"_s, tr("S&ub category"))
        .beside()
        .fixedCombo(u"CmbPriority"_s, tr("&Priority"))
        .wide(u"TabView"_s, tr("Which contacts are listed"), m_tabs)
        .wide(u"Grid1"_s, tr("Contacts; the blank key ticks one"), Grid1)
        .check(u"ChkSelect"_s, tr("SelectAll"))
        .beside()
        .caption(u"lblCount"_s)
        .fixedCombo(u"CmbFormat"_s, tr("&Write as"))
        .hint(tr("3.0 and 4.0 hold all that is known of a contact, with the picture, for telephones and mail "
                 "programs of today"));
    form.buttonRow()
        .button(u"CmdHelp"_s, tr("Help"), u"help", tr("What this screen is for"))
        .stretch()
        .button(u"CmdSave"_s, tr("&Save"), u"save", tr("Write the contacts that are ticked (Ctrl+S)"))
        .button(u"CmdExit"_s, tr("Close"), u"exit", tr("Close the screen (Esc)"));
    m_category = child<widgets::FilledCombo>(this, u"CmbCategory"_s);
    m_subcategory = child<widgets::FilledCombo>(this, u"CmbSubCategory"_s);
    m_priority = child<widgets::FilledCombo>(this, u"CmbPriority"_s);
    m_format = child<widgets::FilledCombo>(this, u"CmbFormat"_s);
    ChkSelect = child<QCheckBox>(this, u"ChkSelect"_s);
    m_count = child<QLabel>(this, u"lblCount"_s);
    setFocusProxy(Grid1);
}

void FrmVCF::connectControls()
{
    connect(m_category, &QComboBox::currentTextChanged, this, [this] {
        m_subcategory->refill();
        m_subcategory->setText(u"All"_s);
        readList();
    });
    for (widgets::FilledCombo* combo : {m_subcategory, m_priority})
        connect(combo, &QComboBox::currentTextChanged, this, &FrmVCF::readList);
    connect(m_tabs, &QTabBar::currentChanged, this, &FrmVCF::chooseTab);
    connect(Grid1, &QTableView::clicked, this, [this](const QModelIndex& index) {
        if (index.column() == kTickColumn)
            toggle(index.row());
    });
    connect(Grid1, &widgets::HeadingGrid::chosen, this, &FrmVCF::toggle);
    Grid1->installEventFilter(this);
    connect(ChkSelect, &QCheckBox::clicked, this, &FrmVCF::tickAll);
    auto* help = child<QPushButton>(this, u"CmdHelp"_s);
    connect(help, &QPushButton::clicked, this, [this, help] { showHelp(u"CON0073"_s, help); });
    auto* saveButton = child<QPushButton>(this, u"CmdSave"_s);
    widgets::setKey(saveButton, QKeySequence::Save);
    connect(saveButton, &QPushButton::clicked, this, &FrmVCF::save);
    connect(child<QPushButton>(this, u"CmdExit"_s), &QPushButton::clicked, this, &Screen::closeRequested);
}

void FrmVCF::load()
{
    setFrameTitle(windowTitle());
    const auto withAll = [this](const QString& sql) {
        return QStringList{u"All"_s} + core::firstColumn(context().data, sql);
    };
    m_category->setSource([withAll] { return withAll(cardCategoriesSql()); });
    m_subcategory->setSource(
        [this, withAll] { return withAll(cardSubcategoriesSql(m_category->currentText())); });
    m_priority->setValues({u"All"_s, u"1"_s, u"2"_s, u"3"_s, u"4"_s});
    QStringList formatNames{tr("vCard 2.1 (one file each)")};
    for (const Format& format : kFormats)
        formatNames << tr(format.text);
    m_format->setValues(formatNames);
    m_format->setCurrentIndex(0);
    for (widgets::FilledCombo* combo : {m_category, m_subcategory, m_priority}) {
        const QSignalBlocker quiet(combo);
        combo->setText(u"All"_s);
    }
    readList();
}

// Contacts that are gone are ticked no more.
void FrmVCF::bookChanged()
{
    if (!m_ticked.isEmpty()) {
        QSet<qint64> there;
        const jet::Recordset all = context().data.openRecordset(u"select id from cnt_main"_s);
        for (int row = 0; row < all.count(); ++row)
            there.insert(all.keyAt(row));
        m_ticked.intersect(there);
    }
    if (m_tabs->currentIndex() == kSelectedTab && !m_ticked.isEmpty())
        showTicked();
    else
        readList();
}

void FrmVCF::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT closeRequested();
    else
        Screen::keyPressEvent(event);
}

bool FrmVCF::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == Grid1 && event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space) {
        toggle(Grid1->currentRow());
        return true;
    }
    return Screen::eventFilter(watched, event);
}

void FrmVCF::readList()
{
    const QSignalBlocker quiet(m_tabs);
    m_tabs->setCurrentIndex(kAllTab);
    Grid1->fill(context().data.openRecordset(
        cardListSql(m_category->currentText(), m_subcategory->currentText(), m_priority->currentText())));
    followTicks();
}

void FrmVCF::chooseTab(int tab)
{
    if (tab == kAllTab)
        return readList();
    if (!m_ticked.isEmpty())
        return showTicked();
    readList();
    inform(tr("Record not selected"));
}

void FrmVCF::showTicked()
{
    const QList<qint64> ids = tickedIds();
    if (ids.size() <= kIdsInAStatement) {
        Grid1->fill(context().data.openRecordset(cardListOfSql(ids)));
        return followTicks();
    }
    QList<QStringList> texts;
    const QStringList names = kColumns.mid(1);
    for (qsizetype at = 0; at < ids.size(); at += kIdsInAStatement) {
        const jet::Recordset rows
            = context().data.openRecordset(cardListOfSql(ids.mid(at, kIdsInAStatement)));
        for (int row = 0; row < rows.count(); ++row) {
            QStringList cells;
            for (int column = 0; column < names.size(); ++column)
                cells << rows.textAt(row, column);
            texts << cells;
        }
    }
    Grid1->setRows(texts, names);
    followTicks();
}

void FrmVCF::toggle(int row)
{
    const qint64 id = Grid1->keyAt(row);
    if (id == 0)
        return;
    if (!m_ticked.remove(id))
        m_ticked.insert(id);
    followTicks();
}

void FrmVCF::tickAll(bool ticked)
{
    for (int row = 0; row < Grid1->rowCount(); ++row) {
        if (ticked)
            m_ticked.insert(Grid1->keyAt(row));
        else
            m_ticked.remove(Grid1->keyAt(row));
    }
    followTicks();
}

void FrmVCF::followTicks()
{
    Grid1->viewport()->update();
    int here = 0;
    if (!m_ticked.isEmpty()) {
        for (int row = 0; row < Grid1->rowCount(); ++row)
            here += m_ticked.contains(Grid1->keyAt(row)) ? 1 : 0;
    }
    ChkSelect->setChecked(here > 0 && here == Grid1->rowCount());
    m_count->setText(here == m_ticked.size() ? tr("%1 ticked").arg(m_ticked.size())
                                             : tr("%1 ticked, %2 of them are not in this list")
                                                   .arg(m_ticked.size())
                                                   .arg(m_ticked.size() - here));
}

QList<qint64> FrmVCF::tickedIds() const
{
    QList<qint64> ids(m_ticked.begin(), m_ticked.end());
    std::sort(ids.begin(), ids.end());
    return ids;
}

void FrmVCF::save()
{
    const QList<qint64> ids = tickedIds();
    if (ids.isEmpty())
        return inform(tr("Record not selected"));
    const int format = m_format->currentIndex() - 1;
    if (format >= 0)
        return saveWhole(ids, format);
    QStringList numbers;
    for (const qint64 id : ids)
        numbers << QString::number(id);
    if (core::saveCards(context(), numbers.join(u','), kFolder.toString(), this, tr("VCF File Saved to %1"))
        > 0)
        playSound(core::sounds::Save);
}

void FrmVCF::saveWhole(const QList<qint64>& ids, int format)
{
    CardExport target{kFormats[format].version, {}, kFolder.toString()};
    if (kFormats[format].isOneFile) {
        const platform::Drive& drive = context().services.drive;
        drive.ensureFolder(kFolder);
        const auto file = context().services.boxes.saveFile(
            tr("Export To VCF"), u"VCF (*.vcf)|*.vcf"_s, {drive.local(kFolder), u"Contacts.vcf"_s});
        if (!file)
            return;
        target.file = *file;
    }
    const QString where = target.file.isEmpty() ? target.folder : target.file;
    const formats::CardColumns columns(*context().schema.table(u"cnt_main"), core::nameViews());
    const core::CardsWritten result = [&] {
        const int count = static_cast<int>(ids.size());
        core::Progress progress(u"cardProgress"_s, tr("Export To VCF"),
            tr("Saving the cards of %1 contacts").arg(count), count, this);
        return exportCards(context().data, context().services.drive, columns, ids, target,
            [&progress](int done) { return progress.advance(done); });
    }();
    if (!result.stoppedBy.isEmpty())
        return warn(
            tr("%1 of %2 cards were saved to %3. No more could be written: %4.")
                .arg(QString::number(result.written), QString::number(ids.size()), where, result.stoppedBy));
    if (result.stopped)
        return inform(tr("Stopped. %1 of %2 cards were saved to %3")
                          .arg(QString::number(result.written), QString::number(ids.size()), where));
    playSound(core::sounds::Save);
    inform(
        tr("VCF File Saved to %1").arg(where) + u"\n\n"_s + tr("Contacts written: %1").arg(result.written));
    if (result.failed > 0)
        warn(tr("%1 VCF files could not be written in %2.").arg(result.failed).arg(where));
}

} // namespace transfer
