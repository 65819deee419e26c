// SPDX-License-Identifier: MIT
// The one instance, its state and what is read and written of it.
#include <NxOsgCeGui/CeGuiMainFrame.h>

#include "../panels/FontNames.h"
#include "../widgets/CeGuiToolBar.h"
#include "../widgets/InputState.h"

namespace
{
const wchar_t* const WantedTitleFont = L"Segoe UI Semibold";
const wchar_t* const FallbackTitleFont = L"YouYuan";
} // namespace

CeGuiMainFrame* CeGuiMainFrame::GetInstance()
{
    static CeGuiMainFrame instance;
    return &instance;
}

CeGuiMainFrame::CeGuiMainFrame() : preferredFontFace_(WantedTitleFont)
{
    InputState::Get();
    if (!IsFontInstalled(preferredFontFace_))
    {
        preferredFontFace_ = FallbackTitleFont;
    }
    ClearTitleSet();
}

CeGuiMainFrame::~CeGuiMainFrame() = default;

void CeGuiMainFrame::SetSceneTitle(const CString& title)
{
    sceneTitle_ = title;
}

CString CeGuiMainFrame::GetSceneTitle()
{
    return sceneTitle_;
}

void CeGuiMainFrame::SetSceneTitleColor(COLORREF color)
{
    sceneTitleColor_ = color;
}

COLORREF CeGuiMainFrame::GetSceneTitleColor() const
{
    return sceneTitleColor_;
}

void CeGuiMainFrame::SetSceneTitleFontStyle(const CString& face)
{
    sceneTitleFontStyle_ = face;
}

CString CeGuiMainFrame::GetSceneTitleFontStyle() const
{
    return sceneTitleFontStyle_;
}

void CeGuiMainFrame::SetSceneTitleFontHeight(const float& height)
{
    sceneTitleFontHeight_ = height;
}

float CeGuiMainFrame::GetSceneTitleFontHeight() const
{
    return sceneTitleFontHeight_;
}

void CeGuiMainFrame::SetStartPageTitle(const CString& title)
{
    startPageTitle_ = title;
}

CString CeGuiMainFrame::GetStartPageTitle() const
{
    return startPageTitle_;
}

void CeGuiMainFrame::SetStartPageTitleColor(COLORREF color)
{
    startPageTitleColor_ = color;
}

COLORREF CeGuiMainFrame::GetStartPageTitleColor() const
{
    return startPageTitleColor_;
}

bool CeGuiMainFrame::RefreshButton(GUIBTNTYPE)
{
    return true;
}

bool CeGuiMainFrame::IsInit() const
{
    return initialised_;
}

bool CeGuiMainFrame::IsDisplySystemMouse() const
{
    return displaySystemMouse_;
}

void CeGuiMainFrame::SetDisplySystemMouse(bool display)
{
    displaySystemMouse_ = display;
}

GUIUserType CeGuiMainFrame::GetUser()
{
    return userType_;
}

void CeGuiMainFrame::UpdateEvent() {}

void CeGuiMainFrame::SetWindowSize(UINT width, UINT height)
{
    windowWidth_ = width;
    windowHeight_ = height;
}

void CeGuiMainFrame::GetWindowSize(UINT& width, UINT& height)
{
    width = windowWidth_;
    height = windowHeight_;
}

CPoint CeGuiMainFrame::GetMousePoint()
{
    return InputState::Get().mousePoint;
}

void CeGuiMainFrame::EnablePopupMenu(bool enable)
{
    InputState::Get().contextMenuAllowed = enable;
}

CPoint CeGuiMainFrame::GetAddBtnMousePoint()
{
    return addButtonMousePoint_;
}

void CeGuiMainFrame::SetAddBtnMousePoint(CPoint point)
{
    addButtonMousePoint_ = point;
}

bool CeGuiMainFrame::IsOpenPropertyDlg()
{
    return propertyDlgOpen_;
}

bool CeGuiMainFrame::IsShowLeftToolBar()
{
    return showLeftToolBar_;
}

bool CeGuiMainFrame::IsFullScene()
{
    return fullScene_;
}

STAPAGE& CeGuiMainFrame::GetStaPageParameter()
{
    return startPage_;
}

void CeGuiMainFrame::SetStaPageParameter(STAPAGE& parameter)
{
    startPage_ = parameter;
}

void CeGuiMainFrame::setPropertyData(PropertyRows& rows)
{
    propertyData_ = std::make_shared<const PropertyRows>(rows);
}

void CeGuiMainFrame::getPropertyData(PropertyRows& rows)
{
    rows = *propertyData_;
}

int CeGuiMainFrame::PropertyRowCount() const
{
    return static_cast<int>(propertyData_->size());
}

CString CeGuiMainFrame::PropertyRowName(int row) const
{
    return row >= 0 && row < PropertyRowCount() ? (*propertyData_)[static_cast<std::size_t>(row)].first : CString();
}

void CeGuiMainFrame::setTargetData(PropertyRows& rows)
{
    targetData_ = rows;
}

CeGuiMainFrame::PropertyRows& CeGuiMainFrame::getTargetData()
{
    return targetData_;
}
