// pc_effect: what the effects can do on their first page beyond the family of register pages: the
// dissolve with which a register is recalled.
#pragma once
#include "pc_register.h"

constexpr int BTN_EFFECT_DISSOLVE = 33;

extern const RegisterExtra effect_extras[5]; // one for each kind of effects but the master
