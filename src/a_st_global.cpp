// The cells of global effects: what leaves each channel of an effects unit, and how the channels of
// a group of four are combined.
#include "a_st_draw.h"
#include "colours.h"
#include "graphics.h"
#include "tdl.h"
#include "text.h"
#include <cstring>
#include <iterator>
#include "safeguards.h"

namespace
{
constexpr int CHANNELS = 4; // of a group

// How channels are counted: each for itself, in pairs where one link cannot carry the picture, or
// one of a small unit.
enum ChannelForm { SINGLE, PAIR, SMALL_UNIT };

enum OutTally : int { // of a channel's output
    OUT_COMBINE = 0,  // its picture goes into the group's
    OUT_PRIORITY = 1,
    OUT_BRICK = 2,
    OUT_BRICK_FACES = 3,
};
enum CombinerTally : int { // of a group; one of each kind a channel
    COMBINE = 0,
    TRAIL = CHANNELS,
};
// The diagram of the base bitmap: 200 x 120, tiles of 40 x 24 on it.
constexpr int DIAGRAM_X = 20;
constexpr int DIAGRAM_Y = 28;
constexpr int TRAIL_X = 60;
constexpr int OUT_X = 160;
constexpr int OUT_Y = 48;
constexpr int ROW_PITCH = 32;
} // namespace

// --- Pictures ---

int st_drw_center_image_ch_out_priority(const ST_MEM* cell, const char* priority)
{
    return st_drw_center_image_square(cell, priority, 0);
}

// A solid seen from its corner; the faces that carry a picture are filled.
int st_drw_center_image_ch_out_brick(const ST_MEM* cell, int faces)
{
    const int x = cell->x1 + 30;
    const int y = cell->y1 + 34;
    if (faces > 0)
        TDL_FillRectS(x, y, x + 26, y + 24, WHITE);
    else
        TDL_RectS(x, y, x + 26, y + 24, WHITE);
    if (faces > 1)
        TDL_FillParaVS(x + 27, y, x + 39, y - 8, 25, 0x9FD8DC);
    else
        TDL_ParaVS(x + 27, y, x + 39, y - 8, 25, WHITE);
    if (faces > 2)
        TDL_FillParaS(x, y - 1, x + 12, y - 8, 27, 0xB4B4B4);
    else
        TDL_ParaS(x, y - 1, x + 12, y - 8, 27, WHITE);
    return 0;
}

int st_drw_center_image_ch_out_brick_4ch(const ST_MEM* cell)
{
    st_drw_center_image_ch_out_brick(cell, 3);
    return TDL_RectS(cell->x1 + 26, cell->y1 + 22, cell->x1 + 73, cell->y1 + 61, WHITE);
}

// The same tiles stand for both groups of a switcher: the number is that of the channel.
static int put_channel_tile(int x, int y, int channel)
{
    SDL_Surface* const tiles[CHANNELS] = {G_Combiner_Chx1, G_Combiner_Chx2, G_Combiner_Chx3,
                                          G_Combiner_Chx4};
    constexpr int WIDTH = 40, HEIGHT = 24, FONT_NUMBER = 5;
    TDL_PutS(x, y, tiles[(channel - 1) % CHANNELS]);
    return TDL_SymbolCS(x, y, x + WIDTH - 1, y + HEIGHT - 1, NumStr(channel), FONT_NUMBER, WHITE);
}

int st_drw_center_image_ch_combine(const ST_MEM* cell, int channel)
{
    return channel >= 1 && channel <= 2 * CHANNELS
               ? put_channel_tile(cell->x1 + 30, cell->y1 + 33, channel)
               : -1;
}

static SDL_Surface* trail_picture(const char* trail)
{
    if (strcmp(trail, "Pre") == 0)
        return G_Combiner_Trail_Pre;
    return strcmp(trail, "Post") == 0 ? G_Combiner_Trail_Post : G_Combiner_Trail_Off;
}

