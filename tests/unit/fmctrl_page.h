// fmctrl_page: the frame memory as a server tells it, and the fetches of thumbnails as it answers
// them.
#pragma once
#include "bus_probe.h"
#include "fmctrl.h"
#include "text.h"
#include <filesystem>
#include <fstream>
#include <utility>

struct FrameMemory : BusTest {
    void SetUp() override
    {
        BusTest::SetUp();
        FMCtrl_InitClipStillList();
        DEV_MySwr[0] = &DEV_Swr[0];
        CopyText(DEV_Swr[0].id, "SWR000D001");
        GL_UnnecessaryThumb = GL_FMThumbnailGetAfter = GL_FileProcessing = 0;
    }

    // What a line makes the application send.
    static Strings Tell(const std::string& path, const std::string& value)
    {
        (void)TakeQueuedCommands();
        Deliver(path, value);
        return TakeQueuedCommands();
    }
    static void Max(int registers)
    {
        (void)Tell("16@Frame Mem@Status@Max Register", std::to_string(registers));
    }
    // The status of a register's name in hexadecimal: "81" without a thumbnail, "0" empty. number
    // is from 1; the extended store follows 16384.
    static Strings Sense(int number, const char* status, const std::string& name)
    {
        return Tell("16@Frame Mem@Status@File Name Sense",
                    std::to_string(number) + "," + status + "," + name);
    }
    static void Store(std::initializer_list<const char*> names, int number = 1)
    {
        for (const char* name : names)
            (void)Sense(number++, "81", name);
    }
    static void Pass(int elapsed_ms) { SendMessage(MSG_REDRAW, elapsed_ms, 0, 0, 0); }
    static Strings After(int ms) // what it makes the application send
    {
        Pass(ms);
        return TakeQueuedCommands();
    }
    // "register, what" of each change that was told since the last call.
    static Strings Changes()
    {
        Strings changes;
        for (const auto& s : std::exchange(probe::seen, {}))
            if (s.msg == LMSG_FMCTRLCHANGE)
                changes.push_back(std::to_string(s.ax) + ", " + std::to_string(s.bx) +
                                  (s.cx ? ", extended" : ""));
        return changes;
    }

    // "name: main sub", and of a clip the registers of both sides.
    static Strings Stills()
    {
        Strings stills;
        for (int i = 0; i < FMCtrl_GetStillNum(); i++)
            stills.push_back(FMCtrl_GetStillName(i) + (": " + Number(FMCtrl_GetStillRegId(i, 0))) +
                             " " + Number(FMCtrl_GetStillRegId(i, 1)));
        return stills;
    }
    static std::string Frames(int clip, int is_sub)
    {
        std::string text;
        const int shown = FMCtrl_GetClipFrameIdx(clip, is_sub);
        for (int i = 0; i < FMCtrl_GetClipFrameNum(clip, is_sub); i++)
            text += " " + Number(FMCtrl_GetClipRegId(clip, is_sub, i - shown));
        return text;
    }
    static Strings Clips()
    {
        Strings clips;
        for (int i = 0; i < FMCtrl_GetClipNum2(); i++)
            clips.push_back(FMCtrl_GetClipName(i) + (":" + Frames(i, 0)) + " /" + Frames(i, 1));
        return clips;
    }
    static std::string Number(int index)
    {
        return index < 0               ? "-"
               : index < FMEM_EXTENDED ? std::to_string(index)
                                       : "x" + std::to_string(index - FMEM_EXTENDED);
    }
};
