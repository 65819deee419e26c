// SPDX-License-Identifier: MIT
#pragma once

#include <NxOsgCeGui/GuiTypes.h>

#include <afxwin.h>

namespace host
{

/// What the command line asks for.
struct Options
{
    CString tourFolder;            ///< where the tour's pictures go; empty: a live window
    CString tourPart;              ///< the part of the tour that is made; empty: all of it
    CString tourReferences;        ///< folder of the pictures that the tour's are compared with; empty: none
    bool remakeReferences = false; ///< the tour's pictures become the references
    CString publicationFolder;     ///< the publication that is shown; empty: the application itself
    CSize size = CSize(1280, 800); ///< of the window, in pixels
    GUIUserType user = GUI_USER_FULL;
    CString language;      ///< "zh-CN" or "en"; empty: what the parameters say
    CString skinFolder;    ///< of the skin, with a backslash at the end; empty: what the parameters say
    bool slideOut = false; ///< bars slide out instead of vanishing
    int scale = 0;         ///< view pixels to one of the interface's; 0: as the monitor's density says
    int samples = 0;       ///< of multisampling; 0: none
};

/// @param error set to one line when the result is false
bool ParseOptions(LPCWSTR commandLine, Options& options, CString& error);

} // namespace host
