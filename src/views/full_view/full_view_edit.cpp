#include "views/full_view/full_view_edit.h"

#include "core/contact_lookups.h"
#include "core/date_patterns.h"
#include "core/save_failure.h"
#include "core/settings.h"
#include "core/touched_fields.h"
#include "core/vocabularies.h"
#include "views/field_label.h"
#include "views/full_view/full_view_save.h"
#include "widgets/date_box.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"
#include "widgets/theme.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using core::Vocabulary;
using widgets::child;
using widgets::FormKit;
using widgets::KeyFilter;

namespace views {

namespace {

constexpr QStringView kMailAddress = u"somebody@an.example.org";

struct ListRow {
    QStringView combo;
    Vocabulary list;
};
constexpr ListRow kLists[] = {
    {u"CmbEFirst", Vocabulary::FirstNames},
    {u"CmbELast", Vocabulary::LastNames},
    {u"CmbENick", Vocabulary::NickNames},
    {u"CmbECategory", Vocabulary::Categories},
    {u"CmbEProduct", Vocabulary::Products},
    {u"CmbEJobTitle", Vocabulary::JobTitles},
    {u"CmbEHCity", Vocabulary::TopCities},
    {u"CmbEWCity", Vocabulary::TopCities},
    {u"CmbEBCity", Vocabulary::TopCities},
    {u"CmbEHCountry", Vocabulary::Countries},
    {u"CmbEWCountry", Vocabulary::Countries},
    {u"CmbEBCountry", Vocabulary::Countries},
    {u"CmbEReligion", Vocabulary::Religions},
    {u"CmbEHobbies", Vocabulary::Hobbies},
    {u"CmbEEducation", Vocabulary::Educations},
    {u"CmbERegion", Vocabulary::Regions},
    {u"CmbERelation", Vocabulary::Relations},
    {u"CmbEUser1", Vocabulary::User1},
    {u"CmbEUser2", Vocabulary::User2},
    {u"CmbEUser3", Vocabulary::User3},
    {u"CmbEStatus", Vocabulary::Statuses},
};

const QStringList& genders()
{
    static const QStringList words{u"Male"_s, u"Female"_s, u"Lesbians"_s, u"Gays"_s};
    return words;
}

const QStringList& priorities()
{
    static const QStringList digits{u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s};
    return digits;
}

/// Typing is bounded by the column, but a longer text that the book already holds must not be cut.
void setLimit(QWidget* control, qsizetype characters)
{
    auto* combo = qobject_cast<QComboBox*>(control);
    if (auto* edit = combo ? combo->lineEdit() : qobject_cast<QLineEdit*>(control))
        edit->setMaxLength(int(characters));
}

} // namespace

FullViewEdit::FullViewEdit(core::Context& context, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , m_editor(context)
{
    auto* tabs = new QTabWidget;
    tabs->setDocumentMode(true);
    layOutPerson(addPage(tabs, tr("Person"), u"card"));
    layOutAddresses(addPage(tabs, tr("Addresses"), u"home"));
    layOutNumbers(addPage(tabs, tr("Telephone and e-mail"), u"phone"));
    layOutFamily(addPage(tabs, tr("Family and notes"), u"family"));
    tabs->setObjectName(u"TabsEditPages"_s);
    auto* commands = new QWidget;
    FormKit(commands)
        .buttonRow()
        .caption(u"LblESaved"_s)
        .button(u"CmdSave"_s, tr("&Save"), u"save", tr("Save the changes to this contact"));
    commands->layout()->setContentsMargins(12, 0, 12, 8);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(tabs, 1);
    layout->addWidget(commands);
    m_fields = widgets::FieldSet(tabs);
    m_note = child<QLabel>(this, u"LblESaved"_s);
    connect(
        child<QPushButton>(this, u"CmdSave"_s), &QPushButton::clicked, this, &FullViewEdit::saveRequested);
    connectLists();
    for (auto* box : findChildren<widgets::DateBox*>())
        box->setFormat(core::datePattern(m_context.shared.NationalMode));
    // The page can't change these two, so they are shown as what they are.
    for (const QString& name : {u"DtpEBirthday"_s, u"DtpEAnniversary"_s}) {
        auto* box = child<widgets::DateBox>(this, name);
        box->setEnabled(false);
        box->setToolTip(tr("This date is changed in the detailed form"));
    }
}

FormKit FullViewEdit::kit(QWidget* page) const
{
    return FormKit(
        page, [this](QStringView column) { return m_context.schema.textSize(u"cnt_main", column); });
}

QWidget* FullViewEdit::addPage(QTabWidget* tabs, const QString& title, QStringView icon) const
{
    auto* page = new QWidget;
    auto* area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidget(page);
    tabs->addTab(area, widgets::icon(icon), title);
    return page;
}

void FullViewEdit::layOutPerson(QWidget* page)
{
    FormKit form = kit(page);
    form.group(tr("Person"))
        .combo(u"CmbEFirst"_s, tr("&First name"), u"First"_s)
        .combo(u"CmbELast"_s, tr("&Last name"), u"Last"_s)
        .combo(u"CmbENick"_s, tr("&Nick name"), u"nick"_s)
        .combo(u"CmbEGender"_s, tr("&Gender"), u"sex"_s)
        .combo(u"CmbEReligion"_s, tr("Religion"), u"Religion"_s)
        .combo(u"CmbEEducation"_s, tr("E&ducation"), u"education"_s)
        .combo(u"CmbEHobbies"_s, tr("&Hobbies"), u"Hobbies"_s);
    form.nextColumn()
        .group(tr("Classes"))
        .combo(u"CmbECategory"_s, tr("&Category"), u"category1"_s)
        .combo(u"CmbESubCategory"_s, tr("S&ubcategory"), u"category2"_s)
        .combo(u"CmbEPriority"_s, tr("&Priority"), u"Priority"_s, KeyFilter::Digits)
        .combo(u"CmbEProduct"_s, tr("P&roduct"), u"Product"_s)
        .combo(u"CmbEStatus"_s, tr("S&tatus"), u"Status"_s)
        .combo(u"CmbERegion"_s, tr("R&egion"), u"region"_s)
        .combo(u"CmbERelation"_s, tr("Rel&ation"), u"Relation"_s);
    form.nextColumn()
        .group(tr("Work"))
        .line(u"TxtECompany"_s, tr("Co&mpany"), u"Company"_s)
        .combo(u"CmbEJobTitle"_s, tr("&Job title"), u"Job_Title"_s)
        .line(u"TxtEAltTitle"_s, tr("&Other contact"), u"AltTitle"_s)
        .hint(tr("Title of the other contact"))
        .beside()
        .line(u"TxtEAltContact"_s, {}, u"altcontact"_s);
    form.group(tr("Own fields"))
        .combo(u"CmbEUser1"_s, tr("User &1"), u"User1"_s)
        .combo(u"CmbEUser2"_s, tr("User &2"), u"User2"_s)
        .combo(u"CmbEUser3"_s, tr("User &3"), u"User3"_s);
}

void FullViewEdit::layOutAddresses(QWidget* page)
{
    FormKit form = kit(page);
    form.nextColumn()
        .group(tr("Home"))
        .line(u"TxtEHAdd1"_s, tr("&Address"), u"h_add1"_s)
        .line(u"TxtEHAdd2"_s, {}, u"h_add2"_s)
        .combo(u"CmbEHCity"_s, tr("&City"), u"h_city"_s)
        .line(u"TxtEHPin"_s, tr("&Pin"), u"h_pin"_s)
        .line(u"TxtEHState"_s, tr("&State"), u"h_state"_s)
        .combo(u"CmbEHCountry"_s, tr("Cou&ntry"), u"h_country"_s);
    form.nextColumn()
        .group(workTitle(1))
        .line(u"TxtEWType"_s, tr("&Type"), u"W_AddType"_s)
        .line(u"TxtEWAdd1"_s, tr("A&ddress"), u"w_add1"_s)
        .line(u"TxtEWAdd2"_s, {}, u"w_add2"_s)
        .combo(u"CmbEWCity"_s, tr("C&ity"), u"w_city"_s)
        .line(u"TxtEWPin"_s, tr("Pin"), u"w_pin"_s)
        .line(u"TxtEWState"_s, tr("State"), u"w_State"_s)
        .combo(u"CmbEWCountry"_s, tr("Co&untry"), u"w_country"_s);
    form.nextColumn()
        .group(workTitle(2))
        .line(u"TxtEBType"_s, tr("T&ype"), u"B_Add_Type"_s)
        .line(u"TxtEBAdd1"_s, tr("Add&ress"), u"b_add1"_s)
        .line(u"TxtEBAdd2"_s, {}, u"b_add2"_s)
        .combo(u"CmbEBCity"_s, tr("City"), u"b_city"_s)
        .line(u"TxtEBPin"_s, tr("Pin"), u"b_pin"_s)
        .line(u"TxtEBState"_s, tr("State"), u"b_state"_s)
        .combo(u"CmbEBCountry"_s, tr("Country"), u"b_country"_s);
}

void FullViewEdit::layOutNumbers(QWidget* page)
{
    FormKit form = kit(page);
    form.wrap()
        .nextColumn()
        .group(tr("Home"))
        .line(u"TxtEHStd"_s, tr("&Area code"), u"h_std"_s, KeyFilter::NoLetters)
        .line(u"TxtEHPh1"_s, tr("&Numbers"), u"H_Ph1"_s)
        .line(u"TxtEHPh2"_s, {}, u"h_ph2"_s)
        .line(u"TxtEHPh3"_s, {}, u"h_ph3"_s)
        .line(u"TxtEMobile"_s, tr("&Mobile"), u"Mobile"_s)
        .line(u"TxtEHEmail1"_s, tr("&E-mail"), u"H_email1"_s)
        .least(kMailAddress)
        .line(u"TxtEHEmail2"_s, {}, u"h_email2"_s)
        .line(u"TxtEHWeb"_s, tr("&Web"), u"h_web"_s);
    form.nextColumn()
        .group(workTitle(1))
        .line(u"TxtEWStd"_s, tr("A&rea code"), u"W_std"_s, KeyFilter::NoLetters)
        .line(u"TxtEWPh1"_s, tr("N&umbers"), u"w_Ph1"_s)
        .line(u"TxtEWPh2"_s, {}, u"w_Ph2"_s)
        .line(u"TxtEWPh3"_s, {}, u"w_ph3"_s)
        .line(u"TxtESpMobile"_s, tr("&Spouse's mobile"), u"SP_Mobile"_s)
        .line(u"TxtEWEmail1"_s, tr("E-mai&l"), u"b_email1"_s)
        .least(kMailAddress)
        .line(u"TxtEWEmail2"_s, {}, u"b_email2"_s)
        .line(u"TxtEWWeb"_s, tr("We&b"), u"B_Web"_s);
    form.nextColumn()
        .group(workTitle(2))
        .line(u"TxtEBStd"_s, tr("Area &code"), u"B_std"_s, KeyFilter::NoLetters)
        .line(u"TxtEBPh1"_s, tr("Numbers"), u"B_Ph1"_s)
        .line(u"TxtEBPh2"_s, {}, u"B_Ph2"_s)
        .line(u"TxtEBPh3"_s, {}, u"B_ph3"_s)
        .line(u"TxtEFax"_s, tr("&Fax"), u"fax"_s);
}

void FullViewEdit::layOutFamily(QWidget* page)
{
    FormKit form = kit(page);
    form.nextColumn()
        .group(tr("Family"))
        .date(u"DtpEBirthday"_s, tr("&Birthday"))
        .date(u"DtpEAnniversary"_s, tr("Anni&versary"))
        .line(u"TxtESpouse"_s, tr("Spo&use"), u"Spouse"_s);
    for (const QString& n : {u"1"_s, u"2"_s, u"3"_s}) {
        form.line(u"TxtEKid"_s + n, tr("Child &%1").arg(n), u"kid"_s + n)
            .beside()
            .date(u"DtpEKid"_s + n, tr("born"), u"Kid%1_BD"_s.arg(n));
    }
    form.group(tr("Associates"))
        .line(u"TxtEAsso1"_s, tr("&First"), u"Asso1"_s)
        .line(u"TxtEAsso2"_s, tr("Sec&ond"), u"asso2"_s);
    form.nextColumn().group(tr("Business")).memo(u"TxtEBNote"_s, tr("&Note"), u"b_note"_s, 8);
}

void FullViewEdit::connectLists()
{
    core::Context& context = m_context;
    for (const ListRow& row : kLists) {
        child<widgets::FilledCombo>(this, row.combo.toString())->setSource([&context, list = row.list] {
            return core::readVocabulary(context.data, context.info, list, context.shared.NationalMode);
        });
    }
    child<widgets::FilledCombo>(this, u"CmbEGender"_s)->setValues(genders());
    child<widgets::FilledCombo>(this, u"CmbEPriority"_s)->setValues(priorities());
    auto* category = child<widgets::FilledCombo>(this, u"CmbECategory"_s);
    auto* subcategory = child<widgets::FilledCombo>(this, u"CmbESubCategory"_s);
    subcategory->setSource([&context, category] {
        return core::firstColumn(context.data, core::subcategoriesSql(category->currentText()));
    });
    connect(category, &QComboBox::currentTextChanged, subcategory, &widgets::FilledCombo::refill);
}

void FullViewEdit::loadContact(qint64 id)
{
    const jet::Recordset row = m_editor.load(id);
    m_note->clear();
    for (const EditSource& source : editTexts()) {
        auto* control = child<QWidget>(this, source.control.toString());
        const QString text = row.textOrEmpty(source.column);
        const qsizetype size = m_context.schema.textSize(u"cnt_main", source.column);
        setLimit(control, std::max(size, text.size()));
        widgets::setTextOf(control, text);
    }
    widgets::clear(child<QWidget>(this, u"TxtEHWeb"_s));
    const QStringList labels = core::userFieldLabels(core::readSettings(m_context.data));
    for (int number = 1; number <= labels.size(); ++number)
        showFieldLabel(this, u"CmbEUser%1"_s.arg(number), labels[number - 1]);
    for (const EditSource& source : editDates()) {
        const QDate date = row.date(source.column);
        child<widgets::DateBox>(this, source.control.toString())
            ->setDate(date.isValid() ? std::optional(date) : std::nullopt);
    }
    child<QPushButton>(this, u"CmdSave"_s)->setEnabled(row.hasRow());
    m_fields.keepAsLoaded();
}

bool FullViewEdit::saveContact()
{
    m_note->clear();
    if (widgets::DateBox* bad = m_fields.firstBadDate()) {
        bad->askToMend();
        return false;
    }
    const auto outcome = m_editor.store(editPageColumns(m_fields.values(), core::touchedFieldsOf(m_fields)));
    if (outcome == core::RecordEditor::Outcome::Gone)
        m_editor.sayGone();
    if (outcome != core::RecordEditor::Outcome::Stored)
        return false;
    loadContact(m_editor.id());
    return true;
}

void FullViewEdit::tell(const QString& text)
{
    m_note->setText(text);
}

} // namespace views
