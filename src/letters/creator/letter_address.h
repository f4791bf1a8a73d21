#pragma once

#include "jet/recordset.h"

#include <QString>
#include <QStringList>

namespace letters {

/// To which of a contact's addresses a letter goes.
enum class AddressType { Home, Work1, Work2 };

/// The types as the person chooses among them, in the order of AddressType.
QStringList addressTypes();
/// Home for a word that is none of them.
AddressType addressTypeOf(QStringView word);

/// Where a letter goes.
struct LetterAddress {
    QString line1 = {};
    QString line2 = {};
    QString city = {};
    QString state = {};
    QString country = {};
    QString pin = {};

    bool isEmpty() const;
    bool operator==(const LetterAddress&) const = default;
};

/// An address of a contact, from its row.
LetterAddress letterAddress(const jet::Recordset& contact, AddressType type);

} // namespace letters
