// SPDX-License-Identifier: MIT
#pragma once

#include "FileStamp.h"

#include <CEGUI/DefaultResourceProvider.h>

#include <set>
#include <string>

/// CEGUI's default provider, which takes files of a resource group by Win32 paths and by names in the narrow form that the
/// interface's names have.
class GuiResourceProvider : public CEGUI::DefaultResourceProvider
{
public:
    void loadRawDataContainer(const CEGUI::String& filename, CEGUI::RawDataContainer& output,
                              const CEGUI::String& resourceGroup) override;

    /// A file as it is now.
    FileStamp Stamp(const CEGUI::String& filename, const CEGUI::String& resourceGroup) const;
    /// The file that was asked for last, from before it was read.
    const FileStamp& LastRead() const { return lastRead_; }
    /// The schemes and looks that have been read, which say what windows there are: " (a.scheme, b.looknfeel)". Empty without
    /// any.
    std::string SkinTexts() const;

private:
    FileStamp lastRead_;
    std::set<std::string> skinTexts_;
};
