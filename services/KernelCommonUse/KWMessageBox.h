// SPDX-License-Identifier: MIT
#pragma once

#include "../NxServicesExport.h"

#include <afxwin.h>

// The style of KWMessageBox for an information with an OK button; any other style is shown in the same way.
constexpr UINT KW_INFORMATION = 2;

// Shows a text under the application's name until the user has read it. It comes up over the owner, or what was last active of
// its popups, and neither takes input meanwhile. Without an owner it stands alone.
NX_SERVICES_EXPORT void KWMessageBox(const CString& text, UINT style, CWnd* owner);

// The executable's name without directory and extension.
NX_SERVICES_EXPORT CString getEXETitle();
