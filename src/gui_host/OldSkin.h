// SPDX-License-Identifier: MIT
#pragma once

#include "OldSkinNames.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Skin files of CEGUI 0.6: schemes, imagesets, looks ("looknfeel") and fonts. They bear no version, which every file of 0.8's
/// formats does, and spell the attributes of schemes, imagesets and fonts with a capital. CEGUI 0.8 refuses them; this puts
/// them into its formats.
class OldSkin
{
public:
    /// What CEGUI 0.8 has no counterpart of.
    struct LeftOut
    {
        std::string what; ///< UTF-8, for instance: WindowSet "Widgets"
        int line;         ///< of the file, from 1
    };

    /// Looks name pictures that a scheme has loaded, so a skin's files go through one object, the scheme first.
    /// @param bytes a file as it lies on the disk
    /// @param leftOut is added to
    /// @return the file in 0.8's format, UTF-8; nothing for a file of any other kind, and for one that is not XML
    std::optional<std::string> Translate(std::string_view bytes, std::vector<LeftOut>& leftOut);

    /// Whether the file that was translated last is a look that names pictures itself.
    bool NamesPictures() const { return namesPictures_; }

private:
    OldSkinNames names_;
    bool namesPictures_ = false;
};
