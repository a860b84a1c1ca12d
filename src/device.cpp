#include "device.h"
#include "command.h"
#include "global.h"
#include "graphics.h"
#include "initread.h"
#include "log.h"
#include "netio.h"
#include "page.h"
#include "setup_index.h"
#include "text.h"
#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <iterator>

#include "safeguards.h"

DEVICE DEV_Pnl[DEVICE_MAX];
DEVICE DEV_Swr[DEVICE_MAX];
DEVICE DEV_Dme[DEVICE_MAX];
DEVICE DEV_Mpe[DEVICE_MAX];
DEVICE DEV_Dcu[DCU_MAX];
int SYS_PnlMax = 0;
int SYS_SwrMax = 0;
int SYS_DmeMax = 0;
int SYS_MpeMax = 0;
int SYS_PnlAssign[UNIT_MAX][2];
int SYS_SwrAssign[UNIT_MAX][4];
char SYS_PnlName[UNIT_MAX][16];
char SYS_SwrName[UNIT_MAX][16];
char SYS_DmeName[UNIT_MAX][16];
int SYS_MyPnl = 1;

DEVICE* DEV_MyPnl[DEVICE_MAX + 1];
DEVICE* DEV_MySwr[DEVICE_MAX + 1];
DEVICE* DEV_MyDme[DEVICE_MAX + 1];
DEVICE* DEV_MyMpe[DEVICE_MAX + 1];
int SYS_MyPnlMax = 0;
int SYS_MySwrMax = 0;
int SYS_MyDmeMax = 0;
int SYS_MyMpeMax = 0;
int SYS_MyAllMax = 0;
DEVTYPE SYS_RefPnlType = DEVTYPE_UNKNOWN;
DEVTYPE SYS_RefSwrType = DEVTYPE_UNKNOWN;
DEVTYPE SYS_RefDmeType = DEVTYPE_UNKNOWN;
DEVTYPE SYS_TargetSwrType = DEVTYPE_UNKNOWN;
int SYS_RefSwrActiveLine = 0;
int SYS_RefPnlActiveLine = 0;
int SYS_MyDme1 = -1;
int SYS_MyDme1S = -1;
int SYS_MyDme2 = -1;
int SYS_MyDme2S = -1;

namespace
{
constexpr int FORMAT_SIZE_2160 = 4;
constexpr DEVTYPE SWITCHERS_3G = DEVTYPE_KTR40G | DEVTYPE_KTR40GSF | DEVTYPE_KTR40E |
                                 DEVTYPE_KTR40X | DEVTYPE_KTR40XSF | DEVTYPE_NTR40;
constexpr DEVTYPE SMALL_SWITCHER = DEVTYPE_KTR40E; // other pictures for some effects wipes

// A class of units: its table, and the part of it that belongs to this panel.
struct UnitClass {
    const char* prefix;
    DEVICE* table;
    int* max;
    DEVICE** mine;
    int* mine_max;
};
const UnitClass pnl_class = {"PNL", DEV_Pnl, &SYS_PnlMax, DEV_MyPnl, &SYS_MyPnlMax};
const UnitClass swr_class = {"SWR", DEV_Swr, &SYS_SwrMax, DEV_MySwr, &SYS_MySwrMax};
const UnitClass dme_class = {"DME", DEV_Dme, &SYS_DmeMax, DEV_MyDme, &SYS_MyDmeMax};
const UnitClass mpe_class = {"MPE", DEV_Mpe, &SYS_MpeMax, DEV_MyMpe, &SYS_MyMpeMax};
const UnitClass* const classes[] = {&pnl_class, &swr_class, &dme_class, &mpe_class};
} // namespace

// What the last DeviceStructure saw, so that a consequence is drawn once for each change.
static struct {
    DEVTYPE dme_type[DEVICE_MAX] = {}; // by row of DEV_Dme
    int mp2 = 0;                       // the multi-program entries are subscribed
    int small_pictures = 0;            // the small model's wipe pictures are loaded
} seen;

static int rows_in_use(const UnitClass& c)
{
    return std::clamp(*c.max, 0, DEVICE_MAX);
}

