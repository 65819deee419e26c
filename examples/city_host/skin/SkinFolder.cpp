// SPDX-License-Identifier: MIT
#include "SkinFolder.h"

#include <KernelCommonUse/FileOp.h>
#include <NxConfig/SystemUtility.h>

#include <imaging/ImageDecoder.h>

#include <atlimage.h>

#include <algorithm>

namespace host
{
namespace
{

const wchar_t* const SchemeFile = L"TavLookSkin.scheme";
/// The one folder that a skin has inside.
const wchar_t* const PictureFolder = L"new_skin\\";
const wchar_t* const pictureExtensions[] = {L".png", L".jpg", L".jpeg", L".gif", L".tif", L".tiff", L".bmp"};
const wchar_t* const textExtensions[] = {L".scheme", L".imageset", L".looknfeel", L".xml"};

CString Extension(const CString& file)
{
    const int dot = file.ReverseFind(L'.');
    CString extension = dot < 0 ? CString() : file.Mid(dot);
    extension.MakeLower();
    return extension;
}

template <std::size_t Count>
bool IsOneOf(const CString& word, const wchar_t* const (&words)[Count])
{
    return std::any_of(words, words + Count, [&](const wchar_t* candidate) { return word == candidate; });
}

bool BelongsToSkin(const CString& file)
{
    const CString extension = Extension(file);
    // The interface writes its text pictures as BMP, into the skin.
    return extension != L".bmp" && (IsOneOf(extension, pictureExtensions) || IsOneOf(extension, textExtensions));
}

/// Empty for a path that is none.
CString FullFolder(const CString& path)
{
    CString full;
    const int size = static_cast<int>(GetFullPathNameW(path, 0, nullptr, nullptr));
    const DWORD length = size > 0 ? GetFullPathNameW(path, static_cast<DWORD>(size), full.GetBuffer(size), nullptr) : 0;
    full.ReleaseBuffer(static_cast<int>(length));
    return full.IsEmpty() || full[full.GetLength() - 1] == L'\\' ? full : full + L'\\';
}

template <typename Each>
void ForEachEntry(const CString& pattern, Each each)
{
    WIN32_FIND_DATAW found = {};
    const HANDLE search = FindFirstFileW(pattern, &found);
    if (search == INVALID_HANDLE_VALUE)
    {
        return;
    }
    do
    {
        each(found);
    } while (FindNextFileW(search, &found));
    FindClose(search);
}

void ListFiles(const CString& folder, const CString& below, SkinFiles& files)
{
    ForEachEntry(folder + below + L"*",
                 [&](const WIN32_FIND_DATAW& found)
                 {
                     if (!(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) && BelongsToSkin(found.cFileName))
                     {
                         SkinFileStamp& stamp = files[below + found.cFileName];
                         stamp.size = std::uint64_t(found.nFileSizeHigh) << 32 | found.nFileSizeLow;
                         stamp.written =
                             std::uint64_t(found.ftLastWriteTime.dwHighDateTime) << 32 | found.ftLastWriteTime.dwLowDateTime;
                     }
                 });
}

} // namespace

CString ResourceFolder()
{
    return SystemUtility::GetAppPath() + SystemUtility::GetResourceRelPath();
}

CString ResolveSkinFolder(const CString& skin)
{
    CString path = skin;
    path.Replace(L'/', L'\\');
    if (!path.IsEmpty() && path.Find(L'\\') < 0)
    {
        path = ResourceFolder() + L"cegui\\" + path;
    }
    const CString folder = FullFolder(path);
    const CString resources = FullFolder(ResourceFolder());
    const bool holdsResources = resources.Left(folder.GetLength()).CompareNoCase(folder) == 0;
    return !holdsResources && FileOp::FileExist(folder + SchemeFile) ? folder : CString();
}

SkinFiles ListSkin(const CString& folder)
{
    SkinFiles files;
    ListFiles(folder, CString(), files);
    ListFiles(folder, PictureFolder, files);
    return files;
}

bool IsPicture(const CString& file)
{
    return IsOneOf(Extension(file), pictureExtensions);
}

bool CanBeShown(const CString& path)
{
    CImage picture;
    return IsSafeImageFile(path) && SUCCEEDED(picture.Load(path)) && picture.GetWidth() > 0 && picture.GetHeight() > 0;
}

std::vector<CString> SkinsBeside(const CString& folder)
{
    const CString inner = folder.Left(folder.GetLength() - 1);
    const CString parent = inner.Left(inner.ReverseFind(L'\\') + 1);
    std::vector<CString> skins;
    ForEachEntry(parent + L"*",
                 [&](const WIN32_FIND_DATAW& found)
                 {
                     const CString candidate = parent + found.cFileName;
                     if (found.cFileName[0] != L'.' && FileOp::FileExist(candidate + L"\\" + SchemeFile))
                     {
                         skins.push_back(candidate);
                     }
                 });
    std::sort(skins.begin(), skins.end());
    for (CString& skin : skins)
    {
        skin += L'\\';
    }
    return skins;
}

void MakeFolders(const CString& path)
{
    for (int end = path.Find(L'\\'); end >= 0; end = path.Find(L'\\', end + 1))
    {
        CreateDirectoryW(path.Left(end), nullptr);
    }
}

} // namespace host
