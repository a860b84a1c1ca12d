// font: the ten bitmap fonts of the user interface, rendered from one family of outlines.
#pragma once
#include <string>

// Write DIR/font.dat (coverage of all glyphs) and DIR/font_ofs.dat (heights and offsets). Returns
// 0, or -1 after a message on standard error when an outline font is missing or a file can't be
// written.
int FONT_Write(const std::string& dir);
