// hsl: a colour by hue, saturation and luminance.
#pragma once

// 0x00RRGGBB of a hue in degrees, 0 and 360 being red, and a saturation and luminance in percent.
// A hue turns round, the others are cut to 0..100; what is not a number counts as 0.
unsigned RgbOfHsl(double hue, double saturation, double luminance);
