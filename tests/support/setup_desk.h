// setup_desk: pages of engineering setup in an installation of one panel with two switchers and
// three effects units.
#pragma once
#include "a_ls.h"
#include "pane.h"
#include "pc_engsetup_pnl.h"
#include "pc_engsetup_swr.h"
#include "pc_engsetup_sys.h"
#include "pc_setup_curve.h"
#include "pc_setup_fcadjust.h"
#include "pc_setup_link.h"
#include "pc_setup_output.h"
#include "setup_index.h"
#include "table_page.h"
#include "window.h"
#include <SDL.h>

struct SetupTest : TablePage {
    void SetUp() override
    {
        TablePage::SetUp();
        SetupIndex_Build();
        Forget();
        Device_Init();
        const std::string list = "Engineering Setup@System@Network Config@List#";
        TellAll(list, {"KILL", "PNL001D001,PNL1,10.0.0.1,10.0.1.1,10.0.2.1",
                       "SWR001D001,SWR1,10.0.0.2,10.0.1.2,10.0.2.2",
                       "SWR002D002,SWR2,10.0.0.3,10.0.1.3,10.0.2.3",
                       "DME001D001,DME1,10.0.0.4,10.0.1.4,10.0.2.4",
                       "DME002D002,DME2,10.0.0.5,10.0.1.5,10.0.2.5",
                       "DME003D003,DME3,10.0.0.6,10.0.1.6,10.0.2.6"});
        (void)Tell("Info@IP Address@Menu CPU#10.0.0.1");
        TellAll(
            "Engineering Setup@System@System Config@",
            {"Panel Assign#1,1,2,0,0,0", "Switcher Assign#1,1,2,0,0", "Switcher Assign#2,3,0,0,0"});
    }
    void TearDown() override
    {
        (void)Leave();
        Forget();
        Device_Init();
        DeviceStructure();
        TablePage::TearDown();
    }
    // What the pages keep beyond a visit.
    static void Forget()
    {
        EngSetupFormat_Reset();
        EngSetupNetwork_Reset();
        EngSetupConfig_Reset();
        EngSetupLock_Reset();
        EngSetupSwitcher_Reset();
        EngSetupPanelTable_Reset();
        SetupCurve_Reset();
        SetupLink_Reset();
        SetupFcAdjust_Reset();
        SetupOutput_Reset();
    }
    // A row of the list: its cells, a changed one with a star.
    static std::string Row(int row, int columns, int list = 1)
    {
        std::string text;
        for (int col = 0; col < columns; col++)
            text += (col ? "|" : "") + Cell(list, row, col) +
                    (LS_GetStatus(list, row, col) == 3 ? "*" : "");
        return text;
    }
    static void SelectRow(int row, int list = 1)
    {
        (void)LS_SetNowLine(list, row);
        SendMessage(LMSG_LISTSEL, list, row, 0, 0);
    }
    // Press a button until it looks released.
    static Lines Push(int id)
    {
        Lines lines = Press(id);
        Pass(200);
        for (const std::string& line : TakeQueuedCommands())
            lines.push_back(line);
        return lines;
    }
    // Into the window on top, by its keyboard, up to Enter; what that sends.
    static Lines Type(const std::string& text)
    {
        EXPECT_NE(GetWindow(), WINDOW_NONE) << "nothing is asked for";
        (void)TakeQueuedCommands();
        for (const char c : text) {
            const bool is_upper = isupper(uint8_t(c)) != 0;
            SendMessage(MSG_KEY, tolower(uint8_t(c)), is_upper ? KMOD_LSHIFT : 0, 0, 0);
        }
        Enter();
        return TakeQueuedCommands();
    }
    static void Enter()
    {
        SendMessage(MSG_KEY, SDLK_RETURN, 0, 0, 0);
        for (int i = 0; i < 10; i++)
            Pass(100);
    }
    // The same of a row that is chosen first; of a key that asks for a choice or a text.
    static Lines PushIn(int row, int id)
    {
        SelectRow(row);
        return Push(id);
    }
    static Lines Choose(int id, int result)
    {
        (void)Push(id);
        return Answer(result);
    }
    static Lines PushType(int id, const std::string& text)
    {
        (void)Push(id);
        return Type(text);
    }
    // Put away what a window or a pane says.
    static void Dismiss()
    {
        while (GetWindow() != WINDOW_NONE)
            (void)CloseWindow();
        if (Pane_GetActiveID())
            (void)Answer(0);
        Pass(1000);
    }
    // Close the pane on top with a result; what that sends.
    static Lines Answer(int result)
    {
        (void)TakeQueuedCommands();
        const int pane = Pane_GetActiveID();
        EXPECT_NE(pane, 0) << "nothing is asked";
        Pane_Quit(pane);
        SendMessage(LMSG_PANEQUIT, pane, result, 0, 0);
        Pass(1000); // until the key that led here looks released
        return TakeQueuedCommands();
    }
    // All that a press may change without a line, a pane or another page.
    static std::string Seen()
    {
        std::string seen;
        for (int row = 0; row < LS_GetNData(1); row++)
            seen += Row(row, 9);
        for (const BT_MEM* b = bt_first(); b->id > 0; b++)
            seen += std::to_string(b->status);
        return seen;
    }
    static bool HasEffect(int id)
    {
        const std::string before = Seen();
        const Lines lines = Push(id);
        const bool has = !lines.empty() || Pane_GetActiveID() || GetWindow() != WINDOW_NONE ||
                         GL_CreatePage != 0 || Seen() != before;
        GL_CreatePage = 0;
        Dismiss();
        return has;
    }
};
