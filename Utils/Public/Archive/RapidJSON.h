#pragma once

/// The one way to rapidjson: its assertions raise an exception in every unit of the library.

#include "Utils/Public/Archive/JSONInputArchive.h"

#ifdef RAPIDJSON_ASSERT
#error "rapidjson is included through Utils/Public/Archive/RapidJSON.h only"
#endif

namespace cereal::detail {
[[noreturn]] inline void throwFailedCheck(const char* condition)
{
    throw RapidJSONException(std::string("rapidjson internal assertion failure: ") + condition);
}
} // namespace cereal::detail

#define RAPIDJSON_ASSERT(condition)                                                                          \
    (__builtin_expect(!!(condition), 1) ? static_cast<void>(0)                                               \
                                        : ::cereal::detail::throwFailedCheck(#condition))
#define RAPIDJSON_ASSERT_THROWS

#include <rapidjson/document.h>
#include <rapidjson/internal/dtoa.h>
#include <rapidjson/internal/itoa.h>
#include <rapidjson/reader.h>
