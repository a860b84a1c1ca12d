// bin_frame: the frames of the binary link: their layout, the commands and the streams on them. How
// frames are cut and sent belongs to netio, what a stream's data mean to those who take it.
#pragma once
#include <cstdint>

// Two bytes of length, command, id of four bytes low byte first; data; two trailer bytes.
constexpr int FRAME_HEAD = 7;
constexpr int FRAME_TRAILER = 2;
constexpr int FRAME_DATA_MAX = 1024; // of a frame that goes out

enum : int {
    BIN_SUBSCRIBE = 1,
    BIN_UNSUBSCRIBE = 2,
    BIN_SETUP = 4,
    BIN_READ = 5,
    BIN_TALLY = 132, // the one that comes in
};

constexpr uint32_t STREAM_SELECTION = 0x000200AA;
constexpr uint32_t STREAM_STATUS = 0x001000AA;
constexpr uint32_t STREAM_DATA = 0x001100AA;
// Set-up: a region joins the streams; those that have joined are sent.
constexpr uint32_t STREAM_JOIN = 0x008200AA;
constexpr uint32_t STREAM_JOINED = 0x008100AA;

// The id of a frame of at least FRAME_HEAD bytes.
constexpr uint32_t Frame_Id(const unsigned char* frame)
{
    return uint32_t(frame[3]) | uint32_t(frame[4]) << 8 | uint32_t(frame[5]) << 16 |
           uint32_t(frame[6]) << 24;
}
