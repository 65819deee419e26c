// SPDX-License-Identifier: MIT
#pragma once

namespace osg
{
class RenderInfo;
} // namespace osg

/// Finds an interface that nobody sees: one that only another camera draws, into a texture of its own, as techniques for shadows
/// do with all that they traverse. Logs it once.
class TextureWatch
{
public:
    /// At each draw of the interface.
    void Draw(osg::RenderInfo& info);

private:
    int draws_ = 0; ///< into textures, one after the other
    bool logged_ = false;
};
