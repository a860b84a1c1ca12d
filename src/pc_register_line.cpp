#include "pc_register_line.h"
#include "menu_macro.h"
#include "pc_register_kind.h"
#include "pc_snapshot_hold.h"
#include "tally_value.h"
#include "text.h"
#include <algorithm>
#include <cstring>
#include <iterator>
#include "safeguards.h"

int Region_Count = 1;

namespace
{
constexpr int FIELDS_MAX = 48;
constexpr size_t NAME_MAX_LEN = 11;

struct Fields {
    char text[CMD_SIZE];
    char* v[FIELDS_MAX];
};
} // namespace

// False for a line with fewer fields than its layout has.
static bool split(Fields& fields, const char* line, int n)
{
    CopyText(fields.text, line);
    return SplitVars(fields.text, fields.v, n) >= n;
}

// Empties the line but for what it begins with. Returns the index of its register, -1 out of range.
static int begin_line(const RegisterKind& kind, const char* number, const char* name,
                      RegisterLine* line)
{
    const int index = Decimal(number) - kind.first_number;
    if (index < 0 || index >= kind.registers)
        return -1;
    *line = {};
    CopyText(line->no, NumStr(kind.first_number + index));
    strncpy_secu(line->name, name, sizeof line->name, NAME_MAX_LEN);
    return index;
}

static void set_status(RegisterLine* line, bool is_empty, bool is_locked)
{
    CopyText(line->le, is_locked ? "L" : is_empty ? "E" : "");
}

// Of a combined field: empty, locked, or neither.
static void set_status(RegisterLine* line, const char* status)
{
    set_status(line, *status == 'E', *status == 'L');
}

// --- Snapshots ---

// Three characters of a duration; a field of "n" means none.
static void set_short(char (&field)[5], const char* value)
{
    strncpy_secu(field, *value == 'n' ? "" : value, sizeof field, 3);
}

int snapshot_setdata(const RegisterKind& kind, const char* text, RegisterLine* line)
{
    Fields f;
    const int index = split(f, text, 7) ? begin_line(kind, f.v[0], f.v[1], line) : -1;
    if (index < 0)
        return -1;
    set_status(line, f.v[2]);
    CopyText(line->xpthold_tly, f.v[3]);
    set_short(line->effdiss, f.v[4]);
    set_short(line->autotrans, f.v[5]);
    set_short(line->gpi, f.v[6]);
    return index;
}

static bool has_auto_play(int user, int no)
{
    for (int sub = 0; sub < int(ClipEventSubREG.size()); sub++)
        if (ClipEvent_Tally_AutoPlay(user, sub, no))
            return true;
    return false;
}

void snapshot_complete(int row, int no, RegisterLine* line)
{
    snapshot_xpthold_display(row, line->xpthold_tly, line->xpthold, sizeof line->xpthold);
    CopyText(line->attri, snapshot_xpthold_flag(row, line->xpthold_tly));
    AppendText(line->attri, *line->effdiss ? " D" : "");
    AppendText(line->attri, *line->autotrans ? " T" : "");
    AppendText(line->attri, *line->gpi ? " G" : "");
    const bool is_user = row >= SS_REGION_USER1 && row <= SS_REGION_USER8;
    if (is_user && has_auto_play(row - SS_REGION_USER1, no))
        CopyText(line->clip, "On");
}

int wipess_setdata(const RegisterKind& kind, const char* text, RegisterLine* line)
{
    constexpr int FIELDS = 3, PATTERN = 3;
    Fields f;
    CopyText(f.text, text);
    const int n = SplitVars(f.text, f.v, PATTERN + 1);
    const int index = n >= FIELDS ? begin_line(kind, f.v[0], f.v[1], line) : -1;
    if (index < 0)
        return -1;
    set_status(line, f.v[2]);
    if (n > PATTERN && *f.v[2] != 'E')
        CopyText(line->pattern, f.v[PATTERN]);
    return index;
}

// --- Effects ---

