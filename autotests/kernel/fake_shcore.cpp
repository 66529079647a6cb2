// Stands in for the system library that offers per-process DPI awareness, so that the search
// for it can be tested where the real one does not exist.

#include <cstdio>

extern "C" __attribute__((visibility("default"))) long SetProcessDpiAwareness(int value)
{
    std::printf("SetProcessDpiAwareness=%d\n", value);
    std::fflush(stdout);
    return 0;
}
