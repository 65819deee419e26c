// SPDX-License-Identifier: MIT
#include "DecodedPicture.h"

#include "FileStamp.h"

#include <map>

gp::GpBitmap* DecodedPicture(const CString& path)
{
    struct Decoded
    {
        FileStamp stamp;
        gp::Bitmap picture;
    };
    // Never destroyed: GDI+ may be gone when the module is unloaded.
    static auto& decoded = *new std::map<CString, Decoded>;
    Decoded& known = decoded[path];
    const FileStamp stamp = StampOf(path);
    if (!known.picture || !(known.stamp == stamp))
    {
        known = {stamp, gp::LoadBitmapFile(path)};
    }
    return known.picture.get();
}
