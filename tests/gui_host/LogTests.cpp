// SPDX-License-Identifier: MIT
// The log's file, which every start and every program of a folder appends to.
#include "support/HostedFrame.h"

#include <widgets/FailureLog.h>

#include <KernelCommonUse/StringConvert.h>
#include <NxConfig/ParamConfig.h>

#include <CEGUI/Exceptions.h>
#include <CEGUI/Logger.h>

#include <algorithm>

namespace
{
const wchar_t* const LogFile = L"CEGUI.log";
const wchar_t* const OldLogFile = L"CEGUI.old.log";

std::string& ToldTheDebugger()
{
    static std::string text;
    return text;
}

/// Each text for the debugger is an exception that nobody else sees.
LONG CALLBACK NoteText(EXCEPTION_POINTERS* raised)
{
    const EXCEPTION_RECORD& record = *raised->ExceptionRecord;
    if (record.ExceptionCode == DBG_PRINTEXCEPTION_C && record.NumberParameters >= 2)
    {
        ToldTheDebugger() += reinterpret_cast<const char*>(record.ExceptionInformation[1]);
    }
    return EXCEPTION_CONTINUE_SEARCH;
}

class DebuggerOutput
{
public:
    DebuggerOutput() : handler_(AddVectoredExceptionHandler(1, &NoteText)) { ToldTheDebugger().clear(); }
    ~DebuggerOutput() { RemoveVectoredExceptionHandler(handler_); }
    DebuggerOutput(const DebuggerOutput&) = delete;
    DebuggerOutput& operator=(const DebuggerOutput&) = delete;

private:
    void* handler_;
};

std::string TextOf(const CString& path)
{
    const std::vector<std::uint8_t> bytes = ReadBytes(path);
    return std::string(bytes.begin(), bytes.end());
}

int Count(const std::string& text, const std::string& part)
{
    int count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size()))
    {
        ++count;
    }
    return count;
}

bool Contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

class LogTest : public HostedFrame
{
protected:
    void TearDown() override
    {
        CParamConfig::getInstance()->reload();
        Restart();
        HostedFrame::TearDown();
    }
    static void Replace(const CString& file, const std::string& text)
    {
        ASSERT_TRUE(WriteBytes(file, std::vector<std::uint8_t>(text.begin(), text.end())));
    }
};
} // namespace

TEST_F(LogTest, a_start_appends_and_says_where_it_begins)
{
    Host().Close();
    Replace(LogFile, "a line of a former program\n");
    Restart();
    const std::string text = TextOf(LogFile);
    const std::string start = "NxOsgCeGui starts, process " + std::to_string(GetCurrentProcessId()) + "\n";
    EXPECT_EQ(text.find("a line of a former program\n"), 0u);
    EXPECT_EQ(Count(text, start), 1);
    EXPECT_LT(text.find(start), text.find("Crazy Eddie"));
    Restart();
    EXPECT_EQ(Count(TextOf(LogFile), start), 2);
}

TEST_F(LogTest, what_a_start_failed_on_outlasts_the_next_start)
{
    CParamConfig::getInstance()->setStringParam("CEGUI_SkinDir", "nowhere\\");
    EXPECT_THROW(Frame().Init(&Host().Viewer(), GUI_USER_FULL), CEGUI::Exception);
    CParamConfig::getInstance()->reload();
    Restart();
    EXPECT_EQ(CountLogLines("nowhere"), 0);
    EXPECT_TRUE(Contains(TextOf(LogFile), "NxOsgCeGui: skin not loaded"));
}

TEST_F(LogTest, a_folder_of_its_name_costs_the_file_alone)
{
    Host().Close();
    ASSERT_TRUE(DeleteFileW(LogFile));
    ASSERT_TRUE(CreateDirectoryW(LogFile, nullptr));
    {
        const DebuggerOutput output;
        EXPECT_NO_THROW(Restart());
        EXPECT_TRUE(Frame().IsInit());
        EXPECT_NE(Host().Find("TavTilteCloseButtom"), nullptr);
        LogFailure("something failed", "a file");
        EXPECT_TRUE(Contains(ToldTheDebugger(), "NxOsgCeGui starts"));
        EXPECT_TRUE(Contains(ToldTheDebugger(), "NxOsgCeGui: something failed: a file\n"));
    }
    ASSERT_TRUE(RemoveDirectoryW(LogFile));
    // The file is there from the next line on.
    LogFailure("something else failed", "a file");
    EXPECT_EQ(TakeLog(), Lines{"NxOsgCeGui: something else failed: a file"});
}

