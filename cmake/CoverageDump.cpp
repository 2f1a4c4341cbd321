// Part of the library in the coverage build only. A contract that stops the process ends in `abort`, which writes no
// counts: this writes them, so that what a death test executes is counted.

#include <csignal>

extern "C" void __gcov_dump();

namespace {

// The signal is raised by `abort`, which ends the process once this returns.
void dumpCounts(int /*signal*/)
{
    __gcov_dump();
}

[[gnu::constructor]] void installDump()
{
    std::signal(SIGABRT, dumpCounts);
}

} // namespace
