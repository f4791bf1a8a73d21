#include "views/selector/picture_pane.h"

#include "platform/drive.h"
#include "views/search/tree_search_sql.h"
#include "widgets/theme.h"
#include "widgets/thumbnail_view.h"

#include <QAction>
#include <QActionGroup>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QSettings>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>
#include <utility>

using namespace Qt::StringLiterals;

namespace views {

namespace {

constexpr int kStepMs = 12; ///< of each turn of the timer, so that the screen can be seen to move

struct SizeTool {
    QStringView id;
    const char* text;
    QStringView letter; ///< of its key, and what is remembered
};

// In the order of the view's sizes.
constexpr SizeTool kSizes[] = {
    {u"Small", QT_TRANSLATE_NOOP("views", "Small"), u"A"},
    {u"Medium", QT_TRANSLATE_NOOP("views", "Medium"), u"M"},
    {u"Large", QT_TRANSLATE_NOOP("views", "Large"), u"N"},
};
constexpr int kMedium = 1;
constexpr QStringView kSetting = u"thumbnails";

} // namespace

PicturePane::PicturePane(core::Context& context, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , m_folders(context.services.drive)
    , Thumb(new widgets::ThumbnailView)
    , PG1(new QProgressBar)
    , Timer1(new QTimer(this))
    , m_count(new QLabel)
{
    Thumb->setObjectName(u"Thumb"_s);
    Thumb->setAccessibleName(tr("Pictures of contacts"));
    Thumb->setContextMenuPolicy(Qt::CustomContextMenu);
    PG1->setObjectName(u"PG1"_s);
    PG1->setAccessibleName(tr("Contacts looked at"));
    PG1->setTextVisible(false);
    PG1->setFixedHeight(6);
    QSizePolicy policy = PG1->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    PG1->setSizePolicy(policy);
    PG1->hide();
    Timer1->setObjectName(u"Timer1"_s);
    m_count->setForegroundRole(QPalette::PlaceholderText);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(layOutSizes());
    layout->addWidget(PG1);
    layout->addWidget(Thumb, 1);
    layout->addWidget(m_count);
    connect(Timer1, &QTimer::timeout, this, &PicturePane::gatherSome);
    connect(Thumb, &widgets::ThumbnailView::chosen, this, &PicturePane::contactChosen);
    const QString stored
        = QSettings(settingsFile(), QSettings::IniFormat).value(kSetting.toString()).toString();
    const auto* found = std::find_if(
        std::begin(kSizes), std::end(kSizes), [&](const SizeTool& tool) { return tool.letter == stored; });
    const int size = found == std::end(kSizes) ? kMedium : int(found - std::begin(kSizes));
    m_sizes[size]->setChecked(true);
    Thumb->setSize(widgets::ThumbnailView::Size(size));
    setFocusProxy(Thumb);
}

QToolBar* PicturePane::layOutSizes()
{
    auto* bar = new QToolBar;
    auto* group = new QActionGroup(this);
    for (int size = 0; size < int(std::size(kSizes)); ++size) {
        const SizeTool& tool = kSizes[size];
        const QString text = QCoreApplication::translate("views", tool.text);
        auto* action = new QAction(text, this);
        action->setObjectName(tool.id.toString());
        action->setCheckable(true);
        action->setShortcut(QKeySequence(u"Ctrl+Shift+"_s + tool.letter.toString()));
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        action->setToolTip(
            tr("%1 pictures (%2)").arg(text, action->shortcut().toString(QKeySequence::NativeText)));
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, size] { setSize(size); });
        addAction(action);
        bar->addAction(action);
        m_sizes << action;
    }
    return bar;
}

void PicturePane::setMenu(QMenu* menu)
{
    menu->addSeparator();
    menu->addActions(m_sizes);
    connect(Thumb, &QWidget::customContextMenuRequested, this, [this, menu](const QPoint& at) {
        if (!Thumb->indexAt(at).isValid())
            return;
        Q_EMIT contactChosen(currentId());
        menu->popup(Thumb->viewport()->mapToGlobal(at));
    });
}

void PicturePane::gather()
{
    Thumb->clear();
    m_folders.forget();
    m_contacts = {};
    m_next = 0;
    m_isDue = true;
    m_count->clear();
    PG1->setRange(0, 0);
    PG1->show();
    update();
}

// To read and count the contacts of a large book takes a while, so the pane is shown before.
void PicturePane::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    if (m_isDue && !Timer1->isActive())
        Timer1->start(0);
}

qint64 PicturePane::currentId() const
{
    return Thumb->currentKey();
}

bool PicturePane::isGathering() const
{
    return m_isDue || m_next < m_contacts.count();
}

void PicturePane::gatherSome()
{
    if (std::exchange(m_isDue, false)) {
        m_contacts = m_context.data.openRecordset(picturesSql());
        PG1->setRange(0, m_contacts.count());
    }
    QElapsedTimer clock;
    clock.start();
    QList<widgets::Thumbnail> found;
    const int path = m_contacts.columnIndex(u"PhotLoc");
    const int name = m_contacts.columnIndex(u"Name");
    for (; isGathering() && clock.elapsed() < kStepMs; ++m_next) {
        const QString file = m_folders.pictureFile(m_contacts.textAt(m_next, path));
        if (!file.isEmpty())
            found << widgets::Thumbnail{m_contacts.keyAt(m_next), m_contacts.textAt(m_next, name), file};
    }
    Thumb->append(found);
    PG1->setValue(m_next);
    m_count->setText(Thumb->count() == 1 ? tr("1 picture") : tr("%1 pictures").arg(Thumb->count()));
    if (!isGathering())
        finish();
}

void PicturePane::finish()
{
    Timer1->stop();
    PG1->hide();
    m_contacts = {};
    m_next = 0;
}

// Nobody waits for pictures that are out of sight.
void PicturePane::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (isGathering() && !m_isDue)
        Timer1->start(0);
}

void PicturePane::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    Timer1->stop();
}

void PicturePane::setSize(int size)
{
    Thumb->setSize(widgets::ThumbnailView::Size(size));
    QSettings(settingsFile(), QSettings::IniFormat)
        .setValue(kSetting.toString(), kSizes[size].letter.toString());
}

// Only how a screen looks on this computer is kept here.
QString PicturePane::settingsFile() const
{
    return QDir(m_context.services.drive.programFolder()).filePath(u"window.ini"_s);
}

} // namespace views
