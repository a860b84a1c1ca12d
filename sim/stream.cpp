#include "stream.h"
#include "link.h"
#include "log.h"
#include "region.h"
#include "system.h"
#include "text.h"
#include "timeline.h"
#include <algorithm>
#include <bitset>
#include <map>

static constexpr unsigned ID_SELECTION = 0x000200AA;
static constexpr unsigned ID_POSITION = 0x001000AA;
static constexpr unsigned ID_EFFECT = 0x001100AA;
static constexpr unsigned ID_JOIN = 0x008200AA; // on or off, region code, 1, 0
static constexpr unsigned ID_SEND =
    0x008100AA; // region code, or nothing: all that have been joined

enum { CMD_SUBSCRIBE = 1, CMD_END = 2, CMD_REGION = 4, CMD_REPEAT = 5, CMD_DATA = 132 };

static constexpr size_t BACKLOG_BYTES = 1 << 16; // who reads so slowly gets no cursor

namespace
{
struct Follower {
    bool selection = false;
    bool position = false;
    bool effect = false;
    std::bitset<REGION_COUNT> regions;
};
} // namespace

static struct {
    std::map<int, Follower> followers; // by client, from its first command to its end
} st;

// --- Bytes ---

static void put8(std::string& data, int value)
{
    data += char(value);
}

static void put16(std::string& data, int value)
{
    put8(data, value >> 8 & 0xFF);
    put8(data, value & 0xFF);
}

static int stream_bcd(int number)
{
    return number / 10 * 16 + number % 10;
}

// Hours, minutes, seconds and frames, two decimal digits each; the first bit is the sign.
static void put_time(std::string& data, int frames)
{
    const int rate = System_FrameRate();
    const int count = std::abs(frames);
    const int seconds = count / rate;
    put8(data, stream_bcd(seconds / 3600 % 24) | (frames < 0 ? 0x80 : 0));
    put8(data, stream_bcd(seconds / 60 % 60));
    put8(data, stream_bcd(seconds % 60));
    put8(data, stream_bcd(count % rate));
}

// The length counts itself, command, id and data. It goes out high byte first, though a panel's
// own frames have the low byte first.
static std::string stream_frame(unsigned id, const std::string& data)
{
    std::string frame;
    put16(frame, int(data.size()) + 7);
    put8(frame, CMD_DATA);
    for (int shift = 0; shift < 32; shift += 8)
        put8(frame, int(id >> shift & 0xFF));
    frame += data;
    frame += "\xFF\xFF";
    return frame;
}

static void stream_send(int client, const std::string& frame)
{
    Log_Traffic(client, '>', "bin " + Text_Hex(frame));
    Link_SendBytes(client, frame);
}

// --- Frames ---

static std::string stream_selection()
{
    std::string data(8, '\0');
    data[0] = char(Regions()[size_t(Timeline_Reference())].code);
    for (int i = 0; i < REGION_COUNT; ++i) {
        const Region& region = Regions()[size_t(i)];
        if (Timeline_IsSelected(i))
            data[size_t(region.select_byte)] |= char(1 << region.select_bit);
    }
    return stream_frame(ID_SELECTION, data);
}

static void put_keyframes(std::string& data, const std::vector<Keyframe>& keys)
{
    for (const Keyframe& key : keys)
        put16(data, std::min(key.duration, KEYFRAME_FRAMES) | (key.has_pause ? 0x8000 : 0));
}

static std::string stream_effect(int index)
{
    const Timeline& line = Timeline_Of(index);
    const Effect& effect = line.effect;
    const int start = TIMELINE_ORIGIN_SECONDS * System_FrameRate() + line.delay();
    std::string name = effect.name;
    name.resize(8, '\0'); // a shorter name shows without blanks behind it
    std::string data;
    put8(data, Regions()[size_t(index)].code);
    put16(data, line.number);
    data += name;
    put8(data, line.is_locked ? 2 : 0);
    put16(data, int(TIMELINE_KEYFRAMES - effect.keys.size()));
    put16(data, 0);
    put16(data, int(effect.keys.size()));
    put_time(data, start);
    put_time(data, line.delay());
    put_time(data, start + effect.duration());
    put_time(data, effect.duration());
    put16(data, effect.loop_first);
    put16(data, effect.loop_last);
    put8(data, effect.loop_count);
    put_keyframes(data, effect.keys);
    return stream_frame(ID_EFFECT, data);
}

