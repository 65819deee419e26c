// SPDX-License-Identifier: MIT
#pragma once

#include "GlSnapshot.h"
#include "SystemGlCalls.h"

#include "support/HostedFrame.h"

#include <functional>

/// Draws the interface in the viewer's own frames with OpenGL's state changed just before it, and looks at the state just after.
class UnderState : public HostedFrame
{
protected:
    struct Outcome
    {
        Screenshot shot;
        std::vector<std::string> differences; ///< of OpenGL's state, before and after the interface
        std::vector<std::string> errors;      ///< that OpenGL reported while the interface was drawn
    };

    void TearDown() override;

    /// Draws one frame.
    /// @param set called just before the interface is drawn
    /// @param unset called just after it; it need not put back what OpenGL's stacks of attributes save
    static Outcome Draw(GuiHost& host, const std::function<void()>& set, const std::function<void()>& unset);
    static Outcome Draw(const std::function<void()>& set, const std::function<void()>& unset) { return Draw(Host(), set, unset); }
    /// Queues all windows anew, so that the next frame is not drawn out of what the last one kept.
    static void MarkDirty();
    /// For the life of the object the interface has no program.
    class FixedFunctions
    {
    public:
        FixedFunctions();
        ~FixedFunctions();

    private:
        osg::ref_ptr<osg::StateAttribute> program_;
    };
    /// Pixels that differ by more than `tolerance`.
    static int Different(const Screenshot& one, const Screenshot& other, int tolerance = 0);
};
