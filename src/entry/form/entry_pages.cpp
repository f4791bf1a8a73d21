#include "entry/form/entry_pages.h"

#include "widgets/button_key.h"
#include "widgets/fields.h"
#include "widgets/heading_grid.h"
#include "widgets/picture_box.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>

using namespace Qt::StringLiterals;
using widgets::FormKit;
using widgets::KeyFilter;

namespace entry {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("entry", text);
}

/// On a small screen a page scrolls; it is never squeezed.
QWidget* scrolling(QWidget* page)
{
    auto* area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidget(page);
    return area;
}

/// The label of one of the user's own fields is a button: a click renames it.
void userField(FormKit& kit, int number)
{
    auto* label = new QPushButton;
    label->setFlat(true);
    label->setCursor(Qt::PointingHandCursor);
    kit.widget(u"lbluser%1"_s.arg(number), {}, label)
        .hint(tr("Click to give this field a name of your own"))
        .beside(3)
        .combo(u"cmbuser%1"_s.arg(number), {}, u"User%1"_s.arg(number));
}

void workTwoAddress(FormKit& kit)
{
    kit.line(u"txtwadd1"_s, tr("Add&ress"), u"w_add1"_s)
        .line(u"txtwadd2"_s, {}, u"w_add2"_s)
        .hint(tr("Press (.) for Autotext"))
        .combo(u"dtcmbwcity"_s, tr("Cit&y"), u"w_city"_s)
        .line(u"dtcmbwpin"_s, tr("Pin"), u"w_pin"_s)
        .combo(u"dtcmbwstate"_s, tr("Stat&e"), u"w_State"_s)
        .combo(u"dtcmbwcountry"_s, tr("Cou&ntry"), u"w_country"_s)
        .combo(u"dtcmbbadtyp"_s, tr("Address t&ype"), u"W_AddType"_s);
}

void workTwoPhones(FormKit& kit)
{
    kit.line(u"txtwstd"_s, tr("Area c&ode"), u"W_std"_s, KeyFilter::NoLetters)
        .beside(2)
        .line(u"txtwph1"_s, tr("phone"), u"w_Ph1"_s)
        .beside()
        .line(u"txtwxtn"_s, tr("ext."), u"W_Tel_XTN"_s)
        .line(u"txtwph2"_s, tr("Phone 2"), u"w_Ph2"_s)
        .beside()
        .line(u"txtwph3"_s, tr("3"), u"w_ph3"_s)
        .line(u"txtfax"_s, tr("&Fax"), u"fax"_s);
}

void workDetails(FormKit& kit)
{
    kit.group(tr("Work"))
        .combo(u"dtcmbjob"_s, tr("&Job title"), u"Job_Title"_s)
        .combo(u"Dtcmbbproduct"_s, tr("&Product"), u"Product"_s)
        .line(u"txtaltcontact"_s, tr("A&lternate contact"), u"altcontact"_s)
        .combo(u"dtcmbalttitle"_s, tr("and title"), u"AltTitle"_s)
        .group(tr("E-mail and web"))
        .line(u"txtbemail1"_s, tr("E-&mail"), u"b_email1"_s)
        .line(u"txtbemail2"_s, tr("E-mail 2"), u"b_email2"_s)
        .line(u"txtbweb"_s, tr("&Web"), u"B_Web"_s);
}

/// The user's own fields, with the line in which a label is renamed.
void userFields(FormKit& kit)
{
    auto* rename = new QLineEdit;
    rename->setPlaceholderText(tr("New label, then Enter"));
    kit.group(tr("Your own fields"));
    for (int number = 1; number <= 3; ++number)
        userField(kit, number);
    kit.widget(u"txtlbl"_s, {}, rename);
    rename->hide();
}

