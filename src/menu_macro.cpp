// The registers, and the events and lists that they consist of.
#include "bus.h"
#include "global.h"
#include "log.h"
#include "memory.h"
#include "menu_macro_private.h"
#include "message.h"
#include "register.h"
#include "text.h"
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <iterator>

#include "safeguards.h"

int SL_Reg_Recycle = 0;
int GL_MM_AT_Store_Enable = 0;
int GL_MenuMacroUnrestrict = 0;
int GL_MM_Pause_AT_Insert = 0;

MACRO_REGISTER_DATA reg_data[MENU_MACRO_REGISTERS];
MACRO_WAITTIME_DATA RegDataWaitList[MENU_MACRO_REGISTERS];

// --- Events ---

static bool no_memory()
{
    Log_Output(LOG_ALWAYS, MOD_GLOBAL, "Menu macro: no memory");
    return false;
}

static bool event_room(CURRENT_EVENT_DATA& event, size_t bytes)
{
    char* const data = static_cast<char*>(GDL_Realloc(event.event_data, bytes));
    if (!data)
        return no_memory();
    event.event_data = data;
    return true;
}

int mm_event_begin(CURRENT_EVENT_DATA& event, const char* line)
{
    const size_t size = strlen(line) + 1;
    if (size > UINT16_MAX || !event_room(event, size))
        return -1;
    memcpy(event.event_data, line, size);
    event.protcol_cnt = 1;
    event.data_byte = uint16_t(size);
    event.RefCH = unsigned(SYS_DMEReference);
    event.SelCH = unsigned(SYS_DMEChannel);
    return 0;
}

int mm_event_append(CURRENT_EVENT_DATA& event, const char* line)
{
    const size_t size = strlen(line) + 1;
    if (event.protcol_cnt >= MENU_MACRO_COMMANDS || event.data_byte + size > UINT16_MAX ||
        !event_room(event, event.data_byte + size))
        return -1;
    memcpy(event.event_data + event.data_byte, line, size);
    event.protcol_cnt++;
    event.data_byte = uint16_t(event.data_byte + size);
    return 0;
}

void mm_event_free(CURRENT_EVENT_DATA& event)
{
    GDL_Free(event.event_data);
    event = {};
}

const char* mm_event_command(const CURRENT_EVENT_DATA& event, int n)
{
    if (n < 0 || n >= event.protcol_cnt)
        return nullptr;
    const char* at = event.event_data;
    while (n-- > 0)
        at += strlen(at) + 1;
    return at;
}

// "put A#1" is A#1, "default A" is A#default.
static void text_for_display(const char* line, char (&text)[CMD_SIZE + 16])
{
    constexpr char PUT[] = "put ", DEFAULT[] = "default ";
    const bool is_default = BeginsWith(line, DEFAULT);
    CopyText(text, line + (is_default ? strlen(DEFAULT) : BeginsWith(line, PUT) ? strlen(PUT) : 0));
    text[strcspn(text, "\r\n")] = '\0';
    if (is_default)
        AppendText(text, "#default");
}

int mm_event_get(int mode, int n, const CURRENT_EVENT_DATA& event, char* out, int offset, int size)
{
    const char* const line = mm_event_command(event, n);
    if (!line || offset < 0 || size < 1)
        return -1;
    char text[CMD_SIZE + 16];
    if (mode == 1)
        text_for_display(line, text);
    else
        CopyText(text, line);
    ktr_strncpy(out, text + std::min(size_t(offset), strlen(text)), size_t(size));
    return 0;
}

int mm_event_pause(const CURRENT_EVENT_DATA& event)
{
    if (event.protcol_cnt == 0 || !BeginsWith(event.event_data, MM_PAUSE))
        return -1;
    const double ms = strtod(event.event_data + sizeof MM_PAUSE - 1, nullptr) * 1000;
    return std::isfinite(ms) ? int(std::clamp(ms, 0.0, double(MENU_MACRO_INTERVAL_MAX)) + 0.5) : 0;
}

void mm_event_remove_command(CURRENT_EVENT_DATA& event, int n)
{
    const char* const line = mm_event_command(event, n);
    if (!line)
        return;
    const size_t size = strlen(line) + 1;
    const size_t at = size_t(line - event.event_data);
    memmove(event.event_data + at, line + size, event.data_byte - at - size);
    event.data_byte = uint16_t(event.data_byte - size);
    event.protcol_cnt--;
}

