// What only snapshots have on their first page: the attributes of a register, and for the snapshots
// of a key what their recall leaves alone.
#include "pc_snapshot.h"
#include "a_bt.h"
#include "command.h"
#include "global.h"
#include "netio.h"
#include "pane.h"
#include "pc_register.h"
#include "pc_register_duration.h"
#include "tally_value.h"
#include "text.h"
#include <iterator>
#include "safeguards.h"

#define ATTRIBUTE "Snapshot@Snapshot@Attribute@"
#define RECALL_MODE "Snapshot@Key Snapshot@Attribute@Recall Mode"

static struct {
    char key[CMD_SIZE] = "";          // the key whose recall mode is subscribed
    bool mode[KEY_RECALL_MODES] = {}; // last tally
} at;                                 // valid while the first page of the key snapshots is open

// --- Attributes of a register ---

static int effdiss_sel()
{
    RegisterPage_PutAttribute(ATTRIBUTE "Effect Dissolve",
                              Bool(*RegisterPage_Line().effdiss == '\0'));
    return 0;
}

static int autotrans_sel()
{
    RegisterPage_PutAttribute(ATTRIBUTE "Auto Transition",
                              Bool(*RegisterPage_Line().autotrans == '\0'));
    return 0;
}

static int gpi_sel()
{
    RegisterPage_PutAttribute(ATTRIBUTE "GPI", *RegisterPage_Line().gpi ? "null" : "1");
    return 0;
}

static int duration_sel()
{
    RegisterPage_PutAttribute(ATTRIBUTE "Duration", NumStr(RegisterDuration_Frames()));
    return 0;
}

// --- The pages of a register ---

static bool is_user()
{
    const int region = RegisterPage_Region();
    return region >= SS_REGION_USER1 && region <= SS_REGION_USER8;
}

static int xpthold_sel()
{
    GL_CreatePage =
        RegisterPage_Region() == SS_REGION_RTR ? PAGE_SNAPSHOT_XPTHOLD_RTR : PAGE_SNAPSHOT_XPTHOLD;
    return 0;
}

static int clip_sel()
{
    if (is_user())
        GL_CreatePage = PAGE_SNAPSHOT_CLIP;
    return 0;
}

static void attribute_shown()
{
    const RegisterLine& line = RegisterPage_Line();
    RegisterDuration_Follow();
    (void)BT_SetStatus(BTN_SNAPSHOT_EFFDISS, *line.effdiss ? BT_ON : BT_OFF);
    (void)BT_SetStatus(BTN_SNAPSHOT_AUTOTRANS, *line.autotrans ? BT_ON : BT_OFF);
    (void)BT_SetStatus(BTN_SNAPSHOT_GPI, *line.gpi ? BT_ON : BT_OFF);
    BT_SetDisable(BTN_SNAPSHOT_CLIP, !is_user());
}

static void attribute_open(int on)
{
    RegisterDuration_Open(on);
    if (on)
        attribute_shown();
}

static constexpr RegisterTouch attribute_touches[] = {
    {"Attribute@Effect Dissolve", effdiss_sel},
    {"Attribute@Auto Transition", autotrans_sel},
    {"Attribute@GPI Output", gpi_sel},
    {"Attribute@Duration", duration_sel},
    {"Attribute@Xpt Hold", xpthold_sel},
    {"Attribute@Frame Memory", clip_sel},
    {nullptr, nullptr},
};
const RegisterExtra snapshot_extra = {.kind = REGKIND_SNAPSHOT,
                                      .touches = attribute_touches,
                                      .open = attribute_open,
                                      .shown = attribute_shown,
                                      .tally = RegisterDuration_Tally,
                                      .knob = RegisterDuration_Knob};

// --- What the recall of a key brings back ---

static void show_modes()
{
    for (int m = 0; m < KEY_RECALL_MODES; m++)
        (void)BT_SetStatus(BTN_KEYSS_MODIFIER + m, at.mode[m] ? BT_ON : BT_OFF);
}

static void follow_mode(const char* verb)
{
    if (*at.key)
        Net_SendCommandFormat("%s " RECALL_MODE "#%s", verb, at.key);
}

static void follow_key()
{
    const char* const key = KeySSRegion[RegisterPage_Region()].cmd;
    if (Same(at.key, key))
        return;
    follow_mode("remove");
    CopyText(at.key, key);
    follow_mode("add");
}

// "M/E-1@Key1,true,true,true"
static void keyss_tally(const char* path, const char* value)
{
    Parts p;
    if (!Same(path, RECALL_MODE) ||
        SplitValue(p, value, KEY_RECALL_MODES + 1) != KEY_RECALL_MODES + 1 || !Same(p.v[0], at.key))
        return;
    for (int m = 0; m < KEY_RECALL_MODES; m++)
        at.mode[m] = IsTrue(p.v[m + 1]);
    show_modes();
}

// All selected keys take the modes of the reference, with one turned over.
static int toggle_mode(int which)
{
    bool mode[KEY_RECALL_MODES];
    for (int m = 0; m < KEY_RECALL_MODES; m++)
        mode[m] = at.mode[m] != (m == which);
    const RegisterKind& kind = *RegisterPage_Kind();
    for (int i = 0; kind.regions[i].id != 0; i++)
        if (PaneRegion_IsSelected(kind.group(), kind.regions[i].id))
            Net_SendCommandFormat("put " RECALL_MODE "#%s,%s,%s,%s", kind.regions[i].cmd,
                                  Bool(mode[0]), Bool(mode[1]), Bool(mode[2]));
    return 0;
}

static int modifier_sel()
{
    return toggle_mode(0);
}
static int transition_sel()
{
    return toggle_mode(1);
}
static int xpt_sel()
{
    return toggle_mode(2);
}

static void keyss_open(int on)
{
    if (!on)
        follow_mode("remove");
    at = {};
    if (!on)
        return;
    show_modes();
    follow_key();
}

static constexpr RegisterTouch keyss_touches[] = {
    {"Attribute@Recall Mode@Modifier", modifier_sel},
    {"Attribute@Recall Mode@Transition", transition_sel},
    {"Attribute@Recall Mode@XPT", xpt_sel},
    {nullptr, nullptr},
};
const RegisterExtra keyss_extra = {.kind = REGKIND_KEYSS,
                                   .touches = keyss_touches,
                                   .open = keyss_open,
                                   .shown = follow_key,
                                   .tally = keyss_tally};
