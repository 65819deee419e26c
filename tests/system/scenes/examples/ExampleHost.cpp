// SPDX-License-Identifier: MIT
// Judges the interface over one of OpenSceneGraph's examples.
#include "ExampleHost.h"

#include "ExampleJudge.h"
#include "ExampleViewer.h"

#include <osgGA/TrackballManipulator>

#include <map>

namespace
{
std::map<std::string, RegisteredExample::Main>& Examples()
{
    static std::map<std::string, RegisteredExample::Main> examples;
    return examples;
}

/// Examples that animate by the clock stand still.
constexpr double FrozenTime = 1.0;
} // namespace

RegisteredExample::RegisteredExample(const char* name, Main main)
{
    Examples()[name] = std::move(main);
}

const RegisteredExample::Main* RegisteredExample::Find(const std::string& name)
{
    const auto found = Examples().find(name);
    return found != Examples().end() ? &found->second : nullptr;
}

namespace osgViewer
{
ExampleViewer::ExampleViewer()
{
    Viewer::setThreadingModel(SingleThreaded);
    setKeyEventSetsDone(0);
}

ExampleViewer::ExampleViewer(osg::ArgumentParser& arguments) : osgViewer::Viewer(arguments)
{
    Viewer::setThreadingModel(SingleThreaded);
    setKeyEventSetsDone(0);
}

ExampleViewer::~ExampleViewer()
{
    ExampleJudge::Instance().Leave(*this);
}

void ExampleViewer::setThreadingModel(ThreadingModel)
{
    osgViewer::Viewer::setThreadingModel(SingleThreaded);
}

void ExampleViewer::realize()
{
    ExampleJudge::Instance().GiveWindow(*this);
    osgViewer::Viewer::realize();
}

int ExampleViewer::run()
{
    if (!getCameraManipulator() && getCamera()->getAllowEventFocus())
    {
        setCameraManipulator(new osgGA::TrackballManipulator);
    }
    Judge();
    return 0;
}

void ExampleViewer::frame(double)
{
    Judge();
}

void ExampleViewer::DrawFrame()
{
    osgViewer::Viewer::frame(FrozenTime);
}

void ExampleViewer::Judge()
{
    if (!judged_)
    {
        judged_ = true;
        if (!isRealized())
        {
            realize();
        }
        ExampleJudge::Instance().Judge(*this);
    }
    setDone(true);
}
} // namespace osgViewer
