// The switches of the engineering menu: what is logged and how much more is shown. They hold until
// the process ends; the ini file sets them at its start.
#include "debug.h"
#include "global.h"
#include "log.h"
#include "message.h"
#include "pc_eng.h"
#include "tally_value.h"
#include "text.h"

#include "safeguards.h"

namespace
{
struct Switch {
    const char* path;
    int* value;
};
constexpr Switch switches[] = {
    {ENG_DEBUG "Mode", &GL_DebugMode},
    {ENG_DEBUG "Loop Counter", &GL_LoopCounter},
    {ENG_DEBUG "Hub Lines", &GL_ClipStoreDebugMode},
};

struct Module {
    const char* path;
    int number;
};
constexpr Module modules[] = {
    {ENG_DEBUG "Module@Calibration", MOD_CALIBRATION},
    {ENG_DEBUG "Module@Global", MOD_GLOBAL},
    {ENG_DEBUG "Module@Start", MOD_START},
    {ENG_DEBUG "Module@Links", MOD_LINK},
    {ENG_DEBUG "Module@Pages", MOD_PAGE},
};
constexpr char LEVEL[] = ENG_DEBUG "Level";
constexpr char ALL_MODULES[] = ENG_DEBUG "Module@All";
} // namespace

static void show_modules()
{
    for (const Module& m : modules)
        Eng_Mirror(m.path, Bool(Log_GetModule(m.number) == 1));
}

void Debug_Create()
{
    for (const Switch& s : switches)
        Eng_Mirror(s.path, Bool(*s.value));
    Eng_Mirror(LEVEL, NumStr(Log_GetLevel()));
    show_modules();
}

static void set_level(const char* value)
{
    Log_SetLevel(Decimal(value));
    Log_Output(LOG_FORCED, -1, "Log level: %d", Log_GetLevel());
    Eng_Mirror(LEVEL, NumStr(Log_GetLevel()));
}

static int press(const char* path, const char* value)
{
    for (const Switch& s : switches)
        if (Same(path, s.path)) {
            *s.value = !*s.value;
            Eng_Mirror(s.path, Bool(*s.value));
        }
    for (const Module& m : modules)
        if (Same(path, m.path)) {
            (void)Log_SetModule(m.number, Log_GetModule(m.number) != 1); // it is one of the known
            Eng_Mirror(m.path, Bool(Log_GetModule(m.number) == 1));
        }
    if (Same(path, ALL_MODULES)) {
        Log_SetAllModule(1);
        show_modules();
    }
    if (Same(path, LEVEL))
        set_level(value);
    return 0;
}

int Debug_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    return msg == LMSG_BTNSEL ? press(Text(ax), Text(bx)) : 0;
}
