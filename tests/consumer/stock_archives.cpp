// Must not compile: the library's archives and the stock ones have the same names.
#include <cereal/archives/json.hpp>

#include "Utils/Public/Archive/JSONArchives.h"
