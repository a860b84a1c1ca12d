// timeline: the effect that each region has loaded and where it stands: running, pauses, loops,
// delay, the selection of regions, and edits at the cursor. Stored registers belong to store,
// frames to stream. All times are whole frames of the first switcher's format.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

constexpr size_t TIMELINE_KEYFRAMES = 496;    // more don't fit into a panel's 1040 bytes
constexpr int KEYFRAME_FRAMES = 2047;         // of one keyframe: 11 bits on the wire
constexpr int LOOPS_MAX = 127;                // 7 bits
constexpr int TIMELINE_ORIGIN_SECONDS = 3600; // every time axis begins at 01:00:00:00

struct Keyframe {
    int duration = 0; // to the next one
    bool has_pause = false;
    bool operator==(const Keyframe&) const = default;
};

struct Effect {
    std::string name;
    std::vector<Keyframe> keys;
    int delay = 0;
    int loop_first = 0; // keyframes from 1; 0: no loop
    int loop_last = 0;
    int loop_count = 0;          // passes, 0: endless
    int duration() const;        // from the first keyframe to the end
    int position(int key) const; // of a keyframe from 1, from the first keyframe on
};

struct Timeline {
    int number = 0; // register that the effect was recalled from; 0: none
    bool is_locked = false;
    Effect effect;
    Effect undo;  // before the last edit
    int time = 0; // from the start of the delay on
    int run = 0;  // 1 forward, -1 in reverse
    bool is_loop_on = false;
    int loops_left = 0;             // passes, the one under way included
    bool is_ping_pong = false;      // the ends turn it round
    bool is_reversed = false;       // a macro runs it from the end
    bool is_normal_reverse = false; // and each run of a macro's turns that round
    bool is_delay_on = false;
    bool is_selected = false;
    int delay() const; // the one in force
    int end() const;
    int key() const; // the keyframe at or before the cursor, 0 when there is none
};

void Timeline_Install(); // nothing loaded, M/E-1 and P/P selected, M/E-1 the reference
const Timeline& Timeline_Of(int region);

// --- Selection ---
bool Timeline_IsSelected(int region);
void Timeline_Select(int region, bool on);
int Timeline_Reference();
void Timeline_SetReference(int region); // selects it, too
std::vector<int> Timeline_Selected();

// --- Effects ---
void Timeline_Load(int region, int number, const Effect& effect, bool is_locked); // rewinds
void Timeline_SetHead(int region, int number, const std::string& name, bool is_locked);

// --- Run control; regions without a keyframe don't move ---
void Timeline_Run(const std::vector<int>& regions, int direction); // from the end it starts over
void Timeline_RunAsSet(const std::vector<int>& regions);           // in the direction that was set
void Timeline_SetReversed(const std::vector<int>& regions, bool on);
void Timeline_SetNormalReverse(const std::vector<int>& regions, bool on);
void Timeline_Stop(const std::vector<int>& regions);
void Timeline_Rewind(const std::vector<int>& regions);
void Timeline_FastForward(const std::vector<int>& regions);

// A panel's put below "Key Frame@". True: the value is shown here and not the put's own.
bool Timeline_Put(const std::string& path, const std::string& value);
int64_t Timeline_Tick(int64_t now); // returns the time of the next frame
