#pragma once

#include <boost/multi_array/multi_array_ref.hpp>

#include <string>

#include "Utils/Public/Cinder.h"
#include "Utils/Public/Export.h"

namespace QN {

/// Picks one colour of a palette by a hash of a string: the same on every platform and in every run. An empty palette
/// fails the contract "!palette.empty()".
DOM_API cinder::ColorT<unsigned char>
getPaletteColorForString(const std::string& string,
                         boost::const_multi_array_ref<cinder::ColorT<unsigned char>, 1> palette);

} // namespace QN
