// page_family: the kinds of objects that a page is made of. Whatever creates, empties or offers a
// message to the objects of a page walks this one list; a new family is a row of page_family.cpp
// and a number in ObjType.
#pragma once
#include "page.h"

struct PageFamily {
    ObjType type = OBJ_END;
    const char* name = ""; // in lists for people
    // Build the objects of a table, with the argument of the page's row; null empties the family.
    void (*create)(const void* table, uint32_t var, const PAGE& row) = nullptr;
    // Non-zero when the message is consumed.
    int (*proc)(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx) = nullptr;
    // Sees everything and takes nothing; has nothing to empty.
    bool is_watcher = false;
};

// The family of an object type; null for a type that has none.
const PageFamily* PageFamily_Of(int type);
// Empty all families, in the order that pages are torn down.
void PageFamily_EmptyAll();
