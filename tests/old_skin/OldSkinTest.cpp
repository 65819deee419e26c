// SPDX-License-Identifier: MIT
#include "OldSkinTest.h"

#include <KernelCommonUse/StringConvert.h>

#include <sstream>

std::string OneLine(const std::string& xml)
{
    std::istringstream lines(xml);
    std::string all;
    for (std::string line; std::getline(lines, line);)
    {
        const std::size_t begin = line.find_first_not_of(" \t\r");
        if (begin != std::string::npos && line.compare(begin, 5, "<?xml") != 0)
        {
            all += line.substr(begin, line.find_last_not_of(" \t\r") - begin + 1);
        }
    }
    return all;
}

std::vector<std::uint8_t> SkinFile(const wchar_t* path)
{
    const std::vector<std::uint8_t> bytes = ReadBytes(Utf8ToCString(NX_SKINS) + L"/" + path);
    EXPECT_FALSE(bytes.empty()) << Utf8(path);
    return bytes;
}

void OldSkinTest::TearDown()
{
    if (!replaced_.empty())
    {
        Host().Close();
        // A file may have been replaced twice.
        while (!replaced_.empty())
        {
            replaced_.pop_back();
        }
        Restart();
    }
    HostedFrame::TearDown();
}

void OldSkinTest::Put(const CString& file, const std::vector<std::uint8_t>& bytes)
{
    replaced_.push_back(std::make_unique<FileReplaced>(SkinDir() + file, bytes));
}

void OldSkinTest::Put(const CString& file, const std::string& text)
{
    Put(file, std::vector<std::uint8_t>(text.begin(), text.end()));
}

void OldSkinTest::PutOldSkin()
{
    for (const wchar_t* file : {L"TavLookSkin.scheme", L"TavLook.imageset", L"TavLook.looknfeel"})
    {
        Put(file, SkinFile(CString(L"old_format/") + file));
    }
}
