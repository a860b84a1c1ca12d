#include "pc_register_list.h"
#include "a_ls.h"
#include "colours.h"
#include "netio.h"
#include "pane.h"
#include "tdl.h"
#include "text.h"
#include <algorithm>
#include <cstring>
#include "safeguards.h"

namespace
{
constexpr int ROWS_MAX = REGISTERS_EFFECT;
enum : int { CELL_USUAL = 0, CELL_EMPTY = 1 }; // colour classes of a list

struct Side {
    const RegisterKind* kind = nullptr; // null: not open
    const RegisterColumn* columns = nullptr;
    int region = 0;
};
} // namespace

static RegisterLine lines[REGISTER_LISTS][ROWS_MAX]; // the cells show them from here
static Side sides[REGISTER_LISTS];
static const RegisterLine no_line;

static struct {
    Rect place = {};
    bool is_open = false;
    bool is_dirty = false;
} detail; // valid from RegisterDetail_Open to RegisterList_CloseAll

// --- Lines ---

static int mirror_row(const Side& side)
{
    return RegisterKind_MirrorRow(*side.kind, side.region);
}

static void show_cells(int n, int no)
{
    const Side& side = sides[n];
    const RegisterLine& line = lines[n][no];
    for (int col = 0; side.columns[col].head; col++)
        (void)LS_SetData(n + 1, no, col, side.columns[col].text(line));
    const bool is_empty = !RegisterKind_Exist(*side.kind, side.region, no);
    const int status = is_empty ? CELL_EMPTY : CELL_USUAL;
    if (LS_GetStatus(n + 1, no, 0) != status) // it rarely changes, and is as wide as lists can be
        (void)LS_SetHStatus(n + 1, no, status);
}

// True when the server has not told the register yet.
static bool take_line(int n, int no)
{
    const bool is_told = RegisterKind_Line(*sides[n].kind, sides[n].region, no, &lines[n][no]);
    show_cells(n, no);
    return !is_told;
}

static void ask_for_lines(const Side& side)
{
    char path[CMD_SIZE];
    RegisterKind_Path(*side.kind, side.kind->commands->list, side.region, path, sizeof path);
    Net_SendCommandFormat("read %s", path);
}

static void fill(int n)
{
    bool is_missing = false;
    for (int no = 0; no < sides[n].kind->registers; no++)
        is_missing |= take_line(n, no);
    if (is_missing)
        ask_for_lines(sides[n]);
    (void)LS_SetNData(n + 1, sides[n].kind->registers);
}

void RegisterList_Open(int n, const RegisterKind& kind, const RegisterColumn* columns, int region,
                       int sel)
{
    sides[n] = {&kind, columns, region};
    fill(n);
    const int row = std::clamp(sel, 0, kind.registers - 1);
    (void)LS_SetNowLine(n + 1, row);
    (void)LS_SetSelected(n + 1, row, 0, 1); // a list for display selects nothing by itself
}

void RegisterList_CloseAll()
{
    for (Side& side : sides)
        side = {};
    detail = {};
}

void RegisterList_SetRegion(int n, int region)
{
    if (!sides[n].kind || sides[n].region == region)
        return;
    sides[n].region = region;
    fill(n);
    (void)LS_RedrawData(n + 1);
    RegisterDetail_SetDirty();
}

const RegisterLine& RegisterList_Line(int n, int no)
{
    const bool is_one = sides[n].kind && no >= 0 && no < sides[n].kind->registers;
    return is_one ? lines[n][no] : no_line;
}

void RegisterList_Refresh(int n, int no)
{
    if (!sides[n].kind || no < 0 || no >= sides[n].kind->registers)
        return;
    (void)take_line(n, no);
    (void)LS_RedrawData(n + 1);
}

// An effect says which regions hold it, so it has to do with the lines of all of them.
static bool shows_all_regions(const RegisterKind& kind)
{
    return kind.complete && kind.mirror <= REGISTER_EFF300;
}

