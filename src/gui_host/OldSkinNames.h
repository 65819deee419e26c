// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <set>
#include <string>

/// What CEGUI 0.6's names are called in 0.8. A name that is not changed is returned as it is; nothing is returned for one that
/// has no counterpart.
class OldSkinNames
{
public:
    /// The type of window that a skin's own types are made of, or one of these.
    static std::string WindowType(const std::string& type);
    /// Only the renderers that CEGUI brings: any other is in a module that was built for 0.6.
    static std::optional<std::string> Renderer(const std::string& renderer);
    /// The module with CEGUI's own renderers.
    static std::optional<std::string> RendererModule(const std::string& file);
    /// "true" or "false" for every form in which 0.6 takes a switch.
    static std::string Switch(const std::string& value);
    static std::string FontKind(const std::string& kind);
    /// Of an imagery section.
    static std::string Section(const std::string& section);

    /// A property that a look defines keeps its name: whoever set it by this name still does.
    void Define(const std::string& property) { defined_.insert(property); }
    void ForgetDefined() { defined_.clear(); }
    std::optional<std::string> Property(const std::string& property) const;
    /// @param property its name in 0.6
    std::optional<std::string> PropertyValue(const std::string& property, const std::string& value) const;

    /// An imageset that a scheme makes of a whole picture file.
    void DefineWholePicture(const std::string& imageset) { wholePictures_.insert(imageset); }
    /// 0.6 names a picture by imageset and image, 0.8 by one name; the picture of a whole file is called like the imageset.
    std::optional<std::string> Image(const std::string& imageset, const std::string& image) const;

private:
    std::set<std::string> defined_;
    std::set<std::string> wholePictures_;
};
