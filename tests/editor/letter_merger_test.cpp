#include <QtTest>

#include "editor/letter_merger.h"
#include "formats/rtf_reader.h"
#include "platform/cp1252.h"
#include "platform/folder_drive.h"
#include "support/disk.h"
#include "support/other_program.h"
#include "support/recording_services.h"

using namespace Qt::StringLiterals;
using formats::RichText;

/// Letters from a document with fields, as other programs read them.
class LetterMergerTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void letters()
    {
        begin({{u"Zoë"_s, u"1, \"Rose\"\nHill"_s, u"«Name»"_s}, {u"«City»"_s, {}, {}}});
        const auto merged = m_words.run(u"C:\\Out"_s, u"Letters"_s);
        QVERIFY2(merged, qPrintable(merged.whyNot));
        QCOMPARE(support::linesOfScript(u"editor/data/read_odt.py"_s, {merged.files.value(0)}),
            (QStringList{u"Dear Zoë!"_s, u"1, \"Rose\""_s, u"Hill"_s, u"«Name»,"_s, u"*Loud"_s, u"-"_s,
                u"|Dear «City»!"_s, u"*Loud"_s, u"-"_s}));
        const auto rtf = formats::readRtf(support::bytesOf(merged.files.value(1)));
        QVERIFY(rtf && rtf->plain().startsWith(u"Dear Zoë!\n1, \"Rose\"\nHill\n«Name»,\nLoud\n"));
        const QString data = u"Name, Street,City\r\nZoë,\"1, \"\"Rose\"\"\nHill\",«Name»\r\n«City»,,\r\n"_s;
        QCOMPARE(support::bytesOf(m_drive.local(u"C:\\Data.doc")), platform::toCp1252(data));
        QVERIFY(m_words.show());
        QCOMPARE(m_shell.openedFiles, QStringList{merged.files.value(0)});
        // What lies there is not replaced.
        QCOMPARE(m_words.run(u"C:\\Out"_s, u"Letters"_s).files.value(0),
            m_drive.local(u"C:\\Out\\Letters (2).odt"));
    }

    void fullDisk()
    {
        begin({{u"A"_s, {}, {}}});
        const support::FullDisk full(400); // room for the RTF only
        QVERIFY(!m_words.run(u"C:\\Full"_s, u"Letters"_s));
        QVERIFY(!m_words.setData(u"C:\\Data2.doc", u"Name"_s, {{QString(1000, u'x')}}).isEmpty());
        QVERIFY(QDir(m_drive.local(u"C:\\Full")).isEmpty());
    }

private:
    void begin(const QList<QStringList>& rows)
    {
        m_words.create();
        QCOMPARE(m_words.setData(u"C:\\Data.doc", u"Name, Street,City"_s, rows), QString());
        m_words.typeText(u"Dear "_s);
        m_words.typeField(u"Name"_s);
        m_words.typeText(u"!\n"_s);
        m_words.typeField(u"Street"_s);
        m_words.typeText(u"\n"_s);
        m_words.typeField(u"City"_s);
        m_words.typeText(u","_s);
        m_words.typeParagraphs({{{.runs = {{u"Loud"_s, {.isBold = true}}}}, {}}});
    }

    QTemporaryDir m_root;
    platform::FolderDrive m_drive{m_root.path(), m_root.path()};
    support::RecordingShell m_shell;
    editor::LetterMerger m_words{m_drive, m_shell};
};

QTEST_MAIN(LetterMergerTest)
#include "letter_merger_test.moc"
