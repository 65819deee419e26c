// SPDX-License-Identifier: MIT
#pragma once

#include <NxOsgCeGui/Export.h>
#include <afxwin.h>

/// Parameters of the start page that opens a published presentation: three lines of text printed on a picture. Colours are
/// COLORREF (0x00BBGGRR), sizes are character heights in pixels.
struct NXOSGCEGUI_API STAPAGE
{
    /// Built-in texts, replaced by what "tavmemory.ini" holds; the interface's font for all three lines.
    STAPAGE();
    STAPAGE(const STAPAGE&);
    STAPAGE& operator=(const STAPAGE&);
    ~STAPAGE();

    CString title;         ///< first line: the publication's title
    CString projectName;   ///< second line
    CString unitName;      ///< third line: the organisation
    COLORREF titleColor;   ///< black
    COLORREF projectColor; ///< white
    COLORREF unitColor;    ///< white
    CString titleFont;     ///< font face, as of the other two lines
    CString projectFont;
    CString unitFont;
    int titleSize;   ///< 13
    int projectSize; ///< 30
    int unitSize;    ///< 18
    bool firstFlag;  ///< false; the three flags are the host's, kept and copied only
    bool secondFlag; ///< true
    bool thirdFlag;  ///< false
    CString picture; ///< full path of the background picture, empty by default
};
