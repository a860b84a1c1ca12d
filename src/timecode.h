// timecode: time code text and frame counts at the rate of the running format.
// Results live in static buffers that the next call overwrites.
#pragma once

constexpr int TC_BAD = 9999999; // what a text out of range gives

// "[-][[[h:]m:]s:]f" at SYS_FrameRate, at most 15 characters. A field out of range gives TC_BAD, an
// empty text 0.
int TC2Frame(const char* text);
// n = 1 frames, 2 seconds too, 3 minutes too, 4 hours too (not wrapped); any other n leaves the
// buffer as it was.
const char* Frame2TC(int frame, int n);
// The same at the switcher's rate; mode non-zero: fields a second where the format has them.
int TC2Frame_SWR(const char* text, int mode);
const char* Frame2TC_SWR(int frame, int n, int mode);
// Frames a second of the switcher's format (SYS_Format_Size, _Scan, _Freq).
int GetFrameNum_SWR(int mode);
// The same texts to and from the packed form 0xHHMMSSFF, two BCD digits a field; bit 31 is the
// sign. A text out of range gives TC_BAD, which is no BCD number.
unsigned TC2BTC(const char* text);
const char* BTC2TC(unsigned btc, int n);