QWidget* personal(const SizeOf& sizeOf, bool withUserFields)
{
    auto* page = new QWidget;
    auto* words = new widgets::HeadingGrid;
    words->setHeadings(u"Common words                ", {u"word"_s});
    words->setMinimumHeight(90);
    FormKit kit(page, sizeOf);
    kit.group(tr("Person"))
        .date(u"DateBday"_s, tr("Birt&hday"), u"M_BD"_s)
        .beside()
        .date(u"DateAnn"_s, tr("anniversary"), u"Anniv"_s)
        .combo(u"dtcmbmid"_s, tr("Mi&ddle name"), u"Mid"_s)
        .beside()
        .combo(u"dtcmbnick"_s, tr("nick"), u"nick"_s)
        .line(u"dtcmbmaiden"_s, tr("Maiden name"), u"Maiden"_s)
        .beside()
        .combo(u"dtcmbcity1"_s, tr("home city"), u"h_city"_s)
        .group(tr("Family"))
        .combo(u"dtcspouse"_s, tr("S&pouse"), u"Spouse"_s)
        .beside()
        .date(u"DateSpouse"_s, tr("born"), u"Sp_BD"_s)
        .line(u"txtspmobile"_s, tr("Spouse's mobile"), u"SP_Mobile"_s)
        .line(u"dtckid1"_s, tr("&Kid 1"), u"kid1"_s)
        .beside()
        .date(u"Datekid1"_s, tr("born"), u"Kid1_BD"_s)
        .line(u"dtckid2"_s, tr("Kid 2"), u"kid2"_s)
        .beside()
        .date(u"datekid2"_s, tr("born"), u"Kid2_BD"_s)
        .line(u"dtckid3"_s, tr("Kid 3"), u"kid3"_s)
        .beside()
        .date(u"datekid3"_s, tr("born"), u"Kid3_BD"_s)
        .group(tr("Associates"))
        .combo(u"dtcmbasso1"_s, tr("Associate &1"), u"Asso1"_s)
        .combo(u"dtcmbasso2"_s, tr("Associate &2"), u"asso2"_s)
        .stretch()
        .nextColumn()
        .group(tr("About"))
        .combo(u"dtcmbrelation"_s, tr("&Relation"), u"Relation"_s)
        .beside()
        .combo(u"Dtcmbstatus"_s, tr("status"), u"Status"_s)
        .combo(u"dtcmbreligion"_s, tr("Rel&igion"), u"Religion"_s)
        .beside()
        .combo(u"dtcmbregion"_s, tr("region"), u"region"_s)
        .combo(u"CmbEducation"_s, tr("Educatio&n"), u"education"_s)
        .combo(u"txthobby"_s, tr("Hobb&ies"), u"Hobbies"_s);
    if (withUserFields)
        userFields(kit);
    kit.group(tr("Note"))
        .memo(u"txtMemo"_s, tr("N&ote"), u"memo1"_s, 5)
        .hint(tr("Words that you use often appear below while you type; a click completes the word"))
        .wide(u"FG1"_s, tr("Common words"), words)
        .stretch();
    words->hide();
    return scrolling(page);
}

} // namespace

