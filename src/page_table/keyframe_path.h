// keyframe_path: how what a keyframe holds gets from one keyframe to the next. A list of all regions leads to one of
// each, and a bank's leads on to its backgrounds; the first row of a list sets all below it and leads back.
#pragma once
#include "keyframe.h"
#include <array>

// --- Lists ---

constexpr KP_TBL AllPaths(const char* caption, uint32_t back)
{
    return {.caption = caption, .isxpt = 1, .ishue = 1, .iscurve = 1, .curvetype = 0, .cmd = "~@All@", .jump = back};
}
constexpr KP_TBL Path(const char* caption, const char* cmd, uint32_t jump = 0)
{
    return {.caption = caption, .isxpt = 1, .ishue = 1, .iscurve = 1, .curvetype = 1, .cmd = cmd, .jump = jump};
}
constexpr KP_TBL Motion(const char* caption, const char* cmd) // without crosspoints and colours
{
    return {.caption = caption, .iscurve = 1, .cmd = cmd};
}

using BankPaths = std::array<KP_TBL, 11>;
constexpr BankPaths PathsOfBank(const char* all, uint32_t backgrounds)
{
    return {{AllPaths(all, 0x61130000), Path("Bkgd/Util", "~@Bkgd/Util@All@", backgrounds), Path("Key1", "~@Key1@All@"),
             Path("Key2", "~@Key2@All@"), Path("Key3", "~@Key3@All@"), Path("Key4", "~@Key4@All@"),
             Path("Key5", "~@Key5@All@"), Path("Key6", "~@Key6@All@"), Path("Key7", "~@Key7@All@"),
             Path("Key8", "~@Key8@All@"), KP_END}};
}
inline constexpr BankPaths kp_kf_path_me1 = PathsOfBank("M/E-1 All", 0x61130501);
inline constexpr BankPaths kp_kf_path_me2 = PathsOfBank("M/E-2 All", 0x61130502);
inline constexpr BankPaths kp_kf_path_me3 = PathsOfBank("M/E-3 All", 0x61130503);
inline constexpr BankPaths kp_kf_path_pp  = PathsOfBank("P/P All",   0x61130504);
inline constexpr BankPaths kp_kf_path_me4 = PathsOfBank("M/E-4 All", 0x61130521);
inline constexpr BankPaths kp_kf_path_me5 = PathsOfBank("M/E-5 All", 0x61130523);
inline constexpr BankPaths kp_kf_path_me1_sub = PathsOfBank("M/E-1 Sub All", 0);
inline constexpr BankPaths kp_kf_path_me2_sub = PathsOfBank("M/E-2 Sub All", 0);
inline constexpr BankPaths kp_kf_path_me3_sub = PathsOfBank("M/E-3 Sub All", 0);
inline constexpr BankPaths kp_kf_path_pp_sub  = PathsOfBank("P/P Sub All",   0);
inline constexpr BankPaths kp_kf_path_me4_sub = PathsOfBank("M/E-4 Sub All", 0);
inline constexpr BankPaths kp_kf_path_me5_sub = PathsOfBank("M/E-5 Sub All", 0);

using BackgroundPaths = std::array<KP_TBL, 6>;
constexpr BackgroundPaths PathsOfBackgrounds(uint32_t bank)
{
    return {{AllPaths("Bkgd/Util All", bank), Path("Bkgd A", "~@Bkgd A@"), Path("Bkgd B", "~@Bkgd B@"),
             Path("Utility 1", "~@Utility 1@"), Path("Utility 2", "~@Utility 2@"), KP_END}};
}
inline constexpr BackgroundPaths kp_kf_path_me1_bkgd = PathsOfBackgrounds(0x61130001);
inline constexpr BackgroundPaths kp_kf_path_me2_bkgd = PathsOfBackgrounds(0x61130002);
inline constexpr BackgroundPaths kp_kf_path_me3_bkgd = PathsOfBackgrounds(0x61130003);
inline constexpr BackgroundPaths kp_kf_path_pp_bkgd  = PathsOfBackgrounds(0x61130004);
inline constexpr BackgroundPaths kp_kf_path_me4_bkgd = PathsOfBackgrounds(0x61130021);
inline constexpr BackgroundPaths kp_kf_path_me5_bkgd = PathsOfBackgrounds(0x61130023);

