// The External HDD page of the frame memory: all of a switcher's registers are saved to the
// external drive of its frame memory, or loaded from it. The switcher does it alone; it tells when
// the drive is busy, and how far it is. The operator may leave meanwhile: the pane makes way, and
// stands here again when he comes back.
#include "a_ba.h"
#include "a_bt.h"
#include "a_pc.h"
#include "colours.h"
#include "device.h"
#include "file.h"
#include "message.h"
#include "netio.h"
#include "page_table/fmem_store.h"
#include "pane.h"
#include "tally_value.h"
#include "tdl.h"
#include "text.h"
#include <cstring>
#include <iterator>

#include "safeguards.h"

#define LOCAL_HDD "LOCAL@Frame Mem@External HDD@"

namespace
{
constexpr uint32_t PAGE_HDD = 0x25620000;
constexpr int REGIONS = 32; // groups of regions: which switcher
constexpr int REGIONS_DUAL = 39;
constexpr int SWITCHERS = 2;
constexpr int FONT = 3;
constexpr Rect LINES = {112, 124, 480, 186};
constexpr int LINE_PX = 21;
constexpr int VALUE_X = 150; // from the left edge
constexpr char TITLE[] = "External HDD";

struct HddWork {
    const char* word; // of its command
    const char* question;
    const char* message;
};
} // namespace

static constexpr HddWork works[] = {
    {"Save",
     "All stills and clips of the frame memory\nwill be saved to the external HDD.\n\nContinue?",
     "Saving the frame memory..."},
    {"Load",
     "All stills and clips of the frame memory\nwill be replaced by those of the external "
     "HDD.\n\nContinue?",
     "Loading the frame memory..."},
};

static bool is_busy[SWITCHERS]; // as last told
static int running = 0;         // place in works of what runs
static struct {
    bool is_open = false;
    int question_pane = 0;
    int asked = 0; // place in works that the question is about
    int progress_pane = 0;
    bool is_dirty = false;
} hd; // valid from create(1) to create(0)

// --- The switcher that is worked on ---

static int regions()
{
    return isDualProc_DualLink() ? REGIONS_DUAL : REGIONS;
}

// From 0; without a choice the first.
static int switcher()
{
    const int n = PaneRegion_GetRef(regions()) - REGION_ID_SWITCHER;
    return n >= 0 && n < SWITCHERS ? n : 0;
}

// What its paths begin with: 16, 32.
static int unit()
{
    return 16 << switcher();
}

static void show_keys()
{
    const bool is_off = BkgdHDDTransfer_Check(0) || is_busy[switcher()];
    BT_SetDisable(BTN_FMEM1_HDD_SAVE, is_off);
    BT_SetDisable(BTN_FMEM1_HDD_LOAD, is_off);
    hd.is_dirty = true;
}

// --- Running ---

static void show_progress()
{
    hd.progress_pane = PaneProgress_HDD_RestoreCreate(TITLE, works[running].message, 1);
    BkgdHDDTransfer_SetPaneID(hd.progress_pane);
}

static void start(int work)
{
    running = work;
    (void)PaneProgress_HDD_RestoreInit();
    BkgdHDDTransfer_Begin(switcher());
    (void)Net_SendCommandFormat("put %d@Frame Mem@External HDD@%s#true", unit(), works[work].word);
    show_progress();
    show_keys();
}

static void cancel()
{
    hd.progress_pane = 0;
    (void)Net_SendCommandFormat("put %d@Frame Mem@External HDD@Cancel#true",
                                16 << BkgdHDDTransfer_Switcher());
    (void)BkgdHDDTransfer_Set(PAGE_HDD, 0);
    show_keys();
}

static void ask(int work)
{
    hd.asked = work;
    hd.question_pane = PaneYesNo_Create(TITLE, PANE_ALERT, works[work].question);
}

// --- Messages ---

static int button(const char* path)
{
    if (BkgdHDDTransfer_Check(0))
        return 0;
    for (int i = 0; i < int(std::size(works)); i++)
        if (BeginsWith(path, LOCAL_HDD) && Same(path + sizeof LOCAL_HDD - 1, works[i].word))
            ask(i);
    return 0;
}

