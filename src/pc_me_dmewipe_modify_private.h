// pc_me_dmewipe_modify_private: what the parts of the modify page of an effects-unit wipe share:
// the page's state, its lines to the server, and what each part does for the others.
//   pc_me_dmewipe_modify.cpp       the page: tallies of the channels, keys, opening and closing
//   pc_me_dmewipe_modify_ch.cpp    pattern, choice of channels, subscriptions
//   pc_me_dmewipe_modify_show.cpp  what the keys show
//   pc_me_dmewipe_modify_knob.cpp  the boxes and their knobs, the default key
//   pc_me_dmewipe_modify_crop.cpp  which pictures can be cropped to 4:3
//
// An edge of the crop is a place on the screen from -100 to 100: a picture that isn't cropped has
// its left edge at -100 and its right one at 100.
#pragma once
#include "pc_me_crop.h"
#include "types.h"
#include <cmath>

#define LOCAL_MODIFY "LOCAL@Modify@"

constexpr int MODIFY_CHANNELS = 4; // records; a pattern takes up to three of them
constexpr int PATTERN_CHANNELS = 3;
constexpr int MODIFY_DMES = 8;

enum : int {
    BTN_POSITION = 17,
    BTN_CENTER = 18,
    BTN_RELATIVE = 19,
    BTN_CROP = 20,
    BTN_CROP_4_3 = 21,
    BTN_SIZE = 22,
    BTN_TOP_LEFT = 33,
    BTN_TOP_RIGHT = 34,
    BTN_1ST_CH = 35,
    BTN_2ND_CH = 36,
    BTN_3RD_CH = 37,
    BTN_BOTTOM_LEFT = 49,
    BTN_BOTTOM_RIGHT = 50,
};

// --- The model ---

// A channel. A value that no tally has told yet is not a number, and a box refuses to show it.
struct _modify {
    int tl = 0; // the picture stands in this corner
    int tr = 0;
    int bl = 0;
    int br = 0;
    double h = NAN;
    double v = NAN;
    double size = NAN;
    double top = NAN;
    double left = NAN;
    double right = NAN;
    double bottom = NAN;
};

struct ModifyState {
    char ModifyReg[CMD_SIZE] = "";  // "M/E-1 SUB@DME Wipe", "M/E-1@Key1@Transition@DME Wipe"
    char PatternCmd[CMD_SIZE] = ""; // "M/E-1@DME Wipe@Pattern Select@Pattern"
    int max_channels = 0;           // that a pattern may take
    bool off = false;               // the bank has no such wipe now: all keys are dead
    int number = -1;                // of the pattern; -1 until the first tally
    int modify_ptn = 0;             // channels that it takes, whose switches are subscribed
    _modify Modify[MODIFY_CHANNELS];
    int modify_posactive[MODIFY_CHANNELS] = {}; // its position is switched on
    int modify_sizeactive[MODIFY_CHANNELS] = {};
    int modify_cropactive[MODIFY_CHANNELS] = {};
    int modify_chsel[MODIFY_CHANNELS] = {};    // chosen
    int modify_ch = 0;                         // leading: the lowest chosen
    int modify_nextcrop[MODIFY_CHANNELS] = {}; // its picture is wider than 4:3
    int modify_relative = 0;
    int added[MODIFY_CHANNELS] = {}; // its values are subscribed
    CropRun crop;                    // of the leading channel
    int knobs_of = 0; // the button whose knobs go along to a channel just chosen, 0 none
    char DmeAsp[MODIFY_DMES][8] = {};                          // "4:3", "16:9"
    int DmeMe[MODIFY_DMES] = {-1, -1, -1, -1, -1, -1, -1, -1}; // as ME_ServerBank; -1 free
    int DmeFunc[MODIFY_DMES] = {-1, -1, -1, -1, -1, -1, -1, -1};
};
extern ModifyState dm; // valid from create(1) to create(0)

// What a key switches for a channel.
struct ModifyFunction {
    const char* path = "";
    int (ModifyState::*active)[MODIFY_CHANNELS] = nullptr;
    int button = 0;
};
inline constexpr ModifyFunction modify_functions[] = {
    {"Position@Position", &ModifyState::modify_posactive, BTN_POSITION},
    {"Size", &ModifyState::modify_sizeactive, BTN_SIZE},
    {"Crop Mode@Crop", &ModifyState::modify_cropactive, BTN_CROP},
};

