// Every page can be found by a finger that starts at the top menu, shows something, and says the
// same of a value as all others that show it.
#include "a_kp.h"
#include "a_st.h"
#include "device.h"
#include "global.h"
#include "harness.h"
#include "page_walk.h"
#include "pc_file_dual.h"
#include "text.h"
#include <array>
#include <deque>
#include <map>
#include <random>
#include <set>

using namespace page_walk;

constexpr uint32_t NO_VARIANT = 0xFFFF00FF;

// Pages that no row of a table leads to, but something that the application does.
struct ByCode {
    uint32_t id;
    const char* reason;
    uint32_t mask = 0xFFFFFFFF;
};
constexpr uint32_t OF_ANY_KEY = 0x000FFFFF; // of every bank, too
constexpr uint32_t OF_ANY_BANK = 0x00FFFFFF;
constexpr ByCode by_code[] = {
    {0x00010002, "Key Type: Matte Adjust goes to the matte of the fill", OF_ANY_KEY},
    {0x00010004, "its Pattern Select", OF_ANY_KEY},
    {0x00070002, "Transition: Pattern Select goes to the key's own wipe", OF_ANY_KEY},
    {0x00070004, "or to that of its way in", OF_ANY_KEY},
    {0x00070005, "or out", OF_ANY_KEY},
    {0x00700000, "the tab Misc where its own first page is not there", OF_ANY_BANK},
    {0x63210001, "a list's detail: the crosspoints that a snapshot leaves alone"},
    {0x63210101, "the same with router destinations"},
    {0x63210002, "the same of its clips"},
    {0x71420002, "Edit on the pages of macros, when the server lets the register be edited"},
    {0x71420003, "Edit on the pages of macros, with a macro's file at hand"},
    {0x73210005, "a link's buses on the panel: what is to be chosen is a press on its list"},
    {0x73360004,
     "a link's table, and the buses of a link: what is to be chosen is a press on its list"},
    {0x73360005, "the same"},
    {0x73210005, "the same of a link from the panel to the router"},
    // While a transfer runs in the background these stand in for the page of their tab that is
    // asked for by its number.
    {0x21300000, "frame memory"},
    {0x21400000, ""},
    {0x21500000, ""},
    {0x21600000, ""},
    {0x25400000, "frame memory"},
    {0x25500000, ""},
    {0x25600000, ""},
    {0x74200000, "diag"},
    {0x74300000, ""},
};

static bool IsByCode(uint32_t id)
{
    return std::ranges::any_of(by_code, [&](const ByCode& c) { return (id & c.mask) == c.id; });
}

// What a touch on the page may ask for.
static std::set<uint32_t> LeadsTo(PAGE& page)
{
    std::set<uint32_t> ids;
    for (const BT_TBL* b = ButtonsOf(page); b && b->id >= 1; b++)
        if (IsJump(*b))
            ids.insert(TargetOf(page, *b));
    ForEachTab(page, [&](int, int, const char*, uint32_t target, bool) { ids.insert(target); });
    Show(page);
    auto* cell = static_cast<const ST_TBL*>(TableOf(page, OBJ_ST));
    for (; cell && cell->id >= 1; cell++) {
        uint32_t id = cell->jamp_id_base;
        AddPageOffset(&id);
        ids.insert(id);
    }
    auto* path = static_cast<const KP_TBL*>(TableOf(page, OBJ_KP));
    for (; path && path->caption; path++)
        ids.insert(path->jump);
    ids.insert(page.id & 0xFF000000); // the title
    if (isNowPageMeKey(page.id) == 1 || isNowPageME(page.id) == 1)
        ids.insert(page.id + TO_SUB_BANK); // the other side, Key Change
    if (TableOf(page, OBJ_PC) == &pc_file_dual)
        ids.insert(page.id + 1); // the Detail that either of its lists opens
    return ids;
}

