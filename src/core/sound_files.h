#pragma once

#include <QStringView>

namespace core::sounds {

inline constexpr QStringView Save = u"\\UserFiles\\Misc\\sound\\save.wav";
inline constexpr QStringView Cancel = u"\\UserFiles\\Misc\\sound\\Cancel.wav";
inline constexpr QStringView Delete = u"\\UserFiles\\Misc\\sound\\Del.wav";
inline constexpr QStringView Edit = u"\\UserFiles\\Misc\\sound\\Edit.wav";
inline constexpr QStringView Add = u"\\UserFiles\\Misc\\sound\\Add.wav";

} // namespace core::sounds
