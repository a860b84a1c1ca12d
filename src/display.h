// display: how the display tells the video library of its events. Apart from all else: the header
// of the window system brings names that are ours as well.
#pragma once

// The descriptor that becomes readable with them; 0 where the driver has none to name.
int Display_Descriptor();
// True when some of them were read along with something else and wait in the process.
bool Display_HasEvents();