// --- Lists ---

static CURRENT_REGISTER_DATA* new_node(const CURRENT_EVENT_DATA& event)
{
    auto* const node =
        static_cast<CURRENT_REGISTER_DATA*>(GDL_Calloc(1, sizeof(CURRENT_REGISTER_DATA)));
    char* const data = static_cast<char*>(GDL_Malloc(std::max<size_t>(event.data_byte, 1)));
    if (!node || !data) {
        GDL_Free(node);
        GDL_Free(data);
        (void)no_memory();
        return nullptr;
    }
    memcpy(data, event.event_data, event.data_byte);
    node->event_data = event;
    node->event_data.event_data = data;
    return node;
}

CURRENT_REGISTER_DATA* mm_list_insert(CURRENT_REGISTER_DATA*& first, CURRENT_REGISTER_DATA* behind,
                                      const CURRENT_EVENT_DATA& event)
{
    if (event.protcol_cnt == 0)
        return nullptr;
    CURRENT_REGISTER_DATA* const node = new_node(event);
    if (!node)
        return nullptr;
    CURRENT_REGISTER_DATA*& link = behind ? behind->next : first;
    node->befor = behind;
    node->next = link;
    if (node->next)
        node->next->befor = node;
    link = node;
    return node;
}

void mm_list_remove(CURRENT_REGISTER_DATA*& first, CURRENT_REGISTER_DATA* node)
{
    (node->befor ? node->befor->next : first) = node->next;
    if (node->next)
        node->next->befor = node->befor;
    mm_event_free(node->event_data);
    GDL_Free(node);
}

void mm_current_register_all_dele(CURRENT_REGISTER_DATA*& first)
{
    while (first)
        mm_list_remove(first, first);
}

CURRENT_REGISTER_DATA* mm_list_copy(const CURRENT_REGISTER_DATA* first)
{
    CURRENT_REGISTER_DATA* copy = nullptr;
    CURRENT_REGISTER_DATA* last = nullptr;
    for (; first; first = first->next) {
        last = mm_list_insert(copy, last, first->event_data);
        if (!last) { // half a macro is none
            mm_current_register_all_dele(copy);
            return nullptr;
        }
    }
    return copy;
}

int mm_list_events(const CURRENT_REGISTER_DATA* first)
{
    int n = 0;
    for (; first; first = first->next)
        n++;
    return n;
}

int mm_list_commands(const CURRENT_REGISTER_DATA* first)
{
    int n = 0;
    for (; first; first = first->next)
        n += first->event_data.protcol_cnt;
    return n;
}

// --- Registers ---

static bool is_read[MENU_MACRO_REGISTERS]; // its file has been looked for

bool mm_register_begins_read(int no)
{
    const bool is_one = no >= 0 && no < MENU_MACRO_REGISTERS;
    if (is_one)
        is_read[no] = true;
    return is_one;
}

// The start reads all registers late. Who comes earlier must not take one for empty that is not.
MACRO_REGISTER_DATA* mm_register(int no)
{
    if (no < 0 || no >= MENU_MACRO_REGISTERS)
        return nullptr;
    if (!is_read[no])
        (void)mm_macro_file_load(no); // most registers have none
    return &reg_data[no];
}

void mm_default_name(int no, char (&name)[MENU_MACRO_NAME])
{
    PrintText(name, "MMCR%0d", no + 1);
}

// A register that nobody has named yet has its default name.
static void complete_name(int no)
{
    if (*reg_data[no].name == '\0')
        mm_default_name(no, reg_data[no].name);
}

MMACRO_REGISTER_TBL mm_register_table(int no)
{
    const MACRO_REGISTER_DATA* const reg = mm_register(no);
    if (!reg)
        return {};
    complete_name(no);
    return {.protcol_event_max = mm_list_events(reg->register_data),
            .name = reg->name,
            .lock = reg->lock,
            .empty = !reg->register_data};
}

int Register_Exist_MenuMacro(int, int no)
{
    return !mm_register_table(no).empty;
}

int Register_Lock_MenuMacro(int, int no)
{
    return mm_register_table(no).lock;
}

const char* Register_Name_MenuMacro(int, int no)
{
    return mm_register_table(no).name;
}

const char* Register_Tally_MenuMacro(int, int no)
{
    return NumStr(no + 1);
}

