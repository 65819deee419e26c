// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include <vector>

namespace host
{

/// Somebody who saves other bytes over a file of a skin, as a drawing program does. The file is as it was when this ends.
class SkinMaker
{
public:
    /// @param file full path; it is there
    /// @throws std::runtime_error when it cannot be read
    explicit SkinMaker(const CString& file);
    ~SkinMaker();
    SkinMaker(const SkinMaker&) = delete;
    SkinMaker& operator=(const SkinMaker&) = delete;

    /// Saves what another file holds.
    void SaveAs(const CString& other) const;
    /// Saves only the first half of what the file held.
    void SaveHalf() const;

private:
    void Save(const std::vector<char>& bytes) const;

    CString file_;
    std::vector<char> former_;
};

} // namespace host
