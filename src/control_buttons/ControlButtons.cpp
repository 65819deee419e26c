// SPDX-License-Identifier: MIT
// The host's control-button records, and which of them is the current one.
#include <NxOsgCeGui/CeGuiMainFrame.h>

#include <algorithm>

void CeGuiMainFrame::SetCtrlBtnInfo(const std::vector<BTN_UNIT>& records)
{
    controlButtons_ = records;
}

std::vector<BTN_UNIT>& CeGuiMainFrame::GetCtrlBtnInfo()
{
    return controlButtons_;
}

BTN_UNIT* CeGuiMainFrame::GetBtnProperty(int index)
{
    return index >= 0 && index < ControlButtonCount() ? &controlButtons_[static_cast<std::size_t>(index)] : nullptr;
}

BTN_UNIT* CeGuiMainFrame::GetBtnProperty(const CString& name, int kind)
{
    int index = 0;
    return GetBtnProperty(name, kind, index);
}

BTN_UNIT* CeGuiMainFrame::GetBtnProperty(const CString& name, int kind, int& index)
{
    const auto found = std::find_if(controlButtons_.begin(), controlButtons_.end(),
                                    [&](const BTN_UNIT& record) { return record.kind == kind && record.name == name; });
    if (found == controlButtons_.end())
    {
        return nullptr;
    }
    index = static_cast<int>(found - controlButtons_.begin());
    return &*found;
}

bool CeGuiMainFrame::SetEditBtnProperty(const CString& name, const BTN_UNIT& unit)
{
    const auto found =
        std::find_if(controlButtons_.begin(), controlButtons_.end(), [&](const BTN_UNIT& record) { return record.name == name; });
    if (found != controlButtons_.end())
    {
        *found = unit;
    }
    // False also after a change, on purpose: hosts do not read it.
    return false;
}

bool CeGuiMainFrame::SetEditBtnMoveState(const CString&, bool)
{
    return true;
}

int CeGuiMainFrame::ControlButtonCount() const
{
    return static_cast<int>(controlButtons_.size());
}

int CeGuiMainFrame::GetBtnIndex()
{
    return currentButton_;
}

void CeGuiMainFrame::SetBtnIndex(int index)
{
    const int chosen = std::min(std::max(index, 0), ControlButtonCount() - 1);
    if (chosen != currentButton_)
    {
        ChangeLeftBtnState(currentButton_, chosen, false);
        currentButton_ = chosen;
    }
}

bool CeGuiMainFrame::AddBtnIndex()
{
    if (controlButtons_.empty() || currentButton_ >= ControlButtonCount() - 1)
    {
        return false;
    }
    StepBtnIndex(+1);
    return true;
}

bool CeGuiMainFrame::SubBtnIndex()
{
    if (controlButtons_.empty())
    {
        return false;
    }
    if (currentButton_ == -1)
    {
        // From no current button the step back leads to the first one.
        currentButton_ = 1;
    }
    if (currentButton_ < 1)
    {
        return false;
    }
    StepBtnIndex(-1);
    return true;
}

void CeGuiMainFrame::StepBtnIndex(int step)
{
    ChangeLeftBtnState(currentButton_, currentButton_ + step, true);
    currentButton_ += step;
    NotifyHost(GUI_CMD_CONTROL_BUTTON, reinterpret_cast<LPARAM>(GetBtnProperty(currentButton_)));
}
