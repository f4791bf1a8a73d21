#include "letters/lists/member_pane.h"

#include "core/save_failure.h"
#include "core/sql_text.h"
#include "letters/lists/list_members.h"
#include "widgets/heading_grid.h"
#include "widgets/theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace letters {

namespace {

constexpr QStringView kGroupHeadings = u"  |Name                           |Selected";
constexpr QStringView kBookHeadings = u"  |Name                                         |Print";
const QStringList kColumns{QString(), u"name"_s, u"selected"_s};

QPushButton* buttonOf(const QString& name, const QString& text, const QString& toolTip)
{
    auto* button = new QPushButton(text);
    button->setObjectName(name);
    button->setToolTip(toolTip);
    button->setAutoDefault(false);
    return button;
}

/// What stands above the members of each kind of group.
QString headOf(const MailGroup& group)
{
    switch (group.tab) {
    case MailTab::Family: return MemberPane::tr("Family Members");
    case MailTab::Parties: return MemberPane::tr("Guests");
    case MailTab::Contacts: return MemberPane::tr("Contacts");
    default: return MemberPane::tr("Members");
    }
}

} // namespace

MemberPane::MemberPane(core::Context& context, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , FG(new widgets::HeadingGrid)
    , lblHead(new QLabel)
    , lblCount(new QLabel)
    , m_all(buttonOf(u"cmdSelectAll"_s, tr("&Select all"), tr("Select all members to be printed")))
    , m_none(buttonOf(u"cmdSelectNone"_s, tr("Se&lect none"), tr("Nobody of the members is to be printed")))
{
    FG->setObjectName(u"FG"_s);
    FG->setAccessibleName(tr("Members; the blank key selects one to be printed"));
    FG->setTickColumn(u"selected"_s);
    FG->setMayTick(true);
    FG->letColumnsGiveWay();
    for (QLabel* label : {lblHead, lblCount}) {
        label->setTextFormat(Qt::PlainText);
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    }
    lblHead->setObjectName(u"lblHead"_s);
    lblCount->setObjectName(u"lblCount"_s);
    auto* foot = new QHBoxLayout;
    foot->addWidget(m_all);
    foot->addWidget(m_none);
    auto* choose = buttonOf(
        u"cmdSelect"_s, tr("Sele&ct to print..."), tr("Choose among all contacts who is to be printed"));
    foot->addWidget(choose);
    foot->addWidget(lblCount, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    layout->addWidget(lblHead);
    layout->addWidget(FG, 1);
    layout->addLayout(foot);
    setFocusProxy(FG);
    connect(FG, &widgets::HeadingGrid::tickChanged, this, &MemberPane::storeTick);
    connect(FG, &widgets::HeadingGrid::currentRowChanged, this, &MemberPane::currentChanged);
    connect(choose, &QPushButton::clicked, this, &MemberPane::choiceWanted);
    connect(m_all, &QPushButton::clicked, this, [this] { selectAll(true); });
    connect(m_none, &QPushButton::clicked, this, [this] { selectAll(false); });
}

void MemberPane::show(const MailGroup& group, const MailFilter& filter, const QString& empty)
{
    const bool isOther
        = !m_isShowing || m_group.tab != group.tab || m_group.name != group.name || m_group.id != group.id;
    m_group = group;
    m_filter = filter;
    m_isShowing = true;
    lblHead->setText(group.name.isEmpty() ? headOf(group) : headOf(group) + u" - "_s + group.name);
    FG->setHeadings(group.tab == MailTab::Contacts ? kBookHeadings : kGroupHeadings, kColumns);
    const bool hasId
        = group.tab == MailTab::Associations || group.tab == MailTab::Groups || group.tab == MailTab::Parties;
    FG->setKeyColumn(hasId ? u"perid"_s : u"id"_s);
    FG->setEmptyText(empty);
    if (isOther)
        FG->setCurrentRow(-1);
    m_sql = mailMembersSql(group, filter);
    read();
}

void MemberPane::showNone(const QString& empty)
{
    m_isShowing = false;
    m_group = {};
    m_sql.clear();
    m_selected = 0;
    lblHead->setText(headOf(m_group));
    FG->clearRows();
    FG->setEmptyText(empty);
    tellCount();
}

void MemberPane::readAgain()
{
    if (m_isShowing)
        read();
}

jet::Way MemberPane::way() const
{
    return isReadAsPattern(m_group.tab, m_filter) ? jet::Way::Ado : jet::Way::Dao;
}

QString MemberPane::condition() const
{
    return mailMembersCondition(m_group, m_filter);
}

void MemberPane::read()
{
    const QString name = currentName();
    const qint64 id = FG->currentKey();
    const int row = FG->currentRow();
    FG->fill(m_context.data.openRecordset(m_sql, way()));
    if (id != 0)
        FG->selectKey(id);
    else if (row >= 0 && FG->textAt(row, u"name"_s) == name)
        FG->setCurrentRow(row);
    else
        FG->setCurrentRow(-1);
    countSelected();
    tellCount();
}

void MemberPane::countSelected()
{
    m_selected
        = m_context.data
              .openRecordset(
                  u"select count(*) from [cnt_main] where selected=true and ("_s + condition() + u')', way())
              .textAt(0)
              .toInt();
}

// Rows that tell only a name stand for all members of that name.
void MemberPane::storeTick(int row)
{
    const bool isTicked = FG->isTicked(FG->sourceRow(row));
    const qint64 id = FG->keyAt(row);
    const QString name = FG->textAt(row, u"name"_s);
    const bool isStored = id != 0
        ? selectContact(m_context.data, id, isTicked)
        : selectWhere(m_context.data, u"name = '%1' and ("_s.arg(core::inQuotes(name)) + condition() + u')',
            way(), isTicked);
    if (!isStored) {
        core::tellFailedSave(m_context);
        return read();
    }
    if (id != 0)
        m_selected += isTicked ? 1 : -1;
    else
        countSelected();
    tellCount();
    Q_EMIT selectionChanged();
}

void MemberPane::selectAll(bool selected)
{
    if (!m_isShowing)
        return;
    const QString changed
        = u"selected=%1 and ("_s.arg(selected ? u"false"_s : u"true"_s) + condition() + u')';
    if (!selectWhere(m_context.data, changed, way(), selected))
        core::tellFailedSave(m_context);
    read();
    Q_EMIT selectionChanged();
}

void MemberPane::tellCount()
{
    const int rows = FG->rowCount();
    m_all->setEnabled(rows > 0);
    m_none->setEnabled(rows > 0);
    lblCount->setText(rows == 0
            ? QString()
            : tr("%1 in all, %2 selected").arg(QString::number(rows), QString::number(m_selected)));
}

qint64 MemberPane::currentId() const
{
    if (FG->currentRow() < 0)
        return 0;
    if (const qint64 id = FG->currentKey())
        return id;
    return m_context.data
        .openRecordset(
            u"select id from [cnt_main] where name = '%1' and ("_s.arg(core::inQuotes(currentName()))
                + condition() + u')',
            way())
        .number(u"id");
}

QString MemberPane::currentName() const
{
    return FG->currentRow() < 0 ? QString() : FG->currentText(u"name"_s);
}

QList<qint64> MemberPane::memberIds(bool onlySelected) const
{
    QList<qint64> ids;
    if (!m_isShowing)
        return ids;
    QString sql = memberIdsSql(m_group, m_filter);
    if (onlySelected)
        sql.replace(u" where "_s, u" where selected=true and "_s);
    const jet::Recordset rows = m_context.data.openRecordset(sql, way());
    ids.reserve(rows.count());
    for (int row = 0; row < rows.count(); ++row)
        ids << rows.keyAt(row);
    return ids;
}

} // namespace letters
