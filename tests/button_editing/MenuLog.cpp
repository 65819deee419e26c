// SPDX-License-Identifier: MIT
#include "MenuLog.h"

#include <KernelCommonUse/StringConvert.h>

#include <utility>

namespace
{
constexpr UINT_PTR KeysTimer = 71;
constexpr UINT_PTR GiveUpTimer = 72;
constexpr UINT KeysAfter = 30;     // ms
constexpr UINT GiveUpAfter = 3000; // ms
} // namespace

std::vector<std::string> ItemsOf(HMENU menu)
{
    std::vector<std::string> items;
    for (UINT i = 0; i < static_cast<UINT>(GetMenuItemCount(menu)); ++i)
    {
        wchar_t text[200] = L"";
        GetMenuStringW(menu, i, text, 200, MF_BYPOSITION);
        // Of a popup the high byte counts its items.
        const UINT state = GetMenuState(menu, i, MF_BYPOSITION);
        const bool popup = GetSubMenu(menu, static_cast<int>(i)) != nullptr;
        if (!popup && state & MF_SEPARATOR)
        {
            items.push_back("-");
            continue;
        }
        std::string item = popup ? ">" : std::to_string(GetMenuItemID(menu, static_cast<int>(i)));
        item += " " + CString2string(text);
        item += state & MF_CHECKED ? " checked" : "";
        item += state & (MF_GRAYED | MF_DISABLED) ? " disabled" : "";
        items.push_back(item);
    }
    return items;
}

MenuLog::MenuLog(GuiHost& host) : host_(host)
{
    host_.onMainWindowMessage = [this](UINT message, WPARAM wParam, LPARAM lParam) { OnMessage(message, wParam, lParam); };
}

MenuLog::~MenuLog()
{
    host_.onMainWindowMessage = nullptr;
    KillTimer(host_.MainWindow(), KeysTimer);
    KillTimer(host_.MainWindow(), GiveUpTimer);
}

void MenuLog::OnMessage(UINT message, WPARAM wParam, LPARAM)
{
    const HWND window = host_.MainWindow();
    switch (message)
    {
    case WM_INITMENUPOPUP:
        menus_.push_back(ItemsOf(reinterpret_cast<HMENU>(wParam)));
        if (menus_.size() == 1)
        {
            menu = reinterpret_cast<HMENU>(wParam);
            place = {};
            editedWhileOpen = CString2string(CeGuiMainFrame::GetInstance()->GetEditWindowName());
            SetTimer(window, KeysTimer, KeysAfter, nullptr);
            SetTimer(window, GiveUpTimer, GiveUpAfter, nullptr);
        }
        break;
    case WM_TIMER:
        KillTimer(window, wParam);
        if (const HWND popup = FindWindowW(L"#32768", nullptr))
        {
            GetWindowRect(popup, &place);
        }
        if (wParam == GiveUpTimer || (wParam == KeysTimer && keys_.empty()))
        {
            EndMenu();
        }
        else if (wParam == KeysTimer)
        {
            for (const UINT key : std::exchange(keys_, {}))
            {
                PostMessageW(window, WM_KEYDOWN, key, 1);
                PostMessageW(window, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
            }
        }
        break;
    case WM_EXITMENULOOP:
        KillTimer(window, KeysTimer);
        KillTimer(window, GiveUpTimer);
        break;
    case WM_COMMAND:
        commands_.push_back(LOWORD(wParam));
        break;
    default:
        break;
    }
}

std::vector<std::vector<std::string>> MenuLog::TakeMenus()
{
    return std::exchange(menus_, {});
}

std::vector<UINT> MenuLog::TakeCommands()
{
    host_.Frames(1);
    return std::exchange(commands_, {});
}
