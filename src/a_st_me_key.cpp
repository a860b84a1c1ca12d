// The cells of a key: how it is cut, its edge, masks, signals, processing, transitions, priority.
#include "a_st_draw.h"
#include "global.h"
#include "graphics.h"
#include "page.h"
#include "text.h"
#include <cstdlib>
#include <cstring>
#include <iterator>
#include "safeguards.h"

namespace
{
struct Name {
    char text[32] = "";
};
} // namespace

// The key that the paths of a cell speak of: their second word.
static Name key_of(const ST_MEM* cell)
{
    Name key;
    const char* word = strchr(cell->cmd[0], '@');
    if (!word)
        return key;
    word++;
    const size_t length = strcspn(word, "@");
    ktr_strncpy(key.text, word, length < sizeof key.text ? length + 1 : sizeof key.text);
    return key;
}

static bool is_key_in_view(const ST_MEM* cell)
{
    const char* key = GL_NowTree && GL_NowTree[0] ? GL_NowTree[1] : nullptr;
    return key && strcmp(key, key_of(cell).text) == 0;
}

// Among cells of several keys a name must say which; it has to fit 80 pixels.
static Name name_of(const ST_MEM* cell, const char* on_own_page, const char* elsewhere)
{
    Name name;
    if (is_key_in_view(cell))
        CopyText(name.text, on_own_page);
    else
        PrintText(name.text, "%.8s %.20s", key_of(cell).text, elsewhere);
    return name;
}

// --- Type ---

namespace
{
struct KeyType {
    const char* value;
    const char* square; // null: the picture of a pattern
    const char* under;
    int tally; // that brings "under", or has the pattern
    const char* when = "true";
};
constexpr KeyType key_types[] = {
    {"Luminance", "LUM", "Clean", 1},    {"Linear", "LIN", "Clean", 6},
    {"Color Vector", "CVK", "Clean", 7}, {"Chroma", "CRK", "Add Mix", 2, "Additive Mix"},
    {"Wipe Pattern", nullptr, "%s", 4},  {"Key Wipe Pattern", nullptr, "K %s", 5},
};
constexpr int TYPE_INVERT = 3;
} // namespace

static int is_type_page_in_view(const ST_MEM* cell)
{
    const uint32_t page = GL_NowPage & 0xF00FFFFF;
    return (page == 0x10010000 || page == 0x80010000) && isNowPageMeKey(0) && is_key_in_view(cell);
}

static const KeyType* key_type_of(const char* value)
{
    for (const KeyType& t : key_types)
        if (strcmp(t.value, value) == 0)
            return &t;
    return nullptr;
}

int st_drw_me_key_type1(ST_MEM* cell)
{
    const int lit = is_type_page_in_view(cell);
    const ST_MEM* c = st_begin(cell, lit, name_of(cell, "Key Type", "Type").text);
    const KeyType* type = c ? key_type_of(c->tally[0]) : nullptr;
    if (!type)
        return -1;
    const int invert = st_is_on(c, TYPE_INVERT);
    if (type->square) {
        st_drw_center_image_square(c, type->square, invert);
        if (strcmp(c->tally[type->tally], type->when) == 0)
            st_drw_under_strings(c, type->under, 0);
        return 0;
    }
    char under[32];
    PrintText(under, type->under[0] == 'K' ? "K %.16s" : "%.16s", c->tally[type->tally]);
    st_drw_bmpimage_strings(c, st_pattern(c->tally[type->tally]), "");
    st_drw_under_strings(c, under, invert);
    return 0;
}

