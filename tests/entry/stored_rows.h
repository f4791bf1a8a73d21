#pragma once

#include "jet/database.h"

#include <csignal>
#include <sys/resource.h>

/// A contact in which nothing was ever written, by column in lower case; without its number.
inline QMap<QString, QString> blankRow(const jet::Schema& schema)
{
    QMap<QString, QString> row;
    for (const jet::SchemaTable& table : schema.tables) {
        if (table.name != u"cnt_main")
            continue;
        for (const jet::SchemaColumn& column : table.columns)
            row[column.name.toLower()]
                = column.type == jet::ColumnType::YesNo ? QStringLiteral("false") : QStringLiteral("null");
    }
    row.remove(QStringLiteral("id"));
    row[QStringLiteral("gen_id")] = u'0';
    return row;
}

/// A contact as it is stored.
inline QMap<QString, QString> storedRow(jet::Database& data, const QString& id)
{
    QMap<QString, QString> result;
    const auto rows = data.openRecordset(QStringLiteral("select * from cnt_main where id=") + id);
    const QStringList columns = rows.columns();
    for (int i = 0; i < columns.size(); ++i) {
        const QVariant value = rows.value(i);
        const bool isDate = value.typeId() == QMetaType::QDate;
        result[columns[i].toLower()] = !value.isValid() ? QStringLiteral("null")
            : isDate                                    ? value.toDate().toString(Qt::ISODate)
                                                        : value.toString();
    }
    result.remove(QStringLiteral("id"));
    return result;
}

/// While it lives no file can grow, as on a full disk.
class FullDisk {
public:
    FullDisk()
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit none{4096, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &none);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &m_before); }

private:
    rlimit m_before{};
};
