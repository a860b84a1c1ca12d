// clip_store: a page of any kind with one switcher, and its clip store as the hub tells of it.
#pragma once
#include "bus.h"
#include "command.h"
#include "device.h"
#include "fmctrl3.h"
#include "global.h"
#include "harness.h"
#include "message.h"
#include "text.h"

template <class Base> struct ClipStoreTest : Base {
    static constexpr char TIME[] = "2026-01-31 23:59:00";

    void SetUp() override
    {
        Base::SetUp();
        DEV_MySwr[0] = &DEV_Swr[0];
        SYS_MySwrMax = 1;
        CopyText(DEV_Swr[0].id, "SWR000D001");
    }
    // Without a row where it is empty.
    static void Hub(const std::string& verb, const std::string& table, const std::string& row)
    {
        std::string v = verb, t = "CS1." + table, r = row;
        SendMessage(MSG_SHPTALLY, Arg(v.c_str()), Arg(t.c_str()), Hash(v.c_str()),
                    row.empty() ? 0 : Arg(r.c_str()));
    }
    static void Folder(const std::string& path)
    {
        Hub("Insert", "ClipStoreFolder", "root/" + path + ":1");
    }
    static void Clip(const std::string& path, int frames = 1, int thumbnail = 0,
                     const std::string& time = TIME, int pair = 0)
    {
        Hub("Insert", "ClipStoreFile",
            "root/" + path + ".SFH:" + std::to_string(frames) + ", " + std::to_string(pair) +
                ", 0, 3, " + time + ", 1, " + std::to_string(thumbnail));
    }
};
