#pragma once

#include "jet/database.h"

#include <QStringList>
#include <QTemporaryDir>

namespace support {

/// A data database of its own for each test, with every table of both databases, and perhaps the sample rows.
///
/// Each failure of the engine is a failure of the test unless the test expects it by a piece of the statement
/// or of the reason. unexpected() at the end of a test says what came unasked, and what was expected and did
/// not come.
class TestBook {
public:
    enum class Rows { None, Sample };
    explicit TestBook(Rows rows = Rows::None);

    jet::Database& data() { return m_data; }
    QString folder() const { return m_folder.path(); }
    QString path() const;
    static jet::Schema schema();
    /// The product's indexes that these tables can have, which may lack columns.
    static QList<jet::SchemaIndex> indexesFor(const jet::Schema& schema);
    static QList<jet::ColumnName> columnsNeverEqualToNull();

    void expectFailure(const QString& piece) { m_expected << piece; }
    int failures() const { return int(m_failures.size()); }
    /// Empty when all is well; the record starts anew.
    QString unexpected();

    /// All rows of a selection, the columns joined by "|", null as "null".
    static QStringList rowsOf(const jet::Recordset& set);
    QStringList rows(const QString& sql, jet::Way way = jet::Way::Dao);
    QString firstText(const QString& sql);

private:
    QTemporaryDir m_folder;
    jet::Database m_data;
    QStringList m_expected;
    QStringList m_failures;
};

} // namespace support
