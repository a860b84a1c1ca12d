// The touch panel: whatever its device and the calibration in the EEPROM say, a finger is on the
// screen, and the last contact that the panel told is the one that is known. The input: the eight
// bytes of the calibration, then what is read from the device.
#include "i2c.h"
#include "tdl.h"
#include "touch.h"
#include "types.h"
#include <SDL.h>
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

static void Check(bool ok)
{
    if (!ok)
        abort();
}

static void Begin()
{
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    Check(SDL_Init(SDL_INIT_VIDEO) == 0 && SDL_SetVideoMode(SCREEN_W, SCREEN_H, 32, 0));
}

static void CheckEvents()
{
    SDL_Event e;
    while (SDL_PollEvent(&e)) {
        const bool is_button = e.type == SDL_MOUSEBUTTONDOWN || e.type == SDL_MOUSEBUTTONUP;
        if (is_button || e.type == SDL_MOUSEMOTION) {
            const int x = is_button ? e.button.x : e.motion.x;
            const int y = is_button ? e.button.y : e.motion.y;
            Check(x >= 0 && x < SCREEN_W && y >= 0 && y < SCREEN_H);
        }
    }
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const bool is_begun = (Begin(), true);
    constexpr size_t CALIBRATION = 8;
    if (!is_begun || size < CALIBRATION)
        return 0;
    Check(I2cEepromService_WriteElem(EEPROM_TOUCH_CALIBRATION, CALIBRATION, data) >= 0);
    Touch_LoadCalibration();
    int fd[2];
    Check(pipe2(fd, O_NONBLOCK | O_CLOEXEC) == 0);
    Touch_FD = fd[0];
    Touch_Reset();
    for (data += CALIBRATION, size -= CALIBRATION; size > 0;) {
        const ssize_t n = write(fd[1], data, std::min<size_t>(size, 4096));
        Check(n > 0);
        data += n;
        size -= size_t(n);
        // As many passes as the queue of events needs.
        for (int pass = 0; pass < 8; pass++) {
            Touch_Poll(10);
            CheckEvents();
        }
    }
    close(fd[1]); // the panel is pulled out
    Touch_Poll(10);
    CheckEvents();
    if (Touch_FD >= 0)
        close(Touch_FD);
    Touch_FD = -1;
    return 0;
}
