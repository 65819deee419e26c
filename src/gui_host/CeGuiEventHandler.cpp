// SPDX-License-Identifier: MIT
#include "CeGuiEventHandler.h"

#include "../control_buttons/ButtonEditing.h"
#include "../widgets/CallbackScope.h"
#include "../widgets/FailureLog.h"
#include "../widgets/InputState.h"
#include "../widgets/Names.h"
#include "../widgets/WholePixels.h"

#include <NxOsgCeGui/CeGuiDrawable.h>
#include <NxOsgCeGui/CeGuiMainFrame.h>

#include <CEGUI/Exceptions.h>
#include <CEGUI/GUIContext.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>

#include <osgGA/EventVisitor>
#include <osgViewer/Viewer>

#include <iostream>

namespace
{
using Event = osgGA::GUIEventAdapter;

struct Position
{
    float x;
    float y;
};

CEGUI::GUIContext& Gui()
{
    return CEGUI::System::getSingleton().getDefaultGUIContext();
}

bool KeyDown(int key)
{
    CEGUI::Window* sheet = Gui().getRootWindow();
    if (sheet && !sheet->isActive())
    {
        sheet->activate();
    }
    Gui().injectKeyDown(static_cast<CEGUI::Key::Scan>(key));
    Gui().injectChar(static_cast<CEGUI::String::value_type>(key));
    return false;
}

bool Push(const Event& ea, Position mouse)
{
    Gui().injectMousePosition(mouse.x, mouse.y);
    InputState& input = InputState::Get();
    switch (ea.getButton())
    {
    case Event::LEFT_MOUSE_BUTTON:
        mouseFlags.buttonHeld = true;
        mouseFlags.leftButton = true;
        input.windowUnderMouse.clear();
        Gui().injectMouseButtonDown(CEGUI::LeftButton);
        ButtonEditing::PressLeft(input.mousePoint);
        break;
    case Event::RIGHT_MOUSE_BUTTON:
        mouseFlags.buttonHeld = true;
        mouseFlags.leftButton = false;
        input.windowUnderMouse.clear();
        Gui().injectMouseButtonDown(CEGUI::RightButton);
        CeGuiMainFrame::GetInstance()->SetAddBtnMousePoint(input.mousePoint);
        break;
    default:
        break;
    }
    return false;
}

bool Release(const Event& ea, Position mouse, const osg::Object& object)
{
    // A trace kept for those who look for lost releases.
    std::cout << "release:" << object.getName() << ",button:" << ea.getButton() << " buttonMask:" << ea.getButtonMask()
              << std::endl;
    Gui().injectMousePosition(mouse.x, mouse.y);
    switch (ea.getButton())
    {
    case Event::LEFT_MOUSE_BUTTON:
        mouseFlags.buttonHeld = false;
        mouseFlags.leftButton = true;
        Gui().injectMouseButtonUp(CEGUI::LeftButton);
        ButtonEditing::ReleaseLeft();
        InputState::Get().windowUnderMouse.clear();
        break;
    case Event::RIGHT_MOUSE_BUTTON:
        Gui().injectMouseButtonUp(CEGUI::RightButton);
        mouseFlags.buttonHeld = false;
        mouseFlags.leftButton = false;
        ButtonEditing::ReleaseRight();
        InputState::Get().windowUnderMouse.clear();
        break;
    default:
        break;
    }
    return false;
}

bool DoubleClick(const Event& ea, Position mouse)
{
    Gui().injectMousePosition(mouse.x, mouse.y);
    switch (ea.getButton())
    {
    case Event::LEFT_MOUSE_BUTTON:
        Gui().injectMouseButtonDoubleClick(CEGUI::LeftButton);
        break;
    case Event::MIDDLE_MOUSE_BUTTON:
        Gui().injectMouseButtonDoubleClick(CEGUI::MiddleButton);
        break;
    case Event::RIGHT_MOUSE_BUTTON:
        Gui().injectMouseButtonDoubleClick(CEGUI::RightButton);
        break;
    default:
        break;
    }
    return false;
}

bool Move(Position mouse)
{
    Gui().injectMousePosition(mouse.x, mouse.y);
    const bool moving = mouseFlags.buttonEditMode && mouseFlags.buttonHeld && mouseFlags.leftButton;
    return moving && ButtonEditing::Drag(InputState::Get().mousePoint);
}

bool Scroll(const Event& ea)
{
    float change = 0;
    switch (ea.getScrollingMotion())
    {
    // Against CEGUI's convention, in which up is positive, on purpose: the bars' scrolling counts on it.
    case Event::SCROLL_UP:
        change = -1.0f;
        break;
    case Event::SCROLL_DOWN:
        change = 1.0f;
        break;
    default:
        return false;
    }
    return Gui().injectMouseWheelChange(change);
}

/// Keeps the visitor's events out of the reach of frames that a slot of the host draws: their event traversal uses the same
/// visitor, and clears its list, which the traversal that this event comes from has not read to its end.
class EventsKept
{
public:
    explicit EventsKept(osg::NodeVisitor* visitor) : visitor_(visitor ? visitor->asEventVisitor() : nullptr) { Exchange(); }
    ~EventsKept() { Exchange(); }
    EventsKept(const EventsKept&) = delete;
    EventsKept& operator=(const EventsKept&) = delete;

private:
    void Exchange()
    {
        if (visitor_)
        {
            events_.swap(visitor_->getEvents());
        }
    }

