// SPDX-License-Identifier: MIT
#pragma once

#include "support/Gui.h"

#include <memory>
#include <string>
#include <vector>

namespace osgViewer
{
class ExampleViewer;
} // namespace osgViewer

/// How OpenSceneGraph draws an example, and where the interface's node stands.
struct ExampleSetting
{
    const char* name;
    bool uniforms;
    bool aliasing;
    bool bufferObjects;
    bool vertexArrayObjects;
    bool inItsRoot; ///< the node in the example's own root; else beside it
};

/// Draws an example without the interface, with it, for many frames, after a resize, after a close and a second start, and
/// without it again, and notes what is wrong.
class ExampleJudge
{
public:
    static constexpr int Width = 480;
    static constexpr int Height = 360;

    static ExampleJudge& Instance();

    /// Draws the interface alone, which all later pictures are compared with.
    void Begin();
    void End();
    void Use(const ExampleSetting& setting, int frames);
    /// What was wrong since the last call.
    std::vector<std::string> TakeFaults();
    /// Whether an example was judged since the last call.
    bool TakeJudged();

    // For the viewer.
    void GiveWindow(osgViewer::ExampleViewer& viewer);
    void Judge(osgViewer::ExampleViewer& viewer);
    void Leave(osgViewer::ExampleViewer& viewer);

private:
    void Fault(const std::string& text);
    void Compare(const std::string& when, osgViewer::ExampleViewer& viewer);
    void StartInterface(osgViewer::ExampleViewer& viewer);
    void EndInterface(osgViewer::ExampleViewer& viewer);
    static void Pump();
    static Screenshot Shoot(osgViewer::ExampleViewer& viewer);

    std::unique_ptr<GuiHost> host_;
    Screenshot onBlack_;
    Screenshot onWhite_;
    ExampleSetting setting_ = {};
    int frames_ = 100;
    HWND window_ = nullptr;
    osg::ref_ptr<osg::Group> root_;
    std::vector<std::string> faults_;
    bool judged_ = false;
};
