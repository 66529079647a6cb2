#pragma once

#include <chrono>
#include <cstdint>
#include <ctime>

// CPU time as a std::chrono clock. Benchmarks time with it where the work is their own: on a
// shared, loaded machine the wall clock mostly measures the neighbours. ProcessCpuClock counts
// every thread (Qt Quick and QML work on threads of their own); ThreadCpuClock only the calling
// thread, for a loop that must not be charged with what the process's other threads do meanwhile.
template <clockid_t Id> struct CpuClock
{
    using duration = std::chrono::nanoseconds;
    using rep = duration::rep;
    using period = duration::period;
    using time_point = std::chrono::time_point<CpuClock>;
    static constexpr bool is_steady = true;

    static time_point now()
    {
        timespec ts{};
        clock_gettime(Id, &ts);
        return time_point(duration(std::int64_t(ts.tv_sec) * 1000000000 + ts.tv_nsec));
    }
};

using ProcessCpuClock = CpuClock<CLOCK_PROCESS_CPUTIME_ID>;
using ThreadCpuClock = CpuClock<CLOCK_THREAD_CPUTIME_ID>;
