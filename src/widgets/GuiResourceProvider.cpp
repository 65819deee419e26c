// SPDX-License-Identifier: MIT
#include "GuiResourceProvider.h"

#include "../../platform/NativePath.h"
#include "Names.h"

#include <CEGUI/Exceptions.h>

namespace
{
bool EndsIn(const std::string& name, const std::string& extension)
{
    return name.size() > extension.size() && name.compare(name.size() - extension.size(), extension.size(), extension) == 0;
}
} // namespace

void GuiResourceProvider::loadRawDataContainer(const CEGUI::String& filename, CEGUI::RawDataContainer& output,
                                               const CEGUI::String& resourceGroup)
{
    lastRead_ = Stamp(filename, resourceGroup);
    const std::string name = NameBytes(filename);
    if (EndsIn(name, ".scheme") || EndsIn(name, ".looknfeel"))
    {
        skinTexts_.insert(name);
    }
    if (lastRead_.file.folder)
    {
        // Some systems open a folder like a file, and give it a length that no memory has.
        throw CEGUI::FileIOException("'" + filename + "' is a folder");
    }
    // The base class joins a group's directory to the name; one group without a directory takes the whole path.
    static const CEGUI::String WholePath = "whole path";
    DefaultResourceProvider::loadRawDataContainer(CEGUI::String(reinterpret_cast<const CEGUI::utf8*>(lastRead_.path.c_str())),
                                                  output, WholePath);
}

std::string GuiResourceProvider::SkinTexts() const
{
    std::string texts;
    for (const std::string& name : skinTexts_)
    {
        texts += (texts.empty() ? " (" : ", ") + name;
    }
    return texts.empty() ? texts : texts + ")";
}

FileStamp GuiResourceProvider::Stamp(const CEGUI::String& filename, const CEGUI::String& resourceGroup) const
{
    const auto directory = d_resourceGroups.find(resourceGroup.empty() ? d_defaultResourceGroup : resourceGroup);
    // A path is translated as a whole: folders and files alike are found regardless of case.
    return StampOf(TextOfName(directory == d_resourceGroups.end() ? filename : directory->second + filename));
}
