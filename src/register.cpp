#include "bus.h"
#include "device.h"
#include "log.h"
#include "memory.h"
#include "message.h"
#include "register_private.h"
#include "snapshot_region.h"
#include "tally_value.h"
#include <cstring>
#include <span>

#include "safeguards.h"

// --- The mirror: valid from the first line to the end of the process, links or not ---

static REGISTER RegEffect[EffectCmd.size()][REGISTERS_EFFECT];
static REGISTER RegEff100[REGISTER_DME_GROUPS][REGISTERS];
static REGISTER RegEff200[REGISTER_DME_GROUPS][REGISTERS];
static REGISTER RegEff300[REGISTER_DME_GROUPS][REGISTERS];
static REGISTER RegSnapshot[SnapshotCmd.size()][REGISTERS];
static REGISTER RegWipeSS[WipeSSCmd.size()][REGISTERS_WIPESS];
static REGISTER RegDMESS[DMESSCmd.size()][REGISTERS_WIPESS];
static REGISTER RegKeySS[KeySSCmd.size()][REGISTERS_KEYSS];
static REGISTER RegShotbox[1][REGISTERS];
static REGISTER RegMacro[1][REGISTERS_MACRO];

static int StatusReport; // somebody shows registers

// The line of every register that was forgotten, in common: thousands are, in one pass, and a block
// for each would make it a long one.
static char no_line[] = "";

static REGISTER* register_at(const RegisterPlace& p)
{
    switch (p.kind) {
    case REGISTER_EFFECT: return &RegEffect[p.row][p.index];
    case REGISTER_EFF100: return &RegEff100[p.row][p.index];
    case REGISTER_EFF200: return &RegEff200[p.row][p.index];
    case REGISTER_EFF300: return &RegEff300[p.row][p.index];
    case REGISTER_SNAPSHOT: return &RegSnapshot[p.row][p.index];
    case REGISTER_WIPESS: return &RegWipeSS[p.row][p.index];
    case REGISTER_DMESS: return &RegDMESS[p.row][p.index];
    case REGISTER_KEYSS: return &RegKeySS[p.row][p.index];
    case REGISTER_SHOTBOX: return &RegShotbox[p.row][p.index];
    case REGISTER_MACRO: return &RegMacro[p.row][p.index];
    default: return nullptr;
    }
}

void register_tell(int kind, int row, int index, int extra)
{
    if (StatusReport)
        SendMessage(LMSG_REGISTER, kind, row, index, extra);
}

static void free_line(const REGISTER& r)
{
    if (r.tally != no_line)
        GDL_Free(r.tally);
}

static void register_set(REGISTER& r, const RegisterHeadline& headline, const char* line)
{
    r.exist = headline.exist;
    r.lock = headline.lock;
    CopyText(r.name, headline.name);
    free_line(r);
    r.tally = GDL_StrDup(line);
}

// A line says all that is kept of a register, so an equal one changes nothing. It is told all the
// same: the page that has asked for it waits for the answer.
void register_keep(const RegisterPlace& place, const RegisterHeadline& headline, const char* line)
{
    REGISTER* r = register_at(place);
    if (!r)
        return;
    if (!r->tally || !Same(r->tally, line))
        register_set(*r, headline, line);
    register_tell(place.kind, place.row, place.index, 0);
}

int RegisterProc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (msg == MSG_TALLY && ax && bx)
        (void)register_take(Text(ax), Text(bx)); // nearly every tally is for somebody else
    return 0;
}

void Register_StatusReport(int x)
{
    StatusReport = x;
}

// --- Forgetting ---

static void forget(REGISTER* registers, int count)
{
    for (REGISTER& r : std::span(registers, size_t(count))) {
        if (r.tally == no_line)
            continue; // nothing has been told since
        free_line(r);
        r = {.tally = no_line};
    }
}

template <size_t ROWS, size_t N> static void forget_all(REGISTER (&table)[ROWS][N])
{
    for (auto& row : table)
        forget(row, int(N));
}

void Register_RefreshDME()
{
    Log_Output(LOG_LIFE, MOD_GLOBAL, "Register_RefreshDME() Called");
    for (int region = SS_REGION_DME1; region <= SS_REGION_DME8; region++) {
        forget(RegSnapshot[region], REGISTERS);
        register_ask(REGISTER_SNAPSHOT, region);
    }
    for (int region = SS_REGION_DME1; region <= SS_REGION_DME8; region++) {
        forget(RegEffect[region], REGISTERS);
        register_ask(REGISTER_EFFECT, region);
    }
    // Their lines come with the lists of effects.
    forget_all(RegEff100);
    forget_all(RegEff200);
    forget_all(RegEff300);
}