// Index of the unit with this number, -1 when the table has none.
static int row_of_unit(const UnitClass& c, int number)
{
    if (number <= 0)
        return -1;
    for (int i = 0; i < rows_in_use(c); i++)
        if (Device_UnitNumber(c.table[i]) == number)
            return i;
    return -1;
}

static void join(const UnitClass& c, int row)
{
    DEVICE* dev = &c.table[row];
    for (int i = 0; i < *c.mine_max; i++)
        if (c.mine[i] == dev)
            return;
    c.mine[(*c.mine_max)++] = dev; // never past the table: a row joins once
    SYS_MyAllMax++;
}

static void leave_all()
{
    for (const UnitClass* c : classes) {
        std::fill_n(c->mine, DEVICE_MAX + 1, nullptr);
        *c->mine_max = 0;
    }
    SYS_MyAllMax = 0;
    SYS_MyDme1 = SYS_MyDme1S = SYS_MyDme2 = SYS_MyDme2S = -1;
}

static void structure_panels()
{
    SYS_RefPnlType = DEVTYPE_UNKNOWN;
    SYS_RefPnlActiveLine = 0;
    bool extension = false;
    for (int i = 0; i < rows_in_use(pnl_class); i++) {
        const DEVICE& dev = DEV_Pnl[i];
        if (Device_UnitNumber(dev) != SYS_MyPnl)
            continue;
        join(pnl_class, i);
        SYS_RefPnlType = dev.type;
        SYS_RefPnlActiveLine = dev.activeline;
        if (dev.type == DEVTYPE_QRD11B)
            extension = true;
    }
    SetupIndex_SetExtensionPanel(extension);
}

static const DEVICE* target_switcher()
{
    const bool exists = SYS_SetupTarget >= 0 && SYS_SetupTarget < SYS_MySwrMax;
    return DEV_MySwr[exists ? SYS_SetupTarget : 0];
}

static void structure_switchers()
{
    if (SYS_MyPnl >= 0 && SYS_MyPnl < UNIT_MAX) {
        for (int number : SYS_PnlAssign[SYS_MyPnl]) {
            const int row = row_of_unit(swr_class, number);
            if (row >= 0)
                join(swr_class, row);
        }
    }
    const DEVICE* ref = DEV_MySwr[0];
    SYS_RefSwrType = ref ? ref->type : DEVTYPE_UNKNOWN;
    SYS_RefSwrActiveLine = ref ? ref->activeline : 0;
    SYS_TargetSwrType = ref ? target_switcher()->type : DEVTYPE_UNKNOWN;
    if (!ref)
        return; // the last known format stands
    SYS_Format_Size = ref->format_size;
    SYS_Format_Freq = ref->format_freq;
    SYS_Format_Scan = ref->format_scan;
}

// The model numbers of the effects units count from 1 in the order of DEVTYPE.
static DEVTYPE type_of_model(long model)
{
    return model >= 1 && model <= 16 ? 1 << (model - 1) : DEVTYPE_UNKNOWN;
}

static void take_dme_models()
{
    for (int i = 0; i < rows_in_use(dme_class); i++) {
        const int number = Device_UnitNumber(DEV_Dme[i]);
        const DEVTYPE type =
            number >= 1 && number <= 4 ? type_of_model(GL_DmeModel[number - 1]) : 0;
        if (type)
            DEV_Dme[i].type = type;
    }
}

static void join_dmes_of(const DEVICE& swr)
{
    int* const places[] = {&SYS_MyDme1, &SYS_MyDme2, &SYS_MyDme1S, &SYS_MyDme2S};
    const int unit = Device_UnitNumber(swr);
    if (unit < 0 || unit >= UNIT_MAX)
        return;
    for (int i = 0; i < 4; i++) {
        const int row = row_of_unit(dme_class, SYS_SwrAssign[unit][i]);
        if (row < 0)
            continue;
        join(dme_class, row);
        if (*places[i] < 0)
            *places[i] = row;
    }
}

// A model that was not known before decides how its interface is read: ask again.
static void report_new_dme_models()
{
    bool is_new = false;
    for (int i = 0; i < SYS_MyDmeMax; i++) {
        const DEVTYPE type = DEV_MyDme[i]->type;
        DEVTYPE& known = seen.dme_type[DEV_MyDme[i] - DEV_Dme];
        if (type == DEVTYPE_UNKNOWN || type == known)
            continue;
        known = type;
        is_new = true;
        Log_Output(LOG_DETAIL, MOD_GLOBAL, "DME Model Type = %d", type);
    }
    if (!is_new)
        return;
    Net_SendCommand("read Engineering Setup@Switcher@SDI I/F@DME1");
    Net_SendCommand("read Engineering Setup@Switcher@SDI I/F@DME2");
}

