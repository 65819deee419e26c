// SPDX-License-Identifier: MIT
#pragma once

#include <atlstr.h>

#include <string>

/// A disk of its own in a folder, small enough to be filled; gone with the object, with all that is on it. It needs the right
/// to mount, in a place where nobody else sees it: `run_suite.sh` gives a suite such a place that asks for it.
class SmallDisk
{
public:
    /// @param folder is made when it is not there; ends with a separator
    SmallDisk(const CString& folder, int megabytes);
    ~SmallDisk();
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    /// Why there is no such disk; empty when there is one.
    const std::string& Refusal() const { return refusal_; }

    /// Leaves so much room on the disk, in kilobytes (steps of 4), until `Clear`.
    void Fill(int kilobytesLeft);
    void Clear();
    void SetReadOnly(bool readOnly);

private:
    std::string folder_;
    std::string refusal_;
};
