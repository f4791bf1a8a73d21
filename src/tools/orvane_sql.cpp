// orvane-sql: runs statements of the program's dialect on a database file, for developers and for people who
// repair things. One JSON string a line in, one JSON object a line out.

#include "core/store/book_schema.h"
#include "jet/database.h"
#include "platform/durable_files.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <cstdio>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr const char* kUsage
    = "Usage: orvane-sql [OPTIONS] FILE\n"
      "       orvane-sql --create-all FILE\n"
      "\n"
      "Reads one statement a line, as a JSON string, and answers each with one JSON object.\n"
      "Before a table is dropped a copy of FILE is kept beside it, as FILE.before-drop-1 and so on.\n"
      "  --ado           the wildcards of like are % and _ instead of * and ?\n"
      "  --seconds N     what a statement may take, 60 unless told; 0 for no limit\n"
      "  --megabytes N   the memory for a statement, 512 unless told; 0 for no limit\n"
      "  --create-all    makes FILE with every table of the schema and no rows\n";

struct Options {
    jet::Way way = jet::Way::Dao;
    int seconds = 60;
    int megabytes = 512;
    QString file;
};

int fail(const QString& message)
{
    std::fprintf(stderr, "orvane-sql: %s\n", message.toUtf8().constData());
    return 1;
}

int createAll(const QString& path)
{
    if (QFileInfo::exists(path))
        return fail(path + u": there is a file already"_s);
    const QString unfinished = path + u".new"_s;
    QFile::remove(unfinished);
    bool done = jet::Database::create(unfinished);
    if (done) {
        jet::Database database;
        done = database.open(unfinished, jet::Database::Kind::Information)
            == jet::Database::OpenResult::Opened;
        const jet::Schema schema = core::bookSchema();
        for (const auto part :
            {core::BookPart::Data, core::BookPart::Information, core::BookPart::LetterSide})
            done = done && database.applySchema(schema, core::schemaName(part));
        done = done && database.setVersion(core::kSchemaVersion);
    }
    if (done && platform::putInPlace(unfinished, path))
        return 0;
    QFile::remove(unfinished);
    return fail(path + u": could not be written"_s);
}

QJsonValue cell(const jet::Recordset& rows, int row, int column)
{
    const QVariant value = rows.valueAt(row, column);
    if (!value.isValid())
        return QJsonValue::Null;
    switch (value.typeId()) {
    case QMetaType::Bool: return value.toBool();
    case QMetaType::LongLong: return value.toLongLong();
    case QMetaType::Double: return value.toDouble();
    default: return rows.textAt(row, column); // dates are stored as ISO text
    }
}

/// Runs statements one by one and says how each went.
class Session {
public:
    Session(const jet::Database& database, const Options& options)
        : m_database(database)
        , m_way(options.way)
    {
        m_database.setLimits({options.seconds, qint64(options.megabytes) * 1024 * 1024});
        m_database.setFailureHandler([this](const jet::Failure& failure) { m_reason = failure.reason; });
    }

    QJsonObject answer(const QByteArray& line)
    {
        // A bare string is no document for the reader, a list of one is.
        const QJsonArray input = QJsonDocument::fromJson('[' + line + ']').array();
        if (input.size() != 1 || !input.first().isString())
            return failed(u"the line is not a JSON string"_s);
        m_reason.clear();
        const QString sql = input.first().toString();
        const auto givesRows = m_database.givesRows(sql, m_way);
        if (!givesRows)
            return failed(m_reason);
        if (!*givesRows) {
            if (dropsATable(sql) && !keepACopy())
                return failed(u"no copy could be kept, so the table stays: "_s + m_reason);
            const jet::Outcome outcome = m_database.execute(sql, m_way);
            return outcome ? succeeded({}, {}, outcome.changed) : failed(m_reason);
        }
        const jet::Recordset rows = m_database.openRecordset(sql, m_way);
        if (!rows.isValid())
            return failed(m_reason);
        const QStringList columns = rows.columns();
        QJsonArray lines;
        for (int row = 0; row < rows.count(); ++row) {
            QJsonArray cells;
            for (int column = 0; column < columns.size(); ++column)
                cells << cell(rows, row, column);
            lines << cells;
        }
        return succeeded(QJsonArray::fromStringList(columns), lines, 0);
    }

private:
    static bool dropsATable(const QString& sql)
    {
        static const QRegularExpression drop(u"^\\s*drop\\b"_s, QRegularExpression::CaseInsensitiveOption);
        return drop.match(sql).hasMatch();
    }
    bool keepACopy()
    {
        const QString name = m_database.path() + u".before-drop-"_s;
        int number = 1;
        while (QFileInfo::exists(name + QString::number(number)))
            ++number;
        return m_database.backUpTo(name + QString::number(number));
    }
    static QJsonObject succeeded(const QJsonArray& columns, const QJsonArray& rows, int changed)
    {
        return {{u"ok"_s, true}, {u"columns"_s, columns}, {u"rows"_s, rows}, {u"changed"_s, changed}};
    }
    static QJsonObject failed(const QString& reason) { return {{u"ok"_s, false}, {u"error"_s, reason}}; }

    jet::Database m_database;
    jet::Way m_way;
    QString m_reason;
};

int runStatements(const Options& options)
{
    const QString& path = options.file;
    jet::Database database;
    database.setColumnsNeverEqualToNull(core::columnsNeverEqualToNull());
    switch (database.open(path)) {
    case jet::Database::OpenResult::Opened: break;
    case jet::Database::OpenResult::Missing: return fail(path + u": no such file"_s);
    case jet::Database::OpenResult::NotADatabase: return fail(path + u": not a database"_s);
    case jet::Database::OpenResult::Failed: return fail(path + u": could not be opened"_s);
    }
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly))
        return fail(u"no standard input"_s);
    Session session(database, options);
    for (QByteArray line = input.readLine(); !line.isEmpty(); line = input.readLine()) {
        const QByteArray answer = QJsonDocument(session.answer(line)).toJson(QJsonDocument::Compact) + '\n';
        std::fwrite(answer.constData(), 1, size_t(answer.size()), stdout);
        std::fflush(stdout);
    }
    return 0;
}

/// Nothing for a command line that can not be understood.
std::optional<Options> read(QStringList arguments)
{
    Options options;
    while (arguments.size() > 1) {
        const QString option = arguments.takeFirst();
        if (option == u"--ado") {
            options.way = jet::Way::Ado;
            continue;
        }
        const bool isSeconds = option == u"--seconds";
        bool isNumber = false;
        const int number = arguments.takeFirst().toInt(&isNumber);
        if ((!isSeconds && option != u"--megabytes") || !isNumber || number < 0)
            return {};
        (isSeconds ? options.seconds : options.megabytes) = number;
    }
    options.file = arguments.value(0);
    return options.file.isEmpty() || options.file.startsWith(u"--") ? std::nullopt : std::optional(options);
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments == QStringList{u"--help"_s}) {
        std::fputs(kUsage, stdout);
        return 0;
    }
    if (arguments.size() == 2 && arguments.first() == u"--create-all")
        return createAll(arguments.last());
    if (const auto options = read(arguments))
        return runStatements(*options);
    std::fputs(kUsage, stderr);
    return 2;
}
