// clip_output: the twenty outputs of a frame memory with a clip store, "FM1" to "FM20". They show a
// still or clip of the first store, play it at the frame rate of the format, and two processors
// record. What panels hear of it, below "Frame Mem 2@Clip/Still@":
//   Output Status@FM1   "0," black, "1," through, "2,/NEWS/OPENING.SFH"
//   Play@FM1            "STATE,FRAME,START,STOP": state 1 runs; frames from 0
//   Record@PROC1        "STATE,FRAME,LENGTH,OUTPUT": state 1 records; output from 1
// Play Mode, Variable Speed, Start TC and Stop TC are told as one number, the length and name of a
// recording by the output's processor.
#pragma once
#include <cstdint>
#include <string>

void ClipOutput_Install(); // all black
// A panel's put below "Frame Mem 2@" that is a command. False: a value like others.
bool ClipOutput_Put(const std::string& path, const std::string& value);
// The switcher itself plays a clip on output n, from 0; nothing when the store has none of that
// path.
void ClipOutput_Start(int n, const std::string& path, int start, int stop, bool is_loop);
int64_t ClipOutput_Tick(int64_t now); // returns the time of the next frame
// The clip has other frames now: outputs that show it begin it anew.
void ClipOutput_Renewed(const std::string& path);
