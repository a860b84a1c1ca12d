// The cells of a bank's wipe: patterns, positions, modifiers, direction, mix, edge. Main and sub
// pattern have the same cells.
#include "a_st_draw.h"
#include "graphics.h"
#include "page.h"
#include <algorithm>
#include <climits>
#include <cstdlib>
#include <cstring>
#include "safeguards.h"

// A bank that has one pattern only says just "Patt".
static bool has_one_pattern()
{
    return isNowPageME(0) == 2;
}

// --- Pattern: 0 number, 1 "false" when the pattern is not in use ---

static int draw_pattern(ST_MEM* cell, const char* name)
{
    const int lit = st_in_view(cell);
    const ST_MEM* c = st_begin(cell, lit, name);
    if (!c)
        return -1;
    st_drw_bmpimage_strings(c, st_pattern(c->tally[0]), "");
    st_drw_under_strings(c, c->tally[0], 0);
    if (st_is_off(c, 1))
        st_drw_recoats_grayout(c, lit);
    return 0;
}

int st_drw_me_wipe_main_pattern(ST_MEM* cell)
{
    return draw_pattern(cell, has_one_pattern() ? "Patt" : "Main Pattern");
}

int st_drw_me_wipe_sub_pattern(ST_MEM* cell)
{
    return draw_pattern(cell, "Sub Pattern");
}

// --- Position: 0 enable, 1 horizontal, 2 vertical, 3 auto centre ---

static int whole(const char* text)
{
    return int(std::clamp(strtol(text, nullptr, 10), long(SHRT_MIN), long(SHRT_MAX)));
}

// Never lit: for the page on which both are adjusted the pattern stands.
static int draw_position(ST_MEM* cell, const char* name)
{
    const ST_MEM* c = st_begin(cell, 0, name);
    if (!c)
        return -1;
    st_drw_center_image_wipe_position(c, whole(c->tally[1]), whole(c->tally[2]));
    if (st_is_on(c, 3))
        st_drw_under_strings(c, "Auto Center", 0);
    if (st_is_off(c, 0))
        st_drw_recoats_grayout(c, 0);
    return 0;
}

int st_drw_me_wipe_main_position(ST_MEM* cell)
{
    return draw_position(cell, has_one_pattern() ? "Position" : "Main Position");
}

int st_drw_me_wipe_sub_position(ST_MEM* cell)
{
    return draw_position(cell, "Sub Position");
}

// --- Modifiers: labels with a value; a modifier that is off stays without ---

static int draw_values(ST_MEM* cell, const char* name, std::span<const ST_LABEL> labels)
{
    const int lit = st_in_view(cell);
    const ST_MEM* c = st_begin(cell, lit, name);
    if (!c)
        return -1;
    st_put_values(c, lit, labels);
    return 0;
}

// 0 aspect, 1 angle, 2 multi; 3 modulation, 4 its speed, 5 spring.
static constexpr ST_LABEL modify_labels[] = {{"Asp", 0}, {"Ang", 1}, {"Mult", 2}};
static constexpr ST_LABEL modify_2_labels[] = {{"Mod", 3}, {"Spd", 4}, {"Spr", 5}};

int st_drw_me_wipe_main_modify(ST_MEM* cell)
{
    return draw_values(cell, has_one_pattern() ? "Modify" : "Main Modify", modify_labels);
}

int st_drw_me_wipe_main_modify_2(ST_MEM* cell)
{
    return draw_values(cell, has_one_pattern() ? "Modify 2" : "Main Modify2", modify_2_labels);
}

int st_drw_me_wipe_sub_modify(ST_MEM* cell)
{
    return draw_values(cell, "Sub Modify", modify_labels);
}

int st_drw_me_wipe_sub_modify_2(ST_MEM* cell)
{
    return draw_values(cell, "Sub Modify2", modify_2_labels);
}

// The sub side of a bank that runs two programs has its own wipe, and one pattern of it.
int st_drw_me_wipe_mp2sub_modify(ST_MEM* cell)
{
    return draw_values(cell, "Modify", modify_labels);
}

// --- Direction: 0 normal, 1 reverse, 2 normal/reverse, 3 pattern limit ---

static const char* direction_of(const ST_MEM* c)
{
    if (st_is_on(c, 0) && st_is_off(c, 1))
        return "Normal";
    if (st_is_off(c, 0) && st_is_on(c, 1))
        return "Reverse";
    return "";
}

int st_drw_me_wipe_direction(ST_MEM* cell)
{
    const int lit = st_in_view(cell);
    const ST_MEM* c = st_begin(cell, lit, "Direction");
    if (!c)
        return -1;
    ST_VAL val{
        .st_num = 3, .st_str = {direction_of(c), "Norm/Rev", "Pattern Limit"}, .selected = lit};
    val.invert[0] = val.st_str[0][0] != '\0';
    val.grayout[1] = st_is_off(c, 2);
    val.grayout[2] = st_is_off(c, 3);
    return st_drw_status_strings(c, &val);
}

// 0 kind of mix, 1 pattern.
int st_drw_me_wipe_pattern_mix(ST_MEM* cell)
{
    const int lit = st_in_view(cell);
    const ST_MEM* c = st_begin(cell, lit, "Pattern Mix");
    if (!c)
        return -1;
    st_drw_bmpimage_strings(c, st_pattern(c->tally[1]), "");
    st_drw_under_strings(c, c->tally[0], 0);
    if (strcmp(c->tally[0], "Off") == 0)
        st_drw_recoats_grayout(c, lit);
    return 0;
}

// --- Edge: 0 border, 1 soft, 2 width, 3 softness ---

int st_drw_me_wipe_edge(ST_MEM* cell)
{
    const int lit = st_in_view(cell);
    const ST_MEM* c = st_begin(cell, lit, "Edge");
    if (!c)
        return -1;
    const bool border = st_is_on(c, 0);
    const bool soft = st_is_on(c, 1);
    SDL_Surface* picture = border ? (soft ? G_Edge_Border_soft : G_Edge_Border)
                                  : (soft ? G_Edge_Normal_soft : G_Edge_Normal);
    st_drw_bmpimage_strings(c, picture, "");
    st_drw_under_strings(c, border ? "Border" : soft ? "Soft" : "Normal", 0);
    if (!border && !soft)
        st_drw_recoats_grayout(c, lit);
    return 0;
}

int st_drw_me_wipe_edge_2(ST_MEM* cell)
{
    static constexpr ST_LABEL labels[] = {{"Wid", 2}, {"Soft", 3}};
    return draw_values(cell, "Edge Adj", labels);
}
