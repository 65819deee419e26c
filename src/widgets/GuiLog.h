// SPDX-License-Identifier: MIT
#pragma once

#include <CEGUI/Logger.h>

#include <string>

/// CEGUI's log, in a file to which every start appends, so that what failed in an earlier one can still be read. It costs the
/// start as little as it can: CEGUI's hundreds of notes go to the file together, as do those of its end. Warnings and errors are
/// in the file when `logEvent` returns, with all that came before them. A file that cannot be written costs nothing but itself:
/// its lines go to the debugger's output.
class GuiLog : public CEGUI::Logger
{
public:
    /// In the process's working directory at the time of a start.
    static constexpr const char* FileName = "CEGUI.log";
    /// Bytes. A start that finds more in the file renames it to "CEGUI.old.log", in the place of the one before.
    static constexpr long long MaxSize = 1024 * 1024;

    /// Makes it CEGUI's log, in the place of the one that CEGUI's system makes for itself. A log that the host has made stays.
    static void Begin();
    /// Flushes, and from now on only takes warnings and errors. CEGUI would note every texture that it makes and destroys,
    /// hundreds with each size of the window, and what a user can mend would be lost among them.
    static void Quieten();
    /// Takes everything again, for CEGUI's end.
    static void Reopen();
    /// Destroys what `Begin` made, after CEGUI's system.
    static void End();
    /// A line of an error while CEGUI is not running, in the file of the last start.
    static void Append(const std::string& line);

    ~GuiLog() override;

    void logEvent(const CEGUI::String& message, CEGUI::LoggingLevel level) override;
    /// @param append ignored: the file is always appended to
    void setLogFilename(const CEGUI::String& file, bool append) override;

private:
    void Flush();
    bool IsBacktrace(const CEGUI::String& message);

    std::string waiting_;
    bool inBacktrace_ = false;
};
