// The cells of a bank: its transition, key priority and assignment, video process, and what a clip
// transition shows.
#include "a_st_draw.h"
#include "command.h"
#include "page.h"
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
struct Transition {
    int tally; // "true" while it is the bank's
    const char* square;
    int pattern = -1; // the tally with the number; its picture takes the place of the text
    int kept = -1;    // where TrnModeStatus keeps that number
};
constexpr Transition transitions[] = {
    {TRN_MIX, "Mix"},
    {TRN_NAM, "NAM"},
    {TRN_SUPER_MIX, "Super Mix"},
    {TRN_COLOR_MIX, "Preset Color Mix"},
    {TRN_WIPE, "Wipe", TRN_WIPE_PATTERN, 1},
    {TRN_DME_WIPE, "DME Wipe", TRN_DME_PATTERN, 2},
    {TRN_CLIP, "Clip"},
};
} // namespace

static char key_outputs[KEYS][16]; // by key, as the setup assigns them; "" unknown

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
    const int lit = st_in_view(cell);
    const ST_MEM* c = st_begin(cell, lit, "Transition");
    const int side = isNowPageME(0) == 2;
    const Transition* t = c ? transition_of(c, side) : nullptr;
    if (!t)
        return -1;
    if (t->pattern < 0)
        return st_drw_center_image_square(c, t->square, 0);
    int* number = &TrnModeStatus[side][t->kept];
    if (c->tally[t->pattern][0])
        *number = number_of(c->tally[t->pattern]);
    char text[16] = "";
    if (*number)
        PrintText(text, "%d", *number);
    st_drw_bmpimage_strings(c, st_pattern(text), "");
    return st_drw_under_strings(c, text, 0);
}

// --- Priority: who lies on top, from the top; 4 "false" when it is not in use ---

static const ST_MEM* draw_priority(ST_MEM* cell, const char* name)
{
    static constexpr ST_LABEL labels[] = {{"1st", 0}, {"2nd", 1}, {"3rd", 2}, {"4th", 3}};
    const int lit = st_in_view(cell);
    const ST_MEM* c = st_begin(cell, lit, name);
    if (c)
        st_put_values(c, lit, labels);
    return c;
}

int st_drw_me_misc_key_priority(ST_MEM* cell)
{
    return draw_priority(cell, "Key Priority") ? 0 : -1;
}

int st_drw_me_misc_next_key_priority(ST_MEM* cell)
{
    return draw_priority(cell, "Next Priority") ? 0 : -1;
}

int st_drw_me_misc_key_priority_gray(ST_MEM* cell)
{
    const ST_MEM* c = draw_priority(cell, "Key Priority");
    if (!c)
        return -1;
    if (st_is_off(c, 4))
        st_drw_recoats_grayout(c, st_in_view(cell));
    return 0;
}

// --- Assignment: 0 to 3 the output of a key; without it what the setup says ---

void st_drw_me_misc_key_assign_tally_set(const char* value)
{
    char text[CMD_SIZE];
    char* part[KEYS + 1];
    CopyText(text, value);
    (void)SplitVars(text, part, KEYS + 1); // the last takes what is too many
    for (int i = 0; i < KEYS; i++)
        CopyText(key_outputs[i], part[i] ? part[i] : "");
}

static int draw_key_assign(ST_MEM* cell, const char* name, int first_key)
{
    static constexpr const char* labels[KEYS] = {"Key1", "Key2", "Key3", "Key4",
                                                 "Key5", "Key6", "Key7", "Key8"};
    const int lit = st_in_view(cell);
    const ST_MEM* c = st_begin(cell, lit, name);
    if (!c)
        return -1;
    ST_VAL val{.st_num = KEYS / 2, .selected = lit};
    for (int i = 0; i < KEYS / 2; i++) {
        val.st_str[i] = labels[first_key + i];
        val.val_str[i] = c->tally[i][0] ? c->tally[i] : key_outputs[first_key + i];
    }
    return st_drw_status_values(c, &val);
}

int st_drw_me_misc_key_assign1(ST_MEM* cell)
{
    return draw_key_assign(cell, "Key Assign", 0);
}

int st_drw_me_misc_key_assign2(ST_MEM* cell)
{
    return draw_key_assign(cell, "Key Assign 2", KEYS / 2);
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
    const ST_MEM* c = st_begin(cell, st_in_view(cell), "Clip");
    if (!c)
        return -1;
    st_drw_center_image_square(c, c->tally[0], 1);
    return st_drw_under_strings(c, c->tally[1], 0);
}

// The run of the clip, with the two points between which the transition goes: 0 position, 1 begin,
// 2 end, all in percent.
int st_drw_me_misc_cliptrans_bar(ST_MEM* cell)
{
    constexpr unsigned TRACK = 0x006464;
    constexpr unsigned RANGE = 0xE48B1B;
    constexpr unsigned CURSOR = 0x00FFFF;
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
