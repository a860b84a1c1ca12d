#include "pc_register_kind.h"
#include "command.h"
#include "device.h"
#include "global.h"
#include "me_bank.h"
#include "menu_macro.h"
#include "netio.h"
#include "pane.h"
#include "pc_register_columns.h"
#include "text.h"
#include <algorithm>
#include <iterator>
#include "safeguards.h"

// --- Selectors ---

static bool is_single_channel()
{
    constexpr int SINGLE_CHANNEL_MODEL = 5;
    return GL_DmeModel[0] == SINGLE_CHANNEL_MODEL;
}

bool RegisterKind_HasSubSides()
{
    return std::any_of(std::begin(multiprogram2_me), std::end(multiprogram2_me),
                       [](int on) { return on != 0; });
}

static int group_snapshot()
{
    return is_single_channel() ? 15 : 27;
}
static int group_wipess()
{
    return RegisterKind_HasSubSides() ? 30 : 17;
}
static int group_dmess()
{
    return RegisterKind_HasSubSides() ? 31 : 18;
}
static int group_keyss()
{
    return 19;
}
static int group_effect()
{
    return is_single_channel() ? 6 : 26;
}
static int group_eff()
{
    return is1080P_ZRD52_DME() ? 43 : isDualProc_DualLink() ? 36 : is_single_channel() ? 9 : 8;
}
static int group_effect_ex()
{
    return 34;
}

// --- Commands ---

bool SnapshotMP2AutoCorrect;

#define RUNS(path, correct)                                                                        \
    {                                                                                              \
        path, correct                                                                              \
    }
#define SNAPSHOT_COMMANDS(head)                                                                    \
    .store = head "Store", .lock = head "Lock", .unlock = head "UnLock", .remove = head "Delete",  \
    .rename = head "Rename", .copy = RUNS(head "Copy", nullptr),                                   \
    .move = RUNS(head "Move", nullptr), .swap = RUNS(head "Swap", nullptr)
#define SS_HEAD "Snapshot@Snapshot@"
#define MASTER_SS_HEAD "Snapshot@Master Snapshot@"
#define MASTER_TL_HEAD "Effect@Master Timeline@"
#define EFFECT_HEAD "Effect@Effect@"
#define SHOTBOX_HEAD "Shotbox@Register@"
#define MACRO_HEAD "Macro@Register@"

static constexpr RegisterCommands snapshot_commands = {
    .recall = SS_HEAD "Recall",
    .store = SS_HEAD "Store",
    .lock = SS_HEAD "Lock",
    .unlock = SS_HEAD "UnLock",
    .remove = SS_HEAD "Delete",
    .rename = SS_HEAD "Rename",
    .copy = {SS_HEAD "Copy", SS_HEAD "Copy@Direction@Reverse", &SnapshotMP2AutoCorrect},
    .move = RUNS(SS_HEAD "Move", nullptr),
    .swap = RUNS(SS_HEAD "Swap", nullptr),
    .list = SS_HEAD "Attribute@%s@List",
    .temp_dur = SS_HEAD "Attribute@%s@Temporary Duration"};
static constexpr RegisterCommands wipess_commands = {.recall = "Snapshot@Wipe Snapshot@Recall",
                                                     SNAPSHOT_COMMANDS("Snapshot@Wipe Snapshot@"),
                                                     .list = "Snapshot@Wipe Snapshot@%s@List"};
static constexpr RegisterCommands dmess_commands = {.recall = "Snapshot@DME Snapshot@Recall",
                                                    SNAPSHOT_COMMANDS("Snapshot@DME Snapshot@"),
                                                    .list = "Snapshot@DME Snapshot@%s@List"};
static constexpr RegisterCommands keyss_commands = {.recall = "Snapshot@Key Snapshot@Recall",
                                                    SNAPSHOT_COMMANDS("Snapshot@Key Snapshot@"),
                                                    .list =
                                                        "Snapshot@Key Snapshot@Attribute@%s@List"};
