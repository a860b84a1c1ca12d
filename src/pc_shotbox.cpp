#include "pc_shotbox.h"
#include "a_bt.h"
#include "command.h"
#include "safeguards.h"

static bool runs()
{
    return *RegisterPage_Line().attri != '\0';
}

static void shotbox_shown()
{
    (void)BT_SetStatus(BTN_SHOTBOX_AUTO_RUN, runs() ? BT_ON : BT_OFF);
}

static int auto_run_sel()
{
    RegisterPage_PutAttribute("Shotbox@Register@Attribute@Auto Run", Bool(!runs()));
    return 0;
}

static constexpr RegisterTouch shotbox_touches[] = {{"Store/Recall@Auto Run", auto_run_sel},
                                                    {nullptr, nullptr}};

const RegisterExtra shotbox_extra = {
    .kind = REGKIND_SHOTBOX, .touches = shotbox_touches, .shown = shotbox_shown};
