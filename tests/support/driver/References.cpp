// SPDX-License-Identifier: MIT
#include "References.h"

#include "Pictures.h"

#include <KernelCommonUse/StringConvert.h>

namespace driver
{

References::References(const CString& folder, ReferenceForm form, Tolerance tolerance)
    : folder_(folder), form_(form), tolerance_(tolerance)
{
}

CString References::File(const CString& name) const
{
    return folder_ + L"\\" + name + L"." + CString(form_.format);
}

Verdict References::Check(const CString& name, const osg::Image& actual, const CString& reports) const
{
    const CString report = reports + L"\\" + name;
    // As it would come out of its file.
    const osg::ref_ptr<osg::Image> kept = Decoded(Encoded(*Reduced(actual, form_.factor), form_.format), form_.format);
    if (GetFileAttributesW(File(name)) == INVALID_FILE_ATTRIBUTES)
    {
        WritePictureFile(report + L"-actual.png", *kept);
        return {false, "has no reference " + CString2string(File(name))};
    }
    const osg::ref_ptr<osg::Image> expected = LoadPictureFile(File(name));
    const Difference difference = Compare(*kept, *expected, tolerance_.cell);
    if (difference.IsWithin(tolerance_))
    {
        return {true, difference.Text()};
    }
    WritePictureFile(report + L"-actual.png", *kept);
    WritePictureFile(report + L"-expected.png", *expected);
    if (difference.actual == difference.expected)
    {
        WritePictureFile(report + L"-difference.png", *DifferencePicture(*kept, *expected));
    }
    return {false, difference.Text()};
}

void References::Remake(const CString& name, const osg::Image& picture) const
{
    WritePictureFile(File(name), *Reduced(picture, form_.factor));
}

} // namespace driver
