#include "tab_status.h"
#include "command.h"
#include "netio.h"
#include "tally_value.h"

#include "safeguards.h"

bool TabStatus_Set(TabStatus& s, const char* statcmd)
{
    s.cmd[0] = s.var[0] = '\0';
    s.hash = 0;
    s.status = 0;
    if (!statcmd || !*statcmd)
        return false;
    DecodeCommand(s.cmd, statcmd, CMD_SIZE);
    char* value = FindVarPointer(s.cmd);
    CopyText(s.var, value);
    if (value > s.cmd && value[-1] == '#')
        value[-1] = '\0';
    s.hash = Hash(s.cmd);
    return s.cmd[0] != '\0';
}

bool TabStatus_Tally(TabStatus& s, const char* path, const char* value, uint32_t hash)
{
    if (!TabStatus_Follows(s, path, hash))
        return false;
    const int before = s.status;
    s.status = Same(s.var, value);
    return s.status != before;
}

bool TabStatus_Follows(const TabStatus& s, const char* path, uint32_t hash)
{
    return s.hash == hash && s.cmd[0] && Same(s.cmd, path);
}

void TabStatus_Send(PathSet& met, const TabStatus& s, const char* verb)
{
    if (s.cmd[0] && !IsLocal(s.cmd) && PathSet_Add(met, s.cmd, s.hash))
        Net_SendCommandFormat("%s %s", verb, s.cmd);
}

bool IsKeyAssignPath(const char* path)
{
    return Same(path, "Engineering Setup@Switcher@Config@M/E Output Assign@List") ||
           Same(path, "Engineering Setup@Switcher@Config@PGM Config@List");
}
