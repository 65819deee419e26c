// SPDX-License-Identifier: MIT
#include "PublishedProgram.h"

#include "User.h"
#include "support/driver/ScreenGrab.h"

#include <cstdlib>
#include <stdexcept>

namespace host
{
namespace
{

const wchar_t* const MainClass = L"CityHostMain";
/// Around the start page, in the upper left corner; the interface has its title bar there.
constexpr unsigned char GroundColor[] = {14, 18, 25};
constexpr int ColorTolerance = 4;
constexpr int Margin = 12; ///< of the places that are looked at, pixels
constexpr DWORD PollMilliseconds = 100;
constexpr int Polls = 600;
/// For the interface's text pictures, which come with its second frame.
constexpr DWORD SettleMilliseconds = 2500;

BOOL CALLBACK FindForeignWindow(HWND window, LPARAM found)
{
    wchar_t name[32] = {};
    GetClassNameW(window, name, 32);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (CString(name) == MainClass && process != GetCurrentProcessId() && IsWindowVisible(window))
    {
        *reinterpret_cast<HWND*>(found) = window;
        return FALSE;
    }
    return TRUE;
}

bool IsGround(const osg::Image& picture, int x, int y)
{
    const unsigned char* pixel = picture.data(x, picture.t() - 1 - y);
    bool same = true;
    for (int i = 0; i < 3; ++i)
    {
        same = same && std::abs(pixel[i] - GroundColor[i]) <= ColorTolerance;
    }
    return same;
}

bool IsBlack(const osg::Image& picture, int x, int y)
{
    const unsigned char* pixel = picture.data(x, picture.t() - 1 - y);
    return pixel[0] == 0 && pixel[1] == 0 && pixel[2] == 0;
}

} // namespace

PublishedProgram::PublishedProgram(User& user, const CString& folder) : user_(user)
{
    CString command;
    command.Format(L"cmd.exe /c \"%s\\start.cmd\"", folder.GetString());
    STARTUPINFOW start = {};
    start.cb = sizeof(start);
    PROCESS_INFORMATION process = {};
    if (!CreateProcessW(nullptr, command.GetBuffer(command.GetLength()), nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr,
                        nullptr, &start, &process))
    {
        throw std::runtime_error("the publication's script cannot be started");
    }
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
}

PublishedProgram::~PublishedProgram()
{
    // A tour that has failed ends it too, when there is no user any more.
    const HWND window = Window();
    PostMessageW(window, WM_CLOSE, 0, 0);
    for (int i = 0; i < Polls && IsWindow(window); ++i)
    {
        Sleep(PollMilliseconds);
    }
}

HWND PublishedProgram::Window()
{
    HWND window = nullptr;
    EnumWindows(FindForeignWindow, reinterpret_cast<LPARAM>(&window));
    return window;
}

osg::ref_ptr<osg::Image> PublishedProgram::WaitFor(bool startPage)
{
    for (int i = 0; i < Polls; ++i)
    {
        if (const HWND window = Window())
        {
            RECT area = {};
            GetWindowRect(window, &area);
            const osg::ref_ptr<osg::Image> picture = driver::GrabScreen(area);
            const int low = picture->t() - Margin;
            // A window comes up black, and its first picture from the top on.
            if (!IsBlack(*picture, Margin, low) && IsGround(*picture, Margin, Margin) == startPage &&
                IsGround(*picture, Margin, low) == startPage)
            {
                return picture;
            }
        }
        user_.LetOthersWork(PollMilliseconds);
    }
    throw std::runtime_error(startPage ? "the publication shows no start page" : "the publication shows no scene");
}

osg::ref_ptr<osg::Image> PublishedProgram::WaitForStartPage()
{
    WaitFor(true);
    user_.LetOthersWork(2 * PollMilliseconds);
    return WaitFor(true);
}

osg::ref_ptr<osg::Image> PublishedProgram::WaitForScene()
{
    WaitFor(false);
    user_.LetOthersWork(SettleMilliseconds);
    return WaitFor(false);
}

} // namespace host
