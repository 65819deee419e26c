// SPDX-License-Identifier: MIT
#pragma once

#include "nxmfc_export.h"

// GDI+ as CImage uses it: started when first asked for, shut down when the last CImage goes.

// False when GDI+ could not be started.
bool StartGdiplus() noexcept;
void StopGdiplus() noexcept;

void CountImage() noexcept;
void UncountImage() noexcept;

NX_MFC_EXPORT bool IsGdiplusStarted() noexcept;
