// SPDX-License-Identifier: MIT
#include "DynMenuCreater.h"

#include "../KernelCommonUse/MultiLanguage.h"
#include "../KernelCommonUse/ServiceLog.h"
#include "../KernelCommonUse/StringConvert.h"
#include "../KernelCommonUse/TextFile.h"

#include <afxwin.h>

#include <pugixml.hpp>

#include <set>
#include <stdexcept>

namespace
{
const unsigned int MaxCommand = 0xEFFF;
const int MaxDepth = 16;
// Each element takes the system the longer the more there are: a file of hundreds of thousands would stop the interface.
const int MaxElements = 5000;

// What is wrong with a file.
struct Fault : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

CString TextOf(const pugi::xml_node& node)
{
    if (const pugi::xml_attribute key = node.attribute("key"))
    {
        return CMultiLanguageMgr::GetInstance()->translation(key.value(), "", "Common");
    }
    const pugi::xml_attribute text = node.attribute("text");
    if (!text)
    {
        throw Fault(std::string("<") + node.name() + "> without \"text\" or \"key\"");
    }
    return Utf8ToCString(text.value());
}

bool Flag(const pugi::xml_node& item, const char* name, bool usual)
{
    const pugi::xml_attribute attribute = item.attribute(name);
    const std::string value = attribute.value();
    if (!attribute || value == "true" || value == "false")
    {
        return attribute ? value == "true" : usual;
    }
    throw Fault(std::string("\"") + name + "\" is neither true nor false: " + value);
}

class Builder
{
public:
    void Fill(HMENU menu, const pugi::xml_node& parent, int depth)
    {
        if (depth > MaxDepth)
        {
            throw Fault("menus nested more than 16 deep");
        }
        for (const pugi::xml_node& node : parent.children())
        {
            const std::string name = node.name();
            if (node.type() != pugi::node_element)
            {
                continue;
            }
            if (++elements_ > MaxElements)
            {
                throw Fault("more than 5000 elements");
            }
            if (name == "menu")
            {
                const CString text = TextOf(node);
                HMENU popup = CreatePopupMenu();
                // The parent owns it from here on, whatever its content turns out to be.
                AppendMenuW(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(popup), text);
                Fill(popup, node, depth + 1);
            }
            else if (name == "item" && depth > 0)
            {
                const UINT state =
                    (Flag(node, "checked", false) ? MF_CHECKED : 0) | (Flag(node, "enabled", true) ? MF_ENABLED : MF_GRAYED);
                AppendMenuW(menu, MF_STRING | state, CommandOf(node), TextOf(node));
            }
            else if (name == "separator" && depth > 0)
            {
                AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
            }
            else
            {
                throw Fault("<" + name + "> does not belong into <" + parent.name() + ">");
            }
        }
    }

private:
    UINT CommandOf(const pugi::xml_node& item)
    {
        const std::string text = item.attribute("id").value();
        const long long id = item.attribute("id").as_llong(0);
        if (id < 1 || id > MaxCommand || text != std::to_string(id))
        {
            throw Fault("\"id\" is not a command from 1 to 61439: \"" + text + "\"");
        }
        if (!commands_.insert(static_cast<UINT>(id)).second)
        {
            throw Fault("\"id\" is there twice: " + text);
        }
        return static_cast<UINT>(id);
    }

    std::set<UINT> commands_;
    int elements_ = 0;
};

void Parse(const CString& path, pugi::xml_document& document)
{
    std::string bytes;
    switch (TextFile::Read(path, bytes))
    {
    case TextFile::Result::Read:
        break;
    case TextFile::Result::Missing:
        throw Fault("there is no such file");
    case TextFile::Result::TooLarge:
        throw Fault("the file is larger than 4 MiB");
    default:
        throw Fault("the file cannot be read");
    }
    const pugi::xml_parse_result result = document.load_buffer(bytes.data(), bytes.size());
    if (!result)
    {
        throw Fault(std::string(result.description()) + " at byte " + std::to_string(result.offset));
    }
    if (std::string(document.document_element().name()) != "menus")
    {
        throw Fault("the root is not <menus>");
    }
}
} // namespace

CDynMenuCreater::CDynMenuCreater() = default;

CDynMenuCreater::~CDynMenuCreater()
{
    Destroy();
}

void CDynMenuCreater::Destroy()
{
    if (menu_)
    {
        DestroyMenu(menu_);
        menu_ = nullptr;
    }
}

bool CDynMenuCreater::Load(const CString& path)
{
    Destroy();
    try
    {
        pugi::xml_document document;
        Parse(path, document);
        menu_ = CreateMenu();
        Builder().Fill(menu_, document.document_element(), 0);
        return true;
    }
    catch (const Fault& fault)
    {
        Destroy();
        ServiceLog("menu not loaded, " + std::string(fault.what()) + ": " + CString2string(path));
        return false;
    }
}

HMENU CDynMenuCreater::GetMenu() const
{
    return menu_;
}