inline constexpr KP_TBL kp_kf_path_user[] = {
    AllPaths("User All", 0x61130000),
    Path("Aux Bus",      "~@Aux Bus@"),
    Path("Color Bkgd",   "~@Color Bkgd@"),
    Path("Frame Memory", "~@Frame Memory@"),
    Path("CCR",          "~@CCR@"),
    KP_END,
};
inline constexpr KP_TBL kp_kf_path_dme[] = {
    AllPaths("DME All", 0x61130000),
    Motion("DME1", "~@DME1@All@"), Motion("DME2", "~@DME2@All@"), Motion("DME3", "~@DME3@All@"),
    Motion("DME4", "~@DME4@All@"), Motion("DME5", "~@DME5@All@"), Motion("DME6", "~@DME6@All@"),
    Motion("DME7", "~@DME7@All@"), Motion("DME8", "~@DME8@All@"),
    KP_END,
};
inline constexpr KP_TBL kp_kf_path_global[] = {
    AllPaths("DME GLB All", 0x61130000),
    Motion("DME1 GLB", "~@DME1@All@"), Motion("DME2 GLB", "~@DME2@All@"), Motion("DME3 GLB", "~@DME3@All@"),
    Motion("DME4 GLB", "~@DME4@All@"), Motion("DME5 GLB", "~@DME5@All@"), Motion("DME6 GLB", "~@DME6@All@"),
    Motion("DME7 GLB", "~@DME7@All@"), Motion("DME8 GLB", "~@DME8@All@"),
    KP_END,
};
inline constexpr KP_TBL kp_kf_path_device[] = {
    AllPaths("DEV All", 0x61130000),
    Motion("DEV1", "~@DEV1@All@"),   Motion("DEV2", "~@DEV2@All@"),   Motion("DEV3", "~@DEV3@All@"),
    Motion("DEV4", "~@DEV4@All@"),   Motion("DEV5", "~@DEV5@All@"),   Motion("DEV6", "~@DEV6@All@"),
    Motion("DEV7", "~@DEV7@All@"),   Motion("DEV8", "~@DEV8@All@"),   Motion("DEV9", "~@DEV9@All@"),
    Motion("DEV10", "~@DEV10@All@"), Motion("DEV11", "~@DEV11@All@"), Motion("DEV12", "~@DEV12@All@"),
    Motion("P-BUS", "~@P-BUS@All@"),
    KP_END,
};
inline constexpr KP_TBL kp_kf_path_colorbkgd[] = {
    AllPaths("Color Bkgd All", 0x61130000),
    Path("Color Bkgd 1", "~@Color Bkgd 1@"),
    Path("Color Bkgd 2", "~@Color Bkgd 2@"),
    KP_END,
};
inline constexpr KP_TBL kp_kf_path[] = {
    Path("M/E-1",      "~@M/E-1@All@",      0x61130001), Path("M/E-1 Sub", "~@M/E-1 Sub@All@", 0x61130017),
    Path("M/E-2",      "~@M/E-2@All@",      0x61130002), Path("M/E-2 Sub", "~@M/E-2 Sub@All@", 0x61130018),
    Path("M/E-3",      "~@M/E-3@All@",      0x61130003), Path("M/E-3 Sub", "~@M/E-3 Sub@All@", 0x61130019),
    Path("M/E-4",      "~@M/E-4@All@",      0x61130021), Path("M/E-4 Sub", "~@M/E-4 Sub@All@", 0x61130022),
    Path("M/E-5",      "~@M/E-5@All@",      0x61130023), Path("M/E-5 Sub", "~@M/E-5 Sub@All@", 0x61130024),
    Path("P/P",        "~@P/P@All@",        0x61130004), Path("P/P Sub",   "~@P/P Sub@All@",   0x61130020),
    Path("USER1",      "~@USER1@All@",      0x61130005), Path("USER2",     "~@USER2@All@",     0x61130006),
    Path("USER3",      "~@USER3@All@",      0x61130007), Path("USER4",     "~@USER4@All@",     0x61130008),
    Path("USER5",      "~@USER5@All@",      0x61130009), Path("USER6",     "~@USER6@All@",     0x61130010),
    Path("USER7",      "~@USER7@All@",      0x61130011), Path("USER8",     "~@USER8@All@",     0x61130012),
    Path("DME",        "~@DME@All@",        0x61130013), Path("DME GLB",   "~@DME GLB@All@",   0x61130014),
    Path("DEV",        "~@DEV@All@",        0x61130015), Path("Color Bkgd", "~@Color Bkgd@All@", 0x61130016),
    KP_END,
};

// --- Pages ---

// The low bytes of an id read as decimals. A page has a row for each of its variants, and all show the same.
struct PathPage {
    uint32_t id = 0;
    const char* region = nullptr;
    const KP_TBL* paths = nullptr;
    uint32_t variant[2] = {};
    const char* part = nullptr;
};
constexpr uint32_t ONE_ROW = 0xFFFF;

