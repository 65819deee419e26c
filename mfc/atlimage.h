// SPDX-License-Identifier: MIT
#pragma once

#include "nxmfc_export.h"

#include <windows.h>

#include <objidl.h>

#include <gdiplus.h>

#include "atlsimpcoll.h"
#include "atlstr.h"

// A picture in a device independent bitmap, read and written through GDI+. GDI+ is started by the first use that needs it and
// stays started while any CImage lives: the destructor of the last one shuts it down. For the interface's thread only.
//
// Pixels: 32-bit ones are blue, green, red, alpha in memory, and alpha is not multiplied into the colours.
class NX_MFC_EXPORT CImage
{
public:
    // Flags of Create.
    static const DWORD createAlphaChannel = 0x01;

    enum DIBOrientation
    {
        DIBOR_DEFAULT,
        DIBOR_TOPDOWN,
        DIBOR_BOTTOMUP
    };

    // What the filter strings leave out.
    enum ExcludeFlags
    {
        excludeGIF = 0x01,
        excludeBMP = 0x02,
        excludeEMF = 0x04,
        excludeWMF = 0x08,
        excludeJPEG = 0x10,
        excludePNG = 0x20,
        excludeTIFF = 0x40,
        excludeIcon = 0x80,
        excludeOther = 0x80000000,
        excludeDefaultLoad = 0,
        excludeDefaultSave = excludeIcon | excludeEMF | excludeWMF
    };

    CImage();
    ~CImage();
    CImage(const CImage&) = delete;
    CImage& operator=(const CImage&) = delete;

    // A positive height makes a bottom-up bitmap (negative pitch), a negative one a top-down bitmap. createAlphaChannel needs
    // 32 bits a pixel. All bytes are 0 at first. What was held before is destroyed. False when the depth (1, 4, 8, 16, 24, 32) or
    // memory do not allow it, and for a side of more than 32768 pixels or more than 256 MB, as of 64 M pixels of 32 bits.
    BOOL Create(int width, int height, int bitsPerPixel, DWORD flags = 0) noexcept;
    void Destroy() noexcept;

    // Takes the bitmap over, or gives it away. The orientation is needed where the bitmap's own header does not tell it.
    void Attach(HBITMAP bitmap, DIBOrientation orientation = DIBOR_DEFAULT) noexcept;
    HBITMAP Detach() noexcept;
    operator HBITMAP() const noexcept;

    bool IsNull() const noexcept;
    int GetWidth() const noexcept;
    int GetHeight() const noexcept;
    int GetBPP() const noexcept;
    // Bytes from a row to the one below it, negative in a bottom-up bitmap; 0 when the bitmap is no DIB section.
    int GetPitch() const noexcept;
    // The left pixel of the top row; null when the bitmap is no DIB section.
    void* GetBits() noexcept;
    const void* GetBits() const noexcept;

    // A memory device context with the bitmap selected into it, null when there is none; each GetDC needs its ReleaseDC.
    HDC GetDC() const noexcept;
    void ReleaseDC() const noexcept;

    // E_FAIL when there is no such file, nothing in it that can be read, or more pixels than Create allows; then the picture held
    // before is still there.
    HRESULT Load(LPCWSTR fileName) noexcept;
    // Reads from the stream's position; the stream is not kept.
    HRESULT Load(IStream* stream) noexcept;

    // The format is one of GDI+'s (ImageFormatPNG...), or GUID_NULL for the one that the extension names. E_FAIL when there is
    // no encoder or the file cannot be written. A picture with alpha keeps it in BMP too.
    HRESULT Save(LPCWSTR fileName, REFGUID fileType = GUID_NULL) const noexcept;

    // Filters for the file dialogs: "description (*.A;*.B)", the patterns, and so on, closed by one more separator; the
    // identifier of each entry's format is added to formats, GUID_NULL for the entry of all files (which is there when a
    // description is given for it). exclude is made of ExcludeFlags. They start GDI+ and do not shut it down.
    static HRESULT GetImporterFilterString(CSimpleString& filter, CSimpleArray<GUID>& formats, LPCWSTR allFiles = nullptr,
                                           DWORD exclude = excludeDefaultLoad, wchar_t separator = L'|');
    static HRESULT GetExporterFilterString(CSimpleString& filter, CSimpleArray<GUID>& formats, LPCWSTR allFiles = nullptr,
                                           DWORD exclude = excludeDefaultSave, wchar_t separator = L'|');

    // Shuts GDI+ down now; the next use starts it again.
    static void ReleaseGDIPlus() noexcept;

private:
    HRESULT TakeBitmap(Gdiplus::GpBitmap* source);
    void ReadGeometry(DIBOrientation orientation);
    void Swap(CImage& other) noexcept;

    HBITMAP bitmap_ = nullptr;
    void* bits_ = nullptr;
    int width_ = 0;
    int height_ = 0;
    int bitsPerPixel_ = 0;
    int pitch_ = 0;
    bool hasAlpha_ = false;
    mutable HDC dc_ = nullptr;
    mutable HGDIOBJ formerBitmap_ = nullptr;
    mutable int dcCount_ = 0;
};
