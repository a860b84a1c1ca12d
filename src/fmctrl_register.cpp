#include "bus.h"
#include "fmctrl_private.h"
#include "log.h"
#include "memory.h"
#include "message.h"
#include "netio.h"
#include "tally_value.h"
#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstring>
#include <iterator>

#include "safeguards.h"

int SYS_FmemRegMax = 0;
FMEMREG* FmemReg = nullptr;
FMEMREG* FmemReg2 = nullptr;

constexpr int NAME_CHARACTERS = 9; // prefix and 8
constexpr int DEFAULT_IMAGES = 999;

static int default_image = 0; // the number given last; 0 none

// Each emptied register costs a file and a message. A pass takes so many; a deletion of all would
// otherwise hold the screen.
constexpr int EMPTIED_A_PASS = 128;
static int emptied = 0;          // since the pass began
static bool some_doomed = false; // a register may wait for its turn

// --- Places ---

FMEMREG* fm_register(int index)
{
    if (index >= FMEM_EXTENDED)
        return index - FMEM_EXTENDED < SYS_FmemRegMax ? &FmemReg2[index - FMEM_EXTENDED] : nullptr;
    return index >= 0 && index < SYS_FmemRegMax ? &FmemReg[index] : nullptr;
}

int fm_index_of_number(const char* text)
{
    const int index = IndexFrom1(text, 2 * FMEM_EXTENDED);
    return fm_register(index) ? index : -1;
}

int fm_number_in_store(int index)
{
    return (fm_is_extended(index) ? index - FMEM_EXTENDED : index) + 1;
}

void fm_tell(int index, int what)
{
    SendMessage(LMSG_FMCTRLCHANGE, index, what, fm_is_extended(index) ? 1 : 0, 0);
}

// --- Names ---

const char* fm_bare_name(const char* name)
{
    return name[0] ? name + 1 : name;
}

static bool is_frame_number(const char* text)
{
    return isdigit(uint8_t(text[0])) && isdigit(uint8_t(text[1])) && isdigit(uint8_t(text[2])) &&
           isdigit(uint8_t(text[3])) && text[4] == '\0';
}

int FMCtrl_DivClipName(const char* reg_name, char* clip_name, char* frame_name, int clip_size,
                       int fname_size)
{
    constexpr size_t DIGITS = 4;
    if (clip_name && clip_size > 0)
        clip_name[0] = '\0';
    if (frame_name && fname_size > 0)
        frame_name[0] = '\0';
    const size_t length = reg_name ? strlen(reg_name) : 0;
    if (length <= DIGITS + 1 || (reg_name[0] != 'M' && reg_name[0] != 'S'))
        return -1;
    const char* frame = reg_name + length - DIGITS;
    if (!is_frame_number(frame))
        return -1;
    if (clip_name && clip_size > 0)
        ktr_strncpy(clip_name, reg_name + 1,
                    std::min(size_t(clip_size), length - DIGITS)); // prefix off, terminator on
    if (frame_name && fname_size > 0)
        ktr_strncpy(frame_name, frame, size_t(fname_size));
    return 0;
}

void fname2dispname(const char* fname, char* dispname, int size)
{
    if (!dispname || size < 1)
        return;
    dispname[0] = '\0';
    if (!fname)
        return;
    char name[FMEM_NAME_SIZE];
    strncpy_secu(name, fname, sizeof name, NAME_CHARACTERS);
    for (size_t n = strlen(name); n > 0 && name[n - 1] == ' '; n--)
        name[n - 1] = '\0';
    (void)StrRegName(name); // an empty name stays empty
    ktr_strncpy(dispname, name, size_t(size));
}

// --- The name chain: the listed registers, hashed by the name without its prefix ---
// A name is looked for at every new image and for each of 999 default numbers, in 11,324 registers.

constexpr unsigned CHAINS = 8192; // a power of two
static int chain_first[CHAINS];   // index + 1 of its first register, 0 none

static int* chain_of(const char* bare)
{
    uint32_t h = 2166136261u;
    for (const char* p = bare; *p; p++)
        h = (h ^ uint8_t(*p)) * 16777619u;
    return &chain_first[(h ^ h >> 16) & (CHAINS - 1)];
}

static void chain_add(int index)
{
    FMEMREG& r = *fm_register(index);
    int* first = chain_of(fm_bare_name(r.name));
    r.chain_prev = -1;
    r.chain_next = *first - 1;
    if (r.chain_next >= 0)
        fm_register(r.chain_next)->chain_prev = index;
    *first = index + 1;
    r.is_listed = true;
}

static void chain_remove(int index)
{
    FMEMREG& r = *fm_register(index);
    if (r.chain_prev >= 0)
        fm_register(r.chain_prev)->chain_next = r.chain_next;
    else
        *chain_of(fm_bare_name(r.name)) = r.chain_next + 1;
    if (r.chain_next >= 0)
        fm_register(r.chain_next)->chain_prev = r.chain_prev;
    r.chain_prev = r.chain_next = -1;
    r.is_listed = false;
}

