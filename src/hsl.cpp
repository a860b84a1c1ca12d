#include "hsl.h"
#include <algorithm>
#include <cmath>

#include "safeguards.h"

static unsigned channel(double v)
{
    return unsigned(std::lround(255 * std::clamp(v, 0.0, 1.0)));
}

static double share(double percent)
{
    return std::isfinite(percent) ? std::clamp(percent, 0.0, 100.0) / 100 : 0;
}

unsigned RgbOfHsl(double hue, double saturation, double luminance)
{
    double turned = std::isfinite(hue) ? std::fmod(hue, 360) : 0;
    if (turned < 0)
        turned += 360;
    const double light = share(luminance);
    const double chroma = (1 - std::fabs(2 * light - 1)) * share(saturation);
    const double sector = turned / 60;
    const double second = chroma * (1 - std::fabs(std::fmod(sector, 2) - 1));
    const double dark = light - chroma / 2;
    const double table[][3] = {{chroma, second, 0}, {second, chroma, 0}, {0, chroma, second},
                               {0, second, chroma}, {second, 0, chroma}, {chroma, 0, second}};
    const double* part = table[int(sector) % 6];
    return channel(part[0] + dark) << 16 | channel(part[1] + dark) << 8 | channel(part[2] + dark);
}
