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

#include <algorithm>
#include <exception>
#include <string>

namespace
{
const wchar_t* const PictureSuffix = L"_P";
const wchar_t* const VideoSuffix = L"_V";
constexpr int VideoKind = 1;
constexpr int SuffixLength = 2;

/// Destroys a window by name, if there is one.
/// @throws CEGUI::Exception what a slot of the host's throws
void DestroyWindowNamed(const CString& name)
{
    if (!CEGUI::WindowManager::getSingletonPtr())
    {
        return;
    }
    if (CEGUI::Window* window = WindowNames::Find(GuiName(name)))
    {
        WindowNames::Destroy(*window);
    }
}

/// Does what an exception ends, with a line in the log.
/// @param what for the log, if it fails
/// @param name by value, since it may be the name of a record that is erased
template <class Work>
void Guarded(const char* what, CString name, const Work& work)
{
    try
    {
        work();
    }
    catch (const CEGUI::Exception& dropped)
    {
        LogFailure(std::string(what) + " (" + NameBytes(dropped.getMessage()) + ")", CString2string(name));
    }
    catch (const std::exception& dropped)
    {
        LogFailure(std::string(what) + " (" + dropped.what() + ")", CString2string(name));
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
    Guarded("control button not deleted", name,
            [&]
            {
                DestroyWindowNamed(name);
                const auto record = std::find_if(controlButtons_.begin(), controlButtons_.end(),
                                                 [&](const BTN_UNIT& candidate) { return candidate.name == name; });
                if (record != controlButtons_.end())
                {
                    controlButtons_.erase(record);
                }
                RefreshButton(GUI_BTN_ALL);
            });
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
        Guarded("control button's window not destroyed", name, [&] { DestroyWindowNamed(name); });
        for (const wchar_t* pattern : {L"TavGuiButtonImgNor%d.bmp", L"TavGuiButtonImgHov%d.bmp", L"TavGuiButtonImgPsh%d.bmp"})
        {
            CString file;
            file.Format(pattern, i);
            Guarded("control button's picture not destroyed", file, [&] { FileImagesets::Destroy(file); });
        }
    }
}
