#include "views/full_view/full_view_pages.h"

#include "views/contact_pages/contact_page.h"
#include "views/field_label.h"
#include "views/full_view/labelled_lines.h"
#include "widgets/fields.h"
#include "widgets/form_kit.h"
#include "widgets/narrow_bars.h"
#include "widgets/theme.h"

#include <QLabel>
#include <QScrollArea>

#include <iterator>

using namespace Qt::StringLiterals;
using widgets::FormKit;

namespace views {

FullViewPages::FullViewPages(core::Context& context, bool browsesOthers, QWidget* parent)
    : QTabWidget(parent)
    , m_summary(new ContactPage(context))
{
    m_summary->setObjectName(u"SummaryPage"_s);
    addTab(m_summary, widgets::icon(u"list"), tr("Summary"));
    layOutDetails();
    layOutAddresses();
    layOutTelephones(browsesOthers);
    layOutMail();
    layOutFamily();
    showBook(true);
    widgets::letIconsGiveWay(this);
}

void FullViewPages::showBook(bool own)
{
    setTabVisible(indexOf(m_summary), own);
    if (own)
        setCurrentWidget(m_summary);
    for (auto* numbers : findChildren<LabelledLines*>())
        numbers->showLabels(own);
    for (QWidget* widget : std::as_const(m_ofOthers))
        widget->setVisible(!own);
}

void FullViewPages::showUserLabels(const QStringList& labels)
{
    for (int number = 1; number <= labels.size(); ++number)
        showFieldLabel(this, u"TxtUser%1"_s.arg(number), labels[number - 1]);
}

QWidget* FullViewPages::addPage(const QString& name, const QString& title, QStringView icon)
{
    auto* page = new QWidget;
    page->setObjectName(name);
    auto* area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidget(page);
    addTab(area, widgets::icon(icon), title);
    return page;
}

void FullViewPages::layOutDetails()
{
    FormKit form(addPage(u"FrmVOther"_s, tr("Details"), u"card"));
    form.group(tr("Person"))
        .readOnly(u"txtfirst"_s, tr("Name"))
        .readOnly(u"txtnick"_s, tr("Nick name"))
        .readOnly(u"txtGender"_s, tr("Gender"))
        .readOnly(u"txtreligion"_s, tr("Religion"))
        .readOnly(u"txteducation"_s, tr("Education"))
        .readOnly(u"txthobbies"_s, tr("Hobbies"));
    form.group(tr("Work"))
        .readOnly(u"txtcompany"_s, tr("Company"))
        .readOnly(u"txtJobTitle"_s, tr("Job title"))
        .readOnly(u"txtAltTitle"_s, tr("Other contact"))
        .hint(tr("Title of the other contact"))
        .beside()
        .readOnly(u"txtaltcontact"_s, {});
    form.nextColumn()
        .group(tr("Classes"))
        .readOnly(u"txtCat"_s, tr("Category"))
        .readOnly(u"txtpriority"_s, tr("Priority"))
        .readOnly(u"txtproduct"_s, tr("Product"))
        .readOnly(u"txtstatus"_s, tr("Status"))
        .readOnly(u"txtregion"_s, tr("Region"))
        .readOnly(u"txtrelation"_s, tr("Relation"))
        .caption(u"lblid"_s, {}, tr("Number"));
    form.group(tr("Own fields"))
        .readOnly(u"TxtUser1"_s, tr("User 1"))
        .readOnly(u"TxtUser2"_s, tr("User 2"))
        .readOnly(u"TxtUser3"_s, tr("User 3"));
}

void FullViewPages::layOutAddresses()
{
    struct Address {
        QString title, type, lines, city, state;
    };
    const Address addresses[] = {
        {tr("Home"), {}, u"txthadd"_s, u"txthcity"_s, u"txthstate"_s},
        {workTitle(1), u"txtwtype"_s, u"txtwadd"_s, u"txtwcity"_s, u"txtwstate"_s},
        {workTitle(2), u"txtbtype"_s, u"txtbadd"_s, u"txtbcity"_s, u"txtbstate"_s},
    };
    FormKit form(addPage(u"FrmVAdd"_s, tr("Addresses"), u"home"));
    for (const Address& address : addresses) {
        if (&address == std::end(addresses) - 1)
            form.nextColumn();
        form.group(address.title);
        if (!address.type.isEmpty())
            form.readOnly(address.type, tr("Type"));
        form.readOnly(address.lines, tr("Address"), 3)
            .readOnly(address.city, tr("City"))
            .hint(tr("City and pin code"))
            .readOnly(address.state, tr("State"))
            .hint(tr("State and country"));
    }
}

void FullViewPages::layOutTelephones(bool browsesOthers)
{
    struct Numbers {
        QString title, control, last, other, otherLabel;
    };
    const Numbers addresses[] = {
        {tr("Home"), u"txthph1"_s, tr("Mobile"), u"txthph2"_s, tr("Number 2")},
        {workTitle(1), u"txtwph1"_s, tr("Spouse's mobile"), u"txtwph2"_s, tr("Number 2")},
        {workTitle(2), u"txtbph1"_s, tr("Fax"), u"txtfax"_s, tr("Fax")},
    };
    FormKit form(addPage(u"FrmVTel"_s, tr("Telephone"), u"phone"));
    for (const Numbers& numbers : addresses) {
        if (&numbers == std::end(addresses) - 1)
            form.nextColumn();
        form.group(numbers.title)
            .wide(numbers.control, tr("%1, numbers").arg(numbers.title),
                new LabelledLines(
                    {tr("Area code"), tr("Number 1"), tr("Number 2"), tr("Number 3"), numbers.last}));
        if (browsesOthers)
            form.readOnly(numbers.other, numbers.otherLabel);
    }
    if (!browsesOthers)
        return;
    for (const Numbers& numbers : addresses) {
        m_ofOthers << fieldLabel(this, numbers.other) << widgets::child<QWidget>(this, numbers.other);
    }
}

void FullViewPages::layOutMail()
{
    FormKit form(addPage(u"FrmVEmail"_s, tr("E-mail"), u"envelope"));
    form.nextColumn()
        .group(tr("Home"))
        .readOnly(u"txthemail1"_s, tr("E-mail"), 2)
        .readOnly(u"txtHweb"_s, tr("Web"));
    form.nextColumn()
        .group(tr("Work"))
        .readOnly(u"txtwemail1"_s, tr("E-mail"), 2)
        .readOnly(u"txtWweb"_s, tr("Web"));
}

void FullViewPages::layOutFamily()
{
    FormKit form(addPage(u"FrmVOther1"_s, tr("Family"), u"family"));
    form.nextColumn()
        .group(tr("Family"))
        .readOnly(u"TxtSpouse"_s, tr("Spouse"))
        .hint(tr("Spouse, and the maiden name"))
        .readOnly(u"dtpSpouse"_s, tr("Spouse's birthday"))
        .readOnly(u"dtpBirtday"_s, tr("Birthday"))
        .readOnly(u"dtpAnniv"_s, tr("Anniversary"))
        .readOnly(u"dtpKid1"_s, tr("Birthday, child 1"))
        .readOnly(u"dtpKid2"_s, tr("Birthday, child 2"))
        .readOnly(u"dtpKid3"_s, tr("Birthday, child 3"));
    form.nextColumn().group(tr("Business")).readOnly(u"txtbnote"_s, tr("Note"), 8);
}

} // namespace views
