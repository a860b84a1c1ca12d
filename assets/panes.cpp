// What lies on panes and windows: cells, keys of the ten-key pad and the keyboard, message boxes,
// list keys.
#include "cap.h"

namespace
{
constexpr Colour TEAL_INK = 0x00797F, AMBER_INK = 0xA85E00, SLOT = 0x111416;
constexpr Colour ORANGE = 0xE48B1B, ORANGE_DEEP = 0xC86E05;

// --- Region and select panes ---

// The reference region: an orange frame and a corner flag with a dot.
void draw_reference_mark(const Canvas& cv, int pushed)
{
    const int p = pushed;
    CV_RoundRect(cv, 2.5 + p, 2.5 + p, 55 - p, 33 + p * 1.5, 3.5);
    CV_Stroke(cv, 2, ORANGE);
    CV_Polygon(cv, {{58, 38}, {58, 22}, {42, 38}});
    CV_Paint(cv, ORANGE_DEEP);
    CV_Circle(cv, 53, 33, 2.6);
    CV_Paint(cv, 0xFFFFFF);
}

void draw_region_cell(const Canvas& cv, const State& st, int)
{
    if (st.is_disabled) {
        CAP_Flat(cv);
        return;
    }
    CAP_Draw(cv, st.on ? ICE : GRAPHITE, st.pushed, {.lip = 2});
    CAP_Lamp(cv, {.suffix = "", .pushed = st.pushed, .on = st.on ? 1 : 0},
             {.off_width = 14, .height = 2, .x = 8, .y = 5});
    if (st.on == 2)
        draw_reference_mark(cv, st.pushed);
}

void draw_function(const Canvas& cv, const State& st, int)
{
    if (st.is_disabled)
        CAP_Flat(cv);
    else
        CAP_Draw(cv, st.on ? SILVER : STEEL, st.pushed);
}

void draw_enter(const Canvas& cv, const State& st, int variant)
{
    draw_function(cv, st, variant);
    if (!st.is_disabled)
        CAP_Primary(cv, st);
}

enum CellHue { TEAL_CELL, AMBER_CELL };

void draw_select_cell(const Canvas& cv, const State& st, int hue)
{
    if (st.is_disabled) {
        CAP_Flat(cv);
        return;
    }
    const Material& lit = hue == AMBER_CELL ? AMBER : ICE;
    CAP_Draw(cv, st.on ? lit : GRAPHITE, 0, {.lip = 2});
    if (st.on)
        CV_Fill(cv, 8, 5, 58, 2, hue == AMBER_CELL ? AMBER_INK : TEAL_INK);
    else
        CV_Fill(cv, 8, 5, 18, 2, hue == AMBER_CELL ? 0x7A4A10 : SLOT);
}

// --- Open pull-down: its items make one body ---

enum ItemPlace { ITEM_TOP, ITEM_MIDDLE, ITEM_END };

void draw_pull_down_item(const Canvas& cv, const State& st, int place)
{
    const int corners = place == ITEM_TOP ? TOP_CORNERS : place == ITEM_END ? BOTTOM_CORNERS : 0;
    const Face& face = st.on ? ICE.up : GRAPHITE.up;
    const int w = cv.width, h = cv.height;
    const int top = place == ITEM_TOP ? 1 : 0;
    const int bottom = place == ITEM_END ? h - 3 : h; // lip and gasket below the last item only
    CV_RoundRect(cv, 0, 0, w, h, 6, corners);
    CV_Paint(cv, 0x000000);
    if (place == ITEM_END) {
        CV_RoundRect(cv, 1, 0, w - 2, h - 1, 5, corners);
        CV_Paint(cv, GRAPHITE.up.lip);
    }
    CV_RoundRect(cv, 1, top, w - 2, bottom - top, 5, corners);
    if (st.on)
        CV_PaintGradient(cv, top, bottom, {{0, face.top}, {0.45, face.middle}, {1, face.bottom}});
    else
        CV_Paint(cv, face.middle);
    CV_RoundRect(cv, 1, top, w - 2, bottom - top, 5, corners);
    CV_Clip(cv);
    CV_Fill(cv, 1, top, w - 2, 1, face.edge, place == ITEM_TOP ? 1 : 0.45);
    CV_Fill(cv, 1, top, 1, h, face.edge, 0.35);
    CV_Fill(cv, w - 2, top, 1, h, 0x000000, 0.22);
    if (place != ITEM_END)
        CV_Fill(cv, 1, h - 1, w - 2, 1, 0x000000, 0.7); // groove to the next item
    CV_EndClip(cv);
    if (st.on)
        CV_Fill(cv, 3, 8, 3, h - 16, TEAL_INK);
}

// --- Message pane ---

enum MessageKind { MESSAGE_INFO, MESSAGE_ALERT, MESSAGE_FATAL };

void draw_message_icon(const Canvas& cv, const State&, int kind)
{
    if (kind == MESSAGE_INFO) {
        CV_Circle(cv, 20, 20, 18.5);
        CV_Paint(cv, 0x006E80);
        CV_Circle(cv, 20, 11.5, 2.6);
        CV_Paint(cv, 0xFFFFFF);
        CV_RoundRect(cv, 17.6, 16.5, 4.8, 14, 1.5);
        CV_Paint(cv, 0xFFFFFF);
    } else if (kind == MESSAGE_ALERT) {
        CV_Polygon(cv, {{20, 3.5}, {38, 35}, {2, 35}});
        CV_Paint(cv, ORANGE);
        CV_Polygon(cv, {{20, 3.5}, {38, 35}, {2, 35}});
        CV_Stroke(cv, 3, ORANGE); // rounds its corners
        CV_RoundRect(cv, 17.8, 12.5, 4.4, 13, 1.5);
        CV_Paint(cv, 0x000000);
        CV_Circle(cv, 20, 30, 2.5);
        CV_Paint(cv, 0x000000);
    } else {
        CV_Polygon(cv,
                   {{12, 1}, {28, 1}, {39, 12}, {39, 28}, {28, 39}, {12, 39}, {1, 28}, {1, 12}});
        CV_Paint(cv, 0xC01818);
        CV_Lines(cv, {{13, 13}, {27, 27}});
        CV_Stroke(cv, 4.5, 0xFFFFFF);
        CV_Lines(cv, {{27, 13}, {13, 27}});
        CV_Stroke(cv, 4.5, 0xFFFFFF);
    }
}

void draw_box_key(const Canvas& cv, const State& st, int)
{
    if (st.is_disabled)
        CAP_Flat(cv);
    else
        CAP_Draw(cv, st.on ? SILVER : GRAPHITE, st.pushed);
}

void draw_box_arrow(const Canvas& cv, const State& st, int direction)
{
    CAP_Draw(cv, GRAPHITE, st.pushed, {.radius = 4});
    CV_Arrow(cv, 16.5 + st.pushed, 17 + direction + st.pushed, 0, direction, 7, 0xFFFFFF);
}

// --- Windows ---

void draw_graphite_key(const Canvas& cv, const State& st, int)
{
    CAP_Draw(cv, GRAPHITE, st.pushed);
}

void draw_cursor_key(const Canvas& cv, const State& st, int direction)
{
    CAP_Draw(cv, GRAPHITE, st.pushed);
    CV_Arrow(cv, 25 + direction + st.pushed, 24 + st.pushed, direction, 0, 8, 0xFFFFFF);
}

// Caps and shift stay on: they have a lamp where the other functions have none.
void draw_latch_key(const Canvas& cv, const State& st, int)
{
    CAP_Draw(cv, st.on ? ICE : STEEL, 0);
    CAP_Lamp(cv, st);
}

// --- Lists ---

enum ListLamps { ONE_LAMP = 1, TWO_LAMPS = 2 };

void draw_list_key(const Canvas& cv, const State& st, int lamps)
{
    if (st.is_disabled) {
        CAP_Flat(cv);
        return;
    }
    CAP_Draw(cv, st.on ? ICE : GRAPHITE, 0);
    for (int i = 0; i < lamps; i++)
        CAP_Lamp(cv, st, {.off_width = 14, .height = 2, .x = 10, .y = 5 + 4 * i});
}

// Outer corners only: arrow, track and thumb read as one column.
void draw_scroll_arrow(const Canvas& cv, const State& st, int direction)
{
    CAP_Draw(cv, PETROL, st.pushed,
             {.radius = 4, .corners = direction < 0 ? TOP_CORNERS : BOTTOM_CORNERS});
    CV_Arrow(cv, 23 + st.pushed, 19 + direction + st.pushed, 0, direction, 8, 0xD5F3F7);
}

constexpr State STATES_CELL[] = {
    {.suffix = "_p0o0"},
    {.suffix = "_p0o1", .on = 1},
    {.suffix = "_p0o2", .on = 2},
    {.suffix = "_p1o0", .pushed = 1},
    {.suffix = "_p1o1", .pushed = 1, .on = 1},
    {.suffix = "_p1o2", .pushed = 1, .on = 2},
    {.suffix = "_dis", .is_disabled = true},
};
constexpr State STATES_AMBER[] = {{.suffix = "_off_amber"}, {.suffix = "_on_amber", .on = 1}};

// clang-format off
constexpr Family FAMILIES[] = {
    {"PDs",        60, 40, ON_PANE, draw_region_cell, STATES_CELL},
    {"PDs_enter",  60, 40, ON_PANE, draw_enter, STATES_HELD_DIS},
    {"UP_sel",     74, 39, ON_PANE, draw_select_cell, STATES_ON_OFF_DIS, TEAL_CELL},
    {"UP_sel",     74, 39, ON_PANE, draw_select_cell, STATES_AMBER, AMBER_CELL},
    {"pulldown_top", 101, 32, ON_PANE, draw_pull_down_item, STATES_ON_OFF, ITEM_TOP},
    {"pulldown_mid", 101, 32, ON_PANE, draw_pull_down_item, STATES_ON_OFF, ITEM_MIDDLE},
    {"pulldown_end", 101, 32, ON_PANE, draw_pull_down_item, STATES_ON_OFF, ITEM_END},
    {"BOX_key",    94, 40, ON_LIGHT, draw_box_key, STATES_HELD_DIS},
    {"BOX_up",     33, 36, ON_TRACK, draw_box_arrow, STATES_HELD, -1},
    {"BOX_down",   33, 36, ON_TRACK, draw_box_arrow, STATES_HELD, 1},
    {"BOX_info",   40, 40, ON_LIGHT, draw_message_icon, STATE_SINGLE, MESSAGE_INFO},
    {"BOX_alert",  40, 40, ON_LIGHT, draw_message_icon, STATE_SINGLE, MESSAGE_ALERT},
    {"BOX_fatal",  40, 40, ON_LIGHT, draw_message_icon, STATE_SINGLE, MESSAGE_FATAL},
    {"10K_key",    50, 55, ON_WINDOW, draw_graphite_key, STATES_HELD},
    {"10K_clear",  50, 55, ON_WINDOW, draw_function, STATES_HELD},
    {"10K_cancel", 50, 55, ON_WINDOW, draw_function, STATES_HELD},
    {"10K_enter",  50, 55, ON_WINDOW, draw_enter, STATES_HELD},
    {"KYB_key",    50, 50, ON_WINDOW, draw_graphite_key, STATES_HELD},
    {"KYB_left",   50, 50, ON_WINDOW, draw_cursor_key, STATES_HELD, -1},
    {"KYB_right",  50, 50, ON_WINDOW, draw_cursor_key, STATES_HELD, 1},
    {"KYB_bs",    104, 50, ON_WINDOW, draw_function, STATES_HELD},
    {"KYB_caps",  104, 50, ON_WINDOW, draw_latch_key, STATES_ON_OFF},
    {"KYB_shift", 104, 50, ON_WINDOW, draw_latch_key, STATES_ON_OFF},
    {"KYB_enter", 104, 50, ON_WINDOW, draw_enter, STATES_HELD},
    {"KYB_cancel", 104, 50, ON_WINDOW, draw_function, STATES_HELD},
    {"KYB_space", 266, 50, ON_WINDOW, draw_graphite_key, STATES_HELD},
    {"LST",        62, 40, ON_BLACK, draw_list_key, STATES_ON_OFF_DIS, ONE_LAMP},
    {"LST_all",    62, 40, ON_BLACK, draw_list_key, STATES_ON_OFF_DIS, TWO_LAMPS},
    {"SEL",        62, 40, ON_BLACK, draw_list_key, STATES_ON_OFF, ONE_LAMP},
    {"SEL_all",    62, 40, ON_BLACK, draw_list_key, STATES_ON_OFF, TWO_LAMPS},
    {"SB_up",      46, 40, ON_BLACK, draw_scroll_arrow, STATES_HELD, -1},
    {"SB_dw",      46, 40, ON_BLACK, draw_scroll_arrow, STATES_HELD, 1},
};
// clang-format on
} // namespace

std::span<const Family> PANES_Families()
{
    return FAMILIES;
}
