// pc_setup_fcadjust: the pages that adjust a format converter: how its inputs are converted, where
// the picture is cut or framed, how it is sharpened. One body for the kinds of converters, which
// differ by rows of FCADJUST: how many inputs a converter has, which modes, which knobs.
// A choice goes out at once; what the server answers counts. Only the inputs of the converter that
// is chosen are on the page and subscribed.
#pragma once
#include "a_pc.h"
#include "types.h"

extern const PC_TBL pc_engsetup_switcher_input_fcadjust;   // four inputs a converter
extern const PC_TBL pc_engsetup_switcher_input_fcadjust6;  // six
extern const PC_TBL pc_engsetup_switcher_input_fcadjust3g; // of the 3G kind
extern const PC_TBL pc_engsetup_switcher_input_f4kadjust;  // of the 4K kind
extern const PC_TBL pc_engsetup_switcher_output_fcadjust;  // of the outputs

// The settings of one converter input, as texts.
struct _fcadjuststatus {
    char key[8]; // number on the wire, from 0
    char no[8];  // the same from 1
    char name[24];
    char convert_mode[12];
    char motion_sel[8];
    char aspect[8];
    char aspect_type[16];
    char ec_pos[8];
    char ec_pos_mode[8];
    char lb_pos[8];
    char lb_pos_mode[8];
    char enhancer_mode[8];
    char enhancer[6][8];   // gain, crispening, level, limiter, frequency, H/V
    char ec_pos_center[8]; // "true" where the position is the middle
    char lb_pos_center[8];
    char division[8]; // of the 4K kind only
    char ip[8];
};
using _fcadjust3g = _fcadjuststatus;
constexpr int FCADJUST_ROWS = 16;
constexpr int FCADJUST_3G_ROWS = 8;
extern _fcadjuststatus FCAdjustStatus[FCADJUST_ROWS];
extern _fcadjust3g FCAdjust3G[FCADJUST_3G_ROWS];
extern int FCInput; // the converter that is on the page, from 0; kept while the system runs

// The place on the page of input n, both from 0; -1 when it is of another converter than FCInput.
int fcadjust_n_to_id(int n);
// Whether a converter of kind b for a signal of size a and scan c may go on as kind e for size d
// and scan f. 1 to proceed, 0 to refuse.
int fcadjust_format_check(int a, int b, int c, int d, int e, int f);
void SetupFcAdjust_Reset(); // as at process start; for tests

// Commands of the buttons; those of the 4K kind have two more.
#define FCADJUST(word) "LOCAL@FC Adjust@" word
#define FCADJUST_4K(word) "LOCAL@4K Adjust@" word
enum : int { // buttons that the code names
    BTN_FCADJUST_GROUP = 17,
    BTN_FCADJUST_FORMAT = 18,
    BTN_FCADJUST_ASPECT = 19,
    BTN_FCADJUST_ENHANCER = 20,
    BTN_FCADJUST_ENHANCER_ADJUST = 21,
    BTN_FCADJUST_EC_MODE = 37,
    BTN_FCADJUST_EC_CENTER = 38,
    BTN_FCADJUST_TYPE = 49, // and the two behind it
    BTN_FCADJUST_LB_MODE = 53,
    BTN_FCADJUST_LB_CENTER = 54,
};
