// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

/// How an attribute's value is read.
enum class OldSkinValue
{
    Same,
    Switch,
    WindowType,
    Renderer,
    RendererModule,
    FontKind,
    Section,
    PropertyName,
    PropertyValue, ///< of the property in the attribute "name"
    Image,         ///< of the imageset in the attribute "imageset"
};

/// An attribute in 0.6, and what it is called in 0.8.
struct OldSkinAttribute
{
    const char* name;
    const char* newName; ///< empty: it has gone into another one
    OldSkinValue value = OldSkinValue::Same;
    /// Without it the element is left out.
    bool needed = false;
};

enum class OldSkinKind
{
    Plain,
    Once,         ///< of those with one name only the first is kept
    WholePicture, ///< an imageset made of one picture file
    Picture,      ///< in a look
    Side,         ///< of an area
    Dimension,    ///< a number, which an operator in it combines with another
};

struct OldSkinElement
{
    const char* name;
    std::vector<OldSkinAttribute> attributes;
    OldSkinKind kind = OldSkinKind::Plain;
};

/// A kind of file.
struct OldSkinFormat
{
    const char* root;
    /// An attribute that a root element of 0.6's has and one of 0.8's has not, or null where the version alone tells them apart.
    const char* mark;
    const char* newVersion;
    std::vector<OldSkinElement> elements;

    const OldSkinElement* Find(const std::string& element) const;
};

/// The format of a file with this root element, or null.
const OldSkinFormat* FindOldSkinFormat(const std::string& root);
