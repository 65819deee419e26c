// SPDX-License-Identifier: MIT
#pragma once

#include "support/FrameTest.h"
#include "widgets/Pictures.h"

#include <panels/Thumbnails.h>

#include <atlstr.h>

#include <cstdint>
#include <vector>

using Bytes = std::vector<std::uint8_t>;

/// The file of an entry's picture.
CString NormalFile(UINT index);
CString PushedFile(UINT index);

/// What the file of an entry's picture has to hold, composed here from the numbers of the layout.
/// @param picture full path of a picture that can be loaded
/// @param pushed the pushed picture instead of the normal one
Bytes ComposedAfresh(const CString& caption, const CString& picture, int kind, bool pushed);

/// A full path beside the application's data, for pictures of the tests' own.
CString PicturePath(const wchar_t* file);

/// A picture of several colours in places.
Argb Motley(int width, int height);

/// Thumbnails without a frame around them. The pictures of a test and the thumbnails that it makes are gone after it.
class ThumbnailTest : public FrameTest
{
protected:
    void TearDown() override;
    /// Writes a picture file with an encoder.
    CString Write(const wchar_t* file, const Argb& picture, const wchar_t* mimeType = L"image/png");
    CString Write(const wchar_t* file, const Bytes& bytes);

    /// Makes a thumbnail and expects both files byte for byte.
    /// @param shown the picture that is to be seen in it; empty: the given one
    static void ExpectComposed(const CString& caption, const CString& picture, int kind, const CString& shown = CString(),
                               UINT index = 7);

    static CString Placeholder() { return SkinDir() + L"new_skin/empty.png"; }

private:
    std::vector<CString> files_;
};
