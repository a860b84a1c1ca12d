// tree: the named values of the switcher: type, limits, default, and which clients follow each.
// A node comes into being when it is first asked for; it then has the type that the value file
// gives (values) or none, and stays until the tree is cleared. The tree decides what a value may
// become and who hears of it; what a command means belongs to verbs.
#pragma once
#include <map>
#include <string>
#include <vector>

enum ValueKind {
    KIND_ANY,    // takes every text
    KIND_BOOL,   // "true", "false"
    KIND_WORD,   // one of the words, or "null": released
    KIND_NUM,    // a number that is clamped to the limits
    KIND_ACTION, // "true" makes it happen and falls back by itself
    KIND_ORDER,  // the fields of its default in another order: "2,1,3,4"
    KIND_LIST,   // rows; the first field of a row, or the first two, are its key
};

struct ValueType {
    ValueKind kind = KIND_ANY;
    std::vector<std::string> words;
    double min = 0; // never above max
    double max = 0;
    int decimals = 0;
};

struct Node {
    std::string path;
    ValueType type;
    std::string value;
    std::string initial; // what "default" brings back
    std::vector<std::string> rows;
    std::vector<std::string> initial_rows;
    int key_fields = 1;
    bool kill_first = false;    // a full answer begins with "KILL": it replaces what the client has
    std::vector<int> followers; // client numbers
};

enum PutResult { PUT_REFUSED, PUT_SAME, PUT_CHANGED, PUT_PULSE };

constexpr size_t TREE_NODES =
    200000; // nobody has so many values; a client that invents paths meets this
constexpr size_t TALLY_BYTES =
    400; // of a line without its end: the panels' receive buffers hold no more

// --- Finding ---
Node* Tree_Find(const std::string& path); // null when nobody has asked for it yet
Node* Tree_Get(const std::string& path);  // made when missing; null when the tree is full
// The node of the path itself and all below it ("A@B" is below "A", "A B" is not).
std::vector<Node*> Tree_Under(const std::string& prefix);
const std::map<std::string, Node>& Tree_All();
void Tree_Clear();

// --- Changing; nobody is told yet ---
// What the client asks for, within the type; "diff8.00" moves the value. *tally gets the
// value to tell: the new one or, when refused, the old.
PutResult Tree_Put(Node& node, const std::string& wanted, std::string* tally);
bool Tree_Default(Node& node);                                       // true when it changed
void Tree_Preset(const std::string& path, const std::string& value); // value and default
// What the value file says doesn't count for these: the simulator acts on them itself.
void Tree_SetKind(const std::string& path, ValueKind kind);
void Tree_SetList(const std::string& path, const std::vector<std::string>& rows, int key_fields);
std::string Tree_NumberText(const ValueType& type, double number); // clamped and rounded
// The value that a type makes of a text that isn't relative; false when it can't be. Whether an
// order is one is up to its node.
bool Tree_Accepts(const ValueType& type, const std::string& wanted, std::string* value);

// --- Telling ---
void Tree_Follow(Node& node, int client); // twice is once
void Tree_Unfollow(Node& node, int client);
void Tree_ForgetClient(int client);
void Tree_Answer(const Node& node, int client); // the whole value, a list row by row
// A value that the switcher itself has changed, to all followers; the same value, nothing to tell.
void Tree_Show(const std::string& path, const std::string& value);
// The same for one row of a list that no panel may write: its default is what it is.
void Tree_ShowRow(const std::string& path, const std::string& row);
// One value to all followers and to one more client, who hears it once; 0 for none.
void Tree_Tell(const Node& node, const std::string& value, int also_client);
