// SPDX-License-Identifier: MIT
#pragma once

#include "Measure.h"
#include "Stage.h"
#include "native/Contestant.h"

#include <string>
#include <vector>

/// The interface and those that draw the same, each in the viewer's own frames over the same scene.
class Bout
{
public:
    explicit Bout(Stage& stage);
    ~Bout();
    Bout(const Bout&) = delete;
    Bout& operator=(const Bout&) = delete;

    static constexpr std::size_t Interface = 0;
    void Add(const std::string& name, std::unique_ptr<bench::Contestant> contestant);
    /// @param camera whose drawing, state and all, is what is measured
    void Add(const std::string& name, osg::Camera* camera);

    std::size_t Count() const { return sides_.size(); }
    const std::string& NameOf(std::size_t side) const { return sides_[side].name; }

    /// Draws a frame with this side alone. `thread` is the time until its calls have returned, the others until the picture is
    /// there.
    Duration Frame(std::size_t side);
    Screenshot Shoot(std::size_t side);

private:
    struct Side
    {
        std::string name;
        osg::ref_ptr<osg::Node> node;
        std::shared_ptr<Duration> last;
        std::shared_ptr<bench::Contestant> contestant;
    };
    void ShowOnly(std::size_t side);

    Stage& stage_;
    std::vector<Side> sides_;
};

/// Drawn alike, but for the rounding of filters and blending.
struct PictureDifference
{
    int most = 0;    ///< of a component
    double mean = 0; ///< of all components
    long pixels = 0; ///< that differ by more than `PixelTolerance`
};
constexpr int PixelTolerance = 3;
constexpr double MeanTolerance = 0.05;
constexpr double PixelShareTolerance = 0.0005; ///< of the view's pixels
PictureDifference Difference(const Screenshot& a, const Screenshot& b);
bool DrawnAlike(const PictureDifference& difference);
