#include "macro_file.h"
#include "log.h"
#include "memory.h"
#include "safe_file.h"
#include "tally_value.h"
#include "text.h"
#include <cstdio>
#include <cstring>
#include <new>
#include "safeguards.h"

namespace
{
constexpr char EVENT[] = "Event", CONTINUE[] = "Continue", COMMENT[] = "#";
constexpr const char* line_end[] = {"\n", "\r", "\r\n"}; // by OsType
} // namespace

// --- The list ---

MacroEvent* add_node(MacroEventList& list, MacroEvent* after)
{
    if (list.count >= MACRO_EVENTS)
        return nullptr;
    void* const memory = GDL_Malloc(sizeof(MacroEvent));
    if (!memory)
        return nullptr;
    MacroEvent* const node = new (memory) MacroEvent;
    MacroEvent_ClearData(*node);
    node->pPrev = after;
    node->pNext = after ? after->pNext : list.pHead;
    (node->pPrev ? node->pPrev->pNext : list.pHead) = node;
    (node->pNext ? node->pNext->pPrev : list.pTail) = node;
    if (!list.pMacroEventEditList)
        list.pMacroEventEditList = node;
    list.count++;
    return node;
}

void del_node(MacroEventList& list, MacroEvent* node)
{
    if (!node)
        return;
    if (list.pMacroEventEditList == node)
        list.pMacroEventEditList = node->pNext ? node->pNext : node->pPrev;
    (node->pPrev ? node->pPrev->pNext : list.pHead) = node->pNext;
    (node->pNext ? node->pNext->pPrev : list.pTail) = node->pPrev;
    list.count--;
    GDL_Free(node);
}

void MacroList_Clear(MacroEventList& list)
{
    while (list.pHead)
        del_node(list, list.pHead);
    list = {};
}

MacroEvent* MacroList_At(const MacroEventList& list, int row)
{
    MacroEvent* node = row < 0 ? nullptr : list.pHead;
    while (node && row-- > 0)
        node = node->pNext;
    return node;
}

void MacroList_Number(MacroEventList& list)
{
    int number = 0;
    for (MacroEvent* node = list.pHead; node; node = node->pNext)
        if (Same(node->Contents, EVENT))
            PrintText(node->ContentsWithNo, "%s %d", EVENT, ++number);
        else
            CopyText(node->ContentsWithNo, node->Contents);
}

void MacroEvent_ClearData(MacroEvent& event)
{
    for (char(&value)[MACRO_VALUE_SIZE] : event.Data)
        CopyText(value, MACRO_NO_VALUE);
}

bool MacroEvent_IsComment(const MacroEvent& event)
{
    return Same(event.Contents, COMMENT);
}

bool MacroEvent_IsBlank(const MacroEvent& event)
{
    return !MacroEvent_IsComment(event) && !*event.Symbol;
}

static bool has_value(const char* value)
{
    return *value && !Same(value, MACRO_NO_VALUE);
}

int MacroEvent_Missing(const MacroEvent& event)
{
    const int n = MacroEvent_IsComment(event) ? 1 : get_param_count(event.Symbol);
    if (n <= 0)
        return 0;
    for (int i = 0; i < n; i++)
        if (!has_value(event.Data[i]))
            return i;
    return -1;
}

// --- Reading ---

