// saver_private: what the parts of the screen saver share. Patterns draw with the verbs that do not
// flush: the pass ends with one flush of the whole screen.
#pragma once
#include "saver.h"

// A pattern's step of one pass. It finds the screen as its last step left it, black before the
// first, and keeps the corner of the access lamps free: (55, 13) to (80, 23).
using SaverStep = void (*)(int elapsed_ms);

extern const char S_SYS_Name[];
constexpr unsigned Grey(int level)
{
    return unsigned(level) * 0x010101;
}
unsigned saver_colour(); // of the colour cycle, in this pass

// --- Texts: saver_scenes ---
void saver_scenes_start();
void SScr_ptn_left(int elapsed_ms);
void SScr_ptn_right(int elapsed_ms);
void SScr_ptn_against(int elapsed_ms);
void SScr_ptn_layers(int elapsed_ms);
void SScr_ptn_wave(int elapsed_ms);
void SScr_ptn_breath(int elapsed_ms);
void SScr_ptn_comets(int elapsed_ms);
void SScr_ptn_side2side_6(int elapsed_ms);
void SScr_ptn_side2side_7(int elapsed_ms);
void SScr_ptn_blink(int elapsed_ms);
void SScr_ptn_blink_2(int elapsed_ms);
void SScr_ptn_blink_6000(int elapsed_ms);

// --- Pictures: saver_pictures ---
void saver_pictures_start();
void saver_pictures_end(); // gives the memory back
void SScr_ptn_slide(int elapsed_ms);
void SScr_ptn_alpha(int elapsed_ms);
void SScr_ptn_change(int elapsed_ms);
void SScr_ptn_multi(int elapsed_ms);
void SScr_ptn_multi_2(int elapsed_ms);
