#include "views/contact_pages/frmDetailView.h"

#include "core/photo_file.h"
#include "core/settings.h"
#include "platform/clock.h"
#include "platform/drive.h"
#include "views/contact_pages/page_tools.h"
#include "views/contact_pages/record_texts.h"
#include "views/field_label.h"
#include "views/full_view/full_view_sql.h"
#include "widgets/fields.h"
#include "widgets/form_kit.h"
#include "widgets/picture_box.h"
#include "widgets/theme.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QTabWidget>
#include <QToolBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using widgets::child;
using widgets::FormKit;

namespace views {

namespace {

// What a date and a pin code have room for at least.
constexpr QStringView kDate = u"30 May-2000";
constexpr QStringView kPin = u"00000000";

} // namespace

frmDetailView::frmDetailView(core::Context& context, QWidget* parent)
    : Screen(context, parent)
{
    setWindowTitle(tr("Detail view"));
    auto* tabs = new QTabWidget;
    tabs->setObjectName(u"sstab1"_s);
    struct Page {
        QString title;
        QStringView icon;
        void (frmDetailView::*layOut)(QWidget*);
    };
    for (const Page& page : {Page{tr("Contact"), u"card", &frmDetailView::layOutContact},
             Page{tr("Family"), u"family", &frmDetailView::layOutFamily},
             Page{tr("Business"), u"work", &frmDetailView::layOutBusiness}}) {
        auto* widget = new QWidget;
        auto* area = new QScrollArea;
        area->setWidgetResizable(true);
        area->setFrameShape(QFrame::NoFrame);
        area->setWidget(widget);
        tabs->addTab(area, widgets::icon(page.icon), page.title);
        (this->*page.layOut)(widget);
    }
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->addWidget(layOutHead());
    layout->addWidget(tabs, 1);
    for (const QString& name : {u"cmdass1"_s, u"cmdass2"_s}) {
        auto* button = child<QPushButton>(this, name);
        button->setEnabled(false);
        connect(
            button, &QPushButton::clicked, this, [this, button] { goToAssociate(widgets::textOf(button)); });
    }
}

QWidget* frmDetailView::layOutHead()
{
    auto* picture = new widgets::PictureBox;
    picture->setObjectName(u"Photo"_s);
    picture->setAccessibleName(tr("Picture"));
    picture->setFixedSize(72, 72);
    picture->setFocusPolicy(Qt::NoFocus);
    auto* name = new QLabel;
    name->setObjectName(u"lblname"_s);
    name->setTextFormat(Qt::PlainText);
    name->setStyleSheet(u"font-size: 17pt; font-weight: 600;"_s);
    name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* head = new QWidget;
    auto* layout = new QHBoxLayout(head);
    layout->setContentsMargins(4, 0, 4, 0);
    layout->setSpacing(12);
    layout->addWidget(picture);
    layout->addWidget(name, 1);
    layout->addWidget(makePageTools(context(), this, [this] { return m_id; }));
    return head;
}

void frmDetailView::layOutContact(QWidget* page)
{
    FormKit form(page);
    form.wrap()
        .group(tr("Person"))
        .readOnly(u"dtcmbfname"_s, tr("First name"))
        .readOnly(u"dtcmblname"_s, tr("Last name"))
        .readOnly(u"txtcmpny"_s, tr("Company"))
        .readOnly(u"CmbSex"_s, tr("Gender"))
        .readOnly(u"dtcmbreligion"_s, tr("Religion"))
        .readOnly(u"CmbEducation"_s, tr("Education"))
        .readOnly(u"txthobby"_s, tr("Hobbies"));
    form.group(tr("E-mail and web"))
        .readOnly(u"txtemail1"_s, tr("E-mail"))
        .readOnly(u"txtemail2"_s, {})
        .readOnly(u"txtSMS"_s, tr("SMS"))
        .readOnly(u"txtweb"_s, tr("Web"));
    form.group(tr("Classes"))
        .readOnly(u"DtcmbCate"_s, tr("Category"))
        .beside()
        .readOnly(u"DtcmbSubCate"_s, {})
        .readOnly(u"cmbpriority"_s, tr("Priority"))
        .readOnly(u"txtproduct"_s, tr("Product"))
        .readOnly(u"Dtcmbstatus"_s, tr("Status"))
        .readOnly(u"dtcmbregion"_s, tr("Region"))
        .readOnly(u"dtcmbrelation"_s, tr("Relation"))
        .caption(u"lblid"_s, {}, tr("Number"));
    form.nextColumn()
        .group(tr("Home"))
        .readOnly(u"txtadd1"_s, tr("Address"))
        .readOnly(u"txtadd2"_s, {})
        .readOnly(u"dtcmbcity"_s, tr("City"))
        .grow(2)
        .beside()
        .readOnly(u"dtcmbpin"_s, tr("Pin"))
        .least(kPin)
        .readOnly(u"dtcmbstate"_s, tr("State"))
        .readOnly(u"dtcmbcountry"_s, tr("Country"))
        .readOnly(u"txtstd"_s, tr("Area code"))
        .readOnly(u"txtph1"_s, tr("Numbers"))
        .readOnly(u"txtph2"_s, {})
        .readOnly(u"txtph3"_s, {})
        .readOnly(u"txtMobile"_s, tr("Mobile"))
        .readOnly(u"txtspmobile"_s, tr("Spouse's mobile"));
    form.group(tr("Own fields and note"))
        .readOnly(u"cmbuser1"_s, tr("User 1"))
        .readOnly(u"cmbuser2"_s, tr("User 2"))
        .readOnly(u"cmbuser3"_s, tr("User 3"));
    form.readOnly(u"txtMemo"_s, tr("Note"), 4);
}

void frmDetailView::layOutFamily(QWidget* page)
{
    struct Relative {
        QString label, name, date, age;
    };
    const Relative relatives[] = {
        {tr("Spouse"), u"dtcspouse"_s, u"DateSpouse"_s, u"lblspage"_s},
        {tr("Child 1"), u"dtckid1"_s, u"Datekid1"_s, u"lblk1age"_s},
        {tr("Child 2"), u"dtckid2"_s, u"datekid2"_s, u"lblk2age"_s},
        {tr("Child 3"), u"dtckid3"_s, u"datekid3"_s, u"lblk3age"_s},
    };
    FormKit form(page);
    form.wrap().group(tr("Family"));
    for (const Relative& relative : relatives) {
        form.readOnly(relative.name, relative.label)
            .grow(3)
            .beside()
            .readOnly(relative.date, tr("born"))
            .least(kDate)
            .beside()
            .caption(relative.age);
    }
    form.group(tr("Own"))
        .readOnly(u"DateBday"_s, tr("Birthday"))
        .least(kDate)
        .beside()
        .caption(u"lblage"_s)
        .readOnly(u"DateAnn"_s, tr("Anniversary"))
        .least(kDate)
        .readOnly(u"dtcmbmid"_s, tr("Middle name"))
        .readOnly(u"dtcmbnick"_s, tr("Nick name"))
        .readOnly(u"dtcmbmaiden"_s, tr("Maiden name"));
    form.group(tr("Associates"))
        .button(u"cmdass1"_s, {}, {}, tr("Go to the first associate"))
        .button(u"cmdass2"_s, {}, {}, tr("Go to the second associate"));
}

void frmDetailView::layOutBusiness(QWidget* page)
{
    FormKit form(page);
    form.wrap()
        .group(tr("Work 1"))
        .readOnly(u"dtcmbjob"_s, tr("Job title"))
        .readOnly(u"txtbaddty"_s, tr("Type"))
        .readOnly(u"txtbadd1"_s, tr("Address"))
        .readOnly(u"txtbadd2"_s, {})
        .readOnly(u"dtcmbbcity"_s, tr("City"))
        .grow(2)
        .beside()
        .readOnly(u"dtcmbbpin"_s, tr("Pin"))
        .least(kPin)
        .readOnly(u"dtcmbbstate"_s, tr("State"))
        .readOnly(u"dtcmbbcountry"_s, tr("Country"))
        .readOnly(u"txtbstd"_s, tr("Area code"))
        .beside()
        .readOnly(u"txtbxtn"_s, tr("Extension"))
        .readOnly(u"txtbph1"_s, tr("Numbers"))
        .readOnly(u"txtbph2"_s, {})
        .readOnly(u"txtbph3"_s, {});
    form.nextColumn()
        .group(tr("Work 2"))
        .readOnly(u"dtcmbbadtyp"_s, tr("Type"))
        .readOnly(u"txtwadd1"_s, tr("Address"))
        .readOnly(u"txtwadd2"_s, {})
        .readOnly(u"dtcmbwcity"_s, tr("City"))
        .grow(2)
        .beside()
        .readOnly(u"dtcmbwpin"_s, tr("Pin"))
        .least(kPin)
        .readOnly(u"dtcmbwstate"_s, tr("State"))
        .readOnly(u"dtcmbwcountry"_s, tr("Country"))
        .readOnly(u"txtwstd"_s, tr("Area code"))
        .beside()
        .readOnly(u"txtwxtn"_s, tr("Extension"))
        .readOnly(u"txtwph1"_s, tr("Numbers"))
        .readOnly(u"txtwph2"_s, {})
        .readOnly(u"txtwph3"_s, {});
    form.group(tr("E-mail, web and note"))
        .readOnly(u"txtbemail1"_s, tr("E-mail 1"))
        .readOnly(u"txtbemail2"_s, {})
        .readOnly(u"txtbweb"_s, tr("Web 1"))
        .readOnly(u"txtwemail1"_s, tr("E-mail 2"))
        .readOnly(u"txtwemail2"_s, {})
        .readOnly(u"txtwweb"_s, tr("Web 2"));
    form.readOnly(u"txtbnote"_s, tr("Note"), 4);
}

bool frmDetailView::showContact(qint64 id)
{
    const jet::Recordset contact
        = context().data.openRecordset(u"select * from cnt_main where id=%1"_s.arg(id));
    if (!contact.hasRow())
        return false;
    m_id = id;
    for (const ShownText& shown :
        detailViewTexts(contact, shared().NationalMode, context().services.clock.today()))
        widgets::setTextOf(child<QWidget>(this, shown.control), shown.text);
    const QStringList labels = core::userFieldLabels(core::readSettings(context().data));
    for (int number = 1; number <= labels.size(); ++number)
        showFieldLabel(this, u"cmbuser%1"_s.arg(number), labels[number - 1]);
    const QString picture = contact.textOrEmpty(u"PhotLoc");
    child<widgets::PictureBox>(this, u"Photo"_s)->setPath(core::photoFile(context().services.drive, picture));
    child<QPushButton>(this, u"cmdass1"_s)->setEnabled(!contact.textOrEmpty(u"Asso1").isEmpty());
    child<QPushButton>(this, u"cmdass2"_s)->setEnabled(!contact.textOrEmpty(u"asso2").isEmpty());
    return true;
}

void frmDetailView::goToAssociate(const QString& caption)
{
    const jet::Recordset contact = context().data.openRecordset(associateSql(nameInAssociation(caption)));
    if (contact.hasRow() && showContact(contact.number(u"id")))
        Q_EMIT associateShown(contact.number(u"id"));
}

} // namespace views
