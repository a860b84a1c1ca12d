// One pass of the screen saver: with nothing to do, and a step of each pattern. A slow unit must
// still follow a touch at once, so a step costs less than a copy of the screen; the flush, which
// comes on top, is another one.
#include "bench_support.h"
#include "device.h"
#include "global.h"
#include "page.h"
#include "saver.h"
#include "text.h"

namespace
{
void off()
{
    if (IsSaver())
        EndScreenSaver();
    GL_ScreenSaverInterval = 0;
    ScreenSaver(10);
}

template <int MODE> void step()
{
    GL_ScreenSaverInterval = 1;
    if (GL_ScreenSaverPTN_Mode != MODE)
        EndScreenSaver();
    GL_ScreenSaverPTN_Mode = MODE;
    ScreenSaver(IsSaver() ? 10 : 5000);
}
} // namespace

int main(int argc, char** argv)
{
    static constexpr BenchCase cases[] = {
        {.name = "pass, switched off", .once = off, .limit_copies = 0.01},
        {.name = "plain text", .once = step<0>, .limit_copies = 1},
        {.name = "mode 1", .once = step<1>, .limit_copies = 1},
        // These two compute rather than copy: where memory is fast they count for more.
        {.name = "mode 4", .once = step<4>, .limit_copies = 1.4},
        {.name = "mode 5", .once = step<5>, .limit_copies = 1.4},
        {.name = "mode 7", .once = step<7>, .limit_copies = 1},
        {.name = "mode 9", .once = step<9>, .limit_copies = 1},
        {.name = "mode 17", .once = step<17>, .limit_copies = 1},
    };
    Bench_Screen();
    Page_Reset();
    SYS_RefSwrType = DEVTYPE_KTR40E;
    CopyText(GL_Scr_disp_name[1], "STUDIO 4 GALLERY");
    return Bench_Main(argc, argv, cases);
}
