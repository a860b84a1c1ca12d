#include "fmctrl.h"
#include "bus.h"
#include "fmctrl_private.h"
#include "log.h"
#include "message.h"
#include "netio.h"
#include "process.h"
#include "tally_value.h"
#include <algorithm>
#include <cstring>

#include "safeguards.h"

constexpr int FOLDER_BANKS = 45;
constexpr int BANKS = 2 * FM_EXTENDED_BANK; // of both stores
constexpr int EXTENDED_BANK_LAST = 172;
constexpr int PASS_MAX_MS = 5000; // no pass tells of more

int Extended_Capacity = 0;
int GL_FMRec = 0;

// --- Tallies ---

static void take_max_register(const char* value)
{
    const int count = Index(value, FMEM_EXTENDED + 1);
    if (count < 0)
        return;
    // It comes with every new reading of the server, also after one that answers nothing more.
    fm_thumbnails_forget_fetches();
    fm_drop_link_lost();
    fm_drop_size_told();
    fm_lists_free();
    fm_forget_chain();
    if (count != SYS_FmemRegMax) {
        const int before = SYS_FmemRegMax;
        if (fm_resize(count) == 0)
            Log_Output(LOG_LIFE, MOD_FM, "SYS_FmemRegMax %d -> %d change", before, count);
    }
    SendMessage(LMSG_FMCTRLCHANGE, 0, 0, 0, 0);
    init_folder();
    if (!SYS_FmemV6)
        return;
    for (int bank = 0; bank < FOLDER_BANKS; bank++)
        Net_SendCommandFormat("read 16@Frame Mem@Status@Folder Status@%d", bank);
    Net_SendCommand("read 16@Frame Mem@Status@Folder Name Sense");
    SendMessage(LMSG_FOLDERNAMESENSE, 0, 0, 0, 0);
}

static void take_extended_capacity(const char* value)
{
    Extended_Capacity = Decimal(value);
    if (Extended_Capacity == 0) {
        for (int n = 0; n < SYS_FmemRegMax; n++)
            if (FmemReg2[n].store)
                fm_empty_soon(FMEM_EXTENDED + n);
        return;
    }
    for (int bank = FM_EXTENDED_BANK; bank <= EXTENDED_BANK_LAST; bank++)
        Net_SendCommandFormat("read 16@Frame Mem@Status@Register Status@%d", bank);
}

namespace
{
struct BankRow {
    const char* path;
    void (*take)(int bank, const char* value);
};
struct ValueRow {
    const char* path;
    void (*take)(const char* value);
};
} // namespace

static constexpr BankRow bank_rows[] = {
    {"Status@Register Status@", fm_take_register_status},
    {"Status@Folder Status@", fm_take_folder_status},
};

static constexpr ValueRow value_rows[] = {
    {"Status@File Name Sense", fm_take_file_name_sense},
    {"Status@Max Register", take_max_register},
    {"Status@Folder Name Sense", fm_take_folder_names},
    {"Folder@Move Still", fm_take_move_still},
    {"Status@Extended Capacity", take_extended_capacity},
    {"Clip@Ancillary Playback Enable", fm_take_ancillary},
};

// What stands behind "Frame Mem@", with or without the first switcher's mark in front; null for
// every other path.
static const char* fm_path(const char* path)
{
    constexpr char MARK[] = "16@";
    constexpr char WORD[] = "Frame Mem@";
    if (path[0] != '1' && path[0] != 'F')
        return nullptr; // nearly every tally
    if (BeginsWith(path, MARK))
        path += sizeof MARK - 1;
    return BeginsWith(path, WORD) ? path + sizeof WORD - 1 : nullptr;
}

static void fm_tally(const char* path, const char* value)
{
    const char* rest = fm_path(path);
    if (!rest)
        return;
    for (const BankRow& row : bank_rows) {
        if (!BeginsWith(rest, row.path))
            continue;
        const int bank = Index(rest + strlen(row.path), BANKS);
        if (bank >= 0)
            row.take(bank, value);
        fm_drop_registers_told();
        return;
    }
    for (const ValueRow& row : value_rows) {
        if (Same(rest, row.path)) {
            row.take(value);
            return;
        }
    }
}

// --- Passes ---

static void fm_pass(int elapsed_ms)
{
    fm_empty_pass();
    fm_thumbnails_pass();
    fm_drop_pass(elapsed_ms);
    fm_ftp_pass(elapsed_ms);
}

int FMCtrlProc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_TALLY:
        if (ax && bx)
            fm_tally(Text(ax), Text(bx));
        break;
    case MSG_REDRAW: fm_pass(int(std::clamp<MsgArg>(ax, 0, PASS_MAX_MS))); break;
    default: break;
    }
    return 0;
}

// The processors tell whether they record; thumbnails wait meanwhile.
void framememory_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    constexpr char REC[] = "Clip@Rec@PROC";
    if (msg != MSG_TALLY || !ax || !bx)
        return;
    const char* rest = fm_path(Text(ax));
    if (!rest || !BeginsWith(rest, REC))
        return;
    const int proc = IndexFrom1(rest + sizeof REC - 1, 2);
    if (proc < 0)
        return;
    GL_FMRec &= ~(1 << proc);
    if (SwitchOrNumber(Text(bx)))
        GL_FMRec |= 1 << proc;
}

// --- Life ---

void FMCtrl_InitClipStillList()
{
    (void)MakeDir("/mnt/sys/FrameMemory"); // without it no thumbnail comes, and that is told then
    fm_lists_free();
    init_folder();
}

void FMCtrl_Quit()
{
    fm_drop_quit();
    fm_thumbnails_forget_fetches();
    fm_lists_free();
    fm_forget_chain();
    (void)fm_resize(0); // giving memory back does not fail
    fm_registers_quit();
    fm_thumbnails_quit();
    init_folder();
    Extended_Capacity = 0;
    GL_FMRec = 0;
}
