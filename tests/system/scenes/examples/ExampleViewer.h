// SPDX-License-Identifier: MIT
#pragma once

#include <osgViewer/Viewer>

namespace osgViewer
{
/// What examples take for OpenSceneGraph's viewer. Its first frame, or its run, is judged with and without the interface, and
/// then it is done.
class ExampleViewer : public osgViewer::Viewer
{
public:
    ExampleViewer();
    explicit ExampleViewer(osg::ArgumentParser& arguments);
    ~ExampleViewer() override;

    using osgViewer::View::setSceneData;
    void realize() override;
    int run() override;
    void frame(double simulationTime = USE_REFERENCE_TIME) override;
    void setThreadingModel(ThreadingModel model) override;

    /// One frame of OpenSceneGraph's, at the time at which all stand still.
    void DrawFrame();

private:
    void Judge();

    bool judged_ = false;
};
} // namespace osgViewer
