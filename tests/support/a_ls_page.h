// a_ls_page: a page of lists and scroll bars: opened by hand, touched by cell, its messages written
// down.
#pragma once
#include "a_ls.h"
#include "hand_page.h"
#include "scrollbar.h"

struct ListPage : HandPage {
    static inline std::vector<std::string> told;     // "SEL 1 5 0", "FLASH 1", "AREA 1", "SB 2 0 1"
    static inline void (*answer)(int msg) = nullptr; // what page code does about a message

    static int WriteDown(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg)
    {
        const std::string a = std::to_string(ax);
        const std::string three = a + " " + std::to_string(bx) + " " + std::to_string(cx);
        switch (msg) {
        case LMSG_LISTSEL: told.push_back("SEL " + three); break;
        case LMSG_LISTFLASH: told.push_back("FLASH " + a); break;
        case LMSG_LISTAREASEL: told.push_back("AREA " + a); break;
        case LMSG_SBSEL: told.push_back("SB " + three); break;
        default: return 0;
        }
        if (answer)
            answer(msg);
        return 0;
    }

    ListPage()
    {
        object_kind = OBJ_LS;
        base.proc_func = WriteDown;
    }
    void SetUp() override
    {
        HandPage::SetUp();
        answer = nullptr;
        SetPage(0x62210000);
        Clock_ms += 1000; // the last test's finger has long been lifted
    }
    void SetPage(uint32_t id) { SetTree({"Effect"}, id); }
    // Open the lists with all their rows in use.
    static void Open(const LS_TBL* rows, int ndata)
    {
        LS_Create(rows, 0);
        for (const LS_TBL* row = rows; row->id >= 1; row++)
            LS_SetNData(row->id, ndata);
        told.clear();
    }

    static void Press(int x, int y) { HandPage::Touch(x, y); }
    static void Release() { SendMessage(MSG_RELEASE, 0, 0, 0, 0); }
    static void Drag(int x, int y, int held = 1) { SendMessage(MSG_DRAG, x, y, held, 0); }
    // A touch of its own: long after the last one.
    static void Touch(int x, int y)
    {
        Clock_ms += 1000;
        Press(x, y);
        Release();
    }
    static void Redraw(int elapsed_ms = 10) { Pass(elapsed_ms); }
    // What has been told since the last call, without the area messages that every touch brings.
    static std::vector<std::string> Told(const char* but = "AREA")
    {
        std::vector<std::string> lines;
        for (const auto& line : told)
            if (line.rfind(but, 0) != 0)
                lines.push_back(line);
        told.clear();
        return lines;
    }
};
