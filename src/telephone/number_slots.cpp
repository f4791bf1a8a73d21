#include "telephone/number_slots.h"

namespace telephone {

std::span<const NumberSlot> numberSlots()
{
    static constexpr NumberSlot slots[]
        = {{u"H_Ph1", u"H1", u"h_city"}, {u"h_ph2", u"H2", u"h_city"}, {u"h_ph3", u"H3", u"h_city"},
            {u"w_Ph1", u"W1", u"w_city"}, {u"w_Ph2", u"W2", u"w_city"}, {u"w_ph3", u"W3", u"w_city"},
            {u"B_Ph1", u"B1", u"b_city"}, {u"B_Ph2", u"B2", u"b_city"}, {u"B_ph3", u"B3", u"b_city"},
            {u"Mobile", u"Mob", u"h_city"}, {u"SP_Mobile", u"SpMob", u"h_city"}, {u"fax", u"Fax", u"h_city"}};
    return slots;
}

} // namespace telephone