static constexpr RegisterCommands master_ss_commands = {
    .recall = MASTER_SS_HEAD "Store/Recall@Recall",
    .store = MASTER_SS_HEAD "Store/Recall@Store",
    .lock = MASTER_SS_HEAD "Lock",
    .unlock = MASTER_SS_HEAD "UnLock",
    .remove = MASTER_SS_HEAD "Delete",
    .rename = MASTER_SS_HEAD "Rename",
    .copy = RUNS(MASTER_SS_HEAD "Copy", nullptr),
    .move = RUNS(MASTER_SS_HEAD "Move", nullptr),
    .swap = RUNS(MASTER_SS_HEAD "Swap", nullptr),
    .list = MASTER_SS_HEAD "Store/Recall@List",
    .edit_recall = MASTER_SS_HEAD "Store/Recall@Edit@Recall",
    .edit_store = MASTER_SS_HEAD "Store/Recall@Edit@Store",
    .current = MASTER_SS_HEAD "Store/Recall@Current Register"};

static constexpr RegisterCommands effect_commands = {
    .recall = EFFECT_HEAD "Recall@Recall",
    .lock = EFFECT_HEAD "Lock@Lock",
    .remove = EFFECT_HEAD "Delete@Delete",
    .rename = EFFECT_HEAD "Rename@Rename",
    .copy = RUNS(EFFECT_HEAD "Copy/Merge@Copy", EFFECT_HEAD "Copy/Merge@MP2 Auto Correct"),
    .move = RUNS(EFFECT_HEAD "Move@Move", EFFECT_HEAD "Move@MP2 Auto Correct"),
    .swap = RUNS(EFFECT_HEAD "Swap@Swap", EFFECT_HEAD "Swap@MP2 Auto Correct"),
    .merge = EFFECT_HEAD "Copy/Merge@Merge",
    .list = EFFECT_HEAD "Attribute@List@%s",
    .temp_dur = EFFECT_HEAD "Attribute@Temporary Duration@%s"};
static constexpr RegisterCommands master_tl_commands = {
    .recall = "Master@Effect@Recall@Recall",
    .store = MASTER_TL_HEAD "Store/Recall@Store",
    .lock = MASTER_TL_HEAD "Lock@Lock",
    .remove = MASTER_TL_HEAD "Delete@Delete",
    .rename = MASTER_TL_HEAD "Rename@Rename",
    .copy = RUNS(MASTER_TL_HEAD "Copy@Copy", nullptr),
    .move = RUNS(MASTER_TL_HEAD "Move@Move", nullptr),
    .swap = RUNS(MASTER_TL_HEAD "Swap@Swap", nullptr),
    .list = MASTER_TL_HEAD "Store/Recall@List",
    .edit_recall = MASTER_TL_HEAD "Store/Recall@Edit@Recall",
    .edit_store = MASTER_TL_HEAD "Store/Recall@Edit@Store",
    .current = MASTER_TL_HEAD "Store/Recall@Current Register"};
static constexpr RegisterCommands shotbox_commands = {
    .recall = SHOTBOX_HEAD "Store/Recall@Recall",
    .store = SHOTBOX_HEAD "Store/Recall@Store",
    .lock = SHOTBOX_HEAD "Lock",
    .unlock = SHOTBOX_HEAD "UnLock",
    .remove = SHOTBOX_HEAD "Delete",
    .rename = SHOTBOX_HEAD "Rename",
    .copy = RUNS(SHOTBOX_HEAD "Copy", nullptr),
    .move = RUNS(SHOTBOX_HEAD "Move", nullptr),
    .swap = RUNS(SHOTBOX_HEAD "Swap", nullptr),
    .list = SHOTBOX_HEAD "Store/Recall@List",
    .edit_recall = SHOTBOX_HEAD "Store/Recall@Edit@Recall",
    .edit_store = SHOTBOX_HEAD "Store/Recall@Edit@Store",
    .current = SHOTBOX_HEAD "Store/Recall@Current Register"};
static constexpr RegisterCommands macro_commands = {.lock = MACRO_HEAD "Lock@Lock",
                                                    .remove = MACRO_HEAD "Delete@Delete",
                                                    .rename = MACRO_HEAD "Rename@Rename",
                                                    .copy = RUNS(MACRO_HEAD "Copy@Copy", nullptr),
                                                    .list = MACRO_HEAD "List"};
static constexpr RegisterCommands no_commands = {};
static constexpr RegisterLocal menu_macro_local = {.lock = mm_lock_exec,
                                                   .remove = mm_delete_delete_exec,
                                                   .rename = mm_rename_exec,
                                                   .copy = mm_copy_exec,
                                                   .locked = "Menu macro register is locked."};
