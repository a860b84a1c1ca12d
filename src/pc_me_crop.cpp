#include "pc_me_crop.h"
#include <algorithm>
#include <cmath>
#include "safeguards.h"

constexpr int FRESH_MS = 500; // as the boxes keep a change of the operator's

double Crop_Place(CropRun& run, int knob, double v)
{
    const CropKnob& k = crop_knobs[knob];
    const double place = std::clamp(v, k.min, k.max);
    for (const auto& m : k.moved) {
        if (!m.sense)
            continue;
        run.at[m.edge] = m.sense * place;
        run.fresh_ms[m.edge] = FRESH_MS;
    }
    return place;
}

double Crop_Turn(CropRun& run, int knob, double told, double by)
{
    const CropEdge shown = crop_knobs[knob].shown;
    const double from = run.fresh_ms[shown] > 0 ? run.at[shown] : told;
    return std::isfinite(from + by) ? Crop_Place(run, knob, from + by) : NAN;
}

double Crop_Value(int sense, double place)
{
    constexpr double HALF_A_HUNDREDTH = 0.005;
    return std::fabs(place) < HALF_A_HUNDREDTH ? 0.0 : sense * place;
}

void Crop_Pass(CropRun& run, int elapsed_ms)
{
    for (int& ms : run.fresh_ms)
        ms = std::max(0, ms - elapsed_ms);
}
