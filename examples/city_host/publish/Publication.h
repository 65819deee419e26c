// SPDX-License-Identifier: MIT
#pragma once

#include "../camera/CameraPose.h"

#include <afxwin.h>

namespace host
{

/// The three lines of a start page.
struct StartPageTexts
{
    CString title;
    CString projectName;
    CString unitName;
};

/// What a published presentation shows: the start page first, then the scene from one place under one title.
struct Publication
{
    CString startPage; ///< full path of the picture
    CString language;  ///< name of a table; empty: the application's own
    CString title;
    CString titleFont;
    COLORREF titleColor = 0;
    float titleHeight = 16.0f; ///< pixels
    CameraPose pose;
};

/// The scene's title as the interface has it now, and the interface's language.
Publication CurrentPublication(const CameraPose& pose);

/// Whether texts were kept by an earlier publication.
bool HasStartPageTexts();

/// Keeps the texts for the next publication and prints the start page with them.
/// @return the printed picture's full path, empty when it could not be printed
CString PrintStartPage(const StartPageTexts& texts);

/// A folder below the application's, named after a title.
CString PublicationFolder(const CString& title);

/// Writes a folder that starts this program by itself: the start page, the settings, and scripts to start it with.
/// @param publication its startPage is copied
/// @return empty, or a line about what could not be written
CString WritePublication(const CString& folder, const Publication& publication);

/// @throws std::runtime_error when the folder holds no publication
Publication ReadPublication(const CString& folder);

} // namespace host
