// SPDX-License-Identifier: MIT
#pragma once

#include "CameraPose.h"

namespace host
{

/// The camera that the user moves. What it is told changes where it wants to be; `Advance` takes it there, eased.
class OrbitCamera
{
public:
    /// @param reach how far from the origin the target may go, metres
    OrbitCamera(const CameraPose& start, double reach);

    /// Vertical field of view, degrees.
    static constexpr double FieldOfView = 40.0;

    /// Mouse motions in view pixels, y downwards.
    void Orbit(double dx, double dy);
    void Pan(double dx, double dy, double viewHeight);
    /// Positive notches come closer.
    void Zoom(double notches);
    /// Along the ground, in shares of the distance to the target.
    void Walk(double forward, double right);

    /// At once, and as it is: nothing is kept above the ground.
    void SetPose(const CameraPose& pose);
    /// There in so many seconds, whatever the user asks of it on the way.
    void FlyTo(const CameraPose& pose, double seconds);
    void SetRotating(bool rotating) { rotating_ = rotating; }
    bool IsRotating() const { return rotating_; }
    bool IsFlying() const { return flightSeconds_ > 0.0; }

    /// @param seconds since the last call
    /// @return whether it has moved
    bool Advance(double seconds);
    const CameraPose& Pose() const { return now_; }

private:
    void KeepInBounds();
    void EndFlight();

    CameraPose now_;
    CameraPose wanted_;
    double reach_;
    CameraPose flightStart_;
    double flightSeconds_ = 0.0; ///< 0: not flying
    double flightClock_ = 0.0;
    bool rotating_ = false;
};

} // namespace host
