// macro_attach: which macros hang on which buttons of the panels: the list that the server tells,
// in the operator's words and order. The tables say how the panels' blocks and buttons are called.
// What is attached changes on the server only.
#pragma once
#include <cstdint>

constexpr int ATTACH_FIELDS = 13; // integers of an entry on the wire
constexpr int ATTACH_MAX = 512;   // entries; further ones are left out with a log line
constexpr int ATTACH_BLOCKS = 66;

// The fields of an entry on the wire. The last six say where on the panel the button is; only the
// server reads them, a delete gives them back.
enum ATTACHFIELD : int {
    ATTACHFIELD_BLOCK,
    ATTACHFIELD_BUTTON1,
    ATTACHFIELD_BUTTON2,
    ATTACHFIELD_MODE,     // 0 macro only, 1 before the button's own work, 2 behind it
    ATTACHFIELD_REGISTER, // from 1
    ATTACHFIELD_MAIN_PAIR,
    ATTACHFIELD_SUB_PAIR,
    ATTACHFIELD_PLACE,
};

struct ATTACH_TBL {
    uint8_t block = 0;
    uint8_t blk_odr = 0; // place among the blocks, from 1
    char blk_name[20] = "";
    uint16_t button1 = 0;
    uint16_t button2 = 0;
    char btn_name[48] = "";
    uint8_t regno = 0;
    char reg_name[10] = "";
    char mode[6] = "";
    uint16_t register_index = 0; // from 0
    uint16_t main_pair = 0;      // of a bus in pair mode, from 1; 0 none
    uint16_t sub_pair = 0;
    int field[ATTACH_FIELDS] = {}; // as it came
};

// Blocks that are gone to together.
enum ATTACHGROUP : int {
    ATTACHGROUP_PP,
    ATTACHGROUP_ME1,
    ATTACHGROUP_ME2,
    ATTACHGROUP_ME3,
    ATTACHGROUP_ME4,
    ATTACHGROUP_ME5,
    ATTACHGROUP_AUX,
    ATTACHGROUP_OTHERS,
    ATTACHGROUPS,
};
inline constexpr const char* BlockSelect[ATTACHGROUPS] = {"P/P",   "M/E-1", "M/E-2", "M/E-3",
                                                          "M/E-4", "M/E-5", "Aux",   "Others"};

// The list, by order of the block, then the buttons; valid until the next line.
extern ATTACH_TBL* AttachPtr[ATTACH_MAX];
extern int AttachListN;

// A value of "Macro@Attachment@List": thirteen integers, or "KILL", which empties the list. The
// same button again replaces its entry. 0; -1 for a line that is none: the list is as it was.
int attach_list_tly(const char* value);
void Attach_Clear();
// Take the names of the registers anew.
void Attach_NameRegisters();
int Attach_Count(ATTACHGROUP group); // entries
int Attach_Top(ATTACHGROUP group);   // row of its first entry; of what follows when it has none
