// verbs: what a client's line does to the tree: add, read, put, remove, set, default, assign. It
// also turns the knobs and lets actions fall back.
#pragma once
#include <cstdint>
#include <string>

void Verb_Line(int client, const std::string& line);
// What the switcher does by itself as if a panel had put it; nobody is answered.
void Verb_Do(const std::string& path, const std::string& value);
// Knob 0..4 of every panel by so many detents. A path that two panels have on the knob is turned
// once.
void Verb_Knob(int knob, int detents);
void Verb_SetNg(bool on);       // puts are answered with the old value
int64_t Verb_Tick(int64_t now); // returns the time of the next action that falls back
void Verb_Forget();             // the server restarts: no pulses, no subscriptions, no knobs