int RegisterList_Registered(int kind, int row, int no)
{
    int is_shown = 0;
    for (int n = 0; n < REGISTER_LISTS; n++) {
        const Side& side = sides[n];
        if (!side.kind || side.kind->mirror != kind || no < 0 || no >= side.kind->registers)
            continue;
        const bool is_ours = row == mirror_row(side);
        if (is_ours || shows_all_regions(*side.kind)) {
            RegisterList_Refresh(n, no);
            is_shown = 1;
        }
        if (n == 0 && no == LS_GetNowLine(1))
            RegisterDetail_SetDirty();
    }
    return is_shown;
}

// --- The strip ---

namespace
{
constexpr unsigned STRIP_GROUND = 0x0A1A20;
constexpr unsigned STRIP_LABEL = 0x8FB4BC;
constexpr unsigned STRIP_EMPTY = 0x4A5A60;
constexpr int FONT_STRIP = 2;
constexpr int LINE_PX = 17;
constexpr int TITLE_PX = 34;
constexpr int BANK_PX = 33;
constexpr int DIGIT_PX = 22;
constexpr int RIGHT = 250; // where the second group of a line begins

constexpr const char* bank_captions[] = {"ME1", "ME2", "ME3", "ME4", "ME5", "P/P"};
constexpr const char* digit_captions[] = {"1", "2", "3", "4",  "5",  "6",
                                          "7", "8", "9", "10", "11", "12"};
constexpr const char* router_captions[] = {"RTR"};
constexpr const char* rest_captions[] = {"PBus", "GPI", "MCRO"};

// Regions that stand side by side under one title.
struct StripGroup {
    const char* title;
    int first, last; // rows of the regions
    const char* const* captions;
    int width; // px of a region
    int line, x;
};
#define SIDE_GROUPS                                                                                \
    {"M/E", SS_REGION_ME1, SS_REGION_PP, bank_captions, BANK_PX, 0, 0},                            \
    {                                                                                              \
        "Sub", SS_REGION_ME1_SUB, SS_REGION_PP_SUB, bank_captions, BANK_PX, 1, 0                   \
    }
#define USERS_AND_CHANNELS                                                                         \
    {"USR", SS_REGION_USER1, SS_REGION_USER8, digit_captions, DIGIT_PX, 0, RIGHT},                 \
    {                                                                                              \
        "DME", SS_REGION_DME1, SS_REGION_DME8, digit_captions, DIGIT_PX, 1, RIGHT                  \
    }
constexpr StripGroup STRIP_END = {};
constexpr StripGroup side_groups[] = {SIDE_GROUPS, STRIP_END};
constexpr StripGroup snapshot_groups[] = {
    SIDE_GROUPS,
    USERS_AND_CHANNELS,
    {"", SS_REGION_RTR, SS_REGION_RTR, router_captions, BANK_PX, 2, RIGHT},
    STRIP_END};
constexpr StripGroup channel_groups[] = {
    {"DME", SS_REGION_DME1, SS_REGION_DME8, digit_captions, DIGIT_PX, 0, 0}, STRIP_END};
constexpr StripGroup effect_groups[] = {
    SIDE_GROUPS,
    USERS_AND_CHANNELS,
    {"DEV", EFF_REGION_DEV1, EFF_REGION_DEV12, digit_captions, DIGIT_PX, 2, 0},
    {"", EFF_REGION_PBUS, EFF_REGION_MACRO, rest_captions, 44, 2, RIGHT + 56},
    STRIP_END};
constexpr StripGroup device_groups[] = {
    {"DEV", EFF_REGION_DEV1, EFF_REGION_DEV12, digit_captions, DIGIT_PX, 0, 0},
    {"", EFF_REGION_PBUS, EFF_REGION_MACRO, rest_captions, 44, 1, 0},
    STRIP_END};
#define KEY_GROUP(bank, line, x)                                                                   \
    {                                                                                              \
        bank_captions[bank], 8 * bank, 8 * bank + 7, digit_captions, DIGIT_PX, line, x             \
    }
constexpr StripGroup key_groups[] = {
    KEY_GROUP(0, 0, 0),     KEY_GROUP(1, 1, 0),     KEY_GROUP(2, 2, 0), KEY_GROUP(3, 0, RIGHT),
    KEY_GROUP(4, 1, RIGHT), KEY_GROUP(5, 2, RIGHT), STRIP_END};
#undef KEY_GROUP
#undef SIDE_GROUPS
#undef USERS_AND_CHANNELS
} // namespace

