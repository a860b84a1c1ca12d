// attach: which macros hang on which buttons of the panel. A panel deletes entries and says how the
// crosspoint buttons count; attaching is done at the buttons, here on the console.
#pragma once
#include <string>

void Attach_Install();
bool Attach_Put(const std::string& path, const std::string& value); // true: taken and told
// Thirteen numbers, commas between: block, button 1 and 2, mode, register, pairs, six of the place.
// An entry of the same button goes. False: they are no entry.
bool Attach_Add(const std::string& entry);
// The mode and the entries, a line each, as a file of the panel keeps them, and back: what a line
// does not name goes. A line that is neither is left out.
std::string Attach_Write();
void Attach_Load(const std::string& text);
int Attach_Macro(int block, int button1, int button2); // the register on a button; 0: none
