// SPDX-License-Identifier: MIT
#include "ViewList.h"

#include "../host/Language.h"

#include <KernelCommonUse/StringConvert.h>

#include <algorithm>
#include <iterator>
#include <string>

namespace host
{
namespace
{

const wchar_t* const NamePrefix = L"TavGuiButton_";
constexpr int ViewKind = 0;
constexpr int VideoKind = 1;
/// The videos beside the flight round the city: the camera circles what they look at.
const char* const circled[] = {"stadium", "landmark", "pagoda"};
/// Shows the skin's own placeholder.
const char* const withoutPicture = "top";

bool IsVideo(const city::Viewpoint& viewpoint)
{
    const std::string id = viewpoint.id;
    return viewpoint.isVideo || std::find(std::begin(circled), std::end(circled), id) != std::end(circled);
}

} // namespace

std::vector<BTN_UNIT> MakeViewRecords(const CString& pictures)
{
    std::vector<BTN_UNIT> records;
    for (const city::Viewpoint& viewpoint : city::Viewpoints())
    {
        const CString id = Utf8ToCString(viewpoint.id);
        const CString zh = Utf8ToCString(viewpoint.nameZh);
        const CString en = Utf8ToCString(viewpoint.nameEn);
        BTN_UNIT record;
        record.name = NamePrefix + id;
        record.target = IsChinese() ? zh : en;
        record.text = IsChinese() ? en : zh;
        record.kind = IsVideo(viewpoint) ? VideoKind : ViewKind;
        if (std::string(viewpoint.id) != withoutPicture)
        {
            record.lastText = pictures + id + L".png";
        }
        records.push_back(record);
    }
    // A note of the planner's: it has a picture and cannot be chosen.
    BTN_UNIT note = records.front();
    note.name = CString(NamePrefix) + L"note";
    note.target.Empty();
    records.push_back(note);
    return records;
}

const city::Viewpoint* FindViewpoint(const BTN_UNIT& record)
{
    for (const city::Viewpoint& viewpoint : city::Viewpoints())
    {
        if (record.name == NamePrefix + Utf8ToCString(viewpoint.id))
        {
            return &viewpoint;
        }
    }
    return nullptr;
}

} // namespace host
