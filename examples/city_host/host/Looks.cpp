// SPDX-License-Identifier: MIT
// What the interface looks like, changed while it runs: its language, its skin, and the skin's files.
#include "CityHost.h"

#include "Frame.h"
#include "Language.h"

#include <exception>

namespace host
{
void CityHost::ScaleFor(UINT density)
{
    // Whole steps only: a pixel of the interface is a square of the view's, and nothing blurs.
    scale_->Set(options_.scale > 0 ? options_.scale : static_cast<int>(density / PlainDensity));
}

void CityHost::OnDensity(UINT density)
{
    ScaleFor(density);
    // The interface lays itself out when it hears of a size, also of the one that it has.
    const CSize size = window_.ViewSize();
    viewer_->getEventQueue()->windowResize(0, 0, size.cx, size.cy);
    NeedFrames(2);
}

void CityHost::AfterRestart()
{
    publishing_.CloseDialog();
    menuActions_.CloseDialog();
    properties_->Refresh();
    laidOutFor_ = CSize();
    NeedFrames(3);
}

void CityHost::SwitchLanguage(const CString& language)
{
    gui_->RestartIn(language);
    AfterRestart();
}

CString CityHost::SwitchSkin()
{
    const CString former = skin_->Folder();
    const CString next = skin_->NextFolder();
    if (next == former)
    {
        return Say({L"没有其他皮肤", L"there is no other one"});
    }
    const auto use = [this](const CString& folder) { gui_->Restart([&] { skin_ = std::make_unique<LiveSkin>(folder); }); };
    try
    {
        use(next);
    }
    catch (const std::exception&)
    {
        // The interface's log says what is wrong with it.
        use(former);
        AfterRestart();
        return Say({L"无法读取下一个皮肤", L"the next one cannot be read"});
    }
    AfterRestart();
    return skin_->Name();
}

void CityHost::FollowSkin(TimePoint now)
{
    if (!gui_)
    {
        return;
    }
    LiveSkin::Change change = skin_->Look(now);
    if (change.NeedsStart())
    {
        try
        {
            gui_->Restart(nullptr);
        }
        catch (const std::exception&)
        {
            skin_->TakeBack(change);
            gui_->Restart(nullptr);
        }
        AfterRestart();
    }
    else if (!change.taken.empty())
    {
        RebuildInterface();
    }
    skin_->LogBroken(change);
    for (const CString& file : change.taken)
    {
        toasts_->Show(L"✓", Say({L"皮肤文件已更新", L"Skin file taken"}), file);
    }
    for (const CString& file : change.broken)
    {
        toasts_->Show(L"!", Say({L"皮肤文件无法读取，保留原样", L"Skin file unreadable, the former one stays"}), file);
    }
    if (!change.IsEmpty())
    {
        NeedFrames(1);
    }
}

void CityHost::RebuildInterface()
{
    gui_->Rebuild();
    Frame().RefreshPropertyDlg();
    NeedFrames(2);
}

} // namespace host
