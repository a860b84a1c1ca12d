// The registers themselves, for the files of store.
#pragma once
#include "timeline.h"
#include <map>
#include <string>
#include <vector>

enum StoreKind {
    STORE_EFFECT,
    STORE_MASTER_EFFECT,
    STORE_SNAPSHOT,
    STORE_MASTER_SNAPSHOT,
    STORE_WIPE,
    STORE_DME,
    STORE_KEY,
    STORE_SHOTBOX,
    STORE_MACRO,
    STORE_KINDS
};

struct Register {
    bool exists = false;
    bool is_locked = false;
    std::string name;
    Effect effect;
    std::map<std::string, std::string> values; // of a snapshot: path and value
    int pattern = 0;                           // of a wipe or DME wipe
    std::string hold;                          // buses that a snapshot leaves alone
    int dissolve_frames = 0;
    bool has_dissolve = false; // of a snapshot; an effect has its own
    bool has_auto_transition = false;
    bool has_gpi = false;
    std::vector<int> links; // of a master or a shotbox: a register for each region, 0 none
    bool is_auto_run = false;
};

// A kind has one list for each row: a region, a key, or the one list there is.
struct Kind {
    StoreKind kind = STORE_EFFECT;
    const char* word = "";      // on the console
    const char* commands = "";  // head of its command paths
    const char* list_head = ""; // the list of a row stands at head, row name, tail
    const char* list_tail = "";
    int rows = 1;
    bool has_mask = false;     // its commands begin with a mask of rows
    const char* new_name = ""; // of a register that is stored without a name
};

constexpr size_t NAME_BYTES = 11;

const Kind& Store_Kind(StoreKind kind);
// The values that a row's registers keep stand below this path; empty: it keeps none.
std::string Store_KeptPath(const Kind& kind, int row);
// Of a wipe or DME wipe: where the number of its pattern stands below that path.
const char* Store_PatternTail(const Kind& kind);
std::string Store_RowName(const Kind& kind, int row);
int Store_RowOfName(const Kind& kind, const std::string& name); // -1: none
bool Store_IsNumber(const Kind& kind, int row, int number);
std::string Store_ListPath(const Kind& kind, int row);
// Channels of one effects unit have the numbers from 101 on in common: the row that keeps them.
int Store_HomeRow(const Kind& kind, int row, int number);
Register& Store_Register(const Kind& kind, int row, int number); // of a valid number
const std::map<int, Register>& Store_Row(const Kind& kind, int row);
void Store_Show(const Kind& kind, int row, int number);       // tell that it has changed
void Store_ShowRow(const Kind& kind, int row);                // tell all of it
void Store_SetCurrent(const Kind& kind, int row, int number); // the last recalled or stored
int Store_Current(const Kind& kind, int row);                 // 0: none
void Store_SetAutoPlay(int user, int sub_region, int number, bool on); // of a clip event; from 0

void Store_Stock(); // fill the empty rows with what is there at the start

// --- What commands and console do; a locked register is left as it is ---
void Store_Recall(const Kind& kind, int row, int number);
void Store_StoreRegister(const Kind& kind, int row, int number, const std::string& name);
