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
        FMCtrl_InitClipStillList();
        Tell("16@Frame Mem@Status@Max Register#300");
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
        for (int i = 0; i < 100 && !sent.empty(); i++) {
            Lines next;
            for (const std::string& line : sent)
                if (line.starts_with("put File@") && line.find("#Lx") == line.npos &&
                    line.find("Find") == line.npos)
                    std::ranges::copy(Answer({line}, line.substr(9, line.find('#') - 9), {}),
                                      std::back_inserter(next));
            Pass(10);
            std::ranges::copy(TakeQueuedCommands(), std::back_inserter(next));
            all_sent.insert(all_sent.end(), sent.begin(), sent.end());
            sent = next;
        }
        return all_sent;
    }
    static Lines Rows(int list)
    {
        Lines rows;
        for (int no = 0; no < LS_GetNData(list); no++)
            if (!Cell(list, no, COL_NO).empty())
                rows.push_back(Cell(list, no, COL_NO) + " " + Cell(list, no, COL_NAME));
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
        for (int i = 0; i < 64; i++)
            SendMessage(MSG_KEY, i % 2 ? SDLK_DELETE : SDLK_BACKSPACE, 0, 0, 0);
        for (char c : text)
            SendMessage(MSG_KEY, ::tolower(c), isupper(c) ? KMOD_LSHIFT : 0, 0, 0);
        (void)TakeQueuedCommands();
        SendMessage(MSG_KEY, SDLK_RETURN, 0, 0, 0);
        for (int i = 0; i < 40; i++)
            Pass(10);
        return TakeQueuedCommands();
    }
};
