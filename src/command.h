// command: the text language in which the application addresses the server's tree of named values.
// Templates in the page tables become paths here, and values are cut into parts here. Nothing is
// sent.
#pragma once
#include "types.h"

extern char Cmd[CMD_SIZE]; // where page code formats a command

// The plain sum of the bytes: a quick filter before a text compare. 0 for an empty text.
uint32_t Hash(const char* text);

// The character behind the first "#", or the terminator when there is none. The caller cuts at
// result[-1].
const char* FindVarPointer(const char* text);
inline char* FindVarPointer(char* text)
{
    return const_cast<char*>(FindVarPointer(static_cast<const char*>(text)));
}
// The same for the first ":".
char* FindSHPRowIDPointer(char* text);

// Cut a value at its commas, in place, one blank behind a comma dropped; at most vn parts, the last
// keeps the rest. v[0..vn-1] are set, null where there is no part. Returns the number of parts, 0
// for a null var.
int SplitVars(char* var, char** v, int vn);
int SplitCmds(char* var, char** v, int vn);      // at "@", blanks kept
int SplitSHPValues(char* var, char** v, int vn); // at ":"

// Expand "~" of a template to the tree path of the current page. dst_size bounds the result.
void DecodeCommand(char* dst, const char* src, int dst_size);
// The same, and the first "$" becomes var (nothing when var is null or empty, as every further
// "$").
void DecodeCommandWithVar(char* dst, const char* src, const char* var, int dst_size);

// 1 when the condition list of a table entry disables at the value var, otherwise 0.
int IsDisableCondition(const char* cond, const char* var);

const char* Bool(int x);       // "true" or "false"
const char* ToggleBool(int x); // the opposite
// 1 when the text is one that never goes to the server.
bool IsLocal(const char* cmd);
