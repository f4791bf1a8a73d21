#include "transfer/cards/FormCardImport.h"

#include "core/contact_names.h"
#include "core/date_patterns.h"
#include "core/frame.h"
#include "core/progress.h"
#include "core/save_failure.h"
#include "core/screens.h"
#include "core/settings.h"
#include "core/sound_files.h"
#include "core/take_back.h"
#include "platform/clock.h"
#include "platform/message_boxes.h"
#include "transfer/cards/incoming_list.h"
#include "transfer/cards/likely_duplicates.h"
#include "transfer/cards/store_cards.h"
#include "widgets/button_key.h"
#include "widgets/fields.h"
#include "widgets/form_kit.h"
#include "widgets/heading_grid.h"

#include <QCheckBox>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QHeaderView>
#include <QImageReader>
#include <QKeyEvent>
#include <QLabel>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSplitter>
#include <QTableView>
#include <QTabWidget>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using widgets::child;

namespace transfer {

namespace {

constexpr QStringView kLeftHeadings = u"From                            |Contact                   |What "
                                      u"does not come in, and why             "
                                      u"        ";
// Below this much nobody would have time to read how far it is.
constexpr int kKilobytesAtOnce = 2000;
constexpr int kCardsAtOnce = 2000;
constexpr qint64 kMostPixels = 100'000'000;

/// By what stands at its beginning: to read thousands of pictures whole would take minutes, and one that is
/// damaged further on is shown as such.
bool isPicture(const QString& file)
{
    QImageReader reader(file);
    const QSize size = reader.canRead() ? reader.size() : QSize();
    return size.isValid() && qint64(size.width()) * size.height() <= kMostPixels;
}

formats::CardColumns columnsOf(const jet::Schema& schema)
{
    return formats::CardColumns(*schema.table(u"cnt_main"), core::nameViews());
}

} // namespace

FormCardImport::FormCardImport(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , m_list(new IncomingList(core::datePattern(context.shared.NationalMode), this))
    , m_cards(new QTableView)
    , m_left(new widgets::HeadingGrid)
    , m_detail(new QPlainTextEdit)
{
    setWindowTitle(tr("Import vCards"));
    setAcceptDrops(true);
    layOut();
    connectControls();
}

FormCardImport::~FormCardImport() = default;

void FormCardImport::layOut()
{
    m_cards->setObjectName(u"GridCards"_s);
    m_cards->setAccessibleName(tr("Cards; the blank key ticks one"));
    m_cards->setModel(m_list);
    m_cards->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_cards->setSelectionMode(QAbstractItemView::SingleSelection);
    m_cards->setTabKeyNavigation(false);
    m_cards->setWordWrap(false);
    m_cards->setShowGrid(false);
    m_cards->setAlternatingRowColors(true);
    m_cards->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_cards->horizontalHeader()->setHighlightSections(false);
    m_cards->verticalHeader()->hide();
    m_cards->horizontalHeader()->setStretchLastSection(true);
    m_cards->setColumnWidth(0, 200);
    m_cards->setColumnWidth(1, 160);
    m_detail->setObjectName(u"TxtDetail"_s);
    m_detail->setAccessibleName(tr("What the card stores"));
    m_detail->setReadOnly(true);
    m_detail->setTabChangesFocus(true);
    m_left->setObjectName(u"GridLeft"_s);
    m_left->setAccessibleName(tr("What does not come in"));
    m_left->setEmptyText(tr("Everything comes in."));
    m_left->setHeadings(kLeftHeadings, {u"source"_s, u"name"_s, u"why"_s});
    auto* both = new QSplitter;
    both->setChildrenCollapsible(false);
    both->addWidget(m_cards);
    both->addWidget(m_detail);
    both->setStretchFactor(0, 3);
    both->setStretchFactor(1, 1);
    m_pages = new QTabWidget;
    m_pages->addTab(both, tr("Cards"));
    m_pages->addTab(m_left, tr("Not taken"));
    widgets::FormKit form(this);
    form.group(tr("vCards of telephones and other programs"))
        .button(u"CmdFiles"_s, tr("Choose &files..."), u"file", tr("One or several vCard files (Ctrl+O)"))
        .button(
            u"CmdFolder"_s, tr("Choose a fol&der..."), u"folder", tr("All vCard files in and below a folder"))
        .caption(u"lblHint"_s, tr("Files and folders can be dropped here as well."))
        .wide(u"Pages"_s, tr("Cards, and what does not come in"), m_pages)
        .check(u"ChkAll"_s, tr("Tick &all, also those that may be there already"))
        .beside()
        .caption(u"lblSummary"_s);
    form.buttonRow()
        .stretch()
        .button(u"CmdImport"_s, tr("&Import"), u"import", tr("Store the contacts that are ticked (Ctrl+S)"))
        .button(u"CmdExit"_s, tr("Close"), u"exit", tr("Close the screen (Esc)"));
    m_summary = child<QLabel>(this, u"lblSummary"_s);
    m_summary->setTextFormat(Qt::PlainText);
    m_all = child<QCheckBox>(this, u"ChkAll"_s);
    m_import = child<QPushButton>(this, u"CmdImport"_s);
    widgets::setKey(child<QPushButton>(this, u"CmdFiles"_s), QKeySequence::Open);
    widgets::setKey(m_import, QKeySequence::Save);
    setFocusProxy(child<QPushButton>(this, u"CmdFiles"_s));
}

void FormCardImport::connectControls()
{
    const auto onClick = [this](const QString& name, auto handler) {
        connect(child<QPushButton>(this, name), &QPushButton::clicked, this, handler);
    };
    onClick(u"CmdFiles"_s, &FormCardImport::chooseFiles);
    onClick(u"CmdFolder"_s, &FormCardImport::chooseFolder);
    onClick(u"CmdImport"_s, &FormCardImport::import);
    onClick(u"CmdExit"_s, &Screen::closeRequested);
    m_cards->installEventFilter(this);
    connect(m_all, &QCheckBox::clicked, m_list, &IncomingList::tickAll);
    connect(m_list, &IncomingList::ticked, this, &FormCardImport::followTicks);
    connect(m_cards->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
        [this](const QModelIndex& now) { m_detail->setPlainText(m_list->detail(now.row())); });
}

void FormCardImport::load()
{
    setFrameTitle(windowTitle());
    show({});
}

bool FormCardImport::mayClose()
{
    return !m_isBusy;
}

void FormCardImport::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT closeRequested();
    else
        Screen::keyPressEvent(event);
}

// Whatever column of the row is the current one.
bool FormCardImport::eventFilter(QObject* watched, QEvent* event)
{
    const bool isSpace = watched == m_cards && event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space;
    if (!isSpace || !m_cards->currentIndex().isValid())
        return Screen::eventFilter(watched, event);
    const QModelIndex tick = m_cards->currentIndex().siblingAtColumn(0);
    const bool isTicked = tick.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    m_list->setData(tick, isTicked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
    return true;
}

void FormCardImport::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void FormCardImport::dropEvent(QDropEvent* event)
{
    QStringList files;
    for (const QUrl& url : event->mimeData()->urls()) {
        if (url.isLocalFile())
            files << url.toLocalFile();
    }
    event->acceptProposedAction();
    // The program that they come from waits until the drop is over.
    QMetaObject::invokeMethod(
        this, [this, files] { openFiles(files); }, Qt::QueuedConnection);
}

void FormCardImport::chooseFiles()
{
    const auto files
        = context().services.boxes.openFiles(tr("Import vCards"), u"VCF (*.vcf)|*.vcf|*.*|*.*"_s);
    if (files)
        openFiles(*files);
}

void FormCardImport::chooseFolder()
{
    const auto folder = context().services.boxes.folder(tr("Folder of the vCard files"));
    if (folder)
        openFiles({*folder});
}

void FormCardImport::openFiles(const QStringList& files)
{
    if (m_isBusy) {
        m_waiting += files;
        return;
    }
    QStringList all;
    for (const QString& file : files) {
        if (QFileInfo(file).isDir())
            all += cardFilesBelow(file);
        else
            all << file;
    }
    if (all.isEmpty())
        return inform(tr("There is no vCard file."));
    read(all);
    if (!m_waiting.isEmpty())
        openFiles(std::exchange(m_waiting, {}));
}

void FormCardImport::read(const QStringList& files)
{
    m_photos = std::make_shared<QTemporaryDir>();
    qint64 bytes = 0;
    for (const QString& file : files)
        bytes += QFileInfo(file).size();
    IncomingCards cards;
    {
        const QScopedValueRollback<bool> busy(m_isBusy, true);
        const int kilobytes = int(std::min<qint64>(bytes / 1024, INT_MAX));
        core::Progress progress(u"cardImportProgress"_s, tr("Import vCards"),
            tr("Reading %n files", nullptr, int(files.size())), kilobytes, this, kKilobytesAtOnce);
        cards = readCardFiles(files, columnsOf(context().schema),
            {m_photos->path(), isPicture, [&progress, kilobytes](qint64 done) {
                 return progress.advance(int(std::min<qint64>(done / 1024, kilobytes)));
             }});
        markLikelyDuplicates(context().data, cards);
    }
    const bool isStopped = cards.isStopped;
    show(std::move(cards));
    if (isStopped)
        inform(tr("Stopped. What was read until then is shown; nothing is stored yet."));
}

void FormCardImport::show(IncomingCards cards)
{
    QList<QStringList> left;
    for (const LeftCard& one : cards.left)
        left << QStringList{one.source, one.name.simplified(), one.why};
    m_left->setRows(left, {u"source"_s, u"name"_s, u"why"_s});
    m_pages->setTabText(1, cards.leftCount > 0 ? tr("Not taken (%1)").arg(cards.leftCount) : tr("Not taken"));
    m_pages->setTabText(0, tr("Cards (%1)").arg(cards.cards.size()));
    m_pages->setCurrentIndex(cards.cards.empty() && cards.leftCount > 0 ? 1 : 0);
    m_list->setCards(std::move(cards));
    m_detail->clear();
    if (m_list->rowCount() > 0) {
        m_cards->selectRow(0);
        m_cards->setFocus();
    }
}

void FormCardImport::followTicks()
{
    const int cards = m_list->rowCount();
    const int like = m_list->likeCount();
    QString text
        = cards == 0 ? QString() : tr("%1 of %2 cards will be stored.").arg(m_list->tickedCount()).arg(cards);
    if (like > 0)
        text += u' ' + tr("%1 may be there already.").arg(like);
    m_summary->setText(text);
    m_all->setEnabled(cards > 0);
    m_all->setChecked(cards > 0 && m_list->tickedCount() == cards);
    m_import->setEnabled(m_list->tickedCount() > 0);
}

void FormCardImport::import()
{
    const jet::Recordset settings = core::readSettings(context().data);
    StoreOptions options{context().services.clock.today(), settings.textOrEmpty(u"Priority"),
        settings.flag(u"UpdOutllook"), m_photos, {}};
    StoredCards stored;
    {
        const QScopedValueRollback<bool> busy(m_isBusy, true);
        core::Progress progress(u"cardImportProgress"_s, tr("Import vCards"),
            tr("Storing %1 contacts").arg(m_list->tickedCount()), m_list->tickedCount(), this, kCardsAtOnce);
        options.progress = [&progress](int done) { return progress.advance(done); };
        stored = storeCards(
            context().data, context().services.drive, columnsOf(context().schema), m_list->cards(), options);
    }
    if (stored.isStopped)
        inform(tr("Stopped. Nothing was stored."));
    else if (stored.added == 0)
        core::tellFailedSave(context());
    else
        tellStored(stored.added, stored.photosLost);
    if (!m_waiting.isEmpty())
        openFiles(std::exchange(m_waiting, {}));
}

// The list of what did not come in stays for the person to read.
void FormCardImport::tellStored(int added, int photosLost)
{
    const IncomingCards& all = m_list->cards();
    show({.files = all.files, .cards = {}, .left = all.left, .leftCount = all.leftCount, .isStopped = false});
    context().screens.tellBookChanged(this);
    playSound(core::sounds::Save);
    const QString text = tr("%1 contacts imported").arg(added);
    m_summary->setText(text);
    if (const auto step = context().data.lastChange())
        context().frame.showNotice(text, tr("Undo"),
            [&context = context(), id = step->id] { core::takeBack(context, jet::StepDirection::Back, id); });
    if (photosLost > 0)
        warn(tr("%1 pictures could not be copied to the folder of photos. Their contacts are stored without.")
                 .arg(photosLost));
}

} // namespace transfer
