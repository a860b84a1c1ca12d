// cap: the key cap that all buttons share, its materials, and the marks that tell a state.
#pragma once
#include "canvas.h"
#include "family.h"

// The colours of a face, lit from straight above.
struct Face {
    Colour edge; // edge light; not seen on a pushed face
    Colour top, middle, bottom;
    Colour lip; // front of the cap, below the face
};

struct Material {
    Face up, pushed;
    bool is_tinted = false; // inner shadow in the lip's colour instead of black
};

extern const Material GRAPHITE; // a setting
extern const Material ICE;      // on
extern const Material AMBER;    // third state, armed mode
extern const Material STEEL;    // does something once
extern const Material SILVER;   // a steel key that is on
extern const Material PETROL;   // leads somewhere

struct CapShape {
    int radius = 5;
    int corners = ALL_CORNERS;
    int lip = 3;   // rows
    int width = 0; // 0: the whole canvas
};

void CAP_Draw(const Canvas& cv, const Material& material, int pushed, const CapShape& shape = {});
// Disabled: a plate without relief, of the state that the key is in.
void CAP_Flat(const Canvas& cv, int on = 0, const CapShape& shape = {});
// A sunk panel with a black rim, for entry wells and read-outs.
void CAP_Panel(const Canvas& cv, Colour top, Colour bottom, int radius = 6);

// --- Marks ---
struct Slot {
    int off_width = 22; // the unlit slot
    int height = 3;
    int x = 10, y = 5;
};
// The lamp: a short slot when off, a bar from x to the mirrored place when on, dashes in the third
// state.
void CAP_Lamp(const Canvas& cv, const State& st, const Slot& slot = {});
void CAP_Grip(const Canvas& cv, const State& st);    // lines of an action key
void CAP_Primary(const Canvas& cv, const State& st); // outline of the key that commits
void CAP_OwnFrame(const Canvas& cv, int pushed);     // the key owns the knobs
void CAP_CyanFrame(const Canvas& cv, Colour colour, int pushed = 0);

// Colour of a drawing on a key: light on dark faces, dark on ice, dim when disabled.
Colour CAP_Ink(const State& st);
