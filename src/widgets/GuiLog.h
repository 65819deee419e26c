// SPDX-License-Identifier: MIT
#pragma once

#include <CEGUI/DefaultLogger.h>

#include <ctime>

/// CEGUI's log file, for which CEGUI's start is no longer than it has to be: its hundreds of notes go to the file together, as
/// do those of its end. Warnings and errors are in the file when `logEvent` returns, with all that came before them.
class GuiLog : public CEGUI::DefaultLogger
{
public:
    /// Makes it CEGUI's log, in the place of the one that CEGUI's system makes for itself. A log that the host has made stays.
    /// @param file is begun anew
    static void Begin(const CEGUI::String& file);
    /// Has everything until now in the file, and from now on only warnings and errors. CEGUI would note every texture that it
    /// makes and takes away, hundreds with each size of the window, and what a user can mend would be lost among them.
    static void Quieten();
    /// Has everything in the file again, for CEGUI's end.
    static void Reopen();
    /// Destroys what `Begin` made, after CEGUI's system.
    static void End();

    void logEvent(const CEGUI::String& message, CEGUI::LoggingLevel level) override;

private:
    /// What the lines of a second begin with.
    char begin_[64] = "";
    std::time_t second_ = -1;
};
