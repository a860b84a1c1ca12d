#include "selfdiag.h"
#include "a_ba.h"
#include "bus.h"
#include "global.h"
#include "i2c.h"
#include "log.h"
#include "message.h"
#include "month.h"
#include "page.h"
#include "text.h"
#include "xsyslog.h"
#include <SDL.h>
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <ctime>

#include "safeguards.h"

char GL_CircuitBoard[DIAG_UNITS][DIAG_BOARDS][16];
char GL_Fan[DIAG_UNITS][DIAG_FANS][16];
char GL_PSU[DIAG_UNITS][DIAG_PSUS][16];
int GL_FanTold[DIAG_UNITS];
int GL_PSUTold[DIAG_UNITS];

namespace
{
constexpr uint32_t PAGE_STATUS = 0x74110000;
constexpr uint32_t PAGE_HISTORY = 0x74120000;
constexpr int PANEL_ITEMS = 26;
constexpr int DME_ITEMS = 40;
constexpr int MPE_ITEMS = 2;

struct LogRow {
    SELFDIAG_LOG entry;
    bool is_error = false;
};

// Its board.
constexpr int HOUR_MS = 3600000;
constexpr int POWER_DEVICE = 82;
constexpr int POWER_STATUS = 2;
constexpr int POWER_IS_OFF = 0x01;
constexpr int TEMPERATURE_DEVICE = 77;
constexpr int TEMPERATURE_LIMIT = 76;
constexpr int CLOCK_DEVICE = 104;
constexpr int CLOCK_CONTROL = 14;
constexpr int CLOCK_RUNS = 28;
constexpr int MAINT_REGION = 3;
constexpr int RETRY_MS = 100;

struct Hours {
    int elem = 0;
    const char* message = "";
    int count = 0;
    bool is_known = false; // an unread count is never written: it would be lost
};

// Of this computer's items; the others are free.
enum : int { ITEM_TEMPERATURE, ITEM_CPU_HOURS, ITEM_POWER_HOURS };
} // namespace

static struct {
    SELFDIAG UI[DIAG_MENU_ITEMS];
    LogRow Log[SELFDIAG_LOGS]; // newest first
    int LogMax = 0;            // entries in use
    uint32_t added = 0;        // since the start
} sd;

static struct {
    bool has_begun = false;
    unsigned char power = 0;
    unsigned char temperature = 0;
    bool is_measured = false; // the sensor has answered at least once
    Hours cpu{.elem = EEPROM_HOURS_CPU, .message = "CPU Operation Hours"};
    Hours psu{.elem = EEPROM_HOURS_POWER, .message = "Power Operation Hours"};
    int hour_ms = 0; // until the hours rise
} board;

template <size_t UNITS, size_t PLACES> static void fill_ng(char (&words)[UNITS][PLACES][16])
{
    for (auto& unit : words)
        for (auto& word : unit)
            CopyText(word, "NG");
}

void SelfDiag_Init()
{
    fill_ng(GL_CircuitBoard);
    fill_ng(GL_Fan);
    fill_ng(GL_PSU);
    std::fill_n(GL_FanTold, DIAG_UNITS, 0);
    std::fill_n(GL_PSUTold, DIAG_UNITS, 0);
    std::fill_n(sd.UI, DIAG_MENU_ITEMS, SELFDIAG{});
    sd.LogMax = 0;
    sd.added = 0;
    board = {};
}

// --- Units ---

static const char* own_id()
{
    return DEV_MyPnl[0] ? DEV_MyPnl[0]->id : "";
}

static bool unit_of(DEVICE* device, int items, DiagUnit* unit)
{
    if (!device)
        return false;
    *unit = {device->name, device->id[0] ? device->id : own_id(), device->selfdiag, items};
    return true;
}

// The lists of devices end with a null.
static bool listed_unit(DEVICE* const* devices, int n, int items, DiagUnit* unit)
{
    for (int i = 0; i < n; i++)
        if (!devices[i])
            return false;
    return unit_of(devices[n], items, unit);
}

