#pragma once

#include <chrono>
#include <cstdint>
#include <ctime>

// The process's CPU time (every thread) as a std::chrono clock. Benchmarks time with it where the
// work is the process's own: on a shared, loaded machine the wall clock mostly measures the
// neighbours.
struct ProcessCpuClock
{
    using duration = std::chrono::nanoseconds;
    using rep = duration::rep;
    using period = duration::period;
    using time_point = std::chrono::time_point<ProcessCpuClock>;
    static constexpr bool is_steady = true;

    static time_point now()
    {
        timespec ts{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &ts);
        return time_point(duration(std::int64_t(ts.tv_sec) * 1000000000 + ts.tv_nsec));
    }
};
