// The cells of sources: what colour correctors and colour backgrounds are set to, and the settings
// of the system. Their names come from the paths, so that one painter serves each level of each of
// them.
#include "a_st_draw.h"
#include "page.h"
#include "tally_value.h"
#include "text.h"
#include <cstring>
#include "safeguards.h"

namespace
{
struct Name {
    char text[32];
};
} // namespace

// The word of a path that stands so many words before its last one, as a cell writes it.
static Name word_from_end(const char* path, int before)
{
    static constexpr struct {
        const char* word;
        const char* shorter;
    } long_words[] = {{"Luminance", "Lum"},   {"Saturation", "Sat"}, {"Middle", "Mid"},
                      {"Mix Pattern", "Mix"}, {"Chroma", "Chr"},     {"Black Level", "Blk"},
                      {"Red", "R"},           {"Green", "G"},        {"Blue", "B"},
                      {"Frames", "Frm"},      {"Minutes", "Min"},    {"Display", "Disp"}};
    const char* end = path + strlen(path);
    const char* begin = end;
    for (;;) {
        while (begin > path && begin[-1] != '@')
            begin--;
        if (before-- == 0 || begin == path)
            break;
        end = --begin;
    }
    Name name;
    PrintText(name.text, "%.*s", int(end - begin), begin);
    for (const auto& w : long_words)
        if (Same(name.text, w.word))
            CopyText(name.text, w.shorter);
    return name;
}

// "CCR1": the second word of each path of a cell.
static Name source_of(const ST_MEM* cell)
{
    const char* const path = cell->cmd[0];
    int words = 0;
    for (const char* at = path; *at; at++)
        words += *at == '@';
    return word_from_end(path, words - 1);
}

// A name says which source it means, but for that of the page.
static Name name_of(const ST_MEM* cell, const char* what)
{
    const char* const here = GL_NowTree && GL_NowTree[0] ? GL_NowTree[1] : nullptr;
    const Name source = source_of(cell);
    Name name;
    if (here && Same(here, source.text))
        CopyText(name.text, what);
    else
        PrintText(name.text, "%s %s", source.text, what);
    return name;
}

// The values from tally 1 on, labelled by the last words of their paths.
static void put_levels(const ST_MEM* c, int lit)
{
    Name words[ST_LINES];
    ST_LABEL labels[ST_LINES];
    int n = 0;
    for (; n < ST_LINES && 1 + n < c->used; n++) {
        words[n] = word_from_end(c->cmd[1 + n], 0);
        labels[n] = {words[n].text, 1 + n};
    }
    st_put_values(c, lit, std::span(labels, size_t(n)));
}

// 0 the switch that the cell is named after, then its levels.
int st_drw_source_levels(ST_MEM* cell)
{
    const int lit = st_in_view(cell);
    const ST_MEM* c = st_begin(cell, lit, name_of(cell, word_from_end(cell->cmd[0], 0).text).text);
    if (!c)
        return -1;
    put_levels(c, lit);
    return st_is_off(c, 0) ? st_drw_recoats_grayout(c, lit) : 0;
}

// 0 "Flat" or "Mix", then the levels of a colour or of the mix. What is flat has one colour.
int st_drw_source_matte(ST_MEM* cell)
{
    const int lit = st_in_view(cell);
    const Name what = word_from_end(cell->cmd[1], 1);
    const ST_MEM* c = st_begin(cell, lit, name_of(cell, what.text).text);
    if (!c)
        return -1;
    put_levels(c, lit);
    return Same(c->tally[0], "Flat") && !Same(what.text, "Color 1") ? st_drw_recoats_grayout(c, lit)
                                                                    : 0;
}

// 0 "Flat" or "Mix", 1 the pattern that mixes.
int st_drw_source_mode(ST_MEM* cell)
{
    const int lit = st_in_view(cell);
    const ST_MEM* c = st_begin(cell, lit, source_of(cell).text);
    if (!c)
        return -1;
    if (!Same(c->tally[0], "Mix"))
        return st_drw_center_image_square(c, c->tally[0], 0);
    st_drw_bmpimage_strings(c, st_pattern(c->tally[1]), "");
    return st_drw_under_strings(c, c->tally[1], 0);
}

// The colours that are turned into others.
int st_drw_source_spots(ST_MEM* cell)
{
    const int lit = st_in_view(cell);
    const ST_MEM* c = st_begin(cell, lit, "Spot Color");
    if (!c)
        return -1;
    ST_VAL val{.st_num = 3, .st_str = {"Spot 1", "Spot 2", "Spot 3"}, .selected = lit};
    for (int i = 0; i < val.st_num; i++) {
        val.invert[i] = st_is_on(c, i);
        val.grayout[i] = !val.invert[i];
    }
    return st_drw_status_strings(c, &val);
}

// 0 whether it corrects, 1 where it sits, 2 the input that it has there.
int st_drw_source_insert(ST_MEM* cell)
{
    const int lit = st_in_view(cell);
    const ST_MEM* c = st_begin(cell, lit, name_of(cell, "Correct").text);
    if (!c)
        return -1;
    char input[24] = "";
    if (Same(c->tally[1], "Input") && c->tally[2][0])
        PrintText(input, "No %s", c->tally[2]);
    st_drw_center_image_square(c, c->tally[1], 0);
    st_drw_under_strings(c, input, 0);
    return st_is_off(c, 0) ? st_drw_recoats_grayout(c, lit) : 0;
}