static void structure_dmes()
{
    take_dme_models();
    for (int i = 0; i < SYS_MySwrMax; i++)
        join_dmes_of(*DEV_MySwr[i]);
    SYS_RefDmeType = getDmeReferenceModel();
    report_new_dme_models();
}

// Row of the unit that serves the lowest reference channel, -1 none.
static int reference_dme()
{
    const bool is_second_group = (SYS_DMEReference & 0x0F) == 0 && (SYS_DMEReference & 0xF0) != 0;
    return is_second_group ? SYS_MyDme2 : SYS_MyDme1;
}

// The lowest reference channel as its unit counts, 0..3; the first without a reference.
static int reference_channel()
{
    for (int ch = 0; ch < 8; ch++)
        if (SYS_DMEReference & 1 << ch)
            return ch % 4;
    return 0;
}

// What knob tables go by: the switcher's lines, the aspect of each of its banks and that of the
// effects channel that the operator has as the reference. What no unit has told stands as it was.
static void structure_picture()
{
    if (SYS_RefSwrActiveLine != 0)
        SYS_SignalFormat = SYS_RefSwrActiveLine > ACTIVELINE_576I;
    if (const DEVICE* swr = DEV_MySwr[0])
        std::copy(std::begin(swr->aspect), std::end(swr->aspect), SYS_RefSwrScreenAspect);
    const int dme = reference_dme();
    if (dme >= 0)
        SYS_ScreenAspect = DEV_Dme[dme].aspect[reference_channel()];
}

static void structure_frame_memory()
{
    const int v6 = (SYS_RefSwrType & OLD_SWITCHERS) == 0;
    if (v6 == SYS_FmemV6)
        return;
    SYS_FmemV6 = v6;
    Log_Output(LOG_DETAIL, MOD_GLOBAL, "New Frame Memory Mode = %s", v6 ? "V6" : "V5");
}

// The subscriptions are sent when the state comes on and when they have been forgotten, not at
// every call, of which a change of menu causes a dozen.
static void subscribe_multi_program()
{
    const int mp2 =
        std::any_of(multiprogram2_me, multiprogram2_me + ME_COUNT, [](int on) { return on != 0; });
    const bool is_due = mp2 && !seen.mp2;
    seen.mp2 = mp2;
    if (is_due)
        InitialCommand_MP2();
}

void Device_ForgetMultiProgram()
{
    seen.mp2 = 0;
}

// While a list of units is told anew there is no reference, and no reason to load anything.
static void load_small_pictures()
{
    const int is_small = SYS_RefSwrType == SMALL_SWITCHER;
    if (is_small == seen.small_pictures || SYS_RefSwrType == DEVTYPE_UNKNOWN)
        return;
    seen.small_pictures = is_small;
    if (is_small)
        LoadDmeWipePtn_KTR20();
    else
        LoadDmeWipePtn_Standard();
}

void DeviceStructure()
{
    Log_Output(LOG_DETAIL, MOD_GLOBAL, "DeviceStructure() called.");
    leave_all();
    structure_panels();
    structure_switchers();
    structure_dmes();
    structure_picture();
    for (int i = 0; i < rows_in_use(mpe_class); i++)
        join(mpe_class, i);
    structure_frame_memory();
    Log_Output(LOG_DETAIL, MOD_GLOBAL, "Setup Target SWR Model %d", SYS_TargetSwrType);
    subscribe_multi_program();
    load_small_pictures();
}

static void seed(DEVICE& dev, const char* name, const char* id, const char* dataip,
                 const char* ctrlip)
{
    CopyText(dev.name, name);
    CopyText(dev.id, id);
    CopyText(dev.dataip, dataip);
    CopyText(dev.ctrlip, ctrlip);
}

