// table_page: pages of a bank, a key or an effects unit as the table opens them, in an installation
// that has everything: lines from the server, touches, what goes over the wire.
#pragma once
#include "a_bt.h"
#include "a_ls.h"
#include "a_nb.h"
#include "bus.h"
#include "device.h"
#include "global.h"
#include "harness.h"
#include "message.h"
#include "page.h"
#include "window.h"
#include <algorithm>
#include <set>
#include <utility>

struct TablePage : testing::Test {
    using Lines = std::vector<std::string>;
    const FullHouse all;

    void SetUp() override
    {
        Harness_Reset();
        for (PAGE* p = PageTable; p->id != PAGE_END; p++)
            p->knobassign = -1; // no page remembers who had the knobs
    }
    void TearDown() override { Harness_Reset(); }

    // From the top menu, so that nothing is left of the visit before; what opening it sends.
    static Lines Open(uint32_t id)
    {
        EXPECT_EQ(CreatePage(PAGE_TOP), 0);
        (void)TakeQueuedCommands();
        EXPECT_EQ(CreatePage(id), 0) << std::hex << id;
        GL_CreatePage = 0;
        return TakeQueuedCommands();
    }
    // What leaving the page sends.
    static Lines Leave()
    {
        (void)TakeQueuedCommands();
        EXPECT_EQ(CreatePage(PAGE_TOP), 0);
        return TakeQueuedCommands();
    }
    // A line of the server, and what the page answers.
    static Lines Tell(const std::string& line)
    {
        (void)TakeQueuedCommands();
        SendDummyTally(line.c_str());
        return TakeQueuedCommands();
    }
    // The same for lines that begin alike.
    static void TellAll(const std::string& path, const Lines& lines)
    {
        for (const std::string& line : lines)
            (void)Tell(path + line);
    }
    static void Pass(int elapsed_ms) { SendMessage(MSG_REDRAW, elapsed_ms, 0, 0, 0); }
    // What a touch sends.
    static Lines Touch(int x, int y, int button = 1)
    {
        (void)TakeQueuedCommands();
        SendMessage(MSG_PRESS, x, y, button, 0);
        return TakeQueuedCommands();
    }
    static Lines Press(int id)
    {
        const BT_MEM* b = bt_find(id);
        EXPECT_TRUE(b) << id;
        return b ? Touch(b->x1 + 5, b->y1 + 5) : Lines{};
    }
    // The page that a press asks for, 0 none.
    static uint32_t PageBy(int id)
    {
        GL_CreatePage = 0;
        (void)Press(id);
        return std::exchange(GL_CreatePage, 0);
    }
    // What the choice of a row sends.
    static Lines ChooseRow(int list, int row)
    {
        (void)TakeQueuedCommands();
        SendMessage(LMSG_LISTSEL, list, row, 0, 0);
        return TakeQueuedCommands();
    }
    // The default key of a box's knob, in slots from 1.
    static Lines Default(int slot) { return Touch(750, 68 + 82 * slot, 2); }
    // What a drag of the bar of a box sends; x from 714 to 794.
    static Lines Drag(int slot, int x)
    {
        GL_MouseSliderControl = 1;
        (void)Touch(750, 68 + 82 * slot, 3);
        SendMessage(MSG_DRAG, x, 150, 0, 1);
        const Lines lines = TakeQueuedCommands();
        SendMessage(MSG_RELEASE, x, 150, 0, 0);
        return lines;
    }
    static void NextLayer() { (void)Touch(740, 90); }
    // The value of the box of that caption, or that there is none.
    static std::string Shown(const char* caption)
    {
        char path[CMD_SIZE];
        double value = 0;
        const int id = NB_GetKnob_info(caption, path, &value, sizeof path);
        return id > 0 ? testing::PrintToString(value) : "no box";
    }
    static std::string Caption(int id)
    {
        const BT_MEM* b = bt_find(id);
        return b ? b->caption : "no such button";
    }
    // The buttons that cannot be pressed now.
    static std::set<int> Disabled()
    {
        std::set<int> ids;
        for (const BT_MEM* b = bt_first(); b->id >= 1; b++)
            if (b->visible == BT_DISABLED)
                ids.insert(b->id);
        return ids;
    }
    // Those of the buttons that can.
    static std::vector<int> Usable(std::vector<int> ids)
    {
        std::erase_if(ids, [](int id) { return BT_GetVisible(id) != BT_ENABLED; });
        return ids;
    }
    static Lines Puts(Lines lines)
    {
        std::erase_if(lines, [](const std::string& line) { return !line.starts_with("put "); });
        return lines;
    }
    // How often a path is added more than removed.
    static long Held(const Lines& lines, const std::string& path)
    {
        return std::ranges::count(lines, "add " + path) -
               std::ranges::count(lines, "remove " + path);
    }
    // What a key puts that looks released again.
    static Lines Puts(int id)
    {
        Pass(200);
        return Puts(Press(id));
    }
    static std::string Cell(int list, int row, int column)
    {
        const char* const text = LS_GetData(list, row, column);
        return text ? text : "";
    }
    // Some cells of a row.
    static std::string Cells(int list, int row, int first, int columns)
    {
        std::string text;
        for (int column = first; column < first + columns; column++)
            text += (column > first ? "|" : "") + Cell(list, row, column);
        return text;
    }
    static void Cursor(int list, int row)
    {
        LS_SetNowLine(list, row);
        LS_SetSelected(list, row, 0, 1);
        Pass(10);
    }
    // Say yes to the window on top; what that sends.
    static Lines Confirm()
    {
        (void)TakeQueuedCommands();
        Window_ReserveQuit(0);
        Pass(10);
        return TakeQueuedCommands();
    }
    static std::vector<uint32_t> Seen(const Rect& part)
    {
        Pass(10);
        return PixelsIn(part);
    }
    // Until also what is painted bit by bit stands.
    static void Paint()
    {
        for (int i = 0; i < 4; i++)
            Pass(1000);
    }
};
