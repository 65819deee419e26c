// SPDX-License-Identifier: MIT
#include "LiveSkin.h"

#include <KernelCommonUse/FileOp.h>
#include <KernelCommonUse/ServiceLog.h>
#include <KernelCommonUse/StringConvert.h>
#include <KernelCommonUse/WholeFile.h>
#include <NxConfig/ParamConfig.h>

#include <algorithm>

namespace host
{
namespace
{

constexpr std::chrono::milliseconds LookInterval(200);
const char* const SkinParameter = "CEGUI_SkinDir";
/// Below the resource directory, away from the skins so that none of them is taken for one of those.
const wchar_t* const CopyFolder = L"skins_in_use\\";
/// What was in the copy before, until the interface has started with the new file.
const wchar_t* const FormerExtension = L".former";

/// The file's new bytes in place of the old ones, which are kept beside it.
bool Replace(const CString& from, const CString& to)
{
    const CString former = to + FormerExtension;
    DeleteFileW(former);
    const bool kept = !FileOp::FileExist(to) || WholeFile::Copy(to, former);
    return kept && WholeFile::Copy(from, to);
}

bool CopySkin(const CString& from, const CString& to)
{
    if (from.CompareNoCase(to) == 0)
    {
        return false;
    }
    MakeFolders(to + L"new_skin\\");
    const SkinFiles files = ListSkin(from);
    SkinFiles there = ListSkin(to);
    for (const auto& [file, stamp] : files)
    {
        const auto same = there.find(file);
        if ((same == there.end() || !(same->second == stamp)) && !WholeFile::Copy(from + file, to + file))
        {
            return false;
        }
        there.erase(file);
    }
    for (const auto& [file, stamp] : there)
    {
        DeleteFileW(to + file);
    }
    return !files.empty();
}

} // namespace

CString LiveSkin::ConfiguredFolder()
{
    return ResourceFolder() + CString(_a2w(CParamConfig::getInstance()->getStringParam(SkinParameter)));
}

LiveSkin::LiveSkin(const CString& folder) : folder_(folder)
{
    // What is no folder of a skin's own is not copied: a copy takes the name of the folder, and loses what that does not hold.
    const CString resolved = ResolveSkinFolder(folder);
    if (!resolved.IsEmpty())
    {
        folder_ = resolved;
    }
    const CString copy = CString(CopyFolder) + Name() + L"\\";
    if (!resolved.IsEmpty() && CopySkin(folder_, ResourceFolder() + copy))
    {
        copy_ = ResourceFolder() + copy;
        CParamConfig::getInstance()->setStringParam(SkinParameter, _w2a(copy));
        seen_ = settled_ = ListSkin(folder_);
    }
    else if (folder_.Find(ResourceFolder()) == 0)
    {
        CParamConfig::getInstance()->setStringParam(SkinParameter, _w2a(folder_.Mid(ResourceFolder().GetLength())));
    }
}

CString LiveSkin::Name() const
{
    const CString inner = folder_.Left(folder_.GetLength() - 1);
    return inner.Mid(inner.ReverseFind(L'\\') + 1);
}

CString LiveSkin::NextFolder() const
{
    const std::vector<CString> skins = SkinsBeside(folder_);
    const auto here = std::find(skins.begin(), skins.end(), folder_);
    if (here == skins.end())
    {
        return folder_;
    }
    return std::next(here) == skins.end() ? skins.front() : *std::next(here);
}

bool LiveSkin::Change::NeedsStart() const
{
    return std::any_of(taken.begin(), taken.end(), [](const CString& file) { return !IsPicture(file); });
}

LiveSkin::Change LiveSkin::Look(std::chrono::steady_clock::time_point now)
{
    Change change;
    if (copy_.IsEmpty() || now < nextLook_)
    {
        return change;
    }
    nextLook_ = now + LookInterval;
    SkinFiles files = ListSkin(folder_);
    for (const auto& [file, stamp] : files)
    {
        const auto before = seen_.find(file);
        const auto settled = settled_.find(file);
        const bool stands = before != seen_.end() && before->second == stamp;
        if (stands && (settled == settled_.end() || !(settled->second == stamp)))
        {
            settled_[file] = stamp;
            Take(file, change);
        }
    }
    seen_ = std::move(files);
    return change;
}

void LiveSkin::Take(const CString& file, Change& change)
{
    if ((!IsPicture(file) || CanBeShown(folder_ + file)) && Replace(folder_ + file, copy_ + file))
    {
        change.taken.push_back(file);
        return;
    }
    change.broken.push_back(file);
}

void LiveSkin::TakeBack(Change& change)
{
    for (const CString& file : change.taken)
    {
        // One that is new has nothing to go back to.
        if (!MoveFileExW(copy_ + file + FormerExtension, copy_ + file, MOVEFILE_REPLACE_EXISTING))
        {
            DeleteFileW(copy_ + file);
        }
        change.broken.push_back(file);
    }
    change.taken.clear();
}

void LiveSkin::LogBroken(const Change& change) const
{
    for (const CString& file : change.broken)
    {
        ServiceLog("changed file of the skin not taken, the former one stays: " + CString2string(folder_ + file));
    }
}

} // namespace host
