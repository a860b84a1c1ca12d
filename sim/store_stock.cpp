// The registers that are there at the start, so that every list has something to show: stored,
// locked and empty ones, pauses, loops and delays, the first and the last number.
#include "region.h"
#include "store_private.h"

namespace
{
struct Stock {
    StoreKind kind;
    const char* row; // name of a region or key
    int number;
    const char* name;
    bool is_locked;
};
struct EffectStock {
    const char* region;
    int number;
    int keys, frames; // apart
    int pause, loop_first, loop_last, loop_count, delay;
};
} // namespace

static const Stock stock[] = {
    {STORE_EFFECT, "M/E-1", 1, "OPENING", false},
    {STORE_EFFECT, "M/E-1", 2, "SLIDE IN", false},
    {STORE_EFFECT, "M/E-1", 3, "LOGO LOOP", true},
    {STORE_EFFECT, "M/E-1", 99, "BLACK", true},
    {STORE_EFFECT, "M/E-2", 1, "OPENING", false},
    {STORE_EFFECT, "P/P", 1, "OPENING", false},
    {STORE_EFFECT, "P/P", 2, "CREDITS", false},
    {STORE_EFFECT, "User1", 1, "AUX SWEEP", false},
    {STORE_EFFECT, "DME1", 1, "FLY IN", false},
    {STORE_EFFECT, "DME1", 2, "SPIN", false},
    {STORE_EFFECT, "DME2", 1, "FLY OUT", false},
    {STORE_EFFECT, "DME1", 101, "PAGE TURN", false},
    {STORE_EFFECT, "DME1", 102, "CUBE", true},
    {STORE_EFFECT, "DME1", 201, "DUAL FLIP", false},
    {STORE_EFFECT, "DME1", 301, "TRIPLE", false},
    {STORE_EFFECT, "DME5", 101, "SPHERE", false},
    {STORE_EFFECT, "Dev1", 1, "VTR ROLL", false},
    {STORE_EFFECT, "Dev1", 250, "SERVER CUE", false},
    {STORE_EFFECT, "P-Bus", 10, "PBUS 10", false},
    {STORE_EFFECT, "GPI", 1, "TALLY", false},
    {STORE_EFFECT, "MACRO", 1, "START", false},
    {STORE_MASTER_EFFECT, "", 1, "SHOW OPEN", false},
    {STORE_MASTER_EFFECT, "", 2, "SHOW END", true},
    {STORE_SNAPSHOT, "M/E-1", 1, "TWO SHOT", false},
    {STORE_SNAPSHOT, "M/E-1", 2, "WIDE", true},
    {STORE_SNAPSHOT, "M/E-1", 10, "WEATHER", false},
    {STORE_SNAPSHOT, "M/E-2", 1, "SPORTS", false},
    {STORE_SNAPSHOT, "P/P", 1, "STUDIO", false},
    {STORE_SNAPSHOT, "User1", 1, "AUX DAY", false},
    {STORE_SNAPSHOT, "DME1", 1, "FULL SIZE", false},
    {STORE_SNAPSHOT, "RTR", 1, "NORMAL", false},
    {STORE_MASTER_SNAPSHOT, "", 1, "MORNING", false},
    {STORE_MASTER_SNAPSHOT, "", 2, "EVENING", true},
    {STORE_WIPE, "M/E-1", 1, "CIRCLE", false},
    {STORE_WIPE, "M/E-1", 2, "STAR", true},
    {STORE_WIPE, "M/E-1", 10, "MOSAIC", false},
    {STORE_WIPE, "M/E-1 Sub", 1, "BOX", false},
    {STORE_WIPE, "M/E-4", 1, "LINE", false},
    {STORE_WIPE, "P/P", 1, "DIAGONAL", true},
    {STORE_DME, "M/E-1", 1, "PUSH", false},
    {STORE_DME, "M/E-1", 2, "SPLIT", true},
    {STORE_DME, "P/P", 1, "PAGE TURN", false},
    {STORE_KEY, "M/E-1@Key1", 1, "TITLE", false},
    {STORE_KEY, "M/E-1@Key1", 2, "LOGO", true},
    {STORE_KEY, "P/P@Key1", 1, "CLOCK", false},
    {STORE_SHOTBOX, "", 1, "INTRO", false},
    {STORE_SHOTBOX, "", 2, "BREAK", true},
    {STORE_MACRO, "", 1, "MIC CHECK", false},
    {STORE_MACRO, "", 2, "GO LIVE", true},
    {STORE_MACRO, "", 3, "OPENING", false},
    {STORE_MACRO, "", 250, "PARK", false},
};

