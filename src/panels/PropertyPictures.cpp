// SPDX-License-Identifier: MIT
#include "PropertyPictures.h"

#include "../widgets/DecodedPicture.h"
#include "../widgets/FailureLog.h"
#include "../widgets/ImageEncoder.h"
#include "ShortenText.h"

#include <KernelCommonUse/MultiLanguage.h>
#include <KernelCommonUse/StringConvert.h>
#include <NxConfig/SystemUtility.h>

#include <algorithm>

namespace
{
using namespace PropertyPictures;

const gp::GpRect HeaderSlice = {0, 0, PanelWidth, HeaderHeight};
const gp::GpRect RowSlice = {0, 38, PanelWidth, RowHeight};
const gp::GpRect FooterSlice = {0, 64, PanelWidth, FooterHeight};
constexpr float CaptionX = 16;
constexpr float CaptionY = 12;
constexpr float NameX = 35;
constexpr float NameMaxWidth = 80;
constexpr float ValueX = 140;
constexpr float ValueMaxWidth = 110;
constexpr float TextInset = 5; // below a row's top
constexpr float FontPixels = 12;
constexpr gp::ARGB TextColor = 0xFFFFFFFF;
/// In the files' names. Nothing changes it, on purpose: the panel overwrites the same files.
constexpr int SequenceNumber = 0;

CString Translation(const char* key)
{
    return CMultiLanguageMgr::GetInstance()->translation(key, "", "Common");
}

CString ResourceDirectory()
{
    return SystemUtility::GetAppPath() + SystemUtility::GetCeguiResRelPath();
}

/// A picture being drawn: the template's slices and the panel's font on a transparent bitmap.
class Drawing
{
public:
    explicit Drawing(int height) : fontName_(Translation("LKEY11"))
    {
        const CString path = ResourceDirectory() + L"new_skin/DlgPropertyTemple.png";
        template_ = DecodedPicture(path);
        if (!template_)
        {
            LogFailure("property panel's template not loaded", CString2string(path));
            return;
        }
        bitmap_ = gp::NewBitmap(PanelWidth, height);
        if (!bitmap_)
        {
            LogFailure("property panel's picture not drawn",
                       std::to_string(PanelWidth) + " x " + std::to_string(height) + " pixels");
            return;
        }
        graphics_ = gp::GraphicsOf(bitmap_.get());
        gp::SetQuality(graphics_.get(), gp::TextRenderingHintClearTypeGridFit);
        const gp::FontFamily family = gp::NewFontFamily(fontName_);
        font_ = gp::NewFont(family.get(), FontPixels);
        format_ = gp::NewStringFormat();
        brush_ = gp::NewSolidBrush(TextColor);
    }

    bool IsReady() const { return graphics_ && !fontName_.IsEmpty(); }
    const CString& FontName() const { return fontName_; }

    void Slice(const gp::GpRect& slice, int y)
    {
        gp::GdipDrawImageRectRectI(graphics_.get(), template_, 0, y, slice.Width, slice.Height, slice.X, slice.Y, slice.Width,
                                   slice.Height, gp::UnitPixel, nullptr, nullptr, nullptr);
    }

    /// Neither broken nor clipped.
    void Text(const CString& text, float x, float y)
    {
        const gp::RectF place = {x, y, 0, 0};
        if (font_)
        {
            gp::GdipDrawString(graphics_.get(), text, -1, font_.get(), &place, format_.get(), brush_.get());
        }
    }

    /// @return the file's bare name, empty on failure
    CString Save(const CString& file)
    {
        const CString path = ResourceDirectory() + file;
        CLSID encoder;
        graphics_.reset();
        if (GetEncoderForPath(path, encoder) && SaveBitmap(bitmap_.get(), path, encoder))
        {
            return file;
        }
        LogFailure("property panel's picture not written", CString2string(path));
        return CString();
    }

private:
    CString fontName_;
    gp::GpBitmap* template_ = nullptr;
    gp::Bitmap bitmap_;
    gp::Graphics graphics_;
    gp::Font font_;
    gp::StringFormat format_;
    gp::SolidBrush brush_;
};

CString DrawRows(const CeGuiMainFrame::PropertyRows& rows, int firstRow, int height, const CString& file)
{
    Drawing drawing(height);
    if (!drawing.IsReady())
    {
        return CString();
    }
    const int count = static_cast<int>(rows.size());
    const TextMeasurer measurer(drawing.FontName(), FontPixels, gp::TextRenderingHintClearTypeGridFit);
    const TextShortener shortener(measurer);
    const int strips = (height + RowHeight - 1) / RowHeight;
    for (int i = 0; i < strips; ++i)
    {
        const int top = RowHeight * i;
        drawing.Slice(RowSlice, top);
        if (firstRow + i < count)
        {
            const auto& [name, value] = rows[static_cast<std::size_t>(firstRow + i)];
            drawing.Text(shortener.Fit(name, NameMaxWidth), NameX, top + TextInset);
            drawing.Text(shortener.Fit(value, ValueMaxWidth), ValueX, top + TextInset);
        }
    }
    return drawing.Save(file);
}
} // namespace

namespace PropertyPictures
{
CString WriteFrame(int panelHeight)
{
    Drawing drawing(panelHeight);
    if (!drawing.IsReady())
    {
        return CString();
    }
    drawing.Slice(HeaderSlice, 0);
    drawing.Text(Translation("LKEY8"), CaptionX, CaptionY);
    drawing.Slice(FooterSlice, panelHeight - FooterHeight);
    CString file;
    file.Format(L"PropertyFormbackImage_%d.bmp", SequenceNumber);
    return drawing.Save(file);
}

int ListHeight(const CeGuiMainFrame::PropertyRows& rows, int minHeight)
{
    return std::max(RowHeight * static_cast<int>(rows.size()), minHeight);
}

CString WriteList(const CeGuiMainFrame::PropertyRows& rows, int height)
{
    CString file;
    file.Format(L"PropertyImage_%d.bmp", SequenceNumber);
    return DrawRows(rows, 0, height, file);
}

CString WriteListPart(const CeGuiMainFrame::PropertyRows& rows, int firstRow, int height, int part)
{
    CString file;
    file.Format(L"PropertyImage_%d_%d.bmp", SequenceNumber, part);
    return DrawRows(rows, firstRow, height, file);
}
} // namespace PropertyPictures
