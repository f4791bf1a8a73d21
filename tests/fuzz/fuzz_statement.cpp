#include "jet/database.h"
#include "jet/lexer.h"
#include "jet/schema.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cstdlib>
#include <string_view>

using namespace Qt::StringLiterals;

namespace {

/// A book with one row in each of some tables, so that no product of tables grows; every statement runs
/// inside a batch that is rolled back.
class Book {
public:
    Book()
    {
        if (!jet::Database::create(path()) || m_data.open(path()) != jet::Database::OpenResult::Opened)
            std::abort();
        QFile file(QStringLiteral(ORVANE_SOURCE_DIR "/data/schema.csv"));
        if (!file.open(QIODevice::ReadOnly))
            std::abort();
        jet::Schema schema = jet::Schema::fromCsv(file.readAll());
        for (jet::SchemaTable& table : schema.tables)
            table.database = u"data"_s;
        if (!m_data.applySchema(schema, u"data"_s))
            std::abort();
        m_data.execute(u"insert into cnt_main (name, first, h_city, m_bd, priority) values "
                       u"('Rahul Sharma', 'Rahul', 'Mumbai', #15-Jun-1975#, '1')");
        m_data.execute(u"insert into cnt_topcities (city, priority, [default]) values ('Pune', 2, true)");
        m_tables = m_data.tables();
        m_entries = entries();
    }

    void run(const QString& sql, jet::Way way)
    {
        jet::Batch batch(m_data);
        jet::Recordset rows = m_data.openRecordset(sql, way);
        for (int row = 0; row < qMin(rows.count(), 3); ++row) {
            for (int column = 0; column < rows.columns().size(); ++column) {
                rows.textAt(row, column);
                rows.valueAt(row, column);
            }
        }
        rows.findFirst(sql);
        if (rows.isValid())
            rows.findFirst(sql.section(u"where"_s, 1));
        else
            m_data.execute(sql, way);
        const QStringList now = m_data.tables();
        const bool made = sql.contains(u"into"_s, Qt::CaseInsensitive) && now.size() == m_tables.size() + 1;
        const bool dropped
            = sql.contains(u"drop"_s, Qt::CaseInsensitive) && now.size() == m_tables.size() - 1;
        if (now != m_tables && !made && !dropped)
            std::abort();
        batch.rollBack();
        if (m_data.tables() != m_tables || entries() != m_entries)
            std::abort();
    }

private:
    QString path() const { return m_folder.filePath(u"book"_s); }
    QStringList entries() const { return QDir(m_folder.path()).entryList(QDir::Files, QDir::Name); }

    QTemporaryDir m_folder;
    jet::Database m_data;
    QStringList m_tables;
    QStringList m_entries;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static Book book;
    const auto way = size % 2 == 0 ? jet::Way::Dao : jet::Way::Ado;
    book.run(QString::fromUtf8(reinterpret_cast<const char*>(data), qsizetype(size)), way);
    return 0;
}