QWidget* contactPage(const SizeOf& sizeOf)
{
    auto* page = new QWidget;
    FormKit kit(page, sizeOf);
    kit.group(tr("Name"))
        .combo(u"Cmbtitle"_s, tr("T&itle"), u"Title"_s)
        .beside()
        .combo(u"CmbSex"_s, tr("se&x"), u"sex"_s)
        .combo(u"dtcmbfname"_s, tr("&First"), u"First"_s)
        .combo(u"dtcmblname"_s, tr("&Last"), u"Last"_s)
        .line(u"txtcmpny"_s, tr("Co&mpany"), u"Company"_s)
        .line(u"txtcmpnyPrefix"_s, tr("From name"))
        .hint(tr("The firm's name without its legal form; together with the suffix it makes the company"))
        .combo(u"txtcmpnySuffix"_s, tr("Suffix"))
        .combo(u"cmbnview"_s, tr("Name &view"), u"Nview"_s)
        .hint(tr("How the name is put together in lists"))
        .group(tr("Classes"))
        .combo(u"DtcmbCate"_s, tr("Cate&gory"), u"category1"_s)
        .beside(0)
        .button(u"SSCommand8"_s, tr("Category  >>"), u"category", tr("Keep the lists of categories"))
        .combo(u"DtcmbSubCate"_s, tr("S&ubcategory"), u"category2"_s)
        .combo(u"cmbpriority"_s, tr("Priori&ty"), u"Priority"_s, KeyFilter::Digits)
        .hint(tr("1 is highest, 5 is lowest"))
        .stretch()
        .nextColumn()
        .group(tr("Home address"))
        .line(u"txtadd1"_s, tr("Add&ress"), u"h_add1"_s)
        .line(u"txtadd2"_s, {}, u"h_add2"_s)
        .hint(tr("Press (.) for Autotext"))
        .combo(u"dtcmbcity"_s, tr("Cit&y"), u"h_city"_s)
        .grow(2)
        .beside()
        .line(u"dtcmbpin"_s, tr("pin"), u"h_pin"_s)
        .combo(u"dtcmbstate"_s, tr("Stat&e"), u"h_state"_s)
        .combo(u"dtcmbcountry"_s, tr("Cou&ntry"), u"h_country"_s)
        .caption(u"LblStateFull"_s, {}, {})
        .group(tr("Telephone"))
        .line(u"txtstd"_s, tr("Area c&ode"), u"h_std"_s, KeyFilter::NoLetters)
        .beside(2)
        .line(u"txtph1"_s, tr("phone"), u"H_Ph1"_s)
        .line(u"txtph2"_s, tr("Phone 2"), u"h_ph2"_s)
        .beside()
        .line(u"txtph3"_s, tr("3"), u"h_ph3"_s)
        .line(u"txtMobile"_s, tr("Mo&bile"), u"Mobile"_s)
        .beside()
        .line(u"txtSMS"_s, tr("SMS"), u"Sms"_s)
        .group(tr("E-mail and web"))
        .line(u"txtemail1"_s, tr("E-&mail"), u"H_email1"_s)
        .beside()
        .combo(u"cboemail1"_s, tr("@"))
        .line(u"txtemail2"_s, tr("E-mail 2"), u"h_email2"_s)
        .line(u"txtweb"_s, tr("&Web"), u"h_web"_s)
        .stretch();
    return scrolling(page);
}

QWidget* workOnePage(const SizeOf& sizeOf)
{
    auto* page = new QWidget;
    FormKit kit(page, sizeOf);
    kit.group(tr("Work 1 address"))
        .line(u"txtbadd1"_s, tr("Add&ress"), u"b_add1"_s)
        .line(u"txtbadd2"_s, {}, u"b_add2"_s)
        .hint(tr("Press (.) for Autotext"))
        .combo(u"dtcmbbcity"_s, tr("Cit&y"), u"b_city"_s)
        .grow(2)
        .beside()
        .line(u"dtcmbbpin"_s, tr("pin"), u"b_pin"_s)
        .combo(u"dtcmbbstate"_s, tr("Stat&e"), u"b_state"_s)
        .combo(u"dtcmbbcountry"_s, tr("Cou&ntry"), u"b_country"_s)
        .combo(u"txtbaddty"_s, tr("Address t&ype"), u"B_Add_Type"_s)
        .group(tr("Telephone"))
        .line(u"txtbstd"_s, tr("Area c&ode"), u"B_std"_s, KeyFilter::NoLetters)
        .beside(2)
        .line(u"txtbph1"_s, tr("phone"), u"B_Ph1"_s)
        .beside()
        .line(u"txtbxtn"_s, tr("ext."), u"b_tel_xtn"_s)
        .line(u"txtbph2"_s, tr("Phone 2"), u"B_Ph2"_s)
        .beside()
        .line(u"txtbph3"_s, tr("3"), u"B_ph3"_s)
        .stretch()
        .nextColumn();
    workDetails(kit);
    kit.group(tr("Note")).memo(u"txtbnote"_s, tr("&Business note"), u"b_note"_s, 4).stretch();
    return scrolling(page);
}

QWidget* workTwoPage(const SizeOf& sizeOf)
{
    auto* page = new QWidget;
    FormKit kit(page, sizeOf);
    kit.group(tr("Work 2 address"));
    workTwoAddress(kit);
    kit.stretch().nextColumn().group(tr("Telephone"));
    workTwoPhones(kit);
    kit.stretch();
    return scrolling(page);
}

