// The cells of an effects unit: wide tables of its 3D parameters. A channel has a local transform;
// a global one moves several channels as one. Each turns the target (the picture) or the source
// (the viewer).
#include "a_st_draw.h"
#include "colours.h"
#include "tdl.h"
#include "text.h"
#include <cstring>
#include <iterator>
#include "safeguards.h"

namespace
{
constexpr unsigned TITLE = TEAL;

constexpr const char* axes[] = {"X", "Y", "Z"};
constexpr int AXES = int(std::size(axes));
// A block of a table: a title over three values at following tallies.
struct Block {
    const char* title;
    int tally;
};
constexpr Block blocks[] = {
    {"Location", 0}, {"Rotation", 3}, {"Axis", 6}, {"Aspect", 9}, {"Size", 12}, {"Crop", 15},
};
constexpr int BLOCKS_A_ROW = 3;
constexpr int TOP = 24;
} // namespace

int st_drw_dmestatus_rect(int x1, int y1, int x2, int y2, const char* title)
{
    TDL_RectS(x1, y1, x2, y2, CELL_FRAME);
    return TDL_SymbolWS(x1 + 5, y1 + 4, x2 - x1 - 8, title, st_font(), TITLE);
}

int st_drw_dmestatus_value(int x, int y, int width, const char* label, const char* value)
{
    constexpr int LABEL_WIDTH = 22;
    TDL_SymbolWS(x, y, LABEL_WIDTH, label, st_font(), LABEL);
    const int room = width - LABEL_WIDTH;
    const int text_width = int(TDL_GetSymbolWidth(value, st_font()));
    if (text_width > room)
        return TDL_SymbolWS(x + LABEL_WIDTH, y, room, value, st_font(), WHITE);
    return TDL_SymbolS(x + width - text_width, y, value, st_font(), WHITE);
}

static void put_block(const ST_MEM* c, int index)
{
    constexpr int rows = int(std::size(blocks)) / BLOCKS_A_ROW;
    const int width = (c->x2 - c->x1 - 12) / BLOCKS_A_ROW;
    const int height = (c->y2 - c->y1 - TOP - 6) / rows;
    const int x = c->x1 + 6 + width * (index % BLOCKS_A_ROW);
    const int y = c->y1 + TOP + height * (index / BLOCKS_A_ROW);
    st_drw_dmestatus_rect(x, y, x + width - 2, y + height - 3, blocks[index].title);
    for (int i = 0; i < AXES; i++)
        st_drw_dmestatus_value(x + 6, y + 19 + 15 * i, width - 14, axes[i],
                               c->tally[blocks[index].tally + i]);
}

static int draw_transform(ST_MEM* cell, const char* name)
{
    const ST_MEM* c = st_begin(cell, st_in_view(cell), name);
    if (!c)
        return -1;
    for (int i = 0; i < int(std::size(blocks)); i++)
        put_block(c, i);
    return 0;
}

int st_drw_dme_status_global(ST_MEM* cell)
{
    return draw_transform(cell, "Global");
}

int st_drw_dme_status_local(ST_MEM* cell)
{
    return draw_transform(cell, "Local");
}

// The name of a transform with the channels that it means.
static int draw_referred(ST_MEM* cell, const char* transform)
{
    char name[48];
    size_t used = 0;
    CopyText(name, transform);
    for (int ch = 0; ch < 8; ch++) {
        if (st_dme_reference() <= 0 || !(st_dme_reference() & 1 << ch))
            continue;
        char text[8];
        PrintText(text, "%s%d", used++ ? "," : "  Ch", ch + 1);
        AppendText(name, text);
    }
    return draw_transform(cell, name);
}

int st_drw_dme_glbsrc_status(ST_MEM* cell)
{
    return draw_referred(cell, "Global Source");
}

int st_drw_dme_glbtrgt_status(ST_MEM* cell)
{
    return draw_referred(cell, "Global Target");
}

int st_drw_dme_localsrc_status(ST_MEM* cell)
{
    return draw_referred(cell, "Local Source");
}

int st_drw_dme_localtrgt_status(ST_MEM* cell)
{
    return draw_referred(cell, "Local Target");
}

// --- Which channels serve whom: tally n the user of channel n + 1 ---

static int draw_users(ST_MEM* cell, const char* name, const char* only_of)
{
    static constexpr const char* labels[] = {"Ch1", "Ch2", "Ch3", "Ch4"};
    const int lit = st_in_view(cell);
    const ST_MEM* c = st_begin(cell, lit, name);
    if (!c)
        return -1;
    ST_VAL val{.st_num = int(std::size(labels)), .selected = lit};
    for (size_t i = 0; i < std::size(labels); i++) {
        const char* user = c->tally[i];
        val.st_str[i] = labels[i];
        val.val_str[i] = user[0] ? user : "-";
        val.keygray[i] = !user[0];
        val.grayout[i] = only_of && !strstr(user, only_of);
    }
    return st_drw_status_values(c, &val);
}

int st_drw_status_dme_status(ST_MEM* cell)
{
    return draw_users(cell, "DME", nullptr);
}

// Of a bank that runs two programs: the channels of its sub side stand out.
int st_drw_status_dme_status_mp2(ST_MEM* cell)
{
    return draw_users(cell, "DME Sub", "Sub");
}

// The same as a list of lines, a channel that is in use inverted.
int st_drw_status_dme_status_list(ST_MEM* cell)
{
    const int lit = st_in_view(cell);
    const ST_MEM* c = st_begin(cell, lit, "DME");
    if (!c)
        return -1;
    char line[4][32];
    ST_VAL val{.st_num = 4, .selected = lit};
    for (int i = 0; i < 4; i++) {
        PrintText(line[i], "%d %.20s", i + 1, c->tally[i]);
        val.st_str[i] = line[i];
        val.invert[i] = c->tally[i][0] != '\0';
    }
    return st_drw_status_strings(c, &val);
}
