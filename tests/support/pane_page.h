// pane_page: a page that writes down what reaches it while panes are open, and the touches of an
// operator.
#pragma once
#include "device.h"
#include "hand_page.h"
#include "pane.h"
#include "tdl.h"

struct PanePage : HandPage {
    static inline std::vector<std::string> told; // "button ID", "quit PANE RESULT", in order
    static inline int ticks_ms = 0;              // of MSG_PANETICK
    static inline int ticks = 0;
    static inline int inputs = 0; // presses, releases, drags, keys, wheel steps, repaints
    static inline void (*on_button)() = nullptr; // what the page does then, once

    static int WriteDown(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
    {
        switch (msg) {
        case LMSG_PANEBTNSEL:
            told.push_back("button " + std::to_string(ax));
            if (auto act = std::exchange(on_button, nullptr))
                act();
            break;
        case LMSG_PANEQUIT:
            told.push_back("quit " + std::to_string(ax) + " " + std::to_string(int(bx)));
            break;
        case MSG_PANETICK:
            ticks++;
            ticks_ms += int(ax);
            break;
        case MSG_TALLY: break;
        default: inputs += msg < LMSG_LISTSEL; break;
        }
        return 0;
    }

    PanePage() { base.proc_func = WriteDown; }

    void SetUp() override
    {
        HandPage::SetUp();
        SetTree({}, 0x71110000);
        told.clear();
        ticks_ms = ticks = inputs = 0;
        on_button = nullptr;
    }
    static void Press(int x, int y) { SendMessage(MSG_PRESS, x, y, 1, 0); }
    static void Release(int x, int y) { SendMessage(MSG_RELEASE, x, y, 0, 0); }
    static void Touch(int x, int y) // and wait until what it started is over
    {
        Pass();
        Press(x, y);
        Release(x, y);
        Pass(150);
    }
    static Strings Told() { return std::exchange(told, {}); }
    static Strings Told(int x, int y) // behind a touch
    {
        Touch(x, y);
        return Told();
    }
    static std::string Last() // and forget all
    {
        const auto all = Told();
        return all.empty() ? "nothing" : all.back();
    }
    static std::string Last(int x, int y) // behind a touch
    {
        Touch(x, y);
        return Last();
    }
    static std::string Quit(int id, int result)
    {
        return "quit " + std::to_string(id) + " " + std::to_string(result);
    }
};
