// SPDX-License-Identifier: MIT
#include "SoakHost.h"

#include <NxConfig/ParamConfig.h>
#include <NxConfig/SystemUtility.h>

#include <CEGUI/GUIContext.h>
#include <CEGUI/System.h>

namespace
{
constexpr int BaseViews = 6;
constexpr int MostViews = 16;
constexpr int BaseRows = 12;
constexpr int SuffixLength = 2;
const CSize BaseSize(800, 600);
// Of the menu of a control button.
constexpr UINT ButtonProperties = 40098;
constexpr UINT ButtonDelete = 40100;
constexpr UINT ButtonAdd = 40101;
/// The scene's menu adds a view, too.
constexpr UINT SceneAdd = 40201;
constexpr UINT SceneRows = 40202;
const char* const SceneMenu = "<menus><menu text=\"Scene\"><item id=\"40201\" text=\"Add a view\"/><separator/>"
                              "<item id=\"40202\" text=\"Many rows\"/><menu text=\"More\"><item id=\"40203\" text=\"Deep\"/>"
                              "</menu></menu></menus>";
constexpr UINT StrayTick = 400; ///< milliseconds

bool IsInMenu()
{
    GUITHREADINFO info = {};
    info.cbSize = sizeof(info);
    return GetGUIThreadInfo(GetCurrentThreadId(), &info) && (info.flags & GUI_INMENUMODE) != 0;
}

bool IsTitleDialog(HWND window)
{
    return GetDlgItem(window, 4089) && GetDlgItem(window, 5015);
}

struct Dialogs
{
    HWND title = nullptr;
    HWND other = nullptr;
};

BOOL CALLBACK FindDialogs(HWND window, LPARAM found)
{
    wchar_t name[16] = {};
    GetClassNameW(window, name, 16);
    auto& dialogs = *reinterpret_cast<Dialogs*>(found);
    if (CString(name) == L"#32770" && IsTitleDialog(window))
    {
        dialogs.title = window;
    }
    else if (CString(name) == L"#32770" && IsWindowVisible(window))
    {
        dialogs.other = window;
    }
    return TRUE;
}

Dialogs OpenDialogs()
{
    Dialogs dialogs;
    EnumThreadWindows(GetCurrentThreadId(), &FindDialogs, reinterpret_cast<LPARAM>(&dialogs));
    return dialogs;
}

CeGuiMainFrame::PropertyRows RowsFor(int count)
{
    CeGuiMainFrame::PropertyRows rows;
    for (int i = 0; i < count; ++i)
    {
        CString name;
        name.Format(i % 5 == 4 ? L"A name that is too long for its column, number %d" : L"名称 %d", i);
        CString value;
        value.Format(L"value %d", i * 7);
        rows.emplace_back(name, value);
    }
    return rows;
}
} // namespace

SoakHost::SoakHost() : host_(BaseSize.cx, BaseSize.cy), user_(host_)
{
    CreateDirectoryW(SystemUtility::GetSysMidPath(nullptr, nullptr), nullptr);
    const std::string menu = SceneMenu;
    WriteBytes(SystemUtility::GetSysMidPath(nullptr, nullptr) + L"RButtonMenu.xml",
               std::vector<std::uint8_t>(menu.begin(), menu.end()));
    host_.onMainWindowMessage = [this](UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == WM_COMMAND && lParam == 0)
        {
            commands_.push_back(LOWORD(wParam));
        }
    };
    timer_ = SetTimer(nullptr, 0, StrayTick, &SoakHost::OnTick);
    // The files of every picture that there will ever be, in either skin.
    for (const bool light : {true, false})
    {
        TakeLightSkin(light);
        Restart();
        UseViews(MostViews);
        ShowRows(BaseRows);
        Frame().OpenPropertyDlg(nullptr, true);
        Frame().CreateTooltipWindow(1, 1, L"提示");
        Rebuild();
    }
    GoToBase();
}

SoakHost::~SoakHost()
{
    KillTimer(nullptr, timer_);
    host_.onMainWindowMessage = nullptr;
    CParamConfig::getInstance()->reload();
}

void CALLBACK SoakHost::OnTick(HWND, UINT, UINT_PTR, DWORD)
{
    // What nobody answers would keep its loop running for ever.
    static bool menuSeen = false;
    const bool inMenu = IsInMenu();
    if (inMenu && menuSeen)
    {
        EndMenu();
    }
    menuSeen = inMenu && !menuSeen;
    if (const HWND box = OpenDialogs().other)
    {
        PostMessageW(box, WM_COMMAND, IDOK, 0);
    }
}

HWND SoakHost::Dialog() const
{
    const HWND dialog = OpenDialogs().title;
    return IsWindowVisible(dialog) ? dialog : nullptr;
}

void SoakHost::Restart()
{
    host_.Close();
    host_.Start();
    dirty_ = false;
    // A double click comes as a message of its own here.
    CEGUI::System::getSingleton().getDefaultGUIContext().setMouseButtonMultiClickTimeout(1e-6f);
    host_.Frames(2);
}

