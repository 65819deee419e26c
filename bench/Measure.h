// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

/// Microseconds. Processor time is what others on the machine cannot take away; wall time is what a user waits.
struct Duration
{
    double process = 0; ///< processor time of all threads: software OpenGL draws on some of its own
    double thread = 0;  ///< processor time of this thread
    double wall = 0;
};

class Stopwatch
{
public:
    Stopwatch();
    Duration Elapsed() const;

private:
    Duration start_;
};

Duration TimeOf(const std::function<void()>& work);

/// What was measured again and again of one thing.
class Series
{
public:
    void Add(const Duration& one) { durations_.push_back(one); }
    std::size_t Count() const { return durations_.size(); }
    /// @param part 0.5 is the median
    double Quantile(double Duration::*clock, double part) const;
    double Median(double Duration::*clock) const { return Quantile(clock, 0.5); }

private:
    std::vector<Duration> durations_;
};

constexpr int UsualRounds = 31;

/// Measures several things by turns, each round beginning with another one.
/// @param warmUp rounds that do not count
std::vector<Series> Alternate(const std::vector<std::function<Duration()>>& things, int rounds = UsualRounds, int warmUp = 2);

/// One comparison of the report.
struct Row
{
    std::string name;
    std::string what; ///< measured and reference, in words
    std::string unit = "us";
    double measured = 0;
    double reference = 0;
    double limit = 0;
    bool alsoHolds = true; ///< what else is asked of the row, told in `extra`
    int rounds = 0;
    /// Lower and upper quartile, with "measured" and "reference"; empty where nothing varies.
    std::map<std::string, std::pair<double, double>> spread;
    std::map<std::string, double> extra;
    /// How the measured figure grows, by the number of entries or rows.
    std::map<int, double> growth;
    std::string note;

    double Ratio() const { return reference > 0 ? measured / reference : 0; }
    bool Holds() const { return measured > 0 && reference > 0 && Ratio() <= limit && alsoHolds; }
};

/// A row of two series by one of the clocks; medians, quartiles, and wall time beside them.
Row Compare(const std::string& name, const Series& measured, const Series& reference, double limit,
            double Duration::*clock = &Duration::process);
