// SPDX-License-Identifier: MIT
#include "OrbitCamera.h"

#include <algorithm>
#include <cmath>

namespace host
{
namespace
{

constexpr double RadiansPerPixel = 0.0055;
constexpr double ZoomPerNotch = 0.82;      ///< of the distance
constexpr double EaseSeconds = 0.11;       ///< in which 63 % of a way is made
constexpr double RotationPerSecond = 0.12; ///< radians
constexpr double LowestPitch = 0.05;
constexpr double HighestPitch = 1.52;
constexpr double Nearest = 40.0; ///< metres, as the two below
constexpr double Farthest = 3600.0;
constexpr double LowestEye = 6.0;
constexpr double DegreesToRadians = 3.14159265358979323846 / 180.0;

/// Starts and ends without a jerk.
double Smooth(double t)
{
    return t * t * t * (t * (t * 6.0 - 15.0) + 10.0);
}

} // namespace

OrbitCamera::OrbitCamera(const CameraPose& start, double reach) : now_(start), wanted_(start), reach_(reach) {}

void OrbitCamera::Orbit(double dx, double dy)
{
    EndFlight();
    wanted_.heading += dx * -RadiansPerPixel;
    wanted_.pitch += dy * RadiansPerPixel;
    KeepInBounds();
}

void OrbitCamera::Pan(double dx, double dy, double viewHeight)
{
    EndFlight();
    const double metresPerPixel =
        2.0 * wanted_.distance * std::tan(FieldOfView * 0.5 * DegreesToRadians) / std::max(viewHeight, 1.0);
    // What is grabbed on the ground stays under the mouse; near the horizon it would run away.
    const double slant = std::max(std::sin(wanted_.pitch), 0.3);
    wanted_.target += wanted_.GroundForward() * (dy * metresPerPixel / slant) - wanted_.Right() * (dx * metresPerPixel);
    KeepInBounds();
}

void OrbitCamera::Zoom(double notches)
{
    EndFlight();
    wanted_.distance *= std::pow(ZoomPerNotch, notches);
    KeepInBounds();
}

void OrbitCamera::Walk(double forward, double right)
{
    EndFlight();
    wanted_.target += wanted_.GroundForward() * (forward * wanted_.distance) + wanted_.Right() * (right * wanted_.distance);
    KeepInBounds();
}

void OrbitCamera::SetPose(const CameraPose& pose)
{
    flightSeconds_ = 0.0;
    now_ = pose;
    wanted_ = pose;
}

void OrbitCamera::FlyTo(const CameraPose& pose, double seconds)
{
    rotating_ = false;
    flightStart_ = now_;
    flightSeconds_ = seconds;
    flightClock_ = 0.0;
    wanted_ = pose;
}

void OrbitCamera::EndFlight()
{
    if (flightSeconds_ > 0.0)
    {
        flightSeconds_ = 0.0;
        wanted_ = now_;
    }
}

bool OrbitCamera::Advance(double seconds)
{
    if (flightSeconds_ > 0.0)
    {
        flightClock_ += seconds;
        const double share = std::min(flightClock_ / flightSeconds_, 1.0);
        now_ = Blend(flightStart_, wanted_, Smooth(share));
        if (share >= 1.0)
        {
            SetPose(wanted_);
        }
        return true;
    }
    if (rotating_)
    {
        wanted_.heading += RotationPerSecond * seconds;
    }
    if (Same(now_, wanted_))
    {
        return false;
    }
    now_ = Blend(now_, wanted_, 1.0 - std::exp(-seconds / EaseSeconds));
    if (Same(now_, wanted_))
    {
        now_ = wanted_;
    }
    return true;
}

void OrbitCamera::KeepInBounds()
{
    wanted_.pitch = std::clamp(wanted_.pitch, LowestPitch, HighestPitch);
    wanted_.distance = std::clamp(wanted_.distance, Nearest, Farthest);
    const double fromOrigin = std::hypot(wanted_.target.x(), wanted_.target.y());
    if (fromOrigin > reach_)
    {
        wanted_.target.x() *= reach_ / fromOrigin;
        wanted_.target.y() *= reach_ / fromOrigin;
    }
    wanted_.target.z() = std::max(wanted_.target.z(), 0.0);
    const double tooLow = LowestEye - wanted_.Eye().z();
    if (tooLow > 0.0)
    {
        wanted_.target.z() += tooLow;
    }
}

} // namespace host
