// SPDX-License-Identifier: MIT
// The windows of control buttons: their names, clicks and removal.
#include "ButtonWindows.h"

#include "../panels/TitleEditDialog.h"
#include "../widgets/CallbackScope.h"
#include "../widgets/FailureLog.h"
#include "../widgets/FileImageset.h"
#include "../widgets/InputState.h"
#include "../widgets/Names.h"
#include "../widgets/WindowNames.h"

#include <NxOsgCeGui/CeGuiMainFrame.h>

#include <CEGUI/Exceptions.h>
#include <CEGUI/Window.h>
#include <CEGUI/WindowManager.h>

namespace
{
const wchar_t* const PictureSuffix = L"_P";
const wchar_t* const VideoSuffix = L"_V";
constexpr int VideoKind = 1;
constexpr int SuffixLength = 2;

/// Destroys a window by name, if there is one.
void DestroyWindowNamed(const CString& name)
{
    if (!CEGUI::WindowManager::getSingletonPtr())
    {
        return;
    }
    try
    {
        if (CEGUI::Window* window = WindowNames::Find(GuiName(name)))
        {
            WindowNames::Destroy(*window);
        }
    }
    catch (const CEGUI::Exception& dropped)
    {
        LogFailure("control button's window not destroyed (" + NameBytes(dropped.getMessage()) + ")", CString2string(name));
    }
}
} // namespace

CString EntryWindowName(const BTN_UNIT& record)
{
    return record.name + (record.kind == VideoKind ? VideoSuffix : PictureSuffix);
}

bool OnControlButtonClicked(const CEGUI::EventArgs& args)
{
    const CEGUI::Window* window = static_cast<const CEGUI::WindowEventArgs&>(args).window;
    if (!window)
    {
        return false;
    }
    if (mouseFlags.pressConsumed)
    {
        mouseFlags.pressConsumed = false;
        if (mouseFlags.buttonEditMode)
        {
            return false;
        }
    }
    if (mouseFlags.leftButton)
    {
        CloseTitleEditDialog();
    }
    const CString name = TextOfName(WindowNames::Of(*window));
    const int kind = name.Right(SuffixLength) == PictureSuffix ? 0 : VideoKind;
    CeGuiMainFrame& frame = *CeGuiMainFrame::GetInstance();
    int index = -1;
    const BTN_UNIT* record = frame.GetBtnProperty(name.Left(name.GetLength() - SuffixLength), kind, index);
    if (!record || record->target.IsEmpty())
    {
        return false;
    }
    frame.SetBtnIndex(index);
    frame.NotifyHost(GUI_CMD_CONTROL_BUTTON, reinterpret_cast<LPARAM>(record));
    return true;
}

void CeGuiMainFrame::DeleteButton(const CString& name)
{
    const CallbackScope scope;
    DestroyWindowNamed(name);
    for (auto record = controlButtons_.begin(); record != controlButtons_.end(); ++record)
    {
        if (record->name == name)
        {
            controlButtons_.erase(record);
            break;
        }
    }
    RefreshButton(GUI_BTN_ALL);
}

void CeGuiMainFrame::ClearAllCtrlBtn()
{
    const CallbackScope scope;
    if (!MakeContextCurrent() || !CEGUI::WindowManager::getSingletonPtr())
    {
        return;
    }
    for (int i = 0; i < ControlButtonCount(); ++i)
    {
        CString name;
        name.Format(L"TavGuiButton_%d", i);
        DestroyWindowNamed(name);
        for (const wchar_t* pattern : {L"TavGuiButtonImgNor%d.bmp", L"TavGuiButtonImgHov%d.bmp", L"TavGuiButtonImgPsh%d.bmp"})
        {
            CString file;
            file.Format(pattern, i);
            FileImagesets::Destroy(file);
        }
    }
}
