// dme: the menu of an effects unit: its tabs and its pages. The pages act on the channels that the operator has as the
// reference.
#pragma once
#include "dme_edge.h"
#include "dme_light.h"
#include "dme_nonlinear.h"
#include "dme_transform.h"
#include "dme_video.h"
#include "pc_dme.h"
#include "rows.h"
#include "st_dme.h"

// --- Tabs ---

inline constexpr VF_TBL vf_dme[] = {
    {.id = 1, .caption = "Edge",      .page = 0x41110000},
    {.id = 2, .caption = "Video",     .page = 0x41210000},
    {.id = 3, .caption = "Nonlinear", .page = 0x41310000},
    {.id = 4, .caption = "Freeze",    .page = 0x41410000},
    {.id = 5, .caption = "Light/\nTrail", .page = 0x41510000},
    {.id = 6, .caption = "Input/\nOutput", .page = 0x41610000},
    {.id = 7, .caption = "Transform", .page = 0x41710000},
    VF_END,
};
inline constexpr HF_TBL hf_dme_edge[] = {
    {.id = 1, .caption = "Border/\nCrop", .page = 0x41110000, .statcmd = {"DME@Edge@Border/Crop@Border#true", "DME@Edge@Border/Crop@Crop#true"}},
    {.id = 2, .caption = "Soft/\nBeveled", .page = 0x41120000, .statcmd = {"DME@Edge@Soft/Beveled@Soft Edge#true", "DME@Edge@Soft/Beveled@Beveled Edge#true"}},
    {.id = 3, .caption = "Key\nBorder",   .page = 0x41130000, .statcmd = {"DME@Edge@Key Border@Key Border#true"}},
    {.id = 4, .caption = "Art Edge",      .page = 0x41140000, .statcmd = {"DME@Edge@Art Edge@Art Edge#true"}},
    {.id = 5, .caption = "Wipe\nCrop",    .page = 0x41150000, .statcmd = {"DME@Edge@Wipe Crop@Wipe Crop#true"}},
    {.id = 6, .caption = "Color Mix",     .page = 0x41160000, .statcmd = {"DME@Edge@Color Mix@Color Mix#true"}},
    HF_END,
};
inline constexpr HF_TBL hf_dme_video[] = {
    {.id = 1, .caption = "Defocus/\nBlur", .page = 0x41210000, .statcmd = {"DME@Video@Defocus/Blur@Defocus#true", "DME@Video@Defocus/Blur@Blur#true", "DME@Video@Defocus/Blur@Key Defocus#true"}},
    {.id = 2, .caption = "Color\nModify",  .page = 0x41220000, .statcmd = {"DME@Video@Color Modify@Color Modify#true", "DME@Video@Color Modify@Sepia#true", "DME@Video@Color Modify@Mono#true", "DME@Video@Color Modify@Nega#true", "DME@Video@Color Modify@Posterize#true"}},
    {.id = 3, .caption = "Mosaic/\nMulti", .page = 0x41230000, .statcmd = {"DME@Video@Mosaic/Multi@Mosaic#true", "DME@Video@Mosaic/Multi@Multi Move#true"}},
    {.id = 4, .caption = "Mask",           .page = 0x41240000, .statcmd = {"DME@Video@Mask@Mask#true"}},
    HF_END,
};
inline constexpr HF_TBL hf_dme_nonlinear[] = {
    {.id = 1, .caption = "Type",       .page = 0x41310000},
    {.id = 2, .caption = "Roll",       .page = 0x41320000, .statcmd = {"DME@Nonlinear@Type@Type#Roll"}},
    {.id = 3, .caption = "Page\nTurn", .page = 0x41330000, .statcmd = {"DME@Nonlinear@Type@Type#Page Turn"}},
    HF_END,
};
inline constexpr HF_TBL hf_dme_freeze[] = {
    {.id = 1, .caption = "Freeze", .page = 0x41410000, .statcmd = {"DME@Freeze@Freeze@Freeze#true", "DME@Freeze@Freeze@Key Freeze#true"}},
    HF_END,
};
inline constexpr HF_TBL hf_dme_light[] = {
    {.id = 1, .caption = "Light",     .page = 0x41510000, .statcmd = {"DME@Light@Light@Light#true"}},
    {.id = 2, .caption = "Shadow",    .page = 0x41520000, .statcmd = {"DME@Light@Shadow@Shadow#true"}},
    {.id = 3, .caption = "Trail",     .page = 0x41530000, .statcmd = {"DME@Light@Trail@Trail#true", "DME@Light@Trail@Motion Decay#true"}},
    {.id = 4, .caption = "Wind",      .page = 0x41540000, .statcmd = {"DME@Light@Wind@Wind#true"}},
    {.id = 5, .caption = "Spotlight", .page = 0x41550000, .statcmd = {"DME@Light@Spotlight@Spotlight#true"}},
    {.id = 6, .caption = "Bkgd",      .page = 0x41560000, .statcmd = {"DME@Light@Bkgd@Bkgd#true"}},
    HF_END,
};
inline constexpr HF_TBL hf_dme_inout[] = {
    {.id = 1, .caption = "Input",  .page = 0x41610000},
    {.id = 2, .caption = "Output", .page = 0x41640000},
    HF_END,
};
inline constexpr HF_TBL hf_dme_transform[] = {
    {.id = 1, .caption = "3D Trans",        .page = 0x41710000},
    {.id = 2, .caption = "Corner\nPinning", .page = 0x41720000, .statcmd = {"DME@Transform@Corner Pinning@Corner Pinning#true"}},
    {.id = 3, .caption = "Graphic",         .page = 0x41730000, .statcmd = {"DME@Transform@Graphic@Local#true", "DME@Transform@Graphic@Global#true"}},
    HF_END,
};

