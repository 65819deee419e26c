// SPDX-License-Identifier: MIT
#pragma once

#include "nxmfc_export.h"

#include <windows.h>

#include "atlstr.h"
#include "atltypes.h"

class NX_MFC_EXPORT CObject
{
public:
    virtual ~CObject();
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;

protected:
    CObject() = default;
};
