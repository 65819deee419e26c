// SPDX-License-Identifier: MIT
#include "ColorSelButton.h"

COLORREF CColorSelBtnT::GetColor() const
{
    return color_;
}

void CColorSelBtnT::SetColor(COLORREF color)
{
    color_ = color;
    if (m_hWnd)
    {
        Invalidate();
    }
}

void CColorSelBtnT::Disable()
{
    EnableWindow(FALSE);
}

void CColorSelBtnT::Enable()
{
    EnableWindow(TRUE);
}

void CColorSelBtnT::DrawItem(LPDRAWITEMSTRUCT item)
{
    const HBRUSH brush = CreateSolidBrush(color_);
    FillRect(item->hDC, &item->rcItem, brush);
    DeleteObject(brush);
}
