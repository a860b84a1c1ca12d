// The list that is edited: a copy of a register. What is recorded goes behind the cursor, which
// follows; the register changes when the list is stored.
#include "a_ba.h"
#include "global.h"
#include "menu_macro_private.h"
#include "pane.h"
#include "text.h"
#include <algorithm>
#include <cstring>

#include "safeguards.h"

REGISTER_DATA register_list[MENU_MACRO_LINES];
MenuMacroEdit mm_edit;

static struct {
    bool has_recorded = false; // an event has gone in since the list was opened
    int recorded_ms = 0;       // when the touch of the last one was
    const CURRENT_REGISTER_DATA* recorded = nullptr; // that one, while it is in the list
} session;

// --- Opening and closing ---

void mm_edit_open(int reg)
{
    mm_edit_close();
    const MACRO_REGISTER_DATA* const data = mm_register(reg - 1);
    mm_edit.reg = data ? reg : 1;
    mm_edit.list = data ? mm_list_copy(data->register_data) : nullptr;
    for (CURRENT_REGISTER_DATA* node = mm_edit.list; node; node = node->next)
        mm_edit.now = node; // what is recorded goes on behind the last
    mm_edit.register_event_max = mm_list_events(mm_edit.list);
    GL_MenuMacro_Edit = 1;
    GL_MM_AT_Store_Enable = 1;
    mm_tap_reset();
}

void mm_edit_close()
{
    mm_current_register_all_dele(mm_edit.list);
    mm_edit = {};
    session = {};
    GL_MenuMacro_Edit = 0;
    GL_MM_AT_Store_Enable = 0;
}

// The tap cannot say it: a pane closes windows and sends.
void mm_edit_pass()
{
    if (!mm_edit.is_full || mm_edit.is_full_told)
        return;
    mm_edit.is_full_told = true;
    (void)PaneMessage_Create("Menu Macro", PANE_ALERT,
                             "The menu macro is full.\n\nWhat you do now is not recorded.");
}

// --- Changing the list ---

static void edited()
{
    mm_edit.register_event_max = mm_list_events(mm_edit.list);
    mm_edit.is_edited = true;
    mm_edit.revision++;
    BA_RedrawMenuMacro();
}

static bool has_room(int events, int commands)
{
    const bool fits = mm_edit.register_event_max + events <= MENU_MACRO_EVENTS &&
                      mm_list_commands(mm_edit.list) + commands <= MENU_MACRO_LINES;
    mm_edit.is_full |= !fits;
    return fits;
}

static int insert_behind(CURRENT_REGISTER_DATA* behind, const CURRENT_EVENT_DATA& event)
{
    if (event.protcol_cnt == 0 || !has_room(1, event.protcol_cnt)) {
        BA_RedrawMenuMacro();
        return -1;
    }
    CURRENT_REGISTER_DATA* const node = mm_list_insert(mm_edit.list, behind, event);
    if (!node)
        return -1;
    mm_edit.now = node;
    edited();
    return 0;
}

static int insert_pause(int ms)
{
    char line[64];
    CURRENT_EVENT_DATA event;
    PrintText(line, "%s%.1f\n", MM_PAUSE, ms / 1000.0);
    const int result = mm_event_begin(event, line) == 0 ? insert_behind(mm_edit.now, event) : -1;
    mm_event_free(event);
    return result;
}

// The time between two touches goes in between them. Before the first touch of a session nothing
// has been measured.
static void insert_measured_pause()
{
    constexpr int DEFAULT_MS = 500, SHORTEST_MS = 50;
    const int ms = session.has_recorded ? mm_last_event_ms() - session.recorded_ms : DEFAULT_MS;
    const bool has_pause = mm_edit.now && mm_event_pause(mm_edit.now->event_data) >= 0;
    if (mm_edit.now && !has_pause && ms >= SHORTEST_MS)
        (void)insert_pause(std::min(ms, MENU_MACRO_INTERVAL_MAX)); // a full list is told
}

int mm_event_set_after(const CURRENT_EVENT_DATA& event)
{
    const bool is_recorded = &event == &mm_last_event() && mm_event_pause(event) < 0;
    if (is_recorded && GL_MM_Pause_AT_Insert)
        insert_measured_pause();
    session.recorded = nullptr; // without room what follows of the touch is left out, too
    if (insert_behind(mm_edit.now, event) != 0)
        return -1;
    if (is_recorded)
        session = {true, mm_last_event_ms(), mm_edit.now};
    return 0;
}

int mm_event_set_befor(const CURRENT_EVENT_DATA& event)
{
    return insert_behind(mm_edit.now ? mm_edit.now->befor : nullptr, event);
}

