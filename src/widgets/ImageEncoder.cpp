// SPDX-License-Identifier: MIT
#include "ImageEncoder.h"

#include "BmpFile.h"

#include <cwctype>
#include <map>
#include <vector>

CString GetFileExtension(const CString& path)
{
    const int dot = path.ReverseFind(L'.');
    if (path.GetLength() < 3 || dot < 0)
    {
        return CString();
    }
    CString extension = path.Mid(dot + 1);
    for (int i = 0; i < extension.GetLength(); ++i)
    {
        extension.SetAt(i, static_cast<wchar_t>(std::towlower(extension.GetAt(i))));
    }
    return extension;
}

bool GetMimeTypeByExtension(const CString& extension, CString& mimeType)
{
    // "tif" is left out on purpose.
    const std::map<CString, CString> mimeTypes = {
        {L"bmp", L"image/bmp"}, {L"jpeg", L"image/jpeg"}, {L"jpg", L"image/jpeg"},
        {L"gif", L"image/gif"}, {L"tiff", L"image/tiff"}, {L"png", L"image/png"},
    };
    const auto found = mimeTypes.find(extension);
    if (found == mimeTypes.end())
    {
        return false;
    }
    mimeType = found->second;
    return true;
}

int GetEncoderClsid(const CString& mimeType, CLSID& clsid)
{
    gp::RequireGdiplus();
    UINT count = 0;
    UINT bytes = 0;
    gp::GdipGetImageEncodersSize(&count, &bytes);
    if (bytes == 0)
    {
        return -1;
    }
    // GDI+ lays the strings that the entries point to behind them in the same buffer.
    std::vector<gp::ImageCodecInfo> buffer(bytes / sizeof(gp::ImageCodecInfo) + 1);
    if (gp::GdipGetImageEncoders(count, bytes, buffer.data()) != gp::Ok)
    {
        return -1;
    }
    for (UINT i = 0; i < count; ++i)
    {
        if (mimeType == buffer[i].MimeType)
        {
            clsid = buffer[i].Clsid;
            return static_cast<int>(i);
        }
    }
    return -1;
}

bool GetEncoderForPath(const CString& path, CLSID& clsid)
{
    CString mimeType;
    return GetMimeTypeByExtension(GetFileExtension(path), mimeType) && GetEncoderClsid(mimeType, clsid) >= 0;
}

bool SaveBitmap(gp::GpBitmap* bitmap, const CString& path, const CLSID& clsid)
{
    const CString unfinished = path + L".part";
    const bool written = GetFileExtension(path) == L"bmp"
                             ? WriteBmpFile(bitmap, unfinished)
                             : gp::GdipSaveImageToFile(bitmap, unfinished, &clsid, nullptr) == gp::Ok;
    if (written && MoveFileExW(unfinished, path, MOVEFILE_REPLACE_EXISTING))
    {
        return true;
    }
    DeleteFileW(unfinished);
    return false;
}
