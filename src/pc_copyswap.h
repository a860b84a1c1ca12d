// pc_copyswap: page code of the copy and swap pages: two lists of the same things, from and to; the
// parts that are meant; copy, swap, and undo of the last one of the page's kind.
// The choice is this panel's alone until a key is pressed: the command carries all of it, so that
// what happens is what the operator has read, whatever another panel does at that time.
#pragma once
#include "a_pc.h"

// A part of a thing: the word of the command, and what stands on its key.
struct CopyPart {
    const char* word;
    const char* caption;
    const char* cmd; // of the key
};
constexpr int COPY_PARTS_MAX = 8;

constexpr int BTN_COPY_ALL = 33; // the parts stand behind it, in this line and the next
constexpr int BTN_COPY = 49;
constexpr int BTN_SWAP = 50;
constexpr int BTN_COPY_UNDO = 51;

#define COPY_LOCAL "LOCAL@Copy/Swap@"
#define COPY_PART(word, caption)                                                                   \
    {                                                                                              \
        word, caption, COPY_LOCAL "Part@" word "#*"                                                \
    }
inline constexpr CopyPart copy_me_parts[] = {
    COPY_PART("Xpt", "Xpt"),
    COPY_PART("Keys", "Keys"),
    COPY_PART("Wipe", "Wipe"),
    COPY_PART("DME Wipe", "DME Wipe"),
    COPY_PART("Transition", "Transition"),
    COPY_PART("Key Priority", "Key\nPriority"),
    COPY_PART("Video Process", "Video\nProcess"),
};
inline constexpr CopyPart copy_key_parts[] = {
    COPY_PART("Type", "Type/\nSignal"),
    COPY_PART("Edge", "Edge"),
    COPY_PART("Mask", "Mask"),
    COPY_PART("Resizer", "Resizer"),
    COPY_PART("Processed Key", "Processed\nKey"),
    COPY_PART("Transition", "Transition"),
    COPY_PART("Video Process", "Video\nProcess"),
};
inline constexpr CopyPart copy_wipe_parts[] = {
    COPY_PART("Main Pattern", "Main\nPattern"), COPY_PART("Sub Pattern", "Sub\nPattern"),
    COPY_PART("Pattern Mix", "Pattern\nMix"),   COPY_PART("Edge", "Edge"),
    COPY_PART("Direction", "Direction"),        COPY_PART("Main Modify", "Main\nModify"),
    COPY_PART("Sub Modify", "Sub\nModify"),
};
inline constexpr CopyPart copy_dmewipe_parts[] = {
    COPY_PART("Pattern Select", "Pattern"),
    COPY_PART("Pattern Modifier", "Pattern\nModifier"),
    COPY_PART("Edge", "Edge"),
    COPY_PART("Direction", "Direction"),
    COPY_PART("Modify", "Modify"),
};
inline constexpr CopyPart copy_matte_parts[] = {
    COPY_PART("Color 1", "Color 1"),
    COPY_PART("Color 2", "Color 2"),
    COPY_PART("Mix Pattern", "Mix\nPattern"),
};
// The picture of a channel that is frozen lies in its frame store, which is copied with it.
inline constexpr CopyPart copy_dme_parts[] = {
    COPY_PART("Edge", "Edge"),           COPY_PART("Video", "Video"),
    COPY_PART("Nonlinear", "Nonlinear"), COPY_PART("Light", "Light/\nTrail"),
    COPY_PART("Transform", "Transform"), COPY_PART("Input/Output", "Input/\nOutput"),
    COPY_PART("Freeze", "Freeze"),
};
// 1080p pictures are too large for the frame store.
inline constexpr CopyPart copy_dme_1080p_parts[] = {
    copy_dme_parts[0], copy_dme_parts[1], copy_dme_parts[2],
    copy_dme_parts[3], copy_dme_parts[4], copy_dme_parts[5],
};
#undef COPY_PART

extern const PC_TBL pc_copyswap_me;
extern const PC_TBL pc_copyswap_key;
extern const PC_TBL pc_copyswap_wipe;
extern const PC_TBL pc_copyswap_dmewipe;
extern const PC_TBL pc_copyswap_matte;
extern const PC_TBL pc_copyswap_bkgd;
extern const PC_TBL pc_copyswap_channel;
extern const PC_TBL pc_copyswap_effect;
extern const PC_TBL pc_copyswap_effect_1080p;
