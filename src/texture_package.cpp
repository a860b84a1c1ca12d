#include "texture_package.h"
#include "log.h"
#include "process.h"
#include "safe_file.h"
#include "tally_value.h"
#include "text.h"
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <span>

#include "safeguards.h"

TEXTURE Texture[TEXTURE_MAX];
int TextureMax = 0;

namespace
{
constexpr int MOD_TEXTURE = 20;
constexpr int HARDWARE = 0; // the memory of 8 x 8 units
constexpr char LIST_HEAD[] = "# Bitmap User List";
constexpr size_t BITMAP_HEAD = 54;
constexpr uint32_t BITMAP_BYTES_MAX = 2 << 20; // more than the whole memory takes at 32 bits
constexpr size_t PART = 4096;
} // namespace

static std::span<TEXTURE> patterns()
{
    return {Texture, size_t(TextureMax)};
}

// --- Places ---

// Give each pattern its place: of each size, the patterns and the places in their order.
static void texture_layout(int n, const INTILEDATA* inData, const OUTMAPDATA* outData)
{
    for (const INTILEDATA& size : std::span(inData, TEXTURE_SIZES)) {
        const OUTMAPDATA* place = outData;
        for (TEXTURE& t : patterns()) {
            if (t.sizeX != size.sizeX || t.sizeY != size.sizeY)
                continue;
            while (place < outData + n && (place->sizeX != t.sizeX || place->sizeY != t.sizeY))
                place++;
            if (place == outData + n)
                break; // there are as many as patterns
            t.x = place->x;
            t.y = place->y;
            place++;
        }
    }
}

// 0, or -1 with no place changed.
static int place_all()
{
    INTILEDATA inData[TEXTURE_SIZES];
    OUTMAPDATA outData[TEXTURE_MAX];
    TextureLayout_Clear(inData);
    for (const TEXTURE& t : patterns()) {
        INTILEDATA* const row = TextureLayout_Row(inData, t.sizeX, t.sizeY);
        if (!row)
            return -1;
        row->num++;
    }
    const int n = LayOut(outData, inData, HARDWARE);
    for (const INTILEDATA& row : inData)
        if (row.remain != 0)
            return -1;
    texture_layout(n, inData, outData);
    return 0;
}

void TexturePackage_Clear()
{
    TextureMax = 0;
}

int TexturePackage_Add(const TEXTURE& texture)
{
    if (TextureMax == TEXTURE_MAX)
        return -1;
    Texture[TextureMax++] = texture;
    if (place_all() == 0)
        return 0;
    TextureMax--;
    return -1;
}

// One pattern less can need more room: the packer does not try all orders.
int TexturePackage_Remove(int index)
{
    if (index < 0 || index >= TextureMax)
        return -1;
    std::rotate(Texture + index, Texture + index + 1, Texture + TextureMax);
    TextureMax--;
    if (place_all() == 0)
        return 0;
    TextureMax++;
    std::rotate(Texture + index, Texture + TextureMax - 1, Texture + TextureMax);
    return -1;
}

int TexturePackage_Find(const char* name)
{
    for (int i = 0; i < TextureMax; i++)
        if (strcmp(Texture[i].name, name) == 0)
            return i;
    return -1;
}

int TexturePackage_Units()
{
    int units = 0;
    for (const TEXTURE& t : patterns())
        units += t.sizeX * t.sizeY;
    return units;
}

// --- Bitmaps ---

static uint32_t word_at(const uint8_t* p)
{
    return p[0] | p[1] << 8 | p[2] << 16 | uint32_t(p[3]) << 24;
}

static int units_of(int px)
{
    for (int units = 1; units <= TEXTURE_EDGE; units *= 2)
        if (px == units * TEXTURE_UNIT_PX)
            return units;
    return 0;
}