// The numbers, without a variant, of all that can be reached from the top menu.
static std::set<uint32_t> Reached()
{
    std::multimap<uint32_t, PAGE*> rows;
    ForEachPage([&](PAGE& page) { rows.emplace(page.id & NO_VARIANT, &page); });
    std::set<uint32_t> reached;
    std::deque<uint32_t> next = {PAGE_TOP};
    const auto add = [&](uint32_t id) {
        // A desk without a clip store has other pages in its place; while a transfer runs in the
        // background, a page that has to wait is stood in for.
        for (const int clip_store : {1, 0}) {
            GL_ClipStoreSupportMode = clip_store;
            for (const uint32_t one : {id, ResolvePageId(id), Page_FirstOfTab(id)})
                if (reached.insert(one & NO_VARIANT).second)
                    next.push_back(one & NO_VARIANT);
        }
    };
    for (const TOPMENU* top = TopMenu; top->caption; top++)
        add(top->page);
    for (const auto& [id, page] : rows)
        if (IsByCode(id))
            add(id);
    while (!next.empty()) {
        const auto [first, last] = rows.equal_range(next.front());
        next.pop_front();
        for (auto at = first; at != last; ++at)
            for (const uint32_t id : LeadsTo(*at->second))
                add(id);
    }
    return reached;
}

struct PageReach : testing::Test {
    const FullHouse all;
    void SetUp() override { Harness_Reset(); }
    void TearDown() override { Harness_Reset(); }
};

TEST_F(PageReach, EveryRowShowsSomethingAndIsReachedByTouchOrHasItsReason)
{
    const std::set<uint32_t> reached = Reached();
    ForEachPage([&](PAGE& page) {
        EXPECT_TRUE(reached.contains(page.id & NO_VARIANT)) << std::hex << page.id;
        EXPECT_TRUE(std::ranges::any_of(
            page.obj,
            [](const auto& o) { return o.type > OBJ_BA && o.type != OBJ_HF && o.type != OBJ_VF; }))
            << std::hex << page.id;
    });
}

// Installations by chance, the same at every run: models, formats and modes as they may meet.
void InstallByChance(std::mt19937* chance)
{
    const auto pick = [&](auto... of) {
        const int list[] = {int(of)...};
        return list[(*chance)() % std::size(list)];
    };
    DEV_Swr[0].type = DEVTYPE(1 << (*chance)() % 12);
    DEV_Swr[0].activeline = DEV_Dme[0].activeline = pick(1, 6);
    DEV_Pnl[0].type = DEVTYPE(1 << (*chance)() % 10);
    std::fill_n(GL_DmeModel, std::size(GL_DmeModel), pick(1, 2, 3, 4, 5, 6, 7, 8));
    GL_DmeSdiIF[0] = pick(0, 1);
    SYS_DualProc = pick(0, 0, 1);
    SYS_3DMode = pick(0, 0, 0, 1);
    SYS_FmemV6 = pick(0, 1);
    for (int i = 0; i < 8; i++) {
        SYS_Combine[i] = pick(0, 1);
        SYS_CombineCh[i] = pick(0, 1);
    }
    for (int* mode : {&SYS_KeyTransitionME1, &SYS_KeyTransitionME2, &SYS_KeyTransitionME3,
                      &SYS_KeyTransitionME4, &SYS_KeyTransitionME5, &SYS_KeyTransitionPP})
        *mode = pick(0, 1);
    std::fill_n(me_config_type, ME_COUNT, pick(2, 3));
    CopyText(Page_InstallUnit, std::array{"Menu", "SWR1", "DME1"}[(*chance)() % 3]);
    DeviceStructure();
}

