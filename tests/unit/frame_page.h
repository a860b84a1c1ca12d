// frame_page: the file pages of the frame memory in front of a store with a few registers, and what
// a server answers to jobs.
#pragma once
#include "fmctrl.h"
#include "pc_file_dual.h"
#include "pc_file_side.h"
#include "server_page.h"

struct FramePage : ServerPage {
    void SetUp() override
    {
        ServerPage::SetUp();
        DeviceStructure();
        File_Reset();
        FileDual_Reset();
        File_ReplaceSync([] { return 0; });
        FMCtrl_Quit();
        FMCtrl_InitClipStillList();
        Tell("16@Frame Mem@Status@Max Register#300");
    }
    void TearDown() override
    {
        FileDual_Reset();
        File_Reset();
        File_ReplaceSync(nullptr);
        FMCtrl_Quit();
        ServerPage::TearDown();
    }
    // Registers from number on.
    static void Store(const Lines& names, int number = 1)
    {
        for (const std::string& name : names)
            Tell("16@Frame Mem@Status@File Name Sense#" + std::to_string(number++) + ",81," + name);
    }
    static void Folders(const std::string& names) // "0,Default.,1,Sport"
    {
        Tell("16@Frame Mem@Status@Folder Name Sense#" + names);
    }
    // Acknowledge the lines of that kind, and give them these rows and their end.
    static Lines Answer(const Lines& sent, const std::string& kind, const Lines& rows,
                        const std::string& end = "OK")
    {
        (void)TakeQueuedCommands();
        for (const std::string& line : sent)
            (void)Serve(line, kind, rows, end);
        return TakeQueuedCommands();
    }
    // Answer whatever goes out with OK until nothing does; all lines that went out.
    static Lines Run(Lines sent)
    {
        Lines all_sent;
        for (int i = 0; i < 100; i++) {
            Lines next;
            for (const std::string& line : sent) {
                all_sent.push_back(line);
                if (!line.starts_with("put File@"))
                    continue;
                const std::string kind = line.substr(9, line.find('#') - 9);
                if (line.find("#Lx") != std::string::npos || kind.find("Find") != std::string::npos)
                    continue;
                for (const std::string& more : Answer({line}, kind, {}))
                    next.push_back(more);
            }
            Pass(10);
            for (const std::string& more : TakeQueuedCommands())
                next.push_back(more);
            if (next.empty())
                break;
            sent = next;
        }
        return all_sent;
    }
    static Lines Rows(int list)
    {
        Lines rows;
        for (int no = 0; no < LS_GetNData(list); no++)
            if (*LS_GetData(list, no, COL_NO))
                rows.push_back(std::string(LS_GetData(list, no, COL_NO)) + " " +
                               LS_GetData(list, no, COL_NAME));
        return rows;
    }
    static void Select(int list, const std::vector<int>& rows)
    {
        LS_SetMS(list, 1);
        for (int no = 0; no < LS_GetNData(list); no++)
            LS_SetSelected(list, no, 0, std::ranges::count(rows, no) != 0);
    }
    static Lines Quit(int result) { return ServerPage::Answer(result); } // the pane on top
    // What entering a text in the keyboard sends.
    static Lines Enter(const std::string& text)
    {
        for (int i = 0; i < 10; i++)
            Pass(50);
        EXPECT_EQ(GetWindow(), WINDOW_KEYBOARD);
        for (int i = 0; i < 32; i++)
            for (int key : {SDLK_BACKSPACE, SDLK_DELETE})
                SendMessage(MSG_KEY, key, 0, 0, 0);
        for (char c : text) {
            const bool is_shifted = c >= 'A' && c <= 'Z';
            SendMessage(MSG_KEY, ::tolower(c), is_shifted ? KMOD_LSHIFT : 0, 0, 0);
        }
        (void)TakeQueuedCommands();
        SendMessage(MSG_KEY, SDLK_RETURN, 0, 0, 0);
        for (int i = 0; i < 40; i++)
            Pass(10);
        return TakeQueuedCommands();
    }
};
