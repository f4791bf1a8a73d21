#pragma once

#include "jet/database.h"

#include <QDate>
#include <QList>

#include <optional>

namespace shell {

/// A birthday that is near, of a contact or of somebody of the family.
struct ComingBirthday {
    qint64 id = 0; ///< of the contact
    QString name;
    QString contact; ///< whose family it is; blank for the contact
    QDate day; ///< on which it is celebrated
    std::optional<int> age; ///< that is reached, where the year of birth can be true
};

/// The birthdays from today on, in order, those of the next year too; no more than `most` of them. Who was
/// born on 29 February celebrates the day before in other years.
QList<ComingBirthday> comingBirthdays(jet::Database& data, QDate today, int days, int most);

} // namespace shell