// --- Pages ---

// The digits of an id are its place: the third the left tab; the fourth a bottom tab, with those that follow a variant.
constexpr uint32_t DmeLeftTab(uint32_t id) { return id >> 20 & 0x0F; }
constexpr uint32_t DmeBottomTab(uint32_t id, const HF_TBL* tabs)
{
    for (; tabs->id >= 1; tabs++)
        if ((tabs->page & 0xFFFF0000) == (id & 0xFFFF0000)) return uint32_t(tabs->id);
    return 0;
}
constexpr PAGE DmePage(uint32_t id, const char* group, const char* page, const HF_TBL* tabs, const BT_TBL* buttons)
{
    return {.id = id, .tree = {"DME", group, page},
            .obj = {Base(base_main), LeftTabs(vf_dme, DmeLeftTab(id)), BottomTabs(tabs, DmeBottomTab(id, tabs)),
                    Buttons(buttons), Boxes(NB_Non), Cells(st_dme_comstatus_localtrgt), Code(pc_dme)}};
}
// A page that opens from another of its tab.
constexpr PAGE DmeSubPage(uint32_t id, const char* sub, const PAGE& parent, const BT_TBL* buttons)
{
    PAGE page = parent;
    page.id = id;
    page.tree[3] = sub;
    page.obj[0] = Base(base_sub, parent.id);
    page.obj[3] = Buttons(buttons);
    return page;
}
// A still picture shows nothing of the transform: the page has no cells.
constexpr PAGE WithoutCells(PAGE page)
{
    page.obj[5] = page.obj[6] = {};
    return page;
}
inline constexpr PAGE dme_light_page = DmePage(0x41510000, "Light", "Light", hf_dme_light, bt_dme_light);

