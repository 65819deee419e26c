// SPDX-License-Identifier: MIT
#include "FaultTest.h"

#include <CEGUI/Exceptions.h>
#include <CEGUI/GUIContext.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>

#include <osg/Image>

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <iostream>

namespace
{
int provoked = 0;
int survived = 0;
int missed = 0;
/// Of a run of all tests.
constexpr int LeastProvoked = 440;
std::string present;

int FailuresSoFar()
{
    const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
    int failures = 0;
    for (int i = 0; test && i < test->result()->total_part_count(); ++i)
    {
        failures += test->result()->GetTestPartResult(i).failed();
    }
    return failures;
}

/// A crash is a failed test that names its fault.
[[noreturn]] void EndWith(const char* how)
{
    const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
    std::cout << "[  FAILED  ] " << (test ? std::string(test->test_suite_name()) + "." + test->name() : "between tests") << ": "
              << how << ", last fault: " << present << std::endl;
    TerminateProcess(GetCurrentProcess(), 3);
    std::abort();
}

/// The first to be asked: where code of the system's libraries lies on the stack, the search for a handler would not end.
LONG CALLBACK OnCrash(EXCEPTION_POINTERS* crash)
{
    const DWORD code = crash->ExceptionRecord->ExceptionCode;
    if (code == EXCEPTION_ACCESS_VIOLATION || code == EXCEPTION_STACK_OVERFLOW || code == EXCEPTION_INT_DIVIDE_BY_ZERO)
    {
        EndWith("crashed");
    }
    return EXCEPTION_CONTINUE_SEARCH;
}

class Counting : public testing::Environment
{
public:
    void SetUp() override
    {
        AddVectoredExceptionHandler(1, OnCrash);
        std::set_terminate([] { EndWith("ended by an exception"); });
    }
    void TearDown() override
    {
        testing::Test::RecordProperty("FaultsProvoked", provoked);
        testing::Test::RecordProperty("FaultsSurvived", survived);
        std::cout << provoked << " faults provoked, " << survived << " survived, " << missed << " met nothing" << std::endl;
        const testing::UnitTest& tests = *testing::UnitTest::GetInstance();
        if (tests.test_to_run_count() == tests.total_test_count() && tests.skipped_test_count() == 0)
        {
            EXPECT_GE(provoked, LeastProvoked) << "faults that were seen to bite";
        }
    }
};

const testing::Environment* const counting = testing::AddGlobalTestEnvironment(new Counting);

void AddFiles(const CString& folder, const CString& below, std::vector<CString>& files)
{
    WIN32_FIND_DATAW found;
    const HANDLE find = FindFirstFileW(folder + below + L"*", &found);
    if (find == INVALID_HANDLE_VALUE)
    {
        return;
    }
    do
    {
        const CString name = found.cFileName;
        if (!(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
        {
            files.push_back(below + name);
        }
        else if (name != L"." && name != L"..")
        {
            AddFiles(folder, below + name + L"\\", files);
        }
    } while (FindNextFileW(find, &found));
    FindClose(find);
}

class KeepPixels : public osg::Camera::DrawCallback
{
public:
    explicit KeepPixels(osg::Image* image) : image_(image) {}
    void operator()(osg::RenderInfo& info) const override
    {
        const osg::Viewport& view = *info.getCurrentCamera()->getViewport();
        image_->readPixels(0, 0, static_cast<int>(view.width()), static_cast<int>(view.height()), GL_RGBA, GL_UNSIGNED_BYTE);
    }

private:
    osg::ref_ptr<osg::Image> image_;
};

BTN_UNIT NewRecord(int number)
{
    BTN_UNIT record;
    record.name.Format(L"record %d", number);
    record.target.Format(L"caption %d", number);
    record.kind = number % 2;
    return record;
}
} // namespace

Fault::Fault(const std::string& name) : trace_(__FILE__, __LINE__, name), name_(name), failuresBefore_(FailuresSoFar())
{
    std::cout << "fault: " << name << std::endl;
    present = name;
}

Fault::~Fault()
{
    if (bites_)
    {
        ++provoked;
        survived += FailuresSoFar() == failuresBefore_;
    }
    else if (mayMiss_)
    {
        ++missed;
        std::cout << "met nothing: " << name_ << std::endl;
    }
    else
    {
        ADD_FAILURE() << "nothing has met the fault";
    }
    present = "none, after " + present;
}

void FaultTest::SetUp()
{
    HostedFrame::SetUp();
    constexpr int recordCount = 4;
    std::vector<BTN_UNIT> records;
    records.reserve(recordCount);
    for (int i = 0; i < recordCount; ++i)
    {
        records.push_back(NewRecord(i));
    }
    Frame().SetCtrlBtnInfo(records);
    CeGuiMainFrame::PropertyRows rows;
    for (int i = 0; i < 12; ++i)
    {
        rows.emplace_back(L"name", L"value");
    }
    Frame().setPropertyData(rows);
    Host().Resize(Width, Height);
    Rebuild();
    Host().MoveMouse(Width / 2, Height / 2);
    NewLog();
}

void FaultTest::TearDown()
{
    EXPECT_EQ(NewLog(), Lines{}) << "lines of the log that no test asked for";
    CeGuiMainFrame::PropertyRows none;
    Frame().setPropertyData(none);
    Frame().OpenPropertyDlg(nullptr, false);
    TakeLog();
    HostedFrame::TearDown();
}

void FaultTest::Rebuild()
{
    Host().Viewer().getEventQueue()->windowResize(0, 0, Host().Width(), Host().Height());
    Host().Frames(1);
}

bool FaultTest::Start()
{
    Host().Close();
    seen_ = 0;
    try
    {
        Host().Start();
    }
    catch (const CEGUI::Exception&)
    {
        return false;
    }
    CEGUI::System::getSingleton().getDefaultGUIContext().setMouseButtonMultiClickTimeout(1e-6f);
    return true;
}

std::vector<std::uint8_t> FaultTest::SeenAfterRebuild()
{
    Host().Viewer().getEventQueue()->windowResize(0, 0, Host().Width(), Host().Height());
    return Seen();
}

std::vector<std::uint8_t> FaultTest::Seen()
{
    const osg::ref_ptr<osg::Image> image = new osg::Image;
    osg::Camera& camera = *Host().Viewer().getCamera();
    camera.setFinalDrawCallback(new KeepPixels(image));
    Host().Frames(1);
    camera.setFinalDrawCallback(nullptr);
    return std::vector<std::uint8_t>(image->data(), image->data() + image->getTotalSizeInBytes());
}

void FaultTest::UseEverything()
{
    CeGuiMainFrame& frame = Frame();
    frame.OnToolBarRCList(GuiHost::Find("TavToolButtom_1"));
    frame.OnToolBarRCList(GuiHost::Find("TavToolButtom_1"));
    frame.OpenPropertyDlg(GuiHost::Find("TavToolButtom_4"), true);
    frame.RefreshPropertyDlg();
    frame.SetBtnIndex(1);
    frame.CreateToolBar();
    frame.CreateTooltipWindow(10, 100, L"tooltip");
    frame.ChangeTitleText(L"another title", 0xFFFFFF, TitleFont, 14.0f);
    frame.OnToolBarFullScene(true);
    frame.OnToolBarFullScene(false);
    Host().Frames(1);
    frame.DestroyTooltipWindow();
    frame.OpenPropertyDlg(GuiHost::Find("TavToolButtom_4"), false);
    frame.ClearTitleSet();
    frame.SetSceneTitleFontStyle(TitleFont);
    frame.SetBtnIndex(0);
    Host().Frames(1);
}

void FaultTest::ExpectAnswers()
{
    Host().TakeMessages();
    Host().Click(Host().Width() - 28, 25);
    EXPECT_EQ(Host().TakeCodes(), Codes{GUI_CMD_CLOSE});
    Host().MoveMouse(Host().Width() / 2, Host().Height() / 2);
    Rebuild();
}

Lines FaultTest::NewLog()
{
    const Lines all = LogLines();
    const Lines lines(all.begin() + static_cast<std::ptrdiff_t>(std::min(seen_, all.size())), all.end());
    seen_ = all.size();
    return lines;
}

Lines Without(const Lines& lines, const std::string& text)
{
    Lines rest;
    std::copy_if(lines.begin(), lines.end(), std::back_inserter(rest),
                 [&](const std::string& line) { return line.find(text) == std::string::npos; });
    return rest;
}

std::vector<CString> FilesOf(const CString& folder)
{
    std::vector<CString> files;
    AddFiles(folder, L"", files);
    std::sort(files.begin(), files.end());
    return files;
}

Lines UnfinishedFiles(const CString& folder)
{
    Lines unfinished;
    for (const CString& file : FilesOf(folder))
    {
        if (file.Find(L".part") >= 0)
        {
            unfinished.push_back(Utf8(file));
        }
    }
    return unfinished;
}
