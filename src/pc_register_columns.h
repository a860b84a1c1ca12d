// pc_register_columns: the columns of the lists of registers, by kind. A list over the whole width
// is 552 px wide, one of two 248.
#pragma once
#include "pc_register_line.h"

#define TEXT_OF(field) [](const RegisterLine& l) -> const char* { return l.field; }
inline constexpr RegisterColumn snapshot_columns[] = {
    {"No", 30, TEXT_OF(no)},        {"Name", 115, TEXT_OF(name)},
    {"L/E", 30, TEXT_OF(le)},       {"Xpt Hold", 201, TEXT_OF(xpthold)},
    {"Diss", 53, TEXT_OF(effdiss)}, {"AT", 40, TEXT_OF(autotrans)},
    {"Clip", 83, TEXT_OF(clip)},    {}};
inline constexpr RegisterColumn snapshot_dual_columns[] = {{"No", 30, TEXT_OF(no)},
                                                           {"Name", 106, TEXT_OF(name)},
                                                           {"L/E", 32, TEXT_OF(le)},
                                                           {"Attr", 80, TEXT_OF(attri)},
                                                           {}};
inline constexpr RegisterColumn wipess_columns[] = {{"No", 35, TEXT_OF(no)},
                                                    {"Name", 160, TEXT_OF(name)},
                                                    {"L/E", 57, TEXT_OF(le)},
                                                    {"Pattern", 300, TEXT_OF(pattern)},
                                                    {}};
inline constexpr RegisterColumn wipess_dual_columns[] = {{"No", 30, TEXT_OF(no)},
                                                         {"Name", 106, TEXT_OF(name)},
                                                         {"L/E", 42, TEXT_OF(le)},
                                                         {"Pattern", 70, TEXT_OF(pattern)},
                                                         {}};
inline constexpr RegisterColumn keyss_columns[] = {
    {"No", 35, TEXT_OF(no)}, {"Name", 160, TEXT_OF(name)}, {"L/E", 357, TEXT_OF(le)}, {}};
inline constexpr RegisterColumn name_dual_columns[] = {
    {"No", 35, TEXT_OF(no)}, {"Name", 143, TEXT_OF(name)}, {"L/E", 70, TEXT_OF(le)}, {}};
inline constexpr RegisterColumn effect_columns[] = {
    {"No", 35, TEXT_OF(no)},          {"Name", 110, TEXT_OF(name)},
    {"L/E", 40, TEXT_OF(le)},         {"Eff Diss", 60, TEXT_OF(effdiss)},
    {"M/E", 40, TEXT_OF(region[0])},  {"USR", 40, TEXT_OF(region[1])},
    {"DME", 40, TEXT_OF(region[2])},  {"DEV", 40, TEXT_OF(region[3])},
    {"PBus", 45, TEXT_OF(region[4])}, {"GPI", 50, TEXT_OF(region[5])},
    {"MCRO", 50, TEXT_OF(region[6])}, {}};
inline constexpr RegisterColumn effect_dme_columns[] = {
    {"No", 40, TEXT_OF(no)},          {"Name", 160, TEXT_OF(name)},
    {"L/E", 57, TEXT_OF(le)},         {"Eff Diss", 80, TEXT_OF(effdiss)},
    {"DME", 215, TEXT_OF(region[2])}, {}};
inline constexpr RegisterColumn effect_ex_columns[] = {{"No", 40, TEXT_OF(no)},
                                                       {"Name", 160, TEXT_OF(name)},
                                                       {"L/E", 57, TEXT_OF(le)},
                                                       {"Eff Diss", 80, TEXT_OF(effdiss)},
                                                       {"DEV", 107, TEXT_OF(region[3])},
                                                       {"PBus", 108, TEXT_OF(region[4])},
                                                       {}};
inline constexpr RegisterColumn effect_dual_columns[] = {{"No", 35, TEXT_OF(no)},
                                                         {"Name", 113, TEXT_OF(name)},
                                                         {"L/E", 40, TEXT_OF(le)},
                                                         {"Eff Diss", 60, TEXT_OF(effdiss)},
                                                         {}};
inline constexpr RegisterColumn menu_macro_columns[] = {
    {"No", 35, TEXT_OF(no)},         {"Name", 160, TEXT_OF(name)},         {"L/E", 57, TEXT_OF(le)},
    {"Event", 100, TEXT_OF(events)}, {"Interval", 200, TEXT_OF(interval)}, {}};
#define BANK_LINKS(width)                                                                          \
    {"ME1", width, TEXT_OF(link[0])}, {"ME2", width, TEXT_OF(link[1])},                            \
        {"ME3", width, TEXT_OF(link[2])}, {"ME4", width, TEXT_OF(link[3])},                        \
        {"ME5", width, TEXT_OF(link[4])}, {"P/P", width, TEXT_OF(link[5])},                        \
        {"USR", width, TEXT_OF(link[6])},                                                          \
    {                                                                                              \
        "DME", (width) + 4, TEXT_OF(link[7])                                                       \
    }
inline constexpr RegisterColumn master_ss_columns[] = {
    {"No", 30, TEXT_OF(no)}, {"Name", 108, TEXT_OF(name)},  {"L/E", 32, TEXT_OF(le)},
    BANK_LINKS(42),          {"RTR", 42, TEXT_OF(link[8])}, {}};
#define ALL_LINKS(width)                                                                           \
    BANK_LINKS(width), {"DEV", (width) + 1, TEXT_OF(link[8])},                                     \
        {"PBS", (width) + 1, TEXT_OF(link[9])}, {"GPI", (width)-1, TEXT_OF(link[10])},             \
    {                                                                                              \
        "MCR", (width) + 3, TEXT_OF(link[11])                                                      \
    }
inline constexpr RegisterColumn master_tl_columns[] = {{"No", 30, TEXT_OF(no)},
                                                       {"Name", 109, TEXT_OF(name)},
                                                       {"L/E", 33, TEXT_OF(le)},
                                                       ALL_LINKS(31),
                                                       {}};
inline constexpr RegisterColumn shotbox_columns[] = {{"No", 26, TEXT_OF(no)},
                                                     {"Name", 78, TEXT_OF(name)},
                                                     {"L/E", 26, TEXT_OF(le)},
                                                     {"Auto", 34, TEXT_OF(attri)},
                                                     ALL_LINKS(29),
                                                     {"RTR", 32, TEXT_OF(link[12])},
                                                     {}};
#undef ALL_LINKS
#undef BANK_LINKS
#undef TEXT_OF