bool SelfDiag_Unit(DIAG_CLASS unit_class, int n, DiagUnit* unit)
{
    if (n < 0 || n >= DEVICE_MAX)
        return false;
    switch (unit_class) {
    case DIAG_MENU: *unit = {"MENU", own_id(), sd.UI, DIAG_MENU_ITEMS}; return n == 0;
    case DIAG_PANEL: return n == 0 && unit_of(DEV_MyPnl[0], PANEL_ITEMS, unit);
    case DIAG_DCU: return n < DCU_MAX && unit_of(&DEV_Dcu[n], PANEL_ITEMS, unit);
    case DIAG_SWITCHER: return listed_unit(DEV_MySwr, n, SELFDIAG_ITEMS, unit);
    case DIAG_DME: return listed_unit(DEV_MyDme, n, DME_ITEMS, unit);
    case DIAG_MPE: return listed_unit(DEV_MyMpe, n, MPE_ITEMS, unit);
    case DIAG_CLASSES: break;
    }
    return false;
}

SELFDIAG* SelfDiag_GetUI(int item)
{
    return item >= 0 && item < DIAG_MENU_ITEMS ? &sd.UI[item] : nullptr;
}

// --- The log ---

// The number in the three digits from there on; 0 for an id that is too short.
static int id_number(const char* id, size_t at)
{
    char digits[4] = "";
    if (strlen(id) >= at + 3)
        memcpy(digits, id + at, 3);
    return int(strtol(digits, nullptr, 10));
}

// What hangs on a panel reports by the panel.
static void system_log_tag(char (&tag)[16], const char* id)
{
    const char* word = "SIU";
    for (const char* own_word : {"SWR", "DME"})
        if (BeginsWith(id, own_word))
            word = own_word;
    PrintText(tag, "%s%02d%02d00", word, id_number(id, 3), id_number(id, 7));
}

void SelfDiag_LogAdd(const DiagUnit& device, int item, const char* code)
{
    constexpr int PRIORITY_ERROR = 3, PRIORITY_INFO = 6;
    const SELFDIAG& it = device.item[item];
    std::move_backward(sd.Log, sd.Log + SELFDIAG_LOGS - 1, sd.Log + SELFDIAG_LOGS);
    LogRow& row = sd.Log[0];
    CopyText(row.entry.time, it.time);
    CopyText(row.entry.device, device.name);
    CopyText(row.entry.message, it.message);
    row.is_error = it.status >= SELFDIAG_ERROR;
    sd.LogMax = std::min(sd.LogMax + 1, SELFDIAG_LOGS);
    sd.added++;
    if (!code)
        return;
    char tag[16];
    system_log_tag(tag, device.id);
    xsys_tagsyslog(row.is_error ? PRIORITY_ERROR : PRIORITY_INFO, tag, "diag", "%s:%s", code,
                   it.message);
    (void)SelfDiag_AddLog(row.entry.device, "%s:%s", code, it.message); // none without a disk
}

const SELFDIAG_LOG* SelfDiag_GetLog(int i)
{
    return i >= 0 && i < SELFDIAG_LOGS ? &sd.Log[i].entry : nullptr;
}

int SelfDiag_GetLogMax()
{
    return sd.LogMax;
}

uint32_t SelfDiag_LogAdded()
{
    return sd.added;
}

int SelfDiag_LogIsError(int i)
{
    return i >= 0 && i < sd.LogMax && sd.Log[i].is_error;
}

int SelfDiag_LogDelete(int i)
{
    if (i < 0 || i >= sd.LogMax)
        return -1;
    std::move(sd.Log + i + 1, sd.Log + sd.LogMax, sd.Log + i);
    sd.Log[--sd.LogMax] = {};
    return 0;
}

void SelfDiag_LogDeleteAll()
{
    std::fill_n(sd.Log, sd.LogMax, LogRow{});
    sd.LogMax = 0;
}

// --- Status ---

