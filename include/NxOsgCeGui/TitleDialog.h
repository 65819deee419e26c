// SPDX-License-Identifier: MIT
#pragma once

#include <NxOsgCeGui/Export.h>

/// Opens the one dialog for the scene title, as a double click on the title does, or shows it again with what its controls
/// last held. Modeless, owned by the application's main window; it goes with `CeGuiMainFrame::CloseGuiSystem`. A failure is
/// shown to the user.
NXOSGCEGUI_API void OpenTitleEditDialog();

/// Destroys the dialog, if there is one.
NXOSGCEGUI_API void CloseTitleEditDialog();
