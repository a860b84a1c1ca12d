// a_kf_frames: frames of the region streams as the server sends them, put together byte by byte.
#pragma once
#include "a_kf.h"
#include "message.h"
#include <array>
#include <initializer_list>
#include <string>
#include <vector>

namespace kf
{
using Bytes = std::vector<unsigned char>;

constexpr uint32_t SELECTION = 0x200AA;
constexpr uint32_t DATA = 0x1100AA;
constexpr uint32_t STATUS = 0x1000AA;

struct Code { // BCD hours, minutes, seconds, frames
    unsigned char h = 0, m = 0, s = 0, f = 0;
};
inline Code At(int frames)
{
    const auto bcd = [](int v) { return static_cast<unsigned char>(v / 10 << 4 | v % 10); };
    return {bcd(frames / 108000), bcd(frames / 1800 % 60), bcd(frames / 30 % 60), bcd(frames % 30)};
}

inline void Add16(Bytes& to, int v)
{
    to.push_back(static_cast<unsigned char>(v >> 8));
    to.push_back(static_cast<unsigned char>(v));
}

struct Data {
    int code = 0;
    int regnum = 0;
    const char* regname = "        "; // eight characters
    int flags = 0;
    int freekf = 0;
    int kfnum = -1; // -1: as many as follow
    Code start, delay, end, duration;
    int loopstart = 0, loopend = 0, loopnum = 0;
    std::vector<int> keyframes = {}; // words as on the wire
};
constexpr int PAUSE = 0x8000;

inline Bytes DataFrame(const Data& d)
{
    Bytes f = {static_cast<unsigned char>(d.code)};
    Add16(f, d.regnum);
    f.insert(f.end(), d.regname, d.regname + 8);
    f.push_back(static_cast<unsigned char>(d.flags));
    Add16(f, d.freekf);
    Add16(f, 0);
    Add16(f, d.kfnum < 0 ? int(d.keyframes.size()) : d.kfnum);
    for (const Code& c : {d.start, d.delay, d.end, d.duration})
        f.insert(f.end(), {c.h, c.m, c.s, c.f});
    Add16(f, d.loopstart);
    Add16(f, d.loopend);
    f.push_back(static_cast<unsigned char>(d.loopnum));
    for (const int word : d.keyframes)
        Add16(f, word);
    return f;
}

struct Status {
    int code = 0;
    Code time;
    int keyframe = 0;
    int run = 0;  // 0x01 running, 0x11 in reverse
    int loop = 0; // 0x80 on, the rest passes to go
};

inline Bytes StatusFrame(const Status& s)
{
    Bytes f = {static_cast<unsigned char>(s.code), 0, 0};
    f.insert(f.end(), {s.time.h, s.time.m, s.time.s, s.time.f});
    Add16(f, s.keyframe);
    f.insert(f.end(), {static_cast<unsigned char>(s.run), 0, static_cast<unsigned char>(s.loop)});
    return f;
}

// The frame lies at the very end of its memory: a read behind it does not go unseen.
inline int Send(uint32_t id, const Bytes& frame)
{
    const Bytes exact(frame.begin(), frame.end());
    return KF_Proc(MSG_BINTALLY, MsgArg(id), Arg(exact.data()), MsgArg(exact.size()), 0);
}

inline int Send(const Data& data)
{
    return Send(DATA, DataFrame(data));
}
inline int Send(const Status& status)
{
    return Send(STATUS, StatusFrame(status));
}

inline int Select(std::initializer_list<unsigned char> bytes)
{
    return Send(SELECTION, Bytes(bytes));
}

// Every region of the table, four to a ten-key button.
inline void AssignAll()
{
    int row = 0;
    for (const char* regions :
         {"M/E-1,M/E-1 Sub,M/E-2,M/E-2 Sub", "M/E-3,M/E-3 Sub,M/E-4,M/E-4 Sub",
          "M/E-5,M/E-5 Sub,P/P,P/P Sub", "User1,User2,User3,User4", "User5,User6,User7,User8",
          "DME1,DME2,DME3,DME4", "DME5,DME6,DME7,DME8", "Dev1,Dev2,Dev3,Dev4",
          "Dev5,Dev6,Dev7,Dev8", "Dev9,Dev10,Dev11,Dev12", "P-Bus,GPI,MACRO,RTR"})
        KF_RegionAssignTally(++row, regions);
}
} // namespace kf
