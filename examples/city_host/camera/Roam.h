// SPDX-License-Identifier: MIT
#pragma once

#include "../city/RoamPath.h"

namespace host
{

class OrbitCamera;

/// The flight round the city, from the press of its tool until Escape.
class Roam
{
public:
    /// @param camera outlives this; it flies to the path first, then follows it
    explicit Roam(OrbitCamera& camera) : camera_(camera) {}

    void Start();
    void Stop() { running_ = false; }
    bool IsRunning() const { return running_; }
    /// @param seconds since the last call
    /// @return whether the camera was moved
    bool Advance(double seconds);

private:
    city::RoamPath path_;
    OrbitCamera& camera_;
    bool running_ = false;
    double at_ = 0.0; ///< in turns of the path
};

} // namespace host
