// The DME User PGM page: how the program of an effects unit goes from one picture to the next.
#include "pc_kf.h"
#include "a_bt.h"
#include "a_kf.h"
#include "bus.h"
#include "bus_tally.h"
#include "message.h"
#include "netio.h"
#include "tally_value.h"
#include "text.h"
#include <initializer_list>
#include "safeguards.h"

#define LOCAL_MODE "LOCAL@Key Frame@DME User PGM@Transition Mode"

namespace
{
constexpr int MODES = 9; // 0 to 8
// What the button "P In P" says, and what a single channel calls it.
constexpr int MODE_P_IN_P = 4;
constexpr int MODE_P_IN_P_SINGLE = 5;

struct Programs {
    int RegSingle = 0; // a selected region has a program of one channel
    int RegDual = 0;   // ... of two
    int kf_ptn = 0;    // register of the first of them, 0 none
    int kf_ch = 0;     // its channels
    bool operator==(const Programs&) const = default;
};
} // namespace

static struct {
    Programs now; // what the page shows
    char path[PATH_SIZE] = "";
} pgm; // valid from create(1) to create(0)

static int channels_of(int regnum)
{
    if (regnum >= 101 && regnum <= 199)
        return 1;
    return regnum >= 201 && regnum <= 299 ? 2 : 0;
}

static Programs find_programs()
{
    Programs found;
    for (int i = KF_DME_FIRST; i <= KF_DME_LAST; i++) {
        const KF_REGION* const r = KF_GetRegionStatus(i);
        const int channels = r->selected ? channels_of(r->regnum) : 0;
        if (channels == 0)
            continue;
        (channels == 1 ? found.RegSingle : found.RegDual) = 1;
        if (found.kf_ptn != 0)
            continue;
        found.kf_ptn = r->regnum;
        found.kf_ch = channels;
    }
    return found;
}

static void enable(std::initializer_list<int> buttons, bool on)
{
    for (const int id : buttons)
        BT_SetDisable(id, !on);
}

static void enable_buttons()
{
    const bool single = pgm.now.RegSingle != 0;
    const bool dual = pgm.now.RegDual != 0;
    enable({17, 18, 33, 35, 36}, single);
    enable({19}, dual);
    enable({20, 34}, single || dual);
}

static int pgm_create(int on, uint32_t)
{
    if (!on) {
        if (pgm.now.kf_ptn != 0)
            Net_SendCommandFormat("remove %s", pgm.path);
        pgm = {};
        return 0;
    }
    pgm = {};
    pgm.now = find_programs();
    enable_buttons();
    if (pgm.now.kf_ptn == 0)
        return 0;
    PrintText(pgm.path, "Key Frame@DME User PGM@Transition Mode@%d", pgm.now.kf_ptn);
    Net_SendCommandFormat("add %s", pgm.path);
    return 0;
}

static int pgm_press(const char* path, const char* value)
{
    const int mode = Index(value, MODES);
    if (!Same(path, LOCAL_MODE) || mode < 0 || pgm.now.kf_ptn == 0)
        return 0;
    const bool is_renamed = pgm.now.kf_ch == 1 && mode == MODE_P_IN_P;
    Net_SendCommandFormat("put %s#%d", pgm.path, is_renamed ? MODE_P_IN_P_SINGLE : mode);
    return 0;
}

static int pgm_tally(const char* path, const char* value)
{
    const int mode = Index(value, MODES);
    if (pgm.now.kf_ptn == 0 || !Same(path, pgm.path) || mode < 0)
        return 0;
    char line[CMD_SIZE];
    PrintText(line, LOCAL_MODE "#%d", mode == MODE_P_IN_P_SINGLE ? MODE_P_IN_P : mode);
    SendDummyTally(line);
    return 0;
}

// Running regions tell of each keyframe. The page is opened anew only when it would be another one:
// otherwise no touch would live long enough to act.
static int pgm_reload()
{
    if (find_programs() != pgm.now)
        tally_reload_page();
    return 0;
}

static int pgm_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_TALLY: return pgm_tally(Text(ax), Text(bx));
    case LMSG_BTNSEL: return pgm_press(Text(ax), Text(bx));
    case LMSG_REGIONSTATUS:
    case LMSG_REGSELCHANGE: return pgm_reload();
    default: return 0;
    }
}

const PC_TBL pc_keyframe_dmeuserpgm = {pgm_proc, pgm_create};