static void seed_names(char (*names)[16], const char* prefix)
{
    CopyText(names[0], "--");
    for (int i = 1; i < UNIT_MAX; i++) {
        CopyText(names[i], prefix);
        char* const number = names[i] + strlen(prefix);
        *std::to_chars(number, names[i] + sizeof names[i] - 1, i).ptr = '\0';
    }
}

void Device_Init()
{
    for (const UnitClass* c : classes)
        std::fill_n(c->table, DEVICE_MAX, DEVICE{});
    std::fill_n(DEV_Dcu, DCU_MAX, DEVICE{});
    seen = {};
    seed(DEV_Pnl[0], "PNL1", "PNL001D001", "10.129.1.1", "10.1.1.1");
    seed(DEV_Swr[0], "SWR1", "SWR001D001", "10.129.2.1", "10.1.2.1");
    seed(DEV_Dme[0], "DME1", "DME001D001", "10.129.3.1", "10.1.3.1");
    CopyText(DEV_Dcu[0].name, "DCU1");
    CopyText(DEV_Dcu[1].name, "DCU2");

    leave_all();
    DEV_MyPnl[0] = &DEV_Pnl[0];
    SYS_MyPnl = SYS_PnlMax = SYS_SwrMax = SYS_DmeMax = 1;
    SYS_MpeMax = 0;
    SYS_RefPnlType = SYS_RefSwrType = SYS_RefDmeType = SYS_TargetSwrType = DEVTYPE_UNKNOWN;
    SYS_RefSwrActiveLine = SYS_RefPnlActiveLine = 0;

    for (int i = 0; i < UNIT_MAX; i++) {
        SYS_PnlAssign[i][0] = 1;
        SYS_PnlAssign[i][1] = 0;
        SYS_SwrAssign[i][0] = 1;
        SYS_SwrAssign[i][1] = 2;
        SYS_SwrAssign[i][2] = SYS_SwrAssign[i][3] = 0;
    }
    seed_names(SYS_PnlName, "PNL");
    seed_names(SYS_SwrName, "SWR");
    seed_names(SYS_DmeName, "DME");
    std::fill_n(GL_KeyMax, ME_COUNT, 8);
}

#define UNIT_MODEL "Info@Board Config@Unit Model@"
#define BOARD_EXIST "Info@Board Config@Board Exist Set@"

void Get_DeviceType()
{
    Net_SendCommand("read Engineering Setup@DME@Model@DME1");
    Net_SendCommand("read Engineering Setup@DME@Model@DME2");
    for (const char* unit : {"PNL1", "PNL2", "PNL3", "PNL4", "SWR1", "SWR2"})
        Net_SendCommandFormat("read " UNIT_MODEL "%s", unit);
}

static void take_model(const char* name, const char* value)
{
    DEVICE* dev = Device_ByName(name);
    const DEVTYPE type = type_of_model(strtol(value, nullptr, 10));
    if (!dev || type == DEVTYPE_UNKNOWN)
        Log_Output(LOG_LINK, MOD_GLOBAL, "Unit model: %s#%s", name, value);
    if (!dev || type == DEVTYPE_UNKNOWN || type == dev->type)
        return;
    dev->type = type;
    DeviceStructure();
}

static void take_boards(const char* tail, const char* value)
{
    char name[16];
    CopyText(name, tail);
    char* source = strchr(
        name, '@'); // "EEPROM" is what the unit was built with; a scan misses a board that is down
    if (source && strcmp(source, "@EEPROM") != 0)
        return;
    if (source)
        *source = '\0';
    DEVICE* dev = Device_ByName(name);
    if (!dev)
        return;
    for (int& entry : dev->function) {
        char* end = nullptr;
        entry = int(strtol(value, &end, 10));
        value = *end == ',' ? end + 1 : ""; // entries that are not sent read as 0
    }
}

int Device_Tally(const char* path, const char* value)
{
    if (!path || !value)
        return 0;
    if (BeginsWith(path, UNIT_MODEL))
        take_model(path + strlen(UNIT_MODEL), value);
    else if (BeginsWith(path, BOARD_EXIST))
        take_boards(path + strlen(BOARD_EXIST), value);
    else
        return 0;
    return 1;
}

int Device_UnitNumber(const DEVICE& dev)
{
    if (strnlen(dev.id, sizeof dev.id) < 8)
        return 0;
    return int(strtol(dev.id + 7, nullptr, 10));
}

