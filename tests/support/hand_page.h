// hand_page: a page of one object, built by hand: what the fixtures of the page objects share.
#pragma once
#include "a_ba.h"
#include "bus.h"
#include "command.h"
#include "global.h"
#include "harness.h"
#include "message.h"
#include "page.h"
#include <algorithm>
#include <initializer_list>
#include <utility>

struct HandPage : testing::Test {
    int object_kind = OBJ_END; // OBJ_ of the object
    PAGE page;
    BA_TBL base{.id = 1, .info = {1}, .create_func = nullptr, .proc_func = nullptr};

    void SetUp() override
    {
        Harness_Reset();
        SetTree({"M/E-1", "Key1", "Type"}, 0x11110000);
    }
    void TearDown() override { Harness_Reset(); }

    // The object stands behind the base area and the number boxes.
    void SetTree(std::initializer_list<const char*> tree, uint32_t id, int object = OBJ_END)
    {
        object_kind = object ? object : object_kind;
        page = {.id = id,
                .obj = {{OBJ_BA, &base, 0}, {OBJ_NB, nullptr, 0}, {object_kind, nullptr, 0}},
                .knobassign = -1};
        std::copy(tree.begin(), tree.end(), page.tree);
        Page = &page;
        GL_NowPage = id;
        GL_NowTree = page.tree;
        BA_Create(&base, 0);
    }
    static void Tally(const char* path, const char* value)
    {
        SendMessage(MSG_TALLY, Arg(path), Arg(value), MsgArg(Hash(path)), 0);
    }
    static void Touch(int x, int y) { SendMessage(MSG_PRESS, x, y, 1, 0); }
    // The page that a touch asks for, 0 none.
    static uint32_t Asked(int x, int y)
    {
        GL_CreatePage = 0;
        Touch(x, y);
        return std::exchange(GL_CreatePage, 0);
    }
    static void Pass(int elapsed_ms = 10) { SendMessage(MSG_REDRAW, elapsed_ms, 0, 0, 0); }
};
