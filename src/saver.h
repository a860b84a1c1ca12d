// saver: the screen saver.
#pragma once

void ScreenSaver(int elapsed_ms); // count, and run when due; once a pass
int EndScreenSaver();             // wake up. Returns 1 when it was running, otherwise 0
