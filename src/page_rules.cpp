// Which row of PageTable a request opens. Requests name a page without a variant; which variant
// exists, and whether the page exists at all, follows from the models, the formats and the modes of
// the installation.
#include "device.h"
#include "file.h"
#include "global.h"
#include "page.h"
#include "text.h"
#include <algorithm>
#include <cstring>
#include <iterator>

#include "safeguards.h"

namespace
{
constexpr int MODEL_QRD51 = 5; // GL_DmeModel: a unit with one channel group
constexpr int MODEL_ZRD52 = 8;

constexpr DEVTYPE KTR40G = DEVTYPE_KTR40G | DEVTYPE_KTR40GSF;
constexpr DEVTYPE KTR40X_OR_NTR40 = DEVTYPE_KTR40X | DEVTYPE_NTR40;

// A type is one bit, or 0 for an unknown model, which is none of a set.
bool is_one_of(DEVTYPE type, DEVTYPE set)
{
    return (type & set) != 0;
}

// --- What the rules ask ---
bool is_3d()
{
    return SYS_3DMode == 1;
}
bool is_dual()
{
    return isDualProc_DualLink();
}
bool is_dual_dme()
{
    return isDualProc_DualLink_DME();
}
bool is_3g()
{
    return is1080P_3G();
}
bool is_single_qrd51()
{
    return !is_dual() && GL_DmeModel[0] == MODEL_QRD51;
}
bool is_dual_zrd52()
{
    return is_dual() && GL_DmeModel[0] == MODEL_ZRD52;
}
bool is_dual_but_zrd52()
{
    return is_dual() && GL_DmeModel[0] != MODEL_ZRD52;
}
bool is_dual_but_zrd52_at_1080p()
{
    return is_dual() && !is1080P_ZRD52_DME();
}
bool is_zrd52_at_1080p()
{
    return is1080P_ZRD52_DME();
}
bool is_dual_dme_or_zrd52()
{
    return is_dual_dme() || is_zrd52_at_1080p();
}
bool is_x_switcher()
{
    return is_one_of(SYS_RefSwrType, KTR40X_OR_NTR40);
}
bool is_ktr40e()
{
    return SYS_RefSwrType == DEVTYPE_KTR40E;
}
bool is_target_ktr40e()
{
    return SYS_TargetSwrType == DEVTYPE_KTR40E;
}
bool is_1080p()
{
    return SYS_RefSwrActiveLine == ACTIVELINE_1080P;
}
bool is_fmem_v6()
{
    return SYS_FmemV6 != 0;
}
bool is_not_fmem_v6()
{
    return !is_fmem_v6();
}
bool is_without_clip_store()
{
    return GL_ClipStoreSupportMode == 0;
}

bool is_dme_with_own_frame()
{
    return is_one_of(getDmeReferenceModel(), DEVTYPE_HLDB7 | DEVTYPE_FXU50 | DEVTYPE_ZRD52);
}

bool has_dedicated_dme()
{
    const int unit = getDmeReferenceUnit();
    if (is1080P_3G_DME() || unit < 1 || unit > int(std::size(GL_DmeSdiIF)))
        return false;
    const int model = GL_DmeModel[unit - 1];
    return (model == 2 || model == 4 || model == 6) && GL_DmeSdiIF[unit - 1] == 1;
}

// Channels 2 and 3 of a group run combined, or 3 and 4 without 2; c are the group's four channels.
bool is_combined_pair(const int* c)
{
    return c[1] ? c[2] != 0 : c[2] && c[3];
}
bool is_first_pair_combined()
{
    return is_combined_pair(SYS_CombineCh);
}
bool is_second_pair_combined()
{
    return is_combined_pair(SYS_CombineCh + 4);
}

bool is_install_of_switcher()
{
    return BeginsWith(Page_InstallUnit, "SWR");
}
bool is_install_of_old_menu()
{
    return strcmp(Page_InstallUnit, "Menu") == 0 &&
           is_one_of(SYS_TargetSwrType, DEVTYPE_KTR40 | DEVTYPE_KTR40SF);
}

// The first generation throughout: it has its own engineering menu.
bool is_first_generation()
{
    const auto is_old_swr = [](const DEVICE* dev) {
        return dev->type == DEVTYPE_KTR40 || dev->type == DEVTYPE_KTR40SF;
    };
    const auto is_old_dme = [](const DEVICE* dev) { return dev->type == DEVTYPE_FXU40; };
    const auto is_old_pnl = [](const DEVICE* dev) { return dev->type != DEVTYPE_QRD11B; };
    return std::all_of(DEV_MySwr, DEV_MySwr + SYS_MySwrMax, is_old_swr) &&
           std::all_of(DEV_MyDme, DEV_MyDme + SYS_MyDmeMax, is_old_dme) &&
           std::all_of(DEV_MyPnl, DEV_MyPnl + SYS_MyPnlMax, is_old_pnl);
}

// --- Variants ---
// A request in first..last, bits outside `mask` left out of account, becomes what is left of it
// plus `add`.
struct Variant {
    uint32_t first;
    uint32_t last;
    uint32_t add;
    bool (*when)() = nullptr; // null: always
    uint32_t mask = 0xFFFFFFFF;
};
constexpr Variant One(uint32_t id, uint32_t add, bool (*when)() = nullptr)
{
    return {id, id, add, when};
}
constexpr uint32_t NO_VARIANT_NIBBLE = 0xFFFF0FFF;

// In this order: where a request has several rows the first that holds decides, and a rewritten id
// may meet a later row in its turn.
constexpr Variant variants[] = {
    One(0x21000000, 0x04110000, is_without_clip_store), // its pages have a bank of their own
    One(0x21110000, 0x04000000, is_without_clip_store),
    One(0x25000000, 0x00110000), // what the title of that bank asks for; it has no top page
    One(0x24170000, 0x0100, is_x_switcher),
    One(0x24270000, 0x0100, is_x_switcher),
    One(0x42000000, 0x0400, is_3d),
    One(0x42000000, 0x0500, is_dual_zrd52),
    One(0x42000000, 0x0200, is_dual),
    One(0x42000000, 0x0100, is_single_qrd51),
    One(0x42110000, 0x1000, is_3d),
    One(0x42110000, 0x0900, is_dual_but_zrd52),
    One(0x42110000, 0x0800, is_single_qrd51),
    One(0x42210000, 0x1000, is_3d),
    One(0x42210000, 0x0800, is_dual),
    One(0x42120000, 0x0400, is_3d),
    One(0x42120000, 0x0300, is_dual_but_zrd52_at_1080p),
    One(0x42120000, 0x0100, is_first_pair_combined),
    One(0x42120000, 0x0200),
    One(0x42220000, 0x0400, is_3d),
    One(0x42220000, 0x0300, is_dual),
    One(0x42220000, 0x0100, is_second_pair_combined),
    One(0x42220000, 0x0200),
    One(0x42130000, 0x0300, is_3d),
    One(0x42130000, 0x0200, is_dual_but_zrd52),
    One(0x42130000, 0x0100, is_single_qrd51),
    One(0x42230000, 0x0300, is_3d),
    One(0x42230000, 0x0100, is_dual),
    One(0x42160000, 0x0200, is_3d),
    One(0x42160000, 0x0100, is_dual),
    One(0x42260000, 0x0200, is_3d),
    One(0x42260000, 0x0100, is_dual),
    One(0x42170000, 0x0200, is_3d),
    One(0x42170000, 0x0100, is_dual_dme),
    One(0x42270000, 0x0300, is_3d),
    One(0x42270000, 0x0100, is_dual_dme_or_zrd52),
    One(0x73310002, 0x0100),
    One(0x33110000, 0x0200, is_ktr40e),
    One(0x33110000, 0x0100),
    One(0x41110000, 0x0200, is_dme_with_own_frame),
    One(0x41110000, 0x0100),
    One(0x41610000, 0x0200, is_dme_with_own_frame),
    One(0x41610000, 0x0100),
    One(0x41210000, 0x0200, has_dedicated_dme),
    One(0x41210000, 0x0100),
    One(0x41640000, 0x0200),
    {0x71510000, 0x71510001, 0x0200, is_fmem_v6},
    {0x71510000, 0x71510001, 0x0100},
    One(0x71610000, 0x0100, is_not_fmem_v6),
    One(0x73310006, 0x0100, is_target_ktr40e),
    {0x73330000, 0x73330001, 0x0200},
    {0x73430000, 0x73430001, 0x0100, is_dual},
    One(0x73440000, 0x0100, is_dual),
    One(0x73410001, 0x0200, is_zrd52_at_1080p),
    One(0x73410001, 0x0100, is_dual),
    One(0x73440001, 0x0200, is_zrd52_at_1080p),
    One(0x73440001, 0x0100, is_dual),
    {0x73440003, 0x73440004, 0x0100, is_dual_dme},
    One(0x73440006, 0x0100, is_dual_dme),
    One(0x31210000, 0x0100, is_1080p),
    {0x61130005, 0x61130012, 0x3000, is_x_switcher},
    One(0x32110000, 0x0100, is_dual),
    One(0x73320002, 0x0600),
    One(0x61130000, 0x1000),
    {0x61130001, 0x61130004, 0x4000, is_3g, NO_VARIANT_NIBBLE},
    {0x61130021, 0x61130021, 0x4000, is_3g, NO_VARIANT_NIBBLE},
    {0x61130023, 0x61130023, 0x4000, is_3g, NO_VARIANT_NIBBLE},
    {0x61130001, 0x61130004, 0x1000, nullptr, NO_VARIANT_NIBBLE},
    {0x61130021, 0x61130021, 0x1000, nullptr, NO_VARIANT_NIBBLE},
    {0x61130023, 0x61130023, 0x1000, nullptr, NO_VARIANT_NIBBLE},
    {0x61130017, 0x61130019, 0x3000, is_3g},
    One(0x61130020, 0x3000, is_3g),
    One(0x61130022, 0x3000, is_3g),
    One(0x61130024, 0x3000, is_3g),
};

// --- Pages that do not exist here ---
// An id, bits outside `mask` left out of account, in first..last is hidden when `when` says so.
struct Hidden {
    uint32_t first;
    uint32_t last;
    bool (*when)();
    uint32_t mask = 0xFFFFFFFF;
};
constexpr Hidden NotThere(uint32_t id, bool (*when)())
{
    return {id, id, when};
}
bool has_old_switcher()
{
    return is_one_of(SYS_RefSwrType, OLD_SWITCHERS);
}
bool has_old_target()
{
    return is_one_of(SYS_TargetSwrType, OLD_SWITCHERS);
}
bool is_qrd51()
{
    return GL_DmeModel[0] == MODEL_QRD51;
}
bool is_not_dual()
{
    return !is_dual();
}
bool is_not_target_ktr40e()
{
    return !is_target_ktr40e();
}
bool has_no_panel_option()
{
    return !hasPanelOption();
}
bool has_no_clip_transition()
{
    return !Is_clip_transition_enable();
}
bool is_pcx50()
{
    return isRefPnlPCX50();
}
bool is_not_pcx50()
{
    return !isRefPnlPCX50();
}
bool is_fxu40a()
{
    return SYS_RefDmeType == DEVTYPE_FXU40A;
}
bool has_key_rows()
{
    return GL_KeyRowMode != 0;
}
bool is_not_ntr40()
{
    return SYS_RefSwrType != DEVTYPE_NTR40;
}
bool has_no_zrd52()
{
    return std::none_of(DEV_MySwr, DEV_MySwr + SYS_MySwrMax,
                        [](const DEVICE* swr) { return isZRD52onSWR(swr); });
}
bool has_no_frame_converter()
{
    return !is_one_of(SYS_TargetSwrType, KTR40G) || is_1080p() || is_3d() || !hasFrameConverter();
}
bool has_no_own_xpt_panel()
{
    return is_one_of(SYS_RefPnlType,
                     DEVTYPE_QRD21 | DEVTYPE_QRD22 | DEVTYPE_QRD21A | DEVTYPE_QRD22A);
}
bool has_no_second_tab()
{
    return !is_one_of(SYS_RefSwrType, KTR40G | DEVTYPE_KTR40E | KTR40X_OR_NTR40);
}
bool is_board_split_in_four()
{
    return std::find(std::begin(GL_BoardMESplit), std::end(GL_BoardMESplit), 4) !=
           std::end(GL_BoardMESplit);
}

constexpr uint32_t TAB_MASK = 0xFFFF0000;
constexpr Hidden hidden[] = {
    NotThere(0x71520000, is_not_fmem_v6),
    {0x21000000, 0x21000000, is_without_clip_store, 0xFF000000},
    NotThere(0x25130000, is_not_fmem_v6),
    NotThere(0x73310015, has_no_zrd52),
    NotThere(0x73220010, has_old_target),
    NotThere(0x73310007, has_old_target),
    NotThere(0x73330007, has_no_frame_converter),
    NotThere(0x73330008, is_not_target_ktr40e),
    NotThere(0x73370008, is_not_fmem_v6),
    NotThere(0x32120000, has_no_panel_option),
    NotThere(0x32130000, has_old_switcher),
    {0x71240000, 0x71240001, is_qrd51},
    {0x62500000, 0x62500000, is_qrd51, 0xFFF00000},
    {0x41130000, 0x41170000, is_fxu40a, TAB_MASK},
    {0x41550000, 0x41560000, is_fxu40a, TAB_MASK},
    {0x41730000, 0x41730000, is_fxu40a, TAB_MASK},
    {0x73440007, 0x734400FF, is_not_dual, 0xFFFF00FF},
    NotThere(0x73240002, has_no_own_xpt_panel),
    {0x10760000, 0x10760000, has_no_clip_transition, 0xF0FF0000},
    {0x80760000, 0x80760000, has_no_clip_transition, 0xF0FF0000},
    NotThere(0x73260007, is_pcx50),
    NotThere(0x73260008, is_not_pcx50),
    {0x10020004, 0x10020004, has_no_second_tab, 0xF00FFFFF},
    {0x80020004, 0x80020004, has_no_second_tab, 0xF00FFFFF},
    NotThere(0x73260013, has_key_rows),
    NotThere(0x61130016, is_board_split_in_four),
    NotThere(0x73160011, is_not_ntr40),
};

// The tabs whose pages fold into the first one while a transfer runs in the background, as
// bits 31..20.
constexpr struct {
    uint32_t first;
    uint32_t last;
} folded_tabs[] = {
    {0x211, 0x216}, {0x251, 0x256}, {0x311, 0x311}, {0x541, 0x544}, {0x621, 0x626},
    {0x631, 0x635}, {0x641, 0x641}, {0x711, 0x717}, {0x731, 0x731}, {0x741, 0x743},
};
} // namespace

