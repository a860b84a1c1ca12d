#include "timecode.h"
#include "global.h"
#include "text.h"
#include <cstdlib>
#include <cstring>

#include "safeguards.h"

namespace
{
constexpr int TC_FIELDS = 4;
constexpr int TC_TEXT = 16; // a text with its terminator
constexpr int DEFAULT_RATE = 60;
constexpr int ANY = -1;
constexpr unsigned BTC_NEGATIVE = 0x80000000u;

struct Timecode {
    bool is_negative = false;
    int field[TC_FIELDS] = {}; // hours, minutes, seconds, frames; what a text leaves out is 0
};

// Frames a second of the switcher's format: interlaced formats count frames or, when the caller
// wants them singly, fields.
struct Rate {
    int size = 0;
    int scan = 0;
    int freq = 0;
    int frames = 0;
    int fields = 0;
};
constexpr Rate rates[] = {
    {.size = 0, .scan = ANY, .freq = ANY, .frames = 30, .fields = 30},
    {.size = 1, .scan = ANY, .freq = ANY, .frames = 25, .fields = 25},
    {.size = 3, .scan = 1, .freq = 0, .frames = 24, .fields = 24},
    {.size = 3, .scan = 1, .freq = 1, .frames = 24, .fields = 24},
    {.size = 3, .scan = 1, .freq = 2, .frames = 25, .fields = 25},
    {.size = 3, .scan = 1, .freq = 3, .frames = 30, .fields = 30},
    {.size = 3, .scan = 1, .freq = 4, .frames = 30, .fields = 30},
    {.size = 3, .scan = 0, .freq = 5, .frames = 25, .fields = 25},
    {.size = 3, .scan = 0, .freq = 6, .frames = 30, .fields = 30},
    {.size = 3, .scan = 0, .freq = 7, .frames = 30, .fields = 30},
    {.size = 3, .scan = 2, .freq = 5, .frames = 25, .fields = 50},
    {.size = 3, .scan = 2, .freq = 6, .frames = 30, .fields = 60},
    {.size = 2, .scan = ANY, .freq = 5, .frames = 25, .fields = 50},
    {.size = 2, .scan = ANY, .freq = 6, .frames = 30, .fields = 60},
    {.size = 4, .scan = 2, .freq = 5, .frames = 25, .fields = 50},
    {.size = 4, .scan = 2, .freq = 6, .frames = 30, .fields = 60},
    {.size = 4, .scan = 4, .freq = 5, .frames = 25, .fields = 50},
    {.size = 4, .scan = 4, .freq = 6, .frames = 30, .fields = 60},
};
} // namespace

static char FrameBuf[32]; // result of Frame2TC and Frame2TC_SWR
static char BtcBuf[32];   // result of BTC2TC

// The rate comes from a tally: never divide by one that is not there yet.
static int tc_rate()
{
    return SYS_FrameRate > 0 ? SYS_FrameRate : DEFAULT_RATE;
}

// Cut a text into fields, the last of which is frames. False when one is out of range at this rate.
static bool tc_parse(const char* text, int rate, Timecode& tc)
{
    char buf[TC_TEXT];
    CopyText(buf, text);
    char* p = buf;
    tc.is_negative = *p == '-';
    if (tc.is_negative)
        p++;

    long value[TC_FIELDS] = {};
    int fields = 0;
    while (p && fields < TC_FIELDS) {
        char* separator = strchr(p, ':');
        if (separator)
            *separator++ = '\0';
        value[fields++] = strtol(p, nullptr, 10);
        p = separator;
    }

    const int limit[TC_FIELDS] = {24, 60, 60, rate};
    for (int i = 0; i < fields; i++) {
        const int to = TC_FIELDS - fields + i;
        if (value[i] < 0 || value[i] >= limit[to])
            return false;
        tc.field[to] = int(value[i]);
    }
    return true;
}

static int tc_to_frame(const char* text, int rate)
{
    Timecode tc;
    if (!tc_parse(text, rate, tc))
        return TC_BAD;
    const int frame = ((tc.field[0] * 60 + tc.field[1]) * 60 + tc.field[2]) * rate + tc.field[3];
    return tc.is_negative ? -frame : frame;
}

static const char* tc_from_frame(int frame, int n, int rate)
{
    const char* sign = frame < 0 ? "-" : "";
    const unsigned r = unsigned(rate);
    const unsigned count = frame < 0 ? 0u - unsigned(frame) : unsigned(frame);
    const unsigned seconds = count / r;
    const unsigned ff = count % r, ss = seconds % 60, mm = seconds / 60 % 60, hh = seconds / 3600;
    switch (n) {
    case 1: PrintText(FrameBuf, "%s%02u", sign, ff); break;
    case 2: PrintText(FrameBuf, "%s%02u:%02u", sign, ss, ff); break;
    case 3: PrintText(FrameBuf, "%s%02u:%02u:%02u", sign, mm, ss, ff); break;
    case 4: PrintText(FrameBuf, "%s%02u:%02u:%02u:%02u", sign, hh, mm, ss, ff); break;
    default: break;
    }
    return FrameBuf;
}

int TC2Frame(const char* text)
{
    return tc_to_frame(text, tc_rate());
}

const char* Frame2TC(int frame, int n)
{
    return tc_from_frame(frame, n, tc_rate());
}

int TC2Frame_SWR(const char* text, int mode)
{
    return tc_to_frame(text, GetFrameNum_SWR(mode));
}

const char* Frame2TC_SWR(int frame, int n, int mode)
{
    return tc_from_frame(frame, n, GetFrameNum_SWR(mode));
}

int GetFrameNum_SWR(int mode)
{
    for (const Rate& r : rates) {
        if (r.size == SYS_Format_Size && (r.scan == ANY || r.scan == SYS_Format_Scan) &&
            (r.freq == ANY || r.freq == SYS_Format_Freq))
            return mode ? r.fields : r.frames;
    }
    return tc_rate();
}

unsigned TC2BTC(const char* text)
{
    Timecode tc;
    if (!tc_parse(text, tc_rate(), tc))
        return unsigned(TC_BAD);
    unsigned btc = 0;
    for (const int field : tc.field)
        btc = btc << 8 | unsigned(field / 10 << 4 | field % 10);
    return tc.is_negative ? btc | BTC_NEGATIVE : btc;
}

const char* BTC2TC(unsigned btc, int n)
{
    const char* sign = btc & BTC_NEGATIVE ? "-" : "";
    // The bits above the digits are flags of the switcher.
    const unsigned hh = btc >> 24 & 0x3F, mm = btc >> 16 & 0x7F, ss = btc >> 8 & 0x7F,
                   ff = btc & 0x3F;
    switch (n) {
    case 1: PrintText(BtcBuf, "%s%02X", sign, ff); break;
    case 2: PrintText(BtcBuf, "%s%02X:%02X", sign, ss, ff); break;
    case 3: PrintText(BtcBuf, "%s%02X:%02X:%02X", sign, mm, ss, ff); break;
    case 4: PrintText(BtcBuf, "%s%02X:%02X:%02X:%02X", sign, hh, mm, ss, ff); break;
    default: break;
    }
    return BtcBuf;
}
