#include "saver.h"
#include "safeguards.h"

// The screen never sleeps yet.

void ScreenSaver(int) {}

int EndScreenSaver()
{
    return 0;
}
