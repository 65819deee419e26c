// SPDX-License-Identifier: MIT
#include "SkinResourceProvider.h"

#include "../frame/FrameNames.h"
#include "../widgets/FailureLog.h"
#include "../widgets/Names.h"
#include "SkinFileKind.h"

#include <CEGUI/Exceptions.h>
#include <CEGUI/falagard/WidgetLookManager.h>

#include <algorithm>
#include <string_view>

namespace
{
std::string_view BytesOf(const CEGUI::RawDataContainer& data)
{
    return std::string_view(reinterpret_cast<const char*>(data.getDataPtr()), data.getSize());
}
} // namespace

void SkinResourceProvider::loadRawDataContainer(const CEGUI::String& filename, CEGUI::RawDataContainer& output,
                                                const CEGUI::String& resourceGroup)
{
    lastFile_ = NameBytes(filename);
    lastXml_ = SkinFileKind::IsXml(lastFile_) ? lastFile_ : lastXml_;
    GuiResourceProvider::loadRawDataContainer(filename, output, resourceGroup);
    if (lastFile_ == FrameNames::SkinImagesetFile)
    {
        imageset_ = {LastRead()};
    }
    else if (imageset_.size() == 1)
    {
        imageset_.push_back(LastRead());
    }
    const std::string mismatch = SkinFileKind::Mismatch(lastFile_, BytesOf(output));
    if (!mismatch.empty())
    {
        throw CEGUI::FileIOException("'" + filename + "' is another kind of file: " + mismatch);
    }
    TranslateOldSkin(filename, resourceGroup, output);
    const std::string wrong = nesting_.Add(BytesOf(output));
    if (!wrong.empty())
    {
        throw CEGUI::FileIOException("'" + filename + "' is refused: " + wrong);
    }
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

bool SkinResourceProvider::IsImagesetUnchanged() const
{
    return imageset_.size() == 2 && std::all_of(imageset_.begin(), imageset_.end(),
                                                [](const FileStamp& file) { return StampOfNative(file.path) == file; });
}

std::string SkinResourceProvider::Naming(const CEGUI::String& message) const
{
    const std::string text = NameBytes(message);
    // An imageset's picture is read while the imageset is being parsed, and a file without a name is asked for by a text.
    const std::string& file = text.rfind("XML", 0) == 0 || lastFile_.empty() ? lastXml_ : lastFile_;
    return text.find(file) == std::string::npos ? text + " (" + file + ")" : text;
}

void SkinResourceProvider::TranslateOldSkin(const CEGUI::String& filename, const CEGUI::String& group,
                                            CEGUI::RawDataContainer& data)
{
    std::vector<OldSkin::LeftOut> leftOut;
    const std::optional<std::string> translated = oldSkin_.Translate(BytesOf(data), leftOut);
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
