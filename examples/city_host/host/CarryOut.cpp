// SPDX-License-Identifier: MIT
// What has come in is carried out between frames: keys, the interface's messages, menu entries and clicks into the scene.
#include "CityHost.h"

#include "../objects/Figures.h"
#include "../objects/ObjectRows.h"
#include "../objects/Picking.h"
#include "CommandTable.h"
#include "Language.h"

#include <utility>

namespace host
{

void CityHost::CarryOut()
{
    for (const UINT virtualKey : std::exchange(keys_, {}))
    {
        const HostKey& key = *FindHostKey(virtualKey);
        const CString result = (actions_.*key.act)(GuiMessage());
        CString origin;
        origin.Format(Say({L"按键 %c", L"key %c"}), static_cast<wchar_t>(virtualKey));
        toasts_->Show(CString(static_cast<wchar_t>(virtualKey)), Say(key.name), result.IsEmpty() ? origin : result);
        NeedFrames(1);
    }
    for (const GuiMessage& message : std::exchange(messages_, {}))
    {
        CarryOut(message);
    }
    for (const UINT id : std::exchange(menuCommands_, {}))
    {
        CarryOut(*FindMenuCommand(id));
    }
    CarryOutClicks();
}

void CityHost::CarryOut(const MenuCommand& command)
{
    const CString result = (menuActions_.*command.act)();
    CString detail;
    detail.Format(Say({L"菜单命令 %u", L"menu command %u"}), command.id);
    if (!result.IsEmpty())
    {
        detail += Say({L"　", L"  ·  "}) + result;
    }
    toasts_->Show(L"≡", Say(command.name), detail);
    NeedFrames(1);
}

void CityHost::CarryOutClicks()
{
    for (const CPoint point : std::exchange(clicks_, {}))
    {
        properties_->Pick(PickBuilding(city_, *viewer_->getCamera(), point));
        tellPickAt_ = clock_.Now() + std::chrono::milliseconds(GetDoubleClickTime());
        NeedFrames(1);
    }
    if (std::exchange(doubleClicked_, false))
    {
        properties_->TakeBack();
        tellPickAt_.reset();
        NeedFrames(1);
    }
    if (tellPickAt_ && clock_.Now() >= *tellPickAt_)
    {
        tellPickAt_.reset();
        TellPick();
    }
}

void CityHost::TellPick()
{
    const city::Building* const picked = properties_->Picked();
    if (!picked || CeGuiMainFrame::GetInstance()->IsOpenPropertyDlg())
    {
        return;
    }
    const CString detail = InLanguage(city::UseName(picked->use)) + L"  ·  " + Figure(picked->floors) +
                           Say({L" 层  ·  “显示属性”工具可查看全部", L" floors  ·  all in Display properties"});
    toasts_->Show(L"i", InLanguage(picked->name), detail);
    NeedFrames(1);
}

void CityHost::CarryOut(const GuiMessage& message)
{
    const Command* command = FindCommand(message.code);
    const CString result = command && command->act ? (actions_.*command->act)(message) : CString();
    CString code;
    code.Format(L"%u", message.code);
    CString detail;
    detail.Format(Say({L"消息 %u，代码 %u", L"message %u, code %u"}), GUI_HOST_MESSAGE, message.code);
    if (!result.IsEmpty())
    {
        detail += Say({L"　", L"  ·  "}) + result;
    }
    toasts_->Show(code, command ? Say(command->name) : Say({L"未知代码", L"Unknown code"}), detail);
    NeedFrames(1);
}

} // namespace host
