// SPDX-License-Identifier: MIT
// What the host does when a message comes may raise; the system's functions that deliver the message must not see it.
#include "support/GTest.h"

#include <NxOsgCeGui/GuiTypes.h>

#include <host/Guarded.h>
#include <window/HostWindow.h>

#include <KernelCommonUse/ServiceLog.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace
{
std::vector<std::string>& Told()
{
    static std::vector<std::string> lines;
    return lines;
}

/// Raises whatever is reported to it, every second time something that is no std::exception.
class Raising : public host::HostWindowEvents
{
public:
    void OnGuiMessage(UINT, LPARAM) override { Raise(); }
    void OnMenuCommand(UINT) override { Raise(); }
    void OnInput() override { Raise(); }
    void OnExpose() override { Raise(); }
    void OnKey(UINT) override { Raise(); }
    void OnTimer(UINT_PTR) override { Raise(); }
    void OnMouseMove(UINT, CPoint) override { Raise(); }
    void OnModalTick() override { Raise(); }
    void OnCloseRequest() override { Raise(); }
    void OnDensity(UINT) override { Raise(); }
    bool IsTitleHandle(CPoint) const override { return false; }
    bool HasResizeEdges() const override
    {
        Raise();
        return false;
    }

    bool armed = false;
    mutable int raised = 0;

private:
    void Raise() const
    {
        if (!armed)
        {
            return;
        }
        ++raised;
        if (raised % 2 == 0)
        {
            throw raised;
        }
        throw std::runtime_error("raised by a test");
    }
};

class Borders : public testing::Test
{
protected:
    void SetUp() override
    {
        Told().clear();
        SetServiceLogSink([](const std::string& line) { Told().push_back(line); });
    }
    void TearDown() override { SetServiceLogSink(nullptr); }
};
} // namespace

TEST_F(Borders, let_no_exception_into_the_system_and_log_each_in_one_line)
{
    Raising events;
    host::HostWindow window(CSize(320, 240), events);
    window.Show();
    const struct
    {
        HWND to;
        UINT message;
        WPARAM wParam;
    } rows[] = {
        {window.Main(), GUI_HOST_MESSAGE, 2},
        {window.Main(), WM_COMMAND, 40098},
        {window.Main(), WM_TIMER, 2022},
        {window.Main(), WM_CLOSE, 0},
        {window.Main(), WM_NCHITTEST, 0},
        {window.Main(), WM_SIZE, SIZE_RESTORED},
        {window.View(), GUI_HOST_MESSAGE, 2},
        {window.View(), WM_PAINT, 0},
        {window.View(), WM_MOUSEMOVE, 0},
        {window.View(), WM_KEYDOWN, VK_F1},
        {window.View(), WM_KEYUP, VK_F1},
        {window.View(), WM_LBUTTONDOWN, MK_LBUTTON},
        {window.View(), WM_RBUTTONDOWN, MK_RBUTTON},
        {window.View(), WM_NCHITTEST, 0},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.message);
        Told().clear();
        events.raised = 0;
        events.armed = true;
        EXPECT_EQ(SendMessageW(row.to, row.message, row.wParam, 0), 0);
        events.armed = false;
        // A move asks what lies under the mouse as well.
        EXPECT_GE(events.raised, 1);
        EXPECT_EQ(Told().size(), static_cast<std::size_t>(events.raised));
        for (const std::string& line : Told())
        {
            EXPECT_EQ(line.find("city host, not carried out: a message of the "), 0u) << line;
        }
        EXPECT_TRUE(IsWindow(row.to));
    }
}

TEST_F(Borders, name_what_was_raised)
{
    EXPECT_TRUE(host::Guarded("nothing", [] {}));
    EXPECT_FALSE(host::Guarded("this", [] { throw std::runtime_error("a reason"); }));
    EXPECT_FALSE(host::Guarded("that", [] { throw 42; }));
    EXPECT_EQ(Told(), (std::vector<std::string>{"city host, not carried out: this: a reason",
                                                "city host, not carried out: that: an exception of no known kind"}));
}
