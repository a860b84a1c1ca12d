// The cells of a bank: its transition, key priority and assignment, video process, and what a clip
// transition shows.
#include "a_st_draw.h"
#include "colours.h"
#include "command.h"
#include "device.h"
#include "global.h"
#include "me_config.h"
#include "page.h"
#include "pc_me.h"
#include "tally_value.h"
#include "tdl.h"
#include "text.h"
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include "safeguards.h"

namespace
{
constexpr int KEYS = 8;
constexpr int HALF_KEYS = 4;                     // keys of one order of priority
constexpr int OUTPUTS = 8;                       // of a bank
constexpr uint32_t PAGE_TRANSITION = 0x00710000; // below the bank
constexpr uint32_t PAGE_CLIP = 0x00760000;
constexpr uint32_t BANK_BYTE = 0xFF000000;

struct Transition {
    int tally; // "true" while it is the bank's
    const char* square;
    const char* under = "";
    int pattern = -1; // the tally with the number; its picture takes the place of the text
    int kept = -1;    // where TrnModeStatus keeps that number
};
constexpr Transition transitions[] = {
    {TRN_MIX, "Mix"},
    {TRN_NAM, "NAM"},
    {TRN_SUPER_MIX, "Super", "Mix"},
    {TRN_COLOR_MIX, "Preset", "Color Mix"},
    {TRN_WIPE, "Wipe", "", TRN_WIPE_PATTERN, 1},
    {TRN_DME_WIPE, "DME Wipe", "", TRN_DME_PATTERN, 2},
    {TRN_CLIP, "Clip"},
};
} // namespace

// The keys that each output of each bank shows, bit 0 is Key1; banks as P/P, M/E-1 to M/E-5.
static unsigned output_keys[ME_COUNT][OUTPUTS];

static bool is_pgm()
{
    return GL_NowTree && GL_NowTree[0] && strcmp(GL_NowTree[0], "PGM/PST") == 0;
}

// A cell that chooses its way by tallies has no target to be known by.
static int is_page_in_view(uint32_t page)
{
    return (GL_NowPage & ~BANK_BYTE) == page;
}

static int number_of(const char* text)
{
    return int(strtol(text, nullptr, 10));
}

// --- Transition ---

// The server drops the old kind before it raises the new one. Until then the cell keeps what it
// showed, which TrnModeStatus holds as the kind counted from 1.
static const Transition* transition_of(const ST_MEM* c, int side)
{
    for (size_t i = 0; i < std::size(transitions); i++) {
        if (!st_is_on(c, transitions[i].tally))
            continue;
        TrnModeStatus[side][0] = int(i) + 1;
        return &transitions[i];
    }
    const int kind = TrnModeStatus[side][0];
    return kind >= 1 && kind <= int(std::size(transitions)) ? &transitions[kind - 1] : nullptr;
}

int st_drw_me_misc_transition(ST_MEM* cell)
{
    const ST_MEM* c = st_begin(cell, is_page_in_view(PAGE_TRANSITION), "Transition");
    const int side = isNowPageME(0) == 2;
    const Transition* t = c ? transition_of(c, side) : nullptr;
    if (!t)
        return -1;
    if (t->pattern < 0) {
        st_drw_center_image_square(c, t->square, 0);
        return st_drw_under_strings(c, t->under, 0);
    }
    int* number = &TrnModeStatus[side][t->kept];
    if (c->tally[t->pattern][0])
        *number = number_of(c->tally[t->pattern]);
    char text[16] = "";
    if (*number)
        PrintText(text, "%d", *number);
    const bool is_dme = t->tally == TRN_DME_WIPE;
    st_drw_bmpimage_strings(c, is_dme ? st_dme_pattern(text) : st_pattern(text), "");
    return st_drw_under_strings(c, text, 0);
}

// --- Priority: 0 the place of each key. 1 and 2 on the main side: the order of the sub side's own,
// and whether it counts. On a sub side 1 "false": it has no order of its own ---

namespace
{
struct Order {
    int key[HALF_KEYS] = {}; // from the top; 1 to 8
    bool is_known = false;
};
} // namespace

// "2,1,3,4,1,2,3,4": the places of keys 1 to 4 and, where a bank has them, of keys 5 to 8.
static Order order_of(const char* list, int half)
{
    constexpr size_t LENGTH = 2 * HALF_KEYS;
    Order order;
    if (strlen(list) < LENGTH * size_t(half + 1) - 1)
        return order;
    const char* place = list + LENGTH * size_t(half);
    for (int i = 0; i < HALF_KEYS; i++) {
        const int at = place[2 * i] - '1';
        if (at < 0 || at >= HALF_KEYS || order.key[at] != 0)
            return {};
        order.key[at] = i + 1 + half * HALF_KEYS;
    }
    order.is_known = true;
    return order;
}

