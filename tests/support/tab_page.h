// tab_page: a page of one object, opened by hand and driven through the bus, as the loop does it.
#pragma once
#include "a_bt.h"
#include "a_nb.h"
#include "device.h"
#include "hand_page.h"
#include "me_config.h"
#include "scrollbar.h"
#include <iterator>

constexpr const char* OUTPUT_LIST = "Engineering Setup@Switcher@Config@M/E Output Assign@List";
constexpr const char* PGM_LIST = "Engineering Setup@Switcher@Config@PGM Config@List";

struct TabPage : HandPage {
    TabPage() { object_kind = OBJ_VF; }

    // What a touch sends.
    static std::vector<std::string> Sent(int x, int y)
    {
        (void)TakeQueuedCommands();
        Touch(x, y);
        return TakeQueuedCommands();
    }
};
