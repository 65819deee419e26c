// SPDX-License-Identifier: MIT
#pragma once

/// Window names of the frame. Skins and hosts look them up by these exact strings, misspellings included.
namespace FrameNames
{
constexpr const char* RootSheet = "rootSheet";
constexpr const wchar_t* TitleBar = L"TavTitleBackground";
constexpr const wchar_t* CloseButton = L"TavTilteCloseButtom";
constexpr const wchar_t* MinimiseButton = L"TavTilteMinboxButtom";
constexpr const wchar_t* EnterFullSceneButton = L"TavTilteMaxboxButtom";
constexpr const wchar_t* LeaveFullSceneButton = L"TavFullTilteEscBtn";
constexpr const wchar_t* Logo = L"TavTilteLogo";
constexpr const wchar_t* TitleText = L"TavTilteText";
constexpr const wchar_t* LeftBorder = L"TavLeftBorderBackground";
constexpr const wchar_t* RightBorder = L"TavRightBorderBackground";
constexpr const wchar_t* BottomBorder = L"TavBottomBorderBackground";
constexpr const wchar_t* PictureTitle = L"TavTitleImgAndName";
constexpr const wchar_t* ToolBar = L"TavBotCtrlFrame";
constexpr const wchar_t* ToolButton = L"TavToolButtom_%d"; ///< counted from 1
constexpr int ListTool = 1;
constexpr int PropertyTool = 4;
constexpr const wchar_t* LeftList = L"TavLeftCtrlFrame";
constexpr const char* SkinImageset = "TavLook";
constexpr const char* SkinImagesetFile = "TavLook.imageset"; ///< in the skin directory
/// Why there is no frame without it; told in the log by whoever failed to load it.
constexpr const char* NoSkinImageset = "imageset not loaded";
} // namespace FrameNames
