#pragma once

#include "formats/card_file.h"
#include "jet/recordset.h"
#include "platform/contact_sync.h"

#include <QDate>
#include <QHash>
#include <QString>

#include <vector>

namespace core {

/// The columns of a selection from which contacts are made, looked up once for all its rows.
class RecordColumns {
public:
    /// @param wanted all columns where it is empty
    explicit RecordColumns(const jet::Recordset& rows, const QStringList& wanted = {});

private:
    friend class ContactRecord;
    struct Column {
        int index = 0;
        QString key;
    };
    std::vector<Column> m_columns;
};

/// A contact as one value, by the columns of the book: a row of it, or what stands in a form, which may not
/// hold all. What other programs get of a contact is made from this.
class ContactRecord {
public:
    ContactRecord() = default;
    explicit ContactRecord(const jet::Recordset& row);
    ContactRecord(const jet::Recordset& row, const RecordColumns& columns);

    bool has(QStringView column) const { return m_values.contains(key(column)); }
    QString text(QStringView column) const { return m_values.value(key(column)).toString(); }
    QDate date(QStringView column) const; ///< invalid for none
    void set(QStringView column, const QVariant& value) { m_values.insert(key(column), value); }

private:
    static QString key(QStringView column) { return column.toString().toLower(); }

    QHash<QString, QVariant> m_values; ///< by lower-case column
};

/// Which address of work a form has that knows only one.
enum class WorkAddress { First, Second };

/// Writes into an item of the mail client what the contact holds; the rest of the item stays.
void fillMailItem(
    platform::MailContact& item, const ContactRecord& contact, WorkAddress work = WorkAddress::First);

formats::CardValues cardValuesOf(const ContactRecord& contact);

} // namespace core