QWidget* briefWorkPage(const SizeOf& sizeOf)
{
    auto* page = new QWidget;
    FormKit kit(page, sizeOf);
    kit.group(tr("Work address"));
    workTwoAddress(kit);
    kit.group(tr("Telephone"));
    workTwoPhones(kit);
    kit.stretch().nextColumn();
    workDetails(kit);
    kit.stretch();
    return scrolling(page);
}

QWidget* personalPage(const SizeOf& sizeOf)
{
    return personal(sizeOf, true);
}

QWidget* briefPersonalPage(const SizeOf& sizeOf)
{
    return personal(sizeOf, false);
}

QWidget* picturePage(const SizeOf&)
{
    auto* page = new QWidget;
    auto* picture = new widgets::PictureBox;
    picture->setMinimumSize(320, 320);
    FormKit kit(page);
    kit.group(tr("Picture"))
        .wide(u"Photo"_s, tr("Picture of the contact"), picture)
        .caption(u"lblPhoto"_s)
        .buttonRow()
        .button(u"SSCommand9"_s, tr("Select P&icture"), u"picture",
            tr("Choose one of the pictures of your photo folder"))
        .button(u"CmdPhto"_s, tr("Select Picture from fol&der"), u"folder",
            tr("Choose a picture anywhere on this computer"))
        .button(u"cmdNoPhoto"_s, tr("Remo&ve"), u"delete",
            tr("The contact has no picture any more; the file stays"))
        .stretch();
    return scrolling(page);
}

QWidget* entryHead()
{
    auto* head = new QWidget;
    auto* row = new QHBoxLayout(head);
    row->setContentsMargins(2, 0, 2, 0);
    auto* mode = new QLabel;
    mode->setObjectName(u"Label10"_s);
    QFont bold = mode->font();
    bold.setBold(true);
    mode->setFont(bold);
    auto* id = new QLabel;
    id->setObjectName(u"lblid"_s);
    id->setToolTip(tr("The number of the contact"));
    id->setEnabled(false);
    auto* name = new QLabel;
    name->setObjectName(u"lblname"_s);
    name->setTextFormat(Qt::PlainText);
    QFont large = name->font();
    large.setPointSizeF(large.pointSizeF() * 1.3);
    name->setFont(large);
    auto* hint = new QLabel(tr("Choose Add for a new contact, or Edit to change one"));
    hint->setObjectName(u"lblhint"_s);
    hint->setFont(large);
    hint->setForegroundRole(QPalette::PlaceholderText);
    auto* progress = new QProgressBar;
    progress->setObjectName(u"ProgressBar1"_s);
    progress->setFixedSize(120, 8);
    progress->setTextVisible(false);
    progress->hide();
    row->addWidget(mode);
    row->addWidget(id);
    row->addWidget(hint);
    row->addWidget(name, 1);
    row->addWidget(progress);
    return head;
}

QWidget* entryButtons()
{
    auto* buttons = new QWidget;
    widgets::FormKit kit(buttons);
    kit.buttonRow()
        .button(u"SSCommand3"_s, tr("&Add"), u"person-add", tr("Enter a new contact"))
        .button(u"SSCommand10"_s, tr("&Edit"), u"person-edit", tr("Choose a contact and change it"))
        // They come next after the last field.
        .button(u"Command1"_s, tr("&Save"), u"save", tr("Store the contact (Ctrl+S)"))
        .button(u"CmdCancel"_s, tr("Cancel"), u"cancel", tr("Forget what was entered"))
        .button(u"CmdSave"_s, tr("Save as"), u"card", tr("Save to the book, the mail client or a card file"))
        .stretch()
        .button(u"SSCommand6"_s, tr("Go to Simple"), u"previous", tr("Back to the first page"))
        .button(u"SSCommand7"_s, tr("Go to Detailed"), u"next", tr("On to the personal page"))
        .button(u"ssassist"_s, tr("Assist"), u"info",
            tr("Known cities, names and companies to pick from, and a key pad"))
        .button(u"CmdHelp"_s, tr("Help"), u"help", tr("What this screen is for"));
    buttons->layout()->setContentsMargins(0, 0, 0, 0);
    widgets::setKey(widgets::child<QPushButton>(buttons, u"Command1"_s), QKeySequence::Save);
    return buttons;
}

} // namespace entry
