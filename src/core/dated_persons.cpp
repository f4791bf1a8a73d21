#include "core/dated_persons.h"

namespace core {

std::span<const DatedPerson> datedPersons()
{
    static constexpr DatedPerson persons[] = {{u"name", u"m_bd", u"cpsmnbd"},
        {u"spouse", u"sp_bd", u"cpsspbd"}, {u"kid1", u"kid1_bd", u"cpsk1bd"},
        {u"kid2", u"kid2_bd", u"cpsk2bd"}, {u"kid3", u"kid3_bd", u"cpsk3bd"}};
    return persons;
}

} // namespace core
