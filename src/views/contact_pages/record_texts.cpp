#include "views/contact_pages/record_texts.h"

#include "core/date_patterns.h"
#include "jet/date_text.h"

#include <QStringList>

#include <array>
#include <span>

using namespace Qt::StringLiterals;

namespace views {

namespace {

enum class Compose {
    Plain,
    Words, ///< with a blank between
    Dashed, ///< with " - " between
    Places, ///< with "  -  " between
    Lines, ///< a line each
    WithMaiden, ///< the second in brackets behind the first
    ShortDate,
    Date,
    Age,
    Association,
};

struct TextRow {
    QStringView control;
    Compose how;
    std::array<QStringView, 6> columns;
};

constexpr TextRow kFullView[] = {
    {u"lblid", Compose::Plain, {u"id"}},
    {u"SSCommand8", Compose::Plain, {u"Name"}},
    {u"txtfirst", Compose::Words, {u"First", u"Mid", u"Last"}},
    {u"txtCat", Compose::Dashed, {u"category1", u"category2"}},
    {u"txtproduct", Compose::Plain, {u"Product"}},
    {u"txtcompany", Compose::Plain, {u"Company"}},
    {u"txtGender", Compose::Plain, {u"sex"}},
    {u"txthadd", Compose::Lines, {u"h_add1", u"h_add2"}},
    {u"txthcity", Compose::Places, {u"h_city", u"h_pin"}},
    {u"txthstate", Compose::Places, {u"h_state", u"h_country"}},
    {u"txtwtype", Compose::Plain, {u"W_AddType"}},
    {u"txtwadd", Compose::Lines, {u"w_add1", u"w_add2"}},
    {u"txtwcity", Compose::Places, {u"w_city", u"w_pin"}},
    {u"txtwstate", Compose::Places, {u"w_State", u"w_country"}},
    {u"txtbtype", Compose::Plain, {u"B_Add_Type"}},
    {u"txtbadd", Compose::Lines, {u"b_add1", u"b_add2"}},
    {u"txtbcity", Compose::Places, {u"b_city", u"b_pin"}},
    {u"txtbstate", Compose::Places, {u"b_state", u"b_country"}},
    {u"txthph1", Compose::Lines, {u"h_std", u"H_Ph1", u"h_ph2", u"h_ph3", u"Mobile"}},
    // Kept: the spouse's mobile stands under the first work address, the fax under the second.
    {u"txtwph1", Compose::Lines, {u"W_std", u"w_Ph1", u"w_Ph2", u"w_ph3", u"SP_Mobile"}},
    {u"txtbph1", Compose::Lines, {u"B_std", u"B_Ph1", u"B_Ph2", u"B_ph3", u"fax"}},
    {u"txthemail1", Compose::Lines, {u"H_email1", u"h_email2"}},
    {u"txtwemail1", Compose::Lines, {u"b_email1", u"b_email2"}},
    {u"txtHweb", Compose::Plain, {u"h_web"}},
    {u"txtWweb", Compose::Plain, {u"B_Web"}},
    {u"txtregion", Compose::Plain, {u"region"}},
    {u"txtstatus", Compose::Plain, {u"Status"}},
    {u"txtrelation", Compose::Plain, {u"Relation"}},
    {u"txtpriority", Compose::Plain, {u"Priority"}},
    {u"txtreligion", Compose::Plain, {u"Religion"}},
    {u"txteducation", Compose::Plain, {u"education"}},
    {u"txthobbies", Compose::Plain, {u"Hobbies"}},
    {u"txtnick", Compose::Plain, {u"nick"}},
    {u"txtJobTitle", Compose::Plain, {u"Job_Title"}},
    {u"txtAltTitle", Compose::Plain, {u"AltTitle"}},
    {u"txtaltcontact", Compose::Plain, {u"altcontact"}},
    {u"TxtUser1", Compose::Plain, {u"User1"}},
    {u"TxtUser2", Compose::Plain, {u"User2"}},
    {u"TxtUser3", Compose::Plain, {u"User3"}},
    {u"txtbnote", Compose::Plain, {u"b_note"}},
    {u"TxtSpouse", Compose::WithMaiden, {u"Spouse", u"Maiden"}},
    {u"dtpBirtday", Compose::ShortDate, {u"M_BD"}},
    {u"dtpSpouse", Compose::ShortDate, {u"Sp_BD"}},
    {u"dtpAnniv", Compose::ShortDate, {u"Anniv"}},
    {u"dtpKid1", Compose::ShortDate, {u"Kid1_BD"}},
    {u"dtpKid2", Compose::ShortDate, {u"Kid2_BD"}},
    {u"dtpKid3", Compose::ShortDate, {u"Kid3_BD"}},
    {u"LblAsso1", Compose::Plain, {u"Asso1"}},
    {u"LblAsso2", Compose::Plain, {u"asso2"}},
};

constexpr TextRow kDetailView[] = {
    {u"lblid", Compose::Plain, {u"id"}},
    {u"lblname", Compose::Plain, {u"Name"}},
    {u"cmbpriority", Compose::Plain, {u"Priority"}},
    {u"DtcmbCate", Compose::Plain, {u"category1"}},
    {u"DtcmbSubCate", Compose::Plain, {u"category2"}},
    {u"dtcmbfname", Compose::Plain, {u"First"}},
    {u"dtcmblname", Compose::Plain, {u"Last"}},
    {u"txtcmpny", Compose::Plain, {u"Company"}},
    {u"txtproduct", Compose::Plain, {u"Product"}},
    {u"cmbuser1", Compose::Plain, {u"User1"}},
    {u"cmbuser2", Compose::Plain, {u"User2"}},
    {u"cmbuser3", Compose::Plain, {u"User3"}},
    {u"txtadd1", Compose::Plain, {u"h_add1"}},
    {u"txtadd2", Compose::Plain, {u"h_add2"}},
    {u"dtcmbcity", Compose::Plain, {u"h_city"}},
    {u"dtcmbpin", Compose::Plain, {u"h_pin"}},
    {u"dtcmbstate", Compose::Plain, {u"h_state"}},
    {u"dtcmbcountry", Compose::Plain, {u"h_country"}},
    {u"txtstd", Compose::Plain, {u"h_std"}},
    {u"txtph1", Compose::Plain, {u"H_Ph1"}},
    {u"txtph2", Compose::Plain, {u"h_ph2"}},
    {u"txtph3", Compose::Plain, {u"h_ph3"}},
    {u"txtMobile", Compose::Plain, {u"Mobile"}},
    {u"txtspmobile", Compose::Plain, {u"SP_Mobile"}},
    {u"txtemail1", Compose::Plain, {u"H_email1"}},
    {u"txtemail2", Compose::Plain, {u"h_email2"}},
    {u"txtSMS", Compose::Plain, {u"Sms"}},
    {u"txtweb", Compose::Plain, {u"h_web"}},
    {u"dtcmbregion", Compose::Plain, {u"region"}},
    {u"Dtcmbstatus", Compose::Plain, {u"Status"}},
    {u"dtcmbrelation", Compose::Plain, {u"Relation"}},
    {u"CmbEducation", Compose::Plain, {u"education"}},
    {u"txthobby", Compose::Plain, {u"Hobbies"}},
    {u"dtcmbreligion", Compose::Plain, {u"Religion"}},
    {u"CmbSex", Compose::Plain, {u"sex"}},
    {u"txtMemo", Compose::Plain, {u"memo1"}},
    {u"dtcspouse", Compose::Plain, {u"Spouse"}},
    {u"dtckid1", Compose::Plain, {u"kid1"}},
    {u"dtckid2", Compose::Plain, {u"kid2"}},
    {u"dtckid3", Compose::Plain, {u"kid3"}},
    {u"DateBday", Compose::Date, {u"M_BD"}},
    {u"DateSpouse", Compose::Date, {u"Sp_BD"}},
    {u"Datekid1", Compose::Date, {u"Kid1_BD"}},
    {u"datekid2", Compose::Date, {u"Kid2_BD"}},
    {u"datekid3", Compose::Date, {u"Kid3_BD"}},
    {u"DateAnn", Compose::Date, {u"Anniv"}},
    {u"lblage", Compose::Age, {u"M_BD"}},
    {u"lblspage", Compose::Age, {u"Sp_BD"}},
    {u"lblk1age", Compose::Age, {u"Kid1_BD"}},
    {u"lblk2age", Compose::Age, {u"Kid2_BD"}},
    {u"lblk3age", Compose::Age, {u"Kid3_BD"}},
    {u"dtcmbmaiden", Compose::Plain, {u"Maiden"}},
    {u"dtcmbnick", Compose::Plain, {u"nick"}},
    {u"dtcmbmid", Compose::Plain, {u"Mid"}},
    {u"dtcmbjob", Compose::Plain, {u"Job_Title"}},
    {u"txtbaddty", Compose::Plain, {u"B_Add_Type"}},
    {u"txtbadd1", Compose::Plain, {u"b_add1"}},
    {u"txtbadd2", Compose::Plain, {u"b_add2"}},
    {u"dtcmbbcity", Compose::Plain, {u"b_city"}},
    {u"dtcmbbpin", Compose::Plain, {u"b_pin"}},
    {u"dtcmbbstate", Compose::Plain, {u"b_state"}},
    {u"dtcmbbcountry", Compose::Plain, {u"b_country"}},
    {u"txtbstd", Compose::Plain, {u"B_std"}},
    {u"txtbph1", Compose::Plain, {u"B_Ph1"}},
    {u"txtbph2", Compose::Plain, {u"B_Ph2"}},
    {u"txtbph3", Compose::Plain, {u"B_ph3"}},
    {u"txtbxtn", Compose::Plain, {u"b_tel_xtn"}},
    {u"txtbemail1", Compose::Plain, {u"b_email1"}},
    {u"txtbemail2", Compose::Plain, {u"b_email2"}},
    {u"txtbweb", Compose::Plain, {u"B_Web"}},
    {u"txtbnote", Compose::Plain, {u"b_note"}},
    {u"txtwemail1", Compose::Plain, {u"w_email1"}},
    {u"txtwemail2", Compose::Plain, {u"W_Email2"}},
    {u"txtwweb", Compose::Plain, {u"W_web"}},
    {u"dtcmbbadtyp", Compose::Plain, {u"W_AddType"}},
    {u"txtwadd1", Compose::Plain, {u"w_add1"}},
    {u"txtwadd2", Compose::Plain, {u"w_add2"}},
    {u"dtcmbwcity", Compose::Plain, {u"w_city"}},
    {u"dtcmbwpin", Compose::Plain, {u"w_pin"}},
    {u"dtcmbwstate", Compose::Plain, {u"w_State"}},
    {u"dtcmbwcountry", Compose::Plain, {u"w_country"}},
    {u"txtwstd", Compose::Plain, {u"W_std"}},
    {u"txtwph1", Compose::Plain, {u"w_Ph1"}},
    {u"txtwph2", Compose::Plain, {u"w_Ph2"}},
    {u"txtwph3", Compose::Plain, {u"w_ph3"}},
    {u"txtwxtn", Compose::Plain, {u"W_Tel_XTN"}},
    {u"cmdass1", Compose::Association, {u"Asso1"}},
    {u"cmdass2", Compose::Association, {u"asso2"}},
};

constexpr TextRow kResultDetail[] = {
    {u"lblname", Compose::Plain, {u"Name"}},
    {u"lbladd1", Compose::Lines, {u"h_add1", u"h_add2", u"h_city", u"h_state", u"h_pin", u"h_country"}},
    {u"lblbadd1", Compose::Lines, {u"w_add1", u"w_add2", u"w_city", u"w_State", u"w_pin", u"w_country"}},
    {u"lblaspouse", Compose::Plain, {u"Spouse"}},
    {u"lblkid1", Compose::Plain, {u"kid1"}},
    {u"lblkid2", Compose::Plain, {u"kid2"}},
    {u"lblkid3", Compose::Plain, {u"kid3"}},
    {u"lblcat1", Compose::Plain, {u"category1"}},
    {u"lblcat2", Compose::Plain, {u"category2"}},
    {u"lblcmp", Compose::Plain, {u"Company"}},
    {u"lblprd", Compose::Plain, {u"Product"}},
    {u"lblst", Compose::Plain, {u"Status"}},
    {u"lblrel", Compose::Plain, {u"Relation"}},
    {u"lblhph1", Compose::Plain, {u"H_Ph1"}},
    {u"lblwph1", Compose::Plain, {u"w_Ph1"}},
    {u"lblhph2", Compose::Plain, {u"h_ph2"}},
    {u"lblwph2", Compose::Plain, {u"w_Ph2"}},
    {u"lblhph3", Compose::Plain, {u"h_ph3"}},
    {u"lblwph3", Compose::Plain, {u"w_ph3"}},
    {u"lblmobile", Compose::Plain, {u"Mobile"}},
    {u"lblspmobile", Compose::Plain, {u"SP_Mobile"}},
};

constexpr QStringView kBeforeName = u" - ";
constexpr QStringView kBehindName = u" Go  >> ";

struct Moment {
    bool nationalMode;
    QDate today;
};

// The age reached this year, as in the lists of birthdays, whether or not the day has passed.
QString ageText(QDate born, QDate today)
{
    return born.isValid() ? u"( "_s + QString::number(today.year() - born.year()) + u" )"_s : QString();
}

QString composed(const jet::Recordset& row, const TextRow& shown, const Moment& moment)
{
    QStringList parts;
    for (const QStringView column : shown.columns) {
        if (!column.isEmpty())
            parts << row.textOrEmpty(column);
    }
    const QStringView first = shown.columns[0];
    switch (shown.how) {
    case Compose::Plain: return parts[0];
    case Compose::Words: return parts.join(u' ');
    case Compose::Dashed: return parts.join(u" - "_s);
    case Compose::Places: return parts.join(u"  -  "_s);
    case Compose::Lines: return parts.join(u"\r\n"_s);
    case Compose::WithMaiden: return parts[0] + u'(' + parts[1] + u')';
    case Compose::ShortDate:
        return jet::formatDate(row.date(first), core::shortDatePattern(moment.nationalMode));
    case Compose::Date: return jet::formatDate(row.date(first), core::datePattern(moment.nationalMode));
    case Compose::Age: return ageText(row.date(first), moment.today);
    case Compose::Association: return associationCaption(parts[0]);
    }
    return {};
}

QList<ShownText> composedAll(std::span<const TextRow> table, const jet::Recordset& row, const Moment& moment)
{
    QList<ShownText> texts;
    for (const TextRow& shown : table)
        texts << ShownText{shown.control.toString(), composed(row, shown, moment)};
    return texts;
}

} // namespace

QList<ShownText> fullViewTexts(const jet::Recordset& row, bool nationalMode)
{
    return composedAll(kFullView, row, {nationalMode, {}});
}

QList<ShownText> detailViewTexts(const jet::Recordset& row, bool nationalMode, QDate today)
{
    return composedAll(kDetailView, row, {nationalMode, today});
}

QList<ShownText> resultDetailTexts(const jet::Recordset& row)
{
    return composedAll(kResultDetail, row, {});
}

QString associationCaption(const QString& name)
{
    return kBeforeName.toString() + name + kBehindName.toString();
}

QString nameInAssociation(const QString& caption)
{
    return caption.mid(kBeforeName.size()).chopped(kBehindName.size());
}

} // namespace views
