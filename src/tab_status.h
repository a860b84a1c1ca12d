// tab_status: the tallies that light a tab of a page; shared by the left and the bottom tabs.
#pragma once
#include "path_set.h"
#include "types.h"

// One path of one tab. All zero is empty, so that arrays of them cost no file space.
struct TabStatus {
    char cmd[CMD_SIZE] = {}; // expanded path
    char var[CMD_SIZE] = {}; // the value that lights the tab
    uint32_t hash = 0;       // of cmd
    int status = 0;
};

// "path#value" of a row. False, and s is empty, when there is no path.
bool TabStatus_Set(TabStatus& s, const char* statcmd);
// The path's own tally: status is what the value says. True when that changed it.
bool TabStatus_Tally(TabStatus& s, const char* path, const char* value, uint32_t hash);

// Send "VERB path" unless this walk has met the path before or it never goes to the server.
void TabStatus_Send(PathSet& met, const TabStatus& s, const char* verb);

// True when s follows the path, whose Hash is hash.
bool TabStatus_Follows(const TabStatus& s, const char* path, uint32_t hash);

// The lists from which the main and sub side of a key follow.
bool IsKeyAssignPath(const char* path);
