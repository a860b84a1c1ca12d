// PageTable, joined at compile time from the rows of the menu groups.
#include "dme.h"
#include "fm.h"
#include "gallery.h"
#include "keyframe.h"
#include "keyframe_path.h"
#include "machines.h"
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
#include "nb_dme.h" // like the next five: of the numbered knob links; a name used twice ends the build here
#include "nb_edge.h"
#include "nb_global.h"
#include "nb_key.h"
#include "nb_nonlinear.h"
#include "nb_wipe.h"
#include "operation.h"
#include "registers.h"
#include "saver.h"
#include "sources.h"
#include "system.h"
#include "top.h"

static constexpr auto me_top_rows = BankRows<BankRowCount(me_top_pages)>(me_top_pages);
static constexpr auto me_key_type_rows = KeyRows<KeyRowCount(me_key_type_pages)>(me_key_type_pages);
static constexpr auto me_key_edge_rows = KeyRows<KeyRowCount(me_key_edge_pages)>(me_key_edge_pages);
static constexpr auto me_key_mask_rows = KeyRows<KeyRowCount(me_key_mask_pages)>(me_key_mask_pages);
static constexpr auto me_key_resizer_rows = KeyRows<KeyRowCount(me_key_resizer_pages)>(me_key_resizer_pages);
static constexpr auto me_key_process_rows = KeyRows<KeyRowCount(me_key_process_pages)>(me_key_process_pages);
static constexpr auto me_key_trans_rows = KeyRows<KeyRowCount(me_key_trans_pages)>(me_key_trans_pages);
static constexpr auto me_key_dmewipe_rows = KeyRows<KeyRowCount(me_key_dmewipe_pages)>(me_key_dmewipe_pages);
static constexpr auto me_wipe_rows = BankRows<BankRowCount(me_wipe_pages)>(me_wipe_pages);
static constexpr auto me_dmewipe_rows = BankRows<BankRowCount(me_dmewipe_pages)>(me_dmewipe_pages);
static constexpr auto me_misc_rows = BankRows<BankRowCount(me_misc_pages)>(me_misc_pages);

static constexpr size_t page_rows = std::size(top_pages) +
                                    me_top_rows.size() +
                                    me_key_type_rows.size() +
                                    me_key_edge_rows.size() +
                                    me_key_mask_rows.size() +
                                    me_key_resizer_rows.size() +
                                    me_key_process_rows.size() +
                                    me_key_trans_rows.size() +
                                    me_key_dmewipe_rows.size() +
                                    me_wipe_rows.size() +
                                    me_dmewipe_rows.size() +
                                    me_misc_rows.size() +
                                    std::size(fm_pages) +
                                    std::size(sources_pages) +
                                    std::size(operation_pages) +
                                    std::size(dme_pages) +
                                    std::size(machines_pages) +
                                    std::size(keyframe_pages) +
                                    keyframe_path_rows.size() +
                                    std::size(registers_pages) +
                                    std::size(system_pages) +
                                    std::size(saver_pages) +
                                    std::size(gallery_pages) +
                                    1; // the end

struct AllRows {
    PAGE row[page_rows];
};

static constexpr AllRows JoinRows()
{
    AllRows all{};
    size_t n = 0;
    const auto add = [&](const auto& rows) {
        for (const PAGE& p : rows) all.row[n++] = p;
    };
    add(top_pages);
    add(me_top_rows);
    add(me_key_type_rows);
    add(me_key_edge_rows);
    add(me_key_mask_rows);
    add(me_key_resizer_rows);
    add(me_key_process_rows);
    add(me_key_trans_rows);
    add(me_key_dmewipe_rows);
    add(me_wipe_rows);
    add(me_dmewipe_rows);
    add(me_misc_rows);
    add(fm_pages);
    add(sources_pages);
    add(operation_pages);
    add(dme_pages);
    add(machines_pages);
    add(keyframe_pages);
    add(keyframe_path_rows);
    add(registers_pages);
    add(system_pages);
    add(saver_pages);
    add(gallery_pages);
    return all; // the last row keeps PAGE_END
}

static constinit AllRows all_rows = JoinRows();
constinit PAGE* const PageTable = all_rows.row;
const int PageTable_Rows = int(page_rows);
