// SPDX-License-Identifier: MIT
#include "LongListTest.h"

#include <CEGUI/InputEvent.h>
#include <CEGUI/Renderer.h>
#include <CEGUI/System.h>

#include <algorithm>

void LongListTest::OpenScrolling(int rows)
{
    Open(NumberedRows(rows));
    Refresh(NumberedRows(rows));
}

int LongListTest::LargestTexture()
{
    return static_cast<int>(CEGUI::System::getSingleton().getRenderer()->getMaxTextureSize());
}

int LongListTest::Scrolled()
{
    return ListTop - static_cast<int>(GuiHost::RectOf(ListPicture).top);
}

void LongListTest::Drag(float pixels)
{
    CEGUI::MouseEventArgs args(List().thumb);
    args.position = CEGUI::Vector2f(783, 100);
    List().OnThumbMouseDown(args);
    args.position.d_y += pixels;
    List().OnThumbMouseMove(args);
    List().OnThumbMouseUp(args);
    Host().Frames(1);
    MakeContextCurrent();
}

void LongListTest::ExpectRowsInSight(int count)
{
    const int scrolled = Scrolled();
    const int first = (scrolled + RowHeight - 1) / RowHeight;
    const int last = std::min(count, (scrolled + ListHeight) / RowHeight) - 1;
    const Screenshot shot = Host().Shoot();
    MakeContextCurrent();
    for (const int row : {first, (first + last) / 2, last})
    {
        CString name;
        CString value;
        name.Format(L"name %d", row);
        value.Format(L"value %d", row);
        const PictureFile drawn = DrawnRow(name, value);
        const int top = ListTop + row * RowHeight - scrolled;
        // Positions are fractions, so a row may stand a pixel off.
        int least = 260 * RowHeight;
        for (const int shift : {-1, 0, 1})
        {
            int differing = 0;
            for (int y = 2; y < RowHeight - 2; ++y)
            {
                for (int x = 0; x < 240; ++x)
                {
                    differing += Distance(shot.At(538 + x, top + y + shift), Blend(drawn.Argb(x, y), Background())) > 24;
                }
            }
            least = std::min(least, differing);
        }
        EXPECT_LE(least, 12) << "row " << row << " of " << count << ", scrolled by " << scrolled;
    }
}
