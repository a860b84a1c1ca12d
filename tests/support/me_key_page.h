// me_key_page: pages of a key as the table opens them, touched and told by lines of the server.
#pragma once
#include "a_bt_page.h"
#include "a_ls.h"
#include "a_st.h"
#include "bus.h"
#include "device.h"
#include <gmock/gmock.h>

struct MeKeyPage : testing::Test {
    void SetUp() override { Reset(); }
    void TearDown() override
    {
        Reset();
        Page_Reset();
    }
    static void Reset()
    {
        Harness_Reset();
        SYS_4KMode = 0;
        SYS_Format_Size = 0;
        SYS_RefPnlType = DEVTYPE_UNKNOWN;
        SYS_RefSwrType = DEVTYPE_UNKNOWN;
        GL_FillSourceAssignMode = 0;
        GL_CreatePage = 0;
        (void)TakeQueuedCommands();
    }
    static void Open(uint32_t id)
    {
        ASSERT_EQ(CreatePage(id), 0) << std::hex << id;
        GL_CreatePage = 0;
    }
    static void Tell(const std::string& line) { SendDummyTally(line.c_str()); }
    // What the press of a button, or of a row of the list in view, puts on the wire.
    static std::vector<std::string> Press(int id)
    {
        const BT_MEM* b = bt_find(id);
        return b ? PressAt(b->x1 + 5, b->y1 + 5) : std::vector<std::string>{"no such button"};
    }
    static std::vector<std::string> Touch(int row)
    {
        return PressAt(110, 266 + 22 * (row + 1) + 5);
    }
    static std::vector<std::string> PressAt(int x, int y)
    {
        (void)TakeQueuedCommands();
        SendMessage(MSG_PRESS, x, y, 1, 0);
        SendMessage(MSG_RELEASE, x, y, 1, 0);
        return TakeQueuedCommands();
    }
    static std::string Caption(int id)
    {
        const BT_MEM* b = bt_find(id);
        return b ? b->caption : "";
    }
    // Those of the buttons that can be pressed.
    static std::vector<int> Usable(std::initializer_list<int> ids)
    {
        std::vector<int> usable;
        for (int id : ids)
            if (BT_GetVisible(id) == BT_ENABLED)
                usable.push_back(id);
        return usable;
    }
};
