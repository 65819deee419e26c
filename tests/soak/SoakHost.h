// SPDX-License-Identifier: MIT
#pragma once

#include "support/GuiDriver.h"

#include <map>
#include <string>
#include <vector>

/// A host that does what its interface asks for: it has views that are added, renamed and deleted by the menus, properties to
/// show, languages and skins, and starts the interface again when it was closed.
class SoakHost
{
public:
    SoakHost();
    ~SoakHost();
    SoakHost(const SoakHost&) = delete;
    SoakHost& operator=(const SoakHost&) = delete;

    GuiHost& Host() { return host_; }
    GuiDriver& User() { return user_; }
    CeGuiMainFrame& Frame() { return host_.Frame(); }

    /// Carries out what has been received. @return the codes, menu commands as -id
    std::vector<int> CarryOut();
    void AddView();
    void DeleteView(int index);
    void ShowRows(int count);
    void Restart();
    /// Takes effect with the next start.
    void SpeakEnglish(bool english);
    void TakeLightSkin(bool light);
    void Rebuild();
    /// The frame of the full user as it was at the very start, at 800 x 600, and no dialog; restarted only when it has to be.
    void GoToBase();
    HWND Dialog() const;

    /// How often each code and command has come.
    const std::map<int, int>& Received() const { return received_; }

private:
    static void CALLBACK OnTick(HWND, UINT, UINT_PTR, DWORD);
    void CarryOutCommand(UINT id);
    void UseViews(int count);

    GuiHost host_;
    GuiDriver user_;
    UINT_PTR timer_ = 0;
    int viewsMade_ = 0;
    bool english_ = false;
    bool light_ = false;
    bool dirty_ = false; ///< language or skin differ from what the interface was started with
    std::vector<UINT> commands_;
    std::map<int, int> received_;
};
