// SPDX-License-Identifier: MIT
#pragma once

#include "support/HostedFrame.h"

#include <memory>
#include <string>
#include <vector>

/// Text without line breaks, without blanks at both ends of each line, and without XML's declaration.
std::string OneLine(const std::string& xml);

/// A file of the tests' own skins, by its path below their folder.
std::vector<std::uint8_t> SkinFile(const wchar_t* path);

/// The frame in its host, with the skin directory's files replaced as a test likes.
class OldSkinTest : public HostedFrame
{
protected:
    /// The interface is closed, and the files are the application's own again, before the next test.
    void TearDown() override;
    void Put(const CString& file, const std::vector<std::uint8_t>& bytes);
    void Put(const CString& file, const std::string& text);
    /// The files of the skin directory that CEGUI reads itself, in 0.6's formats.
    void PutOldSkin();

private:
    std::vector<std::unique_ptr<FileReplaced>> replaced_;
};
