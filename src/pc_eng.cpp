// What the engineering pages share.
#include "pc_eng.h"
#include "bus.h"
#include "colours.h"
#include "tdl.h"
#include "text.h"

#include "safeguards.h"

void Eng_Mirror(const char* path, const char* value)
{
    char line[CMD_SIZE];
    PrintText(line, "%s#%s", path, value);
    SendDummyTally(line);
}

void Eng_Text(int x, int y, int x2, const char* text, int font, unsigned colour)
{
    const int height = int(TDL_GetSymbolSize("W", font) >> 16);
    TDL_FillRectS(x, y, x2, y + height - 1, BLACK);
    TDL_SymbolWS(x, y, x2 - x + 1, text, font, colour);
}
