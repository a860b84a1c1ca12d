// pc_me: what the page code of the mix/effect banks shares: which bank the page is of, in the words
// of the server's paths and in the numbers of the snapshots. A table says nearly all of such a
// page; the code adds what depends on a choice made on the page.
#pragma once
#include "a_pc.h"
#include "me_bank.h"
#include "register_region.h"
#include "types.h"

// --- The bank of the page that is shown ---

constexpr int ME_BANKS_SHOWN = ME_COUNT;
constexpr int ME_BANK_PP = 5; // place of PGM/PST in me_bank
static_assert(me_bank[ME_BANK_PP].me == 0);

// Place of the page's bank in me_bank: 0 to 4 M/E-1 to M/E-5, 5 PGM/PST; 0 for any other page.
int Now_disp_draw();
// The same bank as the server counts them: 0 PGM/PST, 1 to 5 the M/Es.
int ME_ServerBank();
// 1 on a page of a bank's sub side that is no page of a key, else 0.
int ME_IsSubPage();
// The bank as the first word of a path: "M/E-1", on the sub side "M/E-1 SUB"; "" when the page has
// no tree. dst holds size bytes; a longer word is cut.
void ME_BankWord(char* dst, int size);
template <size_t N> void ME_BankWord(char (&dst)[N])
{
    ME_BankWord(dst, int(N));
}

// The page is of one of the two keys of a side that a 4K format leaves without chroma, vector, wipe
// and position.
bool ME_IsKey3Or4();

// Ask for a page of the page's own bank and key; id is that of M/E-1, Key1.
void ME_OpenPageOfKey(uint32_t id);

// --- What buttons show ---

// Play a tally "LOCAL@...#value" to the objects of the page; one that is longer than a command is
// cut. Messages nest: finish your own state first.
void ME_Mirror(const char* format, ...) __attribute__((format(printf, 1, 2)));

constexpr int ME_CAPTION_FONT = 3; // of a standard key, for texts that are cut to it

// --- A value that is chosen from a pull-down ---

struct ME_CHOICE {
    const char* word; // on the wire
    const char* caption;
};
constexpr int ME_CHOICES_MAX = 4;
struct ME_PULLDOWN {
    int button;          // a PullDownKey that follows the path: its caption is the choice
    const char* caption; // until the server has told one of the choices
    ME_CHOICE choice[ME_CHOICES_MAX];
    int choices;
};
struct ME_PULLDOWN_STATE {
    char Cmd[CMD_SIZE] = ""; // path of the value; the page code fills it in
    int Chosen = 0;          // 1 and up, 0 none of the choices
    int Pane = 0;            // that is open, 0 none
};

// A tally: shows the choice when the path is that of the value.
void ME_PullDownTally(const ME_PULLDOWN& of, ME_PULLDOWN_STATE& now, const char* path,
                      const char* value);
// The button was pressed: opens the list below it, or leaves it when the page has no such button.
void ME_PullDownOpen(const ME_PULLDOWN& of, ME_PULLDOWN_STATE& now);
// A pane has closed: puts the choice when it was the list's and one was made.
void ME_PullDownClosed(const ME_PULLDOWN& of, ME_PULLDOWN_STATE& now, int pane, int id);

// --- Regions of the wipe and DME wipe snapshots ---

// A row is a region of the mirror, by its place.
inline constexpr const auto& DMEWipeSSRegion = WipeSSRegion;
// The row of the page's bank and side.
int ME_SnapshotRegion();

// --- Page code of the pages of a key ---
extern const PC_TBL pc_me_key_type;
