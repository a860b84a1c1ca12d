// menu_macro_private: what the files of menu_macro share with each other and with the editor's
// page.
#pragma once
#include "menu_macro.h"

constexpr char MM_PAUSE[] = "Event@Pause Set#"; // a pause event: seconds behind it
constexpr char MM_LOCAL[] = "Local#";           // an action of this menu: its text behind it

// --- menu_macro: events and lists. All of them leave things as they are when memory is out ---
extern MACRO_REGISTER_DATA reg_data[MENU_MACRO_REGISTERS];
extern MACRO_WAITTIME_DATA RegDataWaitList[MENU_MACRO_REGISTERS];

// The event becomes this one command; with the channels of now. 0 or -1.
int mm_event_begin(CURRENT_EVENT_DATA& event, const char* line);
// A further command. 0; -1 when the event is full.
int mm_event_append(CURRENT_EVENT_DATA& event, const char* line);
void mm_event_free(CURRENT_EVENT_DATA& event);
// The n-th command from 0, or null.
const char* mm_event_command(const CURRENT_EVENT_DATA& event, int n);
// The same into out, offset characters on. Mode 1 is for display: without the line end and "put ",
// and "default X" as "X#default". 0, or -1 when there is no such command.
int mm_event_get(int mode, int n, const CURRENT_EVENT_DATA& event, char* out, int offset, int size);
// Ms of a pause event; -1: it is none.
int mm_event_pause(const CURRENT_EVENT_DATA& event);
void mm_event_remove_command(CURRENT_EVENT_DATA& event, int n);

// A copy of the event as a node behind another one; null puts it first. Null when memory is out.
CURRENT_REGISTER_DATA* mm_list_insert(CURRENT_REGISTER_DATA*& first, CURRENT_REGISTER_DATA* behind,
                                      const CURRENT_EVENT_DATA& event);
void mm_list_remove(CURRENT_REGISTER_DATA*& first, CURRENT_REGISTER_DATA* node);
void mm_current_register_all_dele(CURRENT_REGISTER_DATA*& first); // frees a list
CURRENT_REGISTER_DATA* mm_list_copy(const CURRENT_REGISTER_DATA* first);
int mm_list_events(const CURRENT_REGISTER_DATA* first);
int mm_list_commands(const CURRENT_REGISTER_DATA* first);

MACRO_REGISTER_DATA* mm_register(int no); // null out of range; its file has been read
bool mm_register_begins_read(int no);     // false out of range
void mm_default_name(int no, char (&name)[MENU_MACRO_NAME]);
// The list becomes that of register no, which is written to its file. 0; -1: it is locked, or its
// file could not be written.
int mm_register_store(int no, const CURRENT_REGISTER_DATA* list);
void mm_register_told(int no); // pages that show it look again

// --- menu_macro_file ---
// What a file says; the list is the reader's until somebody takes it.
struct MacroReader {
    MACRO_REGISTER_DATA reg;
    CURRENT_REGISTER_DATA* last = nullptr;
    int interval = MENU_MACRO_INTERVAL;
    unsigned RefCH = 0;
    unsigned SelCH = 0;
    int events = 0;
    int left_out = 0; // lines that had no room or no sense
};
void mm_read_line(MacroReader& reader, const char* line); // without its line end
int mm_register2hdd_bk_file(int no, const char* path);    // 0 also for an empty one; -1
void mm_file_remove(int no);                              // the backup copy

// --- menu_macro_tap ---
const CURRENT_EVENT_DATA& mm_last_event(); // of the last touch
int mm_last_event_ms();                    // when it began, on the clock of mm_clock_pass
void mm_tap_touch();                       // what follows is a touch of its own
void mm_tap_hold(bool on);                 // nothing is recorded until off
void mm_tap_reset();
void mm_clock_pass(int elapsed_ms); // a clock that counts while the program runs

// --- menu_macro_run ---
void mm_run_event_one_exec(const CURRENT_EVENT_DATA& event); // send its commands
void mm_run_reset();

// --- menu_macro_edit ---
constexpr int MM_ROW_DATA = 512;
struct REGISTER_DATA { // a row of the list: a command
    char no[5] = "";
    uint8_t event_no = 0; // from 1
    char event_no_str[4] = "";
    char event_dt[MM_ROW_DATA] = "";
};
extern REGISTER_DATA register_list[MENU_MACRO_LINES];

struct MenuMacroEdit {
    CURRENT_REGISTER_DATA* list = nullptr;
    CURRENT_REGISTER_DATA* now = nullptr; // the cursor; null: before the first
    int reg = 0;                          // number of the register that it came from
    int rows = 0;                         // of register_list
    int register_event_max = 0;           // events
    int revision = 0;                     // another one whenever the list has changed
    bool is_edited = false;               // since it was stored
    bool is_full = false;                 // an event has been left out for want of room
    bool is_full_told = false;
};
extern MenuMacroEdit mm_edit; // while GL_MenuMacro_Edit is 1

void mm_edit_open(int reg); // recording begins, on a copy of the register
void mm_edit_pass();        // once a pass: tells what the operator must know
void mm_edit_close();       // and ends; what is not stored is lost
int mm_event_set_after(
    const CURRENT_EVENT_DATA& event); // behind the cursor, which follows. 0 or -1
int mm_event_set_befor(const CURRENT_EVENT_DATA& event);
void mm_event_set_contnue(const char* line); // a further command of the event at the cursor
int mm_event_modify(const CURRENT_EVENT_DATA& event); // in place of the one at the cursor
void mm_event_delete(int line, bool is_whole_event);
int mm_pause_insert(double seconds);            // a pause behind the cursor
void mm_pause_modify(int line, double seconds); // only where the line is a pause
// register_list anew from the list. Returns its rows.
int mm_register_data_disp_tbl_set();
// The event of a line of the list, null without one; command gets the number of its command.
CURRENT_REGISTER_DATA* MM_Register_Eidt_line2now_line(int line, int* command = nullptr);
int mm_edit_now_line();                 // the first line of the event at the cursor; 0 without one
int mm_edit_now_event();                // its number from 1; 0 before the first
int mm_current_register_store(int reg); // 0; -1: locked, or not written