static const StripGroup* strip_of(const RegisterKind& kind)
{
    switch (kind.kind) {
    case REGKIND_SNAPSHOT: return snapshot_groups;
    case REGKIND_WIPESS:
    case REGKIND_DMESS: return side_groups;
    case REGKIND_KEYSS: return key_groups;
    case REGKIND_EFFECT: return effect_groups;
    case REGKIND_EFF100:
    case REGKIND_EFF200:
    case REGKIND_EFF300: return channel_groups;
    case REGKIND_EFFECT_EX: return device_groups;
    default: return nullptr; // the columns tell all
    }
}

bool RegisterDetail_Has(const RegisterKind& kind)
{
    return strip_of(kind) != nullptr;
}

static unsigned ink_of(const RegisterKind& kind, int reference, int region, int no)
{
    const int row = RegisterKind_SelectorRow(kind, region);
    const int exists = RegisterKind_RegionExist(kind, kind.regions[row].id, no);
    if (exists == 0)
        return STRIP_EMPTY;
    return row == RegisterKind_SelectorRow(kind, reference) ? CYAN : exists > 0 ? WHITE : ORANGE;
}

static void draw_group(const StripGroup& g, const RegisterKind& kind, int reference, int no,
                       const Rect& place)
{
    int x = place.x1 + 8 + g.x;
    const int y = place.y1 + 5 + g.line * LINE_PX;
    bool is_empty = true;
    for (int region = g.first; region <= g.last; region++)
        is_empty &= !RegisterKind_IsInUse(kind, region);
    if (is_empty)
        return;
    TDL_SymbolS(x, y, g.title, FONT_STRIP, STRIP_LABEL);
    x += *g.title ? TITLE_PX : 0;
    for (int region = g.first; region <= g.last; region++, x += g.width)
        if (RegisterKind_IsInUse(kind, region))
            TDL_SymbolS(x, y, g.captions[region - g.first], FONT_STRIP,
                        ink_of(kind, reference, region, no));
}

void RegisterStrip_DrawGround(const Rect& place)
{
    TDL_FillRectS(place.x1, place.y1, place.x2, place.y2, STRIP_GROUND);
    TDL_RectS(place.x1, place.y1, place.x2, place.y2, SEPARATOR);
    TDL_RectS(place.x1 + 1, place.y1 + 1, place.x2 - 1, place.y2 - 1, RAISED_DARK);
}

void RegisterStrip_DrawRegions(const RegisterKind& kind, int reference, int no, const Rect& place)
{
    for (const StripGroup* g = strip_of(kind); g && g->title; g++)
        draw_group(*g, kind, reference, no, place);
}

void RegisterDetail_Open(const Rect& place)
{
    detail = {.place = place, .is_open = true, .is_dirty = true};
}

void RegisterDetail_SetDirty()
{
    detail.is_dirty = true;
}

void RegisterDetail_Redraw()
{
    const Side& side = sides[0];
    if (!detail.is_open || !detail.is_dirty || !side.kind)
        return;
    detail.is_dirty = false;
    const Rect& r = detail.place;
    RegisterStrip_DrawGround(r);
    RegisterStrip_DrawRegions(*side.kind, side.region, LS_GetNowLine(1), r);
    TDL_UpdateRect(r.x1, r.y1, r.x2, r.y2);
}
