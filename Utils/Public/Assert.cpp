#include "Utils/Public/Assert.h"

#include <cstdio>
#include <cstdlib>

namespace QN {

void doFailAssert(const char* file, int line, const char* expression)
{
    std::fprintf(stderr, "%s:%d: %s\n", file, line, expression);
    std::abort();
}

void doFailAssert(const char* file, int line, const char* expression, boost::string_ref message)
{
    std::fprintf(stderr, "%s:%d: %s: ", file, line, expression);
    std::fwrite(message.data(), 1, message.size(), stderr);
    std::fputc('\n', stderr);
    std::abort();
}

} // namespace QN
