// config: the unit's ini file.
#pragma once

// Read "tm3.ini" of the working directory into the variables of global. Echoes accepted keys on
// standard output. Returns 0, or -1 when the file cannot be opened.
int LoadIniFile();
// One line of the file, as the file reader hands it on; for tests and the fuzz target. The text is
// changed.
void IniLine(char* line);
// Forget what earlier lines allowed (the debug keys of the effects units); LoadIniFile starts with
// it.
void IniBegin();
