// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

/// An owner-drawn button that is one colour all over.
class CColorSelBtnT : public CButton
{
public:
    COLORREF GetColor() const;
    void SetColor(COLORREF color);
    void Disable();
    void Enable();
    void DrawItem(LPDRAWITEMSTRUCT item) override;

private:
    COLORREF color_ = 0;
};
