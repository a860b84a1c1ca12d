#include "a_bt_page.h"
#include "a_pc.h"
#include "favorites.h"
#include "setup_index.h"
#include "tdl.h"

extern const PC_TBL pc_favorites;
static const NB_TBL boxes[] = {{.id = 1, .caption = "Clip", .type = NB_2, .max = 100}, NB_END};

struct ButtonSheet : ButtonPage {
    struct Cell {
        const char* caption;
        int type;
        int status = BT_OFF;
        bool pushed = false;
        bool disabled = false;
        const NB_TBL* nb = nullptr;
        bool owner = false;
        bool undecided = false;
        int (*draw)(BT_MEM*) = bt_drw_normal;
        int id = 17;
    };
    static void Draw(int x, int y, const Cell& c)
    {
        BT_TBL row = Button(c.id, c.type, {"~@X#*"}, c.nb);
        row.caption = c.caption;
        row.draw_func = c.draw;
        row.x1 = x;
        row.y1 = y;
        row.x2 = x + 84;
        row.y2 = y + 65;
        const BT_TBL table[] = {row, {.id = -1}};
        BT_Create(table, 0);
        BT_MEM* b = bt_find(c.id);
        BT_SetStatus(c.id, c.status);
        if (c.owner)
            BT_SetKnobAssign(c.id);
        if (c.pushed)
            b->pushed = 150;
        if (c.disabled)
            b->visible = BT_DISABLED;
        b->undecided = c.undecided;
        BT_Proc(MSG_REDRAW, 0, 0, 0, 0);
        BT_SetKnobAssign(-1);
    }
};

// A row a kind: off, on, third, each of them pushed, each of them disabled.
TEST_F(ButtonSheet, KeysWithAState)
{
    static const Cell kinds[] = {
        {"Toggle", BT_TOGGLE},
        {.caption = "Knobs", .type = BT_RADIO, .nb = boxes},
        {.caption = "Knobs\nheld", .type = BT_RADIO, .nb = boxes, .owner = true},
        {.caption = "Key\nFill", .type = BT_RADIO, .undecided = true},
        {"Action", BT_ACTION_STATE},
        {"Pull-down", BT_PULLDOWN},
        {"Copy", BT_TRANSFER_RIGHT},
        {.caption = "Tab", .type = BT_TAB, .draw = bt_drw_tab},
    };
    int y = 4;
    for (const Cell& kind : kinds) {
        const bool is_wide = y > 300;
        for (int i = 0; i < (is_wide ? 7 : 9); i++) {
            Cell c = kind;
            c.status = i % 3 == 0 ? BT_OFF : i % 3 == 1 ? BT_ON : BT_THIRD;
            c.pushed = i / 3 == 1;
            c.disabled = i / 3 == 2;
            Draw(4 + (is_wide ? 112 : 88) * i, y, c);
        }
        y += 72;
    }
    EXPECT_TRUE(MatchesGolden("button_state"));
}

TEST_F(ButtonSheet, KeysThatLeadAndKeysOfTheFamily)
{
    int x = 4;
    for (const Cell& jump : {Cell{"Page", BT_JUMP},
                             {"Ten key", BT_JUMP_10KEY},
                             {"Keyboard", BT_JUMP_KEYBOARD},
                             {"Pop-up", BT_JUMP_POPUP},
                             {"Find", BT_FIND},
                             {"New", BT_NEW}}) {
        Cell c = jump;
        Draw(x, 4, c);
        c.pushed = true;
        Draw(x, 76, c);
        c.pushed = false;
        c.disabled = true;
        Draw(x, 148, c);
        x += 98;
    }

    // Which transport mark a key has follows from its id.
    for (int id = 34; id <= 38; id++)
        for (const bool disabled : {false, true})
            Draw(4 + 98 * (id - 34), disabled ? 292 : 220,
                 {.caption = "Clip",
                  .type = BT_ACTION_STATE,
                  .disabled = disabled,
                  .draw = id == 38 ? bt_drw_clip_record : bt_drw_clip_playrec,
                  .id = id});

    // Trigger inputs are drawn, other captions written.
    x = 4;
    for (const char* caption : {"_RISING", "_FALLING", "_LEVEL", "_ANY", "_OTHER"}) {
        Draw(x, 364, {caption, BT_TOGGLE});
        x += 98;
    }

    // The operator's own key in each of its colours.
    shortcut_menu_data_tally(1, "11110000,Key 1");
    for (int color = 0; color < 8; color++) {
        pc_favorites.proc_func(MSG_TALLY, Arg("Info@Operation Setup Data@Color Select@1"),
                               Arg(std::to_string(color + 1).c_str()), 0, 0);
        Draw(4 + 98 * color, 436,
             {.caption = "M/E-1\nKey 1",
              .type = BT_JUMP,
              .pushed = color == 7,
              .draw = bt_drw_color_select,
              .id = 1});
    }
    EXPECT_TRUE(MatchesGolden("button_family"));
}