#undef RUNS
#undef SNAPSHOT_COMMANDS

// --- The kinds ---

constexpr RegisterKind register_kinds[REGKINDS] = {
    {.kind = REGKIND_MASTER_SS,
     .word = "Master Snapshot",
     .page = 0x63100000,
     .mirror = REGISTER_SNAPSHOT,
     .mirror_row = SS_REGION_MASTER,
     .commands = &master_ss_commands,
     .setdata = master_setdata,
     .columns = master_ss_columns,
     .dual_columns = name_dual_columns,
     .delete_title = "Snapshot Delete"},
    {.kind = REGKIND_SNAPSHOT,
     .word = "Snapshot",
     .page = 0x63200000,
     .mirror = REGISTER_SNAPSHOT,
     .regions = SnapshotRegion.data(),
     .group = group_snapshot,
     .mask = REGMASK_NARROW,
     .commands = &snapshot_commands,
     .setdata = snapshot_setdata,
     .complete = snapshot_complete,
     .columns = snapshot_columns,
     .dual_columns = snapshot_dual_columns,
     .delete_title = "Snapshot Delete"},
    {.kind = REGKIND_WIPESS,
     .word = "Wipe Snapshot",
     .page = 0x63300000,
     .mirror = REGISTER_WIPESS,
     .registers = REGISTERS_WIPESS,
     .regions = WipeSSRegion.data(),
     .group = group_wipess,
     .mask = REGMASK_NARROW,
     .commands = &wipess_commands,
     .setdata = wipess_setdata,
     .columns = wipess_columns,
     .dual_columns = wipess_dual_columns,
     .delete_title = "Snapshot Delete"},
    {.kind = REGKIND_DMESS,
     .word = "DME Snapshot",
     .page = 0x63400000,
     .mirror = REGISTER_DMESS,
     .registers = REGISTERS_WIPESS,
     .regions = DmeSSRegion.data(),
     .group = group_dmess,
     .mask = REGMASK_NARROW,
     .commands = &dmess_commands,
     .setdata = wipess_setdata,
     .columns = wipess_columns,
     .dual_columns = wipess_dual_columns,
     .delete_title = "Snapshot Delete"},
    {.kind = REGKIND_KEYSS,
     .word = "Key Snapshot",
     .page = 0x63500000,
     .mirror = REGISTER_KEYSS,
     .registers = REGISTERS_KEYSS,
     .regions = KeySSRegion.data(),
     .group = group_keyss,
     .mask = REGMASK_WIDE,
     .commands = &keyss_commands,
     .setdata = wipess_setdata,
     .columns = keyss_columns,
     .dual_columns = name_dual_columns,
     .delete_title = "Snapshot Delete"},
    {.kind = REGKIND_MASTER_TL,
     .word = "Master Timeline",
     .page = 0x62100000,
     .mirror = REGISTER_EFFECT,
     .mirror_row = EFF_REGION_MASTER,
     .commands = &master_tl_commands,
     .setdata = master_setdata,
     .columns = master_tl_columns,
     .dual_columns = name_dual_columns,
     .delete_title = "Effect Delete"},
    {.kind = REGKIND_EFFECT,
     .word = "Effect 1-99",
     .page = 0x62200000,
     .mirror = REGISTER_EFFECT,
     .regions = EffectRegion.data(),
     .group = group_effect,
     .mask = REGMASK_WIDE,
     .commands = &effect_commands,
     .setdata = effect_setdata,
     .complete = effect_complete,
     .columns = effect_columns,
     .dual_columns = effect_dual_columns,
     .delete_title = "Effect Delete"},
    {.kind = REGKIND_EFF100,
     .word = "User DME Wipe Effect 101-199",
     .page = 0x62300000,
     .mirror = REGISTER_EFF100,
     .first_number = 101,
     .regions = EffectRegion.data(),
     .group = group_eff,
     .has_dme_groups = true,
     .mask = REGMASK_WIDE,
     .commands = &effect_commands,
     .setdata = effect_setdata,
     .complete = eff100_complete,
     .columns = effect_dme_columns,
     .dual_columns = effect_dual_columns,
     .delete_title = "Effect Delete"},
    {.kind = REGKIND_EFF200,
     .word = "User DME Wipe Effect 201-299",
     .page = 0x62400000,
     .mirror = REGISTER_EFF200,
     .first_number = 201,
     .regions = EffectRegion.data(),
     .group = group_eff,
     .has_dme_groups = true,
     .mask = REGMASK_WIDE,
     .commands = &effect_commands,
     .setdata = effect_setdata,
     .complete = eff200_complete,
     .columns = effect_dme_columns,
     .dual_columns = effect_dual_columns,
     .delete_title = "Effect Delete"},
    {.kind = REGKIND_EFF300,
     .word = "User DME Wipe Effect 301-399",
     .page = 0x62500000,
     .mirror = REGISTER_EFF300,
     .first_number = 301,
     .regions = EffectRegion.data(),
     .group = group_eff,
     .has_dme_groups = true,
     .mask = REGMASK_WIDE,
     .commands = &effect_commands,
     .setdata = effect_setdata,
     .complete = eff300_complete,
     .columns = effect_dme_columns,
     .dual_columns = effect_dual_columns,
     .delete_title = "Effect Delete"},
    {.kind = REGKIND_EFFECT_EX,
     .word = "DEV/PBUS Effect 1-250",
     .page = 0x62600000,
     .mirror = REGISTER_EFFECT,
     .registers = REGISTERS_EFFECT,
     .regions = EffectRegion.data(),
     .group = group_effect_ex,
     .mask = REGMASK_WIDE,
     .commands = &effect_commands,
     .setdata = effect_setdata,
     .complete = effect_ex_complete,
     .columns = effect_ex_columns,
     .dual_columns = effect_dual_columns,
     .delete_title = "Effect Delete"},
    {.kind = REGKIND_SHOTBOX,
     .word = "Register",
     .page = 0x64100000,
     .mirror = REGISTER_SHOTBOX,
     .commands = &shotbox_commands,
     .setdata = shotbox_setdata,
     .columns = shotbox_columns,
     .dual_columns = name_dual_columns,
     .delete_title = "Shotbox Delete"},
    {.kind = REGKIND_MACRO,
     .word = "Register",
     .page = 0x54100000,
     .mirror = REGISTER_MACRO,
     .registers = REGISTERS_MACRO,
     .fixed_mask = 0x0000100000000000, // the panel's bit, not that of the effects of macros
     .mask = REGMASK_WIDE,
     .commands = &macro_commands,
     .setdata = macro_setdata,
     .columns = keyss_columns,
     .dual_columns = name_dual_columns,
     .delete_title = "Macro Delete",
     .copy_title = "Macro Copy"},
    {.kind = REGKIND_MENU_MACRO,
     .word = "Menu Macro Register",
     .page = 0x54300000,
     .mirror = REGISTER_MENU_MACRO,
     .commands = &no_commands,
     .local = &menu_macro_local,
     .setdata = menu_macro_setdata,
     .columns = menu_macro_columns,
     .dual_columns = name_dual_columns,
     .delete_title = "Menu Macro Delete",
     .copy_title = "Menu Macro Copy"},
};