static int put_tile(const ST_MEM* cell, int x, int y, SDL_Surface* tile)
{
    return TDL_PutS(cell->x1 + DIAGRAM_X + x, cell->y1 + DIAGRAM_Y + y, tile);
}

int st_drw_center_image_globaleffect_combiner_trail(const ST_MEM* cell, int row, const char* trail)
{
    return put_tile(cell, TRAIL_X, row * ROW_PITCH, trail_picture(trail));
}

// The left and the right eye go the same way: two rows a channel.
int st_drw_center_image_globaleffect_combiner_trail_3D(const ST_MEM* cell, int row,
                                                       const char* trail)
{
    st_drw_center_image_globaleffect_combiner_trail(cell, 2 * row, trail);
    return st_drw_center_image_globaleffect_combiner_trail(cell, 2 * row + 1, trail);
}

// A pair goes as one: the trail lies on its first row.
int st_drw_center_image_globaleffect_combiner_trail_st_dp(const ST_MEM* cell, int row,
                                                          const char* trail)
{
    st_drw_center_image_globaleffect_combiner_trail(cell, 2 * row, trail);
    return st_drw_center_image_globaleffect_combiner_trail(cell, 2 * row + 1, "Off");
}

// --- A channel's output ---

static void out_name(char (&name)[16], int channel, ChannelForm form)
{
    if (form == PAIR)
        PrintText(name, "Ch%d-%d Out", 2 * channel - 1, 2 * channel);
    else
        PrintText(name, form == SMALL_UNIT ? "Ch%d" : "Ch%d Out", channel);
}

static int draw_out(ST_MEM* cell, int channel, ChannelForm form)
{
    char name[16];
    out_name(name, channel, form);
    const int lit = st_in_view(cell);
    const ST_MEM* c = st_begin(cell, lit, name);
    if (!c)
        return -1;
    if (st_is_on(c, OUT_BRICK)) {
        if (strcmp(c->tally[OUT_BRICK_FACES], "4") == 0)
            st_drw_center_image_ch_out_brick_4ch(c);
        else
            st_drw_center_image_ch_out_brick(c, c->tally[OUT_BRICK_FACES][0] - '0');
        return st_drw_under_strings(c, "Brick", 0);
    }
    if (st_is_on(c, OUT_COMBINE)) {
        st_drw_center_image_ch_combine(c, form == PAIR ? 2 * channel - 1 : channel);
        return st_drw_under_strings(c, "Combine", 0);
    }
    if (c->tally[OUT_PRIORITY][0]) {
        st_drw_center_image_ch_out_priority(c, c->tally[OUT_PRIORITY]);
        st_drw_under_strings(c, "Priority", 0);
    }
    if (st_is_off(c, OUT_COMBINE))
        st_drw_recoats_grayout(c, lit);
    return 0;
}

#define CHANNEL_OUT(n)                                                                             \
    int st_drw_globaleffect_ch##n##out(ST_MEM* cell)                                               \
    {                                                                                              \
        return draw_out(cell, n, SINGLE);                                                          \
    }                                                                                              \
    int st_drw_globaleffect_ch##n##out_dp(ST_MEM* cell)                                            \
    {                                                                                              \
        return draw_out(cell, n, PAIR);                                                            \
    }                                                                                              \
    int st_drw_globaleffect_ch##n##out_e(ST_MEM* cell)                                             \
    {                                                                                              \
        return draw_out(cell, n, SMALL_UNIT);                                                      \
    }
CHANNEL_OUT(1)
CHANNEL_OUT(2)
CHANNEL_OUT(3)
CHANNEL_OUT(4)
CHANNEL_OUT(5)
CHANNEL_OUT(6)
CHANNEL_OUT(7)
CHANNEL_OUT(8)
#undef CHANNEL_OUT

// --- The combiner of a group ---

