// SPDX-License-Identifier: MIT
#include "StopReferences.h"

#include <cstdio>

namespace host
{
namespace
{

/// Of the files' pixels, two of the view's in each direction. The same program comes to the same pixels on one machine; there
/// is room for other processors, which round the scene's edges differently, and none for a window two pixels away.
constexpr driver::Tolerance SameStop = {4, 8.0, 0.5};

} // namespace

StopReferences::StopReferences(const CString& folder, bool remake, const CString& reports)
    : wanted_(!folder.IsEmpty()), remake_(remake), reports_(reports), references_(folder, driver::HalfSizeJpeg, SameStop)
{
}

void StopReferences::Take(const std::string& id, const osg::Image& picture)
{
    if (!wanted_)
    {
        return;
    }
    ++taken_;
    const CString name(id.c_str());
    if (remake_)
    {
        references_.Remake(name, picture);
        return;
    }
    const driver::Verdict verdict = references_.Check(name, picture, reports_);
    if (!verdict.same)
    {
        others_.push_back(id + " " + verdict.text + ": see " + id + "-actual.png, -expected.png and -difference.png");
    }
}

bool StopReferences::Report() const
{
    if (!wanted_)
    {
        return true;
    }
    for (const std::string& line : others_)
    {
        std::printf("tour: %s\n", line.c_str());
    }
    if (remake_)
    {
        std::printf("tour: %d references made\n", taken_);
    }
    else
    {
        std::printf(
            "tour: %d of %d pictures are not like their references (tolerance %.1f in %d x %d pixels, %.1f in the mean)\n",
            static_cast<int>(others_.size()), taken_, SameStop.most, SameStop.cell, SameStop.cell, SameStop.mean);
    }
    std::fflush(stdout);
    return others_.empty();
}

} // namespace host
