// The registers themselves, for the files of store.
#pragma once
#include "timeline.h"
#include <map>
#include <set>
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
    // What it brings back: value by path behind the region's own words, so that a copy is at home
    // in another region. Of an effect how its first keyframe looks.
    std::map<std::string, std::string> values;
    int pattern = 0;   // of a wipe or DME wipe
    std::string macro; // the text of its file behind the first line
    std::string hold;  // buses that a snapshot leaves alone
    int duration = 0;  // frames, of dissolve and automatic transition
    bool has_dissolve = false;
    bool has_auto_transition = false;
    bool has_gpi = false;
    // Of a master or a shotbox: a register for each region, 0 none; below 0 a shotbox's snapshot.
    std::vector<int> links;
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
constexpr int SHOTBOX_LINKS = 44; // regions from 0 on, the router the last
inline const std::string KEY_RECALL_MODE = "Snapshot@Key Snapshot@Attribute@Recall Mode";

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
void Store_PlayClips(int user, int number); // what a recall of the snapshot starts; user from 0
void Store_SetAutoPlay(int user, int sub_region, int number, bool on); // of a clip event; from 0

int Store_SnapshotRow(int region);                      // -1: it has no snapshots
std::string Store_FittingName(const std::string& name); // as it stands in a list line

void Store_Stock(); // fill the empty rows with what is there at the start

// --- What commands and console do; a locked register is left as it is ---
void Store_Recall(const Kind& kind, int row, int number);
// A panel's put to a path of the kind.
void Store_Command(const Kind& kind, const std::string& path, const std::string& value);
std::string Store_MaskText(const Kind& kind, int row); // as a command names the row
void Store_StoreRegister(const Kind& kind, int row, int number, const std::string& name);

// --- What a recall leaves alone ---
struct Left {
    std::set<std::string> held;         // ends of paths; all below them, too
    std::vector<std::string> key_modes; // of a key: "true" where a part comes back
};
Left Store_LeftAlone(const Kind& kind, int row, const Register& r);
bool Store_IsLeftAlone(const Left& left, const std::string& tail);
std::string Store_HoldWithoutBackground(const std::string& hold); // as fits a sub side
