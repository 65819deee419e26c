// SPDX-License-Identifier: MIT
#pragma once

class CeGuiMainFrame;

/// Calls every exported operation of the frame, beginning without records, with the panel closed, the list switched on and no
/// full scene. The last one is `ClearAllWindows`.
void CallEveryOperation(CeGuiMainFrame& frame);
