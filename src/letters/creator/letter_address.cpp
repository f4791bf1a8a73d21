#include "letters/creator/letter_address.h"

#include <array>

using namespace Qt::StringLiterals;

namespace letters {

namespace {

struct AddressColumns {
    QStringView type;
    QStringView line1, line2, city, state, country, pin;
};

// Kept: "Work 1" is the b_ set here, which the dialer calls the second one.
constexpr std::array kAddressColumns{
    AddressColumns{u"Home", u"h_add1", u"h_add2", u"h_city", u"h_state", u"h_country", u"h_pin"},
    AddressColumns{u"Work 1", u"b_add1", u"b_add2", u"b_city", u"b_state", u"b_country", u"b_pin"},
    AddressColumns{u"Work 2", u"w_add1", u"w_add2", u"w_city", u"w_State", u"w_country", u"w_pin"},
};

} // namespace

QStringList addressTypes()
{
    QStringList types;
    for (const AddressColumns& columns : kAddressColumns)
        types << columns.type.toString();
    return types;
}

AddressType addressTypeOf(QStringView word)
{
    for (size_t type = 0; type < kAddressColumns.size(); ++type) {
        if (word == kAddressColumns[type].type)
            return AddressType(type);
    }
    return AddressType::Home;
}

bool LetterAddress::isEmpty() const
{
    return *this == LetterAddress{};
}

LetterAddress letterAddress(const jet::Recordset& contact, AddressType type)
{
    const AddressColumns& columns = kAddressColumns.at(size_t(type));
    return {.line1 = contact.textOrEmpty(columns.line1),
        .line2 = contact.textOrEmpty(columns.line2),
        .city = contact.textOrEmpty(columns.city),
        .state = contact.textOrEmpty(columns.state),
        .country = contact.textOrEmpty(columns.country),
        .pin = contact.textOrEmpty(columns.pin)};
}

} // namespace letters
