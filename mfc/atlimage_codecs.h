// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

#include <objidl.h>

#include <gdiplus.h>

#include <vector>

// GDI+'s own format identifiers; its headers only declare them, and no import library here defines them.
namespace ImageFormats
{
extern const GUID Bmp;
extern const GUID Emf;
extern const GUID Wmf;
extern const GUID Jpeg;
extern const GUID Png;
extern const GUID Gif;
extern const GUID Tiff;
extern const GUID Icon;
} // namespace ImageFormats

// The codecs' texts lie behind the records, in the same memory, so that the records are good as long as the list is.
class CodecList
{
public:
    CodecList(CodecList&&) = default;
    CodecList(const CodecList&) = delete;

    static CodecList Encoders();
    static CodecList Decoders();

    const Gdiplus::ImageCodecInfo* begin() const;
    const Gdiplus::ImageCodecInfo* end() const;

    // Null when there is none. The extension is that of the file name, the case does not count.
    const Gdiplus::ImageCodecInfo* ForFormat(const GUID& format) const;
    const Gdiplus::ImageCodecInfo* ForFileName(LPCWSTR fileName) const;

private:
    CodecList() = default;

    UINT count_ = 0;
    std::vector<Gdiplus::ImageCodecInfo> memory_;
};
