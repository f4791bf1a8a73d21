#include "core/text_export.h"

#include "core/contact_lookups.h"
#include "core/contact_record.h"
#include "core/contact_text.h"
#include "platform/drive.h"
#include "platform/storage.h"
#include "platform/text_file.h"

using namespace Qt::StringLiterals;

namespace core {

namespace {

using Outcome = TextSaved::Outcome;

constexpr QStringView kFileOfSelected = u"Multiple Selected Address.txt";
constexpr QStringView kFileOfAll = u"All Contact Address.txt";
// As many as the person does not wait for between two looks at the stop button.
constexpr int kContactsAStep = 25;
constexpr qsizetype kIdsAtATime = 250;

/// The file on its way. Nothing is there before the first contact comes.
class TextFileOfContacts {
public:
    TextFileOfContacts(const TextExport& to, TextLayout layout, QStringView fileName)
        : m_to(to)
        , m_layout(layout)
        , m_fileName(fileName.toString())
    {
        m_saved.path = to.folder + u'\\' + m_fileName;
    }

    /// All rows of a selection; false when there is no need to go on.
    bool add(jet::Recordset rows, const TextProgress& progress = {})
    {
        const RecordColumns columns(rows, contactTextColumns());
        for (; rows.hasRow(); rows.moveNext()) {
            if (!m_file && !begin())
                return false;
            if (!m_file->writeLine(contactText(ContactRecord(rows, columns), m_layout, m_to.datePattern)))
                return fail();
            if (++m_saved.contacts % kContactsAStep == 0 && progress && !progress(m_saved.contacts)) {
                m_saved.outcome = Outcome::Stopped;
                return false;
            }
        }
        return true;
    }

    TextSaved finish()
    {
        if (m_saved.outcome == Outcome::NoContacts && m_file) {
            if (m_file->commit())
                m_saved.outcome = Outcome::Written;
            else
                fail();
        }
        return m_saved;
    }

private:
    bool begin()
    {
        if (!platform::Drive::isLegalName(m_fileName)) {
            m_saved.outcome = Outcome::BadName;
            return false;
        }
        if (!m_to.drive.ensureFolder(m_to.folder))
            return fail();
        m_file.emplace(m_to.drive.local(m_saved.path));
        return m_file->isOpen() || fail();
    }

    bool fail()
    {
        m_saved.outcome = Outcome::Failed;
        m_saved.why = m_file ? m_file->whyNot() : platform::whyNotWritable(m_to.drive.local(m_to.folder));
        return false;
    }

    const TextExport& m_to;
    TextLayout m_layout;
    QString m_fileName;
    std::optional<platform::TextFileWriter> m_file;
    TextSaved m_saved;
};

QString allContactsSql()
{
    return u"SELECT * FROM [cnt_main] order by name"_s;
}

QString selectedContactsSql(const QStringList& ids)
{
    return u"SELECT * FROM [cnt_main] WHERE id in ( "_s + ids.join(u',') + u')';
}

TextSaved saveAll(const TextExport& to, TextLayout layout, const TextProgress& progress)
{
    TextFileOfContacts file(to, layout, kFileOfAll);
    file.add(to.book.openRecordset(allContactsSql()), progress);
    return file.finish();
}

} // namespace

TextSaved SaveRecordText(const TextExport& to, qint64 id)
{
    jet::Recordset contact = to.book.openRecordset(contactByIdSql(id));
    TextFileOfContacts file(
        to, TextLayout::Single, u"Details of   "_s + contact.textOrEmpty(u"Name") + u".txt"_s);
    file.add(std::move(contact));
    return file.finish();
}

TextSaved SaveSelectedText(const TextExport& to, const QString& idList, const TextProgress& progress)
{
    TextFileOfContacts file(to, TextLayout::Selected, kFileOfSelected);
    const QStringList ids = idList.split(u',', Qt::SkipEmptyParts);
    for (qsizetype at = 0; at < ids.size(); at += kIdsAtATime) {
        if (!file.add(to.book.openRecordset(selectedContactsSql(ids.mid(at, kIdsAtATime))), progress))
            break;
    }
    return file.finish();
}

TextSaved SaveAllText(const TextExport& to, const TextProgress& progress)
{
    return saveAll(to, TextLayout::All, progress);
}

TextSaved SaveAllTextShort(const TextExport& to, const TextProgress& progress)
{
    return saveAll(to, TextLayout::Plain, progress);
}

} // namespace core