namespace
{
struct Reader {
    FILE* fp = nullptr;
    bool is_end_known = false; // OsType holds the first line end
    int OsType = OSTYPE_LF;
};

// A line without its end. False at the end of the file. What is too long, and what stands behind a
// NUL, is left out.
bool read_line(Reader& reader, char (&line)[MACRO_LINE_CHARS + 1])
{
    int n = 0;
    int byte;
    bool is_cut = false, is_any = false;
    while ((byte = getc(reader.fp)) != EOF && byte != '\n' && byte != '\r') {
        is_any = true;
        is_cut = is_cut || byte == '\0' || n == MACRO_LINE_CHARS;
        if (!is_cut)
            line[n++] = char(byte);
    }
    line[n] = '\0';
    if (byte == EOF)
        return is_any;
    int type = byte == '\n' ? OSTYPE_LF : OSTYPE_CR;
    if (byte == '\r') {
        const int next = getc(reader.fp);
        if (next == '\n')
            type = OSTYPE_CRLF;
        else if (next != EOF)
            (void)ungetc(next, reader.fp); // one byte always fits
    }
    if (!reader.is_end_known)
        reader.OsType = type;
    reader.is_end_known = true;
    return true;
}

// Fields between commas; a run of commas is one.
struct Fields {
    const char* at = "";
};

bool next_field(Fields& fields, char (&field)[MACRO_VALUE_SIZE])
{
    fields.at += strspn(fields.at, ",");
    const size_t n = strcspn(fields.at, ",");
    (void)strncpy_secu(field, fields.at, sizeof field, n);
    fields.at += n;
    return n > 0;
}

// "ME?" without its mark; false for a field that has none.
bool take_mark(char (&field)[MACRO_VALUE_SIZE])
{
    const size_t n = strlen(field);
    if (n < 2 || field[n - 1] != '?')
        return false;
    field[n - 1] = '\0';
    return true;
}

int slot_of(const MACROPARAM* slots, int count, const char* name)
{
    for (int i = 0; i < count; i++)
        if (Same(slots[i].parametername, name))
            return i;
    return -1;
}

// The slot that a field names, -1 when it names none.
int slot_named(const MACROPARAM* slots, int count, const char* field)
{
    char name[MACRO_VALUE_SIZE];
    CopyText(name, field);
    return take_mark(name) ? slot_of(slots, count, name) : -1;
}

// Pairs of a name and a value. A name that another name follows has no value.
void read_values(Fields& fields, const MACROPARAM* slots, MacroEvent& event)
{
    const int count = get_param_count(event.Symbol);
    char name[MACRO_VALUE_SIZE], value[MACRO_VALUE_SIZE];
    bool is_more = next_field(fields, name);
    for (int pair = 0; is_more && pair < count && next_field(fields, value); pair++) {
        if (slot_named(slots, count, value) >= 0) {
            CopyText(name, value);
            continue;
        }
        const int slot = slot_named(slots, count, name);
        if (slot >= 0)
            CopyText(event.Data[slot], MacroValue_Shown(event.Symbol, slot, value));
        is_more = next_field(fields, name);
    }
}

// Add the line's event; a line that is none adds nothing.
void read_event(const char* line, MacroEventList& list)
{
    Fields fields{line};
    char word[MACRO_VALUE_SIZE], text[MACRO_VALUE_SIZE];
    if (!next_field(fields, word) || !take_mark(word))
        return;
    const bool is_comment = Same(word, COMMENT);
    if (!is_comment && !Same(word, EVENT) && !Same(word, CONTINUE))
        return;
    const bool has_text = next_field(fields, text);
    const MACROPARAM* const slots = has_text ? MacroSymbol_Find(text) : nullptr;
    MacroEvent* const node = is_comment || slots ? add_node(list, list.pTail) : nullptr;
    if (!node)
        return;
    CopyText(node->Contents, word);
    if (is_comment) {
        if (has_text)
            (void)strncpy_secu(node->Data[0], text, MACRO_VALUE_SIZE, MACRO_COMMENT_CHARS);
        return;
    }
    CopyText(node->Symbol, text);
    read_values(fields, slots, *node);
}

bool is_header(const char* line)
{
    constexpr size_t LENGTH = 20;
    return strlen(line) >= LENGTH && strncmp(line, "PNL", 3) == 0 &&
           strncmp(line + 8, "PNL_", 4) == 0 && strncmp(line + 16, ".PMR", 4) == 0;
}
} // namespace

int MacroFile_Read(const char* path, MacroEventList& list)
{
    MacroList_Clear(list);
    Reader reader;
    char line[MACRO_LINE_CHARS + 1];
    reader.fp = fopen(path, "re");
    if (!reader.fp)
        return -1;
    if (read_line(reader, line) && is_header(line)) {
        CopyText(list.MacroFileName, line);
        for (int n = 1; n < MACRO_LINES && read_line(reader, line); n++)
            read_event(line, list);
    }
    list.OsType = *list.MacroFileName ? reader.OsType : int(OSTYPE_LF);
    const bool is_sound = !ferror(reader.fp);
    fclose(reader.fp);
    MacroList_Number(list);
    return is_sound ? 0 : -1;
}

// --- Writing ---

void MacroFile_Header(int number, const char* name, char (&header)[MACRO_HEADER_SIZE])
{
    PrintText(header, "PNL 0001PNL_%04d.PMR%s", number, name);
}

// A parameter without a value is not written.
static void write_event(FILE* fp, const MacroEvent& event, const MACROPARAM* slots)
{
    fprintf(fp, "%s?,%s", event.Contents, event.Symbol);
    const int count = get_param_count(event.Symbol);
    for (int i = 0; i < count; i++)
        if (has_value(event.Data[i]))
            fprintf(fp, ",%s?,%s", slots[i].parametername,
                    MacroValue_Stored(event.Symbol, i, event.Data[i]));
}

static int write_lines(FILE* fp, const MacroEventList& list)
{
    const char* const end = line_end[list.OsType];
    fprintf(fp, "%s%s", list.MacroFileName, end);
    for (const MacroEvent* node = list.pHead; node; node = node->pNext) {
        const bool is_comment = MacroEvent_IsComment(*node);
        const MACROPARAM* const slots = is_comment ? nullptr : MacroSymbol_Find(node->Symbol);
        if (!is_comment && !slots)
            return -1;
        if (slots)
            write_event(fp, *node, slots);
        else
            fprintf(fp, "%s?,%s", COMMENT, has_value(node->Data[0]) ? node->Data[0] : "");
        fputs(end, fp);
    }
    return 0;
}

int MacroFile_Write(const char* path, const MacroEventList& list)
{
    FILE* const old = fopen(path, "re");
    if (!old) {
        Log_Output(LOG_ALWAYS, MOD_GLOBAL,
                   "File:%s--Func:%s--Line:%d--Open macro file failure, check it exist!\n",
                   __FILE__, __func__, __LINE__);
        return -1;
    }
    fclose(old);
    SafeFile file;
    if (SafeFile_Open(file, path) != 0)
        return -1;
    if (write_lines(file.fp, list) != 0) {
        SafeFile_Abandon(file);
        return -1;
    }
    return SafeFile_Commit(file);
}

int MacroFile_New(const char* path, const char* header)
{
    char line[MACRO_HEADER_SIZE + 1];
    PrintText(line, "%s\n", header);
    return SafeFile_Write(path, line, strlen(line));
}
