#include "pc_register_duration.h"
#include "a_nb.h"
#include "netio.h"
#include "pc_register.h"
#include "tally_value.h"
#include "text.h"
#include "safeguards.h"

static constexpr int KNOB = 1;
static constexpr int FRAMES_MAX = 999;
static struct {
    int frames = 0;
    int region = -1;          // whose duration is followed, -1 none
    char path[CMD_SIZE] = ""; // of that
} td;                         // valid while a first page is open

static void follow(const char* verb)
{
    if (td.region >= 0)
        Net_SendCommandFormat("%s %s", verb, td.path);
}

void RegisterDuration_Follow()
{
    const RegisterKind& kind = *RegisterPage_Kind();
    if (RegisterPage_Region() == td.region)
        return;
    follow("remove");
    td.region = RegisterPage_Region();
    td.frames = 0;
    RegisterKind_Path(kind, kind.commands->temp_dur, td.region, td.path, sizeof td.path);
    (void)NB_InvalidVar(KNOB);
    follow("add");
}

void RegisterDuration_Open(int on)
{
    if (!on)
        follow("remove");
    td = {};
    if (on)
        RegisterDuration_Follow();
}

void RegisterDuration_Tally(const char* path, const char* value)
{
    if (td.region < 0 || !Same(path, td.path))
        return;
    td.frames = int(NumberIn(value, 0, FRAMES_MAX));
    (void)NB_SetVar(KNOB, td.frames);
}

void RegisterDuration_Knob(int id, int value)
{
    if (td.region < 0 || id != KNOB)
        return;
    td.frames = value;
    Net_SendCommandFormat("put %s#%d", td.path, value);
}

int RegisterDuration_Frames()
{
    return td.frames;
}
