// tenkey: the region keys of the panel: what a region is called on the wire, in a list and on a
// key, and which regions the installation cannot use. What is on which key is the server's; pages
// that show or change it keep it themselves.
#pragma once
#include "types.h"

constexpr int TEN_KEYS = 23;
constexpr int TEN_KEY_SLOTS = 4;       // regions on one key
constexpr int TEN_KEY_NO_ASSIGN = 255; // id of an empty slot
constexpr int TEN_KEY_FIELDS = 6;      // of a tally: number, kind, the slots
constexpr int TEN_KEY_FIRST_NAME = 2;  // of them
#define TEN_KEY_ASSIGN "Engineering Setup@Panel@Config@10 Key Region Assign"
#define TEN_KEY_REGIONS TEN_KEY_ASSIGN "@Common@Region@Common@"

struct regnametbl {
    const char* region = "";  // in one line
    const char* tally = "";   // on the wire
    const char* caption = ""; // on a key
    int id = TEN_KEY_NO_ASSIGN;
};
extern const regnametbl TenKey_NoAssign;
// All regions in the order of a list; n from 0, null behind the last.
const regnametbl* TenKey_Region(int n);
// By the name in a tally, its case aside. Never null: TenKey_NoAssign for a name that is none and
// for an id above id_max.
const regnametbl* TenKey_Find(const char* tally, int id_max);
// The highest id that the panel's keys can hold: more of them lie on two pads.
int TenKey_IdMax(bool has_two_pads);
bool TenKey_IsAssigned(const regnametbl* region);
// The banks and channels that one processor alone, or a pair for 3D, does not have.
bool TenKey_IsGrayout(const regnametbl* region);

// The keys are 60 x 40 under a line with number and count, pitch 68 x 70; five in a row.
constexpr int TEN_KEY_NUMBER_PX = 16;
constexpr int TEN_KEY_W = 60;
constexpr int TEN_KEY_H = 40;
constexpr Rect RegBtnRect(int button) // from 0
{
    const int x = 104 + 68 * (button % 5);
    const int y = 84 + 70 * (button / 5);
    return {x, y, x + TEN_KEY_W - 1, y + TEN_KEY_NUMBER_PX + TEN_KEY_H - 1};
}