static const UnitClass* class_of(const char* name)
{
    if (!name)
        return nullptr;
    for (const UnitClass* c : classes)
        if (BeginsWith(name, c->prefix))
            return c;
    return nullptr;
}

DEVICE* Device_ByName(const char* name)
{
    const UnitClass* c = class_of(name);
    if (!c)
        return nullptr;
    for (int i = 0; i < rows_in_use(*c); i++)
        if (strcmp(c->table[i].name, name) == 0)
            return &c->table[i];
    return nullptr;
}

DEVICE* Device_Table(const char* name, int** max)
{
    const UnitClass* c = class_of(name);
    if (!c)
        return nullptr;
    if (max)
        *max = c->max;
    return c->table;
}

// 1080p of 50 or 59.94 Hz, which have the frame rates 25.0 and 29.97 here: twice what one HD link
// carries.
static bool is_1080p_of_two_links(const DEVICE* dev)
{
    return dev && dev->activeline == ACTIVELINE_1080P && dev->framerate >= 25.0;
}

int is4KFormat()
{
    return SYS_4KMode != 0 || SYS_Format_Size == FORMAT_SIZE_2160;
}

int isDualProc_DualLink()
{
    return SYS_DualProc != 0 && is_1080p_of_two_links(DEV_MySwr[0]);
}

int isDualProc_DualLink_DME()
{
    return SYS_DualProc != 0 && is_1080p_of_two_links(DEV_MyDme[0]) && !is1080P_ZRD52_DME();
}

int isSingleProc_DualLink()
{
    return SYS_DualProc == 0 && is_1080p_of_two_links(DEV_MySwr[0]) && !is1080P_3G();
}

int isSingleProc_DualLink_DME()
{
    return SYS_DualProc == 0 && is_1080p_of_two_links(DEV_MyDme[0]) && !is1080P_3G_DME() &&
           !is1080P_ZRD52_DME();
}

int is1080P_3G()
{
    return SYS_DualProc == 0 && (SYS_RefSwrType & SWITCHERS_3G) != 0 &&
           is_1080p_of_two_links(DEV_MySwr[0]);
}

int is1080P_3G_DME()
{
    return is1080P_3G() && is_1080p_of_two_links(DEV_MyDme[0]);
}

int is1080P_ZRD52_DME()
{
    return is_1080p_of_two_links(DEV_MyDme[0]) && DEV_MyDme[0]->type == DEVTYPE_ZRD52;
}

int isZRD52onSWR(const DEVICE* swr)
{
    if (!swr)
        return 0;
    const int unit = Device_UnitNumber(*swr);
    if (unit < 0 || unit >= UNIT_MAX)
        return 0;
    for (int number : SYS_SwrAssign[unit]) {
        const int row = row_of_unit(dme_class, number);
        if (row >= 0 && DEV_Dme[row].type == DEVTYPE_ZRD52)
            return 1;
    }
    return 0;
}

int getDmeReferenceModel()
{
    const int row = reference_dme();
    return row < 0 ? int(DEVTYPE_UNKNOWN) : DEV_Dme[row].type;
}

int getDmeReferenceUnit()
{
    const int row = reference_dme();
    return row < 0 ? 0 : Device_UnitNumber(DEV_Dme[row]);
}

int isMP2SettingME(uint32_t page)
{
    const MeBank* bank = MeBank_OfPage(page);
    return bank && multiprogram2_me[bank->me] != 0;
}

int isME_ConfigSelectType(int me)
{
    return me >= 0 && me < ME_COUNT ? me_config_type[me] : 0;
}

int isRefPnlPCX50()
{
    return SYS_RefPnlType == DEVTYPE_QRD11B;
}

int Is_clip_transition_enable()
{
    return SYS_FmemV6 != 0 && !is4KFormat();
}

int hasPanelOption()
{
    return std::any_of(DEV_MyPnl, DEV_MyPnl + SYS_MyPnlMax,
                       [](const DEVICE* dev) { return dev->function[FUNCTION_OPTION_WORD] != 0; });
}

int hasFrameConverter()
{
    const DEVICE* swr = target_switcher();
    return swr && swr->function[FUNCTION_FRAME_CONVERTER] != 0;
}
