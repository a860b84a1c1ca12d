// macro_file: the text file of a macro register (".PMR") and the list of events that an editor
// works on. The file is a header and a line an event; the list holds what the lines say. What may
// be entered belongs to macro_symbol: the list keeps whatever the file said, so that a store gives
// it back.
#pragma once
#include "macro_symbol.h"

constexpr int MACRO_LINES = 1024; // of a file, its header included; the rest is not read
constexpr int MACRO_EVENTS = MACRO_LINES - 1; // lines of a list
constexpr int MACRO_LINE_CHARS = 1023;        // of a line; the rest is not read
constexpr int MACRO_COMMENT_CHARS = 16;
constexpr int MACRO_HEADER_SIZE = 64;
constexpr char MACRO_EDIT_DIR[] = "/tmp/MacroEdit";
constexpr char MACRO_EDIT_FILE[] = "/tmp/MacroEdit/MacroEdit.PMR"; // the copy in hand

// A line. A new one is blank: contents and symbol are still to be chosen.
struct MacroEvent {
    char Contents[10] = "";             // "Event", "Continue" or "#"
    char Symbol[MACRO_VALUE_SIZE] = ""; // empty for a comment
    // Values of the symbol's parameters as they are shown, or the comment's text; "-" where there
    // is none.
    char Data[MACRO_SLOTS][MACRO_VALUE_SIZE] = {};
    char ContentsWithNo[16] = ""; // "Event 12"; the others bare
    bool is_made = false;         // by the operator, or changed, since the file was read
    MacroEvent* pPrev = nullptr;
    MacroEvent* pNext = nullptr;
};

enum : int { OSTYPE_LF = 0, OSTYPE_CR = 1, OSTYPE_CRLF = 2 }; // how lines end

struct MacroEventList {
    MacroEvent* pHead = nullptr;
    MacroEvent* pTail = nullptr;
    MacroEvent* pMacroEventEditList = nullptr; // the cursor
    int count = 0;
    int OsType = OSTYPE_LF;
    char MacroFileName[MACRO_HEADER_SIZE] = ""; // the header; "" when the file had no proper one
};

// --- The list ---
// A blank line behind the given one, before all for null. Null when the list has MACRO_EVENTS or
// memory is out. The cursor stays, unless the list was empty.
MacroEvent* add_node(MacroEventList& list, MacroEvent* after);
// The cursor goes to the line that takes its place, or to the last one.
void del_node(MacroEventList& list, MacroEvent* node);
void MacroList_Clear(MacroEventList& list);                    // no line, no header, LF
MacroEvent* MacroList_At(const MacroEventList& list, int row); // null out of range
void MacroList_Number(MacroEventList& list);                   // ContentsWithNo, after a change
void MacroEvent_ClearData(MacroEvent& event);                  // no value anywhere
bool MacroEvent_IsComment(const MacroEvent& event);
bool MacroEvent_IsBlank(const MacroEvent& event); // neither comment nor symbol
// The first parameter without a value: its slot, or 0 of a comment without a text; -1 for none. A
// blank line and an unknown symbol miss slot 0.
int MacroEvent_Missing(const MacroEvent& event);

// --- The file ---
// Replace the list by what the file says. 0, also for a file with a wrong header or none, which
// leaves the list empty; -1 when it cannot be read.
int MacroFile_Read(const char* path, MacroEventList& list);
// The header of a new file for register number (from 1) with this name.
void MacroFile_Header(int number, const char* name, char (&header)[MACRO_HEADER_SIZE]);
// Replace the file at path, whole or not at all. -1 with the old file untouched when it isn't there
// to be replaced, a line has an unknown symbol or a byte cannot be written.
int MacroFile_Write(const char* path, const MacroEventList& list);
// A file with a header and nothing else, where there may be none yet. 0 or -1.
int MacroFile_New(const char* path, const char* header);