// What the snapshots above hold; all else below their region is at its default in them.
static const struct {
    StoreKind kind;
    const char* row;
    int number;
    const char* tail;
    const char* value;
} stock_values[] = {
    {STORE_SNAPSHOT, "M/E-1", 1, "@Key1@Type@Key Type", "Linear"},
    {STORE_SNAPSHOT, "M/E-1", 1, "@Key1@Type@Key Type@Linear@Clip", "20.00"},
    {STORE_SNAPSHOT, "M/E-1", 2, "@Key1@Type@Key Type", "Wipe Pattern"},
    {STORE_SNAPSHOT, "M/E-1", 10, "@Key1@Type@Key Type", "Chroma"},
    {STORE_SNAPSHOT, "M/E-1", 10, "@Key1@Type@Key Type@Chroma@Hue", "120.00"},
    {STORE_KEY, "M/E-1@Key1", 2, "@Type@Key Type", "Color Vector"},
};

// What wipes and DME wipes hold: a pattern and one setting beside it.
static const struct {
    StoreKind kind;
    const char* row;
    int number;
    int pattern;
    const char* tail; // of another value that isn't at its default
    const char* value;
} stock_patterns[] = {
    {STORE_WIPE, "M/E-1", 1, 65, "@Edge@Border", "true"},
    {STORE_WIPE, "M/E-1", 2, 241, "@Direction@Norm/Rev", "true"},
    {STORE_WIPE, "M/E-1", 10, 177, "@Edge@Soft", "true"},
    {STORE_WIPE, "M/E-1 Sub", 1, 17, "@Edge@Soft", "true"},
    {STORE_WIPE, "M/E-4", 1, 2, "@Edge@Border", "true"},
    {STORE_WIPE, "P/P", 1, 3, "@Edge@Border", "true"},
    {STORE_DME, "M/E-1", 1, 1011, "@Edge/Direction@Border", "true"},
    {STORE_DME, "M/E-1", 2, 2021, "@Edge/Direction@Soft", "true"},
    {STORE_DME, "P/P", 1, 1301, "@Edge/Direction@Border", "true"},
};

// What the macros do.
static const struct {
    int number;
    const char* body;
} stock_macros[] = {
    {1, "\n#?,Host alone\n"
        "Event?,Snapshot,Region?,M/E-1,Register?,1\n"
        "Event?,KeyCut,ME?,M/E-1,Key?,Key1,Status?,ToOn\n"
        "Event?,Pause,Time?,30\n"
        "Event?,MECut,ME?,M/E-1\n"},
    {2, "\nEvent?,MEXpt,ME?,P/P,MEBus?,BkgdB,Xpt?,5,VideoKey?,Video,Attribute?,Normal\n"
        "Event?,MEAutoTransition,ME?,P/P,Time?,30,Direction?,Normal\n"},
    {3, "\nEvent?,TimelineRecall,Region?,M/E-1,Register?,1\n"
        "Continue?,TimelineRecall,Region?,DME1,Register?,1\n"
        "Event?,TimelineRun,Region?,M/E-1\n"
        "Continue?,TimelineRun,Region?,DME1\n"
        "Event?,Play,Device?,Dev1,Mode?,Play,Speed?,100\n"
        "Event?,Pause,Time?,60\n"
        "Event?,NextTransition,ME?,M/E-1,All?,Off,BKGD?,On,Key1?,On\n"
        "Event?,MEAutoTransition,ME?,M/E-1,Time?,15,Direction?,Normal\n"
        "Event?,AuxXpt,AuxBus?,Aux1,Xpt?,3,VideoKey?,Video\n"},
    {250, "\nEvent?,ShotBox,Register?,1\nEvent?,FadeToBlack,Time?,30\n"},
};

