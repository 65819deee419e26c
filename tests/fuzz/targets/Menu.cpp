// SPDX-License-Identifier: MIT
#include "fuzz/FuzzTarget.h"

#include <KernelCommonUse/StringConvert.h>
#include <MFCCommon/DynMenuCreater.h>

#include <afxwin.h>

#include <pugixml.hpp>

#include <algorithm>
#include <set>
#include <sstream>

namespace
{
std::string TextOf(HMENU menu, int index)
{
    const UINT position = static_cast<UINT>(index);
    CString text;
    const int length = GetMenuStringW(menu, position, nullptr, 0, MF_BYPOSITION);
    GetMenuStringW(menu, position, text.GetBuffer(length), length + 1, MF_BYPOSITION);
    text.ReleaseBuffer(length);
    return CString2string(text);
}

/// The menu as the file that it could have been made of.
void Write(HMENU menu, pugi::xml_node to, std::set<UINT>& commands)
{
    for (int i = 0; i < GetMenuItemCount(menu); ++i)
    {
        MENUITEMINFOW item = {};
        item.cbSize = sizeof(item);
        item.fMask = MIIM_FTYPE | MIIM_SUBMENU | MIIM_ID | MIIM_STATE;
        Require(GetMenuItemInfoW(menu, static_cast<UINT>(i), TRUE, &item), "every entry can be asked for");
        if (item.hSubMenu)
        {
            pugi::xml_node node = to.append_child("menu");
            node.append_attribute("text") = TextOf(menu, i).c_str();
            Write(item.hSubMenu, node, commands);
        }
        else if (item.fType & MFT_SEPARATOR)
        {
            to.append_child("separator");
        }
        else
        {
            Require(item.wID >= 1 && item.wID <= 0xEFFF, "a command is one that an owner can be sent");
            Require(commands.insert(item.wID).second, "a command is there once");
            pugi::xml_node node = to.append_child("item");
            node.append_attribute("id") = item.wID;
            node.append_attribute("text") = TextOf(menu, i).c_str();
            node.append_attribute("checked") = (item.fState & MFS_CHECKED) != 0;
            node.append_attribute("enabled") = (item.fState & MFS_GRAYED) == 0;
        }
    }
}

std::string Written(HMENU menu)
{
    pugi::xml_document document;
    std::set<UINT> commands;
    Write(menu, document.append_child("menus"), commands);
    std::ostringstream out;
    document.save(out);
    return out.str();
}
} // namespace

void FuzzMenu(const std::string& bytes)
{
    const FuzzedServices services(ScratchFolder());
    CDynMenuCreater creater;
    if (!creater.Load(ScratchFile(L"fuzz.xml", bytes)))
    {
        Require(creater.GetMenu() == nullptr, "a file that is refused gives no menu");
        const auto told = [](const std::string& line)
        { return line.find("menu not loaded, ") == 0 && line.find("fuzz.xml") != std::string::npos; };
        Require(std::count_if(services.Log().begin(), services.Log().end(), told) == 1, "a file that is refused is told once");
        return;
    }
    const std::string menu = Written(creater.GetMenu());
    CDynMenuCreater again;
    Require(again.Load(ScratchFile(L"again.xml", menu)), "a menu that is written again is loaded");
    Require(Written(again.GetMenu()) == menu, "a menu that is written again is the same");
}
