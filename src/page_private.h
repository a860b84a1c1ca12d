// page_private: what page.cpp and its parts share.
#pragma once
#include "page.h"

// One side of the menu.
struct MenuSide {
    uint32_t* history;
    int* now;
    int* max;
    uint32_t* page;
    uint32_t* prev_page;
    const char* name;
};
inline constexpr MenuSide menu_front = {Omote_History,         &Omote_History_NowPtr,
                                        &Omote_History_MaxPtr, &GL_OmoteNowPage,
                                        &GL_OmotePrevPage,     "Omote"};
inline constexpr MenuSide menu_back = {Ura_History,    &Ura_History_NowPtr, &Ura_History_MaxPtr,
                                       &GL_UraNowPage, &GL_UraPrevPage,     "Ura"};
inline const MenuSide& page_side(int flag) // valued as OmoteFlag is
{
    return flag ? menu_front : menu_back;
}

// page_history.cpp: a page was opened on a side.
void page_history_add(const MenuSide& side, uint32_t id);

// page_request.cpp: the page that is meant where the id is a wildcard, or names what this
// installation has elsewhere. Whether there is such a page is not looked at.
uint32_t page_correct_request(uint32_t id);

// page_class.cpp: bits of a page id.
constexpr uint32_t PAGE_BANK_BITS = 0xFF000000;
constexpr uint32_t PAGE_KEY_BITS = 0x00F00000; // first-level tab: key 1..4, a menu group from 5 on
constexpr uint32_t PAGE_TAB_BITS = 0x000F0000; // second-level tab; all set: the tab last chosen
bool page_is_sub_bank(uint32_t id);