const char* st_priority_of_5_to_8(const ST_MEM* cell)
{
    const bool has_own = isMP2SettingME(GL_NowPage) && st_is_on(cell, 2) && cell->tally[1][0];
    return cell->tally[has_own ? 1 : 0];
}

void st_put_priority(const ST_MEM* cell, int lit, const char* list, int half, int marked_key)
{
    static constexpr const char* labels[HALF_KEYS] = {"1st", "2nd", "3rd", "4th"};
    const bool has_both = half < 0 && GL_KeyMax[Now_disp_draw()] > HALF_KEYS;
    const Order order = order_of(list, half < 0 ? 0 : half);
    const Order further = has_both ? order_of(st_priority_of_5_to_8(cell), 1) : Order{};
    char text[HALF_KEYS][16] = {};
    ST_VAL val{.st_num = HALF_KEYS, .selected = lit};
    for (int i = 0; i < HALF_KEYS; i++) {
        if (order.is_known && further.is_known)
            PrintText(text[i], "%d / %d", order.key[i], further.key[i]);
        else if (order.is_known)
            PrintText(text[i], "%s%d", is_pgm() ? "DSK" : "Key", order.key[i]);
        val.st_str[i] = labels[i];
        val.val_str[i] = text[i];
        val.invert[i] = order.is_known && order.key[i] == marked_key;
    }
    st_drw_status_values(cell, &val);
}

static const ST_MEM* draw_priority(ST_MEM* cell, const char* name, int half)
{
    const int lit = st_in_view(cell);
    const ST_MEM* c = st_begin(cell, lit, name);
    if (c)
        st_put_priority(c, lit, c->tally[0], half, 0);
    return c;
}

int st_drw_me_misc_key_priority(ST_MEM* cell)
{
    return draw_priority(cell, "Key Priority", -1) ? 0 : -1;
}

// A sub side with an order of its own keeps it through the transition.
int st_drw_me_misc_next_key_priority(ST_MEM* cell)
{
    return draw_priority(cell, "Next Priority", -1) ? 0 : -1;
}

// Of a sub side: its keys are 5 to 8.
int st_drw_me_misc_key_priority_gray(ST_MEM* cell)
{
    const ST_MEM* c = draw_priority(cell, "Key Priority", 1);
    if (!c)
        return -1;
    if (st_is_off(c, 1))
        st_drw_recoats_grayout(c, st_in_view(cell));
    return 0;
}

// --- Assignment: 0 to 3 the side of a key; without it what the setup says ---

// A row of the setup: "M/E-1,2,0F": what the second output shows.
void st_drw_me_misc_key_assign_tally_set(const char* value)
{
    if (IsKill(value) || !value[0]) {
        memset(output_keys, 0, sizeof output_keys);
        return;
    }
    Parts p;
    if (SplitValue(p, value, 3) < 3)
        return;
    const int output = Index(p.v[1], OUTPUTS + 1) - 1;
    if (output < 0)
        return;
    if (const MeBank* bank = MeBank_OfName(p.v[0]))
        output_keys[bank->me][output] = Hex(p.v[2]);
}

// A bank of two sides tells the side, one of a single side the outputs: "1,3". Until the outputs
// are known all its keys are on that side.
static void print_setup_of_key(char (&text)[32], int key)
{
    const MeBank* bank = MeBank_OfPage(GL_NowPage);
    text[0] = '\0';
    if (!bank)
        return;
    if (isMP2SettingME(GL_NowPage)) {
        const uint32_t side_of_page = GL_NowPage & BANK_BYTE;
        const uint32_t page = side_of_page + (key < HALF_KEYS ? 0 : TO_SUB_BANK) +
                              (uint32_t(key % HALF_KEYS) + 1) * 0x00100000 + 0x00010000;
        const KeyAssignText side = keyassign_str_get(page);
        CopyText(text, side.main[0] && side.further[0] ? "Both" : side.main);
        if (!side.main[0])
            CopyText(text, side.further);
        return;
    }
    const unsigned* outputs = output_keys[bank->me];
    if (std::all_of(outputs, outputs + OUTPUTS, [](unsigned keys) { return keys == 0; }))
        CopyText(text, "Main");
    for (int output = 0; output < OUTPUTS; output++) {
        if (!(outputs[output] >> key & 1))
            continue;
        if (text[0])
            AppendText(text, ",");
        AppendText(text, NumStr(output + 1));
    }
}