    osgGA::EventVisitor* visitor_;
    osgGA::EventQueue::Events events_;
};

CSize ViewSize(const Event& ea, osgGA::GUIActionAdapter& aa)
{
    int width = ea.getWindowWidth();
    int height = ea.getWindowHeight();
    if (auto* viewer = dynamic_cast<osgViewer::Viewer*>(&aa))
    {
        if (const osg::Viewport* viewport = viewer->getCamera()->getViewport())
        {
            width = WholePixels(viewport->width());
            height = WholePixels(viewport->height());
        }
    }
    return CSize(width, height);
}

bool Dispatch(const Event& ea, const osg::Object& object, Position mouse)
{
    switch (ea.getEventType())
    {
    case Event::KEYDOWN:
        return KeyDown(ea.getKey());
    case Event::KEYUP:
        Gui().injectKeyUp(static_cast<CEGUI::Key::Scan>(ea.getKey()));
        return false;
    case Event::PUSH:
        return Push(ea, mouse);
    case Event::RELEASE:
        return Release(ea, mouse, object);
    case Event::DOUBLECLICK:
        return DoubleClick(ea, mouse);
    case Event::DRAG:
    case Event::MOVE:
        return Move(mouse);
    case Event::SCROLL:
        return Scroll(ea);
    default:
        return false;
    }
}
} // namespace

bool CeGuiEventHandler::handle(const Event& ea, osgGA::GUIActionAdapter& aa, osg::Object* object, osg::NodeVisitor* visitor)
{
    const auto* drawable = dynamic_cast<CeGuiDrawable*>(object);
    CeGuiMainFrame& frame = *CeGuiMainFrame::GetInstance();
    const bool isOwn = drawable && drawable == frame.drawable_;
    if (!drawable || (isOwn && frame.IsOfOtherContext(ea)))
    {
        return false;
    }
    // The viewer's y axis points up, CEGUI's down.
    const Position mouse = {ea.getX(), static_cast<float>(ea.getWindowHeight()) - ea.getY()};
    InputState::Get().mousePoint = CPoint(WholePixels(mouse.x), WholePixels(mouse.y));
    const bool resized = ea.getEventType() == Event::RESIZE;
    // A size event starts CEGUI when the interface waits for a context.
    if (!drawable->IsInitialised() && !(isOwn && resized))
    {
        return false;
    }
    const EventsKept events(visitor);
    ForgetTold();
    try
    {
        if (!resized)
        {
            const CallbackScope scope;
            return Dispatch(ea, *object, mouse);
        }
        const CSize size = ViewSize(ea, aa);
        // A minimised window has no size: there is nothing to lay out before it has one again.
        if (size.cx > 0 && size.cy > 0)
        {
            CallbackScope::Run(CallbackScope::Request::Resize, [&frame, size] { frame.SizeView(size.cx, size.cy); });
        }
    }
    catch (const CEGUI::Exception& failure)
    {
        LogPassing("event not carried out", NameBytes(failure.getMessage()));
    }
    catch (const std::exception& failure)
    {
        LogFailure("event not carried out", failure.what());
    }
    catch (...)
    {
        // A host's slot may throw what it likes; the viewer goes on with the event.
        LogFailure("event not carried out", "an exception of no known kind");
    }
    return false;
}
