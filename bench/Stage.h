// SPDX-License-Identifier: MIT
#pragma once

#include <support/Gui.h>

#include <NxOsgCeGui/CeGuiDrawable.h>

#include <functional>
#include <memory>
#include <string>

namespace osgGA
{
class GUIEventAdapter;
}

/// The interface over a scene in a real window, with as much in it as a row of the report wants.
class Stage
{
public:
    static constexpr int Width = 1280;
    static constexpr int Height = 800;

    /// @param withCity else a plain background
    explicit Stage(bool withCity);

    GuiHost& Host() { return *host_; }
    CeGuiMainFrame& Frame() { return *CeGuiMainFrame::GetInstance(); }
    CeGuiDrawable& Drawable();

    /// Builds the frame anew with these, and with the panel open.
    void Fill(int entries, int rows);
    /// Fills it, slides the tool bar and the list in, and shows a tooltip; the mouse then rests over the list.
    void ShowEverything(int entries, int rows);

    /// One event, as the viewer hands it to the interface.
    bool Handle(osgGA::GUIEventAdapter& event);
    /// The size event, which builds the frame anew.
    void HandleResize();

    /// A picture for entries to show, written at the first call.
    const CString& EntryPicture();

private:
    std::unique_ptr<GuiHost> host_;
    CString entryPicture_;
};

/// Rows of a building's properties as hosts have them: short names, every fourth value too long for its place.
CeGuiMainFrame::PropertyRows PropertyRowsOf(int count);
std::vector<BTN_UNIT> RecordsOf(int count, const CString& picture);
