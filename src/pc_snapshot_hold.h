// pc_snapshot_hold: the crosspoint hold of a snapshot, between the text that travels, the marks of
// its buses and what a list shows. Which text belongs to which sort of region:
//   bank, sub side  a run of marks, "AB12U1D2": backgrounds (a bank's only), keys, utilities, the
//                   second DME channel
//   user            "%08X" for each 32 buses, the first bus in the lowest bit
//   DME             it holds "Fv" or not: the four buses of a channel go together
//   router          "%02X" for each destination, a bit a level
// The texts come from outside: whatever they hold, only known marks count.
#pragma once
#include <cstddef>

// Marks of a bank, in the order in which they are shown and written.
enum : int {
    HOLD_A,
    HOLD_B,
    HOLD_KEY1,
    HOLD_U1 = HOLD_KEY1 + 8,
    HOLD_U2,
    HOLD_U3,
    HOLD_D2,
    HOLD_ME_MARKS,
};
// Rows that a bank has at most on the hold page, by system: with eight keys, in the format in which
// a bank has four, and on the NTR40, which says itself how many each bank has.
constexpr int XptHold_Max = HOLD_ME_MARKS;
constexpr int XptHold_Max_3G = HOLD_ME_MARKS - 4;
constexpr int XptHold_Max_7K = HOLD_ME_MARKS;
constexpr int HOLD_USER_BUSES = 60;
constexpr int HOLD_USER_AUX = 48; // the first of them
constexpr int HOLD_RTR_ROWS = 128;
constexpr int HOLD_RTR_LEVELS = 8;
constexpr int HOLD_MARKS_MAX = HOLD_RTR_ROWS * HOLD_RTR_LEVELS;
constexpr size_t HOLD_TEXT_SIZE = 1024;

// --- A text to its marks, one byte each, 1 for held. flags has room for as many as the sort has
// (HOLD_MARKS_MAX for all). They return how many are held ---
int snapshot_xpthold_me(const char* text, char* flags);     // of the first 24 characters
int snapshot_xpthold_me_mp2(const char* text, char* flags); // the same; A and B never
int snapshot_xpthold_user(const char* text, char* flags);
int snapshot_xpthold_router(const char* text, char* flags); // destination * 8 + level
int snapshot_xpthold_dme(const char* text, char* flags);    // one mark for all four buses

// --- By the region's row of SnapshotCmd ---
int snapshot_xpthold_marks(int region); // how many marks the sort has, 0 for no such region
int snapshot_xpthold_set(int region, const char* text, char* flags);
// The marks as they travel; size at least HOLD_TEXT_SIZE.
void snapshot_xpthold_text(int region, const char* flags, char* text, size_t size);
// The marks as a list shows them: " A B 1 U1"; cut at size.
void snapshot_xpthold_display(int region, const char* text, char* shown, size_t size);
// " X" when all marks are held, " x" when some are, "" for none.
const char* snapshot_xpthold_flag(int region, const char* text);
// Keys of a bank (its place, P/P 5) that are shown, 4 or 8, or as the bank has.
int snapshot_xpthold_keys(int bank);
