// SPDX-License-Identifier: MIT
#pragma once

#include <NxOsgCeGui/Export.h>
#include <afxwin.h>

/// A control button: an entry of the left list that makes the host act when it is chosen. Plain value; the host owns the
/// meaning of its fields.
struct NXOSGCEGUI_API BTN_UNIT
{
    BTN_UNIT();
    BTN_UNIT(const BTN_UNIT&);
    BTN_UNIT& operator=(const BTN_UNIT&);
    ~BTN_UNIT();

    CString name;     ///< the record's key together with `kind`; stem of the entry's window name
    CString text;     ///< host-defined text
    CString target;   ///< what the entry stands for, drawn as its caption; an entry without it cannot be chosen by a click
    int kind;         ///< 1: a video, window name `name` + "_V"; any other value (0 in practice): "_P"
    COLORREF color;   ///< 0x00BBGGRR, white by default; carried for the host
    float value;      ///< host-defined number, -1 by default; a sideways drag stores the button's x here, in view pixels
    CString lastText; ///< host-defined text; the left list takes it as the full path of the entry's picture
};