template <size_t ROWS, size_t N> static void free_all(REGISTER (&table)[ROWS][N])
{
    for (auto& row : table) {
        for (REGISTER& r : row) {
            free_line(r);
            r = {};
        }
    }
}

void Register_Free()
{
    free_all(RegEffect);
    free_all(RegEff100);
    free_all(RegEff200);
    free_all(RegEff300);
    free_all(RegSnapshot);
    free_all(RegWipeSS);
    free_all(RegDMESS);
    free_all(RegKeySS);
    free_all(RegShotbox);
    free_all(RegMacro);
    clipevnt_free();
}

// --- Numbers ---

constexpr int REG_MAX = 399;
constexpr int INDEX_MAX = 395;

int Reg2Index(int reg)
{
    if (reg < 1 || reg > REG_MAX || reg % 100 == 0)
        return -1;
    return reg - 1 - reg / 100;
}

int Index2Reg(int index)
{
    if (index > INDEX_MAX)
        return -1;
    return index + 1 + index / REGISTERS;
}

// Where two processors share a picture, two channels make a group, otherwise four do.
int Register_DMEGroup(int region)
{
    return (region - SS_REGION_DME1) / (isDualProc_DualLink() ? 2 : 4);
}

// --- What pages read ---

#define ACCESSORS(kind)                                                                            \
    int Register_Exist_##kind(int region, int no)                                                  \
    {                                                                                              \
        return Reg##kind[region][no].exist;                                                        \
    }                                                                                              \
    int Register_Lock_##kind(int region, int no)                                                   \
    {                                                                                              \
        return Reg##kind[region][no].lock;                                                         \
    }                                                                                              \
    const char* Register_Name_##kind(int region, int no)                                           \
    {                                                                                              \
        return Reg##kind[region][no].name;                                                         \
    }                                                                                              \
    const char* Register_Tally_##kind(int region, int no)                                          \
    {                                                                                              \
        return Reg##kind[region][no].tally;                                                        \
    }
ACCESSORS(Effect)
ACCESSORS(Eff100)
ACCESSORS(Eff200)
ACCESSORS(Eff300)
ACCESSORS(Snapshot)
ACCESSORS(WipeSS)
ACCESSORS(DMESS)
ACCESSORS(KeySS)
ACCESSORS(Shotbox)
ACCESSORS(Macro)
#undef ACCESSORS

// --- Region maps ---

// The region of bit 0 of each byte; the next entry ends it.
static constexpr int map_first[REGION_MAP_BYTES + 1] = {
    SS_REGION_ME1,       SS_REGION_ME3_SUB, SS_REGION_USER1, SS_REGION_DME1,   EFF_REGION_DEV1,
    EFF_REGION_DEV1 + 8, EFF_REGION_PBUS,   EFF_REGION_GPI,  EFF_REGION_MACRO, EFF_REGION_MASTER};

static int map_effects(int no, unsigned char* map, int from, int to)
{
    int any = 0;
    for (int byte = from; byte <= to; byte++) {
        for (int region = map_first[byte]; region < map_first[byte + 1]; region++)
            if (RegEffect[region][no].exist)
                map[byte] |= static_cast<unsigned char>(1 << (region - map_first[byte]));
        any |= map[byte];
    }
    return any;
}

int Register_Exist_Effect_AllRegion(int no, unsigned char* map)
{
    memset(map, 0, REGION_MAP_BYTES);
    return map_effects(no, map, 0, REGION_MAP_BYTES - 1);
}

int Register_Exist_Effect_EX_AllRegion(int no, unsigned char* map)
{
    memset(map, 0, 8);
    return map_effects(no, map, 4, 6);
}

static int map_groups(const REGISTER (&table)[REGISTER_DME_GROUPS][REGISTERS], int no,
                      unsigned char* map)
{
    memset(map, 0, 7);
    const int groups = isDualProc_DualLink() ? REGISTER_DME_GROUPS : 2;
    for (int group = 0; group < groups; group++)
        if (table[group][no].exist)
            map[0] |= static_cast<unsigned char>(1 << group);
    return map[0];
}

int Register_Exist_Eff100_AllRegion(int no, unsigned char* map)
{
    return map_groups(RegEff100, no, map);
}

int Register_Exist_Eff200_AllRegion(int no, unsigned char* map)
{
    return map_groups(RegEff200, no, map);
}

int Register_Exist_Eff300_AllRegion(int no, unsigned char* map)
{
    return map_groups(RegEff300, no, map);
}