// What is done with the cut: 0 inversion, 1 type, 2 to 5 position by type. Some keys of a 4K format
// lack the cell.
int st_drw_me_key_type2(ST_MEM* cell)
{
    static constexpr const char* with_position[] = {"Luminance", "Linear", "Chroma",
                                                    "Color Vector"};
    const int lit = is_type_page_in_view(cell);
    const ST_MEM* c = st_begin(cell, lit, name_of(cell, "Key Modify", "Modify").text);
    if (!c)
        return -1;
    bool is_on[] = {st_is_on(c, 0), false};
    for (int i = 0; i < int(std::size(with_position)); i++)
        if (strcmp(c->tally[1], with_position[i]) == 0)
            is_on[1] = st_is_on(c, 2 + i);
    ST_VAL val{.st_num = 2, .st_str = {"Key Invert", "Position"}, .selected = lit};
    for (int i = 0; i < 2; i++) {
        val.invert[i] = is_on[i];
        val.grayout[i] = !is_on[i];
    }
    return st_drw_status_strings(c, &val);
}

// --- Edge: 0 type, 1 soft, 2 fine key, 3 separate, 4 mode of the edge matte ---

namespace
{
enum EdgeLook { PLAIN, SOFT, DUAL };
struct Edge {
    const char* value;
    SDL_Surface** picture[3]; // by EdgeLook
};
constexpr Edge edges[] = {
    {"Normal", {&G_Edge_Normal, &G_Edge_Normal_soft, &G_Edge_Normal_dual}},
    {"Border", {&G_Edge_Border, &G_Edge_Border_soft, &G_Edge_Border_dual}},
    {"Drop Border", {&G_Edge_Drop_border, &G_Edge_Drop_border_soft, &G_Edge_Drop_border_dual}},
    {"Shadow", {&G_Edge_Shadow, &G_Edge_Shadow_soft, &G_Edge_Shadow_dual}},
    {"Outline", {&G_Edge_Outline, &G_Edge_Outline_soft, &G_Edge_Outline_dual}},
    {"Emboss", {&G_Edge_Emboss, &G_Edge_Emboss_soft, &G_Edge_Emboss_dual}},
    {"Zabton", {&G_Edge_Zabton, &G_Edge_Zabton_soft, &G_Edge_Zabton_dual}},
};
constexpr Edge edge_separate = {"Separate",
                                {&G_Edge_Separate, &G_Edge_Separate_soft, &G_Edge_Separate_dual}};
constexpr Edge edge_fine = {"Fine", {&G_Edge_Fine, &G_Edge_Fine_soft, &G_Edge_Fine_dual}};
} // namespace

static const Edge* edge_of(const char* value)
{
    for (const Edge& e : edges)
        if (strcmp(e.value, value) == 0)
            return &e;
    return nullptr;
}

int st_drw_me_key_edge(ST_MEM* cell)
{
    const int lit = st_in_view(cell);
    const ST_MEM* c = st_begin(cell, lit, name_of(cell, "Edge", "Edge").text);
    const Edge* edge = c ? edge_of(c->tally[0]) : nullptr;
    if (!edge)
        return -1;
    const bool has_edge = edge != &edges[0];
    const Edge* shown = st_is_on(c, 2)               ? &edge_fine
                        : has_edge && st_is_on(c, 3) ? &edge_separate
                                                     : edge;
    const bool is_dual = has_edge && strcmp(c->tally[4], "Mix") == 0;
    const EdgeLook look = st_is_on(c, 1) ? SOFT : is_dual ? DUAL : PLAIN;
    st_drw_bmpimage_strings(c, *shown->picture[look], "");
    return st_drw_under_strings(c, edge->value, 0);
}

// --- Masks: 0 on, 1 source, 2 inverted, 3 pattern ---