static int draw_key_assign(ST_MEM* cell, const char* name, int first_key)
{
    const int lit = st_in_view(cell);
    const ST_MEM* c = st_begin(cell, lit, name);
    if (!c)
        return -1;
    char label[HALF_KEYS][8];
    char setup[HALF_KEYS][32];
    ST_VAL val{.st_num = HALF_KEYS, .selected = lit};
    for (int i = 0; i < HALF_KEYS; i++) {
        PrintText(label[i], "%s%d", is_pgm() ? "DSK" : "Key", (first_key + i) % KEYS + 1);
        print_setup_of_key(setup[i], first_key + i);
        val.st_str[i] = label[i];
        val.val_str[i] = c->tally[i][0] ? c->tally[i] : setup[i];
    }
    st_drw_status_values(c, &val);
    if (first_key >= GL_KeyMax[Now_disp_draw()]) // the bank lacks them
        st_drw_recoats_grayout(c, lit);
    return 0;
}

int st_drw_me_misc_key_assign1(ST_MEM* cell)
{
    return draw_key_assign(cell, "Key Assign", 0);
}

int st_drw_me_misc_key_assign2(ST_MEM* cell)
{
    return draw_key_assign(cell, "Key Assign 2", HALF_KEYS);
}

// 0 on, then the levels.
int st_drw_me_misc_video_proc(ST_MEM* cell)
{
    static constexpr ST_LABEL labels[] = {{"Lum", 1}, {"Chr", 2}, {"Hue", 3}};
    const int lit = st_in_view(cell);
    const ST_MEM* c = st_begin(cell, lit, "Video Proc");
    if (!c)
        return -1;
    st_put_values(c, lit, labels);
    if (st_is_off(c, 0))
        st_drw_recoats_grayout(c, lit);
    return 0;
}

// --- Clip transition ---

// 0 the bus that takes part, 1 name of its signal.
int st_drw_me_misc_cliptrans_bkgd(ST_MEM* cell)
{
    const ST_MEM* c = st_begin(cell, st_in_view(cell), "Bkgd");
    if (!c)
        return -1;
    st_drw_center_image_square(c, c->tally[0], 0);
    return st_drw_under_strings(c, c->tally[1], 0);
}

// 0 the output that plays ("FM1"), 1 name of the clip.
int st_drw_me_misc_cliptrans_clip(ST_MEM* cell)
{
    const ST_MEM* c = st_begin(cell, is_page_in_view(PAGE_CLIP), "Clip");
    if (!c)
        return -1;
    st_drw_center_image_square(c, c->tally[0], 1);
    return st_drw_under_strings(c, c->tally[1], 0);
}

// The run of the clip, with the two points between which the transition goes: 0 position, 1 begin,
// 2 end, all in percent.
int st_drw_me_misc_cliptrans_bar(ST_MEM* cell)
{
    constexpr unsigned TRACK = BAR_GROUND;
    constexpr unsigned RANGE = ORANGE;
    constexpr unsigned CURSOR = CYAN;
    const ST_MEM* c = st_begin(cell, st_in_view(cell), "Clip Transition");
    if (!c)
        return -1;
    const int left = c->x1 + 12;
    const int width = c->x2 - c->x1 - 24;
    const int top = c->y1 + 36;
    const auto x_of = [&](int tally) {
        return left + std::clamp(number_of(c->tally[tally]), 0, 100) * width / 100;
    };
    TDL_FillRectS(left, top, left + width, top + 11, TRACK);
    if (x_of(1) < x_of(2))
        TDL_FillRectS(x_of(1), top + 4, x_of(2), top + 7, RANGE);
    TDL_FillRectS(x_of(0) - 1, top - 3, x_of(0) + 1, top + 14, CURSOR);
    char percent[16];
    PrintText(percent, "%d %%", std::clamp(number_of(c->tally[0]), 0, 100));
    return st_drw_under_strings(c, percent, 0);
}

// 0 what the player does, 1 its time code.
int st_drw_me_misc_cliptrans_indicator(ST_MEM* cell)
{
    const ST_MEM* c = st_begin(cell, st_in_view(cell), "Player");
    if (!c)
        return -1;
    st_drw_center_image_square(c, c->tally[0], strcmp(c->tally[0], "Play") == 0);
    return st_drw_under_strings(c, c->tally[1], 0);
}
