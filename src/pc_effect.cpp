#include "pc_effect.h"
#include "a_bt.h"
#include "command.h"
#include "pc_register_duration.h"
#include "text.h"
#include "safeguards.h"

static void effect_shown()
{
    RegisterDuration_Follow();
    (void)BT_SetStatus(BTN_EFFECT_DISSOLVE, *RegisterPage_Line().effdiss ? BT_ON : BT_OFF);
}

// A dissolve begins in the time that the knob shows. One that is on takes a new time at once, and
// ends when that is already its own.
static int dissolve_sel()
{
    const RegisterLine& line = RegisterPage_Line();
    const int frames = RegisterDuration_Frames();
    const bool is_on = *line.effdiss != '\0';
    const bool is_other_time = frames > 0 && frames != line.dur;
    char value[16];
    PrintText(value, "%s,%d", Bool(!is_on || is_other_time), frames > 0 ? frames : line.dur);
    RegisterPage_PutAttribute("Effect@Effect@Attribute@Effect Dissolve", value);
    return 0;
}

static constexpr RegisterTouch effect_touches[] = {{"Attribute@Effect Dissolve", dissolve_sel},
                                                   {nullptr, nullptr}};

static constexpr RegisterExtra ExtraOf(REGKIND kind)
{
    return {.kind = kind,
            .touches = effect_touches,
            .open = RegisterDuration_Open,
            .shown = effect_shown,
            .tally = RegisterDuration_Tally,
            .knob = RegisterDuration_Knob};
}
const RegisterExtra effect_extras[5] = {ExtraOf(REGKIND_EFFECT), ExtraOf(REGKIND_EFF100),
                                        ExtraOf(REGKIND_EFF200), ExtraOf(REGKIND_EFF300),
                                        ExtraOf(REGKIND_EFFECT_EX)};