void SoakHost::SpeakEnglish(bool english)
{
    dirty_ = dirty_ || english != english_;
    english_ = english;
    CParamConfig::getInstance()->setStringParam("Language", english ? "en" : "zh-CN");
}

void SoakHost::TakeLightSkin(bool light)
{
    dirty_ = dirty_ || light != light_;
    light_ = light;
    CParamConfig::getInstance()->setStringParam("CEGUI_SkinDir", light ? "cegui\\TavLookLight\\" : "cegui\\TavLook\\");
}

void SoakHost::Rebuild()
{
    host_.Viewer().getEventQueue()->windowResize(0, 0, host_.Width(), host_.Height());
    host_.Frames(2);
}

void SoakHost::AddView()
{
    if (Frame().GetCtrlBtnInfo().size() < MostViews)
    {
        BTN_UNIT view;
        view.name.Format(L"view %d", viewsMade_++ % (2 * MostViews));
        view.kind = viewsMade_ % 2;
        view.target.Format(L"视点 %d", viewsMade_ % 10);
        if (viewsMade_ % 3 == 0)
        {
            view.lastText = SkinDir() + L"new_skin\\topBG.png";
        }
        Frame().GetCtrlBtnInfo().push_back(view);
        Rebuild();
    }
}

void SoakHost::DeleteView(int index)
{
    if (const BTN_UNIT* view = Frame().GetBtnProperty(index))
    {
        const CString name = view->name;
        Frame().DeleteButton(name);
        Rebuild();
    }
}

void SoakHost::ShowRows(int count)
{
    CeGuiMainFrame::PropertyRows rows = RowsFor(count);
    Frame().setPropertyData(rows);
    Frame().MakeContextCurrent();
    Frame().RefreshPropertyDlg();
}

void SoakHost::CarryOutCommand(UINT id)
{
    // The window of an entry is called after its record, with the kind at the end.
    const CString window = Frame().GetEditWindowName();
    int edited = -1;
    if (window.GetLength() > SuffixLength)
    {
        Frame().GetBtnProperty(window.Left(window.GetLength() - SuffixLength), window.Right(SuffixLength) == L"_V" ? 1 : 0,
                               edited);
    }
    switch (id)
    {
    case ButtonAdd:
    case SceneAdd:
        AddView();
        break;
    case ButtonDelete:
        DeleteView(edited);
        break;
    case ButtonProperties:
        if (BTN_UNIT* view = Frame().GetBtnProperty(edited))
        {
            view->target += view->target.GetLength() < 20 ? L"+" : L"";
            Rebuild();
        }
        break;
    case SceneRows:
        ShowRows(400);
        break;
    default:
        break;
    }
}

std::vector<int> SoakHost::CarryOut()
{
    std::vector<int> codes;
    for (const HostMessage& message : user_.TakeReceived())
    {
        codes.push_back(static_cast<int>(message.code));
    }
    for (const UINT id : std::exchange(commands_, {}))
    {
        codes.push_back(-static_cast<int>(id));
    }
    for (const int code : codes)
    {
        ++received_[code];
        if (code < 0)
        {
            CarryOutCommand(static_cast<UINT>(-code));
        }
        else if (code == GUI_CMD_CLOSE)
        {
            Restart();
        }
        else if (code == GUI_CMD_DATA_MANAGEMENT)
        {
            ShowRows(60);
        }
        else if (code == GUI_CMD_DISPLAY_PROPERTIES)
        {
            ShowRows(BaseRows);
        }
    }
    return codes;
}

void SoakHost::UseViews(int count)
{
    std::vector<BTN_UNIT> views(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
    {
        views[static_cast<std::size_t>(i)].name.Format(L"base %d", i);
        views[static_cast<std::size_t>(i)].target = L"视点";
    }
    Frame().SetCtrlBtnInfo(views);
    Frame().SetBtnIndex(0);
}

void SoakHost::GoToBase()
{
    if (const HWND dialog = OpenDialogs().title)
    {
        // One that was confirmed is kept and hidden.
        PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    }
    host_.Frames(2);
    CarryOut();
    SpeakEnglish(false);
    TakeLightSkin(false);
    if (dirty_ || !Frame().IsInit())
    {
        Restart();
    }
    Frame().OnToolBarFullScene(false);
    Frame().EnableSlideOut(false);
    Frame().EnablePopupMenu(true);
    if (Frame().IsOpenPropertyDlg())
    {
        Frame().OpenPropertyDlg(nullptr, false);
    }
    if (!Frame().IsShowLeftToolBar())
    {
        Frame().OnToolBarRCList(nullptr);
    }
    Frame().DestroyTooltipWindow();
    Frame().ClearTitleSet();
    ShowRows(BaseRows);
    UseViews(BaseViews);
    viewsMade_ = 0;
    host_.Resize(BaseSize.cx, BaseSize.cy);
    Rebuild();
    user_.MoveTo(CPoint(402, 300));
    user_.MoveTo(CPoint(400, 300));
    user_.Wait();
    user_.TakeReceived();
    commands_.clear();
}
