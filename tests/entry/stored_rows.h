#pragma once

#include "jet/database.h"
#include "support/disk.h"

/// A contact in which nothing was ever written, by column in lower case; without its number.
inline QMap<QString, QString> blankRow(const jet::Schema& schema)
{
    QMap<QString, QString> row;
    for (const jet::SchemaColumn& column : schema.table(u"cnt_main")->columns)
        row[column.name.toLower()]
            = column.type == jet::ColumnType::YesNo ? QStringLiteral("false") : QStringLiteral("null");
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
