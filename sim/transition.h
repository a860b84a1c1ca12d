// transition: what takes its time on the switcher: a key that comes or goes, the transition of a
// bank, the fade to black. Each runs for its rate in frames, moves a position and shows what it has
// done: a key is on from the first frame in which it is seen to the last. Cuts land at once.
#pragma once
#include <cstdint>
#include <string>

void Transition_Install(); // nothing runs
// A panel's put. True: it starts or ends something here, and the values are shown.
bool Transition_Put(const std::string& path, const std::string& value);
// Start the next transition of a bank ("M/E-1", "M/E-1 SUB"), unless one is under way.
void Transition_Start(const std::string& bank, int frames);
// What would land on this path is over and doesn't land: somebody else decides it.
void Transition_Drop(const std::string& path);
int64_t Transition_Tick(int64_t now); // returns the time of the next frame
// What is on the air is neither stored in a key's group nor reset with it.
bool Transition_IsState(const std::string& path);
