// a_st_draw: what status cells look like. The shared parts are in a_st_draw.cpp, the painters in
// one file a family. All draw without flushing, on the screen, at the place of their cell.
//
// A painter begins with st_begin, draws its content from tallies at indices that the cell tables
// know (page_table/st_*.h), and ends with the veil when the function that it shows is off. It
// returns 0, or -1 when it has nothing to show or its first tally is a word that it does not know.
#pragma once
#include "a_st.h"
#include <SDL.h>
#include <span>

// --- Settings of the look; the engineering menu changes them ---
extern int bgc_red; // the ground of a lit cell
extern int bgc_green;
extern int bgc_blue;
extern int gry_rat; // opacity of the veil, its low byte counts
extern int dbpost_x;
extern int dbpost_y;
extern int s_font; // the small font
extern int bgcen;  // the cells of the developer's page: lit, inverted, veiled
extern int inven;
extern int gryen;

constexpr int ST_LINES = 8;
struct ST_VAL {
    int st_num = 0; // lines in use
    const char* st_str[ST_LINES] = {};
    const char* val_str[ST_LINES] = {};
    int invert[ST_LINES] = {};
    int grayout[ST_LINES] = {};
    int keygray[ST_LINES] = {}; // its label is grey
    int selected = 0;           // on the lit ground
    int v_left = 0;             // the value column, set by st_drw_status_values
    int v_right = 0;
};

// --- Shared parts ---
unsigned st_ground(int lit);
int st_font(); // slot of the texts in a cell
int st_drw_background_areaname(const ST_MEM* cell, int lit, const char* name);
int st_drw_center_image_square(const ST_MEM* cell, const char* text, int invert);
int st_drw_bmpimage_strings(const ST_MEM* cell, SDL_Surface* bitmap, const char* text);
int st_drw_under_strings(const ST_MEM* cell, const char* text, int invert);
int st_drw_status_strings(const ST_MEM* cell, ST_VAL* val);
int st_drw_status_values(const ST_MEM* cell, ST_VAL* val);
int st_drw_recoats_grayout(const ST_MEM* cell, int lit);
// Of a cell that leads nowhere, with its name: that of a function which is only off stays bright.
void st_veil_all(const ST_MEM* cell);
int st_drw_center_image_wipe_position(const ST_MEM* cell, int h, int v);

// --- What painters have in common ---
// Frame and name. The cell to paint from; null when it has never had a tally: then only its border
// stands.
ST_MEM* st_begin(ST_MEM* cell, int lit, const char* name);
int st_in_view(const ST_MEM* cell); // 1 when the page in view is the one that the cell leads to
// One line in the middle between x1 and x2; one that is too wide is cut.
void st_put_centred(int x1, int x2, int y, const char* text, int font, unsigned col);
bool st_is_on(const ST_MEM* cell, int n);  // tally n is "true"
bool st_is_off(const ST_MEM* cell, int n); // tally n is "false"; one that is missing is neither
// The picture of the wipe pattern whose number a text is; null when there is none.
SDL_Surface* st_pattern(const char* number);
// The same for an effects-unit wipe: one of the second set of channels has the picture of the
// first.
SDL_Surface* st_dme_pattern(const char* number);
struct ST_LABEL {
    const char* label;
    int tally;
};
// Labels with the tallies of the cell as values.
void st_put_values(const ST_MEM* cell, int lit, std::span<const ST_LABEL> labels);
// The keys in the order of a priority list, from the top: of keys 1 to 4 (half 0), 5 to 8 (1), or
// of both as far as the bank has them (-1). The line of marked_key (from 1, 0 none) is inverted.
void st_put_priority(const ST_MEM* cell, int lit, const char* list, int half, int marked_key);
// The list that holds keys 5 to 8, of a cell whose tallies are the bank's order, that of its sub
// side and whether the sub side has one of its own.
const char* st_priority_of_5_to_8(const ST_MEM* cell);

// --- Keys: a_st_me_key ---
int st_drw_me_key_type1(ST_MEM*);
int st_drw_me_key_type2(ST_MEM*);
int st_drw_me_key_edge(ST_MEM*);
int st_drw_me_key_mainmask(ST_MEM*);
int st_drw_me_key_submask(ST_MEM*);
int st_drw_me_key_videoproc(ST_MEM*);
int st_drw_me_key_type_keyfill(ST_MEM*);
int st_drw_me_key_type_source(ST_MEM*);
int st_drw_me_key_prockey(ST_MEM*);
int st_drw_me_key_prockey_dpdl(ST_MEM*);
int st_drw_me_key_ontrans(ST_MEM*);
int st_drw_me_key_offtrans(ST_MEM*);
int st_drw_me_key_priority(ST_MEM*);

// --- Wipes: a_st_me_wipe ---
int st_drw_me_wipe_main_pattern(ST_MEM*);
int st_drw_me_wipe_main_position(ST_MEM*);
int st_drw_me_wipe_main_modify(ST_MEM*);
int st_drw_me_wipe_main_modify_2(ST_MEM*);
int st_drw_me_wipe_sub_pattern(ST_MEM*);
int st_drw_me_wipe_sub_position(ST_MEM*);
int st_drw_me_wipe_sub_modify(ST_MEM*);
int st_drw_me_wipe_sub_modify_2(ST_MEM*);
int st_drw_me_wipe_mp2sub_modify(ST_MEM*);
int st_drw_me_wipe_direction(ST_MEM*);
int st_drw_me_wipe_pattern_mix(ST_MEM*);
int st_drw_me_wipe_edge(ST_MEM*);
int st_drw_me_wipe_edge_2(ST_MEM*);