inline constexpr PathPage keyframe_path_pages[] = {
    {0x61130000, nullptr,      kp_kf_path,                {0x1000, ONE_ROW}},
    {0x61130001, "M/E-1",      kp_kf_path_me1.data(),     {0x1000, 0x4000}},
    {0x61130002, "M/E-2",      kp_kf_path_me2.data(),     {0x1000, 0x4000}},
    {0x61130003, "M/E-3",      kp_kf_path_me3.data(),     {0x1000, 0x4000}},
    {0x61130004, "P/P",        kp_kf_path_pp.data(),      {0x1000, 0x4000}},
    {0x61130021, "M/E-4",      kp_kf_path_me4.data(),     {0x1000, 0x4000}},
    {0x61130023, "M/E-5",      kp_kf_path_me5.data(),     {0x1000, 0x4000}},
    {0x61130017, "M/E-1 Sub",  kp_kf_path_me1_sub.data(), {0, 0x3000}},
    {0x61130018, "M/E-2 Sub",  kp_kf_path_me2_sub.data(), {0, 0x3000}},
    {0x61130019, "M/E-3 Sub",  kp_kf_path_me3_sub.data(), {0, 0x3000}},
    {0x61130020, "P/P Sub",    kp_kf_path_pp_sub.data(),  {0, 0x3000}},
    {0x61130022, "M/E-4 Sub",  kp_kf_path_me4_sub.data(), {0, 0x3000}},
    {0x61130024, "M/E-5 Sub",  kp_kf_path_me5_sub.data(), {0, 0x3000}},
    {0x61130005, "USER1",      kp_kf_path_user,           {0, 0x3000}},
    {0x61130006, "USER2",      kp_kf_path_user,           {0, 0x3000}},
    {0x61130007, "USER3",      kp_kf_path_user,           {0, 0x3000}},
    {0x61130008, "USER4",      kp_kf_path_user,           {0, 0x3000}},
    {0x61130009, "USER5",      kp_kf_path_user,           {0, 0x3000}},
    {0x61130010, "USER6",      kp_kf_path_user,           {0, 0x3000}},
    {0x61130011, "USER7",      kp_kf_path_user,           {0, 0x3000}},
    {0x61130012, "USER8",      kp_kf_path_user,           {0, 0x3000}},
    {0x61130013, "DME",        kp_kf_path_dme,            {0, ONE_ROW}},
    {0x61130014, "DME GLB",    kp_kf_path_global,         {0, ONE_ROW}},
    {0x61130015, "DEV",        kp_kf_path_device,         {0, ONE_ROW}},
    {0x61130016, "Color Bkgd", kp_kf_path_colorbkgd,      {0, ONE_ROW}},
    {0x61130501, "M/E-1",      kp_kf_path_me1_bkgd.data(), {0, 0x1000}, "Bkgd/Util"},
    {0x61130502, "M/E-2",      kp_kf_path_me2_bkgd.data(), {0, 0x1000}, "Bkgd/Util"},
    {0x61130503, "M/E-3",      kp_kf_path_me3_bkgd.data(), {0, 0x1000}, "Bkgd/Util"},
    {0x61130504, "P/P",        kp_kf_path_pp_bkgd.data(),  {0, 0x1000}, "Bkgd/Util"},
    {0x61130521, "M/E-4",      kp_kf_path_me4_bkgd.data(), {0, 0x1000}, "Bkgd/Util"},
    {0x61130523, "M/E-5",      kp_kf_path_me5_bkgd.data(), {0, 0x1000}, "Bkgd/Util"},
};

constexpr PAGE PathPageRow(const PathPage& p, uint32_t variant)
{
    return {.id = p.id + variant, .tree = {"Key Frame", "Path", p.region, p.part},
            .obj = {Base(base_main), BottomTabs(hf_kf, 2), PathList(p.paths)}};
}
constexpr size_t PathRowCount()
{
    size_t n = 0;
    for (const PathPage& p : keyframe_path_pages)
        for (const uint32_t variant : p.variant) n += variant != ONE_ROW;
    return n;
}
constexpr auto PathRows()
{
    std::array<PAGE, PathRowCount()> rows{};
    size_t n = 0;
    for (const PathPage& p : keyframe_path_pages)
        for (const uint32_t variant : p.variant)
            if (variant != ONE_ROW) rows[n++] = PathPageRow(p, variant);
    return rows;
}
inline constexpr auto keyframe_path_rows = PathRows();
