// SPDX-License-Identifier: MIT
#include "Measure.h"

#include <time.h>

#include <algorithm>
#include <cmath>

namespace
{
double Now(clockid_t clock)
{
    timespec time = {};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) * 1e6 + static_cast<double>(time.tv_nsec) / 1e3;
}

Duration Clocks()
{
    return {Now(CLOCK_PROCESS_CPUTIME_ID), Now(CLOCK_THREAD_CPUTIME_ID), Now(CLOCK_MONOTONIC)};
}
} // namespace

Stopwatch::Stopwatch() : start_(Clocks()) {}

Duration Stopwatch::Elapsed() const
{
    const Duration now = Clocks();
    return {now.process - start_.process, now.thread - start_.thread, now.wall - start_.wall};
}

Duration TimeOf(const std::function<void()>& work)
{
    const Stopwatch watch;
    work();
    return watch.Elapsed();
}

double Series::Quantile(double Duration::*clock, double part) const
{
    if (durations_.empty())
    {
        return 0;
    }
    std::vector<double> values;
    for (const Duration& duration : durations_)
    {
        values.push_back(duration.*clock);
    }
    std::sort(values.begin(), values.end());
    const double place = part * static_cast<double>(values.size() - 1);
    const std::size_t below = static_cast<std::size_t>(std::floor(place));
    const std::size_t above = std::min(below + 1, values.size() - 1);
    return values[below] + (values[above] - values[below]) * (place - std::floor(place));
}

std::vector<Series> Alternate(const std::vector<std::function<Duration()>>& things, int rounds, int warmUp)
{
    std::vector<Series> series(things.size());
    for (int round = -warmUp; round < rounds; ++round)
    {
        for (std::size_t i = 0; i < things.size(); ++i)
        {
            const std::size_t thing = (i + static_cast<std::size_t>(round + warmUp)) % things.size();
            const Duration duration = things[thing]();
            if (round >= 0)
            {
                series[thing].Add(duration);
            }
        }
    }
    return series;
}

Row Compare(const std::string& name, const Series& measured, const Series& reference, double limit, double Duration::*clock)
{
    Row row;
    row.name = name;
    row.measured = measured.Median(clock);
    row.reference = reference.Median(clock);
    row.limit = limit;
    row.rounds = static_cast<int>(std::min(measured.Count(), reference.Count()));
    row.spread["measured"] = {measured.Quantile(clock, 0.25), measured.Quantile(clock, 0.75)};
    row.spread["reference"] = {reference.Quantile(clock, 0.25), reference.Quantile(clock, 0.75)};
    row.extra["measured_wall"] = measured.Median(&Duration::wall);
    row.extra["reference_wall"] = reference.Median(&Duration::wall);
    return row;
}