static constexpr int WidthOf(const RegisterColumn* columns)
{
    int width = 0;
    for (; columns->head; columns++)
        width += columns->width;
    return width;
}
static constexpr bool KindsAreSound()
{
    constexpr int SINGLE_PX = 552, DUAL_PX = 248;
    for (int i = 0; i < REGKINDS; i++) {
        const RegisterKind& k = register_kinds[i];
        if (k.kind != i || k.registers > register_mirrors[k.mirror].registers ||
            (k.regions != nullptr || k.fixed_mask != 0) != (k.mask != REGMASK_NONE) ||
            (k.regions != nullptr) != (k.group != nullptr))
            return false;
        if (WidthOf(k.columns) > SINGLE_PX || WidthOf(k.dual_columns) != DUAL_PX)
            return false;
    }
    return true;
}
static_assert(KindsAreSound());

// --- What follows from a row ---

int RegisterKind_MirrorRow(const RegisterKind& kind, int region)
{
    if (!kind.regions)
        return kind.mirror_row;
    return kind.has_dme_groups ? Register_DMEGroup(region) : region;
}

const char* RegisterKind_Name(const RegisterKind& kind, int region, int no)
{
    return register_mirrors[kind.mirror].name(RegisterKind_MirrorRow(kind, region), no);
}
int RegisterKind_Exist(const RegisterKind& kind, int region, int no)
{
    return register_mirrors[kind.mirror].exist(RegisterKind_MirrorRow(kind, region), no);
}
int RegisterKind_Lock(const RegisterKind& kind, int region, int no)
{
    return register_mirrors[kind.mirror].lock(RegisterKind_MirrorRow(kind, region), no);
}

