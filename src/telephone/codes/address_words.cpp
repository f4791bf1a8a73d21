#include "telephone/codes/address_words.h"

#include "core/sql_text.h"

using namespace Qt::StringLiterals;

namespace telephone {

// Kept: 'C' is read in the home country here, and outside of it where addresses are entered in turbo add.
QString addressWordsSql(const QString& word, bool nationalMode)
{
    return u"Select address from cnt_address where address like '%1*' and national='%2' order by address"_s
        .arg(core::inQuotes(word), nationalMode ? u"C"_s : u"N"_s);
}

QString cityAreasSql(const QString& city)
{
    return u"Select area from cnt_address where city like'"_s + core::inQuotes(city) + u"' order by area"_s;
}

} // namespace telephone