// The page of a channel group, by which of its four channels c run combined. The third channel's
// own flag tells two pairs from four in one.
static uint32_t combine_variant(const int* c, int third)
{
    if (c[1] && c[2]) {
        if (!c[0])
            return c[3] ? 0x0400 : 0x0300;
        if (!c[3])
            return 0x0200;
        return third ? 0x0700 : 0x0600;
    }
    return !c[0] && !c[1] && c[2] && c[3] ? 0x0500 : 0x0100;
}

static uint32_t apply_combine(uint32_t id)
{
    if (id == 0x42110000)
        return id + combine_variant(SYS_Combine, SYS_CombineCh[2]);
    if (id == 0x42210000)
        return id + combine_variant(SYS_Combine + 4, SYS_CombineCh[6]);
    return id;
}

static uint32_t apply_install(uint32_t id)
{
    if (id != 0x73160008 && id != 0x73160108 && id != 0x73160308)
        return id;
    if (is_install_of_switcher())
        return 0x73160308;
    return is_install_of_old_menu() ? 0x73160208 : 0x73160908;
}

// Transition of a key: one page while its on and off share a setting, another when they are apart.
static uint32_t apply_transition(uint32_t id)
{
    const uint32_t tab = id & 0x00FFFFFF;
    if (tab != 0x170000 && tab != 0x270000 && tab != 0x370000 && tab != 0x470000)
        return id;
    const MeBank* bank = MeBank_OfPage(id);
    if (!bank)
        return id;
    return id + (*bank->key_transition ? 0x0200 : 0x0100);
}