TEST_F(LogTest, a_large_file_is_renamed_by_the_next_start_and_one_older_one_is_kept)
{
    Host().Close();
    const std::string large = std::string(1024 * 1024, 'x') + "\n";
    Replace(OldLogFile, "the oldest");
    Replace(LogFile, large);
    Restart();
    EXPECT_TRUE(TextOf(OldLogFile) == large);
    EXPECT_FALSE(Contains(TextOf(LogFile), "xxx"));
    EXPECT_TRUE(Contains(TextOf(LogFile), "NxOsgCeGui starts"));
    Host().Close();
    const std::string fits = std::string(1024 * 1024 - 1, 'y') + "\n";
    Replace(LogFile, fits);
    Restart();
    EXPECT_TRUE(TextOf(OldLogFile) == large) << "it may have as much as this";
    EXPECT_EQ(TextOf(LogFile).find(fits), 0u);
    Host().Close();
    DeleteFileW(LogFile);
    DeleteFileW(OldLogFile);
}

TEST_F(LogTest, failures_while_cegui_is_not_running_are_lines_of_the_same_file)
{
    Host().Close();
    const FileTaken picture(AppDir() + L"resource\\pics\\kwexeGuiImage.bmp");
    Replace(LogFile, "");
    Frame().ClearStaPageParameter();
    EXPECT_EQ(Count(TextOf(LogFile), "(Error)\tNxOsgCeGui: start page picture not loaded"), 1);
    Restart();
    EXPECT_EQ(Count(TextOf(LogFile), "start page picture not loaded"), 1);
}

TEST_F(LogTest, is_written_where_the_last_start_was_made)
{
    wchar_t home[MAX_PATH] = {};
    GetCurrentDirectoryW(MAX_PATH, home);
    const std::string before = TextOf(LogFile);
    ASSERT_TRUE(SetCurrentDirectoryW(AppDir()));
    // A dialog for files changes it, for instance.
    LogFailure("something failed", "a file");
    Host().Close();
    LogFailure("something failed", "another file");
    EXPECT_TRUE(SetCurrentDirectoryW(home));
    EXPECT_EQ(GetFileAttributesW(AppDir() + LogFile), INVALID_FILE_ATTRIBUTES);
    EXPECT_EQ(Count(TextOf(LogFile), "something failed"), Count(before, "something failed") + 2);
    TakeLog();
}

TEST_F(LogTest, has_no_backtraces)
{
    const std::string before = TextOf(LogFile);
    try
    {
        throw CEGUI::UnknownObjectException("raised by a test");
    }
    catch (const CEGUI::Exception&)
    {
    }
    const std::string text = TextOf(LogFile).substr(before.size());
    EXPECT_TRUE(Contains(text, "raised by a test"));
    EXPECT_EQ(Count(text, "\n"), 1) << text;
}

TEST_F(LogTest, a_line_for_every_size_event_would_hide_the_others)
{
    const std::string before = TextOf(LogFile);
    Rebuild();
    EXPECT_EQ(TextOf(LogFile), before);
}

TEST_F(LogTest, a_skin_whose_texts_are_wrong_is_one_line_that_names_the_file)
{
    const struct
    {
        const char* name;
        const wchar_t* file;
        const char* former; ///< of the file's text
        const char* text;
        const char* line; ///< what it begins with
    } rows[] = {
        {"a look without a property", L"TavLook.looknfeel", "name=\"NormalImage\" initialValue", "name=\"Nothing\" initialValue",
         "NxOsgCeGui: frame not built: "},
        {"another look", L"TavLook.looknfeel", "WidgetLook name=\"TavLook/StaticImage\"", "WidgetLook name=\"Other\"",
         "NxOsgCeGui: frame not built: "},
        {"a window type left out", L"TavLookSkin.scheme", "windowType=\"TavLook/ImageButton\"", "windowType=\"Other\"",
         "NxOsgCeGui: frame not built: "},
        {"an element without its attribute", L"TavLookSkin.scheme", "<Imageset filename=\"TavLook.imageset\"", "<Imageset",
         "NxOsgCeGui: skin not loaded: "},
        {"another version", L"TavLookSkin.scheme", "version=\"5\"", "version=\"77\"", "NxOsgCeGui: skin not loaded: "},
        {"no XML", L"TavLookSkin.scheme", "<GUIScheme", "GUIScheme", "NxOsgCeGui: skin not loaded: "},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        Host().Close();
        std::string text = TextOf(SkinDir() + row.file);
        const std::size_t at = text.find(row.former);
        ASSERT_NE(at, std::string::npos);
        text.replace(at, std::string(row.former).size(), row.text);
        const FileReplaced replaced(SkinDir() + row.file, std::vector<std::uint8_t>(text.begin(), text.end()));
        try
        {
            Restart();
        }
        catch (const CEGUI::Exception&)
        {
            EXPECT_FALSE(Frame().IsInit());
        }
        const Lines lines = LogLines();
        ASSERT_EQ(lines.size(), 1u);
        EXPECT_EQ(lines[0].find(row.line), 0u) << lines[0];
        EXPECT_TRUE(Contains(lines[0], Utf8(row.file))) << lines[0];
        EXPECT_FALSE(Contains(TextOf(LogFile).substr(TextOf(LogFile).rfind("NxOsgCeGui starts")), "Backtrace"));
    }
    TakeLog();
}