static int draw_mask(ST_MEM* cell, const Name& name)
{
    static constexpr struct {
        const char* value;
        const char* square; // null: the picture of a pattern
    } sources[] = {
        {"Box", "Box"}, {"Pattern", nullptr}, {"Utility 1", "UTIL 1"}, {"Utility 2", "UTIL 2"}};
    const int lit = st_in_view(cell);
    const ST_MEM* c = st_begin(cell, lit, name.text);
    if (!c)
        return -1;
    const int invert = st_is_on(c, 2);
    for (const auto& s : sources) {
        if (strcmp(s.value, c->tally[1]) != 0)
            continue;
        if (s.square) {
            st_drw_center_image_square(c, s.square, invert);
        } else {
            st_drw_bmpimage_strings(c, st_pattern(c->tally[3]), "");
            st_drw_under_strings(c, c->tally[3], invert);
        }
    }
    if (st_is_off(c, 0))
        st_drw_recoats_grayout(c, lit);
    return 0;
}

int st_drw_me_key_mainmask(ST_MEM* cell)
{
    return draw_mask(cell, name_of(cell, "Main Mask", "M.Mask"));
}

int st_drw_me_key_submask(ST_MEM* cell)
{
    return draw_mask(cell, name_of(cell, "Sub Mask", "S.Mask"));
}

// --- Value lists whose tally 0 says whether the function is on ---

static int draw_function(ST_MEM* cell, const Name& name, std::span<const ST_LABEL> labels)
{
    const int lit = st_in_view(cell);
    const ST_MEM* c = st_begin(cell, lit, name.text);
    if (!c)
        return -1;
    st_put_values(c, lit, labels);
    if (st_is_off(c, 0))
        st_drw_recoats_grayout(c, lit);
    return 0;
}

int st_drw_me_key_videoproc(ST_MEM* cell)
{
    static constexpr ST_LABEL labels[] = {{"Lum", 1}, {"Chr", 2}, {"Hue", 3}};
    return draw_function(cell, name_of(cell, "Video Proc", "V.Proc"), labels);
}

// --- Signals ---

// 0 "Key Bus" or "Matte", 1 one colour or a mix of two, 2 name of the signal.
int st_drw_me_key_type_keyfill(ST_MEM* cell)
{
    const int lit = st_in_view(cell) && GL_FillSourceAssignMode == 0;
    const ST_MEM* c = st_begin(cell, lit, name_of(cell, "Key Fill", "Fill").text);
    if (!c)
        return -1;
    const bool is_matte = strcmp(c->tally[0], "Matte") == 0;
    if (!is_matte && strcmp(c->tally[0], "Key Bus") != 0)
        return -1;
    st_drw_center_image_square(c, c->tally[0], is_matte);
    return st_drw_under_strings(c, c->tally[is_matte ? 1 : 2], 0);
}

// 0 "Self" or "Split", 1 the bus of a split key, 2 name of the signal.
int st_drw_me_key_type_source(ST_MEM* cell)
{
    const int lit = st_in_view(cell) && GL_FillSourceAssignMode == 1;
    const ST_MEM* c = st_begin(cell, lit, name_of(cell, "Key Source", "Source").text);
    if (!c)
        return -1;
    const bool is_self = strcmp(c->tally[0], "Self") == 0;
    if (!is_self && strcmp(c->tally[0], "Split") != 0)
        return -1;
    st_drw_center_image_square(c, is_self || !c->tally[1][0] ? c->tally[0] : c->tally[1], 0);
    return st_drw_under_strings(c, c->tally[2], 0);
}

// --- Processed key: 0 on, 1 to 8 the channels of the effects unit that it has, 9 the one on the
// monitor ---

namespace
{
constexpr int CHANNELS = 8;
constexpr int PROCKEY_MONITOR = CHANNELS + 1;
} // namespace

