// SPDX-License-Identifier: MIT
// The start page of a published presentation, printed with GDI.
#include <NxOsgCeGui/CeGuiMainFrame.h>

#include "../imaging/ImageDecoder.h"
#include "../widgets/FailureLog.h"

#include <KernelCommonUse/StringConvert.h>
#include <NxConfig/SystemUtility.h>

#include <atlimage.h>

#include <memory>
#include <type_traits>

namespace
{
// Where the lines stand on the picture, pixels.
constexpr POINT TitlePlace = {41, 12};     // left and top
constexpr POINT ProjectPlace = {250, 158}; // centre and bottom
constexpr POINT UnitPlace = {250, 246};
constexpr int FontWeight = 800;
/// Added to a file's name while it is written; ends in the kind of picture that it is.
const wchar_t* const Unfinished = L".part.bmp";

struct DeleteFont
{
    using pointer = HFONT;
    void operator()(HFONT font) const { DeleteObject(font); }
};
using FontHandle = std::unique_ptr<std::remove_pointer_t<HFONT>, DeleteFont>;

/// The picture's device context, for as long as all three lines need it.
class PictureDc
{
public:
    explicit PictureDc(CImage& image) : image_(image), dc_(image.GetDC()) {}
    ~PictureDc() { image_.ReleaseDC(); }
    PictureDc(const PictureDc&) = delete;
    PictureDc& operator=(const PictureDc&) = delete;

    void Print(const CString& text, const CString& face, int height, COLORREF color, POINT place, UINT align)
    {
        const FontHandle font(CreateFontW(height, 0, 0, 0, FontWeight, FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                                          CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, FF_MODERN, face));
        const HGDIOBJ former = SelectObject(dc_, font.get());
        SetBkMode(dc_, TRANSPARENT);
        SetTextColor(dc_, color);
        SetTextAlign(dc_, align);
        TextOutW(dc_, place.x, place.y, text, text.GetLength());
        SelectObject(dc_, former);
    }

private:
    CImage& image_;
    HDC dc_;
};

/// Gives a finished file its name. A write-protected file under that name stays, also where a new name would push it out.
bool PutInPlace(const CString& path)
{
    const DWORD attributes = GetFileAttributesW(path);
    const bool locked = attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY);
    return !locked && MoveFileExW(path + Unfinished, path, MOVEFILE_REPLACE_EXISTING);
}

/// A copy that is whole or not there: what stands under the target's name is replaced at the end only.
void Replace(const CString& source, const CString& target)
{
    if (!CopyFileW(source, target + Unfinished, FALSE) || !PutInPlace(target))
    {
        LogFailure("start page picture not copied", CString2string(source));
        DeleteFileW(target + Unfinished);
    }
}

void Save(const CImage& image, const CString& path)
{
    if (FAILED(image.Save(path + Unfinished)) || !PutInPlace(path))
    {
        LogFailure("start page not written", CString2string(path));
        DeleteFileW(path + Unfinished);
    }
}
} // namespace

void CeGuiMainFrame::ClearStaPageParameter()
{
    const CString resources = SystemUtility::GetAppPath() + SystemUtility::GetResourceRelPath();
    Replace(resources + L"exeGuiImage2.bmp", resources + L"exeGuiImage.bmp");
    startPage_ = STAPAGE();
    startPage_.picture = resources + L"pics/kwexeGuiImage.bmp";

    CImage image;
    if (!IsSafeImageFile(startPage_.picture) || FAILED(image.Load(startPage_.picture)))
    {
        LogFailure("start page picture not loaded", CString2string(startPage_.picture));
        return;
    }
    {
        PictureDc dc(image);
        const STAPAGE& page = startPage_;
        dc.Print(page.title, page.titleFont, page.titleSize, page.titleColor, TitlePlace, TA_LEFT | TA_TOP);
        dc.Print(page.projectName, page.projectFont, page.projectSize, page.projectColor, ProjectPlace, TA_CENTER | TA_BOTTOM);
        dc.Print(page.unitName, page.unitFont, page.unitSize, page.unitColor, UnitPlace, TA_CENTER | TA_BOTTOM);
    }
    Save(image, SystemUtility::GetAppPath() + L"exeFiles\\pics\\exeGuiImage.bmp");
}
