// SPDX-License-Identifier: MIT
#include "atlimage_codecs.h"

#include "atlimage.h"
#include "gdiplus_start.h"

using Gdiplus::ImageCodecInfo;

namespace ImageFormats
{
#define NX_IMAGE_FORMAT(name, low)                                                                                               \
    const GUID name = {0xb96b3c00u + low, 0x0728, 0x11d3, {0x9d, 0x7b, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};
NX_IMAGE_FORMAT(Bmp, 0xab)
NX_IMAGE_FORMAT(Emf, 0xac)
NX_IMAGE_FORMAT(Wmf, 0xad)
NX_IMAGE_FORMAT(Jpeg, 0xae)
NX_IMAGE_FORMAT(Png, 0xaf)
NX_IMAGE_FORMAT(Gif, 0xb0)
NX_IMAGE_FORMAT(Tiff, 0xb1)
NX_IMAGE_FORMAT(Icon, 0xb5)
#undef NX_IMAGE_FORMAT
} // namespace ImageFormats

namespace
{
using SizeQuestion = Gdiplus::GpStatus(WINGDIPAPI*)(UINT*, UINT*);
using ListQuestion = Gdiplus::GpStatus(WINGDIPAPI*)(UINT, UINT, ImageCodecInfo*);

UINT AskCodecs(SizeQuestion askSize, ListQuestion askList, std::vector<ImageCodecInfo>& memory)
{
    UINT count = 0;
    UINT size = 0;
    if (askSize(&count, &size) != Gdiplus::Ok || size == 0)
    {
        return 0;
    }
    memory.resize(size / sizeof(ImageCodecInfo) + 1);
    return askList(count, size, memory.data()) == Gdiplus::Ok ? count : 0;
}

DWORD ExclusionOf(const GUID& format)
{
    struct Row
    {
        const GUID& format;
        DWORD flag;
    };
    const Row rows[] = {{ImageFormats::Gif, CImage::excludeGIF},   {ImageFormats::Bmp, CImage::excludeBMP},
                        {ImageFormats::Emf, CImage::excludeEMF},   {ImageFormats::Wmf, CImage::excludeWMF},
                        {ImageFormats::Jpeg, CImage::excludeJPEG}, {ImageFormats::Png, CImage::excludePNG},
                        {ImageFormats::Tiff, CImage::excludeTIFF}, {ImageFormats::Icon, CImage::excludeIcon}};
    for (const Row& row : rows)
    {
        if (row.format == format)
        {
            return row.flag;
        }
    }
    return CImage::excludeOther;
}

void FillFilter(const CodecList& codecs, CSimpleString& filter, CSimpleArray<GUID>& formats, LPCWSTR allFiles, DWORD exclude,
                wchar_t separator)
{
    CString entries;
    CString allPatterns;
    CSimpleArray<GUID> entryFormats;
    for (const ImageCodecInfo& codec : codecs)
    {
        if ((exclude & ExclusionOf(codec.FormatID)) == 0)
        {
            const CString patterns(codec.FilenameExtension);
            entries += CString(codec.FormatDescription) + L" (" + patterns + L")" + separator + patterns + separator;
            allPatterns += (allPatterns.IsEmpty() ? CString() : CString(L';')) + patterns;
            entryFormats.Add(codec.FormatID);
        }
    }
    if (allFiles)
    {
        filter += CString(allFiles) + separator + allPatterns + separator;
        formats.Add(GUID_NULL);
    }
    filter += entries + separator;
    for (int index = 0; index < entryFormats.GetSize(); ++index)
    {
        formats.Add(entryFormats[index]);
    }
}
} // namespace

CodecList CodecList::Encoders()
{
    CodecList list;
    list.count_ =
        AskCodecs(Gdiplus::DllExports::GdipGetImageEncodersSize, Gdiplus::DllExports::GdipGetImageEncoders, list.memory_);
    return list;
}

CodecList CodecList::Decoders()
{
    CodecList list;
    list.count_ =
        AskCodecs(Gdiplus::DllExports::GdipGetImageDecodersSize, Gdiplus::DllExports::GdipGetImageDecoders, list.memory_);
    return list;
}

const ImageCodecInfo* CodecList::begin() const
{
    return memory_.data();
}

const ImageCodecInfo* CodecList::end() const
{
    return memory_.data() + count_;
}

const ImageCodecInfo* CodecList::ForFormat(const GUID& format) const
{
    for (const ImageCodecInfo& codec : *this)
    {
        if (codec.FormatID == format)
        {
            return &codec;
        }
    }
    return nullptr;
}

const ImageCodecInfo* CodecList::ForFileName(LPCWSTR fileName) const
{
    const CString name(fileName);
    const int dot = name.ReverseFind(L'.');
    if (dot < 0 || name.Find(L'\\', dot) >= 0 || name.Find(L'/', dot) >= 0)
    {
        return nullptr;
    }
    const CString wanted = L";*" + name.Mid(dot).MakeUpper() + L";";
    for (const ImageCodecInfo& codec : *this)
    {
        const CString patterns = L";" + CString(codec.FilenameExtension).MakeUpper() + L";";
        if (patterns.Find(wanted) >= 0)
        {
            return &codec;
        }
    }
    return nullptr;
}

HRESULT CImage::GetImporterFilterString(CSimpleString& filter, CSimpleArray<GUID>& formats, LPCWSTR allFiles, DWORD exclude,
                                        wchar_t separator)
{
    if (!StartGdiplus())
    {
        return E_FAIL;
    }
    FillFilter(CodecList::Decoders(), filter, formats, allFiles, exclude, separator);
    return S_OK;
}

HRESULT CImage::GetExporterFilterString(CSimpleString& filter, CSimpleArray<GUID>& formats, LPCWSTR allFiles, DWORD exclude,
                                        wchar_t separator)
{
    if (!StartGdiplus())
    {
        return E_FAIL;
    }
    FillFilter(CodecList::Encoders(), filter, formats, allFiles, exclude, separator);
    return S_OK;
}
