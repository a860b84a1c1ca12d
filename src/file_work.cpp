// What each kind of work is: its command, its pane, how its replies are read, what sends its items.
#include "file_private.h"

#include "safeguards.h"

static constexpr FileWork Single(FILEWORKTYPE type, const char* verb, int paths = 2)
{
    return {.type = type, .verb = verb, .pane = nullptr, .reply = Reply::Single, .paths = paths};
}

// Every item with one command, all at once.
static constexpr FileWork List(FILEWORKTYPE type, const char* verb, const char* pane, int paths = 2)
{
    return {.type = type,
            .verb = verb,
            .pane = pane,
            .reply = Reply::List,
            .launch = file_launch_plain,
            .paths = paths};
}

static constexpr FileWork Routed(FileWork row)
{
    row.is_routed = true;
    return row;
}

// Over the way of the thumbnails, which wait meanwhile.
static constexpr FileWork OnDataPort(FileWork row)
{
    row.is_routed = true;
    row.wakes_thumbnails = true;
    return row;
}

static constexpr FileWork With(FileWork row, Reply reply)
{
    row.reply = reply;
    return row;
}

static constexpr FileWork With(FileWork row, int (*launch)(QUEUE*))
{
    row.launch = launch;
    return row;
}

static constexpr FileWork Remote(FILEWORKTYPE type, const char* verb, const char* pane = "Transfer")
{
    return With(With(List(type, verb, pane), Reply::Scp), file_launch_scp);
}

static constexpr FileWork works[] = {
    Routed(Single(FILEWORK_TRANSFER, "Transfer@Transfer")),
    Routed(Single(FILEWORK_FMEM_PUT, "Frame Memory@PutV3")),
    Routed(Single(FILEWORK_FMEM_GET, "Frame Memory@Get")),
    Routed(Single(FILEWORK_FMEM_GETCTRL, "Frame Memory@GetCtrl")),
    With(Single(FILEWORK_ACCESS_FIND, "Access@Find"), Reply::Find),
    With(Single(FILEWORK_ACCESS_LISTDIR, "Access@ListDir", 1), Reply::Find),
    Single(FILEWORK_ACCESS_MKDIR, "Access@Mkdir", 1),
    Single(FILEWORK_ACCESS_COPY, "Access@Copy"),
    Single(FILEWORK_ACCESS_COPYDIR, "Access@Copydir"),
    Single(FILEWORK_ACCESS_RMDIR, "Access@Rmdir", 1),
    Single(FILEWORK_ACCESS_MOVE, "Access@Move"),
    Single(FILEWORK_ACCESS_REMOVE, "Access@Remove", 1),
    With(List(FILEWORK_ACCESS_LISTDIRLIST, "Access@ListDir", "Scanning Directory", 1),
         Reply::ListDir),
    With(Single(FILEWORK_ACCESS_FINDSFM, "Access@FindSFM"), Reply::Rows),

    OnDataPort(
        With(List(FILEWORK_TRANSFERLIST, "Transfer@Transfer", "Transfer"), file_launch_transfer)),
    OnDataPort(With(List(FILEWORK_TRANSFERLIST_AUTOLOAD, "Frame Memory@Compress", nullptr),
                    file_launch_autoload)),
    Routed(With(List(FILEWORK_TRANSFERLIST_BG, "Transfer@Transfer", nullptr), Reply::Background)),
    OnDataPort(List(FILEWORK_FMEM_GETLIST, "Frame Memory@Get", "Transfer")),
    Routed(With(List(FILEWORK_FMEM_GETLIST_BG, "Frame Memory@Get", nullptr), Reply::Background)),
    OnDataPort(List(FILEWORK_FMEM_PUTLIST, "Frame Memory@PutV3", "Transfer")),
    With(List(FILEWORK_FMEM_MKTHUMBLIST_BG, "Frame Memory@Make Thumbnail", nullptr),
         Reply::Background),
    List(FILEWORK_FMEM_SFM2TIFLIST, "Frame Memory@SFM2TIF", "Export"),
    List(FILEWORK_FMEM_TIF2SFMLIST, "Frame Memory@TIF2SFM", "Import"),
    List(FILEWORK_FMEM_SFM2BMPLIST, "Frame Memory@SFM2BMP", "Export"),
    List(FILEWORK_FMEM_BMP2SFMLIST, "Frame Memory@BMP2SFM", "Import"),
    List(FILEWORK_FMEM_SFM2TGALIST, "Frame Memory@SFM2TGA", "Export"),
    List(FILEWORK_FMEM_TGA2SFMLIST, "Frame Memory@TGA2SFM", "Import"),
    List(FILEWORK_FMEM_FIELDINVERT, "Frame Memory@FieldInvert", "Field Invert", 1),
    // The verb of an import depends on the kind of the image.
    OnDataPort(With(List(FILEWORK_FMEM_IMPORTLIST, "", "Import"), file_launch_import)),
    OnDataPort(With(List(FILEWORK_FMEM_IMPORTLIST_AUTOLOAD, "", nullptr), file_launch_import)),
    OnDataPort(
        With(List(FILEWORK_FMEM_EXPORTLIST, "Frame Memory@Get", "Export"), file_launch_export)),

    List(FILEWORK_ACCESS_COPYLIST, "Access@Copy", "Copy"),
    List(FILEWORK_ACCESS_MOVELIST, "Access@Move", "Rename"),
    List(FILEWORK_ACCESS_REMOVELIST, "Access@Remove", "Delete", 1),
    With(List(FILEWORK_ACCESS_COPYDIRLIST, "Access@Copydir", "Copy"), Reply::CopyDir),
    List(FILEWORK_ACCESS_MAKEVECTOR, "Access@MakeVector", "Make Vector File"),
    With(Single(FILEWORK_ACCESS_USB_RELOAD, "Access@USB Storage Reload"), Reply::Usb),
    With(Single(FILEWORK_ACCESS_USB_REFRESH, "Access@USB Storage Refresh"), Reply::Usb),
    With(Single(FILEWORK_STATUS_FMDATAPORT, "Status@FM Data Port Status"), Reply::None),

    Single(FILEWORK_RMTACCESS_SCPGET, "Remote Access@SCP Get"),
    Single(FILEWORK_RMTACCESS_SCPPUT, "Remote Access@SCP Put"),
    Single(FILEWORK_RMTACCESS_SCPDIRGET, "Remote Access@SCP Dir Get"),
    Single(FILEWORK_RMTACCESS_SCPDIRPUT, "Remote Access@SCP Dir Put"),
    Remote(FILEWORK_RMTACCESS_SCPGETLIST, "Remote Access@SCP Get"),
    Remote(FILEWORK_RMTACCESS_SCPPUTLIST, "Remote Access@SCP Put"),
    Remote(FILEWORK_RMTACCESS_SCPDIRGETLIST, "Remote Access@SCP Dir Get"),
    Remote(FILEWORK_RMTACCESS_SCPDIRPUTLIST, "Remote Access@SCP Dir Put"),
    Remote(FILEWORK_RMTACCESS_SCPIMPORTLIST, "Remote Access@SCP Dir Put", "Import"),
    Remote(FILEWORK_RMTACCESS_SCPEXPORTLIST, "Remote Access@SCP Dir Get", "Export"),
};

constexpr bool WorksRise()
{
    int before = -1;
    for (const FileWork& work : works) {
        if (work.type <= before)
            return false;
        before = work.type;
    }
    return true;
}
static_assert(WorksRise());

const FileWork* file_work(FILEWORKTYPE type)
{
    for (const FileWork& work : works)
        if (work.type == type)
            return &work;
    return nullptr;
}