// --- Effects-unit wipes: a_st_me_dmewipe ---
int st_drw_me_dmewipe_pattern(ST_MEM*);
int st_drw_me_dmewipe_modifier(ST_MEM*);
int st_drw_me_dmewipe_edge(ST_MEM*);
int st_drw_me_dmewipe_direction(ST_MEM*);

// --- The bank: a_st_misc ---
enum TransitionTally : int { // of the transition cell
    TRN_MIX = 0,
    TRN_NAM = 1,
    TRN_SUPER_MIX = 2,
    TRN_COLOR_MIX = 3,
    TRN_WIPE = 4,
    TRN_DME_WIPE = 5,
    TRN_CLIP = 6,
    TRN_WIPE_PATTERN = 7,
    TRN_DME_PATTERN = 8,
    TRN_MODE = 9,
};
int st_drw_me_misc_transition(ST_MEM*);
int st_drw_me_misc_key_priority(ST_MEM*);
int st_drw_me_misc_next_key_priority(ST_MEM*);
int st_drw_me_misc_key_priority_gray(ST_MEM*);
int st_drw_me_misc_key_assign1(ST_MEM*);
int st_drw_me_misc_key_assign2(ST_MEM*);
int st_drw_me_misc_video_proc(ST_MEM*);
int st_drw_me_misc_cliptrans_bkgd(ST_MEM*);
int st_drw_me_misc_cliptrans_clip(ST_MEM*);
int st_drw_me_misc_cliptrans_bar(ST_MEM*);
int st_drw_me_misc_cliptrans_indicator(ST_MEM*);
// The output of each key of the bank, from Key1, with commas between them.
void st_drw_me_misc_key_assign_tally_set(const char* value);

// --- Global effects: a_st_global ---
// A channel's output: alone, of a pair of channels (_dp), or of a unit of one channel (_e).
#define ST_CHANNEL_OUT(n)                                                                          \
    int st_drw_globaleffect_ch##n##out(ST_MEM*);                                                   \
    int st_drw_globaleffect_ch##n##out_dp(ST_MEM*);                                                \
    int st_drw_globaleffect_ch##n##out_e(ST_MEM*);
ST_CHANNEL_OUT(1)
ST_CHANNEL_OUT(2)
ST_CHANNEL_OUT(3)
ST_CHANNEL_OUT(4)
ST_CHANNEL_OUT(5)
ST_CHANNEL_OUT(6)
ST_CHANNEL_OUT(7)
ST_CHANNEL_OUT(8)
#undef ST_CHANNEL_OUT
int st_drw_globaleffect_combiner1(ST_MEM*);
int st_drw_globaleffect_combiner1_3D(ST_MEM*);
int st_drw_globaleffect_combiner1_dp(ST_MEM*);
int st_drw_globaleffect_combiner1_e(ST_MEM*);
int st_drw_globaleffect_combiner2(ST_MEM*);
int st_drw_globaleffect_combiner2_3D(ST_MEM*);
int st_drw_globaleffect_combiner2_dp(ST_MEM*);
int st_drw_globaleffect_combiner2_e(ST_MEM*);
// Their pictures. A channel of a combination is 1 to 8, of a trail the row of its group, from 0.
int st_drw_center_image_ch_out_priority(const ST_MEM* cell, const char* priority);
int st_drw_center_image_ch_out_brick(const ST_MEM* cell, int faces);
int st_drw_center_image_ch_out_brick_4ch(const ST_MEM* cell);
int st_drw_center_image_ch_combine(const ST_MEM* cell, int channel);
int st_drw_center_image_globaleffect_combiner_trail(const ST_MEM* cell, int row, const char* trail);
int st_drw_center_image_globaleffect_combiner_trail_3D(const ST_MEM* cell, int row,
                                                       const char* trail);
int st_drw_center_image_globaleffect_combiner_trail_st_dp(const ST_MEM* cell, int row,
                                                          const char* trail);

// --- Effects units: a_st_dme ---
int st_drw_dme_status_global(ST_MEM*);
int st_drw_dme_status_local(ST_MEM*);
int st_drw_dme_glbsrc_status(ST_MEM*);
int st_drw_dme_glbtrgt_status(ST_MEM*);
int st_drw_dme_localsrc_status(ST_MEM*);
int st_drw_dme_localtrgt_status(ST_MEM*);
int st_drw_status_dme_status(ST_MEM*);
int st_drw_status_dme_status_mp2(ST_MEM*);
int st_drw_status_dme_status_list(ST_MEM*);
int st_drw_dmestatus_rect(int x1, int y1, int x2, int y2, const char* title);
int st_drw_dmestatus_value(int x, int y, int width, const char* label, const char* value);

// --- The overviews of the banks: a_st_status ---
int st_drw_status_bank(ST_MEM*);
int st_drw_status_rates(ST_MEM*);

// --- Colour correctors and colour backgrounds: a_st_source ---
int st_drw_source_levels(ST_MEM*);
int st_drw_source_matte(ST_MEM*);
int st_drw_source_mode(ST_MEM*);
int st_drw_source_spots(ST_MEM*);
int st_drw_source_insert(ST_MEM*);

// --- The developer's page: a_st_test ---
int st_drw_status_dummy(ST_MEM*); // paints nothing
int st_drw_status_string_type(ST_MEM*);
int st_drw_status_value_type(ST_MEM*);
int st_drw_status_bmp(ST_MEM*);
int st_drw_status_image(ST_MEM*);
int st_drw_put_bmp_ptn1(ST_MEM*);
int st_drw_put_bmp_ptn2(ST_MEM*);
int st_drw_put_bmp_ptn3(ST_MEM*);
int st_drw_test_1(ST_MEM*);
int st_drw_test_2(ST_MEM*);
int st_drw_test_3(ST_MEM*);
int st_drw_test_4(ST_MEM*);
