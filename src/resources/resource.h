// SPDX-License-Identifier: MIT
// Ids of the library's resources. Hosts know the commands by their numbers.
#pragma once

#define IDD_TITLE_EDIT 602
#define IDD_TITLE_EDIT_ZH 5011
#define IDR_BUTTON_MENU 5003

#define ID_BUTTON_PROPERTIES 40098
#define ID_BUTTON_DELETE 40100
#define ID_BUTTON_ADD 40101

#define IDC_TITLE_COLOR 4052
#define IDC_TITLE_TEXT 4089
#define IDC_TITLE_FONT 5014
#define IDC_TITLE_HEIGHT 5015
#define IDC_TITLE_SHADOW 5016
#define IDC_LABEL_TEXT 9000
#define IDC_LABEL_FONT 9001
#define IDC_LABEL_HEIGHT 9002
#define IDC_LABEL_COLOR 9003
