// SPDX-License-Identifier: MIT
#include "PopupMenus.h"

#include "../resources/resource.h"
#include "../widgets/FailureLog.h"
#include "../widgets/Module.h"

#include <MFCCommon/DynMenuCreater.h>
#include <NxConfig/ParamConfig.h>
#include <NxConfig/SystemUtility.h>
#include <KernelCommonUse/StringConvert.h>

#include <afxwin.h>

#include <memory>
#include <type_traits>

namespace
{
void Track(HMENU menu, POINT place)
{
    const CWinThread* thread = AfxGetThread();
    const CWnd* owner = thread ? const_cast<CWinThread*>(thread)->GetMainWnd() : nullptr;
    if (menu && owner)
    {
        TrackPopupMenu(menu, 0, place.x, place.y, 0, owner->GetSafeHwnd(), nullptr);
    }
}

struct DestroyMenuHandle
{
    using pointer = HMENU;
    void operator()(HMENU menu) const { DestroyMenu(menu); }
};
using Menu = std::unique_ptr<std::remove_pointer_t<HMENU>, DestroyMenuHandle>;
} // namespace

void ShowSceneMenu(POINT place)
{
    CString file = _a2w(CParamConfig::getInstance()->getStringParam("QMV发布右键菜单"));
    if (file.IsEmpty())
    {
        file = SystemUtility::GetSysMidPath(nullptr, nullptr) + L"RButtonMenu.xml";
    }
    CDynMenuCreater creater;
    if (creater.Load(file))
    {
        Track(GetSubMenu(creater.GetMenu(), 0), place);
    }
}

void ShowButtonMenu(POINT place)
{
    const Menu menu(LoadMenuW(ModuleInstance(), MAKEINTRESOURCEW(IDR_BUTTON_MENU)));
    if (!menu)
    {
        LogFailure("menu not loaded", "5003");
        return;
    }
    Track(GetSubMenu(menu.get(), 0), place);
}
