#include "jet/stored_value.h"

#include "jet/date_text.h"

#include <QDateTime>

using namespace Qt::StringLiterals;

namespace jet {

bool toStored(const QVariant& value, ColumnType type, QVariant* stored)
{
    *stored = {};
    const bool isText = value.typeId() == QMetaType::QString;
    if (!value.isValid() || value.isNull()) {
        if (type == ColumnType::YesNo)
            *stored = 0;
        else if (isText && (type == ColumnType::Text || type == ColumnType::Memo))
            *stored = QString(u""_s);
        return true;
    }
    switch (type) {
    case ColumnType::YesNo:
        if (isText) {
            const QString word = value.toString().trimmed().toLower();
            if (word == u"true" || word == u"yes" || word == u"on")
                *stored = 1;
            else if (word == u"false" || word == u"no" || word == u"off")
                *stored = 0;
            else if (toStored(word, ColumnType::Number, stored))
                *stored = stored->toDouble() != 0 ? 1 : 0;
            else
                return false;
        } else {
            *stored = value.toDouble() != 0 ? 1 : 0;
        }
        return true;
    case ColumnType::Date: {
        if (value.typeId() == QMetaType::QDate) {
            *stored = isoDate(value.toDate());
            return value.toDate().isValid();
        }
        if (value.typeId() == QMetaType::QDateTime) {
            *stored = isoDate(value.toDateTime().date(), value.toDateTime().time());
            return value.toDateTime().isValid();
        }
        const auto iso = parseDateText(value.toString());
        if (iso)
            *stored = *iso;
        return iso.has_value();
    }
    case ColumnType::Number:
    case ColumnType::AutoNumber: {
        if (value.typeId() == QMetaType::Bool) {
            *stored = value.toBool() ? -1 : 0;
            return true;
        }
        bool ok = false;
        const qint64 whole = value.toString().trimmed().toLongLong(&ok);
        if (ok) {
            *stored = whole;
            return true;
        }
        const double real = value.toString().trimmed().toDouble(&ok);
        *stored = real;
        return ok && real - real == 0;
    }
    default: break;
    }
    if (value.typeId() == QMetaType::QDate)
        *stored = isoDate(value.toDate());
    else if (value.typeId() == QMetaType::Bool)
        *stored = value.toBool() ? u"-1"_s : u"0"_s;
    else
        *stored = value.toString();
    return true;
}

void bindText(sqlite3_stmt* statement, int place, const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    sqlite3_bind_text(statement, place, utf8.constData(), int(utf8.size()), SQLITE_TRANSIENT);
}

void bindStored(sqlite3_stmt* statement, int place, const QVariant& stored)
{
    switch (stored.typeId()) {
    case QMetaType::UnknownType: sqlite3_bind_null(statement, place); break;
    case QMetaType::Int:
    case QMetaType::LongLong: sqlite3_bind_int64(statement, place, stored.toLongLong()); break;
    case QMetaType::Double: sqlite3_bind_double(statement, place, stored.toDouble()); break;
    default: bindText(statement, place, stored.toString());
    }
}

} // namespace jet
