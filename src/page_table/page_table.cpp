// PageTable, joined at compile time from the rows of the menu groups.
#include "aux_mon.h"
#include "ccr.h"
#include "color_bkgd.h"
#include "copyswap.h"
#include "device.h"
#include "diag.h"
#include "dme.h"
#include "effect_pages.h"
#include "file_all.h"
#include "file_directory.h"
#include "file_dual.h"
#include "file_fieldinvert.h"
#include "file_folder.h"
#include "file_idcopy.h"
#include "file_tops.h"
#include "file_xport.h"
#include "engineering.h"
#include "fm.h"
#include "fmem_clip.h"
#include "fmem_store.h"
#include "gallery.h"
#include "global_effect.h"
#include "install.h"
#include "keyframe.h"
#include "keyframe_path.h"
#include "machines.h"
#include "macro_pages.h"
#include "me_dmewipe.h"
#include "me_key_dmewipe.h"
#include "me_key_edge.h"
#include "me_key_mask.h"
#include "me_key_process.h"
#include "me_key_resizer.h"
#include "me_key_trans.h"
#include "me_key_type.h"
#include "me_misc.h"
#include "me_top.h"
#include "me_wipe.h"
#include "misc.h"
#include "nb_dme.h" // like the next five: of the numbered knob links; a name used twice ends the build here
#include "nb_edge.h"
#include "nb_global.h"
#include "nb_key.h"
#include "nb_nonlinear.h"
#include "nb_wipe.h"
#include "menu_macro_pages.h"
#include "router.h"
#include "saver.h"
#include "setup_panel.h"
#include "setup_panel_config.h"
#include "setup_panel_operation.h"
#include "setup_router.h"
#include "setup_switcher.h"
#include "setup_switcher_io.h"
#include "setup_system.h"
#include "setup_tops.h"
#include "setup_unit.h"
#include "shotbox_pages.h"
#include "snapshot_pages.h"
#include "sp.h"
#include "status.h"
#include "system.h"
#include "texture.h"
#include "top.h"
#include <algorithm>
#include <iterator>

// The rows that a template of pages makes for all banks, or for the keys of all banks.
template <const auto& pages> constexpr auto OfBanks = BankRows<BankRowCount(pages)>(pages);
template <const auto& pages> constexpr auto OfKeys = KeyRows<KeyRowCount(pages)>(pages);

// The groups of rows in their order; a new one is a line here.
template <typename Work> constexpr auto WithGroups(Work work)
{
    return work(top_pages,
                OfBanks<me_top_pages>,
                OfKeys<me_key_type_pages>,
                OfKeys<me_key_edge_pages>,
                OfKeys<me_key_mask_pages>,
                OfKeys<me_key_resizer_pages>,
                OfKeys<me_key_process_pages>,
                OfKeys<me_key_trans_pages>,
                OfKeys<me_key_dmewipe_pages>,
                OfBanks<me_wipe_pages>,
                OfBanks<me_dmewipe_pages>,
                OfBanks<me_misc_pages>,
                file_all_pages,
                file_dual_pages,
                file_top_pages,
                fm_pages,
                fmem_clip_pages,
                fmem_store_pages,
                aux_mon_pages,
                color_bkgd_pages,
                ccr_top_pages,
                ccr_pages,
                copyswap_pages,
                misc_pages,
                status_pages,
                dme_pages,
                texture_pages,
                global_effect_pages,
                global_effect_rows,
                router_pages,
                device_pages,
                sp_pages,
                machines_pages,
                menu_macro_pages,
                menu_macro_sub_pages,
                keyframe_pages,
                keyframe_path_rows,
                snapshot_register_pages,
                snapshot_sub_pages,
                effect_register_pages,
                effect_sub_pages,
                shotbox_register_pages,
                shotbox_sub_pages,
                macro_register_pages,
                macro_sub_pages,
                system_pages,
                diag_pages,
                install_pages,
                setup_system_pages,
                setup_top_pages,
                setup_unit_pages,
                setup_panel_pages,
                setup_panel_config_pages,
                setup_panel_operation_pages,
                setup_switcher_pages,
                setup_switcher_io_pages,
                setup_dme_pages,
                setup_dcu_pages,
                setup_router_pages,
                setup_mpe_pages,
                file_directory_pages,
                file_folder_pages,
                file_idcopy_pages,
                file_fieldinvert_pages,
                file_xport_pages,
                saver_pages,
                gallery_pages,
                engineering_pages);
}

static constexpr size_t page_rows = WithGroups([](const auto&... rows) { return (std::size(rows) + ...); }) + 1; // the end

struct AllRows {
    PAGE row[page_rows];
};

static constexpr AllRows JoinRows()
{
    return WithGroups([](const auto&... rows) {
        AllRows all{};
        size_t n = 0;
        const auto add = [&](const auto& group) {
            for (const PAGE& p : group) all.row[n++] = p;
        };
        (add(rows), ...);
        return all; // the last row keeps PAGE_END
    });
}

static constinit AllRows all_rows = JoinRows();
constinit PAGE* const PageTable = all_rows.row;
const int PageTable_Rows = int(page_rows);

// Every key and tab of a page asks whether its page exists: a walk over half a megabyte of rows for each of them would
// take longer than the rest of the page.
static PAGE* rows_by_id[page_rows - 1];

PAGE* PageTable_Find(uint32_t id)
{
    constexpr auto is_before = [](const PAGE* row, uint32_t wanted) { return row->id < wanted; };
    if (!rows_by_id[0]) {
        for (size_t n = 0; n < std::size(rows_by_id); n++) rows_by_id[n] = &all_rows.row[n];
        std::sort(std::begin(rows_by_id), std::end(rows_by_id), [](const PAGE* a, const PAGE* b) { return a->id < b->id; });
    }
    PAGE* const* const at = std::lower_bound(std::begin(rows_by_id), std::end(rows_by_id), id, is_before);
    return at != std::end(rows_by_id) && (*at)->id == id ? *at : nullptr;
}
