// SPDX-License-Identifier: MIT
#include "SkinResourceProvider.h"

#include "../widgets/FailureLog.h"
#include "../widgets/Names.h"

#include "../../platform/NativePath.h"
#include "SkinFileKind.h"

#include <CEGUI/Exceptions.h>
#include <CEGUI/falagard/WidgetLookManager.h>

#include <windows.h>

#include <algorithm>
#include <string_view>

void SkinResourceProvider::loadRawDataContainer(const CEGUI::String& filename, CEGUI::RawDataContainer& output,
                                                const CEGUI::String& resourceGroup)
{
    const CEGUI::String& group = resourceGroup.empty() ? getDefaultResourceGroup() : resourceGroup;
    const auto directory = d_resourceGroups.find(group);
    const CEGUI::String path = directory == d_resourceGroups.end() ? filename : directory->second + filename;
    lastFile_ = NameBytes(filename);
    lastXml_ = SkinFileKind::IsXml(lastFile_) ? lastFile_ : lastXml_;
    const DWORD attributes = GetFileAttributesW(TextOfName(path));
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY))
    {
        // Some systems open a folder like a file, and give it a length that no memory has.
        throw CEGUI::FileIOException("'" + filename + "' is a folder");
    }
    // The base class joins a group's directory to the name; one group without a directory takes the whole path.
    const std::string native = NativePath(TextOfName(path));
    static const CEGUI::String WholePath = "whole path";
    DefaultResourceProvider::loadRawDataContainer(CEGUI::String(reinterpret_cast<const CEGUI::utf8*>(native.c_str())), output,
                                                  WholePath);
    const std::string_view bytes(reinterpret_cast<const char*>(output.getDataPtr()), output.getSize());
    const std::string mismatch = SkinFileKind::Mismatch(lastFile_, bytes);
    if (!mismatch.empty())
    {
        throw CEGUI::FileIOException("'" + filename + "' is another kind of file: " + mismatch);
    }
    TranslateOldSkin(filename, group, output);
}

void SkinResourceProvider::RereadLooks()
{
    // Reading one enters it again.
    const auto looks = looks_;
    for (const auto& [file, group] : looks)
    {
        CEGUI::WidgetLookManager::getSingleton().parseLookNFeelSpecificationFromFile(file, group);
    }
}

std::string SkinResourceProvider::Naming(const CEGUI::String& message) const
{
    const std::string text = NameBytes(message);
    // An imageset's picture is read while the imageset is being parsed.
    const std::string& file = text.rfind("XML", 0) == 0 ? lastXml_ : lastFile_;
    return text.find(file) == std::string::npos ? text + " (" + file + ")" : text;
}

void SkinResourceProvider::TranslateOldSkin(const CEGUI::String& filename, const CEGUI::String& group,
                                            CEGUI::RawDataContainer& data)
{
    std::vector<OldSkin::LeftOut> leftOut;
    const std::string_view bytes(reinterpret_cast<const char*>(data.getDataPtr()), data.getSize());
    const std::optional<std::string> translated = oldSkin_.Translate(bytes, leftOut);
    if (!translated)
    {
        return;
    }
    for (const OldSkin::LeftOut& part : leftOut)
    {
        const std::string place = NameBytes(filename) + ", line " + std::to_string(part.line);
        if (told_.insert(part.what + place).second)
        {
            LogFailure("left out of a skin for CEGUI 0.6, " + part.what, place);
        }
    }
    if (oldSkin_.NamesPictures())
    {
        looks_.insert({filename, group});
    }
    data.release();
    // The container frees it.
    CEGUI::uint8* copy = CEGUI_NEW_ARRAY_PT(CEGUI::uint8, translated->size(), CEGUI::RawDataContainer);
    std::copy(translated->begin(), translated->end(), copy);
    data.setData(copy);
    data.setSize(translated->size());
}