namespace
{
struct Combiner {
    int channels; // that the diagram tells apart
    int (*put_trail)(const ST_MEM*, int row, const char* trail);
    int rows_a_channel;
};
constexpr Combiner single = {CHANNELS, st_drw_center_image_globaleffect_combiner_trail, 1};
constexpr Combiner stereo = {CHANNELS / 2, st_drw_center_image_globaleffect_combiner_trail_3D, 2};
constexpr Combiner pairs = {CHANNELS / 2, st_drw_center_image_globaleffect_combiner_trail_st_dp, 2};
constexpr Combiner small_unit = {2, st_drw_center_image_globaleffect_combiner_trail, 1};
} // namespace

static void veil_row(const ST_MEM* c, int row)
{
    const int x = c->x1 + DIAGRAM_X;
    const int y = c->y1 + DIAGRAM_Y + row * ROW_PITCH;
    TDL_FillRectAS(x, y, x + 39, y + 23, 0, static_cast<unsigned char>(gry_rat));
}

static void put_channel(const ST_MEM* c, const Combiner& form, int first, int channel)
{
    const bool is_combined = st_is_on(c, COMBINE + channel);
    for (int i = 0; i < form.rows_a_channel; i++) {
        const int row = channel * form.rows_a_channel + i;
        put_channel_tile(c->x1 + DIAGRAM_X, c->y1 + DIAGRAM_Y + row * ROW_PITCH, first + row);
        if (!is_combined)
            veil_row(c, row);
    }
    form.put_trail(c, channel, is_combined ? c->tally[TRAIL + channel] : "Off");
}

static int draw_combiner(ST_MEM* cell, const char* name, const Combiner& form, int first)
{
    const ST_MEM* c = st_begin(cell, st_in_view(cell), name);
    if (!c)
        return -1;
    // The bitmaps are opaque on black: below its name a lit cell is black, too.
    TDL_FillRectS(c->x1 + 3, c->y1 + DIAGRAM_Y - 5, c->x2 - 3, c->y2 - 3, BLACK);
    TDL_PutS(c->x1 + DIAGRAM_X, c->y1 + DIAGRAM_Y, G_Combiner_Base);
    put_tile(c, OUT_X, OUT_Y, G_Combiner_Out);
    for (int i = 0; i < form.channels; i++)
        put_channel(c, form, first, i);
    // The unit has no further channels; the line to the output leaves above their rows.
    const int rows = form.channels * form.rows_a_channel;
    const int y = c->y1 + DIAGRAM_Y + rows * ROW_PITCH - 4;
    if (rows < CHANNELS)
        TDL_FillRectS(c->x1 + DIAGRAM_X, y, c->x1 + OUT_X - 8, c->y2 - 3, BLACK);
    return 0;
}

int st_drw_globaleffect_combiner1(ST_MEM* cell)
{
    return draw_combiner(cell, "Ch1-Ch4 Combiner", single, 1);
}
int st_drw_globaleffect_combiner1_3D(ST_MEM* cell)
{
    return draw_combiner(cell, "Ch1-Ch4 Combiner 3D", stereo, 1);
}
int st_drw_globaleffect_combiner1_dp(ST_MEM* cell)
{
    return draw_combiner(cell, "Ch1-Ch4 Combiner", pairs, 1);
}
int st_drw_globaleffect_combiner1_e(ST_MEM* cell)
{
    return draw_combiner(cell, "Ch1-Ch2 Combiner", small_unit, 1);
}
int st_drw_globaleffect_combiner2(ST_MEM* cell)
{
    return draw_combiner(cell, "Ch5-Ch8 Combiner", single, 5);
}
int st_drw_globaleffect_combiner2_3D(ST_MEM* cell)
{
    return draw_combiner(cell, "Ch5-Ch8 Combiner 3D", stereo, 5);
}
int st_drw_globaleffect_combiner2_dp(ST_MEM* cell)
{
    return draw_combiner(cell, "Ch5-Ch8 Combiner", pairs, 5);
}
int st_drw_globaleffect_combiner2_e(ST_MEM* cell)
{
    return draw_combiner(cell, "Ch3-Ch4 Combiner", small_unit, 3);
}
