#include "views/filters/frmTabFilter.h"

#include "views/filters/chosen_value.h"
#include "widgets/fields.h"
#include "widgets/form_kit.h"
#include "widgets/record_list.h"

#include <QCoreApplication>
#include <QLabel>
#include <QShowEvent>
#include <QTabWidget>

#include <algorithm>
#include <iterator>
#include <utility>

using namespace Qt::StringLiterals;
using widgets::child;

namespace views {

namespace {

// Kept: this filter leaves the caller's name behind until the next screen sets its own.
constexpr FilterKind kTabFilter{FilterForm::Tab, u"CON0069", false};
constexpr QSize kTabsSize{660, 360};

struct Page {
    const char* caption;
    QStringView list;
    QStringView secondList = {};
};

constexpr Page kPages[] = {
    {QT_TRANSLATE_NOOP("views", "First"), u"lstFirst"},
    {QT_TRANSLATE_NOOP("views", "Last"), u"lstLast"},
    {QT_TRANSLATE_NOOP("views", "Priority"), u"lstPriority"},
    {QT_TRANSLATE_NOOP("views", "Product"), u"lstProduct"},
    {QT_TRANSLATE_NOOP("views", "Category"), u"lstCateg", u"lstCategSub"},
    {QT_TRANSLATE_NOOP("views", "Region"), u"lstRegion"},
    {QT_TRANSLATE_NOOP("views", "Country"), u"lstCountry"},
    {QT_TRANSLATE_NOOP("views", "City"), u"lstCity"},
    {QT_TRANSLATE_NOOP("views", "Relation"), u"lstRelation"},
    {QT_TRANSLATE_NOOP("views", "Status"), u"lstStatus"},
};

QString captionOf(const Page& page)
{
    return QCoreApplication::translate("views", page.caption);
}

QString valueColumn()
{
    return u"Name"_s;
}

void setValues(widgets::RecordList* list, const QStringList& values, const QString& chosen)
{
    QList<QStringList> rows;
    rows.reserve(values.size());
    for (const QString& value : values)
        rows << QStringList{value};
    list->setRows(rows, {valueColumn()});
    list->setCurrentRow(std::max(0, static_cast<int>(values.indexOf(chosen))));
}

} // namespace

frmTabFilter::frmTabFilter(core::Context& context, QWidget* parent)
    : FilterScreen(context, kTabFilter, parent)
    , SSActiveTabs1(new QTabWidget)
{
    setWindowTitle(tr("Contact Simple Filter"));
    SSActiveTabs1->setMinimumSize(kTabsSize);
    for (int page = 0; page < int(std::size(kPages)); ++page)
        SSActiveTabs1->addTab(layOutPage(page), captionOf(kPages[page]));
    widgets::FormKit form(this);
    form.group()
        .wide(u"SSActiveTabs1"_s, tr("Fields"), SSActiveTabs1)
        .caption(u"lblChoices"_s, {}, tr("Chosen:"));
    lblChoices = child<QLabel>(this, u"lblChoices"_s);
    layOutButtons(form);
    for (widgets::RecordList* list : std::as_const(m_lists)) {
        connect(list, &widgets::RecordList::currentRowChanged, this, &frmTabFilter::tellChoices);
        connect(list, &widgets::RecordList::chosen, this, &frmTabFilter::filterRecords);
    }
    connect(SSActiveTabs1, &QTabWidget::currentChanged, this, &frmTabFilter::fillPage);
}

QWidget* frmTabFilter::layOutPage(int page)
{
    const Page& row = kPages[page];
    auto* widget = new QWidget;
    widgets::FormKit form(widget);
    const auto addList = [&](QStringView name, const QString& label) {
        auto* list = new widgets::RecordList;
        form.wide(name.toString(), label, list);
        m_lists.insert(name.toString(), list);
    };
    if (row.secondList.isEmpty()) {
        addList(row.list, captionOf(row));
        return widget;
    }
    form.group(tr("Category"));
    addList(row.list, tr("Category"));
    form.nextColumn().group(tr("Category and subcategory"));
    addList(row.secondList, tr("Category and subcategory"));
    return widget;
}

// Each tab is read when it is opened.
void frmTabFilter::load()
{
    for (widgets::RecordList* list : std::as_const(m_lists))
        setValues(list, {u"All"_s}, {});
    fillPage(SSActiveTabs1->currentIndex());
    tellChoices();
}

void frmTabFilter::fillPage(int page)
{
    for (const FilterList& list : tabFilterLists()) {
        if (list.control == kPages[page].list || list.control == kPages[page].secondList)
            fillList(list);
    }
}

// Read again only when another region or country has been chosen meanwhile.
void frmTabFilter::fillList(const FilterList& list)
{
    const QString control = list.control.toString();
    const QString sql = tabFilterListSql(list, choices());
    if (std::exchange(m_statements[control], sql) == sql)
        return;
    setValues(m_lists[control], offeredValues(sql), m_lists[control]->currentText(valueColumn()));
    tellChoices();
}

FilterChoices frmTabFilter::choices() const
{
    FilterChoices choices;
    for (auto list = m_lists.begin(); list != m_lists.end(); ++list)
        choices.insert(list.key(), list.value()->currentText(valueColumn()));
    return choices;
}

QString frmTabFilter::whereClause() const
{
    return tabFilterClause(choices());
}

void frmTabFilter::chooseAll()
{
    for (widgets::RecordList* list : std::as_const(m_lists))
        list->setCurrentRow(0);
    fillPage(SSActiveTabs1->currentIndex());
}

void frmTabFilter::tellChoices()
{
    const FilterChoices chosen = choices();
    QStringList words;
    for (const Page& page : kPages) {
        const QString second = chosen.value(page.secondList.toString());
        const QString value = isChosen(second) ? second : chosen.value(page.list.toString());
        if (isChosen(value))
            words << u"%1 %2"_s.arg(captionOf(page), value);
    }
    lblChoices->setText(words.isEmpty() ? tr("nothing, so all contacts") : words.join(u"  \u00b7  "_s));
}

void frmTabFilter::showEvent(QShowEvent* event)
{
    FilterScreen::showEvent(event);
    if (!event->spontaneous())
        m_lists[kPages[SSActiveTabs1->currentIndex()].list.toString()]->setFocus();
}

} // namespace views
