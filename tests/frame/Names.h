// SPDX-License-Identifier: MIT
// Names of the frame's bars: of the window, and as the frame itself knows them.
#pragma once

inline constexpr const char* List = "TavLeftCtrlFrame";
inline constexpr const wchar_t* ListKey = L"TavLeftCtrlFrame";
inline constexpr const char* ToolBar = "TavBotCtrlFrame";
