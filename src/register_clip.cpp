// The clip events that a snapshot of a user region starts in the frame memory.
#include "global.h"
#include "register_private.h"
#include "snapshot_region.h"
#include "tally_value.h"
#include <algorithm>
#include <iterator>

#include "safeguards.h"

static CLIP_EVENT_DT SSClipEvent[ClipEventCmd.size()][ClipEventSubREG.size()][REGISTERS];

enum : int {
    CLIP_SUB_REGION,
    CLIP_NUMBER,
    CLIP_EVENT,
    CLIP_AUTOPLAY,
    CLIP_LOOP,
    CLIP_NAME,
    CLIP_START,
    CLIP_STOP
};

// A frame memory that the table does not have counts as the first: the line is kept.
static int clip_sub_region(const char* word)
{
    for (size_t i = 0; i < ClipEventSubREG.size(); i++)
        if (Same(ClipEventSubREG[i], word))
            return int(i);
    return 0;
}

static CLIP_EVENT_DT clip_read(const RegisterLine& line)
{
    CLIP_EVENT_DT clip = {.event = Same(line.v[CLIP_EVENT], "ON"),
                          .autoplay = Same(line.v[CLIP_AUTOPLAY], "ON"),
                          .loop = Same(line.v[CLIP_LOOP], "ON"),
                          .start_tc = Decimal(line.v[CLIP_START]),
                          .stop_tc = Decimal(line.v[CLIP_STOP])};
    CopyText(clip.name, line.v[CLIP_NAME]);
    return clip;
}

// A user that the table does not have counts as the first, too.
int clipevnt_tly(const RegisterList& list, int user, const char* value)
{
    RegisterLine line;
    if (!register_cut(line, list, value))
        return -1;
    const int number = Index(line.v[CLIP_NUMBER], list.max_number + 1);
    if (number < 1)
        return -1;
    const int region = std::max(user, 0);
    const int sub_region = clip_sub_region(line.v[CLIP_SUB_REGION]);
    SSClipEvent[region][sub_region][number - 1] = clip_read(line);
    register_tell(REGISTER_CLIP_EVENT, region, sub_region, number - 1);
    return 0;
}

void clipevnt_free()
{
    for (auto& user : SSClipEvent)
        for (auto& sub_region : user)
            std::fill(std::begin(sub_region), std::end(sub_region), CLIP_EVENT_DT{});
}

// --- What pages read ---

int ClipEvent_Tally_Event(int region, int sub_region, int no)
{
    return SSClipEvent[region][sub_region][no].event;
}

int ClipEvent_Tally_AutoPlay(int region, int sub_region, int no)
{
    return SSClipEvent[region][sub_region][no].autoplay;
}

int ClipEvent_Tally_Loop(int region, int sub_region, int no)
{
    return SSClipEvent[region][sub_region][no].loop;
}

const char* ClipEvent_Tally_Name(int region, int sub_region, int no)
{
    return SSClipEvent[region][sub_region][no].name;
}

// Of the three numbers that the server gives for a format.
enum : int {
    FORMAT_SIZE_1280x720 = 2,
    FORMAT_SIZE_1920x1080 = 3,
    FORMAT_SCAN_P = 2,
    FORMAT_FREQ_50 = 5
};

int isClipSkip()
{
    return SYS_Format_Scan == FORMAT_SCAN_P &&
           (SYS_Format_Size == FORMAT_SIZE_1280x720 || SYS_Format_Size == FORMAT_SIZE_1920x1080) &&
           SYS_Format_Freq >= FORMAT_FREQ_50;
}

static int clip_frames(int counted)
{
    return counted > 0 && isClipSkip() ? counted >> 1 : counted;
}

int ClipEvent_Tally_Start_TC(int region, int sub_region, int no)
{
    return clip_frames(SSClipEvent[region][sub_region][no].start_tc);
}

int ClipEvent_Tally_Stop_TC(int region, int sub_region, int no)
{
    return clip_frames(SSClipEvent[region][sub_region][no].stop_tc);
}
