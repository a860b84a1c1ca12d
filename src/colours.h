// colours: the colours that mean the same wherever they are drawn, as 0x00RRGGBB. A shade that one
// object alone uses stays with that object.
#pragma once

// --- Ink ---
constexpr unsigned WHITE = 0xFFFFFF; // on dark ground: captions that are off, text, marks
constexpr unsigned BLACK = 0x000000; // on a light face; also the ground of the work area
constexpr unsigned GREY = 0x808080;  // caption of what is disabled and off
constexpr unsigned PULLDOWN_DISABLED = 0x313A41; // the same on a pull-down
constexpr unsigned TEAL = 0x00DDD4;              // tree and status text, progress
constexpr unsigned LABEL = 0x9FD8DC;             // names of what a status cell shows
constexpr unsigned LIST_TITLE = 0xB4FFC8;        // over the columns of a list
constexpr unsigned BOX_VALUE = 0x78FFFF;         // of a number box

// --- Emphasis ---
constexpr unsigned ORANGE = 0xE48B1B;      // what is current, active or partly chosen
constexpr unsigned ORANGE_DARK = 0xC86E05; // the middle line of an orange bar
constexpr unsigned RED = 0xFF0000;         // a lamp that is on, an error
constexpr unsigned GREEN = 0x00FF00;
constexpr unsigned YELLOW = 0xFFFF00; // not decided yet
constexpr unsigned CYAN = 0x00FFFF;   // cursors, marks of a bar, what is selected or the reference
constexpr unsigned LAMP_OFF = 0x282828;
constexpr unsigned NO_TALLY_MARK = 0xFFC800; // for developers: never answered

// --- Ground and frames ---
constexpr unsigned FRAME_GROUND = 0x1F1F1F;  // round the work area
constexpr unsigned HEADER_GROUND = 0x003241; // of titles, tracks and wells
constexpr unsigned BAR_GROUND = 0x006464;    // of a knob's bar
constexpr unsigned GROUP_FRAME = 0x3C3C3C;
constexpr unsigned CELL_FRAME = 0x4D4D4D;   // of a status cell or a block of the timeline
constexpr unsigned SEPARATOR = 0xB4B4B4;    // thin lines and outlines of panels
constexpr unsigned RAISED_LIGHT = 0xBEBEBE; // a dark raised frame: top and left
constexpr unsigned RAISED_DARK = 0x1E1E1E;  // bottom and right
