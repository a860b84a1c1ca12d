// What asks for a page that the installation lacks: it looks unusable and takes no press until the
// page is there.
#include "table_page.h"

struct MissingPages : TablePage {
    static uint32_t Asked(int x, int y)
    {
        GL_CreatePage = 0;
        (void)Touch(x, y);
        return std::exchange(GL_CreatePage, 0u);
    }
};

TEST_F(MissingPages, AKeyATabAndACellFollowWhatTheInstallationHas)
{
    constexpr int LOOKS_AFTER_MS = 500;
    static const struct {
        uint32_t page;
        Rect place;
        int* setting;
        int with, without;
        uint32_t target;
    } cases[] = {
        {PAGE_TOP, {210, 96, 294, 161}, &SYS_MEOperation[1], 0, 1, 0x12110000},
        {0x62110000, {5, 335, 85, 395}, GL_DmeModel, 0, 5, 0x62510000},
        {0x33110000, {310, 100, 480, 240}, &SYS_MEOperation[1], 0, 1, 0x12000000},
    };
    for (const auto& c : cases) {
        const Rect& r = c.place;
        const auto asked = [&] { return Asked((r.x1 + r.x2) / 2, (r.y1 + r.y2) / 2); };
        const auto set = [&](int value) {
            *c.setting = value;
            Pass(LOOKS_AFTER_MS);
            Pass(LOOKS_AFTER_MS); // a key has come up again
        };
        *c.setting = c.without;
        (void)Open(c.page);
        (void)Tell("M/E-2@Misc@Transition@Transition Rate#30"); // a cell has something to show
        Pass(10);
        const auto opened_without = PixelsIn(r);
        EXPECT_EQ(asked(), 0u) << std::hex << c.page;
        set(c.with);
        EXPECT_NE(PixelsIn(r), opened_without) << std::hex << c.page;
        EXPECT_EQ(asked(), c.target) << std::hex << c.page;
        set(c.without);
        EXPECT_EQ(PixelsIn(r), opened_without) << std::hex << c.page;
        EXPECT_EQ(asked(), 0u) << std::hex << c.page;
        set(c.with);
    }
}

TEST_F(MissingPages, OfACellThatLeadsNowhereTheNameIsDimmedToo)
{
    const Rect name = {313, 103, 400, 118};
    uint32_t brightest[2] = {};
    for (const int is_missing : {0, 1}) {
        SYS_MEOperation[1] = is_missing;
        (void)Open(0x33110000);
        (void)Tell("M/E-2@Misc@Transition@Transition Rate#30");
        Pass(10);
        for (const uint32_t pixel : PixelsIn(name))
            brightest[is_missing] = std::max(brightest[is_missing], pixel & 0xFF);
    }
    EXPECT_GT(brightest[0], 200u);
    EXPECT_LT(brightest[1], 150u);
}

// Page code puts keys out for reasons of its own, and lets them go again.
TEST_F(MissingPages, PageCodeDoesNotMakeAKeyUsableThatLeadsNowhereNorIsTheTitleOne)
{
    constexpr int KEY = 2; // M/E-2
    SYS_MEOperation[1] = 1;
    (void)Open(PAGE_TOP);
    for (const int on : {1, 0}) {
        BT_SetDisable(KEY, on);
        BT_SetAllDisable(on);
        BT_SetCutoff(KEY, on);
        (void)Press(KEY);
        EXPECT_EQ(GL_CreatePage, 0u);
    }
    BT_SetCommand(KEY, 0, "#11110000");
    (void)Press(KEY);
    EXPECT_EQ(GL_CreatePage, 0x11110000u) << "it leads elsewhere now";
    constexpr int FELT_MS = 160;
    for (const auto& [id, is_error, asked] : {std::tuple{0x33120000u, 0, 0x33000000u},
                                              {0x77770000u, 0, 0u},
                                              {0x77770000u, 1, 0x74120000u}}) {
        (void)Open(id);
        GL_ErrorPopup_On = is_error;
        (void)Touch(150, 30);
        Pass(FELT_MS);
        EXPECT_EQ(std::exchange(GL_CreatePage, 0u), asked) << std::hex << id;
    }
}
