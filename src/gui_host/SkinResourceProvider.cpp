// SPDX-License-Identifier: MIT
#include "SkinResourceProvider.h"

#include "../widgets/FailureLog.h"
#include "../widgets/Names.h"

#include "../../platform/NativePath.h"

#include <CEGUI/falagard/WidgetLookManager.h>

#include <algorithm>
#include <string_view>

void SkinResourceProvider::loadRawDataContainer(const CEGUI::String& filename, CEGUI::RawDataContainer& output,
                                                const CEGUI::String& resourceGroup)
{
    const CEGUI::String& group = resourceGroup.empty() ? getDefaultResourceGroup() : resourceGroup;
    const auto directory = d_resourceGroups.find(group);
    const CEGUI::String path = directory == d_resourceGroups.end() ? filename : directory->second + filename;
    // The base class joins a group's directory to the name; one group without a directory takes the whole path.
    const std::string native = NativePath(TextOfName(path));
    static const CEGUI::String WholePath = "whole path";
    DefaultResourceProvider::loadRawDataContainer(CEGUI::String(reinterpret_cast<const CEGUI::utf8*>(native.c_str())), output,
                                                  WholePath);
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
