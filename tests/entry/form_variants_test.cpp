#include "entry_form.h"

#include "entry/form/form_variant.h"
#include "widgets/date_box.h"

using namespace Qt::StringLiterals;

/// What the shorter and the business form do otherwise than the detailed one, by the rows that they write.
class FormVariantsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_form = std::make_unique<EntryForm>(); }
    void cleanup() { QCOMPARE(m_form->verify(), QString()); }
    void looksLikeItself_data();
    void looksLikeItself();
    void reachesTheMailClient_data();
    void reachesTheMailClient();
    void favouritesOfAnAddAndAnEdit();
    void briefRowIsWhole();
    void briefEditMovesTheWorkMail();
    void businessRowEqualsTheDetailedOne();

private:
    void enter(const QString& form);
    /// All columns of the only contact that hold something, but those that tell the time.
    QMap<QString, QString> row();

    std::unique_ptr<EntryForm> m_form;
};

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

void FormVariantsTest::enter(const QString& form)
{
    m_form->execute(u"insert into CNTB_SETUP (AddFav, UpdOutllook) values (true, true)"_s);
    m_form->start(form);
    m_form->click(u"SSCommand3"_s);
    fillAllFields(m_form->form());
    m_form->click(u"Command1"_s);
    QCOMPARE(m_form->contacts(), 1);
}

QMap<QString, QString> FormVariantsTest::row()
{
    QMap<QString, QString> cells;
    const jet::Recordset contact = m_form->book.data().openRecordset(u"select * from cnt_main");
    const QStringList columns = contact.columns();
    for (int column = 0; column < columns.size(); ++column) {
        const QString text = contact.textAt(0, column);
        if (!text.isEmpty() && text != u"0" && !columns[column].startsWith(u"date", Qt::CaseInsensitive))
            cells.insert(columns[column], text);
    }
    return cells;
}

void FormVariantsTest::looksLikeItself_data()
{
    QTest::addColumn<QString>("form");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QStringList>("pages");
    QTest::addColumn<QStringList>("sexes");
    QTest::addColumn<bool>("hasUserFields");
    const QStringList all{u"Contact"_s, u"Work1"_s, u"Work2"_s, u"Personal"_s, u"Picture"_s};
    const QStringList four{u"Male"_s, u"Female"_s, u"Lesbians"_s, u"Gays"_s};
    QTest::newRow("brief") << u"FormMain1"_s << u"Brief  Add Form"_s << u"Contacts Basic Add"_s
                           << QStringList{u"Contact"_s, u"Work2"_s, u"Personal"_s, u"Picture"_s} << four
                           << false;
    QTest::newRow("business") << u"FormMainBusiness"_s << u"Business Add Form"_s
                              << u"Contacts Business Add/Edit"_s << all << QStringList{u"Male"_s, u"Female"_s}
                              << true;
    QTest::newRow("detailed") << u"FormMain"_s << u"Detailed Add Form"_s << u"Contacts Detailed Add/Edit"_s
                              << all << four << true;
}

void FormVariantsTest::looksLikeItself()
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

void FormVariantsTest::reachesTheMailClient_data()
{
    QTest::addColumn<QString>("form");
    QTest::addColumn<QStringList>("calls");
    QTest::newRow("brief") << u"FormMain1"_s << QStringList{u"add 1OV"_s, u"update 1OV"_s};
    QTest::newRow("business") << u"FormMainBusiness"_s << QStringList{u"add 1OV"_s};
    QTest::newRow("detailed") << u"FormMain"_s << QStringList{u"add 1OV"_s, u"update 1OV"_s};
}

void FormVariantsTest::reachesTheMailClient()
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

void FormVariantsTest::favouritesOfAnAddAndAnEdit()
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

void FormVariantsTest::briefRowIsWhole()
{
    enter(u"FormMain1"_s);
    QMap<QString, QString> expected;
    for (const entry::ColumnRow& column : entry::briefAddColumns()) {
        if (!column.control.isEmpty() && column.control != u"Photo")
            expected.insert(column.column.toString(),
                column.rule == entry::Rule::Date ? u"1990-02-01"_s : column.control.toString());
    }
    expected[u"Nview"_s] = u"First,Last"_s;
    expected[u"Priority"_s] = u"3"_s;
    expected[u"Name"_s] = u"dtcmbfname dtcmblname"_s;
    expected[u"H_email1"_s] = u"txtemail1@cboemail1"_s;
    expected[u"Company"_s] = m_form->book.firstText(u"select company from cnt_main"_s);
    expected[u"id"_s] = u"1"_s;
    // As the table spells its columns.
    QMap<QString, QString> spelt;
    const QMap<QString, QString> stored = row();
    for (auto cell = expected.cbegin(); cell != expected.cend(); ++cell) {
        for (auto known = stored.cbegin(); known != stored.cend(); ++known) {
            if (known.key().compare(cell.key(), Qt::CaseInsensitive) == 0)
                spelt.insert(known.key(), cell.value());
        }
    }
    QCOMPARE(spelt.size(), expected.size());
    QCOMPARE(stored, spelt);
    QVERIFY(!stored.contains(u"b_add1"_s));
    QCOMPARE(stored.value(u"w_add1"_s), u"txtwadd1"_s);
}

void FormVariantsTest::briefEditMovesTheWorkMail()
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
            u"select b_email1,w_email1,b_web,w_web,category1,category2,status,region,product,fax,memo,memo1 "
            "from cnt_main"_s),
        QStringList{u"txtbemail1|new@work|txtbweb|txtbweb|||||Undefined|txtfax|txtMemo|txtMemo"_s});
    // What was changed is what is seen at the next change.
    QVERIFY(m_form->form()->showContact(1));
    QCOMPARE(m_form->text(u"txtbemail1"_s), u"new@work"_s);
    m_form->click(u"CmdCancel"_s);
}

void FormVariantsTest::businessRowEqualsTheDetailedOne()
{
    enter(u"FormMain"_s);
    const QMap<QString, QString> detailed = row();
    QCOMPARE(m_form->verify(), QString());
    init();
    enter(u"FormMainBusiness"_s);
    QCOMPARE(row(), detailed);
}

QTEST_MAIN(FormVariantsTest)
#include "form_variants_test.moc"
