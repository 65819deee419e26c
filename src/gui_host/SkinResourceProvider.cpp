// SPDX-License-Identifier: MIT
#include "SkinResourceProvider.h"

#include "../widgets/Names.h"

#include "../../platform/NativePath.h"

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
}
