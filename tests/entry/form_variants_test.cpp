#include "entry_form.h"

#include "support/columns.h"
#include "support/contact_fields.h"
#include "widgets/date_box.h"

using namespace Qt::StringLiterals;

namespace {

/// A text of its own in every field that can be typed into.
void fillAllFields(entry::FormMain* form)
{
    for (QWidget* field : form->findChildren<QWidget*>()) {
        const QString name = field->objectName();
        const bool isText = qobject_cast<QComboBox*>(field) || qobject_cast<QPlainTextEdit*>(field)
            || (qobject_cast<QLineEdit*>(field) && !qobject_cast<QComboBox*>(field->parentWidget()));
        if (auto* date = qobject_cast<widgets::DateBox*>(field))
            date->setDate(QDate(1990, 2, 1));
        else if (isText && !name.isEmpty() && !name.startsWith(u"qt_") && name != u"txtlbl")
            widgets::setTextOf(field, name);
    }
    widgets::setTextOf(widgets::child<QWidget>(form, u"cmbnview"_s), u"First,Last"_s);
    widgets::setTextOf(widgets::child<QWidget>(form, u"cmbpriority"_s), u"3"_s);
}

} // namespace

/// What the shorter and the business form do otherwise than the detailed one, by the rows that they write.
class FormVariantsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_form = std::make_unique<EntryForm>(); }
    void cleanup() { QCOMPARE(m_form->verify(), QString()); }

    void looksLikeItself_data()
    {
        support::columns<QString, QString, QString, QStringList, QStringList, bool>(
            "form", "caption", "title", "pages", "sexes", "hasUserFields");
        const QStringList all{u"Contact"_s, u"Work1"_s, u"Work2"_s, u"Personal"_s, u"Picture"_s};
        const QStringList four{u"Male"_s, u"Female"_s, u"Lesbians"_s, u"Gays"_s};
        QTest::newRow("brief") << u"FormMain1"_s << u"Brief  Add Form"_s << u"Contacts Basic Add"_s
                               << QStringList{u"Contact"_s, u"Work2"_s, u"Personal"_s, u"Picture"_s} << four
                               << false;
        QTest::newRow("business") << u"FormMainBusiness"_s << u"Business Add Form"_s
                                  << u"Contacts Business Add/Edit"_s << all
                                  << QStringList{u"Male"_s, u"Female"_s} << true;
        QTest::newRow("detailed") << u"FormMain"_s << u"Detailed Add Form"_s
                                  << u"Contacts Detailed Add/Edit"_s << all << four << true;
    }

    void looksLikeItself()
    {
        QFETCH(QString, form);
        m_form->start(form);
        QTEST(m_form->form()->windowTitle(), "caption");
        QTEST(m_form->form()->frameTitle(), "title");
        QStringList pages;
        auto* tabs = m_form->child<QTabWidget>(u"sstab1"_s);
        for (int page = 0; page < tabs->count(); ++page)
            pages << tabs->widget(page)->objectName();
        QTEST(pages, "pages");
        QStringList sexes;
        auto* sex = m_form->child<QComboBox>(u"CmbSex"_s);
        for (int i = 0; i < sex->count(); ++i)
            sexes << sex->itemText(i);
        QTEST(sexes, "sexes");
        QTEST(m_form->form()->findChild<QWidget*>(u"cmbuser1"_s) != nullptr, "hasUserFields");
        // Both ways to the page of the person and back.
        m_form->click(u"SSCommand7"_s);
        QCOMPARE(tabs->currentWidget()->objectName(), u"Personal"_s);
        m_form->click(u"SSCommand6"_s);
        QCOMPARE(tabs->currentIndex(), 0);
    }

    void reachesTheMailClient_data()
    {
        support::columns<QString, QStringList>("form", "calls");
        QTest::newRow("brief") << u"FormMain1"_s << QStringList{u"add 1OV"_s, u"update 1OV"_s};
        QTest::newRow("business") << u"FormMainBusiness"_s << QStringList{u"add 1OV"_s};
        QTest::newRow("detailed") << u"FormMain"_s << QStringList{u"add 1OV"_s, u"update 1OV"_s};
    }

    void reachesTheMailClient()
    {
        QFETCH(QString, form);
        enter(form);
        QVERIFY(m_form->form()->showContact(1));
        platform::MailContact& item = m_form->mailContacts.contacts.back();
        item.work.city = u"Pune"_s;
        item.first = u"Old"_s;
        m_form->click(u"Command1"_s);
        QTEST(m_form->mailContacts.calls, "calls");
        // The brief form has no second address, so it takes none away.
        if (form == u"FormMain1")
            QCOMPARE(item.work.city + item.first, u"Punedtcmbfname"_s);
    }

    // Each control in its field there.
    void mailContactIsWhole()
    {
        enter(u"FormMain"_s);
        const platform::MailContact& c = m_form->mailContacts.contacts.back();
        QStringList texts{
            c.key, c.title, c.first, c.middle, c.last, c.fullName, c.fileAs, c.nick, c.company, c.jobTitle};
        for (const platform::MailAddress& at : {c.home, c.work, c.other})
            texts << at.street1 << at.street2 << at.city << at.state << at.pin << at.country;
        texts << c.homePhone1 << c.homePhone2 << c.homePhone3 << c.workPhone1 << c.workPhone2 << c.workPhone3
              << c.mobile << c.fax << c.email1 << c.email2 << c.email3 << c.homeWeb << c.workWeb << c.spouse
              << c.hobby << c.user1 << c.user2 << c.user3 << c.note;
        QCOMPARE(texts.join(u'|'),
            u"1OV|Cmbtitle|dtcmbfname|dtcmbmid|dtcmblname|dtcmbfname dtcmblname|dtcmbfname "
            u"dtcmblname|dtcmbnick|"
            "txtcmpnyPrefix "
            "txtcmpnySuffix|dtcmbjob|txtadd1|txtadd2|dtcmbcity|dtcmbstate|dtcmbpin|dtcmbcountry|"
            "txtbadd1|txtbadd2|dtcmbbcity|dtcmbbstate|dtcmbbpin|dtcmbbcountry|txtwadd1|txtwadd2|dtcmbwcity|"
            "dtcmbwstate|dtcmbwpin|dtcmbwcountry|txtph1|txtph2|txtph3|txtbph1|txtbph2|txtbph3|txtMobile|"
            "txtfax|"
            "txtemail1@cboemail1|txtemail2|txtbemail1|txtweb|txtbweb|dtcspouse|txthobby|cmbuser1|cmbuser2|"
            "cmbuser3|txtMemo"_s);
    }

    void favouritesOfAnAddAndAnEdit()
    {
        enter(u"FormMain1"_s);
        QVERIFY(m_form->form()->showContact(1));
        m_form->click(u"Command1"_s);
        QStringList names;
        for (const auto& [name, address] : m_form->favourites.added)
            names << name;
        const QString name = u"dtcmbfname dtcmblname"_s;
        QCOMPARE(names, (QStringList{name + u"  H"_s, name + u"  W"_s, name + u" H"_s, name + u" W"_s}));
    }

    // Each control in its column, and nothing in the others.
    void briefRowIsWhole()
    {
        enter(u"FormMain1"_s);
        QMap<QString, QString> expected{{u"id"_s, u"1"_s}, {u"nview"_s, u"First,Last"_s},
            {u"priority"_s, u"3"_s}, {u"name"_s, u"dtcmbfname dtcmblname"_s},
            {u"h_email1"_s, u"txtemail1@cboemail1"_s}};
        for (const support::ContactField& field : support::contactFields(u"FormMain1"_s))
            expected[field.column] = field.isDate ? u"1990-02-01"_s : field.control;
        // The company is put together of its parts as these are filled in.
        expected[u"company"_s] = u"txtcmpnyPrefix txtcmpnySuffix"_s;
        QCOMPARE(row(), expected);
    }

    void briefEditMovesTheWorkMail()
    {
        enter(u"FormMain1"_s);
        QVERIFY(m_form->form()->showContact(1));
        QCOMPARE(m_form->text(u"txtbemail1"_s), u"txtbemail1"_s);
        m_form->set(u"txtbemail1"_s, u"new@work"_s);
        for (const QString& name :
            {u"DtcmbCate"_s, u"DtcmbSubCate"_s, u"Dtcmbstatus"_s, u"dtcmbregion"_s, u"Dtcmbbproduct"_s})
            m_form->set(name, {});
        m_form->click(u"Command1"_s);
        QCOMPARE(
            m_form->book.rows(
                u"select "
                u"b_email1,w_email1,b_web,w_web,category1,category2,status,region,product,fax,memo,memo1 "
                "from cnt_main"_s),
            QStringList{u"txtbemail1|new@work|txtbweb|txtbweb|||||Undefined|txtfax|txtMemo|txtMemo"_s});
        // What was changed is what is seen at the next change.
        QVERIFY(m_form->form()->showContact(1));
        QCOMPARE(m_form->text(u"txtbemail1"_s), u"new@work"_s);
        m_form->click(u"CmdCancel"_s);
    }

    void businessRowEqualsTheDetailedOne()
    {
        enter(u"FormMain"_s);
        const QMap<QString, QString> detailed = row();
        QCOMPARE(m_form->verify(), QString());
        init();
        enter(u"FormMainBusiness"_s);
        QCOMPARE(row(), detailed);
    }

private:
    void enter(const QString& form)
    {
        m_form->execute(u"insert into CNTB_SETUP (AddFav, UpdOutllook) values (true, true)"_s);
        m_form->start(form);
        m_form->click(u"SSCommand3"_s);
        fillAllFields(m_form->form());
        m_form->click(u"Command1"_s);
        QCOMPARE(m_form->contacts(), 1);
    }

    /// All columns of the only contact that hold something, but those that tell the time.
    QMap<QString, QString> row()
    {
        QMap<QString, QString> cells;
        const jet::Recordset contact = m_form->book.data().openRecordset(u"select * from cnt_main");
        const QStringList columns = contact.columns();
        for (int column = 0; column < columns.size(); ++column) {
            const QString text = contact.textAt(0, column);
            if (!text.isEmpty() && text != u"0" && !columns[column].startsWith(u"date", Qt::CaseInsensitive))
                cells.insert(columns[column].toLower(), text);
        }
        return cells;
    }

    std::unique_ptr<EntryForm> m_form;
};

QTEST_MAIN(FormVariantsTest)
#include "form_variants_test.moc"
