// The matte pages of a key, for its fill and for its edge. What the page offers depends on how the
// matte is made: of one colour, of two that a pattern mixes, or, on the edge of an embossed key, of
// the two colours of its light and its shade. The outcome is played to the buttons as local paths.
#include "a_bt.h"
#include "command.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "pc_me.h"
#include "pc_me_key.h"
#include "tally_value.h"
#include "text.h"
#include <cstdlib>
#include <initializer_list>
#include "safeguards.h"

#define LOCAL_MATTE "LOCAL@M/E@Key@Matte@"

namespace
{
constexpr int BTN_COLOR_1 = 19;
constexpr int BTN_COLOR_2 = 20;
constexpr int BTN_MIX_PATTERN = 37;
} // namespace

static struct {
    char ModeCmd[CMD_SIZE] = "";            // "M/E-1@Key1@Edge@Matte Adjust@Mode"
    char MatteAdj_MixPtnCmd[CMD_SIZE] = ""; // "M/E-1@Key1@Edge@Matte Adjust@Mix Pattern@Pattern"
    char EdgeCmd[CMD_SIZE] = "";            // "M/E-1@Key1@Edge@Edge"; "" on the page of the fill
    char MatteAdj_MixPtnStr[32] = "";       // caption of the button that selects the pattern
    bool is_mix = false;                    // two colours and a pattern
    bool is_emboss = false;
} matte; // valid from create(1) to create(0)

// --- What the buttons show ---

static void mirror(const char* name, bool on)
{
    ME_Mirror(LOCAL_MATTE "%s#%s", name, Bool(on));
}

static void show_parts()
{
    mirror("Emboss", matte.is_emboss);
    mirror("Two Colors", matte.is_mix || matte.is_emboss);
    mirror("Mix", matte.is_mix && !matte.is_emboss);
    BT_SetCaption(BTN_COLOR_1, matte.is_emboss ? "Light" : "Color 1");
    BT_SetCaption(BTN_COLOR_2, matte.is_emboss ? "Shade" : "Color 2");
}

void PatternCaption(char (&caption)[32], const char* value)
{
    const int number = int(strtol(value, nullptr, 10));
    if (number > 0)
        PrintText(caption, "Pattern\nSelect\n%d", number);
    else
        CopyText(caption, "Pattern\nSelect");
}

static void show_pattern(const char* value)
{
    PatternCaption(matte.MatteAdj_MixPtnStr, value);
    BT_SetCaption(BTN_MIX_PATTERN, matte.MatteAdj_MixPtnStr);
}

// --- Messages ---

static int matteadj_tally(const char* path, const char* value)
{
    if (Same(path, matte.MatteAdj_MixPtnCmd)) {
        show_pattern(value);
        return 0;
    }
    const bool is_mix = Same(path, matte.ModeCmd) ? Same(value, "Mix") : matte.is_mix;
    const bool is_emboss = Same(path, matte.EdgeCmd) ? Same(value, "Emboss") : matte.is_emboss;
    if (is_mix == matte.is_mix && is_emboss == matte.is_emboss)
        return 0;
    matte.is_mix = is_mix;
    matte.is_emboss = is_emboss;
    show_parts();
    return 0;
}

static int pc_me_key_matteadj_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    return msg == MSG_TALLY ? matteadj_tally(Text(ax), Text(bx)) : 0;
}

// The mode is subscribed by its buttons.
static void subscribe(const char* verb)
{
    for (const char* path : {matte.MatteAdj_MixPtnCmd, matte.EdgeCmd})
        if (*path)
            Net_SendCommandFormat("%s %s", verb, path);
}

// --- The pages: "group" is the third word of their paths ---

static int matteadj_create(int on, const char* group)
{
    if (!on) {
        subscribe("remove");
        return 1;
    }
    matte = {};
    const char* bank = GL_NowTree[0];
    const char* key = GL_NowTree[1];
    PrintText(matte.ModeCmd, "%s@%s@%s@Matte Adjust@Mode", bank, key, group);
    PrintText(matte.MatteAdj_MixPtnCmd, "%s@%s@%s@Matte Adjust@Mix Pattern@Pattern", bank, key,
              group);
    if (Same(group, "Edge"))
        PrintText(matte.EdgeCmd, "%s@%s@Edge@Edge", bank, key);
    subscribe("add");
    show_parts();
    return 0;
}

static int pc_me_key_type_matteadj_create(int on, uint32_t)
{
    return matteadj_create(on, "Type");
}

static int pc_me_key_edge_matteadj_create(int on, uint32_t)
{
    return matteadj_create(on, "Edge");
}

const PC_TBL pc_me_key_type_matteadj = {pc_me_key_matteadj_proc, pc_me_key_type_matteadj_create};
const PC_TBL pc_me_key_edge_matteadj = {pc_me_key_matteadj_proc, pc_me_key_edge_matteadj_create};
