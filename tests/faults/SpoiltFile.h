// SPDX-License-Identifier: MIT
#pragma once

#include "support/Gui.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

/// A way to spoil a file.
struct Spoiling
{
    const char* name;
    /// Whether what is there then is no longer the file that it is to be: it has to be told of if it is used.
    bool broken;
    /// The file is as it was when the result goes away.
    std::function<std::shared_ptr<void>(const CString& path)> spoil;
};

/// Ways to spoil any file: missing, empty, cut.
const std::vector<Spoiling>& AnyFile();
/// Ways to spoil a picture beside these: of another size, of another format under its name.
const std::vector<Spoiling>& AnyPicture();
/// More of both kinds, a folder in the file's place among them, for one file of each use.
const std::vector<Spoiling>& MoreForPictures();
const std::vector<Spoiling>& MoreForTexts();

/// Whether a file has been opened since: by this process or by the one that opens its files for it. A file that is missing or in
/// whose place there is a folder is never seen.
class Openings
{
public:
    explicit Openings(const CString& path);
    ~Openings();
    Openings(const Openings&) = delete;
    Openings& operator=(const Openings&) = delete;
    bool Any() const;

private:
    int watch_;
};

/// A folder of that name in the file's place.
class FolderInPlace
{
public:
    explicit FolderInPlace(const CString& path);
    ~FolderInPlace();
    FolderInPlace(const FolderInPlace&) = delete;
    FolderInPlace& operator=(const FolderInPlace&) = delete;

private:
    CString path_;
    FileTaken taken_;
};
