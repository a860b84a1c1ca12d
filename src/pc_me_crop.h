// pc_me_crop: the three knobs that crop a picture of the effects unit: H, V and All move opposite
// edges towards the middle and show one of them. An edge is a place on the screen from -100 to 100;
// right and top are positive. Which channels a knob acts on, and by which path, is the page's.
#pragma once

enum CropEdge : int { CROP_TOP, CROP_LEFT, CROP_RIGHT, CROP_BOTTOM, CROP_EDGES };
constexpr const char* CROP_WORDS[CROP_EDGES] = {"Top", "Left", "Right", "Bottom"}; // in the paths
constexpr double CROP_MAX = 100; // an edge at the border of the picture; 0 is the middle

struct CropKnob {
    CropEdge shown; // the edge whose place the box has
    double min;
    double max;
    struct {
        CropEdge edge;
        int sense;       // of the edge's value to the knob's; 0 ends the list
    } moved[CROP_EDGES]; // in the order of the commands
};
enum : int { CROP_H, CROP_V, CROP_ALL, CROP_KNOBS };
constexpr CropKnob crop_knobs[CROP_KNOBS] = {
    {CROP_LEFT, -CROP_MAX, 0, {{CROP_RIGHT, -1}, {CROP_LEFT, 1}}},
    {CROP_TOP, 0, CROP_MAX, {{CROP_BOTTOM, -1}, {CROP_TOP, 1}}},
    {CROP_LEFT, -CROP_MAX, 0, {{CROP_RIGHT, -1}, {CROP_LEFT, 1}, {CROP_BOTTOM, 1}, {CROP_TOP, -1}}},
};

// Where the operator has brought the edges. It runs ahead of the tallies, so that steps which come
// faster than the server answers add up; a hand that rests gives way to the server again.
struct CropRun {
    double at[CROP_EDGES] = {};
    int fresh_ms[CROP_EDGES] = {}; // time left; 0 or less: the server's value counts
};

// The place that a knob is to have: v kept to the knob's side of the middle. The run goes on from
// there. v must be finite.
double Crop_Place(CropRun& run, int knob, double v);
// The place after a turn by so much; told is what the server said last of the shown edge. Not a
// number while neither it nor a turn has told where the edge is.
double Crop_Turn(CropRun& run, int knob, double told, double by);
// The value of an edge for a place of its knob; never "-0.00".
double Crop_Value(int sense, double place);
// Time passes; with a page's MSG_REDRAW.
void Crop_Pass(CropRun& run, int elapsed_ms);
