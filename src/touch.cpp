#include "touch.h"
#include "global.h"
#include "i2c.h"
#include "log.h"
#include "process.h"
#include "ready.h"
#include "text.h"
#include "types.h"
#include <SDL.h>
#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <linux/input.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>
#include "safeguards.h"

int Touch_FD = -1;
int Touch_Resolution = 1023;

namespace
{
constexpr int RETRY_MS = 5000;
constexpr size_t RECORD_SIZE = 16; // seconds, microseconds, type, code, value on the controller

// Panels that are known, by the name of their device link.
struct Panel {
    const char* find = nullptr;
    int resolution = 0;
};
constexpr Panel panels[] = {
    {"find /dev/input/ -name \"usb-TSC-30_DMC*\" | grep event > /var/tmp/tslist", 1023},
    {"find /dev/input/ -name \"usb-Elo_TouchSystems*event*\" | grep event > /var/tmp/tslist", 4095},
};
// What the EEPROM may hold.
constexpr int FIRST_MAX = 150;
constexpr int SECOND_MIN_X = 650;
constexpr int SECOND_MIN_Y = 450;
constexpr int SYS_REGION = 2; // of its check sums

constexpr char list_file[] = "/var/tmp/tslist";
} // namespace

static struct {
    int tx = 0; // last converted position, on the screen
    int ty = 0;
    int raw_x = 0; // the same before the calibration, on 800 x 600
    int raw_y = 0;
    int tp = 0;        // last contact: value of the key event
    int up_p = 0;      // contact changed since the last synchronisation
    int up_xy = 0;     // position changed
    bool owes = false; // the queue of events was full: the last synchronisation is not yet through
    int retry_ms = 0;  // gathered while closed
    size_t record_size = RECORD_SIZE;
} touch;

void Touch_Reset()
{
    const size_t record_size = touch.record_size;
    touch = {};
    touch.record_size = record_size;
}

// The kernel's own record is larger where its clock has 64 bits; anything that is no character
// device (a pipe that stands for the panel on a desk) speaks the controller's 16 bytes.
static size_t touch_record_size(int fd)
{
    struct stat st;
    if (fstat(fd, &st) == 0 && S_ISCHR(st.st_mode))
        return sizeof(input_event);
    return RECORD_SIZE;
}

bool Touch_DeviceName(char* name, int size)
{
    FILE* fp = fopen(list_file, "r");
    if (!fp)
        return false;
    const bool found = fgets(name, size, fp) != nullptr;
    fclose(fp);
    unlink(list_file);
    if (!found)
        return false;
    for (char* c = name; *c; c++)
        if (uint8_t(*c) < ' ')
            *c = '\0';
    return *name != '\0';
}

