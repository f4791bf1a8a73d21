#include "entry/form/mail_contact.h"

#include "core/contact_names.h"
#include "core/mail_key.h"

#include <array>

using namespace Qt::StringLiterals;

namespace entry {

namespace {

QString withSuffix(const QString& address, const QString& suffix)
{
    return address.trimmed().isEmpty() ? QString() : QString(address + u'@' + suffix);
}

platform::MailAddress address(const FormValues& values, const std::array<QStringView, 6>& controls)
{
    return {values.trimmed(controls[0]), values.trimmed(controls[1]), values.trimmed(controls[2]),
        values.trimmed(controls[3]), values.trimmed(controls[4]), values.trimmed(controls[5])};
}

} // namespace

platform::MailContact mailContactOf(const FormValues& values, const QString& name, qint64 id)
{
    platform::MailContact item;
    item.key = core::mailKeyOf(id);
    item.title = values.trimmed(u"Cmbtitle");
    item.first = values.trimmed(u"dtcmbfname");
    item.middle = values.trimmed(u"dtcmbmid");
    item.last = values.trimmed(u"dtcmblname");
    item.nick = values.trimmed(u"dtcmbnick");
    item.fullName = name;
    item.company = values.trimmed(u"txtcmpny");
    item.fileAs = core::nameViewOf(values.text(u"cmbnview")) == core::NameView::Company ? item.company : name;
    item.jobTitle = values.trimmed(u"dtcmbjob");
    item.home = address(
        values, {u"txtadd1", u"txtadd2", u"dtcmbcity", u"dtcmbstate", u"dtcmbpin", u"dtcmbcountry"});
    item.work = address(
        values, {u"txtbadd1", u"txtbadd2", u"dtcmbbcity", u"dtcmbbstate", u"dtcmbbpin", u"dtcmbbcountry"});
    item.other = address(
        values, {u"txtwadd1", u"txtwadd2", u"dtcmbwcity", u"dtcmbwstate", u"dtcmbwpin", u"dtcmbwcountry"});
    item.homePhone1 = values.trimmed(u"txtph1");
    item.homePhone2 = values.trimmed(u"txtph2");
    item.homePhone3 = values.trimmed(u"txtph3");
    item.workPhone1 = values.trimmed(u"txtbph1");
    item.workPhone2 = values.trimmed(u"txtbph2");
    item.workPhone3 = values.trimmed(u"txtbph3");
    item.mobile = values.trimmed(u"txtMobile");
    item.fax = values.trimmed(u"txtfax");
    item.email1 = withSuffix(values.text(u"txtemail1"), values.text(u"cboemail1"));
    item.email2 = values.trimmed(u"txtemail2");
    item.email3 = values.trimmed(u"txtbemail1");
    item.homeWeb = values.trimmed(u"txtweb");
    item.workWeb = values.trimmed(u"txtbweb");
    item.birthday = values.date(u"DateBday").value_or(QDate());
    item.anniversary = values.date(u"DateAnn").value_or(QDate());
    item.spouse = values.trimmed(u"dtcspouse");
    item.hobby = values.trimmed(u"txthobby");
    item.note = values.text(u"txtMemo");
    item.user1 = values.trimmed(u"cmbuser1");
    item.user2 = values.trimmed(u"cmbuser2");
    item.user3 = values.trimmed(u"cmbuser3");
    return item;
}

} // namespace entry
