// SPDX-License-Identifier: MIT
#pragma once

#include "support/HostedFrame.h"

#include <string>
#include <vector>

/// A fault for the life of the object: its name is told before it is provoked, so that a crash can be read off the output. It is
/// counted as provoked when it was seen to bite, and as survived when nothing has failed in the meantime beside. One that was not
/// seen to bite has tested nothing, and fails. The counts are printed when the program ends.
class Fault
{
public:
    explicit Fault(const std::string& name);
    ~Fault();
    /// @param seen whether it has done harm just now: a call that failed, a line of the log, a spoilt file that was opened. Once
    /// is enough.
    void Bites(bool seen) { bites_ = bites_ || seen; }
    /// It is not known of this one whether anything meets it. While it is not seen to bite, it counts for nothing.
    void MayMiss() { mayMiss_ = true; }
    Fault(const Fault&) = delete;
    Fault& operator=(const Fault&) = delete;

private:
    testing::ScopedTrace trace_;
    std::string name_;
    int failuresBefore_;
    bool bites_ = false;
    bool mayMiss_ = false;
};

/// A frame with records, rows and a scroll bar, in a view that is small, since a fault is provoked, looked at and mended many
/// times. A line of the log that no test has taken fails the test.
class FaultTest : public HostedFrame
{
protected:
    static constexpr int Width = 640;
    static constexpr int Height = 220;

    void SetUp() override;
    void TearDown() override;

    /// Builds the frame anew, as a size event does.
    static void Rebuild();
    /// Closes the interface and starts it again. False when `Init` raised.
    bool Start();
    /// What the view shows, as bytes to compare.
    static std::vector<std::uint8_t> Seen();
    /// The same of a frame that is built anew in the same step.
    static std::vector<std::uint8_t> SeenAfterRebuild();
    /// Uses every part of the interface that reads a file or writes one.
    static void UseEverything();
    static bool Stands() { return GuiHost::Find("TavTilteCloseButtom") != nullptr; }
    /// Whether a click on the close button is answered, and the frame built anew after it.
    void ExpectAnswers();
    /// The library's own lines of the log since the last call.
    Lines NewLog();

private:
    std::size_t seen_ = 0;
};

/// The lines that do not hold a text.
Lines Without(const Lines& lines, const std::string& text);

/// The files of a folder and of its sub-folders that fit, by their path in it.
std::vector<CString> FilesOf(const CString& folder);

/// Names of files in a folder and its sub-folders that were left half done.
Lines UnfinishedFiles(const CString& folder);

using Bytes = std::vector<std::uint8_t>;
