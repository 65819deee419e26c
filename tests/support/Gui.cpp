// SPDX-License-Identifier: MIT
#include "Gui.h"

#include "ViewWindow.h"

#include <widgets/WindowNames.h>

#include <CEGUI/CoordConverter.h>
#include <CEGUI/Window.h>
#include <CEGUI/WindowManager.h>

#include <osg/Image>
#include <osgGA/TrackballManipulator>

#include <algorithm>
#include <sstream>
#include <stdexcept>

extern "C" void graphicswindow_Win32(void);

namespace
{
const wchar_t* const MainClass = L"NxGuiTestMain";
const wchar_t* const ViewClass = L"NxGuiTestView";
/// Those that live, in the order in which they were made; the last is the one whose application runs.
std::vector<GuiHost*> hosts;
GuiHost* currentHost = nullptr;

LRESULT CALLBACK MainProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (currentHost && currentHost->onMainWindowMessage)
    {
        currentHost->onMainWindowMessage(message, wParam, lParam);
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

void RegisterWindowClasses(WNDPROC view)
{
    static bool registered = false;
    if (registered)
    {
        return;
    }
    registered = true;
    WNDCLASSW windowClass = {};
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
    windowClass.lpfnWndProc = MainProcedure;
    windowClass.lpszClassName = MainClass;
    RegisterClassW(&windowClass);
    windowClass.style = CS_OWNDC | CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW;
    windowClass.lpfnWndProc = view;
    windowClass.lpszClassName = ViewClass;
    RegisterClassW(&windowClass);
    graphicswindow_Win32();
}

/// Reads the back buffer at the end of a frame's drawing.
class ShootCallback : public osg::Camera::DrawCallback
{
public:
    explicit ShootCallback(osg::Image* image) : image_(image) {}
    void operator()(osg::RenderInfo& info) const override
    {
        const osg::Viewport* viewport = info.getCurrentCamera()->getViewport();
        image_->readPixels(0, 0, static_cast<int>(viewport->width()), static_cast<int>(viewport->height()), GL_RGB,
                           GL_UNSIGNED_BYTE);
    }

private:
    osg::ref_ptr<osg::Image> image_;
};

LPARAM At(int x, int y)
{
    return MAKELPARAM(x, y);
}
} // namespace

GuiHost::GuiHost(int width, int height, osg::Node* scene) : width_(width), height_(height)
{
    RegisterWindowClasses(&GuiHost::ViewProcedure);
    hosts.push_back(this);
    currentHost = this;
    const HINSTANCE instance = GetModuleHandleW(nullptr);
    main_ = CreateWindowExW(0, MainClass, L"test host", WS_POPUP | WS_VISIBLE, 0, 0, width, height, nullptr, nullptr, instance,
                            nullptr);
    view_ = CreateWindowExW(0, ViewClass, L"", WS_CHILD | WS_VISIBLE, 0, 0, width, height, main_, nullptr, instance, nullptr);
    mainWnd_.Attach(main_);
    AfxGetApp()->m_pMainWnd = &mainWnd_;

    const osg::ref_ptr<osg::GraphicsContext> context = NewContext(view_, width, height);
    if (!context)
    {
        throw std::runtime_error("no OpenGL context for the test's window");
    }

    viewer_ = new osgViewer::Viewer;
    viewer_->setThreadingModel(osgViewer::Viewer::SingleThreaded);
    osg::Camera* camera = viewer_->getCamera();
    camera->setGraphicsContext(context);
    camera->setViewport(new osg::Viewport(0, 0, width, height));
    camera->setProjectionMatrixAsPerspective(30.0, double(width) / height, 1.0, 10000.0);
    camera->setClearColor(osg::Vec4(0.2f, 0.4f, 0.6f, 1.0f));
    viewer_->setKeyEventSetsDone(0);
    root_ = new osg::Group;
    if (scene)
    {
        root_->addChild(scene);
    }
    viewer_->setSceneData(root_);
    viewer_->realize();
    viewerProcedure_ =
        reinterpret_cast<WNDPROC>(SetWindowLongPtrW(view_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&GuiHost::OwnMouseOnly)));
}

GuiHost::~GuiHost()
{
    Close();
    SetWindowLongPtrW(view_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(viewerProcedure_));
    viewer_ = nullptr;
    mainWnd_.Detach();
    DestroyWindow(main_);
    hosts.erase(std::remove(hosts.begin(), hosts.end(), this), hosts.end());
    currentHost = hosts.empty() ? nullptr : hosts.back();
    AfxGetApp()->m_pMainWnd = currentHost ? &currentHost->mainWnd_ : nullptr;
}

