// SPDX-License-Identifier: MIT
#include "ParamConfig.h"

#include "../KernelCommonUse/IniReader.h"
#include "../KernelCommonUse/StringConvert.h"
#include "AppPath.h"
#include "SystemUtility.h"

#include <map>

namespace
{
struct Parameters
{
    IniReader reader;
    std::map<CString, std::string, NoCaseLess> setHere;
    unsigned int generation = 0;
};

Parameters& TheParameters()
{
    static Parameters parameters;
    return parameters;
}

Parameters& CurrentParameters()
{
    Parameters& parameters = TheParameters();
    if (parameters.generation != AppPathGeneration())
    {
        parameters.generation = AppPathGeneration();
        parameters.setHere.clear();
        parameters.reader.Read(SystemUtility::GetAppPath() + L"config\\parameters.ini", IniReader::Encoding::Detect);
    }
    return parameters;
}
} // namespace

CParamConfig* CParamConfig::getInstance()
{
    static CParamConfig instance;
    return &instance;
}

std::string CParamConfig::getStringParam(const std::string& name)
{
    const Parameters& parameters = CurrentParameters();
    const CString wideName = Utf8ToCString(name);
    const auto setHere = parameters.setHere.find(wideName);
    if (setHere != parameters.setHere.end())
    {
        return setHere->second;
    }
    const CString* value = parameters.reader.Find(L"Parameters", wideName);
    return value ? _w2a(*value) : std::string();
}

void CParamConfig::setStringParam(const std::string& name, const std::string& value)
{
    CurrentParameters().setHere[Utf8ToCString(name)] = value;
}

void CParamConfig::reload()
{
    TheParameters().generation = 0;
}
