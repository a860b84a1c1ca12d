// a_bt_page: a page of test buttons: opened by hand, pressed by id, its page code's messages
// written down.
#pragma once
#include "a_bt.h"
#include "hand_page.h"
#include "text.h"
#include <iterator>

// A button on the standard grid with the common functions.
inline BT_TBL Button(int id, int type, std::initializer_list<const char*> cmd,
                     const NB_TBL* nb = nullptr)
{
    BT_TBL row{.id = id, .caption = "Test", .type = type};
    row.x1 = 112 + 98 * ((id & 0x0F) - 1);
    row.y1 = 184 + 88 * ((id >> 4) % 4); // more rows than the screen has share their places
    row.x2 = row.x1 + 84;
    row.y2 = row.y1 + 65;
    row.select_func = bt_sel_normal;
    row.draw_func = bt_drw_normal;
    row.tally_func = bt_tly_normal;
    std::copy(cmd.begin(), cmd.end(), row.cmd);
    row.nb = nb;
    return row;
}

struct ButtonPage : HandPage {
    static inline std::vector<std::string> told; // "path value flag" of each LMSG_BTNSEL
    BT_TBL rows[BT_MAX + 3];                     // of a test; ends at the first that it leaves out

    ButtonPage()
    {
        object_kind = OBJ_BT;
        base.proc_func = WriteDown;
    }
    static int WriteDown(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg)
    {
        if (msg == LMSG_BTNSEL)
            told.push_back(std::string(Text(ax)) + " " + Text(bx) + " " + std::to_string(cx));
        return 0;
    }

    void SetUp() override
    {
        HandPage::SetUp();
        GL_NextVersion = 2;
        told.clear();
    }
    void Open(const BT_TBL* table)
    {
        BT_Create(nullptr, 0);
        page.obj[2].addr = table;
        BT_Create(table, 0);
        (void)TakeQueuedCommands();
    }
    void OpenTree(std::initializer_list<const char*> tree, uint32_t id, const BT_TBL* table)
    {
        SetTree(tree, id);
        Open(table);
    }

    static void Press(int id)
    {
        const BT_MEM* b = bt_find(id);
        ASSERT_TRUE(b) << id;
        BT_Proc(MSG_PRESS, b->x1 + 5, b->y1 + 5, 1, 0);
    }
    static Strings Pressed(int id) // what it sends
    {
        Press(id);
        return TakeQueuedCommands();
    }
    static void Tally(const char* path, const char* value)
    {
        BT_Proc(MSG_TALLY, Arg(path), Arg(value), MsgArg(Hash(path)), 0);
    }
    static void Pass(int elapsed_ms) { BT_Proc(MSG_REDRAW, elapsed_ms, 0, 0, 0); }
    static std::vector<std::string> Told() { return std::exchange(told, {}); }
};
