// The Transition and Key/Wipe/FM/CCR pages, but for the fader curves.
#include "global.h"
#include "pc_engsetup_swr.h"

#include "safeguards.h"

#define TRANSITION SWR "Transition@"
#define LOCAL_TRANSITION LOCAL_SWR "Transition@"
#define KEY SWR "Key/Wipe/FM/CCR@"
#define LOCAL_KEY LOCAL_SWR "Key/Wipe/FM/CCR@"

static constexpr SETUPWORD words_on[] = {{"true", "On"}, {"false", "Off"}, {}};

// --- Transition ---

static SwrRows<ME_COUNT> trans_rows;
static constexpr SETUPFIELD trans_fields[] = {
    SwrField(0, TRANSITION "Key Transition@$", {.ask = SETUP_READ}), // followed all the time
    SwrField(1, TRANSITION "Bus Toggle@$", {.words = words_on}),
    SwrField(2, TRANSITION "Split Fader@$", {.words = words_on}),
    SwrField(3, TRANSITION "Default Rate@$"),
    SWR_KEY,
};
static constexpr SETUPCHOICE trans_choices[] = {
    {LOCAL_TRANSITION "Key Transition", 0},
    SwrToggle(LOCAL_TRANSITION "Bus Toggle", 1, "Off"),
    SwrToggle(LOCAL_TRANSITION "Split Fader", 2, "Off"),
    SwrKnob(3, 1),
};
static constexpr SETUPTABLE trans_page =
    SwrTable(trans_rows, SwrBanks, trans_fields, trans_choices, {.question = swr_on_air_question});
const PC_TBL pc_engsetup_switcher_transition = SetupPage_Code<trans_page>;

static SwrRows<ME_COUNT> preset_rows;
static constexpr SETUPFIELD preset_fields[] = {
    SwrField(0, TRANSITION "Preset Color Mix@Stroke@$"),
    SwrField(1, TRANSITION "Preset Color Mix@Pattern@$"),
    SwrField(2, TRANSITION "Preset Color Mix@Fill@$"),
    SWR_KEY,
};
static constexpr const char* preset_fills[] = {"Matte", "Color Bkgd 1", "Color Bkgd 2",
                                               "FM1",   "FM2",          "Black"};
static constexpr SETUPCHOICE preset_choices[] = {
    {LOCAL_TRANSITION "Preset Color Mix@Stroke", 0},
    {LOCAL_TRANSITION "Preset Color Mix@Pattern", 1},
    SwrPopup(LOCAL_TRANSITION "Preset Color Mix@Fill", 2, SwrWords<preset_fills>),
};
static constexpr SETUPTABLE preset_page =
    SwrTable(preset_rows, SwrBanks, preset_fields, preset_choices);
const PC_TBL pc_engsetup_switcher_transition_presetcolormix = SetupPage_Code<preset_page>;

static SwrRows<ME_COUNT> curve_rows;
static constexpr SETUPFIELD curve_fields[] = {
    SwrField(0, TRANSITION "Transition Curve@Mix@$"),
    SwrField(1, TRANSITION "Transition Curve@Wipe@$"),
    SwrField(2, TRANSITION "Transition Curve@DME Wipe@$"),
    SWR_KEY,
};
static constexpr const char* curves[] = {"Linear", "S Curve", "Curve1",
                                         "Curve2", "Curve3",  "Curve4"};
static constexpr SETUPCHOICE curve_choices[] = {
    SwrPopup(LOCAL_TRANSITION "Transition Curve@Mix", 0, SwrWords<curves>),
    SwrPopup(LOCAL_TRANSITION "Transition Curve@Wipe", 1, SwrWords<curves>),
    SwrPopup(LOCAL_TRANSITION "Transition Curve@DME Wipe", 2, SwrWords<curves>),
};
static constexpr SETUPTABLE curve_page =
    SwrTable(curve_rows, SwrBanks, curve_fields, curve_choices);
const PC_TBL pc_engsetup_switcher_transition_transitioncurve = SetupPage_Code<curve_page>;

// --- Key/Wipe/FM/CCR ---

