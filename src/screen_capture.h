// screen_capture: pictures of the screen on the memory stick.
#pragma once

// Save the screen as the first free of nine names for the page that is shown. Without a stick, or
// with all names in use, nothing happens.
void Screen_Capture();
