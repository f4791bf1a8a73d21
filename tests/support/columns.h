#pragma once

#include <QtTest/qtestcase.h>

namespace support {

/// The columns of a data table in one line: columns<QString, int>("typed", "left").
template <class... Types, class... Names> void columns(Names... names)
{
    static_assert(sizeof...(Types) == sizeof...(Names));
    (QTest::addColumn<Types>(names), ...);
}

} // namespace support
