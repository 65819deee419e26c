// SPDX-License-Identifier: MIT
#pragma once

#include "../widgets/GuiResourceProvider.h"
#include "LookNesting.h"
#include "OldSkin.h"

#include <set>
#include <string>
#include <utility>
#include <vector>

/// Hands on the files of skins for CEGUI 0.6 in 0.8's formats, and any other file as it is. What is left out of an old file is
/// a line each in the log, once. A file whose looks hold themselves is refused.
class SkinResourceProvider : public GuiResourceProvider
{
public:
    void loadRawDataContainer(const CEGUI::String& filename, CEGUI::RawDataContainer& output,
                              const CEGUI::String& resourceGroup) override;

    /// Has CEGUI read the old looks again that name pictures of the skin's imageset. A look keeps hold of such a picture, so
    /// this is due when the imageset has been made anew. Needs every window gone.
    void RereadLooks();

    /// Whether the files of the skin's imageset, its picture's among them, are as they were when it was loaded.
    bool IsImagesetUnchanged() const;
    /// It has been loaded in part only.
    void ForgetImageset() { imageset_.clear(); }

    /// An exception's message with the file that it is about, unless it names it: the parser tells the line alone.
    std::string Naming(const CEGUI::String& message) const;

private:
    void TranslateOldSkin(const CEGUI::String& filename, const CEGUI::String& group, CEGUI::RawDataContainer& data);

    OldSkin oldSkin_;
    LookNesting nesting_;
    /// The files that were asked for last, of any kind and of XML.
    std::string lastFile_;
    std::string lastXml_;
    /// Of the skin's imageset and then of its picture, which is read while the imageset is being parsed.
    std::vector<FileStamp> imageset_;
    /// Some files are read with every size of the window.
    std::set<std::string> told_;
    /// File and group.
    std::set<std::pair<CEGUI::String, CEGUI::String>> looks_;
};
