// a_nb_column: the knob column on a test page, driven through the bus; what its page code hears of
// the knobs is written down.
#pragma once
#include "a_nb.h"
#include "hand_page.h"
#include "tdl.h"
#include "window.h"
#include <cmath>
#include <functional>

constexpr NB_TBL Box(int id, const char* caption, int type, double min, double max, const char* cmd,
                     double scale = 0)
{
    return {id, caption, type, min, max, cmd, scale};
}

struct KnobColumn : HandPage {
    static inline std::vector<std::string> told;
    static inline std::function<void(int msg)> answer; // what the page code does about it
    static inline bool exact_var = false;              // LMSG_KNOBVAR points to its value

    static std::string Number(double v)
    {
        char text[32];
        snprintf(text, sizeof text, "%.2f", v);
        return text;
    }
    static std::string Pointed(MsgArg a) { return Number(*reinterpret_cast<const double*>(a)); }

    static int WriteDown(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx)
    {
        const std::string id = std::to_string(ax), whole = std::to_string(bx);
        const std::string screen = dx ? " strange" : cx == 1 ? " screen" : "";
        switch (msg) {
        case LMSG_KNOBCREATE: told.push_back("create " + std::string(Text(bx))); break;
        case LMSG_KNOBVAR:
            told.push_back("var " + id + " " + (exact_var ? Pointed(bx) : whole) + screen);
            break;
        case LMSG_KNOBFVAR: told.push_back("fvar " + id + " " + Pointed(bx) + screen); break;
        case LMSG_KNOBDIFF: told.push_back("diff " + id + " " + Pointed(bx) + screen); break;
        case LMSG_KNOBUPPER: told.push_back("upper " + id + " " + whole + screen); break;
        case LMSG_KNOBLOWER: told.push_back("lower " + id + " " + whole + screen); break;
        case LMSG_KNOBDEFAULT: told.push_back("default " + id + screen); break;
        case LMSG_KNOBRELEASE: told.push_back("layer " + id + screen); break;
        default: return 0;
        }
        if (answer)
            answer(msg);
        return 0;
    }

    KnobColumn() { base.proc_func = WriteDown; }

    void SetUp() override
    {
        HandPage::SetUp();
        exact_var = false;
        Forget();
    }
    void TearDown() override
    {
        answer = nullptr;
        HandPage::TearDown();
    }

    static void Forget()
    {
        told.clear();
        (void)TakeQueuedCommands();
    }
    static std::vector<std::string> Told() { return std::exchange(told, {}); }
    static void Open(const NB_TBL* table, const char* title = "Chroma")
    {
        NB_Create(table, title);
        while (NB_GetLayer() != 0) // where an earlier test left it
            PressTitle();
        Forget();
    }
    static int Middle(int slot) { return 127 + 82 * (slot - 1) + 40; } // y of a slot
    static void PressSlot(int slot, int button = 1)
    {
        SendMessage(MSG_PRESS, 750, Middle(slot), button, 0);
    }
    static int PressTitle() // the layer then
    {
        SendMessage(MSG_PRESS, 750, 100, 1, 0);
        return NB_GetLayer();
    }
    static void Drag(int x, bool left, bool right) { SendMessage(MSG_DRAG, x, 300, left, right); }
    static Strings Dragged(int x, bool left, bool right) // what it sends
    {
        Drag(x, left, right);
        return TakeQueuedCommands();
    }
    static void Wheel(int msg, int slot) { SendMessage(msg, 750, Middle(slot), 0, 0); }

    // The shown value of a box by its caption; NAN for none of that caption.
    static double Shown(const char* caption)
    {
        char path[CMD_SIZE];
        double v = 0;
        return NB_GetKnob_info(caption, path, &v, sizeof path) < 0 ? double(NAN) : v;
    }
};