bool RegisterKind_Line(const RegisterKind& kind, int region, int no, RegisterLine* line)
{
    const int row = RegisterKind_MirrorRow(kind, region);
    const char* const raw = register_mirrors[kind.mirror].tally(row, no);
    if (!raw || kind.setdata(kind, raw, line) != no) {
        *line = {};
        CopyText(line->no, NumStr(kind.first_number + no));
    }
    if (kind.complete)
        kind.complete(row, no, line);
    return raw != nullptr;
}

int RegisterKind_Regions(const RegisterKind& kind)
{
    int n = 0;
    while (kind.regions && kind.regions[n].id != 0)
        n++;
    return std::max(n, 1);
}

void RegisterKind_Path(const RegisterKind& kind, const char* pattern, int region, char* path,
                       int size)
{
    const char* const at = strstr(pattern, "%s");
    ktr_strncpy(path, pattern, at ? std::min(int(at - pattern) + 1, size) : size);
    if (!at)
        return;
    ktr_strncat(path, kind.regions ? kind.regions[region].cmd : "", size);
    ktr_strncat(path, at + 2, size);
}

int RegisterKind_SelectorRow(const RegisterKind& kind, int region)
{
    const auto has_cell = [&kind](int row) {
        return *PaneRegion_GetCaption(kind.group(), kind.regions[row].id) != '\0';
    };
    while (kind.has_dme_groups && region > SS_REGION_DME1 && !has_cell(region))
        region--;
    return region;
}

void RegisterKind_InitRegions(const RegisterKind& kind)
{
    if (!kind.regions)
        return;
    (void)PaneRegion_InitID(kind.group());
    const int row = Region_RowOfId(kind.regions, PaneRegion_GetRef(kind.group()));
    if (row < SS_REGION_DME1) // none, or the switcher's; the operator's own choice stays
        (void)PaneRegion_SetDefaultSelected(kind.group());
}

uint64_t RegisterKind_SelectedMask(const RegisterKind& kind)
{
    uint64_t mask = kind.fixed_mask;
    for (int i = 0; kind.regions && kind.regions[i].id != 0; i++)
        if (PaneRegion_IsSelected(kind.group(), kind.regions[i].id))
            mask |= kind.regions[i].bitmap;
    return mask;
}

int RegisterKind_Reference(const RegisterKind& kind)
{
    if (!kind.regions)
        return 0;
    const int row = Region_RowOfId(kind.regions, PaneRegion_GetRef(kind.group()));
    for (int i = 0; row < 0 && kind.regions[i].id != 0; i++)
        if (PaneRegion_IsSelected(kind.group(), kind.regions[i].id))
            return i;
    return std::max(row, 0);
}

int RegisterKind_RegionExist(const RegisterKind& kind, int id, int no)
{
    const int region = Region_RowOfId(kind.regions, id);
    if (region < 0 || !RegisterKind_Exist(kind, region, no))
        return 0;
    return PaneRegion_IsSelected(kind.group(), id) ? 1 : -1;
}

bool RegisterKind_IsInUse(const RegisterKind& kind, int region)
{
    constexpr int SINGLE_UNIT_CHANNELS = 2;
    if (kind.mirror == REGISTER_KEYSS)
        return region % REGION_KEYS < GL_KeyMax[region / REGION_KEYS];
    if (region >= SS_REGION_ME1_SUB && region <= SS_REGION_PP_SUB)
        return multiprogram2_me[me_bank[region - SS_REGION_ME1_SUB].me] != 0;
    const int channel = region - SS_REGION_DME1;
    const bool is_channel = region >= SS_REGION_DME1 && region <= SS_REGION_DME8;
    return !is_channel || !is_single_channel() || channel < SINGLE_UNIT_CHANNELS;
}

// --- Commands ---

