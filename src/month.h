// month: the short names of the months, as the log, the file lists and the hub write them.
#pragma once

// Of 1 to 12; "---" for another number.
const char* Month_Name(int number);
// 1 to 12 of "Jan" to "Dec", in this case of letters; 0 for another text.
int Month_Number(const char* name);
