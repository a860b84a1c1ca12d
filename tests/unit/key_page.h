// key_page: a page of a key as the table opens it, on any bank: lines from the server, presses by
// button, what goes over the wire.
#pragma once
#include "a_bt_page.h"
#include "a_nb.h"
#include "bus.h"
#include "loop.h"
#include <gmock/gmock.h>
#include <map>
#include <set>

struct KeyPage : testing::Test {
    const FullHouse all;

    void SetUp() override { Harness_Reset(); }
    void TearDown() override
    {
        GL_MouseSliderControl = 0;
        GL_CreatePage = 0;
        Page_Reset();
        (void)TakeQueuedCommands();
    }
    static void Open(uint32_t id)
    {
        ASSERT_EQ(CreatePage(id), 0) << std::hex << id;
        GL_CreatePage = 0;
    }
    static void Tell(const std::string& line) { SendDummyTally(line.c_str()); }
    static void TellAll(std::initializer_list<const char*> lines)
    {
        for (const char* line : lines)
            Tell(line);
    }
    // The lines that the press sends.
    static std::vector<std::string> Press(int id)
    {
        const BT_MEM* b = bt_find(id);
        EXPECT_TRUE(b) << id;
        (void)TakeQueuedCommands();
        if (b)
            SendMessage(MSG_PRESS, b->x1 + 5, b->y1 + 5, 1, 0);
        return TakeQueuedCommands();
    }
    // The lines that a drag of the bar in a slot from 1 sends; x from 714 to 794.
    static std::vector<std::string> Drag(int slot, int x)
    {
        GL_MouseSliderControl = 1;
        SendMessage(MSG_PRESS, 750, 150 + 82 * (slot - 1), 1, 0);
        (void)TakeQueuedCommands();
        SendMessage(MSG_DRAG, x, 150, 1, 0);
        const auto lines = TakeQueuedCommands();
        SendMessage(MSG_RELEASE, x, 150, 0, 0);
        return lines;
    }
    static void NextLayer() { SendMessage(MSG_PRESS, 740, 90, 1, 0); }
    static std::set<int> Disabled()
    {
        std::set<int> ids;
        for (const BT_MEM* b = bt_first(); b->id >= 1; b++)
            if (b->visible == BT_DISABLED)
                ids.insert(b->id);
        return ids;
    }
    // What is added more often than removed.
    static std::set<std::string> Held(const std::vector<std::string>& lines)
    {
        std::map<std::string, int> count;
        for (const std::string& line : lines) {
            if (line.starts_with("add "))
                count[line.substr(4)]++;
            else if (line.starts_with("remove "))
                count[line.substr(7)]--;
        }
        std::set<std::string> held;
        for (const auto& [path, n] : count)
            if (n > 0)
                held.insert(path);
        return held;
    }
};
