// a_st_page: a page of status cells: opened by hand, told tallies, pressed by place.
#pragma once
#include "a_st.h"
#include "a_st_draw.h"
#include "command.h"
#include "global.h"
#include "harness.h"
#include "message.h"
#include "page.h"
#include "page_table/rows.h"
#include "tdl.h"
#include <algorithm>
#include <initializer_list>

struct CellPage : testing::Test {
    PAGE page;

    void SetUp() override
    {
        Harness_Reset();
        SetTree({"M/E-1", "Key1", "Type"}, 0x11110000);
    }
    void TearDown() override
    {
        Harness_Reset();
        s_font = 0;
        GL_FillSourceAssignMode = 0;
        st_drw_me_misc_key_assign_tally_set("");
    }
    void SetTree(std::initializer_list<const char*> tree, uint32_t id)
    {
        page = {.id = id, .obj = {{OBJ_ST, nullptr, 0}}};
        std::copy(tree.begin(), tree.end(), page.tree);
        Page = &page;
        GL_NowPage = id;
        GL_NowTree = page.tree;
    }
    static void Open(const ST_TBL* rows)
    {
        ST_Create(nullptr, 0);
        (void)TakeQueuedCommands();
        ST_Create(rows, 0);
    }
    static void Tally(const char* path, const char* value)
    {
        ST_Proc(MSG_TALLY, Arg(path), Arg(value), MsgArg(Hash(path)), 0);
    }
    static void Pass() { ST_Proc(MSG_REDRAW, 10, 0, 0, 0); }
    static uint32_t PageAt(int x, int y)
    {
        GL_CreatePage = 0;
        ST_Proc(MSG_PRESS, x, y, 1, 0);
        return std::exchange(GL_CreatePage, 0);
    }
    // How many pixels of a colour a rectangle has.
    static int Count(Rect r, uint32_t colour)
    {
        int n = 0;
        for (int y = r.y1; y <= r.y2; y++)
            for (int x = r.x1; x <= r.x2; x++)
                n += PixelAt(x, y) == colour;
        return n;
    }
};
