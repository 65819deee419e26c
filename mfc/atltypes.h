// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

class CSize : public tagSIZE
{
public:
    CSize() noexcept : CSize(0, 0) {}
    CSize(int width, int height) noexcept
    {
        cx = width;
        cy = height;
    }
    CSize(SIZE size) noexcept : CSize(size.cx, size.cy) {}
    CSize operator+(SIZE size) const noexcept { return {cx + size.cx, cy + size.cy}; }
    CSize operator-(SIZE size) const noexcept { return {cx - size.cx, cy - size.cy}; }
    BOOL operator==(SIZE size) const noexcept { return cx == size.cx && cy == size.cy; }
    BOOL operator!=(SIZE size) const noexcept { return !(*this == size); }
};

class CPoint : public tagPOINT
{
public:
    CPoint() noexcept : CPoint(0, 0) {}
    CPoint(int left, int top) noexcept
    {
        x = left;
        y = top;
    }
    CPoint(POINT point) noexcept : CPoint(point.x, point.y) {}
    // The two words of a mouse message, which are signed: a point left of or above the window is negative.
    explicit CPoint(LPARAM words) noexcept : CPoint(static_cast<short>(LOWORD(words)), static_cast<short>(HIWORD(words))) {}
    void SetPoint(int left, int top) noexcept { *this = CPoint(left, top); }
    void Offset(int dx, int dy) noexcept { SetPoint(x + dx, y + dy); }
    CPoint operator+(SIZE size) const noexcept { return {x + size.cx, y + size.cy}; }
    CPoint operator-(SIZE size) const noexcept { return {x - size.cx, y - size.cy}; }
    CPoint operator+(POINT point) const noexcept { return {x + point.x, y + point.y}; }
    CSize operator-(POINT point) const noexcept { return {x - point.x, y - point.y}; }
    BOOL operator==(POINT point) const noexcept { return x == point.x && y == point.y; }
    BOOL operator!=(POINT point) const noexcept { return !(*this == point); }
};

// Right and bottom edges are outside, as in every Win32 rectangle.
class CRect : public tagRECT
{
public:
    CRect() noexcept : CRect(0, 0, 0, 0) {}
    CRect(int leftEdge, int topEdge, int rightEdge, int bottomEdge) noexcept
    {
        left = leftEdge;
        top = topEdge;
        right = rightEdge;
        bottom = bottomEdge;
    }
    CRect(const RECT& rect) noexcept : CRect(rect.left, rect.top, rect.right, rect.bottom) {}
    explicit CRect(const RECT* rect) noexcept : CRect(*rect) {}
    CRect(POINT point, SIZE size) noexcept : CRect(point.x, point.y, point.x + size.cx, point.y + size.cy) {}
    CRect(POINT topLeft, POINT bottomRight) noexcept : CRect(topLeft.x, topLeft.y, bottomRight.x, bottomRight.y) {}
    operator LPRECT() noexcept { return this; }
    operator LPCRECT() const noexcept { return this; }

    int Width() const noexcept { return right - left; }
    int Height() const noexcept { return bottom - top; }
    CSize Size() const noexcept { return {Width(), Height()}; }
    CPoint TopLeft() const noexcept { return {left, top}; }
    CPoint BottomRight() const noexcept { return {right, bottom}; }
    CPoint CenterPoint() const noexcept { return {(left + right) / 2, (top + bottom) / 2}; }
    BOOL IsRectEmpty() const noexcept { return left >= right || top >= bottom; }
    BOOL IsRectNull() const noexcept { return left == 0 && top == 0 && right == 0 && bottom == 0; }
    BOOL PtInRect(POINT point) const noexcept { return point.x >= left && point.x < right && point.y >= top && point.y < bottom; }
    void SetRect(int l, int t, int r, int b) noexcept { *this = CRect(l, t, r, b); }
    void SetRectEmpty() noexcept { *this = CRect(); }
    void OffsetRect(int dx, int dy) noexcept { SetRect(left + dx, top + dy, right + dx, bottom + dy); }
    void OffsetRect(POINT point) noexcept { OffsetRect(point.x, point.y); }
    void OffsetRect(SIZE size) noexcept { OffsetRect(size.cx, size.cy); }
    void InflateRect(int dx, int dy) noexcept { SetRect(left - dx, top - dy, right + dx, bottom + dy); }
    void DeflateRect(int dx, int dy) noexcept { InflateRect(-dx, -dy); }
    void NormalizeRect() noexcept
    {
        SetRect(left < right ? left : right, top < bottom ? top : bottom, left < right ? right : left,
                top < bottom ? bottom : top);
    }
    BOOL operator==(const RECT& rect) const noexcept
    {
        return left == rect.left && top == rect.top && right == rect.right && bottom == rect.bottom;
    }
    BOOL operator!=(const RECT& rect) const noexcept { return !(*this == rect); }
};