int effect_setdata(const RegisterKind& kind, const char* text, RegisterLine* line)
{
    Fields f;
    const int index = split(f, text, 6) ? begin_line(kind, f.v[0], f.v[2], line) : -1;
    if (index < 0)
        return -1;
    set_status(line, *f.v[1] == 'E', *f.v[3] == 'L');
    line->dur = int(NumberIn(f.v[5], 0, 9999));
    if (*f.v[4] == 'D')
        CopyText(line->effdiss, NumStr(line->dur));
    return index;
}

static int bits_in(const unsigned char* map)
{
    int bits = 0;
    for (int i = 0; i < REGION_MAP_BYTES; i++)
        for (int rest = map[i]; rest; rest &= rest - 1)
            bits++;
    return bits;
}

static void effect_map(const unsigned char* map, int is_held, RegisterLine* line)
{
    // The bytes of the map that belong to a group of regions.
    static constexpr struct {
        int first, last;
    } groups[REGISTER_GROUPS] = {{0, 1}, {2, 2}, {3, 3}, {4, 5}, {6, 6}, {7, 7}, {8, 8}};
    for (int g = 0; g < REGISTER_GROUPS; g++) {
        bool is_in_group = false;
        for (int i = groups[g].first; i <= groups[g].last; i++)
            is_in_group |= map[i] != 0;
        CopyText(line->region[g], is_in_group ? "O" : "");
    }
    if (*line->le == 'E' && Region_Count && is_held)
        PrintText(line->le, "E%d", bits_in(map));
}

void effect_complete(int, int no, RegisterLine* line)
{
    unsigned char map[REGION_MAP_BYTES] = {};
    const int is_held = Register_Exist_Effect_AllRegion(no, map);
    effect_map(map, is_held, line);
}

void effect_ex_complete(int, int no, RegisterLine* line)
{
    unsigned char map[REGION_MAP_BYTES] = {};
    const int is_held = Register_Exist_Effect_EX_AllRegion(no, map);
    effect_map(map, is_held, line);
}

// The map has a bit for each group of channels; they stand in the column of the channels.
static void groups_complete(int (*all)(int no, unsigned char* map), int no, RegisterLine* line)
{
    unsigned char groups[REGION_MAP_BYTES] = {};
    unsigned char map[REGION_MAP_BYTES] = {};
    constexpr int CHANNELS = 3;
    const int is_held = all(no, groups);
    map[CHANNELS] = groups[0];
    effect_map(map, is_held, line);
}

void eff100_complete(int, int no, RegisterLine* line)
{
    groups_complete(Register_Exist_Eff100_AllRegion, no, line);
}
void eff200_complete(int, int no, RegisterLine* line)
{
    groups_complete(Register_Exist_Eff200_AllRegion, no, line);
}
void eff300_complete(int, int no, RegisterLine* line)
{
    groups_complete(Register_Exist_Eff300_AllRegion, no, line);
}

// --- Masters and shotboxes ---

// Regions that have a column each, and those that share one.
static constexpr struct {
    int first, last; // rows of the regions
    int sub = -1;    // row of the bank's other side
} link_columns[REGISTER_LINK_COLUMNS] = {
    {SS_REGION_ME1, SS_REGION_ME1, SS_REGION_ME1_SUB},
    {SS_REGION_ME2, SS_REGION_ME2, SS_REGION_ME2_SUB},
    {SS_REGION_ME3, SS_REGION_ME3, SS_REGION_ME3_SUB},
    {SS_REGION_ME4, SS_REGION_ME4, SS_REGION_ME4_SUB},
    {SS_REGION_ME5, SS_REGION_ME5, SS_REGION_ME5_SUB},
    {SS_REGION_PP, SS_REGION_PP, SS_REGION_PP_SUB},
    {SS_REGION_USER1, SS_REGION_USER8},
    {SS_REGION_DME1, SS_REGION_DME8},
    {EFF_REGION_DEV1, EFF_REGION_DEV12}, // the first of them is the snapshots' router
    {EFF_REGION_PBUS, EFF_REGION_PBUS},
    {EFF_REGION_GPI, EFF_REGION_GPI},
    {EFF_REGION_MACRO, EFF_REGION_MACRO},
    {SHOTBOX_RTR, SHOTBOX_RTR},
};
static_assert(int(EFF_REGION_DEV1) == int(SS_REGION_RTR));

