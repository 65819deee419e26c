// SPDX-License-Identifier: MIT
#include "GuiLog.h"

#include <memory>

namespace
{
std::unique_ptr<GuiLog> own;
} // namespace

void GuiLog::Begin(const CEGUI::String& file)
{
    if (!CEGUI::Logger::getSingletonPtr())
    {
        own = std::make_unique<GuiLog>();
        own->DefaultLogger::setLogFilename(file, false);
    }
}

void GuiLog::Quieten()
{
    if (own)
    {
        own->d_ostream.flush();
    }
    CEGUI::Logger::getSingleton().setLoggingLevel(CEGUI::Warnings);
}

void GuiLog::Reopen()
{
    CEGUI::Logger::getSingleton().setLoggingLevel(CEGUI::Standard);
}

void GuiLog::End()
{
    own.reset();
}

void GuiLog::logEvent(const CEGUI::String& message, CEGUI::LoggingLevel level)
{
    if (level != CEGUI::Standard || d_caching || getLoggingLevel() < CEGUI::Standard)
    {
        DefaultLogger::logEvent(message, level);
        return;
    }
    const std::time_t now = std::time(nullptr);
    if (now != second_)
    {
        second_ = now;
        std::strftime(begin_, sizeof begin_, "%d/%m/%Y %H:%M:%S (Std) \t", std::localtime(&now));
    }
    d_ostream << begin_ << message.c_str() << '\n';
}