TEST_F(ButtonSheet, GroupsFrameWhatBelongsTogether)
{
    const auto key = [](const char* caption, const char* group, BT_TBL row) {
        row.caption = caption;
        row.group = group;
        return row;
    };
    const BT_TBL keys[] = {
        key("Luminance", "Key Type", Button(17, BT_RADIO, {"~@Key Type#Luminance"}, boxes)),
        key("Linear", "Key Type", Button(18, BT_RADIO, {"~@Key Type#Linear"}, boxes)),
        key("Chroma", "Key Type", Button(19, BT_RADIO, {"~@Key Type#Chroma"}, boxes)),
        key("Key\nInvert", "@Chroma", Button(33, BT_TOGGLE, {"~@Key Invert#*"})),
        key("Clean\nMode", "@Chroma",
            Button(34, BT_TOGGLE, {"~@Clean Mode#*", "~@Key Type#!Luminance"})),
        key("Auto\nChroma", "#Chroma",
            Button(35, BT_ACTION, {"~@Auto Chroma#*", "~@Key Type#!Chroma"})),
        key("Chroma\nAdjust", "#Chroma", Button(36, BT_JUMP, {"#+11110001"})),
        key("Gone", "Gone", Button(37, BT_TOGGLE, {"~@Gone#*"})),
        {.id = -1},
    };
    TDL_FillRectS(97, 73, 702, 526, 0x303030); // what the erasing has to clear
    BT_Create(keys, 0);
    Tally("M/E-1@Key1@Type@Key Type", "Luminance");
    Tally("M/E-1@Key1@Type@Clean Mode", "true");
    BT_SetCutoff(37, 1);
    Pass(0); // draws, then erases and frames
    Pass(0);
    EXPECT_TRUE(MatchesGolden("button_group", {97, 230, 702, 450}));
    BT_SetCutoffEx(36, 1);
    Pass(0);
    EXPECT_EQ(PixelAt(450, 390), 0u) << "erased";
    EXPECT_EQ(PixelAt(494, 390), 0x3C3C3Cu) << "its frame stays";
}

// --- Base area ---

struct BaseSheet : ButtonPage {
    void OpenBase(std::initializer_list<const char*> tree, uint32_t id, const BA_TBL& table)
    {
        SetTree(tree, id);
        BA_Create(&table, 0);
    }
    static void Touch(int x, int y)
    {
        BA_Proc(MSG_PRESS, x, y, 1, 0);
        BA_Proc(MSG_REDRAW, 0, 0, 0, 0);
    }
};

TEST_F(BaseSheet, AKeyPageWithDefaultRecallArmed)
{
    Omote_History[0] = 0x11000000;
    Omote_History[1] = 0x11110000;
    Omote_History[2] = 0x11110002;
    Omote_History_NowPtr = 1;
    Omote_History_MaxPtr = 2;
    OpenBase({"M/E-1", "Key1", "Type"}, 0x11110000, base_main);
    BA_SetUsbAccess(1);
    BA_SetHDDAccess(1);
    Touch(40, 560);
    EXPECT_TRUE(MatchesGolden("base_main"));
}

TEST_F(BaseSheet, TheBackSideWithASetupPageInTheLockSet)
{
    OmoteFlag = 0;
    SetupMenu[0] = {.page = 0x73160008, .lock = 1};
    SetupMenu_Max = 1;
    OpenBase({"Engineering Setup", "System", "Maintenance", "Date and Time of all Units"},
             0x73160008, base_sub);
    Touch(750, 570); // pushed
    EXPECT_TRUE(MatchesGolden("base_setup"));
}

TEST_F(BaseSheet, TheLowerLeftKeyOfALockedPage)
{
    constexpr Rect key = {0, 527, 96, 599};
    SetupMenu[0] = {.page = 0x73110000};
    SetupMenu_Max = 1;
    SetupLock.lock = 1;
    SetupMenu[0].lock = 1;
    OpenBase({"Engineering Setup"}, 0x73110000, base_main);
    EXPECT_TRUE(MatchesGolden("base_lock_closed", key));
}
