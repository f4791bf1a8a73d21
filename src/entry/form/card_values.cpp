#include "entry/form/card_values.h"

#include <array>

using namespace Qt::StringLiterals;

namespace entry {

namespace {

formats::CardAddress address(const FormValues& values, const std::array<QStringView, 6>& controls)
{
    return {values.trimmed(controls[0]), values.trimmed(controls[1]), values.trimmed(controls[2]),
        values.trimmed(controls[3]), values.trimmed(controls[4]), values.trimmed(controls[5])};
}

} // namespace

formats::CardValues cardValuesOf(const FormValues& values, const QString& name)
{
    formats::CardValues card;
    card.name = name.trimmed();
    card.first = values.trimmed(u"dtcmbfname");
    card.middle = values.trimmed(u"dtcmbmid");
    card.last = values.trimmed(u"dtcmblname");
    card.nick = values.trimmed(u"dtcmbnick");
    card.company = values.trimmed(u"txtcmpny");
    card.spouse = values.trimmed(u"dtcspouse");
    card.workPhones = {values.trimmed(u"txtwph1"), values.trimmed(u"txtwph2"), values.trimmed(u"txtwph3")};
    card.homePhones = {values.trimmed(u"txtph1"), values.trimmed(u"txtph2"), values.trimmed(u"txtph3")};
    card.mobile = values.trimmed(u"txtMobile");
    card.fax = values.trimmed(u"txtfax");
    card.work = address(
        values, {u"txtwadd1", u"txtwadd2", u"dtcmbwcity", u"dtcmbwstate", u"dtcmbwpin", u"dtcmbwcountry"});
    card.home = address(
        values, {u"txtadd1", u"txtadd2", u"dtcmbcity", u"dtcmbstate", u"dtcmbpin", u"dtcmbcountry"});
    card.birthday = values.date(u"DateBday").value_or(QDate());
    const QString email = values.trimmed(u"txtemail1");
    card.email = email.isEmpty() ? QString() : QString(email + u'@' + values.trimmed(u"cboemail1"));
    card.secondEmail = values.trimmed(u"txtemail2");
    card.web = values.trimmed(u"txtweb");
    return card;
}

} // namespace entry
