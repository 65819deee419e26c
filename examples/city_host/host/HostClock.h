// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

namespace host
{

/// The time that the host goes by: the machine's, or one that goes on by a step with each turn of the loop, so that all that
/// moves is at the same place in the same turn of every run.
class HostClock
{
public:
    using Duration = std::chrono::milliseconds;
    using TimePoint = std::chrono::steady_clock::time_point;

    TimePoint Now() const { return IsStepped() ? now_ : std::chrono::steady_clock::now(); }
    bool IsStepped() const { return step_ != Duration::zero(); }
    /// Of a turn; zero by the machine's time.
    Duration Step() const { return step_; }

    /// From here on it goes by steps.
    void TakeSteps(Duration step)
    {
        now_ = Now();
        step_ = step;
    }
    void Turn() { now_ += step_; }

private:
    TimePoint now_;
    Duration step_ = Duration::zero();
};

} // namespace host