void mm_event_set_contnue(const char* line)
{
    const bool is_open = mm_edit.now && mm_edit.now == session.recorded;
    if (!is_open || !has_room(0, 1))
        return;
    (void)mm_event_append(mm_edit.now->event_data, line); // the tap has looked for room
    edited();
}

// The key of the base area.
void mm_event_insert()
{
    if (GL_MenuMacro_Edit == 1)
        (void)mm_event_set_after(mm_last_event()); // a full list is told
}

int mm_event_modify(const CURRENT_EVENT_DATA& event)
{
    CURRENT_REGISTER_DATA* const old = mm_edit.now;
    if (!old)
        return -1;
    if (insert_behind(old, event) != 0)
        return -1;
    mm_list_remove(mm_edit.list, old);
    edited();
    return 0;
}

static void remove_event(CURRENT_REGISTER_DATA* node)
{
    if (mm_edit.now == node)
        mm_edit.now = node->befor ? node->befor : node->next;
    session.recorded = nullptr;
    mm_list_remove(mm_edit.list, node);
}

void mm_event_delete(int line, bool is_whole_event)
{
    int command = 0;
    CURRENT_REGISTER_DATA* const node = MM_Register_Eidt_line2now_line(line, &command);
    if (!node)
        return;
    if (is_whole_event || node->event_data.protcol_cnt < 2)
        remove_event(node);
    else
        mm_event_remove_command(node->event_data, command);
    mm_edit.is_full = mm_edit.is_full_told = false;
    edited();
}

int mm_pause_insert(double seconds)
{
    return insert_pause(int(seconds * 1000 + 0.5));
}

void mm_pause_modify(int line, double seconds)
{
    CURRENT_REGISTER_DATA* const node = MM_Register_Eidt_line2now_line(line);
    if (!node || mm_event_pause(node->event_data) < 0)
        return;
    char text[64];
    PrintText(text, "%s%.1f\n", MM_PAUSE, seconds);
    (void)mm_event_begin(node->event_data, text); // without memory the old one stays
    edited();
}

// --- As a list of lines ---

int mm_register_data_disp_tbl_set()
{
    int row = 0;
    int event = 0;
    for (const CURRENT_REGISTER_DATA* node = mm_edit.list; node; node = node->next) {
        event++;
        for (int n = 0; n < node->event_data.protcol_cnt && row < MENU_MACRO_LINES; n++, row++) {
            REGISTER_DATA& line = register_list[row];
            PrintText(line.no, "%d", row + 1);
            line.event_no = uint8_t(event);
            PrintText(line.event_no_str, "%d", std::min(event, MENU_MACRO_EVENTS));
            (void)mm_event_get(1, n, node->event_data, line.event_dt, 0, sizeof line.event_dt);
        }
    }
    mm_edit.rows = row;
    return row;
}

CURRENT_REGISTER_DATA* MM_Register_Eidt_line2now_line(int line, int* command)
{
    for (CURRENT_REGISTER_DATA* node = mm_edit.list; node && line >= 0; node = node->next) {
        if (line < node->event_data.protcol_cnt) {
            if (command)
                *command = line;
            return node;
        }
        line -= node->event_data.protcol_cnt;
    }
    return nullptr;
}

int mm_edit_now_line()
{
    int line = 0;
    for (const CURRENT_REGISTER_DATA* node = mm_edit.list; node; node = node->next) {
        if (node == mm_edit.now)
            return line;
        line += node->event_data.protcol_cnt;
    }
    return 0;
}

int mm_edit_now_event()
{
    int event = 0;
    for (const CURRENT_REGISTER_DATA* node = mm_edit.list; node; node = node->next) {
        event++;
        if (node == mm_edit.now)
            return event;
    }
    return 0;
}

MenuMacroDisplay mm_display()
{
    MenuMacroDisplay d;
    if (GL_MenuMacro_Run) {
        const MenuMacroRun run = mm_current_macro_status();
        d.is_run = true;
        d.reg = run.reg;
        d.event = run.event;
        d.events = run.events;
        d.wait_ms = run.wait_ms;
        d.remain = run.remain;
    } else {
        d.reg = mm_edit.reg;
        d.event = mm_edit_now_event();
        d.events = mm_edit.register_event_max;
        (void)mm_event_get(1, 0, mm_last_event(), d.command, 0, sizeof d.command); // else empty
    }
    d.name = mm_register_table(d.reg - 1).name;
    return d;
}

// --- Into a register ---

int mm_current_register_store(int reg)
{
    if (mm_register_store(reg - 1, mm_edit.list) != 0)
        return -1;
    mm_edit.reg = reg;
    mm_edit.is_edited = false;
    BA_RedrawMenuMacro();
    return 0;
}
