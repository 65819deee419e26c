// SPDX-License-Identifier: MIT
#pragma once

#include "../NxServicesExport.h"

#include <string>

// Named parameters from <application directory>config\parameters.ini, section "Parameters". The file is read at first use and
// again when the application directory has changed; without the file every parameter is empty. For the interface's thread only.
class NX_SERVICES_EXPORT CParamConfig
{
public:
    // Never null; lives as long as the process.
    static CParamConfig* getInstance();

    // The name is UTF-8, the value of the ANSI code page. A parameter that is not there is the empty string.
    std::string getStringParam(const std::string& name);

    // For this process only, nothing is written. The value is of the ANSI code page. It holds until reload() or until the
    // application directory changes.
    void setStringParam(const std::string& name, const std::string& value);

    // Reads the file anew at the next question.
    void reload();

private:
    CParamConfig() = default;
};
