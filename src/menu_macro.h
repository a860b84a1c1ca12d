// menu_macro: recording and replay of what the operator does in this menu: the commands that his
// touches sent, grouped by touch, with the pauses between them. Registers live in this unit alone
// and are kept as files. The pages are pc_menu_macro (registers) and pc_menu_macro_edit; what a
// command means is no concern here.
//
// An event is what one touch sent, or a pause. A register is a list of events in the order of play.
// There are three lists beside those of the registers: the one that is edited (menu_macro_edit),
// the one that runs (menu_macro_run), and the event of the last touch (menu_macro_tap); each is a
// copy of its own, so a register may change under them.
#pragma once
#include "types.h"

constexpr int MENU_MACRO_REGISTERS = 99; // a tally names one by its number, up to this one
constexpr int MENU_MACRO_NAME = 9;       // with its terminator
constexpr int MENU_MACRO_COMMANDS = 255; // of an event
constexpr int MENU_MACRO_EVENTS = 255;   // of a register
constexpr int MENU_MACRO_LINES = 1024;   // commands of a register
constexpr int MENU_MACRO_INTERVAL = 500; // ms between events where a register says nothing else
constexpr int MENU_MACRO_INTERVAL_MAX = 99990; // ms, also of a pause

// One event: commands with their line ends, each with a NUL behind it.
struct CURRENT_EVENT_DATA {
    unsigned RefCH = 0; // the channels of the effects when it was recorded; 0: none were told
    unsigned SelCH = 0;
    uint16_t protcol_cnt = 0;   // commands
    uint16_t data_byte = 0;     // bytes of event_data
    char* event_data = nullptr; // on the heap, owned; null while there are none
};
struct CURRENT_REGISTER_DATA {
    CURRENT_REGISTER_DATA* befor = nullptr;
    CURRENT_REGISTER_DATA* next = nullptr;
    CURRENT_EVENT_DATA event_data;
};
struct MACRO_REGISTER_DATA {
    int register_protcol_max = 0; // commands of all events
    char name[MENU_MACRO_NAME] = "";
    uint8_t lock = 0;
    CURRENT_REGISTER_DATA* register_data = nullptr; // the first event, owned; null: empty
};
struct MACRO_WAITTIME_DATA {
    uint8_t change = 0;             // differs from the file
    int time = MENU_MACRO_INTERVAL; // ms
};
// What the lists show of a register.
struct MMACRO_REGISTER_TBL {
    int protcol_event_max = 0; // events
    const char* name = "";
    int lock = 0;
    int empty = 1;
};

// --- Switches ---
extern int SL_Reg_Recycle;         // what a run sends is recorded, too
extern int GL_MM_AT_Store_Enable;  // Auto Insert is offered: a list is being edited
extern int GL_MenuMacroUnrestrict; // record what is refused otherwise
extern int GL_MM_Pause_AT_Insert;  // put the pauses between touches in, as they were

// --- For netio ---
// Every outgoing command passes here with its line end; costs next to nothing while nothing is
// recorded.
void mm_protcol_get(const char* line);
// 1 opens an event of its own (a pause), 0 joins the event of the touch, -1 is not recorded.
int mm_protcol_invalid_check(const char* line);

// --- Registers: no counts from 0; out of range is empty and refuses (-1) ---
MMACRO_REGISTER_TBL mm_register_table(int no);
int mm_register_interval(int no);              // ms between events
bool mm_register_is_changed(int no);           // the interval is not in the file yet
void mm_register_set_interval(int no, int ms); // clamped; the file follows with the next save
// The same as the mirror of the server's registers has it; there is one row.
int Register_Exist_MenuMacro(int row, int no);
int Register_Lock_MenuMacro(int row, int no);
const char* Register_Name_MenuMacro(int row, int no);
const char* Register_Tally_MenuMacro(int row, int no); // the number
// From and to are numbers from 1, as the operator sees them; a locked register stays as it is but
// for lock.
void mm_lock_exec(int from, int to, bool on);
void mm_delete_delete_exec(int from, int to);
void mm_rename_exec(int number, const char* name); // an empty name: the default one
void mm_copy_exec(int from, int to, int target, bool wo_name);
void MM_Register_Data_All_Delete(); // every register of this menu becomes empty, locked or not
void mm_registers_free();           // memory only, as before the start; for tests

// --- Files ---
int mm_macro_file_load(int n); // register n (0..98) from its file; 0, or -1 when there is none
// Write register n; an empty one writes nothing. 0, or -1 when it could not be written.
int mm_macro_file_save(int n);
// A register on its way to or from a drive, as /var/tmp/MenuMacro/mm_reg<nn>.tmp. The paths may
// begin with a host. 0, or -1 when there is nothing to write or the file is none, or the register
// is locked.
int mm_macro_tmpfile_save(const char* tmp);
int mm_macro_tmpfile_load(const char* src, const char* tmp);
// A copy from src to dst is about to begin, one of them such a temporary: it is written, or its
// folder made. Where that fails the copy fails, which is told.
void mm_macro_tmpfile_prepare(const char* src, const char* dst);
void mm_macro_tmpfile_del(int n); // the temporary of register n (0..98)

// --- Run ---
// Run register reg (number from 1) from its first event; 0 stops. An empty one is ignored.
void mm_macro_run(int reg);
void MM_macro_ext_stop(); // from anywhere; where it stands is kept
// For info: the time of a run, and the stop key of other pages.
void menu_macro_run_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
// Take a register for running, or start what was taken, from where it stands.
int mm_current_macro_recall(int reg); // 0, or -1: it is empty
void mm_current_macro_run();
void mm_current_macro_stop();
void mm_current_macro_rewind();
struct MenuMacroRun {
    int reg = 0;   // number, 0: nothing has been taken
    int event = 0; // events sent
    int events = 0;
    int wait_ms = 0;   // until the next one, while it runs
    double remain = 0; // percent of its time that is still to come
};
MenuMacroRun mm_current_macro_status();

// --- For the base area: the list that is edited ---
struct MenuMacroDisplay {
    bool is_run = false; // otherwise it is edited
    int reg = 0;
    const char* name = "";
    int event = 0;
    int events = 0;
    int wait_ms = 0;
    double remain = 0;
    char command[64] = ""; // the first one of the last touch
};
MenuMacroDisplay mm_display();
void mm_event_insert(); // the event of the last touch goes behind the cursor
