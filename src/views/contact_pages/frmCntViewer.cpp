#include "views/contact_pages/frmCntViewer.h"

#include "core/date_patterns.h"
#include "core/frame.h"
#include "core/screens.h"
#include "jet/date_text.h"
#include "views/contact_pages/linked_records.h"
#include "views/contact_pages/note_pages.h"
#include "views/contact_pages/page_tools.h"
#include "widgets/heading_grid.h"
#include "widgets/theme.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QShowEvent>
#include <QSplitter>
#include <QStackedWidget>
#include <QTimerEvent>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace views {

namespace {

constexpr QStringView kSelector = u"frmSelector";
constexpr int kContactsAStep = 5000;
constexpr int kRowPadding = 9;
constexpr QStringView kDates[] = {u"Date", u"NextCall", u"DTOFJOIN", u"JDate"};

const LinkedList* listOf(const QTreeWidgetItem* item)
{
    const int index = item ? item->data(0, Qt::UserRole).toInt() : -1;
    return index < 0 ? nullptr : &linkedLists()[static_cast<std::size_t>(index)];
}

} // namespace

frmCntViewer::frmCntViewer(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , m_connection(context.data)
    , lblname(new QLabel)
    , m_line(new QLabel)
    , m_lists(new QTreeWidget)
    , m_rows(new widgets::HeadingGrid)
    , m_text(new QPlainTextEdit)
    , m_choose(new QToolButton)
{
    setWindowTitle(tr("Contacts Link Viewer"));
    layOut();
    connect(m_lists, &QTreeWidget::currentItemChanged, this, &frmCntViewer::showList);
    connect(m_rows, &widgets::HeadingGrid::currentRowChanged, this, &frmCntViewer::showText);
    connect(m_rows, &widgets::HeadingGrid::chosen, this, &frmCntViewer::openRow);
    connect(m_choose, &QToolButton::clicked, this, [this] { this->context().screens.show(kSelector); });
}

void frmCntViewer::layOut()
{
    m_lists->setObjectName(u"LinkedLists"_s);
    m_lists->setAccessibleName(tr("Linked records"));
    m_lists->setColumnCount(2);
    m_lists->setHeaderHidden(true);
    m_lists->setRootIsDecorated(false);
    m_lists->setUniformRowHeights(true);
    m_lists->header()->setStretchLastSection(false);
    m_lists->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_lists->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    m_lists->setMinimumWidth(230);
    const auto add = [this](const QString& caption, QStringView icon, int index) {
        auto* item = new QTreeWidgetItem(m_lists, {caption});
        item->setIcon(0, widgets::icon(icon));
        item->setData(0, Qt::UserRole, index);
        item->setSizeHint(0, {0, m_lists->fontMetrics().height() + kRowPadding});
        item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    };
    add(tr("Family"), u"family", -1);
    int index = 0;
    for (const LinkedList& list : linkedLists())
        add(QCoreApplication::translate("views", list.caption), list.icon, index++);

    auto* splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(m_lists);
    splitter->addWidget(layOutRows());
    splitter->setStretchFactor(1, 1);
    auto* record = new QWidget;
    auto* recordLayout = new QVBoxLayout(record);
    recordLayout->setContentsMargins(0, 0, 0, 0);
    recordLayout->addWidget(layOutHead());
    recordLayout->addWidget(splitter, 1);

    auto* nothing = new QWidget;
    auto* nothingLayout = new QVBoxLayout(nothing);
    auto* hint = new QLabel(tr("Choose a contact in a list, then come back here."));
    hint->setForegroundRole(QPalette::PlaceholderText);
    m_choose->setText(tr("&Record Selector"));
    widgets::setIcon(m_choose, u"list");
    m_choose->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_choose->setVisible(context().screens.has(kSelector));
    nothingLayout->addStretch(1);
    nothingLayout->addWidget(hint, 0, Qt::AlignHCenter);
    nothingLayout->addWidget(m_choose, 0, Qt::AlignHCenter);
    nothingLayout->addStretch(1);

    m_pages = new QStackedWidget;
    m_pages->addWidget(nothing);
    m_pages->addWidget(record);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->addWidget(m_pages);
    setFocusProxy(m_lists);
}

QWidget* frmCntViewer::layOutHead()
{
    lblname->setObjectName(u"lblname"_s);
    lblname->setStyleSheet(u"font-size: 17pt; font-weight: 600;"_s);
    m_line->setForegroundRole(QPalette::PlaceholderText);
    for (QLabel* label : {lblname, m_line}) {
        label->setTextFormat(Qt::PlainText);
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    }
    auto* head = new QWidget;
    auto* layout = new QGridLayout(head);
    layout->setContentsMargins(6, 2, 6, 6);
    layout->setVerticalSpacing(2);
    layout->addWidget(lblname, 0, 0);
    layout->addWidget(m_line, 1, 0);
    layout->addWidget(makePageTools(context(), this, [this] { return m_id; }), 0, 1, 2, 1, Qt::AlignTop);
    layout->setColumnStretch(0, 1);
    return head;
}

QWidget* frmCntViewer::layOutRows()
{
    m_rows->setObjectName(u"LinkedRows"_s);
    m_rows->setAccessibleName(tr("Rows of the list"));
    m_rows->setEmptyText(tr("Nothing of this kind is linked to the contact."));
    m_text->setObjectName(u"LinkedText"_s);
    m_text->setAccessibleName(tr("Text of the row"));
    m_text->setReadOnly(true);
    m_text->hide();
    auto* rows = new QSplitter(Qt::Vertical);
    rows->setChildrenCollapsible(false);
    rows->addWidget(m_rows);
    rows->addWidget(m_text);
    rows->setStretchFactor(0, 2);
    rows->setStretchFactor(1, 1);
    return rows;
}

void frmCntViewer::load()
{
    setFrameTitle(u"Contacts Link Viewer"_s);
    showDates();
}

void frmCntViewer::showDates()
{
    const QString pattern = core::datePattern(shared().NationalMode);
    for (const QStringView column : kDates)
        m_rows->showAs(column.toString(), [pattern](const QVariant& value) {
            const QDate date = value.toDate();
            return date.isValid() ? jet::formatDate(date, pattern) : value.toString();
        });
    m_rows->showAs(u"Time"_s, [](const QVariant& value) {
        const QTime time = value.toTime();
        return time.isValid() ? time.toString(u"HH:mm"_s) : value.toString();
    });
    m_rows->showAs(u"confirm"_s,
        [](const QVariant& value) { return value.toBool() ? QString(QChar(0x2713)) : QString(); });
}

// Opened without a contact it shows the one last chosen; shown again, the one that was chosen meanwhile.
void frmCntViewer::showEvent(QShowEvent* event)
{
    Screen::showEvent(event);
    if (event->spontaneous())
        return;
    const qint64 chosen = shared().selectedContactId;
    const bool isNew = std::exchange(m_offered, chosen) != chosen;
    const qint64 id = m_id == 0 || isNew ? chosen : m_id;
    if (!showContact(id) && !showContact(m_id)) {
        m_id = 0;
        m_pages->setCurrentIndex(0);
    }
}

bool frmCntViewer::showContact(qint64 id)
{
    jet::Recordset contact = id == 0
        ? jet::Recordset()
        : m_connection.openRecordset(u"select * from cnt_main where id=%1"_s.arg(id));
    if (!contact.hasRow())
        return false;
    m_id = id;
    m_offered = shared().selectedContactId;
    const NoteHead head = noteHead(contact);
    lblname->setText(head.name);
    m_line->setText(head.line);
    m_line->setVisible(!head.line.isEmpty());
    m_pages->setCurrentIndex(1);
    startCounting();
    if (m_lists->currentItem())
        showList();
    else
        m_lists->setCurrentItem(m_lists->topLevelItem(0));
    return true;
}

void frmCntViewer::startCounting()
{
    for (int item = 0; item < m_lists->topLevelItemCount(); ++item)
        m_lists->topLevelItem(item)->setText(1, {});
    m_counted = 0;
    m_scannedTo = 0;
    m_found = 0;
    if (m_timer == 0)
        m_timer = startTimer(0);
}

void frmCntViewer::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_timer)
        return Screen::timerEvent(event);
    QTreeWidgetItem* item = m_lists->topLevelItem(m_counted);
    if (!item) {
        killTimer(m_timer);
        m_timer = 0;
    } else if (countOn(item)) {
        showCount(item, m_found);
        ++m_counted;
        m_scannedTo = 0;
        m_found = 0;
    }
}

