// tab_page: a page of one object, opened by hand and driven through the bus, as the loop does it.
#pragma once
#include "a_ba.h"
#include "a_bt.h"
#include "a_nb.h"
#include "bus.h"
#include "command.h"
#include "device.h"
#include "global.h"
#include "harness.h"
#include "me_config.h"
#include "message.h"
#include "page.h"
#include "scrollbar.h"
#include <algorithm>
#include <gmock/gmock.h>
#include <initializer_list>
#include <iterator>

constexpr const char* OUTPUT_LIST = "Engineering Setup@Switcher@Config@M/E Output Assign@List";
constexpr const char* PGM_LIST = "Engineering Setup@Switcher@Config@PGM Config@List";

struct TabPage : testing::Test {
    PAGE page;
    BA_TBL base{.id = 1, .info = {1}, .create_func = nullptr, .proc_func = nullptr};

    void SetUp() override
    {
        Harness_Reset();
        SetTree({"M/E-1", "Key1", "Type"}, 0x11110000);
    }
    void TearDown() override { Harness_Reset(); }

    // The object of a kind stands behind the base area and the number boxes.
    void SetTree(std::initializer_list<const char*> tree, uint32_t id, int kind = OBJ_VF)
    {
        page = {.id = id,
                .obj = {{OBJ_BA, &base, 0}, {OBJ_NB, nullptr, 0}, {kind, nullptr, 0}},
                .knobassign = -1};
        std::copy(tree.begin(), tree.end(), page.tree);
        Page = &page;
        GL_NowPage = id;
        GL_NowTree = page.tree;
        BA_Create(&base, 0);
    }

    static void Touch(int x, int y) { SendMessage(MSG_PRESS, x, y, 1, 0); }
    // The page that a touch asks for, 0 none.
    static uint32_t Asked(int x, int y)
    {
        GL_CreatePage = 0;
        Touch(x, y);
        return std::exchange(GL_CreatePage, 0);
    }
    // What a touch sends.
    static std::vector<std::string> Sent(int x, int y)
    {
        (void)TakeQueuedCommands();
        Touch(x, y);
        return TakeQueuedCommands();
    }
    static void Tally(const char* path, const char* value)
    {
        SendMessage(MSG_TALLY, Arg(path), Arg(value), MsgArg(Hash(path)), 0);
    }
    static void Pass(int elapsed_ms = 10) { SendMessage(MSG_REDRAW, elapsed_ms, 0, 0, 0); }
};