static void print_mask(const RegisterKind& kind, uint64_t mask, char (&text)[20], bool is_lower)
{
    *text = '\0';
    if (kind.mask == REGMASK_WIDE)
        PrintText(text, "%08X%08X", unsigned(mask >> 32), unsigned(mask & 0xFFFFFFFF));
    else if (kind.mask == REGMASK_NARROW)
        PrintText(text, is_lower ? "%x" : "%X", unsigned(mask));
}

// "put PATH#MASK,REST", or without the mask.
static void send(const RegisterKind& kind, const char* path, uint64_t mask, const char* rest)
{
    char text[20];
    if (!path)
        return;
    print_mask(kind, mask, text, false);
    Net_SendCommandFormat("put %s#%s%s%s", path, text, *text ? "," : "", rest);
}

void RegisterCmd_Recall(const RegisterKind& kind, uint64_t mask, int number)
{
    char text[20];
    print_mask(kind, mask, text, true);
    Net_SendCommandFormat("put %s#%s%s%d", kind.commands->recall, text, *text ? ", " : "", number);
}

void RegisterCmd_Store(const RegisterKind& kind, uint64_t mask, int number)
{
    send(kind, kind.commands->store, mask, NumStr(number));
}

void RegisterCmd_Lock(const RegisterKind& kind, uint64_t mask, int from, int to, bool on)
{
    const RegisterCommands& c = *kind.commands;
    char rest[32];
    if (kind.local) {
        kind.local->lock(from, to, on);
        return;
    }
    if (c.unlock)
        PrintText(rest, "%d,%d", from, to);
    else
        PrintText(rest, "%d,%d,%s", from, to, Bool(on));
    send(kind, c.unlock && !on ? c.unlock : c.lock, mask, rest);
}

void RegisterCmd_Delete(const RegisterKind& kind, uint64_t mask, int from, int to)
{
    char rest[24];
    if (kind.local) {
        kind.local->remove(from, to);
        return;
    }
    PrintText(rest, "%d,%d", from, to);
    send(kind, kind.commands->remove, mask, rest);
}

void RegisterCmd_Rename(const RegisterKind& kind, uint64_t mask, int number, const char* name)
{
    char rest[64];
    if (kind.local) {
        kind.local->rename(number, name);
        return;
    }
    PrintText(rest, "%d,%s", number, name);
    send(kind, kind.commands->rename, mask, rest);
}

static const char* mask_before(const RegisterKind& kind, uint64_t mask, char (&text)[20])
{
    print_mask(kind, mask, text, false);
    AppendText(text, *text ? "," : "");
    return text;
}

void RegisterCmd_Runs(const RegisterKind& kind, const RegisterRuns& runs, const RegisterSpan& span,
                      uint64_t to_mask, int target, bool wo_name)
{
    char rest[80];
    char text[20];
    if (kind.local) { // of the runs it has the copy
        kind.local->copy(span.from, span.to, target, wo_name);
        return;
    }
    PrintText(rest, "%d,%d,%s%d,%s", span.from, span.to, mask_before(kind, to_mask, text), target,
              Bool(wo_name));
    send(kind, runs.path, span.mask, rest);
}

void RegisterCmd_CopyInRegion(const RegisterKind& kind, int region, int from, int to, bool wo_name)
{
    const char* const path = kind.commands->copy.path;
    if (kind.regions && kind.mirror == REGISTER_EFFECT) {
        const char* const word = kind.regions[region].cmd;
        Net_SendCommandFormat("put %s#%s,%d,%d,%s,%d,%s", path, word, from, from, word, to,
                              Bool(wo_name));
        return;
    }
    const uint64_t bits = kind.regions ? kind.regions[region].bitmap : 0;
    RegisterCmd_Runs(kind, kind.commands->copy, {bits, from, from}, bits, to, wo_name);
}

void RegisterCmd_Merge(const RegisterKind& kind, uint64_t mask, int number, uint64_t to_mask,
                       int target)
{
    char rest[64];
    char text[20];
    PrintText(rest, "%d,%s%d", number, mask_before(kind, to_mask, text), target);
    send(kind, kind.commands->merge, mask, rest);
}

void RegisterCmd_Attribute(const RegisterKind& kind, const char* path, const RegisterSpan& span,
                           const char* value)
{
    char rest[CMD_SIZE];
    PrintText(rest, "%d,%d,%s", span.from, span.to, value);
    send(kind, path, span.mask, rest);
}
