#include "views/full_view/listed_book.h"

#include "core/contact_lookups.h"
#include "core/list_presenter.h"
#include "views/full_view/address_source.h"
#include "views/full_view/category_tree.h"
#include "views/full_view/full_view_header.h"
#include "widgets/record_list.h"

#include <QStackedWidget>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace views {

void FullView::OwnBook::list()
{
    m_view.DBList1->showAs(u"Name"_s, {});
    m_view.openList(core::contactListSql());
    m_view.m_list->point(0);
    m_view.showCounter();
}

void FullView::OwnBook::listAgain()
{
    m_view.m_list->refresh();
    m_view.showCounter();
    if (!m_view.m_list->foundBy().isEmpty() && m_view.DBList1->rowCount() == 0)
        m_view.displayNothing();
    if (m_view.m_id != 0)
        m_view.selectInList(m_view.m_id);
}

void FullView::OwnBook::listAll()
{
    m_view.openList(core::contactListSql());
    m_view.tvwdb->rebuild();
    if (m_view.m_id == 0)
        return;
    m_view.selectInList(m_view.m_id);
    const jet::Recordset contact = m_view.context().data.openRecordset(core::contactByIdSql(m_view.m_id));
    m_view.tvwdb->reveal(
        contact.textOrEmpty(u"category1"), contact.textOrEmpty(u"category2"), contact.textOrEmpty(u"Name"));
}

void FullView::OwnBook::show(int row)
{
    core::SharedState& shared = m_view.shared();
    shared.selectedContactId = m_view.DBList1->keyAt(row);
    shared.selectedContactName = m_view.DBList1->textAt(row, u"Name"_s);
    m_view.display(shared.selectedContactId);
    m_view.showCounter();
}

FullView::OtherBook::OtherBook(FullView& view, std::unique_ptr<AddressSource> source)
    : ListedBook(view)
    , m_source(std::move(source))
{
}

FullView::OtherBook::~OtherBook() = default;

// A row holds its number; its text is asked for when it comes in sight.
void FullView::OtherBook::list()
{
    m_view.DBList1->showAs(u"Name"_s, [this](const QVariant& row) { return m_source->label(row.toInt()); });
    QList<QStringList> rows;
    rows.reserve(m_source->count());
    for (int row = 0; row < m_source->count(); ++row)
        rows << QStringList{QString::number(row)};
    m_view.DBList1->setRows(rows, {u"Name"_s});
    m_view.m_list->point(0);
    m_view.showCounter();
}

void FullView::OtherBook::listAgain()
{
    const int row = m_view.DBList1->currentRow();
    m_source->reload();
    list();
    m_view.DBList1->setCurrentRow(std::min(row, m_view.DBList1->rowCount() - 1));
    if (m_view.DBList1->currentRow() < 0)
        m_view.displayNothing();
}

void FullView::OtherBook::show(int row)
{
    m_view.displayNothing();
    m_view.showTexts(m_source->texts(row));
    m_view.m_header->showPlainName(m_view.shownName().isEmpty() ? m_source->label(row) : QString());
    m_view.m_record->setCurrentIndex(1);
    m_view.showCounter();
}

} // namespace views
