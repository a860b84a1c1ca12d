#include "a_st.h"
#include "a_st_draw.h"
#include "command.h"
#include "device.h"
#include "global.h"
#include "log.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "page_table/st_dme.h"
#include "path_set.h"
#include "pc_me.h"
#include "tab_status.h"
#include "tdl.h"
#include "text.h"
#include <cstdlib>
#include <cstring>
#include <span>
#include "safeguards.h"

namespace
{
// What the 3D parameters on show refer to, as the server told it last.
struct Reference {
    uint32_t mode = 0;
    uint32_t module = 0; // channel bits
    uint32_t rest = 0;
};
enum ReferenceMode : uint32_t {
    REF_TARGET = 0x01,
    REF_SOURCE = 0x02,
    REF_GLOBAL = 0x10,
    REF_GLOBAL_ALSO = 0x40,
    REF_LOCAL_ONLY = 0x80,
    REF_CHOOSES = REF_TARGET | REF_SOURCE | REF_GLOBAL | REF_GLOBAL_ALSO | REF_LOCAL_ONLY,
};

constexpr uint32_t NO_HASH = 0xFFFFFFFF; // no path sums up to this
constexpr uint32_t PAGE_FRAME_MEMORY = 0x21110000;
constexpr uint32_t PAGE_MISC_KEYS = 0x11730000; // lives in the sub bank for keys 5 to 8
} // namespace

static ST_MEM Status[ST_MAX + 1]; // an id of -1: not in use
static ST_MEM LastShown[ST_MAX];  // what each cell was painted from last
static int StatusMax = 0;
static const ST_TBL* StatusNowTbl = nullptr;
static int StatusRefModule = -1;
static Reference StatusRef;
static PageLook Look;

int TrnModeStatus[2][TRN_VALUES];
int GL_FillSourceAssignMode = 0;

static std::span<ST_MEM> cells()
{
    return {Status, size_t(StatusMax)};
}

int st_dme_reference()
{
    return StatusRefModule;
}

void GL_ST_area_update_draw()
{
    for (ST_MEM& c : cells())
        c.redraw = 1;
}

// --- What a cell showed before the page was built anew ---

static bool has_tally(const ST_MEM& c)
{
    for (int i = 0; i < c.used; i++)
        if (c.tally[i][0])
            return true;
    return false;
}

// A picture serves only the setting that it was taken of: key 2 must never show what key 1 has.
static bool is_of_same_setting(const ST_MEM& a, const ST_MEM& b)
{
    if (a.draw_func != b.draw_func || a.used != b.used)
        return false;
    for (int i = 0; i < a.used; i++)
        if (a.cmd_hash[i] != b.cmd_hash[i] || strcmp(a.cmd[i], b.cmd[i]) != 0)
            return false;
    return true;
}

// Only the texts in use are copied. Painters may look past them: what another cell has left there
// must not be taken for a tally.
static void keep(ST_MEM& copy, const ST_MEM& c)
{
    if (!is_of_same_setting(copy, c)) {
        for (int i = c.used; i < copy.used; i++)
            copy.cmd[i][0] = copy.tally[i][0] = '\0';
        copy.draw_func = c.draw_func;
        copy.used = c.used;
        for (int i = 0; i < c.used; i++) {
            copy.cmd_hash[i] = c.cmd_hash[i];
            CopyText(copy.cmd[i], c.cmd[i]);
        }
    }
    for (int i = 0; i < c.used; i++)
        CopyText(copy.tally[i], c.tally[i]);
}

// Null for a cell that is none of the page's.
static ST_MEM* last_shown_of(const ST_MEM* cell)
{
    for (int i = 0; i < ST_MAX; i++)
        if (cell == &Status[i])
            return &LastShown[i];
    return nullptr;
}

ST_MEM* st_shown(ST_MEM* cell)
{
    ST_MEM* copy = last_shown_of(cell);
    if (has_tally(*cell)) {
        if (copy)
            keep(*copy, *cell);
        return cell;
    }
    if (!copy || !has_tally(*copy) || !is_of_same_setting(*copy, *cell))
        return nullptr;
    copy->id = cell->id;
    copy->x1 = cell->x1;
    copy->y1 = cell->y1;
    copy->x2 = cell->x2;
    copy->y2 = cell->y2;
    copy->jamp_id = cell->jamp_id;
    return copy;
}

// --- Subscriptions ---

// Each path of the cells once. What is followed for the life of the process is only read: a removal
// would end it for everybody.
static void for_each_path(void (*send)(const char* path, bool is_for_life))
{
    static_assert(ST_MAX * ST_COMMANDS <= PATH_SET_MAX);
    PathSet met;
    for (const ST_MEM& c : cells())
        for (int i = 0; i < c.used; i++)
            if (c.cmd[i][0] && !IsLocal(c.cmd[i]) && PathSet_Add(met, c.cmd[i], c.cmd_hash[i]))
                send(c.cmd[i], IsKeyAssignPath(c.cmd[i]));
}

static void subscribe()
{
    for_each_path([](const char* path, bool is_for_life) {
        Net_SendCommandFormat("%s %s", is_for_life ? "read" : "add", path);
    });
}

