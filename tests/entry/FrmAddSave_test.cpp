#include "core/sound_files.h"
#include "entry_form.h"
#include "platform/contact_sync.h"
#include "support/columns.h"
#include "support/disk.h"
#include "widgets/date_box.h"

using namespace Qt::StringLiterals;

/// "Save as" of the entry form, from the button in the form to what lies in each place afterwards.
class FrmAddSaveTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_fixture = std::make_unique<EntryForm>(); }
    void cleanup() { QCOMPARE(m_fixture->verify(), QString()); }

    // Kept: the postal address and the work's mail have no line, and the second mail address has one.
    void cardsHoldWhatWasEntered()
    {
        enter();
        const QStringList fields{u"dtcmbmid"_s, u"dtcmbnick"_s, u"txtcmpny"_s, u"dtcspouse"_s, u"txtwph1"_s,
            u"txtwph2"_s, u"txtwph3"_s, u"txtph1"_s, u"txtph2"_s, u"txtph3"_s, u"txtMobile"_s, u"txtfax"_s,
            u"txtwadd1"_s, u"txtwadd2"_s, u"dtcmbwcity"_s, u"dtcmbwstate"_s, u"dtcmbwpin"_s,
            u"dtcmbwcountry"_s, u"txtadd1"_s, u"txtadd2"_s, u"dtcmbcity"_s, u"dtcmbstate"_s, u"dtcmbpin"_s,
            u"dtcmbcountry"_s, u"txtbadd1"_s, u"txtemail1"_s, u"cboemail1"_s, u"txtemail2"_s, u"txtbemail1"_s,
            u"txtweb"_s};
        for (const QString& field : fields)
            m_fixture->set(field, field == u"txtcmpny" ? u"Tea"_s : field);
        // Some lists fill others as they are chosen from.
        for (const QString& field : fields)
            m_fixture->set(field, field == u"txtcmpny" ? u"Tea"_s : field);
        m_fixture->set(u"cmbnview"_s, u"First,Last"_s);
        m_fixture->child<widgets::DateBox>(u"DateBday"_s)->setDate(QDate(1980, 3, 5));
        m_fixture->boxes.expect(u"VCF File Saved on C:\\OVUserFiles\\Contacts\\VCF\\Asha Rao.vcf"_s);
        m_fixture->boxes.expect(u"All data saved successfully"_s);
        saveAs({u"ChkVcf"_s});
        QCOMPARE(QString::fromLatin1(file(u"C:\\OVUserFiles\\Contacts\\VCF\\Asha Rao.vcf"_s))
                     .split(u"\r\n"_s)
                     .mid(2)
                     .join(u'|'),
            u"N:Asha dtcmbmid Rao;|FN:Asha "
            u"Rao|NICKNAME:dtcmbnick|ORG:Tea|SPOUSE:dtcspouse|TEL;WORK;VOICE:txtwph1|"
            "TEL;WORK;VOICE:txtwph2|TEL;WORK;VOICE:txtwph3|TEL;HOME;VOICE:txtph1|TEL;HOME;VOICE:txtph2|"
            "TEL;HOME;VOICE:txtph3|TEL;CELL;VOICE:txtMobile|TEL;WORK;FAX:txtfax|"
            "ADR;WORK:;office;txtwadd1 txtwadd2;dtcmbwcity;dtcmbwstate;dtcmbwpin;dtcmbwcountry|"
            "ADR;HOME:;;txtadd1 txtadd2;dtcmbcity;dtcmbstate;dtcmbpin;dtcmbcountry|BDAY:19800305|"
            "EMAIL;PREF;INTERNET:txtemail1@cboemail1|EMAIL;INTERNET:txtemail2|URL:http://txtweb|End:VCARD|"_s);
        // Nothing is in the book, and the form still holds what was entered.
        QCOMPARE(m_fixture->contacts(), 0);
        QCOMPARE(m_fixture->text(u"dtcmbfname"_s), u"Asha"_s);
        QCOMPARE(m_fixture->sounds.played, QStringList{core::sounds::Save.toString()});
    }

    void everywhereAtOnce()
    {
        enter();
        m_fixture->boxes.expect(u"VCF File Saved on C:\\OVUserFiles\\Contacts\\VCF\\Asha Rao.vcf"_s);
        m_fixture->boxes.expect(u"VCF File Saved on C:\\Desktop\\Asha Rao.vcf"_s);
        m_fixture->boxes.expect(u"All data saved successfully"_s);
        saveAs({u"chkMLdb"_s, u"chkOutlookdb"_s, u"chkOutlookexxpdb"_s, u"ChkVcf"_s, u"ChkVCFDesk"_s});
        QCOMPARE(m_fixture->contacts(), 1);
        QCOMPARE(m_fixture->mailContacts.contacts.size(), 1U);
        QCOMPARE(m_fixture->mailContacts.contacts[0].fullName, u"Asha Rao"_s);
        const QByteArray card = file(u"C:\\Desktop\\Asha Rao.vcf"_s);
        QVERIFY(card.contains("\r\nFN:Asha Rao\r\n"));
        QCOMPARE(file(u"C:\\OVUserFiles\\Contacts\\VCF\\Asha Rao.vcf"_s), card);
        QCOMPARE(file(u"C:\\Application Data\\Address Book\\Asha Rao.vcf"_s), card);
    }

    void keyComesWithTheStoredContact_data()
    {
        support::columns<QStringList, QString>("boxes", "key");
        QTest::newRow("stored") << QStringList{u"chkMLdb"_s, u"chkOutlookdb"_s} << u"3OV"_s;
        QTest::newRow("not stored") << QStringList{u"chkOutlookdb"_s} << QString();
    }

    void keyComesWithTheStoredContact()
    {
        QFETCH(QStringList, boxes);
        m_fixture->addContact(u"Name, First"_s, u"'Ann', 'Ann'"_s);
        m_fixture->addContact(u"Name, First"_s, u"'Zed', 'Zed'"_s);
        enter();
        m_fixture->boxes.expect(u"All data saved successfully"_s);
        saveAs(boxes);
        QCOMPARE(m_fixture->mailContacts.contacts.size(), 1U);
        QTEST(m_fixture->mailContacts.contacts[0].key, "key");
    }

    void changedContactIsChangedInTheMailClient()
    {
        m_fixture->addContact(u"Name, First, Last, Nview"_s, u"'Ann Lee', 'Ann', 'Lee', 'First,Last'"_s);
        platform::MailContact item;
        item.key = u"1OV"_s;
        m_fixture->mailContacts.contacts = {item};
        m_fixture->start();
        QVERIFY(m_fixture->form()->showContact(1));
        m_fixture->set(u"dtcmbfname"_s, u"Anna"_s);
        m_fixture->boxes.expect(u"All data saved successfully"_s);
        saveAs({u"chkOutlookdb"_s});
        QCOMPARE(m_fixture->mailContacts.contacts.size(), 1U);
        QCOMPARE(m_fixture->mailContacts.contacts[0].first, u"Anna"_s);
        QCOMPARE(m_fixture->book.firstText(u"select First from cnt_main"_s), u"Ann"_s);
        m_fixture->boxes.expect(u"All data saved successfully"_s);
        saveAs({u"chkMLdb"_s});
        QCOMPARE(m_fixture->book.rows(u"select First from cnt_main"_s), QStringList{u"Anna"_s});
    }

    // The set-up may have put the contact there already as it was stored.
    void notInTheMailClientTwice()
    {
        m_fixture->execute(u"insert into cntb_setup (UpdOutllook) values (true)"_s);
        enter();
        m_fixture->boxes.expect(u"All data saved successfully"_s);
        saveAs({u"chkMLdb"_s, u"chkOutlookdb"_s});
        QCOMPARE(m_fixture->mailContacts.contacts.size(), 1U);
    }

    void refusedEntriesAreSavedNowhere()
    {
        m_fixture->start();
        m_fixture->click(u"SSCommand3"_s);
        m_fixture->boxes.expect(
            u"First, Last and Company are blank. At least one of these should not be blank."_s);
        saveAs({u"chkMLdb"_s, u"chkOutlookdb"_s, u"ChkVcf"_s});
        m_fixture->set(u"dtcmbfname"_s, u"Asha"_s);
        m_fixture->set(u"cmbnview"_s, u"Any"_s);
        m_fixture->boxes.expect(u"Not a Valid Name View"_s);
        saveAs({u"chkOutlookdb"_s, u"ChkVcf"_s});
        QCOMPARE(m_fixture->contacts(), 0);
        QCOMPARE(m_fixture->mailContacts.calls, QStringList());
        QVERIFY(!m_fixture->drive.exists(u"C:\\OVUserFiles\\Contacts"));
    }

    void nameThatIsNoFileName()
    {
        enter();
        m_fixture->set(u"dtcmblname"_s, u"..\\..\\Rao"_s);
        const QString path = u"C:\\OVUserFiles\\Contacts\\VCF\\Asha ..\\..\\Rao.vcf"_s;
        m_fixture->boxes.expect(u"The card could not be written to the second address book."_s);
        m_fixture->boxes.expect(u"The VCF file could not be written: "_s + path);
        saveAs({u"chkMLdb"_s, u"chkOutlookexxpdb"_s, u"ChkVcf"_s});
        QCOMPARE(m_fixture->contacts(), 1);
    }

    void keysAndWhatIsOffered()
    {
        enter();
        open();
        for (const QCheckBox* each : m_dialog->findChildren<QCheckBox*>())
            QCOMPARE(each->isChecked(), each->objectName() == u"chkMLdb");
        auto* save = widgets::child<QPushButton>(m_dialog, u"CmdSave"_s);
        box(u"chkMLdb"_s)->setChecked(false);
        QVERIFY(!save->isEnabled());
        box(u"chkMLdb"_s)->setChecked(true);
        QVERIFY(save->isEnabled());
        const QSignalSpy closed(m_dialog, &core::Screen::closeRequested);
        QTest::keyClick(box(u"chkMLdb"_s), Qt::Key_Escape);
        QCOMPARE(closed.size(), 1);
        QCOMPARE(m_fixture->contacts(), 0);
        QCOMPARE(m_fixture->text(u"dtcmbfname"_s), u"Asha"_s);
        QCOMPARE(m_fixture->sounds.played, QStringList{core::sounds::Cancel.toString()});
        m_fixture->boxes.expect(u"All data saved successfully"_s);
        QTest::keyClick(box(u"chkMLdb"_s), Qt::Key_Return);
        QCOMPARE(m_fixture->book.rows(u"select Name from cnt_main"_s), QStringList{u"Asha Rao"_s});
        QCOMPARE(m_fixture->text(u"dtcmbfname"_s), QString());
        QCOMPARE(m_fixture->sounds.played.mid(1), QStringList{core::sounds::Save.toString()});
        QCOMPARE(m_fixture->mailContacts.calls, QStringList());
    }