// The timeline pages of a bank that is not in multi program 2 are those without sides.
static uint32_t apply_me_config(uint32_t id)
{
    static constexpr struct {
        uint32_t id;
        int me;
    } rows[] = {{0x61131501, 1}, {0x61131502, 2}, {0x61131503, 3},
                {0x61131504, 0}, {0x61131521, 4}, {0x61131523, 5}};
    for (const auto& row : rows)
        if (id == row.id && isME_ConfigSelectType(row.me) != CONFIG_MULTI_PROGRAM_2)
            return id - 0x1000;
    return id;
}

static uint32_t apply_variants(uint32_t id)
{
    for (const Variant& v : variants) {
        const uint32_t base = id & v.mask;
        if (base < v.first || base > v.last || (v.when && !v.when()))
            continue;
        id = base + v.add;
        if (v.mask != 0xFFFFFFFF)
            break; // its own result would match again
    }
    return id;
}

uint32_t Page_FirstOfTab(uint32_t id)
{
    const uint32_t tab = id >> 20;
    for (const auto& f : folded_tabs)
        if (tab >= f.first && tab <= f.last)
            return tab << 20;
    const bool is_clip_transition = MeBank_OfPage(id) && (id & 0x00FF0000) == 0x00760000;
    return is_clip_transition ? tab << 20 : id;
}