inline constexpr BT_TBL bt_dme_top[] = {
    Jump(       {.id = 17, .caption = "Edge", .group = "DME", .cmd = {"#41110000"}}),
    Jump(       {.id = 18, .caption = "Video", .group = "DME", .cmd = {"#41210000"}}),
    Jump(       {.id = 19, .caption = "Nonlinear", .group = "DME", .cmd = {"#41310000"}}),
    Jump(       {.id = 20, .caption = "Freeze", .group = "DME", .cmd = {"#41410000"}}),
    Jump(       {.id = 33, .caption = "Light/\nTrail", .group = "DME", .cmd = {"#41510000"}}),
    Jump(       {.id = 34, .caption = "Input/\nOutput", .group = "DME", .cmd = {"#41610000"}}),
    Jump(       {.id = 35, .caption = "Transform", .group = "DME", .cmd = {"#41710000"}}),
    Jump(       {.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_dme_top));

inline constexpr PAGE dme_pages[] = {
    {.id = 0x41000000, .tree = {"DME"}, .obj = {Base(base_main), Buttons(bt_dme_top)}},
    DmePage(0x41110100, "Edge", "Border/Crop", hf_dme_edge, bt_dme_edge_bordercrop),
    DmePage(0x41110200, "Edge", "Border/Crop", hf_dme_edge, bt_dme_edge_bordercrop_own),
    DmePage(0x41120000, "Edge", "Soft/Beveled", hf_dme_edge, bt_dme_edge_soft),
    DmePage(0x41130000, "Edge", "Key Border", hf_dme_edge, bt_dme_edge_keyborder),
    DmePage(0x41140000, "Edge", "Art Edge", hf_dme_edge, bt_dme_edge_artedge),
    DmePage(0x41150000, "Edge", "Wipe Crop", hf_dme_edge, bt_dme_edge_wipecrop),
    DmePage(0x41160000, "Edge", "Color Mix", hf_dme_edge, bt_dme_edge_colormix),
    DmePage(0x41210100, "Video", "Defocus/Blur", hf_dme_video, bt_dme_video_defocus),
    DmePage(0x41210200, "Video", "Defocus/Blur", hf_dme_video, bt_dme_video_defocus_key),
    DmePage(0x41220000, "Video", "Color Modify", hf_dme_video, bt_dme_video_color),
    DmePage(0x41230000, "Video", "Mosaic/Multi", hf_dme_video, bt_dme_video_mosaic),
    DmePage(0x41240000, "Video", "Mask", hf_dme_video, bt_dme_video_mask),
    DmePage(0x41310000, "Nonlinear", "Type", hf_dme_nonlinear, bt_dme_nonlinear_type),
    DmePage(0x41320000, "Nonlinear", "Roll", hf_dme_nonlinear, bt_dme_nonlinear_roll),
    DmePage(0x41330000, "Nonlinear", "Page Turn", hf_dme_nonlinear, bt_dme_nonlinear_pageturn),
    WithoutCells(DmePage(0x41410000, "Freeze", "Freeze", hf_dme_freeze, bt_dme_freeze)),
    dme_light_page,
    DmeSubPage(0x41510001, "Light 1", dme_light_page, bt_dme_light_adjust),
    DmeSubPage(0x41510002, "Light 2", dme_light_page, bt_dme_light_adjust),
    DmeSubPage(0x41510003, "Light 3", dme_light_page, bt_dme_light_adjust),
    DmePage(0x41520000, "Light", "Shadow", hf_dme_light, bt_dme_shadow),
    DmePage(0x41530000, "Light", "Trail", hf_dme_light, bt_dme_trail),
    DmePage(0x41540000, "Light", "Wind", hf_dme_light, bt_dme_wind),
    DmePage(0x41550000, "Light", "Spotlight", hf_dme_light, bt_dme_spotlight),
    DmePage(0x41560000, "Light", "Bkgd", hf_dme_light, bt_dme_bkgd),
    DmePage(0x41610100, "Input/Output", "Input", hf_dme_inout, bt_dme_input),
    DmePage(0x41610200, "Input/Output", "Input", hf_dme_inout, bt_dme_input_own),
    DmePage(0x41640200, "Input/Output", "Output", hf_dme_inout, bt_dme_output),
    DmePage(0x41710000, "Transform", "3D Trans", hf_dme_transform, bt_dme_3dtrans),
    DmePage(0x41720000, "Transform", "Corner Pinning", hf_dme_transform, bt_dme_cornerpinning),
    DmePage(0x41730000, "Transform", "Graphic", hf_dme_transform, bt_dme_graphic),
};
