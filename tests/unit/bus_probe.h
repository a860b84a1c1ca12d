// bus_probe: a page whose only object is code that notes what reaches it.
#pragma once
#include "a_pc.h"
#include "bus.h"
#include "command.h"
#include "device.h"
#include "global.h"
#include "harness.h"
#include "message.h"
#include "page.h"
#include "pane.h"
#include <functional>

namespace probe
{
struct Seen {
    int msg;
    MsgArg ax, bx, cx, dx;
};
inline std::vector<Seen> seen;
inline std::function<int(const Seen&)> answer; // what the code does with a message; empty: passes

inline int Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx)
{
    const Seen now = {msg, ax, bx, cx, dx}; // a nested message moves those in the list
    seen.push_back(now);
    return answer ? answer(now) : 0;
}
inline constexpr PC_TBL code = {.proc_func = Proc};
inline PAGE page;

inline int Count(int msg)
{
    int n = 0;
    for (const Seen& s : seen)
        n += s.msg == msg;
    return n;
}
} // namespace probe

// As the server's line; the texts are gone when it returns.
inline int Deliver(const std::string& path, const std::string& value)
{
    std::string p = path;
    std::string v = value;
    const int result = SendMessage(MSG_TALLY, Arg(p.c_str()), Arg(v.c_str()), Hash(p.c_str()), 0);
    EXPECT_EQ(p, path);
    EXPECT_EQ(v, value) << "a handler has cut the value of " << path;
    return result;
}

struct BusTest : testing::Test {
    void SetUp() override
    {
        Harness_Reset();
        probe::page = {.id = PAGE_TOP, .tree = {"Probe"}, .obj = {{OBJ_PC, &probe::code, 0}}};
        PC_Create(&probe::code, 0);
        Page = &probe::page;
        GL_NowPage = PAGE_TOP;
        probe::seen.clear();
    }
    void TearDown() override
    {
        probe::answer = nullptr;
        Harness_Reset();
    }
};
