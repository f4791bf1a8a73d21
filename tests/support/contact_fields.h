#pragma once

#include <QList>
#include <QString>

namespace support {

/// A column of a contact and the control of a form that holds it.
struct ContactField {
    QString column; ///< in lower case
    QString control;
    bool isDate = false;
};

/// The fields of a form, as they were written down by hand in data/contact_fields.csv.
QList<ContactField> contactFields(const QString& form);

} // namespace support
