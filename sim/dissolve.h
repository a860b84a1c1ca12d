// dissolve: values on their way: a register that is recalled with a dissolve brings its numbers in
// frame by frame, all else at once. Whoever changes such a value meanwhile has it: the way ends
// there.
#pragma once
#include <cstdint>
#include <string>

void Dissolve_Install(); // nothing is on its way
// Show the value, a number after so many frames and those between on the way; 0: at once.
void Dissolve_To(const std::string& path, const std::string& value, int frames);
int64_t Dissolve_Tick(int64_t now); // returns the time of the next frame
