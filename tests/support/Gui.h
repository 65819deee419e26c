// SPDX-License-Identifier: MIT
#pragma once

#include <NxOsgCeGui/CeGuiMainFrame.h>

#include <afxwin.h>

#include <osg/Group>
#include <osgViewer/Viewer>

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace CEGUI
{
class Window;
}

/// A pixel as it is seen: no alpha.
struct Pixel
{
    int red = 0;
    int green = 0;
    int blue = 0;
};
bool operator==(Pixel a, Pixel b);
/// The largest difference of a component.
int Distance(Pixel a, Pixel b);

/// What the viewer's window shows; origin at the top left.
struct Screenshot
{
    int width = 0;
    int height = 0;
    std::vector<Pixel> pixels;
    Pixel At(int x, int y) const { return pixels[static_cast<std::size_t>(y) * width + x]; }
};

/// The pixels of a picture file, decoded by the library's own codec; empty when it cannot be read.
struct PictureFile
{
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> rgba;
    std::uint32_t Argb(int x, int y) const;
};
PictureFile ReadPictureFile(const CString& path);

/// A message that a host gets.
struct HostMessage
{
    WPARAM code;
    LPARAM value;
};

/// A host as an application makes it: a window, a viewer in it with a scene, and the interface over it. Input enters as
/// window messages; what the library posts is taken from the real queue.
class GuiHost
{
public:
    /// @param scene null: a plain background
    explicit GuiHost(int width = 800, int height = 600, osg::Node* scene = nullptr);
    ~GuiHost();
    GuiHost(const GuiHost&) = delete;
    GuiHost& operator=(const GuiHost&) = delete;

    /// Starts the interface and sizes the view once, which builds the frame.
    void Start(GUIUserType userType = GUI_USER_FULL);
    /// Starts without the first size event.
    void InitOnly(GUIUserType userType = GUI_USER_FULL);
    void Close();

    /// Runs frames, with the window's messages handled before each.
    void Frames(int count = 1);
    void Resize(int width, int height);

    // Real input by window messages, each followed by a frame. Positions are view pixels.
    void MoveMouse(int x, int y);
    void Press(int x, int y);
    void Release(int x, int y);
    void Click(int x, int y);
    void RightClick(int x, int y);
    void DoubleClick(int x, int y);
    /// @param notches up is positive, as the wheel sends it
    void Wheel(int x, int y, int notches);
    void Key(UINT virtualKey);
    void Send(UINT message, WPARAM wParam, LPARAM lParam);

    Screenshot Shoot();

    /// Host messages received by the viewer's window since the last call.
    std::vector<HostMessage> TakeMessages();
    std::vector<WPARAM> TakeCodes();
    /// Host messages that the application's main window received since the last call.
    std::vector<HostMessage> TakeMainWindowMessages();

    HWND Window() const { return view_; }
    HWND MainWindow() const { return main_; }
    osgViewer::Viewer& Viewer() { return *viewer_; }
    osg::Group& Root() { return *root_; }
    CeGuiMainFrame& Frame() { return *CeGuiMainFrame::GetInstance(); }
    int Width() const { return width_; }
    int Height() const { return height_; }

    /// Sees every message that the main window gets, while it lasts; a menu's among them.
    std::function<void(UINT message, WPARAM wParam, LPARAM lParam)> onMainWindowMessage;

    /// A window by name; null when there is none.
    static CEGUI::Window* Find(const char* name);
    /// A window's rectangle on the screen, view pixels.
    static RECT RectOf(const char* name);
    static CPoint CentreOf(const char* name);

private:
    static LRESULT CALLBACK ViewProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    /// Lies over the viewer's own procedure and keeps the machine's real pointer away from it.
    static LRESULT CALLBACK OwnMouseOnly(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void Pump();

    int width_;
    int height_;
    HWND main_ = nullptr;
    HWND view_ = nullptr;
    WNDPROC viewerProcedure_ = nullptr;
    LPARAM mousePosition_ = -1; ///< of the last move that a test has made; none yet
    CWnd mainWnd_;
    osg::ref_ptr<osgViewer::Viewer> viewer_;
    osg::ref_ptr<osg::Group> root_;
    std::vector<HostMessage> messages_;
    std::vector<HostMessage> mainMessages_;
};

/// The application directory of the tests, with its trailing separator, as a Win32 path.
CString AppDir();
/// The CEGUI resource directory in it.
CString SkinDir();

/// Lines of CEGUI.log that the library wrote itself ("NxOsgCeGui: ...") since the last start.
std::vector<std::string> LogLines();
/// Those of them that hold a text.
int CountLogLines(const std::string& text);

/// Starts the tests of a filter in another process of this program, in the same folder. Those are disabled, so that they run only
/// so; they leave a file for an answer, since not every system lets a process be waited for by the one that starts it.
bool StartAgain(const wchar_t* filter);
/// Waits for such an answer, a minute at most. @return whether it is there
bool WaitForFile(const CString& path);

/// A file put away for the life of the object.
class FileTaken
{
public:
    explicit FileTaken(const CString& path);
    ~FileTaken();
    void PutBack();

private:
    CString path_;
    bool taken_ = false;
};

/// A file replaced by these bytes for the life of the object.
class FileReplaced
{
public:
    FileReplaced(const CString& path, const std::vector<std::uint8_t>& bytes);
    ~FileReplaced();

private:
    CString path_;
    std::vector<std::uint8_t> former_;
    bool existed_ = false;
};

/// Whether a folder holds a file that is being written, or was left half written.
bool HasUnfinishedFile(const CString& folder);

std::vector<std::uint8_t> ReadBytes(const CString& path);
bool WriteBytes(const CString& path, const std::vector<std::uint8_t>& bytes);
/// As programs do that copy a file with its times.
bool SetWrittenAt(const CString& path, std::uint64_t fileTime);