static void unsubscribe()
{
    for_each_path([](const char* path, bool is_for_life) {
        if (!is_for_life)
            Net_SendCommandFormat("remove %s", path);
    });
}

int ST_Follows(const char* path)
{
    const uint32_t hash = Hash(path);
    for (const ST_MEM& c : cells())
        for (int i = 0; i < c.used; i++)
            if (c.cmd_hash[i] == hash && strcmp(c.cmd[i], path) == 0)
                return !IsKeyAssignPath(path);
    return 0;
}

// --- Opening and closing a page ---

static bool is_absent(const ST_TBL& row)
{
    switch (row.id) {
    case ST_SINGLE_BOARD: return SYS_DualProc != 0;
    case ST_DUAL_BOARD: return SYS_DualProc == 0;
    case ST_KEY_TYPE_2: return is4KFormat() && ME_IsKey3Or4();
    default: return false;
    }
}

// A key page keeps its bank and key, a page of the bank's groups its bank. A page above the keys
// has no key of its own to keep: there the cell names it.
static uint32_t target_of(uint32_t base)
{
    constexpr uint32_t GROUP = 0x00F00000;
    constexpr uint32_t GROUP_WIPE = 0x00500000;
    if (base == 0)
        return 0;
    uint32_t id;
    if ((base & GROUP) < GROUP_WIPE && (GL_NowPage & GROUP))
        id = (base & 0x000FFFFF) + (GL_NowPage & 0xFFF00000);
    else
        id = (base & 0x00FFFFFF) + (GL_NowPage & 0xFF000000);
    if (base == PAGE_MISC_KEYS && isNowPageMeKey(0) == 2)
        id -= TO_SUB_BANK;
    return id;
}

// On the pages of a sub side the first word of the tree is a subtree of its own. A key has no part
// in it: its pages, also those of keys 5 to 8, stand under the bank, as does the wipe generator
// that keys are cut by.
constexpr char SUB_SIDE[] = " SUB@";
static bool is_path_of_key(const char* path)
{
    const char* at = strchr(path, '@');
    if (!at)
        return false;
    const char* word = at + 1;
    const bool is_key = BeginsWith(word, "Key") || BeginsWith(word, "DSK");
    return is_key && word[3] >= '1' && word[3] <= '8' && word[4] == '@';
}

static void leave_sub_side(char* path)
{
    constexpr size_t length = sizeof SUB_SIDE - 1;
    if (char* at = strstr(path, SUB_SIDE))
        memmove(at, at + length - 1, strlen(at + length - 1) + 1);
}

static void look_for_pages()
{
    for (ST_MEM& c : cells()) {
        if (c.is_missing == Page_IsMissing(c.jamp_id))
            continue;
        c.is_missing = !c.is_missing;
        c.redraw = 1;
    }
}

// The buffers are 256 KB a cell: only entries in use are touched.
static void fill_cell(ST_MEM& c, const ST_TBL& row)
{
    int used = ST_COMMANDS;
    while (used > 0 && !row.cmd[used - 1])
        used--;
    for (int i = used; i < c.used; i++)
        c.cmd[i][0] = c.tally[i][0] = '\0';
    c.id = row.id;
    c.x1 = row.x1;
    c.y1 = row.y1;
    c.x2 = row.x2;
    c.y2 = row.y2;
    c.draw_func = row.draw_func;
    c.used = used;
    bool is_of_key = false; // its first path tells
    for (int i = 0; i < used; i++) {
        DecodeCommand(c.cmd[i], row.cmd[i], CMD_SIZE);
        if (i == 0)
            is_of_key = is_path_of_key(c.cmd[0]);
        if (is_of_key)
            leave_sub_side(c.cmd[i]);
        c.cmd_hash[i] = c.cmd[i][0] ? Hash(c.cmd[i]) : NO_HASH;
        c.tally[i][0] = '\0';
    }
    c.jamp_id = row.page ? row.page : target_of(row.jamp_id_base);
    c.is_missing = Page_IsMissing(c.jamp_id);
    // With the switcher up the borders stand at once; otherwise the first tally brings them.
    c.redraw = GL_ProcStatus[1] != 0;
}

static void empty()
{
    unsubscribe();
    for (ST_MEM& c : Status)
        c.id = -1;
    StatusMax = 0;
    StatusNowTbl = nullptr;
}

int ST_Create(const ST_TBL* table, uint32_t)
{
    empty();
    if (!table) {
        for (auto& side : TrnModeStatus)
            for (int& value : side)
                value = 0;
        StatusRef = {}; // the next page chooses anew, also by the same words
        return 1;
    }
    StatusNowTbl = table;
    for (const ST_TBL* row = table; row->id >= 1; row++) {
        if (is_absent(*row))
            continue;
        if (StatusMax == ST_MAX) {
            Log_Output(LOG_ALWAYS, MOD_PAGE, "Buffer overflow for ST Objects!!\n");
            break;
        }
        fill_cell(Status[StatusMax], *row);
        StatusMax++;
    }
    subscribe();
    return 0;
}