// The others have three keyframes, a second apart.
static const EffectStock effect_stock[] = {
    {"M/E-1", 1, 5, 45, 3, 0, 0, 0, 0},   {"M/E-1", 2, 4, 30, 0, 0, 0, 0, 15},
    {"M/E-1", 3, 6, 20, 0, 2, 5, 3, 0},   {"M/E-2", 1, 3, 60, 0, 0, 0, 0, 30},
    {"P/P", 1, 2, 150, 0, 0, 0, 0, 0},    {"P/P", 2, 8, 25, 0, 1, 8, 0, 0},
    {"DME1", 1, 10, 12, 0, 0, 0, 0, 0},   {"DME1", 2, 5, 15, 0, 1, 5, 0, 0},
    {"Dev1", 250, 2, 300, 1, 0, 0, 0, 0},
};

static Effect stock_effect(const EffectStock& s, const std::string& name)
{
    Effect effect;
    effect.name = name;
    effect.keys.assign(size_t(s.keys), Keyframe{s.frames, false});
    effect.keys.back().duration = 0;
    if (s.pause > 0)
        effect.keys[size_t(s.pause - 1)].has_pause = true;
    effect.delay = s.delay;
    effect.loop_first = s.loop_first;
    effect.loop_last = s.loop_last;
    effect.loop_count = s.loop_count;
    return effect;
}

static void stock_links()
{
    Register& open = Store_Register(Store_Kind(STORE_MASTER_EFFECT), 0, 1);
    open.links.assign(REGION_EFFECTS, 0);
    open.links[REGION_ME1] = open.links[REGION_ME1 + 1] = open.links[REGION_PP] = 1;
    Store_Register(Store_Kind(STORE_MASTER_EFFECT), 0, 2).links = {3, 0, 0, 0, 0, 2};
    Store_Register(Store_Kind(STORE_MASTER_SNAPSHOT), 0, 1).links = {1, 1, 0, 0, 0, 1};
    Store_Register(Store_Kind(STORE_MASTER_SNAPSHOT), 0, 2).links = {10};
    Register& intro = Store_Register(Store_Kind(STORE_SHOTBOX), 0, 1);
    intro.links.assign(REGION_DME1 + 1, 0);
    intro.links[REGION_ME1] = 1;
    intro.links[REGION_DME1] = 2;
    intro.is_auto_run = true;
    Store_Register(Store_Kind(STORE_SHOTBOX), 0, 2).links = {0, 0, 0, 0, 0, 2};
}

void Store_Stock()
{
    for (const Stock& s : stock) {
        Register& r = Store_Register(Store_Kind(s.kind), Store_RowOfName(Store_Kind(s.kind), s.row),
                                     s.number);
        r.exists = true;
        r.name = s.name;
        r.is_locked = s.is_locked;
        r.effect = s.kind == STORE_EFFECT
                       ? stock_effect({s.row, s.number, 3, 30, 0, 0, 0, 0, 0}, s.name)
                       : Effect{};
    }
    for (const EffectStock& s : effect_stock) {
        Effect& effect =
            Store_Register(Store_Kind(STORE_EFFECT), Region_ByName(s.region), s.number).effect;
        effect = stock_effect(s, effect.name);
    }
    for (const auto& s : stock_values)
        Store_Register(Store_Kind(s.kind), Store_RowOfName(Store_Kind(s.kind), s.row), s.number)
            .values[s.tail] = s.value;
    for (const auto& s : stock_patterns) {
        const Kind& kind = Store_Kind(s.kind);
        const int row = Store_RowOfName(kind, s.row);
        Register& r = Store_Register(kind, row, s.number);
        r.pattern = s.pattern;
        r.values[Store_PatternTail(kind)] = std::to_string(s.pattern);
        r.values[s.tail] = s.value;
    }
    Register& weather = Store_Register(Store_Kind(STORE_SNAPSHOT), REGION_ME1, 10);
    weather.hold = "AB12U1";
    weather.duration = 30;
    weather.has_dissolve = true;
    for (const auto& s : stock_macros)
        Store_Register(Store_Kind(STORE_MACRO), 0, s.number).macro = s.body;
    stock_links();
}