/// One step; true when the list is counted.
bool frmCntViewer::countOn(QTreeWidgetItem* item)
{
    const LinkedList* list = listOf(item);
    if (!list) {
        const jet::Recordset contact
            = m_connection.openRecordset(u"select * from cnt_main where id=%1"_s.arg(m_id));
        m_found = static_cast<int>(relativesOf(contact, shared().NationalMode).size());
        return true;
    }
    if (list->scanned.isEmpty()) {
        m_found = static_cast<int>(m_connection.openRecordset(linkedCountSql(*list, m_id)).number(u"Count"));
        return true;
    }
    const qint64 from = m_scannedTo + 1;
    m_scannedTo += kContactsAStep;
    m_found += static_cast<int>(
        m_connection.openRecordset(linkedCountSql(*list, m_id, from, m_scannedTo)).number(u"Count"));
    const jet::Recordset newest = m_connection.openRecordset(u"select max(id) as Last from cnt_main");
    return m_scannedTo >= newest.number(u"Last");
}

// What has nothing to show stays in its place, but quiet.
void frmCntViewer::showCount(QTreeWidgetItem* item, int count)
{
    item->setText(1, count == 0 ? QString() : QString::number(count));
    const QColor colour = count == 0 ? widgets::quietTextColor() : palette().color(QPalette::Text);
    item->setForeground(0, colour);
}

void frmCntViewer::showList()
{
    const LinkedList* list = listOf(m_lists->currentItem());
    m_text->setVisible(list && !list->text.isEmpty());
    m_text->clear();
    if (m_id == 0)
        return;
    if (!list)
        return showRelatives();
    m_rows->fill(list->headings, m_connection.openRecordset(linkedSql(*list, m_id)),
        list->headingColumns.toString().split(u','));
    m_rows->setCurrentRow(m_rows->rowCount() > 0 ? 0 : -1);
}

void frmCntViewer::showRelatives()
{
    const jet::Recordset contact
        = m_connection.openRecordset(u"select * from cnt_main where id=%1"_s.arg(m_id));
    m_rows->clearRows();
    m_rows->setHeadings(u"Relation        |Name                         |Born               ");
    m_rows->setRows(relativesOf(contact, shared().NationalMode));
}

void frmCntViewer::showText()
{
    const LinkedList* list = listOf(m_lists->currentItem());
    if (list && !list->text.isEmpty())
        m_text->setPlainText(m_rows->currentText(list->text.toString()));
}

void frmCntViewer::openRow(int row)
{
    const LinkedList* list = listOf(m_lists->currentItem());
    if (!list || !list->contacts)
        return;
    const qint64 id = m_rows->keyAt(row);
    if (!showContact(id))
        return;
    shared().selectedContactId = id;
    shared().selectedContactName = lblname->text();
    m_offered = id;
}

} // namespace views
