// SPDX-License-Identifier: MIT
#include "OtherRows.h"
#include "native/Allocations.h"

#include <CEGUI/GUIContext.h>
#include <CEGUI/Renderer.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>
#include <CEGUI/WindowManager.h>

#include <osgGA/GUIEventAdapter>

#include <iostream>

namespace
{
constexpr int MovesPerSample = 240;

/// Along the list, over its entries and between them, where the list and the rest of the interface stay as they are.
std::vector<CPoint> PathOverList()
{
    std::vector<CPoint> path;
    path.reserve(MovesPerSample);
    for (int i = 0; i < MovesPerSample; ++i)
    {
        path.emplace_back(20 + i % 7 * 15, 60 + i * 13 % 600);
    }
    return path;
}

std::vector<osg::ref_ptr<osgGA::GUIEventAdapter>> MovesAlong(const std::vector<CPoint>& path)
{
    std::vector<osg::ref_ptr<osgGA::GUIEventAdapter>> moves;
    for (const CPoint point : path)
    {
        const osg::ref_ptr<osgGA::GUIEventAdapter> move = new osgGA::GUIEventAdapter;
        move->setEventType(osgGA::GUIEventAdapter::MOVE);
        move->setWindowRectangle(0, 0, Stage::Width, Stage::Height);
        move->setInputRange(0, 0, Stage::Width, Stage::Height);
        move->setX(static_cast<float>(point.x));
        move->setY(static_cast<float>(Stage::Height - point.y));
        moves.push_back(move);
    }
    return moves;
}

/// The same windows with nothing subscribed to them, in a context of their own.
class BareWindows
{
public:
    explicit BareWindows(CEGUI::Window& root)
        : context_(CEGUI::System::getSingleton().createGUIContext(
              CEGUI::System::getSingleton().getRenderer()->getDefaultRenderTarget())),
          root_(CopyOf(root))
    {
        context_.setRootWindow(root_);
    }
    ~BareWindows()
    {
        context_.setRootWindow(nullptr);
        CEGUI::WindowManager::getSingleton().destroyWindow(root_);
        CEGUI::System::getSingleton().destroyGUIContext(context_);
    }
    BareWindows(const BareWindows&) = delete;
    BareWindows& operator=(const BareWindows&) = delete;

    CEGUI::GUIContext& Context() { return context_; }

private:
    static CEGUI::Window* CopyOf(CEGUI::Window& window)
    {
        CEGUI::Window* copy = CEGUI::WindowManager::getSingleton().createWindow(window.getType());
        copy->setMaxSize(window.getMaxSize());
        copy->setArea(window.getArea());
        copy->setVisible(window.isVisible());
        copy->setMousePassThroughEnabled(window.isMousePassThroughEnabled());
        for (const char* property : {"Image", "NormalImage", "HoverImage", "PushedImage"})
        {
            if (window.isPropertyPresent(property))
            {
                copy->setProperty(property, window.getProperty(property));
            }
        }
        for (std::size_t i = 0; i < window.getChildCount(); ++i)
        {
            copy->addChild(CopyOf(*window.getChildAtIdx(i)));
        }
        return copy;
    }

    CEGUI::GUIContext& context_;
    CEGUI::Window* root_;
};

void CountAllocations(Stage& stage, Row& row)
{
    constexpr int moves = 100;
    // Over the scene, with both bars out: no window but the sheet is there.
    stage.Fill(100, 100);
    stage.Host().MoveMouse(600, 400);
    std::vector<CPoint> path;
    path.reserve(moves);
    for (int i = 0; i < moves; ++i)
    {
        path.emplace_back(500 + i, 400 + i % 3);
    }
    const auto events = MovesAlong(path);
    stage.Handle(*events[0]);
    stage.Handle(*events[1]);
    bench::AllocationCount count;
    for (const auto& event : events)
    {
        stage.Handle(*event);
    }
    count.Stop();
    row.extra["allocations"] = static_cast<double>(count.BesidesDriver()) / moves;
    row.extra["allocations_limit"] = 0;
    row.alsoHolds = count.BesidesDriver() == 0;
    for (const auto& [module, number] : count.ByModule())
    {
        std::cout << "allocations of " << moves << " moves in " << module << ": " << number << "\n";
    }
}

Duration Each(Duration all, int count)
{
    return {all.process / count, all.thread / count, all.wall / count};
}
} // namespace

Row MouseMoveRow(Stage& stage)
{
    const std::vector<CPoint> path = PathOverList();
    const auto events = MovesAlong(path);
    std::map<int, std::vector<Series>> bySize;
    for (const int size : {10, 1000, 100})
    {
        stage.ShowEverything(size, 100);
        BareWindows bare(*CEGUI::System::getSingleton().getDefaultGUIContext().getRootWindow());
        bySize[size] = Alternate({[&]
                                  {
                                      return Each(TimeOf(
                                                      [&]
                                                      {
                                                          for (const auto& event : events)
                                                          {
                                                              stage.Handle(*event);
                                                          }
                                                      }),
                                                  MovesPerSample);
                                  },
                                  [&]
                                  {
                                      return Each(TimeOf(
                                                      [&]
                                                      {
                                                          for (const CPoint point : path)
                                                          {
                                                              bare.Context().injectMousePosition(static_cast<float>(point.x),
                                                                                                 static_cast<float>(point.y));
                                                          }
                                                      }),
                                                  MovesPerSample);
                                  }});
    }
    Row row = Compare("mouse_move", bySize[100][0], bySize[100][1], 2, &Duration::thread);
    row.what = "one mouse move over the list; reference: CEGUI's injection of it over the same windows without subscribers";
    for (const auto& [size, series] : bySize)
    {
        row.growth[size] = series[0].Median(&Duration::thread);
    }
    CountAllocations(stage, row);
    return row;
}
