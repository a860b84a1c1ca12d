// pc_kf_page: the pages around the timeline, opened from the page table and worked over the bus.
#pragma once
#include "a_kf.h"
#include "a_kf_frames.h"
#include "command.h"
#include "table_page.h"

struct KeyframePage : TablePage {
    static inline const std::string TENKEY =
        "Engineering Setup@Panel@Config@10 Key Region Assign@Common@Region@Common@";

    void SetUp() override
    {
        TablePage::SetUp();
        SYS_FrameRate = 30;
    }
    static void Press(int x, int y)
    {
        Clock_ms += 1000;
        SendMessage(MSG_PRESS, x, y, 1, 0);
        SendMessage(MSG_RELEASE, x, y, 0, 0);
        Pass(200);
    }
    static void Button(int id)
    {
        const BT_MEM* b = bt_find(id);
        ASSERT_TRUE(b) << id;
        Press(b->x1 + 5, b->y1 + 5);
    }
    // What the page itself has sent, without the subscriptions and what a change of page brings.
    static Lines Sent(const char* verb = "put")
    {
        Lines lines = TakeQueuedCommands();
        std::erase_if(lines, [&](const std::string& line) {
            return !line.starts_with(verb) || line.starts_with("put TopMenu");
        });
        return lines;
    }
    static void Tally(const std::string& path, const char* value)
    {
        SendMessage(MSG_TALLY, Arg(path.c_str()), Arg(value), MsgArg(Hash(path.c_str())), 0);
    }
    static void TenKey(int number, const char* regions)
    {
        const std::string n = std::to_string(number);
        Tally(TENKEY + n, (n + ",0," + regions).c_str());
    }
};