private:
    void enter()
    {
        m_fixture->start();
        m_fixture->click(u"SSCommand3"_s);
        m_fixture->set(u"cmbnview"_s, u"First,Last"_s);
        m_fixture->set(u"dtcmbfname"_s, u"Asha"_s);
        m_fixture->set(u"dtcmblname"_s, u"Rao"_s);
        m_fixture->sounds.played.clear();
    }

    void saveAs(const QStringList& boxes)
    {
        open();
        for (QCheckBox* each : m_dialog->findChildren<QCheckBox*>())
            each->setChecked(boxes.contains(each->objectName()));
        const QSignalSpy closed(m_dialog, &core::Screen::closeRequested);
        QTest::mouseClick(widgets::child<QPushButton>(m_dialog, u"CmdSave"_s), Qt::LeftButton);
        QCOMPARE(closed.size(), 1);
    }

    void open()
    {
        m_fixture->click(u"CmdSave"_s);
        m_dialog = m_fixture->screens.find(u"FrmAddSave");
        QVERIFY(m_dialog);
        QCOMPARE(m_fixture->frame.placed.constLast(), u"FrmAddSave modally"_s);
    }

    QByteArray file(const QString& path) const { return support::bytesOf(m_fixture->drive.local(path)); }
    QCheckBox* box(const QString& name) const { return widgets::child<QCheckBox>(m_dialog, name); }

    std::unique_ptr<EntryForm> m_fixture;
    core::Screen* m_dialog = nullptr;
};

QTEST_MAIN(FrmAddSaveTest)
#include "FrmAddSave_test.moc"
