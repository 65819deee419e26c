// SPDX-License-Identifier: MIT
#pragma once

#include <atlstr.h>

namespace CEGUI
{
class Image;
class String;
class Window;
} // namespace CEGUI

/// File imagesets: a picture file shown through an imageset named by the file string itself, with the one image
/// "full_image" that covers the whole picture. The string is taken as it stands, so two spellings of one file make two
/// imagesets. It is relative to the skin directory.
///
/// CEGUI 0.8 knows images over textures, but no imagesets; this is where they are kept. A window may go on showing an
/// imageset that is destroyed: it then shows nothing, until the imageset is made again. `DestroyAllImagesets` alone takes the
/// images away for good, and needs every window that shows one gone first.
///
/// The OpenGL context of CEGUI's renderer has to be current for all of these but the look-ups.
namespace FileImagesets
{
/// Makes the imageset; none of this name may be there.
/// @throws CEGUI::AlreadyExistsException, or what CEGUI raises for a missing or unreadable file (the failure is logged)
CEGUI::Image& Create(const CString& file);

bool IsPresent(const CString& file);

/// @throws CEGUI::UnknownObjectException
CEGUI::Image& Get(const CString& file);

/// The imageset that is there, or a new one.
CEGUI::Image& GetImagesetFromFile(const CString& file);

/// Harmless when there is none of this name.
void Destroy(const CString& file);

/// The form that takes the whole text of a window's image property, which names imageset and image and so never fits an
/// imageset's name.
void DestroyNamed(const CEGUI::String& name);

/// Every file imageset, as by `Destroy`.
void DestroyFileImagesets();

/// Every image of CEGUI with its texture, the skin's own included.
/// @param kept the name of an imageset that stays; empty: none
void DestroyAllImagesets(const CEGUI::String& kept);

/// For the time between taking a frame away and building it again: what `DestroyAllImagesets` takes away leaves its textures for
/// imagesets made of the same files, as long as these have not changed. What is left over goes with this object.
class TextureReuse
{
public:
    TextureReuse();
    ~TextureReuse();
    TextureReuse(const TextureReuse&) = delete;
    TextureReuse& operator=(const TextureReuse&) = delete;

    /// Whether there is such an object.
    static bool IsWanted();
    /// Destroys what was left until now: the renderer is about to go.
    static void DestroyLeft();
};

/// Whether the skin's own imageset of this name ("TavLook") is loaded.
bool IsSkinImagesetPresent(const CEGUI::String& name);

/// Sets an image property ("Image", "NormalImage", "HoverImage", "PushedImage") of a window.
void Apply(CEGUI::Window& window, const char* property, const CEGUI::Image& image);
void ApplyToButton(CEGUI::Window& button, const CEGUI::Image& normal, const CEGUI::Image& hover, const CEGUI::Image& pushed);
} // namespace FileImagesets