// Lower number first, of one number the main store.
static int search_order(int index)
{
    return fm_number_in_store(index) * 2 + (fm_is_extended(index) ? 1 : 0);
}

// The first register that passes, in that order; -1.
template <typename Passes> static int chain_find(const char* bare, Passes passes)
{
    int found = -1;
    for (int i = *chain_of(bare) - 1; i >= 0; i = fm_register(i)->chain_next)
        if ((found < 0 || search_order(i) < search_order(found)) && passes(i))
            found = i;
    return found;
}

int fm_namesake(int index)
{
    const char* name = fm_register(index)->name;
    const char* bare = fm_bare_name(name);
    return chain_find(bare, [=](int i) {
        const char* other = fm_register(i)->name;
        return i != index && fm_is_main_name(other) == fm_is_main_name(name) &&
               Same(fm_bare_name(other), bare);
    });
}

void fm_forget_chain()
{
    std::fill(std::begin(chain_first), std::end(chain_first), 0);
    for (FMEMREG* store : {FmemReg, FmemReg2}) {
        for (int n = 0; n < SYS_FmemRegMax; n++) {
            store[n].chain_next = store[n].chain_prev = -1;
            store[n].is_listed = store[n].holds_slot = false;
            store[n].clip = nullptr;
        }
    }
}

// --- Stored and empty ---

static void list(int index)
{
    chain_add(index);
    fm_list_add(index);
}

static void unlist(int index)
{
    if (!fm_register(index)->is_listed)
        return;
    fm_list_remove(index); // while its namesakes can be found
    chain_remove(index);
}

void fm_store(int index, const char* name)
{
    FMEMREG& r = *fm_register(index);
    r.is_doomed = false;
    char cut[FMEM_NAME_SIZE];
    strncpy_secu(cut, name, sizeof cut, NAME_CHARACTERS);
    // An unchanged name leaves the lists alone: taken out and in again, a clip of two frames would
    // lose what was told of it.
    if (r.store && r.is_listed && Same(r.name, cut))
        return;
    unlist(index);
    r.store = 1;
    CopyText(r.name, cut);
    list(index);
}

void fm_empty(int index)
{
    FMEMREG& r = *fm_register(index);
    unlist(index);
    r.is_doomed = false;
    r.store = 0;
    r.folder_id = 0;
    r.name[0] = '\0';
    fm_thumbnail_drop(index);
    fm_tell(index, 0);
}

void fm_empty_soon(int index)
{
    if (emptied < EMPTIED_A_PASS) {
        emptied++;
        fm_empty(index);
        return;
    }
    fm_register(index)->is_doomed = true;
    some_doomed = true;
}

void fm_empty_pass()
{
    emptied = 0;
    if (!some_doomed)
        return;
    for (int first : {0, FMEM_EXTENDED}) {
        for (int n = 0; n < SYS_FmemRegMax; n++) {
            if (!fm_register(first + n) || !fm_register(first + n)->is_doomed)
                continue; // who was told of the last one may have changed anything
            if (emptied++ == EMPTIED_A_PASS)
                return;
            fm_empty(first + n);
        }
    }
    some_doomed = false;
}

static FMEMREG* resized(FMEMREG* store, int count)
{
    for (int n = count; n < SYS_FmemRegMax; n++) {
        SDL_FreeSurface(store[n].thumb); // takes a null
        store[n].thumb = nullptr;
    }
    FMEMREG* moved = static_cast<FMEMREG*>(GDL_Realloc(store, size_t(count) * sizeof(FMEMREG)));
    if (!moved && count > 0)
        return count < SYS_FmemRegMax ? store : nullptr; // larger than it need be
    for (int n = SYS_FmemRegMax; n < count; n++)
        moved[n] = FMEMREG{};
    return moved;
}

int fm_resize(int count)
{
    if (count == SYS_FmemRegMax)
        return 0;
    // Growing can fail: then the smaller number stays true of both.
    FMEMREG* first = resized(FmemReg, count);
    if (count > 0 && !first) {
        printf("alloc error\n");
        return -1;
    }
    FmemReg = first;
    FMEMREG* second = resized(FmemReg2, count);
    if (count > 0 && !second) {
        printf("alloc error\n");
        return -1;
    }
    FmemReg2 = second;
    SYS_FmemRegMax = count;
    return 0;
}

// --- Register Status: which registers hold something ---

constexpr int STATUS_WORDS = 4;
constexpr int WORD_DIGITS = 8;
constexpr int WORD_REGISTERS = 32;

// The first 32 registers stand in the last 8 digits, the lowest bit first.
static bool status_word(const char* value, int length, int word, uint32_t* bits)
{
    const int at = length - WORD_DIGITS * (word + 1);
    if (at < 0)
        return false;
    char digits[WORD_DIGITS + 1];
    strncpy_close(digits, value + at, WORD_DIGITS);
    *bits = Hex(digits);
    return true;
}

