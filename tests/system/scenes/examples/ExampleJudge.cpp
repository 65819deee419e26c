// SPDX-License-Identifier: MIT
#include "ExampleJudge.h"

#include "ExampleViewer.h"

#include "support/NativeGl.h"

#include <osg/DisplaySettings>
#include <osg/Image>
#include <osgViewer/api/Win32/GraphicsWindowWin32>

#include <cstdlib>

namespace
{
/// Blending rounds, in the example and in the pictures of the interface alone.
constexpr int BlendedTolerance = 3;

class ReadPixels : public osg::Camera::DrawCallback
{
public:
    void operator()(osg::RenderInfo&) const override
    {
        errors = 0;
        while (NativeGl::TakeError())
        {
            ++errors;
        }
        image->readPixels(0, 0, ExampleJudge::Width, ExampleJudge::Height, GL_RGB, GL_UNSIGNED_BYTE);
    }

    osg::ref_ptr<osg::Image> image = new osg::Image;
    mutable int errors = 0;
};

Screenshot ShotOf(const osg::Image& image)
{
    Screenshot shot;
    shot.width = image.s();
    shot.height = image.t();
    for (int y = shot.height - 1; y >= 0; --y)
    {
        for (int x = 0; x < shot.width; ++x)
        {
            const unsigned char* p = image.data(x, y);
            shot.pixels.push_back({p[0], p[1], p[2]});
        }
    }
    return shot;
}

/// A pixel of the interface over one of the scene; `onBlack` and `onWhite` are the interface's over those.
Pixel Over(Pixel onBlack, Pixel onWhite, Pixel below)
{
    const auto mix = [](int black, int white, int under) { return black + (white - black) * under / 255; };
    return {mix(onBlack.red, onWhite.red, below.red), mix(onBlack.green, onWhite.green, below.green),
            mix(onBlack.blue, onWhite.blue, below.blue)};
}

osg::State& StateOf(osgViewer::Viewer& viewer)
{
    return *viewer.getCamera()->getGraphicsContext()->getState();
}
} // namespace

ExampleJudge& ExampleJudge::Instance()
{
    static ExampleJudge judge;
    return judge;
}

void ExampleJudge::Begin()
{
    host_ = std::make_unique<GuiHost>(Width, Height);
    host_->Start();
    host_->MoveMouse(Width / 2, Height / 2);
    host_->Viewer().getCamera()->setClearColor(osg::Vec4(0, 0, 0, 1));
    host_->Frames(1);
    onBlack_ = host_->Shoot();
    host_->Viewer().getCamera()->setClearColor(osg::Vec4(1, 1, 1, 1));
    onWhite_ = host_->Shoot();
    host_->Close();
}

void ExampleJudge::End()
{
    host_.reset();
}

void ExampleJudge::Use(const ExampleSetting& setting, int frames)
{
    setting_ = setting;
    frames_ = frames;
    osg::DisplaySettings::instance()->setVertexBufferHint(setting.vertexArrayObjects ? osg::DisplaySettings::VERTEX_ARRAY_OBJECT
                                                          : setting.bufferObjects    ? osg::DisplaySettings::VERTEX_BUFFER_OBJECT
                                                                                     : osg::DisplaySettings::NO_PREFERENCE);
}

std::vector<std::string> ExampleJudge::TakeFaults()
{
    return std::exchange(faults_, {});
}

bool ExampleJudge::TakeJudged()
{
    return std::exchange(judged_, false);
}

void ExampleJudge::Fault(const std::string& text)
{
    faults_.push_back(text);
}

void ExampleJudge::GiveWindow(osgViewer::ExampleViewer& viewer)
{
    if (viewer.getCamera()->getGraphicsContext())
    {
        return;
    }
    window_ = CreateWindowExW(0, L"NxGuiTestView", L"", WS_CHILD | WS_VISIBLE, 0, 0, Width, Height, host_->MainWindow(), nullptr,
                              GetModuleHandleW(nullptr), nullptr);
    const osg::ref_ptr<osg::GraphicsContext::Traits> traits = new osg::GraphicsContext::Traits;
    traits->windowingSystemPreference = "Win32";
    traits->displayNum = 0;
    traits->screenNum = 0;
    traits->width = Width;
    traits->height = Height;
    traits->stencil = 8;
    traits->doubleBuffer = true;
    traits->inheritedWindowData = new osgViewer::GraphicsWindowWin32::WindowData(window_);
    traits->setInheritedWindowPixelFormat = true;
    const osg::ref_ptr<osg::GraphicsContext> context = osg::GraphicsContext::createGraphicsContext(traits);
    osg::Camera& camera = *viewer.getCamera();
    camera.setGraphicsContext(context);
    camera.setViewport(new osg::Viewport(0, 0, Width, Height));
    camera.setProjectionMatrixAsPerspective(30.0, double(Width) / Height, 1.0, 10000.0);
    camera.setDrawBuffer(GL_BACK);
    camera.setReadBuffer(GL_BACK);
    osg::State& state = *context->getState();
    state.setUseModelViewAndProjectionUniforms(setting_.uniforms);
    state.setUseVertexAttributeAliasing(setting_.aliasing);
}

void ExampleJudge::Leave(osgViewer::ExampleViewer& viewer)
{
    if (window_)
    {
        viewer.getCamera()->setGraphicsContext(nullptr);
        DestroyWindow(window_);
        window_ = nullptr;
    }
    root_ = nullptr;
}

void ExampleJudge::Pump()
{
    for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);)
    {
        DispatchMessageW(&message);
    }
}

