// SPDX-License-Identifier: MIT
#pragma once

#include <NxOsgCeGui/CeGuiMainFrame.h>

#include <functional>

namespace host
{

/// The interface, from its start on a viewer to its end before the viewer goes away.
class GuiSession
{
public:
    /// @param viewer realised; outlives this
    /// @param slot the group of the viewer's scene that the interface hangs under
    /// @param slideOut whether bars slide out
    GuiSession(osgViewer::Viewer& viewer, osg::Group& slot, GUIUserType user, bool slideOut);
    ~GuiSession();
    GuiSession(const GuiSession&) = delete;
    GuiSession& operator=(const GuiSession&) = delete;

    /// Ends the interface and starts it again.
    /// @param between what the start is to find changed; null: nothing
    /// @throws CEGUI::Exception when the skin cannot be read; the interface is ended then
    void Restart(const std::function<void()>& between);
    /// The same with the texts of a language.
    void RestartIn(const CString& language);

    /// Builds the frame anew, as the control buttons now are. What the mouse is over slides in again.
    void Rebuild();

    /// Whether a point, in view pixels, lies on a part of the frame over which the interface does not report the mouse: the
    /// title bar and the property panel.
    bool IsOnFrame(CPoint point) const;
    /// Whether a point, in view pixels, is a part of the title bar with nothing on it.
    bool IsTitleHandle(CPoint point) const;

private:
    void Open();
    void Close();
    bool IsOnTitleBar(CPoint point) const;

    osgViewer::Viewer& viewer_;
    osg::Group& slot_;
    GUIUserType user_;
};

} // namespace host