static int pane_closed(int pane, int answer)
{
    if (pane != 0 && pane == hd.progress_pane) {
        cancel();
    } else if (pane != 0 && pane == hd.question_pane) {
        hd.question_pane = 0;
        if (answer == 1 && !BkgdHDDTransfer_Check(0))
            start(hd.asked);
    }
    return 0;
}

static void progress(const char* value)
{
    constexpr int WHOLE = 100;
    const int percent = int(NumberIn(value, 0, WHOLE));
    (void)PaneProgress_HDD_RestoreSetProg(percent, "");
    if (hd.progress_pane)
        (void)PaneProgress_SetProg(hd.progress_pane, percent, "");
}

static int tally(const char* path, const char* value)
{
    for (int i = 0; path && value && i < SWITCHERS; i++) {
        char head[64];
        PrintText(head, "%d@Frame Mem@External HDD@", 16 << i);
        if (!BeginsWith(path, head))
            continue;
        const char* const word = path + strlen(head);
        if (Same(word, "Busy")) {
            is_busy[i] = IsTrue(value);
            if (!BkgdHDDTransfer_Check(0))
                hd.progress_pane = 0; // it has ended, and its pane with it
            show_keys();
        } else if (Same(word, "Progress") && BkgdHDDTransfer_Check(0) &&
                   i == BkgdHDDTransfer_Switcher()) {
            progress(value);
        }
    }
    return 0;
}

static void draw_line(int line, const char* label, const char* value, unsigned colour)
{
    const int y = LINES.y1 + line * LINE_PX;
    (void)TDL_SymbolS(LINES.x1, y, label, FONT, LABEL);
    (void)TDL_SymbolS(LINES.x1 + VALUE_X, y, value, FONT, colour);
}

static int tick(int elapsed_ms)
{
    if (!BkgdHDDTransfer_IsUnanswered(elapsed_ms))
        return 0;
    (void)BkgdHDDTransfer_Set(PAGE_HDD, 0);
    (void)PaneProgress_HDD_RestoreQuit();
    hd.progress_pane = 0;
    (void)PaneMessage_Create(TITLE, PANE_ALERT, "The external HDD does not answer.");
    show_keys();
    return 0;
}

static int redraw()
{
    if (!hd.is_dirty)
        return 0;
    hd.is_dirty = false;
    const bool busy = is_busy[switcher()];
    (void)TDL_FillRectS(LINES.x1, LINES.y1, LINES.x2, LINES.y2, BLACK);
    draw_line(0, "Switcher", switcher() == 0 ? "SWR1" : "SWR2", WHITE);
    draw_line(1, TITLE, busy ? "Busy" : "Ready", busy ? RED : WHITE);
    TDL_UpdateRect(LINES.x1, LINES.y1, LINES.x2, LINES.y2);
    return 0;
}

static int proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (!hd.is_open)
        return 0;
    switch (msg) {
    case MSG_REDRAW: return redraw();
    case MSG_PANETICK: return tick(int(ax)); // its pane is up
    case MSG_TALLY: return tally(Text(ax), Text(bx));
    case LMSG_BTNSEL: return button(Text(ax));
    case LMSG_PANEQUIT: return pane_closed(int(ax), int(bx));
    case LMSG_PANEREGION: show_keys(); return 0;
    default: return 0;
    }
}

// --- Opening and closing ---

// Whether a drive is busy is followed all the time, not by this page.
static void follow(const char* verb, const char* word)
{
    for (int i = 0; i < SWITCHERS; i++)
        (void)Net_SendCommandFormat("%s %d@Frame Mem@External HDD@%s", verb, 16 << i, word);
}

static int create(int on, uint32_t)
{
    if (hd.is_open) {
        BkgdHDDTransfer_PaneQuit();
        BkgdHDDTransfer_SetPaneID(0);
        follow("remove", "Progress");
    }
    hd = {};
    if (!on)
        return 1;
    hd.is_open = true;
    BA_SetRegionGrp(regions());
    follow("add", "Progress");
    follow("read", "Busy");
    if (BkgdHDDTransfer_Check(0))
        show_progress();
    show_keys();
    return 0;
}

const PC_TBL pc_fmem1_hdd = {.proc_func = proc, .create_func = create};
