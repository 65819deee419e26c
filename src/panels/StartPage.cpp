// SPDX-License-Identifier: MIT
// The start page of a published presentation, printed with GDI.
#include <NxOsgCeGui/CeGuiMainFrame.h>

#include "../imaging/ImageDecoder.h"
#include "../widgets/FailureLog.h"

#include <KernelCommonUse/StringConvert.h>
#include <KernelCommonUse/WholeFile.h>
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

void Replace(const CString& source, const CString& target)
{
    if (!WholeFile::Copy(source, target))
    {
        LogFailure("start page picture not copied", CString2string(source));
    }
}

void Save(const CImage& image, const CString& path)
{
    WholeFile file(path);
    if (FAILED(image.Save(file.Unfinished())) || !file.Commit())
    {
        LogFailure("start page not written", CString2string(path));
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