// From the head of a bitmap of so many bytes. False when it is none that a unit could take.
static bool read_head(TEXTURE* t, const uint8_t (&head)[BITMAP_HEAD], uint32_t bytes)
{
    const uint32_t pixels = word_at(head + 10), compression = word_at(head + 30);
    const int64_t width = int32_t(word_at(head + 18));
    const int64_t height = std::abs(int64_t(int32_t(word_at(head + 22)))); // from the top if < 0
    const int bits = head[28] | head[29] << 8;
    if (head[0] != 'B' || head[1] != 'M' || compression != 0 ||
        (bits != 8 && bits != 24 && bits != 32) || width < 1 || height < 1 || width > 0xFFFF ||
        height > 0xFFFF)
        return false;
    const int64_t line = (width * bits + 31) / 32 * 4;
    if (pixels < BITMAP_HEAD || int64_t(pixels) + line * height > bytes)
        return false;
    t->bytes = bytes;
    t->width_px = int(width);
    t->height_px = int(height);
    t->sizeX = units_of(t->width_px);
    t->sizeY = units_of(t->height_px);
    if (t->sizeX == 0 || t->sizeY == 0 || bytes > BITMAP_BYTES_MAX)
        t->sizeX = t->sizeY = 0;
    return true;
}

static bool read_bitmap(TEXTURE* t, FILE* fp, uint32_t offset, uint32_t bytes)
{
    uint8_t head[BITMAP_HEAD];
    return bytes >= sizeof head && fseek(fp, long(offset), SEEK_SET) == 0 &&
           fread(head, 1, sizeof head, fp) == sizeof head && read_head(t, head, bytes);
}

// "WOOD" of "/mnt/usb/usb1/WOOD.bmp"
static void name_of(TEXTURE* t, const char* path)
{
    const char* const slash = strrchr(path, '/');
    CopyText(t->name, slash ? slash + 1 : path);
    const size_t n = strlen(t->name);
    if (n > 4 && StrICmp(t->name + n - 4, ".bmp") == 0)
        t->name[n - 4] = '\0';
    (void)StrFileName(t->name); // a name of blanks alone becomes "_"
}

int Texture_ReadBitmap(TEXTURE* texture, const char* path)
{
    *texture = {};
    const int length = get_filelength(path);
    FILE* fp = length > 0 ? fopen(path, "re") : nullptr;
    if (!fp)
        return -1;
    CopyText(texture->path, path);
    name_of(texture, path);
    const bool is_good = read_bitmap(texture, fp, 0, uint32_t(length));
    fclose(fp);
    return is_good ? 0 : -1;
}

// --- Writing ---

static bool copy_bytes(FILE* to, FILE* from, uint32_t bytes)
{
    char part[PART];
    while (bytes > 0) {
        const size_t n = std::min<size_t>(bytes, sizeof part);
        if (fread(part, 1, n, from) != n || fwrite(part, 1, n, to) != n)
            return false;
        bytes -= uint32_t(n);
    }
    return true;
}

// It must still be what was looked at when it was added.
static bool write_bitmap(FILE* to, const TEXTURE& t)
{
    FILE* from = fopen(t.path, "re");
    if (!from)
        return false;
    TEXTURE now;
    const bool is_good = read_bitmap(&now, from, t.offset, t.bytes) && now.width_px == t.width_px &&
                         now.height_px == t.height_px &&
                         fseek(from, long(t.offset), SEEK_SET) == 0 &&
                         copy_bytes(to, from, t.bytes);
    fclose(from);
    return is_good;
}

static bool write_all(FILE* fp)
{
    fprintf(fp, "%s\n", LIST_HEAD);
    for (const TEXTURE& t : patterns())
        fprintf(fp, "%s,%d,%d,%d,%d,%u\n", t.name, t.x, t.y, t.sizeX, t.sizeY, t.bytes);
    fprintf(fp, "\n");
    for (const TEXTURE& t : patterns()) {
        if (write_bitmap(fp, t))
            continue;
        Log_Output(LOG_ALWAYS, MOD_TEXTURE, "texture package: cannot read [%s]", t.path);
        return false;
    }
    return true;
}

static bool path_in(char (&path)[PATH_SIZE], const char* drive, const char* file)
{
    return PrintText(path, "%s" TEXTURE_FOLDER "/%s", drive, file) < PATH_SIZE;
}

static int write_package(const char* path)
{
    SafeFile file;
    if (SafeFile_Open(file, path) != 0)
        return -1;
    if (write_all(file.fp))
        return SafeFile_Commit(file);
    SafeFile_Abandon(file);
    return -1;
}

// The bitmaps of the package that has just been written stand in it one behind the other.
static void take_from(const char* path)
{
    uint32_t offset = uint32_t(get_filelength(path));
    for (int i = TextureMax - 1; i >= 0; i--) {
        offset -= Texture[i].bytes;
        Texture[i].offset = offset;
        CopyText(Texture[i].path, path);
    }
}

