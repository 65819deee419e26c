// SPDX-License-Identifier: MIT
#pragma once

class CeGuiMainFrame;

/// Calls every exported operation of the frame, which has to begin with the panel closed, the list switched on and no full scene.
/// Its records are gone afterwards. The last operation is `ClearAllWindows`.
void CallEveryOperation(CeGuiMainFrame& frame);