Screenshot ExampleJudge::Shoot(osgViewer::ExampleViewer& viewer)
{
    const osg::ref_ptr<ReadPixels> read = new ReadPixels;
    const osg::ref_ptr<osg::Camera::DrawCallback> former = viewer.getCamera()->getFinalDrawCallback();
    viewer.getCamera()->setFinalDrawCallback(read);
    viewer.DrawFrame();
    viewer.getCamera()->setFinalDrawCallback(former);
    return ShotOf(*read->image);
}

void ExampleJudge::StartInterface(osgViewer::ExampleViewer& viewer)
{
    CeGuiMainFrame& frame = *CeGuiMainFrame::GetInstance();
    frame.Init(&viewer, GUI_USER_FULL);
    root_->addChild(frame.GetGUINode());
    viewer.DrawFrame();
    viewer.getEventQueue()->windowResize(0, 0, Width, Height);
    viewer.getEventQueue()->mouseMotion(Width / 2.0f, Height / 2.0f);
    for (int i = 0; i < 3; ++i)
    {
        Pump();
        viewer.DrawFrame();
    }
}

void ExampleJudge::EndInterface(osgViewer::ExampleViewer& viewer)
{
    CeGuiMainFrame& frame = *CeGuiMainFrame::GetInstance();
    const osg::ref_ptr<osg::Group> node = frame.GetGUINode();
    viewer.getCamera()->getGraphicsContext()->makeCurrent();
    node->releaseGLObjects(&StateOf(viewer));
    frame.CloseGuiSystem();
    root_->removeChild(node);
}

void ExampleJudge::Compare(const std::string& when, osgViewer::ExampleViewer& viewer)
{
    auto& hud = dynamic_cast<osg::Camera&>(*CeGuiMainFrame::GetInstance()->GetGUINode());
    const osg::ref_ptr<ReadPixels> before = new ReadPixels;
    const osg::ref_ptr<ReadPixels> after = new ReadPixels;
    hud.setInitialDrawCallback(before);
    hud.setFinalDrawCallback(after);
    viewer.DrawFrame();
    hud.setInitialDrawCallback(nullptr);
    hud.setFinalDrawCallback(nullptr);
    if (!before->image->data() || !after->image->data())
    {
        Fault(when + ": the interface was not drawn");
        return;
    }
    const Screenshot scene = ShotOf(*before->image);
    const Screenshot both = ShotOf(*after->image);
    int outside = 0;
    int opaque = 0;
    int blended = 0;
    int worst = 0;
    int shown = 0;
    for (std::size_t i = 0; i < both.pixels.size(); ++i)
    {
        const Pixel black = onBlack_.pixels[i];
        const Pixel white = onWhite_.pixels[i];
        const Pixel expected = Over(black, white, scene.pixels[i]);
        const int distance = Distance(both.pixels[i], expected);
        if (black == Pixel{0, 0, 0} && white == Pixel{255, 255, 255})
        {
            outside += distance != 0;
        }
        else if (black == white)
        {
            ++shown;
            opaque += distance != 0;
        }
        else
        {
            ++shown;
            blended += distance > BlendedTolerance;
            worst = std::max(worst, distance);
        }
    }
    const auto fault = [&](int count, const char* what)
    {
        if (count > 0)
        {
            Fault(when + ": " + std::to_string(count) + " " + what);
        }
    };
    fault(outside, "pixels of the scene outside of the windows differ");
    fault(opaque, "opaque pixels of the interface differ");
    fault(blended, ("blended pixels of the interface differ, by up to " + std::to_string(worst)).c_str());
    fault(after->errors, "errors of OpenGL");
    fault(shown == 0, "interface without a pixel");
}

void ExampleJudge::Judge(osgViewer::ExampleViewer& viewer)
{
    judged_ = true;
    osg::Node* scene = viewer.getSceneData();
    if (setting_.inItsRoot && scene && scene->asGroup())
    {
        root_ = scene->asGroup();
    }
    else
    {
        const osg::Matrixd view = viewer.getCamera()->getViewMatrix();
        root_ = new osg::Group;
        if (scene)
        {
            root_->addChild(scene);
        }
        viewer.setSceneData(root_);
        viewer.getCamera()->setViewMatrix(view);
    }
    viewer.getEventQueue()->windowResize(0, 0, Width, Height);
    for (int i = 0; i < 5; ++i)
    {
        Pump();
        viewer.DrawFrame();
    }
    const Screenshot first = Shoot(viewer);
    const Screenshot second = Shoot(viewer);
    StartInterface(viewer);
    Compare("at first", viewer);
    for (int i = 0; i < frames_; ++i)
    {
        viewer.DrawFrame();
    }
    Compare("after " + std::to_string(frames_) + " frames", viewer);
    viewer.getEventQueue()->windowResize(0, 0, Width, Height);
    viewer.DrawFrame();
    viewer.DrawFrame();
    Compare("after a size event", viewer);
    EndInterface(viewer);
    StartInterface(viewer);
    Compare("after a second start", viewer);
    EndInterface(viewer);
    const Screenshot last = Shoot(viewer);
    const Screenshot again = Shoot(viewer);
    int different = 0;
    for (std::size_t i = 0; i < first.pixels.size(); ++i)
    {
        const bool stable = first.pixels[i] == second.pixels[i] && last.pixels[i] == again.pixels[i];
        different += stable && !(first.pixels[i] == last.pixels[i]);
    }
    if (different > 0)
    {
        Fault("without the interface again: " + std::to_string(different) + " stable pixels differ");
    }
}
