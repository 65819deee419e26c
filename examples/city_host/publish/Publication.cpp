// SPDX-License-Identifier: MIT
#include <NxOsgCeGui/CeGuiMainFrame.h>

#include "Publication.h"

#include "../host/Frame.h"
#include "../host/Language.h"

#include <KernelCommonUse/FileOp.h>
#include <KernelCommonUse/IniFile.h>
#include <KernelCommonUse/MultiLanguage.h>
#include <KernelCommonUse/ServiceLog.h>
#include <KernelCommonUse/StringConvert.h>
#include <KernelCommonUse/WholeFile.h>
#include <NxConfig/SystemUtility.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <stdexcept>
#include <string>

namespace host
{
namespace
{

const wchar_t* const PictureFile = L"startpage.bmp";
const wchar_t* const SettingsFile = L"publication.ini";
const wchar_t* const StartFile = L"start.cmd";
const wchar_t* const Section = L"Publication";
const char* const Utf8Mark = "\xEF\xBB\xBF";

CString PrintedPage()
{
    return FileOp::GetAppPath() + L"exeFiles\\pics\\exeGuiImage.bmp";
}

/// Where the interface looks for the texts.
CString TextsFile()
{
    return FileOp::GetAppPath() + SystemUtility::GetSysMidPath() + L"tavmemory.ini";
}

std::string Settings(const Publication& publication)
{
    const CameraPose& pose = publication.pose;
    CString numbers;
    numbers.Format(
        L"TitleColor=%u\r\nTitleHeight=%g\r\nTargetX=%.3f\r\nTargetY=%.3f\r\nTargetZ=%.3f\r\nHeading=%.6f\r\nPitch=%.6f\r\n"
        L"Distance=%.3f\r\n",
        static_cast<unsigned>(publication.titleColor), static_cast<double>(publication.titleHeight), pose.target.x(),
        pose.target.y(), pose.target.z(), pose.heading, pose.pitch, pose.distance);
    return Utf8Mark + std::string("[Publication]\r\n") + "Language=" + CString2string(publication.language) +
           "\r\nTitle=" + CString2string(publication.title) + "\r\nTitleFont=" + CString2string(publication.titleFont) + "\r\n" +
           CString2string(numbers);
}

/// In the ANSI code page, as the command interpreter reads it.
std::string StartScript()
{
    wchar_t program[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    return "@echo off\r\nrem Starts the presentation in this folder.\r\ncd /d \"%~dp0\"\r\n\"" + _w2a(program) +
           "\" --publication \"%~dp0.\"\r\n";
}

/// The scripts of the machine's own, where it has any beside the one above.
bool CopyStarters(const CString& folder)
{
    const CString starters = FileOp::GetAppPath() + L"publication\\";
    WIN32_FIND_DATAW found;
    const HANDLE find = FindFirstFileW(starters + L"*", &found);
    if (find == INVALID_HANDLE_VALUE)
    {
        return true;
    }
    bool copied = true;
    do
    {
        if (!(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
        {
            copied = WholeFile::Copy(starters + found.cFileName, folder + L"\\" + found.cFileName) && copied;
        }
    } while (FindNextFileW(find, &found));
    FindClose(find);
    return copied;
}

/// @param settings file that the language comes from
CString LanguageOf(const CString& language, const CString& settings)
{
    if (CMultiLanguageMgr::IsTableName(language))
    {
        return language;
    }
    ServiceLog("The publication's language \"" + CString2string(language) +
               "\" is not the name of a table: " + CString2string(settings));
    return CString();
}

/// 0 for what is no number, and at most what a pose or a colour has, so that it can be converted.
double Number(CIniFile& ini, const wchar_t* key)
{
    constexpr double limit = 1e9;
    const double number = std::strtod(CString2string(ini.GetKeyValue(Section, key)).c_str(), nullptr);
    return number == number ? std::min(std::max(number, -limit), limit) : 0;
}

} // namespace

Publication CurrentPublication(const CameraPose& pose)
{
    Publication publication;
    publication.language = IsChinese() ? L"zh-CN" : L"en";
    publication.title = Frame().GetSceneTitle();
    publication.titleFont = Frame().GetSceneTitleFontStyle();
    publication.titleColor = Frame().GetSceneTitleColor();
    publication.titleHeight = Frame().GetSceneTitleFontHeight();
    publication.pose = pose;
    return publication;
}

bool HasStartPageTexts()
{
    return FileOp::FileExist(TextsFile());
}

CString PrintStartPage(const StartPageTexts& texts)
{
    CreateDirectoryW(FileOp::GetAppPath() + SystemUtility::GetSysMidPath(), nullptr);
    // The section and the keys that the interface reads the texts by.
    const std::string ini = Utf8Mark + std::string("[发布独立程序文字]\r\n标题=") + CString2string(texts.title) +
                            "\r\n项目名称=" + CString2string(texts.projectName) +
                            "\r\n单位名称=" + CString2string(texts.unitName) + "\r\n";
    if (!WholeFile::Write(TextsFile(), ini))
    {
        return CString();
    }
    // A page that was printed before must not be taken for this one.
    DeleteFileW(PrintedPage());
    Frame().ClearStaPageParameter();
    return FileOp::FileExist(PrintedPage()) ? PrintedPage() : CString();
}

CString PublicationFolder(const CString& title)
{
    CString name = title;
    for (const wchar_t* unit = L"\\/:*?\"<>|"; *unit; ++unit)
    {
        name.Replace(*unit, L'_');
    }
    name.Trim(L" .");
    return FileOp::GetAppPath() + L"published\\" + (name.IsEmpty() ? CString(L"publication") : name);
}

CString WritePublication(const CString& folder, const Publication& publication)
{
    CreateDirectoryW(FileOp::GetAppPath() + L"published", nullptr);
    CreateDirectoryW(folder, nullptr);
    const bool written = WholeFile::Copy(publication.startPage, folder + L"\\" + PictureFile) &&
                         WholeFile::Write(folder + L"\\" + SettingsFile, Settings(publication)) &&
                         WholeFile::Write(folder + L"\\" + StartFile, StartScript()) && CopyStarters(folder);
    return written ? CString() : Say({L"无法写入 ", L"cannot be written: "}) + folder;
}

Publication ReadPublication(const CString& folder)
{
    const CString path = folder + L"\\" + SettingsFile;
    if (!FileOp::FileExist(path))
    {
        throw std::runtime_error("there is no publication in " + CString2string(folder));
    }
    CIniFile ini;
    ini.SetPath(path);
    Publication publication;
    publication.startPage = folder + L"\\" + PictureFile;
    publication.language = LanguageOf(ini.GetKeyValue(Section, L"Language"), path);
    publication.title = ini.GetKeyValue(Section, L"Title");
    publication.titleFont = ini.GetKeyValue(Section, L"TitleFont");
    publication.titleColor = static_cast<COLORREF>(static_cast<std::int64_t>(Number(ini, L"TitleColor")));
    publication.titleHeight = static_cast<float>(Number(ini, L"TitleHeight"));
    publication.pose.target.set(Number(ini, L"TargetX"), Number(ini, L"TargetY"), Number(ini, L"TargetZ"));
    publication.pose.heading = Number(ini, L"Heading");
    publication.pose.pitch = Number(ini, L"Pitch");
    publication.pose.distance = Number(ini, L"Distance");
    if (!(publication.pose.distance > 0.0))
    {
        throw std::runtime_error("the settings of the publication cannot be read: " + CString2string(path));
    }
    return publication;
}

} // namespace host
