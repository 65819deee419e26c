// SPDX-License-Identifier: MIT
#pragma once

#include "support/FrameTest.h"

#include <optional>

/// Fonts installed on a machine that has none of them: each test begins without the files, the registry's values and the
/// application's font files that it or another one has made.
class FontInstallTest : public FrameTest
{
protected:
    void SetUp() override;
    void TearDown() override;

    /// A font file of the application whose only family is "Nx Face NN".
    static CString AddAppFont(int number);
    static void AddAppFile(const CString& file, const std::vector<std::uint8_t>& bytes);
    static CString AppFont(const CString& file) { return AppDir() + L"fonts\\" + file; }
    static CString SystemFont(const CString& file);
    static std::string Face(int number);
    static CString FileOf(int number);
    /// Takes a font away from the system, as if it had never been there.
    static void Uninstall(const CString& file);

    /// The data of a value of the machine's font list with its terminating null; none when there is no such value.
    static std::optional<CString> Registered(const CString& name);
    static int RegisteredCount();
    /// When the machine's font list was last changed.
    static std::uint64_t ListWritten();
    static std::uint64_t FileWritten(const CString& path);

    /// How often the main window was told since the last call that fonts have changed.
    static int TakeFontChanges();
};