static SwrRows<ME_COUNT> keywipe_rows;
static constexpr SETUPFIELD keywipe_fields[] = {
    SwrField(0, KEY "Wipe Aspect@$"),
    SwrField(1, KEY "Key Delay@$"),
    SWR_KEY,
};
static constexpr SETUPCHOICE keywipe_choices[] = {
    {LOCAL_KEY "Wipe Aspect", 0},
    SwrKnob(1, 1),
};
static constexpr SETUPTABLE keywipe_page = SwrTable(
    keywipe_rows, SwrBanks, keywipe_fields, keywipe_choices, {.question = swr_on_air_question});
const PC_TBL pc_engsetup_switcher_keywipe = SetupPage_Code<keywipe_page>;

static constexpr const char* correctors[] = {"CCR1", "CCR2", "CCR3", "CCR4"};
static SwrRows<std::size(correctors)> vproc_rows;
static constexpr SETUPFIELD vproc_fields[] = {
    SwrField(0, KEY "CCR V Proc@V Proc@$", {.words = words_on}),
    SwrField(1, KEY "CCR V Proc@Luminance@$"),
    SwrField(2, KEY "CCR V Proc@Chroma@$"),
    SwrField(3, KEY "CCR V Proc@Hue@$"),
    SwrField(4, KEY "CCR V Proc@Black@$"),
    SWR_KEY,
};
static constexpr SETUPCHOICE vproc_choices[] = {
    SwrToggle(LOCAL_KEY "CCR V Proc@V Proc", 0, "Off"),
    SwrKnob(1, 1),
    SwrKnob(2, 2),
    SwrKnob(3, 3),
    SwrKnob(4, 4),
};
static constexpr SETUPTABLE vproc_page = SwrTable(vproc_rows, SwrWords<correctors>, vproc_fields,
                                                  vproc_choices, {.question = swr_on_air_question});
const PC_TBL pc_engsetup_switcher_keywipe_ccrvproc = SetupPage_Code<vproc_page>;

static constexpr const char* dsks[] = {"DSK1", "DSK2", "DSK3", "DSK4",
                                       "DSK5", "DSK6", "DSK7", "DSK8"};
static SwrRows<std::size(dsks)> drop_rows;
static constexpr SETUPFIELD drop_fields[] = {
    SwrField(0, KEY "DSK Auto Drop@Auto Drop@$", {.words = words_on}),
    SwrField(1, KEY "DSK Auto Drop@Mode@$"),
    SWR_KEY,
};
static constexpr SETUPCHOICE drop_choices[] = {
    SwrToggle(LOCAL_KEY "DSK Auto Drop@Auto Drop", 0, "Off"),
    {LOCAL_KEY "DSK Auto Drop@Mode", 1},
};
static constexpr SETUPTABLE drop_page =
    SwrTable(drop_rows, SwrWords<dsks>, drop_fields, drop_choices);
const PC_TBL pc_engsetup_switcher_keywipefm_dskautodrop = SetupPage_Code<drop_page>;

static SwrRows<ME_COUNT> show_rows;
static constexpr SETUPFIELD show_fields[] = {
    SwrField(0, KEY "Show Key@Output@$"),
    SwrField(1, KEY "Show Key@Mode@$"),
    SWR_KEY,
};
static constexpr const char* show_outputs[] = {"PVW",   "Key PVW", "Aux 1", "Aux 2",
                                               "Aux 3", "Aux 4",   "Mon 1", "Mon 2"};
static constexpr SETUPCHOICE show_choices[] = {
    SwrPopup(LOCAL_KEY "Show Key@Output", 0, SwrWords<show_outputs>),
    {LOCAL_KEY "Show Key@Mode", 1},
};
static constexpr SETUPTABLE show_page = SwrTable(show_rows, SwrBanks, show_fields, show_choices);
const PC_TBL pc_engsetup_switcher_keywipefm_showkey = SetupPage_Code<show_page>;

void EngSetupSwitcherTrans_Reset()
{
    for (const SETUPTABLE* t : {&trans_page, &preset_page, &curve_page, &keywipe_page, &vproc_page,
                                &drop_page, &show_page})
        SetupPage_Forget(*t);
}