static void print_link(char (&text)[5], int link)
{
    if (link > 0)
        CopyText(text, NumStr(link));
    else if (link < 0)
        PrintText(text, "S%d", -link);
}

static void show_links(RegisterLine* line)
{
    for (int column = 0; column < REGISTER_LINK_COLUMNS; column++) {
        int shown = 0;
        bool is_mixed = false;
        for (int i = link_columns[column].first; i <= link_columns[column].last; i++) {
            is_mixed |= shown != 0 && line->data[i] != 0 && line->data[i] != shown;
            shown = shown ? shown : line->data[i];
        }
        // A number is the main side's: what the other side has beside it or alone is not shown.
        const int sub = link_columns[column].sub;
        is_mixed |= sub >= 0 && line->data[sub] != 0 && line->data[sub] != shown;
        if (is_mixed)
            CopyText(line->link[column], "...");
        else
            print_link(line->link[column], shown);
    }
}

static int link_in(const char* text)
{
    const bool is_snapshot = *text == 'S';
    const int number = int(NumberIn(text + is_snapshot, 0, REGISTERS_EFFECT));
    return is_snapshot ? -number : number;
}

static void set_links(RegisterLine* line, char* const* fields, int n)
{
    for (int i = 0; i < std::min(n, REGISTER_LINKS); i++)
        line->data[i] = link_in(fields[i]);
    show_links(line);
}

int master_setdata(const RegisterKind& kind, const char* text, RegisterLine* line)
{
    constexpr int HEAD = 4;
    const int n = kind.mirror == REGISTER_SNAPSHOT ? 34 : 47;
    Fields f;
    const int index = split(f, text, n) ? begin_line(kind, f.v[0], f.v[1], line) : -1;
    if (index < 0)
        return -1;
    set_status(line, *f.v[2] == 'E', *f.v[3] == 'L');
    // A master snapshot has 29 regions and a field that no region has.
    set_links(line, f.v + HEAD, kind.mirror == REGISTER_SNAPSHOT ? SS_REGION_MASTER : n - HEAD);
    return index;
}

int shotbox_setdata(const RegisterKind& kind, const char* text, RegisterLine* line)
{
    constexpr int HEAD = 4, FIELDS = 48;
    Fields f;
    const int index = split(f, text, FIELDS) ? begin_line(kind, f.v[0], f.v[1], line) : -1;
    if (index < 0)
        return -1;
    set_links(line, f.v + HEAD, FIELDS - HEAD);
    const bool is_empty = std::none_of(f.v + HEAD, f.v + FIELDS, [](const char* v) { return *v; });
    set_status(line, is_empty, *f.v[2] == 'L');
    if (*f.v[3] == 'A')
        CopyText(line->attri, "On");
    return index;
}

// Number, status, name, lock, and two more that no column shows.
int macro_setdata(const RegisterKind& kind, const char* text, RegisterLine* line)
{
    constexpr int FIELDS = 4;
    Fields f;
    const int index = split(f, text, FIELDS) ? begin_line(kind, f.v[0], f.v[2], line) : -1;
    if (index >= 0)
        set_status(line, *f.v[1] == 'E' || *f.v[1] == 'e', *f.v[3] == 'L');
    return index;
}

// The text is the number: all else is in this unit.
int menu_macro_setdata(const RegisterKind& kind, const char* text, RegisterLine* line)
{
    const int no = int(NumberIn(text, 0, kind.registers)) - 1;
    if (no < 0)
        return -1;
    const MMACRO_REGISTER_TBL reg = mm_register_table(no);
    *line = {};
    CopyText(line->no, NumStr(no + 1));
    CopyText(line->name, reg.name);
    set_status(line, reg.empty, reg.lock);
    if (reg.empty)
        return no;
    CopyText(line->events, NumStr(reg.protcol_event_max));
    PrintText(line->interval, "%.1f", mm_register_interval(no) / 1000.0);
    return no;
}
