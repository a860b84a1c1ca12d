// macro_symbol: the vocabulary of macros: which events there are, which parameters each has, in the
// order in which a file has them, and which words or numbers a parameter may be. Both editors and
// the file grammar work from these tables. A word is the same in a file, on the wire and on the
// screen, but for the state of a pattern limit, see MacroValue_Shown.
#pragma once
#include <array>

constexpr int MACRO_SYMBOLS = 43;
constexpr int MACRO_SLOTS = 12;       // parameters of a symbol, at most
constexpr int MACRO_VALUE_SIZE = 129; // of a symbol's or a value's text, with its end
constexpr int MACRO_GROUPS = 8;       // buttons that the parameters of a symbol share
constexpr char MACRO_NO_VALUE[] = "-";

// A table of words ends with index -1.
struct ParamValueTBL {
    int index = -1;
    const char* paramvalue = "";
    int status = 1; // 1 available, 0 greyed
};

// How a value is entered.
enum MACROENTRY : int {
    MACROENTRY_LIST,     // a word of the table
    MACROENTRY_NUMBER,   // from min to max
    MACROENTRY_TEXT,     // at most max characters, no comma
    MACROENTRY_TIMECODE, // "HH:MM:SS:FF"
};

struct MACROPARAM {
    const char* symbol = "";                      // of the row, the same in all its slots
    const char* buttonname = "";                  // several parameters in a row may share a button
    const char* parametername = "";               // "" behind the last
    const ParamValueTBL* paramvaluetbl = nullptr; // null unless a list
    int status = 1;                               // 0: this system does not have it
    MACROENTRY entry = MACROENTRY_LIST;
    int min = 0;
    int max = 0;
};
extern std::array<std::array<MACROPARAM, MACRO_SLOTS>, MACRO_SYMBOLS> SymbolParamTable;

// --- The words of the first two columns. Index 0 is the column's own name, no word of it. ---
constexpr int CONTINUE_ROWS = 27;
constexpr int CONTINUE_GRAY = 17;
extern ParamValueTBL CONT[5];                       // "Event", "Continue", "#"
extern ParamValueTBL EVNT[MACRO_SYMBOLS + 2];       // the symbols, in the operator's order
extern ParamValueTBL Continue[CONTINUE_ROWS + 1];   // those that may follow another event
extern const char Continue_Gray[CONTINUE_GRAY][30]; // those that may not

// --- Asking ---
// The slots of a symbol; null for a word that is none.
const MACROPARAM* MacroSymbol_Find(const char* symbol);
int get_param_count(const char* symbol); // 0 to 12; -1 for an unknown symbol
bool is_symbol_support(const char* symbol);
bool MacroSymbol_IsContinueGray(const char* symbol);
// Index of a word in a table, -1 for none; a null table has none.
int MacroValue_Find(const ParamValueTBL* table, const char* word);
// Whether text may be the value of a parameter. A missing value ("-") is none.
bool MacroValue_IsLegal(const MACROPARAM& parameter, const char* text);
// A pattern limit is stored as the state that it is in, and shown as what the event does to it:
// "On" is shown as "ToOff", "Off" as "ToOn", and back. Other values are as they are. slot counts
// the parameters from 0.
const char* MacroValue_Shown(const char* symbol, int slot, const char* stored);
const char* MacroValue_Stored(const char* symbol, int slot, const char* shown);

// --- Choosing variants ---
// The words of one parameter. 0, or -1 when there is no such symbol or parameter.
int set_symbolparamtbl_tbl(const char* symbol, const char* parameter, const ParamValueTBL* table);
// All that follows from the units and the multi program of this system; every word is available
// again. For an editor that opens.
void MacroSymbols_ForSystem();
