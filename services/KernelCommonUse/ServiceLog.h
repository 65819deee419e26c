// SPDX-License-Identifier: MIT
#pragma once

#include "../NxServicesExport.h"

#include <string>

// Where the services' own lines go: one UTF-8 line a call, without a line end.
using ServiceLogSink = void (*)(const std::string& utf8Line);

// Hands the lines that were kept so far to the sink at once, oldest first. Null takes the sink away, and lines are kept again.
NX_SERVICES_EXPORT void SetServiceLogSink(ServiceLogSink sink);

// Without a sink the first 100 lines are kept; those after them are lost.
NX_SERVICES_EXPORT void ServiceLog(const std::string& utf8Line);
