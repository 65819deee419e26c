// SPDX-License-Identifier: MIT
#include "Bout.h"

#include <osg/Camera>
#include <osg/Geode>

#include <algorithm>
#include <cstdlib>

namespace
{
/// From the first call to the last, and on to the finished picture.
class Measuring
{
public:
    explicit Measuring(std::shared_ptr<Duration> result) : result_(std::move(result)) {}

    void Begin()
    {
        bench::FinishDrawing();
        watch_ = Stopwatch();
    }

    void End()
    {
        const double thread = watch_.Elapsed().thread;
        bench::FinishDrawing();
        *result_ = watch_.Elapsed();
        result_->thread = thread;
    }

private:
    std::shared_ptr<Duration> result_;
    Stopwatch watch_;
};

class MeasuredDraw : public osg::Drawable::DrawCallback
{
public:
    explicit MeasuredDraw(std::shared_ptr<Duration> result) : measuring_(std::move(result)) {}

    void drawImplementation(osg::RenderInfo& info, const osg::Drawable* drawable) const override
    {
        measuring_.Begin();
        drawable->drawImplementation(info);
        measuring_.End();
    }

private:
    mutable Measuring measuring_;
};

class ContestantDrawable : public osg::Drawable
{
public:
    ContestantDrawable(std::shared_ptr<bench::Contestant> contestant, std::shared_ptr<Duration> result)
        : contestant_(std::move(contestant)), measuring_(std::move(result))
    {
        setSupportsDisplayList(false);
        setCullingActive(false);
    }

    osg::Object* cloneType() const override { return nullptr; }
    osg::Object* clone(const osg::CopyOp&) const override { return nullptr; }

    void drawImplementation(osg::RenderInfo& info) const override
    {
        // The scene's arrays; nothing that these have to pay for.
        osg::State& state = *info.getState();
        state.disableAllVertexArrays();
        state.unbindVertexBufferObject();
        state.unbindElementBufferObject();
        state.setClientActiveTextureUnit(0);
        state.setActiveTextureUnit(0);
        measuring_.Begin();
        contestant_->Draw();
        measuring_.End();
    }

private:
    std::shared_ptr<bench::Contestant> contestant_;
    mutable Measuring measuring_;
};

class MeasuredCamera : public osg::Camera::DrawCallback
{
public:
    MeasuredCamera(std::shared_ptr<Measuring> measuring, bool begins) : measuring_(std::move(measuring)), begins_(begins) {}
    void operator()(osg::RenderInfo&) const override { begins_ ? measuring_->Begin() : measuring_->End(); }

private:
    std::shared_ptr<Measuring> measuring_;
    bool begins_;
};

/// As the interface's own camera is, but for clearing.
osg::ref_ptr<osg::Camera> CameraOver(osg::Drawable* drawable)
{
    osg::ref_ptr<osg::Camera> camera = new osg::Camera;
    camera->setReferenceFrame(osg::Transform::RELATIVE_RF);
    camera->setClearMask(0);
    camera->setRenderOrder(osg::Camera::POST_RENDER, 0);
    camera->setAllowEventFocus(false);
    camera->getOrCreateStateSet()->setMode(GL_LIGHTING, osg::StateAttribute::OFF | osg::StateAttribute::PROTECTED);
    const osg::ref_ptr<osg::Geode> geode = new osg::Geode;
    geode->addDrawable(drawable);
    camera->addChild(geode);
    return camera;
}
} // namespace

Bout::Bout(Stage& stage) : stage_(stage)
{
    const auto last = std::make_shared<Duration>();
    stage.Drawable().setDrawCallback(new MeasuredDraw(last));
    sides_.push_back({"interface", stage.Frame().GetGUINode(), last, nullptr});
}

Bout::~Bout()
{
    stage_.Frame().MakeContextCurrent();
    for (std::size_t side = 1; side < sides_.size(); ++side)
    {
        stage_.Host().Root().removeChild(sides_[side].node);
    }
    sides_[Interface].node->setNodeMask(~0u);
    stage_.Drawable().setDrawCallback(nullptr);
}

void Bout::Add(const std::string& name, std::unique_ptr<bench::Contestant> contestant)
{
    const auto last = std::make_shared<Duration>();
    const std::shared_ptr<bench::Contestant> shared = std::move(contestant);
    const osg::ref_ptr<osg::Camera> camera = CameraOver(new ContestantDrawable(shared, last));
    stage_.Host().Root().addChild(camera);
    sides_.push_back({name, camera, last, shared});
}

void Bout::Add(const std::string& name, osg::Camera* camera)
{
    const auto last = std::make_shared<Duration>();
    const auto measuring = std::make_shared<Measuring>(last);
    camera->setPreDrawCallback(new MeasuredCamera(measuring, true));
    camera->setPostDrawCallback(new MeasuredCamera(measuring, false));
    stage_.Host().Root().addChild(camera);
    sides_.push_back({name, camera, last, nullptr});
}

void Bout::ShowOnly(std::size_t shown)
{
    for (std::size_t side = 0; side < sides_.size(); ++side)
    {
        sides_[side].node->setNodeMask(side == shown ? ~0u : 0u);
    }
}

Duration Bout::Frame(std::size_t side)
{
    ShowOnly(side);
    *sides_[side].last = Duration();
    stage_.Host().Viewer().frame();
    return *sides_[side].last;
}

Screenshot Bout::Shoot(std::size_t side)
{
    ShowOnly(side);
    return stage_.Host().Shoot();
}

PictureDifference Difference(const Screenshot& a, const Screenshot& b)
{
    PictureDifference difference;
    double sum = 0;
    for (std::size_t i = 0; i < a.pixels.size() && i < b.pixels.size(); ++i)
    {
        const int distance = Distance(a.pixels[i], b.pixels[i]);
        difference.most = std::max(difference.most, distance);
        difference.pixels += distance > PixelTolerance;
        sum += std::abs(a.pixels[i].red - b.pixels[i].red) + std::abs(a.pixels[i].green - b.pixels[i].green) +
               std::abs(a.pixels[i].blue - b.pixels[i].blue);
    }
    difference.mean = a.pixels.empty() || a.pixels.size() != b.pixels.size() ? 255 : sum / (3.0 * a.pixels.size());
    return difference;
}

bool DrawnAlike(const PictureDifference& difference)
{
    return difference.mean <= MeanTolerance && difference.pixels <= PixelShareTolerance * Stage::Width * Stage::Height;
}