int mm_register_interval(int no)
{
    return mm_register(no) ? RegDataWaitList[no].time : MENU_MACRO_INTERVAL;
}

bool mm_register_is_changed(int no)
{
    return mm_register(no) && RegDataWaitList[no].change;
}

void mm_register_set_interval(int no, int ms)
{
    ms = std::clamp(ms, 0, MENU_MACRO_INTERVAL_MAX);
    if (!mm_register(no) || RegDataWaitList[no].time == ms)
        return;
    RegDataWaitList[no] = {1, ms};
    mm_register_told(no);
}

void mm_register_told(int no)
{
    SendMessage(LMSG_REGISTER, REGISTER_MENU_MACRO, 0, no, 0);
}

// The list is the register's from now on. Counts and file follow.
static int take_list(int no, CURRENT_REGISTER_DATA* list)
{
    MACRO_REGISTER_DATA& reg = reg_data[no];
    mm_current_register_all_dele(reg.register_data);
    reg.register_data = list;
    reg.register_protcol_max = mm_list_commands(list);
    complete_name(no);
    if (!list)
        mm_file_remove(no); // it would be back after a restart
    const int result = mm_macro_file_save(no);
    mm_register_told(no);
    return result;
}

int mm_register_store(int no, const CURRENT_REGISTER_DATA* list)
{
    const MACRO_REGISTER_DATA* const reg = mm_register(no);
    if (!reg || reg->lock)
        return -1;
    CURRENT_REGISTER_DATA* const copy = mm_list_copy(list);
    if (list && !copy)
        return -1;
    return take_list(no, copy);
}

template <typename Act> static void each_number(int from, int to, Act act)
{
    for (int number = std::max(from, 1); number <= std::min(to, MENU_MACRO_REGISTERS); number++)
        if (mm_register(number - 1))
            act(number - 1);
}

void mm_lock_exec(int from, int to, bool on)
{
    each_number(from, to, [on](int no) {
        reg_data[no].lock = on;
        (void)mm_macro_file_save(no); // told by the log when it fails
        mm_register_told(no);
    });
}

static void empty_register(int no)
{
    mm_default_name(no, reg_data[no].name);
    reg_data[no].lock = 0;
    RegDataWaitList[no] = {};
    (void)take_list(no, nullptr); // nothing is written
}

void mm_delete_delete_exec(int from, int to)
{
    each_number(from, to, [](int no) {
        if (!reg_data[no].lock)
            empty_register(no);
    });
}

void mm_rename_exec(int number, const char* name)
{
    each_number(number, number, [name](int no) {
        if (reg_data[no].lock)
            return;
        CopyText(reg_data[no].name, name);
        complete_name(no);
        (void)mm_macro_file_save(no); // told by the log when it fails
        mm_register_told(no);
    });
}

static void copy_register(int from, int to, bool wo_name)
{
    if (from == to || !mm_register(from) || !mm_register(to) || reg_data[to].lock)
        return;
    complete_name(from);
    complete_name(to);
    if (!wo_name)
        CopyText(reg_data[to].name, reg_data[from].name);
    RegDataWaitList[to] = RegDataWaitList[from];
    (void)mm_register_store(to, reg_data[from].register_data); // told by the log when it fails
}

// The runs may overlap: the one that is read last is never written before.
void mm_copy_exec(int from, int to, int target, bool wo_name)
{
    const int count = to - from + 1;
    for (int i = 0; i < count; i++) {
        const int step = target > from ? count - 1 - i : i;
        copy_register(from - 1 + step, target - 1 + step, wo_name);
    }
}

void MM_Register_Data_All_Delete()
{
    for (int no = 0; no < MENU_MACRO_REGISTERS; no++)
        empty_register(no);
}

void mm_registers_free()
{
    for (MACRO_REGISTER_DATA& reg : reg_data) {
        mm_current_register_all_dele(reg.register_data);
        reg = {};
    }
    std::fill(std::begin(is_read), std::end(is_read), false);
    std::fill(std::begin(RegDataWaitList), std::end(RegDataWaitList), MACRO_WAITTIME_DATA{});
    mm_run_reset();
    mm_edit_close();
    mm_tap_reset();
    SL_Reg_Recycle = GL_MM_Pause_AT_Insert = GL_MenuMacro_AT_Store = 0;
}
