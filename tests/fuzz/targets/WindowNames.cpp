// SPDX-License-Identifier: MIT
#include "fuzz/FuzzTarget.h"

#include "support/Gui.h"

#include <widgets/Names.h>
#include <widgets/WindowNames.h>

#include <CEGUI/GUIContext.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>
#include <CEGUI/WindowManager.h>

#include <algorithm>
#include <memory>

namespace
{
/// The interface over a real viewer, for as long as the process lives.
GuiHost& Host()
{
    static GuiHost* const host = []
    {
        auto* made = new GuiHost(64, 64);
        made->InitOnly();
        return made;
    }();
    return *host;
}

/// Windows in the order in which they were made, with the names that they were given.
class Windows
{
public:
    Windows() : sheet_(*WindowNames::Create("DefaultWindow", "sheet")) {}
    ~Windows()
    {
        WindowNames::Destroy(sheet_);
        CEGUI::WindowManager::getSingleton().cleanDeadPool();
    }
    Windows(const Windows&) = delete;
    Windows& operator=(const Windows&) = delete;

    void Make(const std::string& utf8, std::size_t under)
    {
        const CString text = Utf8ToCString(utf8);
        const CEGUI::String name = GuiName(text);
        Require(TextOfName(name) == text, "a name gives its text back");
        CEGUI::Window& parent = under < all_.size() ? *all_[under].window : sheet_;
        CEGUI::Window* window = WindowNames::Create("DefaultWindow", name);
        all_.push_back({window, name});
        WindowNames::AddChild(parent, *window);
        Require(window->getParent() == &parent, "a window is added under any name");
    }

    /// With all its children.
    void Destroy(std::size_t index)
    {
        CEGUI::Window* const window = all_[index].window;
        const auto gone = [&](const Made& made) { return made.window == window || made.window->isAncestor(window); };
        all_.erase(std::stable_partition(all_.begin(), all_.end(), [&](const Made& made) { return !gone(made); }), all_.end());
        WindowNames::Destroy(*window);
    }

    std::size_t Count() const { return all_.size(); }

    void Check() const
    {
        for (const Made& made : all_)
        {
            Require(WindowNames::Of(*made.window) == made.name, "a window is known by the name that it was given");
            const auto first = std::find_if(all_.begin(), all_.end(), [&](const Made& other) { return other.name == made.name; });
            Require(WindowNames::Find(made.name) == (made.name == "sheet" ? &sheet_ : first->window),
                    "the window of a name that was made first is found");
            Require(sheet_.getChild(Path(*made.window)) == made.window, "a window is where CEGUI looks for it");
        }
    }

private:
    struct Made // NOLINT(bugprone-exception-escape): CEGUI's text has a move of its own, which may allocate
    {
        CEGUI::Window* window;
        CEGUI::String name;
    };

    CEGUI::String Path(const CEGUI::Window& window) const
    {
        const CEGUI::Window* const parent = window.getParent();
        return parent == &sheet_ ? window.getName() : Path(*parent) + "/" + window.getName();
    }

    CEGUI::Window& sheet_;
    std::vector<Made> all_;
};

/// What the next window is called whose name cannot stand, without the count.
CEGUI::String MadeUpName(int& count)
{
    CEGUI::Window* const window = WindowNames::Create("DefaultWindow", "/");
    const CEGUI::String name = window->getName();
    WindowNames::Destroy(*window);
    const CEGUI::String::size_type blank = name.rfind(' ');
    count = std::stoi(name.substr(blank + 1).c_str());
    return name.substr(0, blank + 1);
}
} // namespace

/// Each line is one step. "-3" destroys the third window that is there, "3name" puts one into it, and anything else is the name
/// of one on the sheet. "#3" is the third name that windows will be given which cannot have their own.
void FuzzWindowNames(const std::string& bytes)
{
    Host();
    Windows windows;
    int count = 0;
    const std::string madeUp = NameBytes(MadeUpName(count));
    int steps = 0;
    for (std::size_t begin = 0; begin < bytes.size() && ++steps <= 64;)
    {
        const std::size_t end = std::min(bytes.find('\n', begin), bytes.size());
        const std::string line = bytes.substr(begin, end - begin);
        begin = end + 1;
        const bool destroys = line.size() > 1 && line[0] == '-';
        const char digit = line.empty() ? '\0' : line[destroys ? 1 : 0];
        const std::size_t index = digit >= '1' && digit <= '9' ? static_cast<std::size_t>(digit - '1') : windows.Count();
        if (destroys && index < windows.Count())
        {
            windows.Destroy(index);
        }
        else
        {
            const std::string name = index < windows.Count() ? line.substr(1) : line;
            const bool isMadeUp = name.size() == 2 && name[0] == '#' && name[1] >= '0' && name[1] <= '9';
            windows.Make(isMadeUp ? madeUp + std::to_string(count + name[1] - '0') : name, index);
        }
        windows.Check();
    }
}
