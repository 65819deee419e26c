// SPDX-License-Identifier: MIT
#include "SeenInput.h"

#include <cmath>
#include <utility>

namespace
{
std::string ButtonsOf(const osgGA::GUIEventAdapter& event)
{
    std::string text;
    text += event.getButtonMask() & osgGA::GUIEventAdapter::LEFT_MOUSE_BUTTON ? " left" : "";
    text += event.getButtonMask() & osgGA::GUIEventAdapter::RIGHT_MOUSE_BUTTON ? " right" : "";
    return text;
}
} // namespace

class SeenInput::Handler : public osgGA::GUIEventHandler
{
public:
    explicit Handler(GuiHost& host) : host_(host) {}

    bool handle(const osgGA::GUIEventAdapter& event, osgGA::GUIActionAdapter&) override
    {
        // The viewer counts rows from the bottom.
        const auto whole = [](double pixels) { return std::lround(pixels); };
        const std::string at =
            " " + std::to_string(whole(event.getX())) + "," + std::to_string(host_.Height() - 1 - whole(event.getY()));
        using Event = osgGA::GUIEventAdapter;
        switch (event.getEventType())
        {
        case Event::MOVE:
            lines.push_back("move" + at);
            break;
        case Event::DRAG:
            lines.push_back("drag" + at + ButtonsOf(event));
            break;
        case Event::PUSH:
            lines.push_back("push" + at + ButtonsOf(event));
            break;
        case Event::RELEASE:
            lines.push_back("release" + at + ButtonsOf(event));
            break;
        case Event::DOUBLECLICK:
            lines.push_back("double" + at);
            break;
        case Event::SCROLL:
            lines.push_back(event.getScrollingMotion() == Event::SCROLL_UP ? "wheel up" : "wheel down");
            break;
        case Event::KEYDOWN:
            lines.push_back("key " + std::to_string(event.getKey()));
            break;
        default:
            break;
        }
        return false;
    }

    std::vector<std::string> lines;

private:
    GuiHost& host_;
};

SeenInput::SeenInput(GuiHost& host) : host_(host), handler_(new Handler(host))
{
    // First of all: what the interface takes for itself goes no further.
    host_.Viewer().getEventHandlers().push_front(handler_);
}

SeenInput::~SeenInput()
{
    host_.Viewer().removeEventHandler(handler_);
}

std::vector<std::string> SeenInput::Take()
{
    return std::exchange(handler_->lines, {});
}