// --- Press ---

// A cell without a page of its own leads where the setting that it shows is adjusted.
static uint32_t target_by_tally(const ST_MEM& c)
{
    const uint32_t bank = GL_NowPage & 0xFF000000;
    if (c.draw_func == st_drw_me_misc_transition && c.tally[TRN_MODE][0] == 'F') {
        if (c.tally[TRN_WIPE][0] == 't')
            return bank + 0x510000;
        if (c.tally[TRN_DME_WIPE][0] == 't')
            return bank + 0x610000;
    }
    if (c.draw_func == st_drw_me_misc_cliptrans_clip && c.tally[0][0] == 'F')
        return PAGE_FRAME_MEMORY;
    return 0;
}

static bool is_signal_select(uint32_t id)
{
    const uint32_t page = id & 0xF00FF00F;
    return page == 0x10010003 || page == 0x80010003;
}

// Two cells of a key lead to one page, which assigns what the pressed one shows.
static void jump_from(const ST_MEM& c)
{
    if (c.jamp_id & 0xFF000000) {
        if (is_signal_select(c.jamp_id) && c.draw_func == st_drw_me_key_type_keyfill)
            GL_FillSourceAssignMode = 0;
        if (is_signal_select(c.jamp_id) && c.draw_func == st_drw_me_key_type_source)
            GL_FillSourceAssignMode = 1;
        GL_CreatePage = c.jamp_id;
        return;
    }
    if (const uint32_t target = target_by_tally(c))
        GL_CreatePage = target;
}

static int press(int x, int y)
{
    if (GL_CreatePage)
        return 0;
    for (const ST_MEM& c : cells()) {
        // The border belongs to nobody: neighbours share none.
        if (x > c.x1 && x < c.x2 && y > c.y1 && y < c.y2) {
            if (!c.is_missing)
                jump_from(c);
            return 0;
        }
    }
    return 0;
}

// --- Tallies ---

// False when a part is missing: such a line says nothing about the reference.
static bool parse_reference(Reference& r, const char* value)
{
    char text[64];
    char* field[3];
    CopyText(text, value);
    if (SplitVars(text, field, 3) < 3)
        return false;
    uint32_t* const number[3] = {&r.mode, &r.module, &r.rest};
    for (int i = 0; i < 3; i++)
        *number[i] = uint32_t(strtoul(field[i], nullptr, 16));
    return true;
}

static const ST_TBL* table_of_reference(uint32_t mode)
{
    const bool is_global = (mode & REF_GLOBAL) && !(mode & REF_LOCAL_ONLY);
    if (mode & REF_SOURCE)
        return is_global ? st_dme_comstatus_glbsrc : st_dme_comstatus_localsrc;
    if (mode & REF_TARGET)
        return is_global ? st_dme_comstatus_glbtrgt : st_dme_comstatus_localtrgt;
    return StatusNowTbl;
}

static bool is_dme_page()
{
    return (GL_NowPage & 0xFF000000) == 0x41000000 && (GL_NowPage & 0xFFFF0000) != 0x41410000;
}

// The cells of a DME page are those of the reference that the operator turns.
static int reference_tally(const char* value)
{
    Reference now;
    if (!parse_reference(now, value))
        return 0;
    if (now.mode == 0 || now.module == 0) {
        StatusRefModule = -1;
        return 0;
    }
    const bool is_changed =
        ((now.mode ^ StatusRef.mode) & REF_CHOOSES) != 0 || now.module != StatusRef.module;
    StatusRef = now;
    StatusRefModule = int(now.module);
    if (!is_changed || !is_dme_page())
        return 0;
    const ST_TBL* table = table_of_reference(now.mode);
    ST_Create(nullptr, 0);
    StatusRef = now;
    if (table)
        ST_Create(table, 0);
    GL_ST_area_update_draw();
    return 0;
}

static int tally(const char* path, const char* value, uint32_t hash)
{
    if (strcmp(path, "DME@Status@3D Param@Mode Status@Reference") == 0)
        return reference_tally(value);
    for (ST_MEM& c : cells()) {
        for (int i = 0; i < c.used; i++) {
            if (c.cmd_hash[i] != hash || strcmp(c.cmd[i], path) != 0)
                continue;
            CopyText(c.tally[i], value);
            c.redraw = 1;
        }
    }
    return 0;
}

static int redraw(int elapsed_ms)
{
    if (PageLook_IsDue(Look, elapsed_ms))
        look_for_pages();
    for (ST_MEM& c : cells()) {
        if (!c.redraw)
            continue;
        if (c.draw_func)
            c.draw_func(&c);
        if (c.is_missing)
            st_veil_all(&c);
        TDL_UpdateRect(c.x1, c.y1, c.x2, c.y2);
        c.redraw = 0;
    }
    return 0;
}

int ST_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg)
{
    switch (msg) {
    case MSG_PRESS: return press(int(ax), int(bx));
    case MSG_TALLY: return tally(Text(ax), Text(bx), uint32_t(cx));
    case MSG_REDRAW: return redraw(int(ax));
    default: return 0;
    }
}