static void time_text(char (&text)[24], time_t now)
{
    tm utc{};
    gmtime_r(&now, &utc);
    PrintText(text, "%3s.%d.%04d %02d:%02d:%02d", Month_Name(utc.tm_mon + 1), utc.tm_mday,
              utc.tm_year + 1900, utc.tm_hour, utc.tm_min, utc.tm_sec);
}

// Hundreds of items report after each start. That they are well is a state, not an event: it would
// drive what has happened out of the log. An item that has been in error is logged when it is back,
// even if it comes back while the units are asked anew. This computer's own first report marks its
// start.
static bool is_event(const SELFDIAG& it, int status)
{
    return status >= SELFDIAG_ERROR || it.status != SELFDIAG_UNKNOWN || it.lerr != 0 ||
           &it == sd.UI;
}

bool SelfDiag_Take(const DiagUnit& unit, int item, int status, const char* message,
                   const char* code)
{
    if (item < 0 || item >= unit.items || unit.item[item].status == status)
        return false;
    SELFDIAG& it = unit.item[item];
    const bool is_logged = is_event(it, status);
    const time_t now = time(nullptr);
    it.status = status;
    time_text(it.time, now);
    CopyText(it.message, message);
    if (status >= SELFDIAG_ERROR)
        it.lerr = now;
    if (is_logged)
        SelfDiag_LogAdd(unit, item, code);
    return true;
}

static int errors_of(const DiagUnit& unit)
{
    return int(std::count_if(unit.item, unit.item + unit.items,
                             [](const SELFDIAG& it) { return it.status >= SELFDIAG_ERROR; }));
}

static int count_errors()
{
    int errors = 0;
    DiagUnit unit;
    for (int c = 0; c < DIAG_CLASSES; c++)
        for (int n = 0; SelfDiag_Unit(DIAG_CLASS(c), n, &unit); n++)
            errors += errors_of(unit);
    return errors;
}

void check_errorexist()
{
    GL_ErrorExist = count_errors();
    const bool is_shown = GL_NowPage == PAGE_STATUS || GL_NowPage == PAGE_HISTORY;
    if (GL_ErrorExist && GL_ErrorPopup && !is_shown && !GL_ErrorPopup_On) {
        GL_ErrorPopup_On = 1;
        BA_DrawError();
    }
    BA_RedrawTitle();
}

// --- The menu computer's board ---

// A failed read leaves the byte.
static int read_byte(int device, int address, unsigned char* byte)
{
    i2c_address_set(device);
    if (i2c_open() != 0)
        return -1;
    const int n = i2c_rd(address, 1, byte);
    i2c_close();
    return n;
}

static int write_byte(int device, int address, unsigned char byte)
{
    i2c_address_set(device);
    if (i2c_open() != 0)
        return -1;
    const int n = i2c_wr(address, 1, &byte);
    i2c_close();
    return n;
}

static void read_hours(Hours& hours, bool is_patient)
{
    unsigned char b[4];
    int n = I2cEepromService_ReadElem(hours.elem, sizeof b, b);
    if (n != sizeof b && is_patient) {
        SDL_Delay(RETRY_MS);
        n = I2cEepromService_ReadElem(hours.elem, sizeof b, b);
    }
    hours.is_known = n == sizeof b;
    if (hours.is_known)
        hours.count = int(uint32_t(b[0]) << 24 | uint32_t(b[1]) << 16 | uint32_t(b[2]) << 8 | b[3]);
}

// What cannot be read now may be read an hour later. A memory that has never been written counts
// from 0. A failed write is noticed by the CRC at the next start.
static void add_hour(Hours& hours)
{
    if (!hours.is_known)
        read_hours(hours, false);
    if (!hours.is_known)
        return;
    const uint32_t count = uint32_t(hours.count) + 1;
    hours.count = int(count);
    unsigned char b[4];
    for (int i = 0; i < 4; i++)
        b[i] = static_cast<unsigned char>(count >> (24 - 8 * i));
    (void)I2cEepromService_WriteElem(hours.elem, sizeof b, b);
}

