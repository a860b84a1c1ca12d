// bench_fmem: the browsers of the clip store over a folder of 12,000 clips, and what the tallies of
// an output cost while it plays.
#include "a_ff.h"
#include "a_fl.h"
#include "a_fm.h"
#include "a_ls.h"
#include "bench_support.h"
#include "fmctrl3.h"
#include "global.h"
#include "message.h"
#include "page.h"
#include "page_table/file_xport.h"
#include "scrollbar.h"
#include "text.h"

namespace
{
constexpr int ELEMENTS = 12000;
constexpr uint32_t PAGE_RECALL = 0x21110000;

void row(const char* verb, const char* text)
{
    FMCtrl3_Proc(MSG_SHPTALLY, Arg(verb), Arg("CS1.ClipStoreFile"), 0, Arg(text));
}

void fill()
{
    char text[96];
    for (int i = 0; i < ELEMENTS; i++) {
        PrintText(text, "root/clip%05d.SFH:25, 0, 0, 3, 2026-01-31 23:59:00, 1, 0", i);
        row("Insert", text);
    }
}

void paint()
{
    FF_Proc(MSG_REDRAW, 10, 0, 0, 0);
    ScrollBarProc(MSG_REDRAW, 10, 0, 0, 0);
}

void scroll_step()
{
    static int top = 0;
    top = (top + 1) % 2000;
    FF_SetScrollBarPosition(0, 500 + top);
    paint();
}

void open_folder()
{
    (void)CreatePage(PAGE_RECALL);
    paint();
}

void select_clip()
{
    static int n = 0;
    n = (n + 1) % 9;
    FF_Proc(MSG_PRESS, 244 + 132 * (n % 3) + 50, 112 + 104 * (n / 3) + 40, 1, 0);
    paint();
}

// The store takes a clip and gives it back, with the folder in view.
void come_and_go()
{
    row("Insert", "root/clip06000a.SFH:25, 0, 0, 3, 2026-01-31 23:59:00, 1, 0");
    row("Delete", "root/clip06000a.SFH");
}

// The slowest pass of the import page, whose lists stand beside the browser here: one clip has gone
// and come back, and all rows are shown anew.
void list_pass()
{
    static constexpr FL_TBL sides = {{{.device = FL_DIRDATA_STORAGE_ROOT}, {}}};
    static int n = 0;
    if (LS_GetNData(1) < ELEMENTS) { // a page has been opened since
        (void)LS_Create(ls_file2_xport, 0);
        (void)FL_Create(&sides, 0);
        FL_Proc(MSG_REDRAW, 1000, 0, 0, 0);
    }
    char path[32];
    n = (n + 7919) % ELEMENTS;
    PrintText(path, "/clip%05d", n);
    const ELEMENT& e = FMCtrl3_FindPath(nullptr, ELEMENT_TYPE_FILE, path)->element;
    for (const int kind : {FMCTRL_MSG_ELEMENT_DELETE, FMCTRL_MSG_ELEMENT_INSERT})
        FL_Proc(LMSG_FMCTRL3CHANGE, kind, Arg(&e), 0, 0);
    FL_Proc(MSG_REDRAW, 1000, 0, 0, 0);
    LS_Proc(MSG_REDRAW, 10, 0, 0, 0);
}

void tell(const char* path, const char* value)
{
    FM_Proc(MSG_TALLY, Arg(path), Arg(value), 0, 0);
}

void output_status()
{
    tell("Frame Mem 2@Clip/Still@Output Status@FM12", "2,/clip00700.SFH");
    tell("Frame Mem 2@Clip/Still@Output Status@FM12", "1,");
}

// All outputs play, two of them are in view.
void play_frame()
{
    static int frame = 0;
    frame = (frame + 1) % 25;
    for (int n = 1; n <= FM_OUTPUTS; n++) {
        char path[64], value[32];
        PrintText(path, "Frame Mem 2@Clip/Still@Play@FM%d", n);
        PrintText(value, "1,%d,0,24", frame);
        tell(path, value);
    }
    FM_Proc(MSG_REDRAW, 10, 0, 0, 0);
}
} // namespace

int main(int argc, char** argv)
{
    Bench_Screen();
    GL_ClipStoreSupportMode = 1;
    FMCtrl3_Init();
    fill();
    open_folder();
    static constexpr BenchCase cases[] = {
        {.name = "12,000 clips: scroll step", .once = scroll_step, .limit_copies = 3},
        {.name = "12,000 clips: open the folder", .once = open_folder, .limit_copies = 80},
        {.name = "12,000 clips: select one", .once = select_clip, .limit_copies = 2},
        {.name = "12,000 clips: one comes and goes", .once = come_and_go, .limit_copies = 1},
        {.name = "12,000 clips: pass of the import page", .once = list_pass, .limit_copies = 40},
        {.name = "output: a status", .once = output_status, .limit_copies = 0.1, .per = 2},
        {.name = "outputs: a frame of twenty", .once = play_frame, .limit_copies = 1},
    };
    return Bench_Main(argc, argv, cases);
}
