// SPDX-License-Identifier: MIT
#include "FailureLog.h"

#include <KernelCommonUse/ServiceLog.h>
#include <KernelCommonUse/StringConvert.h>

#include <CEGUI/Logger.h>

#include <windows.h>

namespace
{
void WriteLine(const std::string& line)
{
    if (CEGUI::Logger* logger = CEGUI::Logger::getSingletonPtr())
    {
        logger->logEvent(CEGUI::String(reinterpret_cast<const CEGUI::utf8*>(line.c_str())), CEGUI::Errors);
        return;
    }
    OutputDebugStringA((strUtf8ToAnsi(line) + "\n").c_str());
}
} // namespace

void LogFailure(const std::string& what, const std::string& name)
{
    WriteLine("NxOsgCeGui: " + what + ": " + name);
}

void TakeServiceLog()
{
    SetServiceLogSink([](const std::string& line) { WriteLine("NxOsgCeGui: " + line); });
}
