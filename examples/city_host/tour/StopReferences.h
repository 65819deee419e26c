// SPDX-License-Identifier: MIT
#pragma once

#include "support/driver/References.h"

#include <string>
#include <vector>

namespace host
{

/// The pictures of the tour that were found to be right: what is made is compared with them, or becomes them.
class StopReferences
{
public:
    /// @param folder of the references; empty: nothing is compared
    /// @param remake takes what is made for right
    /// @param reports the folder for what differs
    StopReferences(const CString& folder, bool remake, const CString& reports);

    /// @throws std::runtime_error when a file cannot be written
    void Take(const std::string& id, const osg::Image& picture);
    /// Prints what has come of it.
    /// @return whether every picture was like its reference
    bool Report() const;

private:
    bool wanted_;
    bool remake_;
    CString reports_;
    driver::References references_;
    int taken_ = 0;
    std::vector<std::string> others_; ///< a line for each that differs
};

} // namespace host
