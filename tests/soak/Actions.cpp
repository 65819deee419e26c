// SPDX-License-Identifier: MIT
#include "Actions.h"

#include <iterator>
#include <numeric>
#include <stdexcept>

using driver::Button;

namespace
{
using Text = std::string;

const UINT keys[] = {VK_ESCAPE, VK_SPACE, VK_UP,     VK_DOWN, VK_LEFT, VK_RIGHT,  VK_PRIOR, VK_NEXT,
                     VK_HOME,   VK_END,   VK_RETURN, VK_TAB,  VK_BACK, VK_DELETE, VK_F1,    VK_F5,
                     VK_F12,    'A',      'Z',       '0',     '9',     VK_ADD,    VK_SHIFT, VK_CONTROL};

/// Windows that are there for certain, in one state of the frame or another.
const char* const windows[] = {"TavTilteLogo",
                               "TavTilteText",
                               "TavTilteCloseButtom",
                               "TavTilteMinboxButtom",
                               "TavTilteMaxboxButtom",
                               "TavFullTilteEscBtn",
                               "TavToolButtom_1",
                               "TavToolButtom_2",
                               "TavToolButtom_3",
                               "TavToolButtom_4",
                               "TavToolButtom_5",
                               "TavToolButtom_6",
                               "TavLeftCtrlFrame",
                               "TavBotCtrlFrame",
                               "base 0_P",
                               "base 1_P",
                               "base 2_P",
                               "base 5_P",
                               "view 0_V",
                               "view 1_P"};

CPoint AnyPoint(SoakHost& soak, Dice& dice)
{
    const CSize view = soak.User().ViewSize();
    return CPoint(dice.Below(view.cx), dice.Below(view.cy));
}

/// Where bars wait for the mouse, as often as elsewhere.
CPoint SomePoint(SoakHost& soak, Dice& dice)
{
    const CSize view = soak.User().ViewSize();
    switch (dice.Below(5))
    {
    case 0:
        return CPoint(dice.Below(view.cx), view.cy - 1 - dice.Below(60));
    case 1:
        return CPoint(dice.Below(140), dice.Below(view.cy));
    case 2:
        return CPoint(dice.Below(view.cx), dice.Below(50));
    case 3:
        return CPoint(view.cx - 1 - dice.Below(250), dice.Below(view.cy));
    default:
        return AnyPoint(soak, dice);
    }
}

Text At(CPoint point)
{
    return " " + std::to_string(point.x) + "," + std::to_string(point.y);
}

Text Move(SoakHost& soak, Dice& dice)
{
    const CPoint point = SomePoint(soak, dice);
    soak.User().MoveTo(point);
    return At(point);
}

Text MoveOut(SoakHost& soak, Dice&)
{
    soak.User().MoveTo(CPoint(-1, -1));
    return "";
}

Text ClickPoint(SoakHost& soak, Dice& dice)
{
    const CPoint point = SomePoint(soak, dice);
    soak.User().Click(point);
    return At(point);
}

/// Slides the bars in first where it has to.
bool Reach(SoakHost& soak, const char* window)
{
    const CSize view = soak.User().ViewSize();
    for (const CPoint& edge : {CPoint(view.cx / 2, view.cy - 30), CPoint(60, view.cy / 2), CPoint(view.cx / 2, 20)})
    {
        if (!soak.User().Sees(window))
        {
            soak.User().MoveTo(CPoint(view.cx / 2, view.cy / 2));
            soak.User().MoveTo(edge);
        }
    }
    return soak.User().Sees(window);
}

Text ClickWindow(SoakHost& soak, Dice& dice)
{
    const char* const window = windows[dice.Below(static_cast<int>(std::size(windows)))];
    if (!Reach(soak, window))
    {
        return Text(" not there: ") + window;
    }
    soak.User().Click(window);
    return Text(" ") + window;
}

Text PressAndLeave(SoakHost& soak, Dice& dice)
{
    const char* const window = windows[dice.Below(static_cast<int>(std::size(windows)))];
    if (!Reach(soak, window))
    {
        return Text(" not there: ") + window;
    }
    soak.User().MoveTo(window);
    const CPoint elsewhere = SomePoint(soak, dice);
    soak.User().Press(soak.User().Mouse());
    soak.User().MoveTo(elsewhere);
    soak.User().Release(elsewhere);
    return Text(" ") + window + At(elsewhere);
}

Text DoubleClickPoint(SoakHost& soak, Dice& dice)
{
    const CPoint point = SomePoint(soak, dice);
    soak.User().DoubleClick(point);
    return At(point);
}

Text DragAbout(SoakHost& soak, Dice& dice)
{
    const CPoint from = SomePoint(soak, dice);
    const CPoint to = SomePoint(soak, dice);
    soak.User().Drag(from, to);
    return At(from) + At(to);
}

Text Turn(SoakHost& soak, Dice& dice)
{
    const CPoint point = SomePoint(soak, dice);
    const int notches = dice.Between(-6, 6);
    soak.User().Wheel(point, notches);
    return At(point) + " by " + std::to_string(notches);
}

Text PressKey(SoakHost& soak, Dice& dice)
{
    const UINT key = keys[dice.Below(static_cast<int>(std::size(keys)))];
    soak.User().Key(key);
    return " " + std::to_string(key);
}

Text Resize(SoakHost& soak, Dice& dice)
{
    const CSize size = dice.OneIn(8) ? CSize(dice.Between(1, 240), dice.Between(1, 200))
                                     : CSize(dice.Between(320, 1100), dice.Between(240, 800));
    soak.Host().Resize(size.cx, size.cy);
    return At(CPoint(size.cx, size.cy));
}

Text FullScene(SoakHost& soak, Dice&)
{
    soak.Frame().OnToolBarFullScene(!soak.Frame().IsFullScene());
    return soak.Frame().IsFullScene() ? " on" : " off";
}

Text Panel(SoakHost& soak, Dice& dice)
{
    const int rows = dice.OneIn(6) ? dice.Between(0, 500) : dice.Between(0, 40);
    soak.ShowRows(rows);
    if (!soak.Frame().IsOpenPropertyDlg() && Reach(soak, "TavToolButtom_4"))
    {
        soak.User().Click("TavToolButtom_4");
    }
    return " of " + std::to_string(rows);
}

Text RightClick(SoakHost& soak, Dice& dice)
{
    CPoint point = AnyPoint(soak, dice);
    if (dice.OneIn(2) && Reach(soak, "base 1_P"))
    {
        const RECT place = GuiHost::RectOf("base 1_P");
        point = CPoint((place.left + place.right) / 2, (place.top + place.bottom) / 2);
    }
    const int downs = dice.Between(1, 3);
    const UINT end = dice.OneIn(3) ? VK_ESCAPE : VK_RETURN;
    try
    {
        soak.User().RightClickMenu(point, downs, end);
    }
    catch (const std::runtime_error& none)
    {
        return At(point) + " " + none.what();
    }
    return At(point) + " down " + std::to_string(downs) + (end == VK_RETURN ? " chosen" : " left");
}

Text Dialog(SoakHost& soak, Dice& dice)
{
    if (!soak.Dialog() && Reach(soak, "TavTilteText"))
    {
        soak.User().DoubleClick("TavTilteText");
    }
    if (!soak.Dialog())
    {
        return " does not open";
    }
    CString text;
    text.Format(L"滨江 %d", dice.Below(1000));
    soak.User().SelectAllInFocus();
    soak.User().Type(text);
    for (int i = dice.Below(4); i > 0; --i)
    {
        soak.User().KeyToFocus(VK_TAB);
        soak.User().KeyToFocus(dice.OneIn(2) ? VK_DOWN : VK_UP);
    }
    if (dice.OneIn(4))
    {
        return " stays open";
    }
    const bool confirmed = dice.OneIn(2);
    soak.User().KeyToFocus(confirmed ? VK_RETURN : VK_ESCAPE);
    return confirmed ? " confirmed" : " left";
}

Text AddView(SoakHost& soak, Dice&)
{
    soak.AddView();
    return " to " + std::to_string(soak.Frame().GetCtrlBtnInfo().size());
}

Text DeleteView(SoakHost& soak, Dice& dice)
{
    const int count = static_cast<int>(soak.Frame().GetCtrlBtnInfo().size());
    soak.DeleteView(dice.Below(count + 1));
    return " of " + std::to_string(count);
}

Text StepViews(SoakHost& soak, Dice& dice)
{
    const bool forward = dice.OneIn(2);
    forward ? soak.Frame().AddBtnIndex() : soak.Frame().SubBtnIndex();
    return " to " + std::to_string(soak.Frame().GetBtnIndex());
}

Text Tooltip(SoakHost& soak, Dice& dice)
{
    const CPoint point = AnyPoint(soak, dice);
    soak.Frame().MakeContextCurrent();
    dice.OneIn(3) ? soak.Frame().DestroyTooltipWindow() : soak.Frame().CreateTooltipWindow(point.x, point.y, L"提示 tooltip");
    return At(point);
}

Text Title(SoakHost& soak, Dice& dice)
{
    CString text;
    text.Format(L"Title %d 标题", dice.Below(100));
    soak.Frame().MakeContextCurrent();
    soak.Frame().ChangeTitleText(text, RGB(dice.Below(256), 200, 90), L"Noto Sans CJK SC",
                                 static_cast<float>(dice.Between(8, 30)));
    return "";
}

Text Slide(SoakHost& soak, Dice&)
{
    soak.Frame().EnableSlideOut(!soak.Frame().IsSlideOutEnabled());
    return soak.Frame().IsSlideOutEnabled() ? " on" : " off";
}

Text LetPass(SoakHost& soak, Dice& dice)
{
    const int ticks = dice.Between(1, 12);
    soak.User().LetPass(static_cast<DWORD>(ticks) * 30);
    return " " + std::to_string(ticks) + " ticks";
}

Text StartPage(SoakHost& soak, Dice&)
{
    soak.Frame().ClearStaPageParameter();
    return "";
}

struct Action
{
    const char* name;
    Text (*act)(SoakHost& soak, Dice& dice);
    int weight;
};

const Action actions[] = {
    {"move", Move, 12},
    {"leave the view", MoveOut, 1},
    {"click", ClickPoint, 10},
    {"click window", ClickWindow, 14},
    {"press and leave", PressAndLeave, 5},
    {"double click", DoubleClickPoint, 4},
    {"drag", DragAbout, 5},
    {"wheel", Turn, 6},
    {"key", PressKey, 8},
    {"resize", Resize, 4},
    {"full scene", FullScene, 3},
    {"panel", Panel, 4},
    {"right click", RightClick, 4},
    {"title dialog", Dialog, 3},
    {"add view", AddView, 5},
    {"delete view", DeleteView, 4},
    {"step views", StepViews, 3},
    {"tooltip", Tooltip, 3},
    {"title", Title, 2},
    {"slide out", Slide, 2},
    {"let pass", LetPass, 3},
    {"start page", StartPage, 1},
};

Text Codes(const std::vector<int>& codes)
{
    Text text;
    for (const int code : codes)
    {
        text += (text.empty() ? " -> " : " ") + std::to_string(code);
    }
    return text;
}
} // namespace

int ActionCount()
{
    return static_cast<int>(std::size(actions));
}

std::string DoSomething(SoakHost& soak, Dice& dice)
{
    const int all = std::accumulate(std::begin(actions), std::end(actions), 0,
                                    [](int sum, const Action& action) { return sum + action.weight; });
    int number = dice.Below(all);
    const Action* chosen = actions;
    while (number >= chosen->weight)
    {
        number -= chosen->weight;
        ++chosen;
    }
    return DoKind(soak, dice, static_cast<int>(chosen - actions));
}

std::string DoKind(SoakHost& soak, Dice& dice, int kind)
{
    const Text particulars = actions[kind].act(soak, dice);
    return actions[kind].name + particulars + Codes(soak.CarryOut());
}

std::string StartAgain(SoakHost& soak, Dice& dice)
{
    const bool english = dice.OneIn(2);
    const bool light = dice.OneIn(2);
    soak.SpeakEnglish(english);
    soak.TakeLightSkin(light);
    soak.Restart();
    return Text("start again") + (english ? " in English" : " in Chinese") + (light ? ", light" : ", dark") +
           Codes(soak.CarryOut());
}