int TexturePackage_Write(const char* drive)
{
    static constexpr char config[] = "TITLE User Texture\nVERSION 1.00\nTARGET DME\n"
                                     "INSTALL " TEXTURE_FILE " TEXTURE 1.00\n";
    char path[PATH_SIZE];
    char folder[PATH_SIZE];
    if (!FileExist(drive) || !path_in(folder, drive, "") || MakeDir(folder) != 0 ||
        !path_in(path, drive, TEXTURE_FILE) || write_package(path) != 0)
        return -1;
    take_from(path);
    return path_in(path, drive, "install.cfg") ? SafeFile_Write(path, config, sizeof config - 1)
                                               : -1;
}

// --- Reading ---

// "WOOD,0,4,2,1,24630"; the places are found anew. False for anything else.
static bool read_line(TEXTURE* t, const char* line)
{
    enum { NAME, PLACE_X, PLACE_Y, SIZE_X, SIZE_Y, BYTES, COUNT };
    Parts p;
    if (SplitValue(p, line, COUNT) != COUNT || !p.v[NAME][0] || strlen(p.v[NAME]) >= sizeof t->name)
        return false;
    CopyText(t->name, p.v[NAME]);
    char name[TEXTURE_NAME_SIZE];
    CopyText(name, t->name);
    t->sizeX = Decimal(p.v[SIZE_X]);
    t->sizeY = Decimal(p.v[SIZE_Y]);
    t->bytes = uint32_t(NumberIn(p.v[BYTES], 0, BITMAP_BYTES_MAX));
    return StrFileName(name) && strcmp(name, t->name) == 0;
}

// Number of patterns, -1 for a list that is none.
static int read_list(TEXTURE (&rows)[TEXTURE_MAX], FILE* fp)
{
    char line[128];
    int count = -1;
    while (fgets(line, sizeof line, fp) && strchr(line, '\n')) {
        line[strcspn(line, "\r\n")] = '\0';
        if (count < 0 && strcmp(line, LIST_HEAD) != 0)
            return -1;
        if (count >= 0 && !line[0])
            return count;
        if (count == TEXTURE_MAX || (count >= 0 && !read_line(&rows[count], line)))
            return -1;
        count++;
    }
    return -1;
}

static bool read_bitmaps(std::span<TEXTURE> rows, FILE* fp, const char* path)
{
    uint32_t offset = uint32_t(ftell(fp));
    for (TEXTURE& t : rows) {
        TEXTURE head;
        if (int64_t(offset) + t.bytes > get_filelength(path) ||
            !read_bitmap(&head, fp, offset, t.bytes) || head.sizeX == 0 || head.sizeX != t.sizeX ||
            head.sizeY != t.sizeY)
            return false;
        t.width_px = head.width_px;
        t.height_px = head.height_px;
        t.offset = offset;
        CopyText(t.path, path);
        offset += t.bytes;
    }
    return true;
}

// Put these in the place of what is in hand, if they fit.
static int take_over(std::span<const TEXTURE> rows)
{
    TEXTURE before[TEXTURE_MAX];
    const int before_max = TextureMax;
    std::copy_n(Texture, TEXTURE_MAX, before);
    std::copy(rows.begin(), rows.end(), Texture);
    TextureMax = int(rows.size());
    if (place_all() == 0)
        return 0;
    std::copy_n(before, TEXTURE_MAX, Texture);
    TextureMax = before_max;
    return -1;
}

int TexturePackage_Read(const char* drive)
{
    char path[PATH_SIZE];
    FILE* fp = path_in(path, drive, TEXTURE_FILE) ? fopen(path, "re") : nullptr;
    if (!fp)
        return -1;
    TEXTURE rows[TEXTURE_MAX];
    const int count = read_list(rows, fp);
    const std::span<TEXTURE> used(rows, size_t(std::max(0, count)));
    const bool is_whole = count >= 0 && read_bitmaps(used, fp, path);
    fclose(fp);
    if (is_whole && take_over(used) == 0)
        return 0;
    Log_Output(LOG_ALWAYS, MOD_TEXTURE, "texture package: not whole [%s]", path);
    return -1;
}