TEST_F(PageReach, EveryVariantIsOpenedInSomeInstallation)
{
    std::set<uint32_t> missing;
    ForEachPage([&](PAGE& page) {
        if (page.id & ~NO_VARIANT)
            missing.insert(page.id);
    });
    // The pages of a bank's side in the timeline are asked for by what looks like a variant.
    const auto is_opened = [](uint32_t id) {
        return IsByCode(id) || ResolvePageId(id & NO_VARIANT) == id ||
               ResolvePageId(id & 0xFFFF0FFF) == id || ResolvePageId(id | 0x1000) == id;
    };
    std::mt19937 chance(1);
    for (int i = 0; i < 3000 && !missing.empty(); i++) {
        InstallByChance(&chance);
        std::erase_if(missing, is_opened);
    }
    for (const uint32_t id : missing)
        ADD_FAILURE() << std::hex << id;
}

struct Link {
    std::string says; // of all tables that it may show: which of them follows from the formats
    uint32_t page;
};
using Links = std::map<std::string, std::vector<Link>>; // by path

static void LookAt(Links* links, PAGE& page, const NB_TBL* const* tables, int count,
                   const char* title)
{
    std::map<std::string, std::set<std::string>> says;
    Show(page);
    for (int i = 0; i < count; i++)
        for (const NB_TBL* nb = tables[i]; nb && nb->id >= 1; nb++) {
            char path[CMD_SIZE], text[128];
            DecodeCommandWithVar(path, nb->cmd ? nb->cmd : "", title, sizeof path);
            PrintText(text, "%s %g to %g, type %d; ", nb->caption, nb->min, nb->max, nb->type);
            if (*path && !IsLocal(path) && !BeginsWith(path, "Panel@Common@Knob"))
                says[path].insert(text);
        }
    for (const auto& [path, texts] : says) {
        std::string all;
        for (const std::string& text : texts)
            all += text;
        (*links)[path].push_back({all, page.id});
    }
}

TEST_F(PageReach, AllBoxesOfAValueSayTheSame)
{
    Links links;
    ForEachButton([&](PAGE& page, const BT_TBL& b) {
        const NB_TBL* tables[64] = {b.nb};
        const int number = SpecialKnobNumber(b.nb);
        const int count =
            number ? special_knob_tables(number, tables, 64) : b.nb && b.nb != NoKnobs();
        LookAt(&links, page, tables, count, b.caption);
    });
    ForEachPage([&](PAGE& page) {
        const auto* table = static_cast<const NB_TBL*>(TableOf(page, OBJ_NB));
        LookAt(&links, page, &table, 1, "");
    });
    EXPECT_GT(links.size(), 1000u);
    for (const auto& [path, shown] : links) {
        // Where several rates stand, it is said whose or when; without a border there is room for
        // more softness.
        if (path.ends_with("@ON Transition Rate") || path.ends_with("@Wipe@Edge@Soft@Soft"))
            continue;
        for (const Link& link : shown)
            EXPECT_EQ(link.says, shown[0].says)
                << path << " on " << std::hex << link.page << " and on " << shown[0].page;
    }
}

TEST_F(PageReach, AllKeysOfACommandAreCalledTheSame)
{
    std::map<std::string, std::map<std::string, uint32_t>> captions; // of a command: with a page
    ForEachButton([&](PAGE& page, const BT_TBL& b) {
        if (!b.cmd[0] || !*b.caption || IsLocal(b.cmd[0]) || b.cmd[0][0] == '#')
            return;
        Show(page);
        char command[CMD_SIZE];
        DecodeCommandWithVar(command, b.cmd[0], "", sizeof command);
        // Places in an order have a key of each candidate; where a group is called Auto Chroma its
        // keys need not say it again.
        const std::string path = command;
        if (!path.empty() && !path.ends_with("@Key Priority#*") &&
            !path.ends_with("@Auto Chroma#*"))
            captions[path].emplace(b.caption, page.id);
    });
    for (const auto& [command, names] : captions) {
        std::string text;
        for (const auto& [name, page] : names)
            text += name + "; ";
        std::replace(text.begin(), text.end(), '\n', ' ');
        EXPECT_EQ(names.size(), 1u) << command << ": " << text << std::hex << names.begin()->second;
    }
}
