// SPDX-License-Identifier: MIT
#include "fuzz/FuzzTarget.h"
#include "fuzz/TextTables.h"

#include <KernelCommonUse/StringConvert.h>
#include <NxConfig/ParamConfig.h>
#include <NxConfig/SystemUtility.h>

namespace
{
void RequireDirectory(const CString& path)
{
    RequireValue(path);
    Require(path.Find(L'/') < 0, "a directory has no slashes");
    Require(path.Right(1) == L"\\", "a directory ends in a backslash");
}
} // namespace

/// The bytes are both files that the application directory is set up by.
void FuzzParameters(const std::string& bytes)
{
    const FuzzedServices services(ScratchFolder());
    ScratchFile(L"config\\parameters.ini", bytes);
    ScratchFile(L"config\\directories.ini", bytes);
    RequireDirectory(SystemUtility::GetResourceRelPath());
    RequireDirectory(SystemUtility::GetCeguiResRelPath());
    RequireDirectory(SystemUtility::GetSysMidPath());
    RequireDirectory(SystemUtility::GetSysMidPath(L"C:/app", nullptr));

    CParamConfig& parameters = *CParamConfig::getInstance();
    for (const TextTable::Question& question : ReadTextTable(bytes, false).questions)
    {
        const std::string name = CString2string(question.key);
        const std::string value = parameters.getStringParam(name);
        RequireValue(_a2w(value));
        Require(parameters.getStringParam(CString2string(OtherCase(question.key))) == value, "names go without regard to case");
        parameters.setStringParam(name, bytes);
        Require(parameters.getStringParam(name) == bytes, "a parameter is what it was set to");
        parameters.reload();
        Require(parameters.getStringParam(name) == value, "the file holds again after a reload");
    }
}
