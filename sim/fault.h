// fault: traffic that no switcher sends: a flood of tallies, and garbage on all links. Both are
// made as fast as the clients take it, so nothing piles up here.
#pragma once
#include <cstdint>

void Fault_Seed(unsigned seed);
void Fault_Flood(long lines);    // tallies that nobody wants, to each text client
void Fault_Garbage(int ms);      // to all clients
int64_t Fault_Tick(int64_t now); // returns the time of the next call
