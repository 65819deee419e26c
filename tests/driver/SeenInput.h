// SPDX-License-Identifier: MIT
#pragma once

#include "support/Gui.h"

#include <osgGA/GUIEventHandler>

#include <string>
#include <vector>

/// Every event of mouse and keys that the viewer hands on while it lives, as lines: "move 10,20", "drag 10,20 left", "push
/// 10,20 left", "release 10,20", "double 10,20", "wheel up", "key 65307". View pixels.
class SeenInput
{
public:
    explicit SeenInput(GuiHost& host);
    ~SeenInput();
    SeenInput(const SeenInput&) = delete;
    SeenInput& operator=(const SeenInput&) = delete;

    /// Those since the last call.
    std::vector<std::string> Take();

private:
    class Handler;
    GuiHost& host_;
    osg::ref_ptr<Handler> handler_;
};
