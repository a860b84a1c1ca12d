// bench_knob: what the knob column costs: a value that changes, a pass in which nothing does, a
// tally that none of its boxes wants.
#include "a_nb.h"
#include "bench_support.h"
#include "command.h"
#include "graphics.h"
#include "message.h"
#include <cstdio>
#include <initializer_list>

static constexpr NB_TBL boxes[] = {
    {.id = 1, .caption = "Clip", .type = NB_2, .min = 0, .max = 100, .cmd = "Clip"},
    {.id = 2, .caption = "Gain", .type = NB_2, .min = -100, .max = 100, .cmd = "Gain"},
    {.id = 3, .caption = "Hue", .type = NB_2, .min = 0, .max = 359.99, .cmd = "Hue"},
    {.id = 4, .caption = "Density", .type = NB_2, .min = 0, .max = 100, .cmd = "Density"},
    {.id = 5, .caption = "Filter", .type = NB_INT, .min = 1, .max = 9, .cmd = "Filter"},
    {.id = 17, .caption = "Angle", .type = NB_2, .min = 0, .max = 180, .cmd = "Angle"},
    {.id = 18, .caption = "Position", .type = NB_2, .min = 0, .max = 100, .cmd = "Position"},
    NB_END,
};

namespace
{
bool up = false; // which of two values came last

void tally(const char* path, const char* value)
{
    NB_Proc(MSG_TALLY, Arg(path), Arg(value), MsgArg(Hash(path)), 0);
}

void value_changes()
{
    up = !up;
    tally("Clip", up ? "51.25" : "48.75");
    NB_Proc(MSG_REDRAW, 10, 0, 0, 0);
}

void idle_pass()
{
    NB_Proc(MSG_REDRAW, 10, 0, 0, 0);
}

void unwanted_tally()
{
    tally("M/E-1@Key1@Type@Key Type", "Luminance");
}
} // namespace

int main(int argc, char** argv)
{
    static constexpr BenchCase cases[] = {
        {.name = "number box: tally and repaint", .once = value_changes, .limit_copies = 0.25},
        {.name = "knob column: nothing to do", .once = idle_pass, .limit_copies = 0.001},
        {.name = "knob column: a tally of no box", .once = unwanted_tally, .limit_copies = 0.002},
    };
    Bench_Screen();
    if (!G_NB_off) {
        fprintf(stderr, "no bitmaps in the run folder\n");
        return 1;
    }
    NB_Create(boxes, "Chroma");
    idle_pass();
    for (const char* path : {"Clip", "Gain", "Hue", "Density", "Filter"})
        tally(path, "5");
    return Bench_Main(argc, argv, cases);
}
