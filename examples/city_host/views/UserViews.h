// SPDX-License-Identifier: MIT
#pragma once

#include "../camera/CameraPose.h"

#include <NxOsgCeGui/BtnUnit.h>

#include <map>

namespace host
{

/// The views that the user has added beside those of the city.
class UserViews
{
public:
    /// A record for a view from a camera's pose, with a name that no other has.
    /// @param pictures folder of the pictures, with its trailing separator; the record names a file in it
    /// @param pointX where the user asked for it, in view pixels from the left
    BTN_UNIT Add(const CameraPose& pose, const CString& pictures, int pointX);
    /// Null for a record that is none of these.
    const CameraPose* Find(const CString& name) const;
    void Remove(const CString& name);

private:
    std::map<CString, CameraPose> poses_; ///< by the record's name
    int last_ = 0;
};

} // namespace host
