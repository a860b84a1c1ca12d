// display: how the display tells the video library of its events. Apart from all else: the header
// of the window system brings names that are ours as well.
#pragma once

// Before the video library begins. The window system's library reads, as part of its start, how
// letters with accents are composed: more than half of our whole start, and nobody types them here.
void Display_Prepare();
// The descriptor that becomes readable with them; 0 where the driver has none to name.
int Display_Descriptor();
// After that: true when some of them were read along with something else and wait in the process.
bool Display_HasEvents();
