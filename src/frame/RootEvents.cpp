// SPDX-License-Identifier: MIT
#include "RootEvents.h"

#include "../widgets/InputState.h"

#include <NxOsgCeGui/CeGuiMainFrame.h>

#include <CEGUI/InputEvent.h>
#include <CEGUI/Window.h>

#include <osgGA/GUIEventAdapter>

#include <algorithm>
#include <cstring>
#include <iterator>

namespace
{
/// The input bridge passes OSG's key symbols on as CEGUI's scan codes.
struct KeyAction
{
    int key;
    void (*act)(CeGuiMainFrame& frame);
};

template <UINT Command>
void Notify(CeGuiMainFrame& frame)
{
    frame.NotifyHost(Command, 0);
}

/// The number that was injected. CEGUI's enumeration of scan codes does not reach as far as OSG's symbols do, so that reading one
/// of them as such would be undefined.
int KeyOf(const CEGUI::KeyEventArgs& args)
{
    int key = 0;
    static_assert(sizeof(key) == sizeof(args.scancode));
    std::memcpy(&key, &args.scancode, sizeof(key));
    return key;
}

using Keys = osgGA::GUIEventAdapter;
const KeyAction keyActions[] = {
    {Keys::KEY_Escape, Notify<GUI_CMD_KEY_ESCAPE>},
    {Keys::KEY_Space, Notify<GUI_CMD_KEY_SPACE>},
    {Keys::KEY_Up, Notify<GUI_CMD_KEY_UP>},
    {Keys::KEY_Down, Notify<GUI_CMD_KEY_DOWN>},
    {Keys::KEY_Left, Notify<GUI_CMD_KEY_LEFT>},
    {Keys::KEY_Right, Notify<GUI_CMD_KEY_RIGHT>},
    {Keys::KEY_Page_Up, [](CeGuiMainFrame& frame) { frame.SubBtnIndex(); }},
    {Keys::KEY_Page_Down, [](CeGuiMainFrame& frame) { frame.AddBtnIndex(); }},
};
} // namespace

bool OnRootKeyDown(const CEGUI::EventArgs& args)
{
    const int key = KeyOf(static_cast<const CEGUI::KeyEventArgs&>(args));
    const auto action = std::find_if(std::begin(keyActions), std::end(keyActions),
                                     [&](const KeyAction& candidate) { return candidate.key == key; });
    if (action == std::end(keyActions))
    {
        return false;
    }
    action->act(*CeGuiMainFrame::GetInstance());
    return true;
}

bool OnRootMouseMove(const CEGUI::EventArgs&)
{
    CeGuiMainFrame::GetInstance()->OnMouseMove(0, InputState::Get().mousePoint);
    return true;
}