// For the pages. Hours are neither well nor ill: nothing is logged.
static void show_hours(const Hours& hours, int item)
{
    SELFDIAG& it = sd.UI[item];
    if (!hours.is_known || (it.status == SELFDIAG_OK && it.value == hours.count))
        return;
    it.status = SELFDIAG_OK;
    it.value = hours.count;
    time_text(it.time, time(nullptr));
    CopyText(it.message, hours.message);
    GL_RedrawMenu9991 = 1;
}

static void board_begin()
{
    read_hours(board.cpu, true);
    read_hours(board.psu, true);
    Log_Output(LOG_LIFE, MOD_GLOBAL, "### I2C OPEHOUR CPU=%d PSU=%d ", board.cpu.count,
               board.psu.count);
    if (I2cEepromService_IsCrc32Valid(MAINT_REGION) == 0)
        Log_Output(LOG_LIFE, MOD_GLOBAL, "### I2C OPEHOUR CRC error");
    unsigned char control = 0;
    int ret = read_byte(CLOCK_DEVICE, CLOCK_CONTROL, &control);
    Log_Output(LOG_LIFE, MOD_GLOBAL, "### RTC CTRL = %02X (ret:%d)", control, ret);
    if (control == CLOCK_RUNS)
        return;
    ret = write_byte(CLOCK_DEVICE, CLOCK_CONTROL, CLOCK_RUNS);
    Log_Output(LOG_LIFE, MOD_GLOBAL, "### RTC CTRL > SET TO %02X (ret:%d)", CLOCK_RUNS, ret);
}

static void count_hours(int passed_ms)
{
    board.hour_ms -= passed_ms;
    if (board.hour_ms >= 0)
        return;
    board.hour_ms = HOUR_MS;
    add_hour(board.cpu);
    if (!(board.power & POWER_IS_OFF))
        add_hour(board.psu);
    (void)I2cEepromService_UpdateCrc32(MAINT_REGION); // noticed at the next start
    Log_Output(LOG_LINK, MOD_GLOBAL, "### I2C OPEHOUR CPU=%d PSU=%d", board.cpu.count,
               board.psu.count);
    show_hours(board.cpu, ITEM_CPU_HOURS);
    show_hours(board.psu, ITEM_POWER_HOURS);
}

static void take_temperature()
{
    DiagUnit menu;
    (void)SelfDiag_Unit(DIAG_MENU, 0, &menu); // always there
    const bool is_cool = board.temperature < TEMPERATURE_LIMIT;
    const int old_value = sd.UI[ITEM_TEMPERATURE].value;
    sd.UI[ITEM_TEMPERATURE].value = board.temperature;
    const bool has_changed = SelfDiag_Take(
        menu, ITEM_TEMPERATURE, is_cool ? SELFDIAG_OK : SELFDIAG_ERROR,
        is_cool ? "CA-91 Board Temperature OK" : "CA-91 Board Temperature Error", "GUI-BOARDTEMP");
    if (has_changed) {
        check_errorexist();
        SendMessage(LMSG_SELFDIAGCHANGE, 0, 0, 0, 0);
    }
    if (has_changed || old_value != board.temperature)
        GL_RedrawMenu9991 = 1;
}

void SelfDiag_I2C_Update(int passed_ms)
{
    (void)read_byte(POWER_DEVICE, POWER_STATUS, &board.power); // or as it was
    if (read_byte(TEMPERATURE_DEVICE, 0, &board.temperature) == 1)
        board.is_measured = true;
    Log_Output(LOG_LINK, MOD_GLOBAL, "### I2C STATUS PSU=%02X Temp=%02X", board.power,
               board.temperature);
    if (!board.has_begun)
        board_begin();
    board.has_begun = true;
    count_hours(passed_ms);
    if (board.is_measured) // a sensor that has never answered has nothing to report
        take_temperature();
    if (count_errors() != GL_ErrorExist)
        check_errorexist(); // a unit has left this panel, or has not answered when asked anew
}

// --- Hooks of the maintenance pages ---

void Diag_FocusTM3() {}

void ifd_memcnt_info(const char* value)
{
    Log_Output(LOG_LINK, MOD_GLOBAL, "Memory count: %s", value);
}