// The first line tells the channels, or the pairs of them; width 2 makes pairs.
static int draw_prockey(ST_MEM* cell, const char* unit, int width)
{
    const int lit = st_in_view(cell);
    const ST_MEM* c = st_begin(cell, lit, name_of(cell, "Proc Key", "P.Key").text);
    if (!c)
        return -1;
    char channels[64];
    CopyText(channels, unit);
    int count = 0;
    for (int n = 0; n < CHANNELS; n += width) {
        if (!st_is_on(c, n + 1) && !(width == 2 && st_is_on(c, n + 2)))
            continue;
        AppendText(channels, count++ ? "," : " ");
        AppendText(channels, NumStr(n / width + 1));
    }
    if (count == 1 && width == 1)
        AppendText(channels, "ch");
    const int monitor = int(strtol(c->tally[PROCKEY_MONITOR], nullptr, 10));
    ST_VAL val{.st_num = 2, .st_str = {channels, "Monitor"}, .selected = lit};
    val.invert[0] = st_is_on(c, 0);
    val.invert[1] = monitor >= 1 && monitor <= CHANNELS && st_is_on(c, monitor);
    st_drw_status_strings(c, &val);
    if (st_is_off(c, 0))
        st_drw_recoats_grayout(c, lit);
    return 0;
}

int st_drw_me_key_prockey(ST_MEM* cell)
{
    return draw_prockey(cell, "DME", 1);
}

// Two boards share a picture: a channel of the key is a pair of channels.
int st_drw_me_key_prockey_dpdl(ST_MEM* cell)
{
    return draw_prockey(cell, "Pair", 2);
}

// --- Transitions: 0 DME wipe pattern, then type and wipe pattern; those of off again by those of
// on ---

namespace
{
enum KeyTransition : int { KEYTRANS_DME_PATTERN = 0, KEYTRANS_OWN = 1, KEYTRANS_ON = 3 };
} // namespace

static int draw_transition(ST_MEM* cell, const Name& name, int first)
{
    static constexpr struct {
        const char* value;
        const char* square; // null: the picture of a pattern
    } types[] = {{"Cut", "Cut"},
                 {"Mix", "Mix"},
                 {"Wipe", nullptr},
                 {"DME Wipe", nullptr},
                 {"Stinger", "Stinger"}};
    const int lit = st_in_view(cell);
    const ST_MEM* c = st_begin(cell, lit, name.text);
    if (!c)
        return -1;
    for (const auto& t : types) {
        if (strcmp(t.value, c->tally[first]) != 0)
            continue;
        if (t.square)
            return st_drw_center_image_square(c, t.square, 0);
        const bool is_wipe = strcmp(t.value, "Wipe") == 0;
        const char* pattern = c->tally[is_wipe ? first + 1 : int(KEYTRANS_DME_PATTERN)];
        st_drw_bmpimage_strings(c, is_wipe ? st_pattern(pattern) : st_dme_pattern(pattern), "");
        return st_drw_under_strings(c, pattern, 0);
    }
    return -1;
}

// The keys of a bank go as they come, or each way has a setting of its own.
static bool has_own_off()
{
    const MeBank* bank = MeBank_OfPage(GL_NowPage);
    return !bank || *bank->key_transition != 0;
}

int st_drw_me_key_ontrans(ST_MEM* cell)
{
    return draw_transition(cell, name_of(cell, "On Trans", "On Tr."), KEYTRANS_OWN);
}

int st_drw_me_key_offtrans(ST_MEM* cell)
{
    return draw_transition(cell, name_of(cell, "Off Trans", "Off Tr."),
                           has_own_off() ? KEYTRANS_OWN : KEYTRANS_ON);
}

// Where the key lies among those of its side: 0 the priority list.
int st_drw_me_key_priority(ST_MEM* cell)
{
    const int lit = st_in_view(cell);
    const ST_MEM* c = st_begin(cell, lit, "Key Priority");
    if (!c)
        return -1;
    const char* key = GL_NowTree && GL_NowTree[0] && GL_NowTree[1] ? GL_NowTree[1] : "";
    const int number = strlen(key) == 4 ? key[3] - '0' : 0; // "Key1", "DSK1"
    const bool is_further = number > 4;
    st_put_priority(c, lit, is_further ? st_priority_of_5_to_8(c) : c->tally[0], is_further,
                    number);
    return 0;
}