LRESULT CALLBACK GuiHost::ViewProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_ERASEBKGND)
    {
        return 1;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

LRESULT CALLBACK GuiHost::OwnMouseOnly(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto host = std::find_if(hosts.begin(), hosts.end(), [&](const GuiHost* one) { return one->view_ == window; });
    if (host == hosts.end() || (message == WM_MOUSEMOVE && lParam != (*host)->mousePosition_))
    {
        return 0;
    }
    return CallWindowProcW((*host)->viewerProcedure_, window, message, wParam, lParam);
}

void GuiHost::InitOnly(GUIUserType userType)
{
    Frame().Init(viewer_, userType);
    root_->addChild(Frame().GetGUINode());
}

void GuiHost::Start(GUIUserType userType)
{
    InitOnly(userType);
    Frames(1);
    viewer_->getEventQueue()->windowResize(0, 0, width_, height_);
    // The event builds the frame, the next draws show it.
    Frames(3);
    TakeMessages();
}

void GuiHost::Close()
{
    if (Frame().IsInit())
    {
        const osg::ref_ptr<osg::Group> node = Frame().GetGUINode();
        Frame().CloseGuiSystem();
        root_->removeChild(node);
    }
}

void GuiHost::Pump()
{
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
    {
        if (message.message == GUI_HOST_MESSAGE)
        {
            (message.hwnd == main_ ? mainMessages_ : messages_).push_back({message.wParam, message.lParam});
            continue;
        }
        if (!AfxPreTranslateMessage(&message))
        {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
}

void GuiHost::Frames(int count)
{
    for (int i = 0; i < count; ++i)
    {
        Pump();
        viewer_->frame();
    }
    Pump();
}

void GuiHost::Resize(int width, int height)
{
    width_ = width;
    height_ = height;
    MoveWindow(main_, 0, 0, width, height, FALSE);
    MoveWindow(view_, 0, 0, width, height, FALSE);
    Frames(2);
}

void GuiHost::Send(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_MOUSEMOVE)
    {
        mousePosition_ = lParam;
    }
    PostMessageW(view_, message, wParam, lParam);
    Frames(1);
}

void GuiHost::MoveMouse(int x, int y)
{
    Send(WM_MOUSEMOVE, 0, At(x, y));
}

void GuiHost::Press(int x, int y)
{
    Send(WM_LBUTTONDOWN, MK_LBUTTON, At(x, y));
}

void GuiHost::Release(int x, int y)
{
    Send(WM_LBUTTONUP, 0, At(x, y));
}

void GuiHost::Click(int x, int y)
{
    MoveMouse(x, y);
    Press(x, y);
    Release(x, y);
}

void GuiHost::RightClick(int x, int y)
{
    MoveMouse(x, y);
    Send(WM_RBUTTONDOWN, MK_RBUTTON, At(x, y));
    Send(WM_RBUTTONUP, 0, At(x, y));
}

void GuiHost::DoubleClick(int x, int y)
{
    Click(x, y);
    Send(WM_LBUTTONDBLCLK, MK_LBUTTON, At(x, y));
    Release(x, y);
}

void GuiHost::Wheel(int x, int y, int notches)
{
    MoveMouse(x, y);
    POINT screen = {x, y};
    ClientToScreen(view_, &screen);
    Send(WM_MOUSEWHEEL, MAKEWPARAM(0, notches * WHEEL_DELTA), At(screen.x, screen.y));
}

void GuiHost::Key(UINT virtualKey)
{
    Send(WM_KEYDOWN, virtualKey, 1);
    Send(WM_KEYUP, virtualKey, static_cast<LPARAM>(0xC0000001));
}

Screenshot GuiHost::Shoot()
{
    const osg::ref_ptr<osg::Image> image = new osg::Image;
    viewer_->getCamera()->setFinalDrawCallback(new ShootCallback(image));
    Frames(1);
    viewer_->getCamera()->setFinalDrawCallback(nullptr);
    Screenshot shot;
    shot.width = image->s();
    shot.height = image->t();
    shot.pixels.reserve(static_cast<std::size_t>(shot.width) * shot.height);
    for (int y = shot.height - 1; y >= 0; --y)
    {
        for (int x = 0; x < shot.width; ++x)
        {
            const unsigned char* p = image->data(x, y);
            shot.pixels.push_back({p[0], p[1], p[2]});
        }
    }
    return shot;
}

std::vector<HostMessage> GuiHost::TakeMessages()
{
    Pump();
    return std::exchange(messages_, {});
}

std::vector<WPARAM> GuiHost::TakeCodes()
{
    std::vector<WPARAM> codes;
    for (const HostMessage& message : TakeMessages())
    {
        codes.push_back(message.code);
    }
    return codes;
}

std::vector<HostMessage> GuiHost::TakeMainWindowMessages()
{
    Pump();
    return std::exchange(mainMessages_, {});
}

CEGUI::Window* GuiHost::Find(const char* name)
{
    return CEGUI::WindowManager::getSingletonPtr() ? WindowNames::Find(name) : nullptr;
}

RECT GuiHost::RectOf(const char* name)
{
    const CEGUI::Window* window = Find(name);
    if (!window)
    {
        return {0, 0, 0, 0};
    }
    const CEGUI::Rectf area = window->getUnclippedOuterRect().get();
    const auto whole = [](float value) { return static_cast<LONG>(std::lround(value)); };
    return {whole(area.left()), whole(area.top()), whole(area.right()), whole(area.bottom())};
}

CPoint GuiHost::CentreOf(const char* name)
{
    const RECT rect = RectOf(name);
    return CPoint((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
}
