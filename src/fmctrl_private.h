// fmctrl_private: what the files of the frame-memory catalogue share. Besides them only
// fmctrl3_thumb.cpp includes it, for bitmap files that are checked before they are shown.
// fmctrl.cpp takes the tallies apart, fmctrl_register.cpp has the registers and their names,
// fmctrl_list.cpp stills and clips, fmctrl_folder.cpp the folders, fmctrl_thumb.cpp the thumbnails,
// fmctrl_sft.cpp their files, fmctrl_drop.cpp and fmctrl_ftp.cpp the two file interfaces.
#pragma once
#include "fmctrl.h"
#include "global.h"
#include "types.h"

constexpr int MOD_FM = 22;                                // area of the log
constexpr int FM_BANK = 128;                              // registers of one status line
constexpr int FM_EXTENDED_BANK = FMEM_EXTENDED / FM_BANK; // the first bank of the extended store

// --- Registers (fmctrl_register.cpp) ---
FMEMREG* fm_register(int index); // null for an index that no register has
inline bool fm_is_extended(int index)
{
    return index >= FMEM_EXTENDED;
}
int fm_extended_index(int n); // of record n of the extended store; its index is taken, too
// The register of a number on the wire, from 1; -1 when there is none.
int fm_index_of_number(const char* text);
int fm_number_in_store(int index);          // from 1, in its own store
const char* fm_bare_name(const char* name); // without the prefix
inline bool fm_is_main_name(const char* name)
{
    return name[0] == 'M';
}
// LMSG_FMCTRLCHANGE; what is 0, or 1 for a thumbnail.
void fm_tell(int index, int what);
// The register holds an image of that name. Lists follow; nothing is told.
void fm_store(int index, const char* name);
// It holds none: lists, thumbnail and folder follow, and it is told.
void fm_empty(int index);
// The same, at the latest some passes later: for what may come for thousands of registers at once.
void fm_empty_soon(int index);
void fm_empty_pass();
// A register other than this one with the same name but for the prefix, and on the same side; the
// lowest. -1 when there is none.
int fm_namesake(int index);
// Both arrays take count records. 0, or -1 with nothing changed when memory is out.
int fm_resize(int count);
void fm_forget_chain(); // all registers leave the name chain and the lists' slots
void fm_registers_quit();
void fm_take_register_status(int bank, const char* value);
void fm_take_file_name_sense(const char* value);

// --- Stills and clips (fmctrl_list.cpp) ---
void fm_list_add(int index); // a register that is stored and not listed
void fm_list_remove(int index);
void fm_lists_free();
// Its folder has changed: the still and the clip follow.
void fm_list_set_folder(int index);
void fm_take_ancillary(const char* value);

// --- Folders (fmctrl_folder.cpp) ---
void init_folder();
void fm_take_folder_status(int bank, const char* value);
void fm_take_folder_names(const char* value);
void fm_take_move_still(const char* value);
// The folder of that name, or with a command to the server the first free one made to it; 0 when
// there is none.
int fm_folder_named(const char* name);

// --- Thumbnails (fmctrl_thumb.cpp) ---
void fm_thumbnail_due(int index); // fetch now when no other fetch runs, otherwise in its turn
void fm_thumbnail_drop(int index);
void fm_thumbnails_forget_fetches(); // their answers will not come any more
void fm_thumbnails_pass();
void fm_thumbnails_quit();

// --- Their files (fmctrl_sft.cpp) ---
// The picture behind the head of an SFT file into a file of its own. 0, or -1 with no file left.
int fm_sft_to_bmp(const char* sft, const char* bmp);
// A bitmap file that is what it says, and no larger than the screen. In display format; null.
SDL_Surface* fm_load_bmp(const char* path);

// --- Drop folders and command files ---
void fm_drop_pass(int elapsed_ms);
void fm_drop_link_lost(); // what is in flight will not be answered: it is done again
// How many registers there are has been told; something of them is being told. No image is dropped
// on a register of which it is not known yet whether it is empty.
void fm_drop_size_told();
void fm_drop_registers_told();
bool fm_drop_is_set_up(); // the folders of both interfaces are there
// A path that a search found is a file directly in the folder, and can stand in a command.
bool fm_drop_is_file_of(const char* folder, const char* path);
void fm_drop_quit();
void fm_ftp_pass(int elapsed_ms);