struct ModifyValue {
    const char* path = "";
    double _modify::*value = nullptr;
};
inline constexpr ModifyValue modify_values[] = {
    {"Position@Position@H", &_modify::h},
    {"Position@Position@V", &_modify::v},
    {"Size@Size", &_modify::size},
    {"Crop Mode@Crop@Top", &_modify::top},
    {"Crop Mode@Crop@Left", &_modify::left},
    {"Crop Mode@Crop@Right", &_modify::right},
    {"Crop Mode@Crop@Bottom", &_modify::bottom},
};

// A corner is the place where the middle of the picture is that of the screen's corner.
struct ModifyCorner {
    const char* path = ""; // of its key
    int _modify::*is_there = nullptr;
    double h = 0;
    double v = 0;
};
inline constexpr ModifyCorner modify_corners[] = {
    {"Position Select@Top Left", &_modify::tl, -100, 100},
    {"Position Select@Top Right", &_modify::tr, 100, 100},
    {"Position Select@Bttm Left", &_modify::bl, -100, -100},
    {"Position Select@Bttm Right", &_modify::br, 100, -100},
};

struct ModifyChannelKey {
    const char* path = "";
    int button = 0;
};
inline constexpr ModifyChannelKey modify_channel_keys[PATTERN_CHANNELS] = {
    {"Ch Select@1st Ch", BTN_1ST_CH},
    {"Ch Select@2nd Ch", BTN_2ND_CH},
    {"Ch Select@3rd Ch", BTN_3RD_CH},
};

// --- Questions ---

// Of the leading channel; before a pattern is known, a record without values.
const _modify& modify_leading();
int modify_chosen_channels();
// Relative mode is of two pictures: they move against each other. True while it is on and the
// first two channels, and only they, are chosen.
bool modify_releffect();
// The small panel has wipes of two channels at most.
bool modify_is_small_panel();

// act(ch) for each chosen channel, from 0 and upwards.
template <typename Act> void modify_for_chosen(Act act)
{
    for (int ch = 0; ch < dm.modify_ptn; ch++)
        if (dm.modify_chsel[ch])
            act(ch);
}

// --- Lines to the server: ch from 0, it counts from 1 there ---

// "VERB REG@Modify@PATH@CH" and the tail, which brings its "#".
void modify_send(const char* verb, const char* path, int ch, const char* tail = "");
// axis: 0 H, 1 V.
void modify_send_position(const char* verb, int axis, int ch);
// kind: "diff" for a step, "" for a place.
void modify_put_position(int axis, int ch, const char* kind, double v);

// --- Pattern and channels (_ch) ---

// A tally of the pattern: another number drops the subscriptions and all that is known of the old
// pattern's channels, and the first channel is chosen.
void modify_pattern_tly(const char* value);
// The key of channel n, from 0, was pressed; does nothing on a channel that the pattern lacks, nor
// on a pattern of one.
void modify_chselect_sel(int n);
// Drop all subscriptions of the pattern's channels.
void modify_leave_pattern();

// --- What the keys show (_show) ---

// Play a tally of "LOCAL@Modify@PATH".
void modify_mirror(const char* path, int on);
// The switches, the corner of the leading channel.
void modify_mirror_switches();
void modify_mirror_corners();
// All keys of the old pattern go out. A page that has just opened keeps the knobs that it was left
// with: the tally of their function, which follows, decides about them.
void modify_clear_buttons(bool keep_knobs);
// Which channels are chosen.
void modify_mirror_channels();
// The same, and which of their keys the pattern allows.
void modify_show_channels();

// --- Boxes and knobs (_knob); box counts from 1 ---

// Put the leading channel's values into the boxes of the button that owns the knobs.
void modify_show_boxes();
// These send to all chosen channels, do nothing for a box that the owner of the knobs doesn't have,
// and return 0, which lets the message pass.
// A knob made so many steps.
int modify_turn(int box, double steps);
// A number from the ten keys, the bar or the wheel.
int modify_set(int box, double v);
// The default key for a box.
int modify_default(int box);

// --- 4:3 crop (_crop) ---

// Enable or disable the key of the 4:3 crop. -1, and nothing changes, when the bank has no such
// wipe now.
int modify_crop_mask();
// A tally of "...@DME Aspect": "3,16:9,1,8" for DME 3. Other forms are left alone.
void modify_dme_aspect_tally(const char* value);
