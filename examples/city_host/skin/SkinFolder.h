// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include <cstdint>
#include <map>
#include <vector>

namespace host
{

/// By what a file is known to be unchanged.
struct SkinFileStamp
{
    std::uint64_t size = 0;
    std::uint64_t written = 0; ///< FILETIME
};
inline bool operator==(const SkinFileStamp& a, const SkinFileStamp& b)
{
    return a.size == b.size && a.written == b.written;
}

/// Files by their names below the folder, such as "new_skin\logo.png".
using SkinFiles = std::map<CString, SkinFileStamp>;

/// Where the application's skins and pictures lie, with a backslash at the end.
CString ResourceFolder();

/// The folder of a skin.
/// @param skin its name among the application's skins, or the path of its folder
/// @return full path without "." and "..", with a backslash at the end; empty when no skin's scheme lies there, or when it is the
///     resource folder or one that holds that: a skin of the host's is a folder of its own
CString ResolveSkinFolder(const CString& skin);

/// What a skin consists of. What the interface writes there, its text pictures, is not counted, nor are folders that no skin
/// has. @param folder with a backslash at the end
SkinFiles ListSkin(const CString& folder);

/// Whether this is a picture by its name; the other files of a skin are texts.
bool IsPicture(const CString& file);

/// Whether a picture's file can be decoded as a whole.
bool CanBeShown(const CString& path);

/// The folders that hold a skin's scheme in the same folder as this one, itself among them, by name. Full paths with a
/// backslash at the end.
std::vector<CString> SkinsBeside(const CString& folder);

/// Makes all folders of a path that ends in a backslash.
void MakeFolders(const CString& path);

} // namespace host
