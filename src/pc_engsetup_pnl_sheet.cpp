// What sheets of the panel's setup need beside their columns: the names of rows that the server
// knows by number, and the defaults of the flexi pads.
#include "command.h"
#include "global.h"
#include "message.h"
#include "netio.h"
#include "page_table/setup_panel_config.h"
#include "pane.h"
#include "pc_engsetup_pnl.h"
#include "tally_value.h"
#include "text.h"
#include <cstring>

#include "safeguards.h"

int SetupPanelRows_Create(const SETUPSHEET& s, const SETUPTABLE& t, int on)
{
    constexpr int name = 0;
    const int result = SetupSheet_Create(s, t, on);
    if (!on)
        return result;
    for (int row = 0; row < s.rows && row < PANEL_ROWS; row++)
        SetupPage_Take(t, row, name, pnl_rows[row]);
    SetupPage_Show(t);
    return result;
}

// --- Flexi pads ---

static struct {
    int question = 0;  // its pane, 0 none
    char bus[16] = ""; // that it is about
} pad;

// The bus of the current row, "M/E-1@2".
static void ask_default(const SETUPSHEET& s, const SETUPTABLE& t)
{
    const char* const row = s.names[t.state->cursor];
    CopyText(pad.bus, row);
    pad.bus[strcspn(pad.bus, "@")] = '\0';
    pad.question =
        PaneYesNo_Create("Default", PANE_ALERT,
                         "Are you sure you want to change all pages\nto the default settings?");
}

static void put_default()
{
    char path[CMD_SIZE];
    DecodeCommand(path, "~", sizeof path);
    Net_SendCommandFormat("put %s@Assign@%s@Default@1#%s", path, pad.bus, "true");
}

int SetupPanelPad_Proc(const SETUPSHEET& s, const SETUPTABLE& t, int msg, MsgArg ax, MsgArg bx)
{
    constexpr int yes = 1;
    if (msg == LMSG_BTNSEL && Same(Text(ax), PAD_DEFAULT)) {
        ask_default(s, t);
    } else if (msg == LMSG_PANEQUIT && pad.question && int(ax) == pad.question) {
        pad.question = 0;
        if (int(bx) == yes)
            put_default();
    } else {
        (void)SetupSheet_Proc(s, t, msg, ax, bx);
    }
    return 0;
}
