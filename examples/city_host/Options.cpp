// SPDX-License-Identifier: MIT
#include "Options.h"

#include "skin/SkinFolder.h"

#include <shellapi.h>

#include <cwchar>

namespace host
{
namespace
{

bool ReadNumber(const CString& text, int lowest, int highest, int& number)
{
    int value = 0;
    for (int i = 0; i < text.GetLength(); ++i)
    {
        if (text[i] < L'0' || text[i] > L'9' || value > highest)
        {
            return false;
        }
        value = value * 10 + (text[i] - L'0');
    }
    number = value;
    return !text.IsEmpty() && value >= lowest && value <= highest;
}

bool SetTour(const CString& value, Options& options)
{
    options.tourFolder = value;
    return !value.IsEmpty();
}

bool SetTourPart(const CString& value, Options& options)
{
    options.tourPart = value;
    return !value.IsEmpty();
}

bool SetTourReferences(const CString& value, Options& options)
{
    options.tourReferences = value;
    return !value.IsEmpty();
}

bool SetNewReferences(const CString& value, Options& options)
{
    options.remakeReferences = true;
    return SetTourReferences(value, options);
}

bool SetPublication(const CString& value, Options& options)
{
    options.publicationFolder = value;
    return !value.IsEmpty();
}

bool SetSize(const CString& value, Options& options)
{
    const int cross = value.Find(L'x');
    int width = 0;
    int height = 0;
    if (cross < 0 || !ReadNumber(value.Left(cross), 320, 8192, width) || !ReadNumber(value.Mid(cross + 1), 240, 8192, height))
    {
        return false;
    }
    options.size = CSize(width, height);
    return true;
}

bool SetUser(const CString& value, Options& options)
{
    int user = 0;
    if (!ReadNumber(value, 0, 0xFFFF, user))
    {
        return false;
    }
    options.user = static_cast<GUIUserType>(user);
    return true;
}

bool SetLanguage(const CString& value, Options& options)
{
    options.language = value;
    return value == L"zh-CN" || value == L"en";
}

bool SetSkin(const CString& value, Options& options)
{
    options.skinFolder = ResolveSkinFolder(value);
    return !options.skinFolder.IsEmpty();
}

bool SetSamples(const CString& value, Options& options)
{
    return ReadNumber(value, 0, 16, options.samples);
}

bool SetScale(const CString& value, Options& options)
{
    return ReadNumber(value, 1, 4, options.scale);
}

bool SetSlide(const CString& value, Options& options)
{
    options.slideOut = value == L"on";
    return value == L"on" || value == L"off";
}

struct Switch
{
    const wchar_t* name;
    bool (*set)(const CString& value, Options& options);
    const wchar_t* values;
};

const Switch switches[] = {
    {L"--tour", SetTour, L"a folder"},
    {L"--tour-part", SetTourPart, L"chrome, bars, objects, documents or looks"},
    {L"--tour-references", SetTourReferences, L"a folder"},
    {L"--new-references", SetNewReferences, L"a folder"},
    {L"--publication", SetPublication, L"the folder of a publication"},
    {L"--size", SetSize, L"WIDTHxHEIGHT in pixels"},
    {L"--user", SetUser, L"the number of a kind of user, 0 for the full one"},
    {L"--language", SetLanguage, L"zh-CN or en"},
    {L"--skin", SetSkin, L"the name of a skin, or its folder"},
    {L"--scale", SetScale, L"1 to 4 pixels of the view to one of the interface"},
    {L"--slide", SetSlide, L"on or off"},
    {L"--samples", SetSamples, L"0 to 16 samples of multisampling"},
};

const Switch* FindSwitch(const CString& name)
{
    for (const Switch& candidate : switches)
    {
        if (name == candidate.name)
        {
            return &candidate;
        }
    }
    return nullptr;
}

} // namespace

bool ParseOptions(LPCWSTR commandLine, Options& options, CString& error)
{
    int count = 0;
    LPWSTR* words = CommandLineToArgvW(commandLine, &count);
    for (int i = 1; words && i < count && error.IsEmpty(); i += 2)
    {
        const Switch* found = FindSwitch(words[i]);
        if (!found)
        {
            error.Format(L"%s is not an option of this program", words[i]);
        }
        else if (i + 1 >= count || !found->set(words[i + 1], options))
        {
            error.Format(L"%s wants %s", found->name, found->values);
        }
    }
    LocalFree(words);
    return error.IsEmpty();
}

} // namespace host
