#include "page_family.h"
#include "a_ba.h"
#include "a_bt.h"
#include "a_dw.h"
#include "a_ff.h"
#include "a_fl.h"
#include "a_fm.h"
#include "a_hf.h"
#include "a_kf.h"
#include "a_kp.h"
#include "a_ls.h"
#include "a_nb.h"
#include "a_pc.h"
#include "a_ps.h"
#include "a_st.h"
#include "a_vf.h"
#include "bus.h"
#include "debug.h"
#include "err.h"
#include <array>

#include "safeguards.h"

namespace
{
// XX_Create(const XX_TBL*, argument) of any family as one type of function.
template <auto create> constexpr auto Create = nullptr;
template <typename Table, typename Var, int (*create)(const Table*, Var)>
constexpr auto Create<create> = +[](const void* table, uint32_t var, const PAGE&) {
    create(static_cast<const Table*>(table), Var(var));
};

// The column of a page's own boxes is headed by the last word of its path. The boxes are left to a
// button of the page that has taken the knobs.
void create_boxes(const void* table, uint32_t, const PAGE& row)
{
    if (!table) {
        NB_Create(nullptr, nullptr);
        return;
    }
    if (BT_GetKnobAssign() > 0)
        return;
    char title[64];
    Page_ColumnTitle(title, row);
    NB_Create(static_cast<const NB_TBL*>(table), title);
}

void create_debug(const void*, uint32_t, const PAGE&)
{
    Debug_Create();
}

void create_errors(const void*, uint32_t, const PAGE&)
{
    Err_Create();
}

// In the order in which a page is emptied.
constexpr PageFamily families[] = {
    {OBJ_BA, "BA", Create<BA_Create>, BA_Proc},
    {OBJ_BT, "BT", Create<BT_Create>, BT_Proc},
    {OBJ_VF, "VF", Create<VF_Create>, VF_Proc},
    {OBJ_HF, "HF", Create<HF_Create>, HF_Proc},
    {OBJ_NB, "NB", create_boxes, NB_Proc},
    {OBJ_PS, "PS", Create<PS_Create>, PS_Proc},
    {OBJ_DW, "DW", Create<DW_Create>, DW_Proc},
    {OBJ_FM, "FM", Create<FM_Create>, FM_Proc},
    {OBJ_FF, "FF", Create<FF_Create>, FF_Proc},
    {OBJ_FL, "FL", Create<FL_Create>, FL_Proc},
    {OBJ_LS, "LS", Create<LS_Create>, LS_Proc},
    {OBJ_KF, "KF", Create<KF_Create>, KF_Proc},
    {OBJ_KP, "KP", Create<KP_Create>, KP_Proc},
    {OBJ_ST, "ST", Create<ST_Create>, ST_Proc},
    {OBJ_PC, "PC", Create<PC_Create>, PC_Proc},
    {OBJ_DEBUG, "Debug", create_debug, Debug_Proc, true},
    {OBJ_ERR, "Err", create_errors, Err_Proc, true},
};

constexpr auto family_of_type = [] {
    std::array<const PageFamily*, BUS_OBJECT_TYPES> by_type{};
    for (const PageFamily& family : families)
        by_type[size_t(family.type)] = &family; // a type without a mask ends the build here
    return by_type;
}();
} // namespace

const PageFamily* PageFamily_Of(int type)
{
    return type > OBJ_END && type < BUS_OBJECT_TYPES ? family_of_type[size_t(type)] : nullptr;
}

void PageFamily_EmptyAll()
{
    for (const PageFamily& family : families)
        if (!family.is_watcher)
            family.create(nullptr, 0, PAGE{});
}
