// pc_me_misc_private: what the page code of a bank's own settings shares.
#pragma once
#include "types.h"
#include <span>

constexpr int MISC_KEYS = 8;      // that a bank may have
constexpr int MISC_HALF_KEYS = 4; // of one side, or of one order of priority

// "M/E-1@Misc@TAIL" of the page's bank and side.
void misc_path(char (&dst)[CMD_SIZE], const char* tail);
int misc_key_max(); // keys of the page's bank, 4 or 8
bool misc_is_pgm(); // the bank whose keys are called DSK

// A button that stands for a key, counted from 1.
struct MiscKeyButton {
    int id = 0;
    int key = 0;
};

enum : int { SIDE_MAIN = 1, SIDE_SUB = 2 };
// The sides of a key of the page's bank (from 0) as bits. word is what the server has said below
// "Key Assign"; a word that is none leaves it to the setup. Without multi program all keys are the
// main side's.
int misc_sides_of(int key, const char* word);
// On PGM/PST the buttons say DSK; those of keys that the bank lacks are hidden.
void misc_show_keys(std::span<const MiscKeyButton> buttons);
// Whether the button of a key (from 1) is hidden: the bank lacks it.
bool misc_lacks_key(int key);
// The tab of the clip transition goes where the installation plays no clips.
void misc_show_tabs();
