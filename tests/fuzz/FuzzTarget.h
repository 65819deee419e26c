// SPDX-License-Identifier: MIT
#pragma once

#include <afx.h>

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

/// A part of the library that takes bytes which somebody else wrote. Each call stands for itself.
struct FuzzTarget
{
    /// Also its folder's name in the corpus.
    const char* name;
    /// @throws Finding when something does not hold that has to for all bytes
    void (*run)(const std::string& bytes);
};

const std::vector<FuzzTarget>& FuzzTargets();
/// Null when there is none of this name.
const FuzzTarget* FindFuzzTarget(const std::string& name);

struct Finding : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

void Require(bool holds, const std::string& what);

/// A folder for what the targets write, below the folder that the program was started in. With a trailing backslash.
CString ScratchFolder();
/// Writes a file into the scratch folder, or one folder below it.
CString ScratchFile(const wchar_t* name, const std::string& bytes);

/// The application directory is another one for as long as this lives, and what the services had read is forgotten. Their log
/// lines are counted meanwhile, and go nowhere.
class FuzzedServices
{
public:
    explicit FuzzedServices(const CString& appPath);
    ~FuzzedServices();
    FuzzedServices(const FuzzedServices&) = delete;
    FuzzedServices& operator=(const FuzzedServices&) = delete;

    static const std::vector<std::string>& Log();

private:
    CString former_;
};