static std::string stream_position(int index)
{
    const Timeline& line = Timeline_Of(index);
    std::string data;
    put8(data, Regions()[size_t(index)].code);
    put16(data, 0);
    put_time(data, TIMELINE_ORIGIN_SECONDS * System_FrameRate() + line.time);
    put16(data, line.key());
    put8(data, line.run == 0 ? 0 : line.run > 0 ? 0x01 : 0x11);
    put8(data, 0);
    put8(data, (line.is_loop_on ? 0x80 : 0) | line.loops_left);
    return stream_frame(ID_POSITION, data);
}

// --- To all that follow ---

void Stream_Selection()
{
    const std::string frame = stream_selection();
    for (const auto& [client, follower] : st.followers)
        if (follower.selection)
            stream_send(client, frame);
}

void Stream_Effect(int region)
{
    const std::string frame = stream_effect(region);
    for (const auto& [client, follower] : st.followers)
        if (follower.effect && follower.regions[size_t(region)])
            stream_send(client, frame);
    Stream_Position(region);
}

// A moving cursor isn't logged: it would hide everything else.
void Stream_Position(int region)
{
    const std::string frame = stream_position(region);
    const bool is_moving = Timeline_Of(region).run != 0;
    for (const auto& [client, follower] : st.followers) {
        if (!follower.position || !follower.regions[size_t(region)])
            continue;
        if (!is_moving)
            stream_send(client, frame);
        else if (Link_Waiting(client) < BACKLOG_BYTES)
            Link_SendBytes(client, frame);
    }
}

// --- From clients ---

static void stream_send_region(int client, const Follower& follower, int region)
{
    if (follower.effect)
        stream_send(client, stream_effect(region));
    if (follower.position)
        stream_send(client, stream_position(region));
}

static void stream_subscribe(int client, unsigned id, bool on)
{
    Follower& follower = st.followers[client];
    if (id == ID_SELECTION)
        follower.selection = on;
    else if (id == ID_POSITION)
        follower.position = on;
    else if (id == ID_EFFECT)
        follower.effect = on;
    if (id == ID_SELECTION && on)
        stream_send(client, stream_selection());
}

// A panel also joins codes that no region has; they cost nothing.
static void stream_region(int client, unsigned id, std::string_view data)
{
    Follower& follower = st.followers[client];
    const size_t code_at = id == ID_JOIN ? 1 : 0;
    const int region = data.size() > code_at ? Region_ByCode((unsigned char)data[code_at]) : -1;
    if (id == ID_JOIN && region >= 0)
        follower.regions[size_t(region)] = data[0] != 0;
    if (id != ID_SEND)
        return;
    for (int i = 0; i < REGION_COUNT; ++i)
        if (follower.regions[size_t(i)] && (data.empty() || i == region))
            stream_send_region(client, follower, i);
}

void Stream_Receive(int client, int command, unsigned id, std::string_view data)
{
    switch (command) {
    case CMD_SUBSCRIBE: return stream_subscribe(client, id, true);
    case CMD_END: return stream_subscribe(client, id, false);
    case CMD_REGION: return stream_region(client, id, data);
    case CMD_REPEAT:
        if (id == ID_SELECTION)
            stream_send(client, stream_selection());
        return;
    default: Log_Note("client %d: no such binary command: %d", client, command);
    }
}

void Stream_ForgetClient(int client)
{
    st.followers.erase(client);
}

void Stream_Forget()
{
    st.followers.clear();
}