void fm_take_register_status(int bank, const char* value)
{
    if (bank >= FM_EXTENDED_BANK && Extended_Capacity == 0)
        return;
    const int length = int(strlen(value));
    if (int(strspn(value, "0123456789ABCDEFabcdef")) != length) {
        Log_Output(LOG_LINK, MOD_FM, "Register Status@%d refused [%.40s]", bank, value);
        return;
    }
    const int base = bank * FM_BANK;
    for (int word = 0; word < STATUS_WORDS; word++) {
        uint32_t bits = 0;
        if (!status_word(value, length, word, &bits))
            return;
        for (int i = 0; i < WORD_REGISTERS; i++) {
            const int index = base + word * WORD_REGISTERS + i;
            const FMEMREG* r = fm_register(index);
            if (!r)
                return;
            if (bits >> i & 1)
                Net_SendCommandFormat("put 16@Frame Mem@Status@File Name Sense#%d", index + 1);
            else if (r->store)
                fm_empty_soon(index);
        }
    }
}

// --- File Name Sense: what one register holds ---

constexpr uint32_t SENSE_STORED = 1;
constexpr uint32_t SENSE_STORED_NO_THUMBNAIL = 0x81;

void fm_take_file_name_sense(const char* value)
{
    Parts p;
    if (SplitValue(p, value, 3) < 2)
        return;
    const int index = fm_index_of_number(p.v[0]);
    if (index < 0)
        return;
    fm_drop_registers_told();
    const char* name = p.v[2] ? p.v[2] : "";
    switch (Hex(p.v[1])) {
    case SENSE_STORED:
        fm_thumbnail_drop(index);
        fm_store(index, name);
        fm_thumbnail_due(index);
        break;
    case SENSE_STORED_NO_THUMBNAIL: fm_store(index, name); break;
    default:
        if (fm_register(index)->store) {
            fm_empty(index); // tells it
            return;
        }
        break;
    }
    fm_tell(index, 0);
}

// --- Questions ---

int FMCtrl2_IsRegStoreMulti(int index)
{
    const FMEMREG* r = fm_register(index);
    return r ? r->store : 0;
}

const char* FMCtrl2_GetRegNameMulti(int index)
{
    const FMEMREG* r = fm_register(index);
    return r ? r->name : "";
}

int fm_extended_index(int n)
{
    return n < 0 ? -1 : n < FMEM_EXTENDED ? FMEM_EXTENDED + n : n;
}

int FMCtrl_IsRegStore(int n)
{
    return FMCtrl2_IsRegStoreMulti(n);
}

int FMCtrl2_IsRegStore(int n)
{
    return FMCtrl2_IsRegStoreMulti(fm_extended_index(n));
}

const char* FMCtrl_GetRegName(int n)
{
    return FMCtrl2_GetRegNameMulti(n);
}

const char* FMCtrl2_GetRegName(int n)
{
    return FMCtrl2_GetRegNameMulti(fm_extended_index(n));
}

int FMCtrl_GetRegIndex(const char* name)
{
    if (!name || !*name)
        return -1;
    return chain_find(fm_bare_name(name), [=](int i) {
        return !fm_is_extended(i) && Same(fm_register(i)->name, name);
    });
}

int FMCtrl2_GetRegIndex(const char* name)
{
    if (!name || !*name)
        return -1;
    return chain_find(fm_bare_name(name), [=](int i) { return Same(fm_register(i)->name, name); });
}

int FMCtrl_ExistRegName(const char* name)
{
    return FMCtrl_GetRegIndex(name) >= 0;
}

int FMCtrl2_ExistRegName(const char* name)
{
    return FMCtrl2_GetRegIndex(name) >= 0;
}

int FMCtrl2_EmptyRegNo(int start)
{
    if (start < 0)
        return -1;
    for (int index = start;; index++) {
        const FMEMREG* r = fm_register(index);
        if (!r || fm_is_extended(index) != fm_is_extended(start))
            return -1;
        if (!r->store)
            return index;
    }
}

int FMCtrl_GetRegFolderId(int index)
{
    const FMEMREG* r = fm_register(index);
    return r ? r->folder_id : -1;
}

int FMCtrl2_IsExtendedCapacity()
{
    return Extended_Capacity != 0;
}

// Neither side has the name in that store.
static bool image_is_free(int number, bool extended)
{
    char bare[FMEM_NAME_SIZE];
    PrintText(bare, "image%03d", number);
    return chain_find(bare, [&](int i) {
               const char* name = fm_register(i)->name;
               return fm_is_extended(i) == extended && (name[0] == 'M' || name[0] == 'S') &&
                      Same(fm_bare_name(name), bare);
           }) < 0;
}

int FMCtrl_GetDefaultImageNum()
{
    for (int tries = 0; tries < DEFAULT_IMAGES; tries++) {
        default_image = default_image % DEFAULT_IMAGES + 1;
        if (image_is_free(default_image, false) ||
            (Extended_Capacity != 0 && image_is_free(default_image, true)))
            return default_image;
    }
    return 0;
}

void fm_registers_quit()
{
    default_image = emptied = 0;
    some_doomed = false;
}
