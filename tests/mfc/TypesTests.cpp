// SPDX-License-Identifier: MIT
#include "../support/GTest.h"

#include <afxwin.h>

TEST(Types, PointsAndSizes)
{
    CPoint point(3, 4);
    EXPECT_TRUE(CPoint() == CPoint(0, 0));
    EXPECT_TRUE(point + CSize(1, 2) == CPoint(4, 6));
    EXPECT_TRUE(point - CSize(1, 2) == CPoint(2, 2));
    EXPECT_TRUE(point - CPoint(1, 1) == CSize(2, 3));
    EXPECT_TRUE(point + CPoint(1, 1) == CPoint(4, 5));
    point.Offset(-3, -5);
    EXPECT_TRUE(point == CPoint(0, -1));
    EXPECT_TRUE(point != CPoint(0, 0));
    EXPECT_TRUE(CPoint(static_cast<LPARAM>(MAKELPARAM(-5, 7))) == CPoint(-5, 7));
    EXPECT_TRUE(CSize(1, 2) + CSize(3, 4) == CSize(4, 6));
    EXPECT_TRUE(CSize(3, 4) - CSize(1, 2) == CSize(2, 2));
}

TEST(Types, RectanglesEndBeforeTheirRightAndBottom)
{
    const CRect rect(10, 20, 30, 60);
    EXPECT_EQ(rect.Width(), 20);
    EXPECT_EQ(rect.Height(), 40);
    EXPECT_TRUE(rect.CenterPoint() == CPoint(20, 40));
    struct Row
    {
        POINT point;
        bool inside;
    };
    const Row rows[] = {{{10, 20}, true},  {{29, 59}, true}, {{30, 40}, false},
                        {{20, 60}, false}, {{9, 40}, false}, {{20, 19}, false}};
    for (const Row& row : rows)
    {
        EXPECT_EQ(rect.PtInRect(row.point) != FALSE, row.inside) << row.point.x << ", " << row.point.y;
    }
    EXPECT_TRUE(CRect().IsRectNull());
    EXPECT_TRUE(CRect(5, 5, 5, 9).IsRectEmpty());
    EXPECT_FALSE(rect.IsRectEmpty());
}

TEST(Types, RectanglesMoveGrowAndTurn)
{
    CRect rect(CPoint(1, 2), CSize(10, 20));
    EXPECT_TRUE(rect == CRect(1, 2, 11, 22));
    rect.OffsetRect(CPoint(1, 1));
    EXPECT_TRUE(rect == CRect(2, 3, 12, 23));
    rect.InflateRect(2, 3);
    EXPECT_TRUE(rect == CRect(0, 0, 14, 26));
    rect.DeflateRect(1, 1);
    EXPECT_TRUE(rect == CRect(1, 1, 13, 25));
    rect.SetRect(9, 8, 1, 2);
    rect.NormalizeRect();
    EXPECT_TRUE(rect == CRect(1, 2, 9, 8));
    RECT filled = {};
    CopyRect(&filled, rect);
    EXPECT_TRUE(rect == filled);
    SetRectEmpty(rect);
    EXPECT_TRUE(rect.IsRectNull());
}
