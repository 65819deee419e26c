// SPDX-License-Identifier: MIT
#include "CallCount.h"

#include <widgets/Gdiplus.h>

#include <cstring>
#include <stdexcept>

namespace
{
int measurements = 0;
decltype(&gp::GdipMeasureString) realMeasureString = nullptr;
decltype(&gp::GdipMeasureDriverString) realMeasureDriverString = nullptr;
decltype(&gp::GdipMeasureCharacterRanges) realMeasureRanges = nullptr;

gp::GpStatus WINAPI MeasureString(gp::GpGraphics* graphics, const WCHAR* text, INT length, const gp::GpFont* font,
                                  const gp::RectF* layout, const gp::GpStringFormat* format, gp::RectF* box, INT* characters,
                                  INT* lines)
{
    ++measurements;
    return realMeasureString(graphics, text, length, font, layout, format, box, characters, lines);
}

gp::GpStatus WINAPI MeasureDriverString(gp::GpGraphics* graphics, const UINT16* text, INT length, const gp::GpFont* font,
                                        const gp::PointF* positions, INT flags, const gp::GpMatrix* matrix, gp::RectF* box)
{
    ++measurements;
    return realMeasureDriverString(graphics, text, length, font, positions, flags, matrix, box);
}

gp::GpStatus WINAPI MeasureRanges(gp::GpGraphics* graphics, const WCHAR* text, INT length, const gp::GpFont* font,
                                  const gp::RectF* layout, const gp::GpStringFormat* format, INT count, gp::GpRegion** regions)
{
    ++measurements;
    return realMeasureRanges(graphics, text, length, font, layout, format, count, regions);
}

/// Where a module keeps the address of a function that it imports by name; null when it does not import it.
void** ImportOf(HMODULE module, const char* function)
{
    auto* base = reinterpret_cast<BYTE*>(module);
    const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const IMAGE_DATA_DIRECTORY& directory = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    if (!directory.VirtualAddress)
    {
        return nullptr;
    }
    for (auto* imports = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + directory.VirtualAddress); imports->Name;
         ++imports)
    {
        const auto* names = reinterpret_cast<const IMAGE_THUNK_DATA*>(base + imports->OriginalFirstThunk);
        auto* addresses = reinterpret_cast<IMAGE_THUNK_DATA*>(base + imports->FirstThunk);
        for (; names->u1.AddressOfData; ++names, ++addresses)
        {
            const bool byName = !IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal);
            if (byName && std::strcmp(reinterpret_cast<const char*>(
                                          reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + names->u1.AddressOfData)->Name),
                                      function) == 0)
            {
                return reinterpret_cast<void**>(&addresses->u1.Function);
            }
        }
    }
    return nullptr;
}

void Put(void** place, void* function)
{
    DWORD former = 0;
    VirtualProtect(place, sizeof *place, PAGE_READWRITE, &former);
    *place = function;
}

/// @return the place that leads to `hook` now, null when there is none
template <class Function>
void** Lead(const char* name, Function* hook, Function*& real)
{
    void** place = ImportOf(GetModuleHandleW(L"NxOsgCeGui.dll"), name);
    if (place)
    {
        real = reinterpret_cast<Function*>(*place);
        Put(place, reinterpret_cast<void*>(hook));
    }
    return place;
}
} // namespace

TextMeasurementCount::TextMeasurementCount()
    : measureString_(Lead("GdipMeasureString", &MeasureString, realMeasureString)),
      measureDriverString_(Lead("GdipMeasureDriverString", &MeasureDriverString, realMeasureDriverString)),
      measureRanges_(Lead("GdipMeasureCharacterRanges", &MeasureRanges, realMeasureRanges))
{
    measurements = 0;
    if (!measureString_ && !measureDriverString_ && !measureRanges_)
    {
        throw std::runtime_error("text measurements cannot be counted: none is imported by name");
    }
}

TextMeasurementCount::~TextMeasurementCount()
{
    if (measureString_)
    {
        Put(measureString_, reinterpret_cast<void*>(realMeasureString));
    }
    if (measureDriverString_)
    {
        Put(measureDriverString_, reinterpret_cast<void*>(realMeasureDriverString));
    }
    if (measureRanges_)
    {
        Put(measureRanges_, reinterpret_cast<void*>(realMeasureRanges));
    }
}

int TextMeasurementCount::Count() const
{
    return measurements;
}