static uint32_t fold_for_transfer(uint32_t id)
{
    if (BkgdFileTransfer_Check(0) && !BkgdFileTransfer_PagePermitted(id))
        return Page_FirstOfTab(id);
    const bool is_hdd = BkgdHDDTransfer_Check(0) && GL_Progressbar_Restore_End == 0;
    return is_hdd && !BkgdHDDTransfer_Check(id) ? Page_FirstOfTab(id) : id;
}

// The main banks' page of the frame memory V6; their sub banks have none.
static bool is_frame_memory_of_me(uint32_t id)
{
    const uint32_t bank = id >> 24 & 0x0F;
    const bool is_me = id >> 28 == 1 || id >> 28 == 8;
    return is_me && bank >= 1 && bank <= 4 && (id & 0x00FFFFFF) == 0x600007;
}

static bool is_hidden(uint32_t id)
{
    for (const Hidden& h : hidden) {
        const uint32_t base = id & h.mask;
        if (base >= h.first && base <= h.last && h.when())
            return true;
    }
    if (is_frame_memory_of_me(id) && !is_fmem_v6())
        return true;
    const MeBank* bank = MeBank_OfPage(id);
    // The sub bank too: it is the other side of the same bank, or holds its keys 5 to 8.
    if (bank && MeBank_IsOff(*bank))
        return true;
    return isNowPageME(id) == 2 && !isMP2SettingME(id);
}

uint32_t ResolvePageId(uint32_t id)
{
    if (id == 0)
        return 0;
    id = apply_variants(id);
    id = apply_combine(id);
    id = apply_install(id);
    id = apply_transition(id);
    id = apply_me_config(id);
    if (id >= 0x99910000 && id <= 0x999100FF && is_first_generation())
        id = 0x99911000;
    id = fold_for_transfer(id);
    return is_hidden(id) ? 0 : id;
}

static bool is_out_of_walk(uint32_t id)
{
    constexpr uint32_t ids[] = {0x71720000, 0x71730000, 0x73160005, 0x73160010, 0x73270001};
    return std::find(std::begin(ids), std::end(ids), id) != std::end(ids);
}

PAGE* SearchPageTable_Free_ALL(PAGE* table, uint32_t id)
{
    if (is_out_of_walk(id))
        return nullptr;
    for (PAGE* row = table; row->id != PAGE_END; row++)
        if (row->id == id)
            return row;
    return nullptr;
}

PAGE* SearchPageTable(uint32_t id)
{
    if (GL_AllPageDisplayMode)
        return is_out_of_walk(id) ? nullptr : PageTable_Find(id);
    id = ResolvePageId(id);
    return id ? PageTable_Find(id) : nullptr;
}
