// register_mirror: the accessors of register by kind, for code that serves several kinds.
#pragma once
#include "indexed.h"
#include "menu_macro.h"
#include "register.h"

struct RegisterMirror {
    int kind = 0;      // of LMSG_REGISTER
    int registers = 0; // of a row
    int (*exist)(int row, int no) = nullptr;
    int (*lock)(int row, int no) = nullptr;
    const char* (*name)(int row, int no) = nullptr;
    const char* (*tally)(int row, int no) = nullptr; // null before the first line
};

#define MIRROR_OF(word)                                                                            \
    Register_Exist_##word, Register_Lock_##word, Register_Name_##word, Register_Tally_##word
inline constexpr RegisterMirror register_mirrors[] = {
    {REGISTER_EFFECT, REGISTERS_EFFECT, MIRROR_OF(Effect)},
    {REGISTER_EFF100, REGISTERS, MIRROR_OF(Eff100)},
    {REGISTER_EFF200, REGISTERS, MIRROR_OF(Eff200)},
    {REGISTER_EFF300, REGISTERS, MIRROR_OF(Eff300)},
    {REGISTER_SNAPSHOT, REGISTERS, MIRROR_OF(Snapshot)},
    {REGISTER_WIPESS, REGISTERS_WIPESS, MIRROR_OF(WipeSS)},
    {REGISTER_DMESS, REGISTERS_WIPESS, MIRROR_OF(DMESS)},
    {REGISTER_KEYSS, REGISTERS_KEYSS, MIRROR_OF(KeySS)},
    {REGISTER_SHOTBOX, REGISTERS, MIRROR_OF(Shotbox)},
    {REGISTER_MACRO, REGISTERS_MACRO, MIRROR_OF(Macro)},
    {REGISTER_CLIP_EVENT}, // has accessors of its own
    {REGISTER_MENU_MACRO, MENU_MACRO_REGISTERS, MIRROR_OF(MenuMacro)},
};
#undef MIRROR_OF
static_assert(IndexedBy(register_mirrors, &RegisterMirror::kind, REGISTER_MENU_MACRO + 1));
