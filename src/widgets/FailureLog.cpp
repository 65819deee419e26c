// SPDX-License-Identifier: MIT
#include "FailureLog.h"

#include "GuiLog.h"

#include <KernelCommonUse/ServiceLog.h>

#include <CEGUI/Logger.h>

#include <algorithm>

namespace
{
void WriteLine(std::string line)
{
    // Some messages of CEGUI have several.
    std::replace(line.begin(), line.end(), '\n', ' ');
    if (CEGUI::Logger* logger = CEGUI::Logger::getSingletonPtr())
    {
        logger->logEvent(CEGUI::String(reinterpret_cast<const CEGUI::utf8*>(line.c_str())), CEGUI::Errors);
        return;
    }
    GuiLog::Append(line);
}

std::string& ToldMessage()
{
    static std::string message;
    return message;
}
} // namespace

void LogFailure(const std::string& what, const std::string& name)
{
    WriteLine("NxOsgCeGui: " + what + ": " + name);
}

void LogRaised(const std::string& what, const std::string& name, const std::string& message)
{
    LogFailure(what, name);
    ToldMessage() = message;
}

void ForgetTold()
{
    ToldMessage().clear();
}

void LogPassing(const std::string& what, const std::string& message, const std::string& details)
{
    if (message != ToldMessage())
    {
        LogRaised(what, message + details, message);
    }
}

void LogDropped(const std::string& what, const std::string& name, const std::string& message)
{
    if (message != ToldMessage())
    {
        LogFailure(what + " (" + message + ")", name);
    }
    // The next one is told again, also when it is the same.
    ForgetTold();
}

void TakeServiceLog()
{
    SetServiceLogSink([](const std::string& line) { WriteLine("NxOsgCeGui: " + line); });
}
