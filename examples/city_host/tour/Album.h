// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include <osg/Image>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace host
{

/// A folder of pictures with captions: the PNG files, "tour.json" and "index.html".
class Album
{
public:
    /// Makes the folder where it is missing.
    /// @throws std::runtime_error when it cannot be made
    explicit Album(const CString& folder);

    /// @param id without blanks; names the file
    /// @param caption UTF-8
    /// @throws std::runtime_error when the picture is empty, the same as an earlier one, or cannot be written
    void Add(const std::string& id, const std::string& caption, const osg::Image& picture);
    /// Without a backslash at the end.
    const CString& Folder() const { return folder_; }
    /// Writes the two lists.
    /// @throws std::runtime_error when they cannot be written
    void Finish() const;

private:
    struct Entry
    {
        std::string id;
        std::string file;
        std::string caption;
        int width;
        int height;
    };

    void WriteText(const std::string& file, const std::string& text) const;

    CString folder_;
    std::vector<Entry> entries_;
    std::map<std::uint64_t, std::string> idsByHash_;
};

} // namespace host
