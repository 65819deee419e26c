// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace osg
{
class Camera;
}

namespace osgViewer
{
class View;
}

/// Whoever draws the rectangles that the interface draws, with a toolkit of its own. All of this is compiled as plain native
/// code: OpenGL's functions take their arguments otherwise in a Win32 source.
namespace bench
{
struct Picture
{
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> rgba; ///< rows from the top
};

/// A part of a picture at a place in the view. View pixels, origin at the top left; fractions of the picture.
struct Quad
{
    float left, top, right, bottom;
    float u0, v0, u1, v1;
    int picture;
};

/// In drawing order, already cut to what can be seen of each.
struct DrawList
{
    int width = 0;
    int height = 0;
    std::vector<Picture> pictures;
    std::vector<std::string> files; ///< of the pictures, relative to the skin
    std::vector<Quad> quads;
};

class Contestant
{
public:
    virtual ~Contestant() = default;
    /// Draws all rectangles into the current context, and leaves its state as it was.
    virtual void Draw() = 0;
};

// Each wants the context current when it is made and destroyed.
/// One loop over a vertex array: textures bound in order, blended, filtered linearly.
std::unique_ptr<Contestant> MakeFloor(const DrawList& list);
std::unique_ptr<Contestant> MakeDearImGui(const DrawList& list);
/// @param folder of its own, for the description of its one skin
std::unique_ptr<Contestant> MakeMyGui(const DrawList& list, const char* folder);
/// @return a camera of the view's scene, whose drawing is the toolkit's; the caller adds it
osg::Camera* MakeOsgWidget(const DrawList& list, osgViewer::View& view);

/// Waits until all that was drawn is in the picture.
void FinishDrawing();
/// The texture as it is uploaded for a picture; linear.
unsigned int UploadTexture(const Picture& picture);
void DeleteTextures(const std::vector<unsigned int>& textures);
/// The renderer's own words for itself.
const char* RendererName();
const char* RendererVersion();
} // namespace bench
