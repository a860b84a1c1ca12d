// text: what the simulator's modules do to lines and bytes. No state, no output.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

int64_t Now_Ms();           // a clock that only goes forward
void Clock_SetSpeed(int n); // it runs n times as fast as the real one; once, before it is read
// How long of the real clock so much of this one takes, rounded up.
int64_t Clock_RealMs(int64_t ms);

std::string Text_Format(const char* format, ...) __attribute__((format(printf, 1, 2)));
// The parts between the marks; an empty text is one empty part.
std::vector<std::string> Text_Split(std::string_view text, char mark);
std::string Text_Trim(std::string_view text); // without blanks, tabs and line ends on both sides
bool Text_Begins(std::string_view text, std::string_view head);
// The whole text as a finite number; *out stays untouched when it is none.
bool Text_ToNumber(const std::string& text, double* out);
bool Text_ToInt(const std::string& text, long* out);
// "*" stands for any text, "?" for one byte; everything else for itself.
bool Text_Matches(std::string_view text, std::string_view pattern);
// The same word by word for paths ("A@B"): a star stays within its word. "**@" before the pattern
// stands for one or more words.
bool Text_MatchesPath(std::string_view path, std::string_view pattern);
// The first count words of a path; the whole path when it has no more.
std::string Text_Head(std::string_view path, int count);
// Bytes as a readable text: control bytes as \n, \r, \t or \xHH; at most limit bytes are looked at.
std::string Text_Escape(std::string_view bytes, size_t limit);
std::string
Text_Unescape(std::string_view text);         // the reverse; an unknown escape is its own letter
std::string Text_Hex(std::string_view bytes); // "07 00 01"