int touch_open()
{
    if (Touch_FD >= 0)
        return -1;
    const Panel* panel = nullptr;
    for (const Panel& p : panels) {
        if (ktr_shell(p.find) == 0) {
            panel = &p;
            break;
        }
    }
    char name[PATH_SIZE];
    if (!panel || !Touch_DeviceName(name, sizeof name))
        return 0;
    Touch_Resolution = panel->resolution;
    Touch_FD = open(name, O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (Touch_FD < 0) {
        Touch_FD = -1;
        return 0;
    }
    Ready_Watch(READY_TOUCH, Touch_FD);
    ioctl(Touch_FD, EVIOCGRAB, 1); // a pipe cannot be grabbed and need not be
    touch.record_size = touch_record_size(Touch_FD);
    Log_Output(LOG_LINK, MOD_START, "Touch Panel: dev=%s, fd=%d", name, Touch_FD);
    return 0;
}

// --- Conversion: integer division, truncating, in this order; the intermediate results matter ---

static int touch_screen_x(int value)
{
    const int ax = SYS_TouchScreen_AX, bx = SYS_TouchScreen_BX;
    const int r = value * 800 / Touch_Resolution;
    return std::clamp(ax * 700 / (ax - bx) + 50 + r * 700 / (bx - ax), 0, SCREEN_W - 1);
}

static int touch_screen_y(int value)
{
    const int ay = SYS_TouchScreen_AY, by = SYS_TouchScreen_BY;
    const int r = value * 600 / Touch_Resolution;
    return std::clamp(ay * 500 / (ay - by) + 50 + r * 500 / (by - ay), 0, SCREEN_H - 1);
}

// False when the queue of events is full.
static bool touch_push_button()
{
    SDL_Event e;
    memset(&e, 0, sizeof e);
    e.type = touch.tp ? SDL_MOUSEBUTTONDOWN : SDL_MOUSEBUTTONUP;
    e.button.button = SDL_BUTTON_LEFT;
    e.button.state = touch.tp ? SDL_PRESSED : SDL_RELEASED;
    e.button.x = uint16_t(touch.tx);
    e.button.y = uint16_t(touch.ty);
    return SDL_PushEvent(&e) == 0;
}

static bool touch_push_motion()
{
    SDL_Event e;
    memset(&e, 0, sizeof e);
    e.type = SDL_MOUSEMOTION;
    e.motion.state = touch.tp ? 1 : 0;
    e.motion.x = uint16_t(touch.tx);
    e.motion.y = uint16_t(touch.ty);
    if (SDL_PushEvent(&e) != 0)
        return false;
    SDL_WarpMouse(uint16_t(touch.tx), uint16_t(touch.ty));
    return true;
}

// A release that were lost would leave a button or an arrow held for ever: what does not fit into
// the queue is owed to the next pass.
static void touch_sync()
{
    if (touch.up_p && touch_push_button())
        touch.up_p = 0;
    if (touch.up_xy && !touch.up_p && touch_push_motion())
        touch.up_xy = 0;
    touch.owes = touch.up_p || touch.up_xy;
}

// The panel is gone, and the finger on it will never be told to leave.
static void touch_lost()
{
    close(Touch_FD);
    Touch_FD = -1;
    Ready_Watch(READY_TOUCH, 0);
    Log_Output(LOG_LINK, MOD_START, "Touch Panel Closed.");
    touch.up_p = touch.tp;
    touch.tp = touch.up_xy = 0;
    touch_sync();
}

void Touch_Record(int type, int code, int value)
{
    // A raw value is at most the resolution; rubbish must not overflow the arithmetic.
    const int raw = std::clamp(value, -Touch_Resolution, 2 * Touch_Resolution);
    if (type == EV_KEY && (code == BTN_TOUCH || code == BTN_LEFT)) {
        touch.up_p = 1;
        touch.tp = value;
    } else if (type == EV_ABS && code == ABS_X) {
        touch.raw_x = raw * SCREEN_W / Touch_Resolution;
        touch.tx = touch_screen_x(raw);
        touch.up_xy = 1;
    } else if (type == EV_ABS && code == ABS_Y) {
        touch.raw_y = raw * SCREEN_H / Touch_Resolution;
        touch.ty = touch_screen_y(raw);
        touch.up_xy = 1;
    } else if (type == EV_SYN) {
        touch_sync();
    }
}

static int touch_u16(const uint8_t* p)
{
    uint16_t v; // the kernel writes in processor order
    memcpy(&v, p, sizeof v);
    return v;
}

static int touch_s32(const uint8_t* p)
{
    int32_t v;
    memcpy(&v, p, sizeof v);
    return v;
}

static void touch_read_all()
{
    uint8_t record[sizeof(input_event) + RECORD_SIZE];
    while (!touch.owes) {
        const ssize_t n = read(Touch_FD, record, touch.record_size);
        if (n < 0 && errno != EAGAIN)
            touch_lost();
        if (n <= 0)
            return;
        if (size_t(n) != touch.record_size)
            continue;
        const uint8_t* body =
            record + touch.record_size - 8; // behind the time stamp, whatever its size
        Touch_Record(touch_u16(body), touch_u16(body + 2), touch_s32(body + 4));
    }
}

bool Touch_IsDown()
{
    return touch.tp != 0;
}

void Touch_Poll(int elapsed_ms)
{
    if (touch.owes)
        touch_sync();
    if (Touch_FD >= 0) {
        if (!Ready_IsQuiet(READY_TOUCH))
            touch_read_all();
        return;
    }
    touch.retry_ms += elapsed_ms;
    if (touch.retry_ms < RETRY_MS)
        return;
    touch_open();
    touch.retry_ms = 0;
}

bool Touch_IsFirstPoint(int ax, int ay)
{
    return ax >= 0 && ax <= FIRST_MAX && ay >= 0 && ay <= FIRST_MAX;
}

bool Touch_IsSecondPoint(int bx, int by)
{
    return bx >= SECOND_MIN_X && bx < SCREEN_W && by >= SECOND_MIN_Y && by < SCREEN_H;
}

static void log_calibration()
{
    Log_Output(LOG_LIFE, MOD_CALIBRATION, "Touch Panel Calibration: AX=%d AY=%d BX=%d BY=%d",
               SYS_TouchScreen_AX, SYS_TouchScreen_AY, SYS_TouchScreen_BX, SYS_TouchScreen_BY);
}

void Touch_LoadCalibration()
{
    SYS_TouchScreen_AX = SYS_TouchScreen_AY = 50;
    SYS_TouchScreen_BX = 750;
    SYS_TouchScreen_BY = 550;
    uint8_t e[8];
    if (I2cEepromService_ReadElem(EEPROM_TOUCH_CALIBRATION, sizeof e, e) == sizeof e) {
        const int ax = e[0] << 8 | e[1], ay = e[2] << 8 | e[3];
        const int bx = e[4] << 8 | e[5], by = e[6] << 8 | e[7];
        if (Touch_IsFirstPoint(ax, 0))
            SYS_TouchScreen_AX = ax;
        if (Touch_IsFirstPoint(0, ay))
            SYS_TouchScreen_AY = ay;
        if (Touch_IsSecondPoint(bx, SCREEN_H - 1))
            SYS_TouchScreen_BX = bx;
        if (Touch_IsSecondPoint(SCREEN_W - 1, by))
            SYS_TouchScreen_BY = by;
    }
    log_calibration();
}

TouchPoints Touch_GetCalibration()
{
    return {SYS_TouchScreen_AX, SYS_TouchScreen_AY, SYS_TouchScreen_BX, SYS_TouchScreen_BY};
}

void Touch_SetCalibration(const TouchPoints& points)
{
    SYS_TouchScreen_AX = points.ax;
    SYS_TouchScreen_AY = points.ay;
    SYS_TouchScreen_BX = points.bx;
    SYS_TouchScreen_BY = points.by;
}

int Touch_StoreCalibration()
{
    uint8_t e[8];
    int n = 0;
    for (const int value :
         {SYS_TouchScreen_AX, SYS_TouchScreen_AY, SYS_TouchScreen_BX, SYS_TouchScreen_BY}) {
        e[n++] = uint8_t(value >> 8);
        e[n++] = uint8_t(value);
    }
    log_calibration();
    if (I2cEepromService_WriteElem(EEPROM_TOUCH_CALIBRATION, sizeof e, e) != sizeof e ||
        I2cEepromService_UpdateCrc32(SYS_REGION) != 0) {
        Log_Output(LOG_LIFE, MOD_CALIBRATION, "Touch Panel Calibration: not stored");
        return -1;
    }
    return 0;
}

void Touch_RawPoint(int x, int y, int* raw_x, int* raw_y)
{
    if (Touch_FD >= 0 && x == touch.tx && y == touch.ty) {
        *raw_x = touch.raw_x;
        *raw_y = touch.raw_y;
        return;
    }
    const TouchPoints p = Touch_GetCalibration();
    *raw_x = (x - 50) * (p.bx - p.ax) / 700 + p.ax;
    *raw_y = (y - 50) * (p.by - p.ay) / 500 + p.ay;
}

void SetTouchBeep()
{
    (void)ktr_shell("/bin/echo -ne \"\\r\" > /dev/ttyS2"); // without a buzzer the line goes nowhere
    (void)ktr_shell(GL_TouchBuzz ? "/bin/echo -ne \"GO7\\r\" > /dev/ttyS2"
                                 : "/bin/echo -ne \"GO6\\r\" > /dev/ttyS2");
}
