// The run of a register: event by event, with the waits between them. It has a list of its own, so
// that the register may be changed, deleted or edited meanwhile. An event follows only when the one
// before has left for the server: while the link is down a run holds, instead of catching up in a
// burst when it returns.
#include "a_ba.h"
#include "bus.h"
#include "global.h"
#include "log.h"
#include "menu_macro_private.h"
#include "message.h"
#include "netio.h"
#include "tally_value.h"
#include "text.h"
#include <algorithm>

#include "safeguards.h"

static struct {
    CURRENT_REGISTER_DATA* first = nullptr;
    CURRENT_REGISTER_DATA* next = nullptr; // the event that is sent next; null: behind the last
    int reg = 0;                           // number; 0: nothing has been taken
    int interval = MENU_MACRO_INTERVAL;    // of the register
    int event = 0;                         // events sent
    int events = 0;
    int wait_ms = 0;  // until the next one
    int total_ms = 0; // of all waits
    int done_ms = 0;  // of the waits of what has been sent
} run;

// --- Waits ---

// A pause behind an event stands in place of the interval; nothing waits behind the last.
static int wait_behind(const CURRENT_REGISTER_DATA& node)
{
    const int pause = mm_event_pause(node.event_data);
    if (pause >= 0)
        return pause;
    return node.next && mm_event_pause(node.next->event_data) < 0 ? run.interval : 0;
}

static int total_wait()
{
    int ms = 0;
    for (const CURRENT_REGISTER_DATA* node = run.first; node; node = node->next)
        ms += wait_behind(*node);
    return ms;
}

// --- What an event sends ---

static void restore_channels(const char* path, unsigned recorded, int now)
{
    if (recorded != 0 && recorded != unsigned(now))
        Net_SendCommandFormat("put %s#%d", path, int(recorded));
}

// As its button would. What the page does may end this run, so it stands in an event of its own.
static void act_locally(const char* action)
{
    char text[CMD_SIZE];
    PrintText(text, "%.*s", int(strcspn(action, "\r\n")), action);
    SendMessage(LMSG_BTNSEL, Arg(text), Arg(""), 0, 0);
}

static void send_line(const char* line)
{
    char command[CMD_SIZE];
    PrintText(command, "%.*s", int(strcspn(line, "\r\n")), line);
    Net_SendCommand(command);
}

void mm_run_event_one_exec(const CURRENT_EVENT_DATA& event)
{
    if (mm_event_pause(event) >= 0) {
        if (GL_MenuMacro_Run && !GL_MM_Pause_AT_Insert)
            mm_protcol_get(event.event_data); // recorded like the rest, where that is on
        return;
    }
    mm_tap_hold(true); // the event has its channels beside its commands
    if (BeginsWith(event.event_data, MM_LOCAL)) {
        act_locally(event.event_data + strlen(MM_LOCAL));
        return;
    }
    restore_channels("Info@DME@RefCH", event.RefCH, SYS_DMEReference);
    restore_channels("Info@DME@SelCH", event.SelCH, SYS_DMEChannel);
    mm_tap_hold(false);
    mm_tap_touch();
    for (int n = 0; n < event.protcol_cnt; n++)
        send_line(mm_event_command(event, n));
}

// --- The run ---

static void set_running(int on)
{
    if (GL_MenuMacro_Run == on)
        return;
    GL_MenuMacro_Run = on;
    mm_tap_touch(); // what the operator does next is not the last event's
    BA_RedrawMenuMacro();
}

void mm_current_macro_rewind()
{
    run.next = run.first;
    run.event = run.done_ms = run.wait_ms = 0;
    BA_RedrawMenuMacro();
}

int mm_current_macro_recall(int reg)
{
    const MACRO_REGISTER_DATA* const data = mm_register(reg - 1);
    CURRENT_REGISTER_DATA* const copy = data ? mm_list_copy(data->register_data) : nullptr;
    if (!copy)
        return -1;
    mm_current_macro_stop();
    mm_current_register_all_dele(run.first);
    run = {.first = copy,
           .reg = reg,
           .interval = mm_register_interval(reg - 1),
           .events = mm_list_events(copy)};
    run.total_ms = total_wait();
    mm_current_macro_rewind();
    return 0;
}

void mm_current_macro_run()
{
    if (!run.first)
        return;
    if (!run.next)
        mm_current_macro_rewind();
    set_running(1);
}

// What is left of a wait is waited when the run goes on.
void mm_current_macro_stop()
{
    set_running(0);
}

void MM_macro_ext_stop()
{
    mm_current_macro_stop();
}

void mm_macro_run(int reg)
{
    if (reg <= 0) {
        MM_macro_ext_stop();
        return;
    }
    if (mm_current_macro_recall(reg) != 0) {
        Log_Output(LOG_LINK, MOD_GLOBAL, "Menu macro %d is empty", reg);
        return;
    }
    mm_current_macro_run();
}

static void finish()
{
    set_running(0);
    mm_current_macro_rewind();
}

static void show_wait(int before_ms)
{
    constexpr int SHOWN_MS = 100; // the display counts in tenths
    if (before_ms / SHOWN_MS != run.wait_ms / SHOWN_MS)
        BA_RedrawMenuMacro();
}

static bool is_pause_next()
{
    return run.next && mm_event_pause(run.next->event_data) >= 0;
}

static void exec_next()
{
    const CURRENT_REGISTER_DATA* const node = run.next;
    const int wait = wait_behind(*node);
    run.next = node->next;
    run.event++;
    run.done_ms += wait;
    run.wait_ms += wait;
    BA_RedrawMenuMacro();
    mm_run_event_one_exec(node->event_data); // last: it may stop this run or begin another
}

// At most one event a pass, and the pause behind it: what one touch has sent stays together, and
// apart from the next.
static void mm_auto_run_exec(int elapsed_ms)
{
    constexpr int LATE_MAX = 20; // ms that one wait owes the next; a halt is not caught up with
    if (!GL_MenuMacro_Run || Net_QueueLength() > 0)
        return;
    const int before_ms = run.wait_ms;
    run.wait_ms = before_ms > 0 ? std::max(before_ms - elapsed_ms, -LATE_MAX) : 0;
    if (run.wait_ms > 0) {
        show_wait(before_ms);
        return;
    }
    if (!run.next) {
        finish();
        return;
    }
    do
        exec_next();
    while (GL_MenuMacro_Run && run.wait_ms <= 0 && is_pause_next());
}

MenuMacroRun mm_current_macro_status()
{
    MenuMacroRun s = {.reg = run.reg, .event = run.event, .events = run.events};
    s.wait_ms = std::max(run.wait_ms, 0);
    const int left_ms = run.total_ms - run.done_ms + s.wait_ms;
    s.remain = run.total_ms > 0 ? 100.0 * std::clamp(left_ms, 0, run.total_ms) / run.total_ms
               : run.events > 0 ? 100.0 * (run.events - run.event) / run.events
                                : 0;
    return s;
}

void mm_run_reset()
{
    mm_current_register_all_dele(run.first);
    run = {};
    GL_MenuMacro_Run = 0;
}

void menu_macro_run_proc(int msg, MsgArg ax, MsgArg, MsgArg, MsgArg)
{
    if (msg == MSG_REDRAW) {
        mm_clock_pass(int(ax));
        mm_auto_run_exec(int(ax));
        mm_edit_pass();
    } else if (msg == LMSG_BTNSEL && ax && Same(Text(ax), "LOCAL@MenuMacro@Stop")) {
        MM_macro_ext_stop();
    }
}
