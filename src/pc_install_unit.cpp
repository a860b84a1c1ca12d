// What New Install knows of units and packages: versions, models, and what fits what.
#include "device.h"
#include "global.h"
#include "pc_install.h"
#include "tally_value.h"
#include "text.h"
#include "version.h"
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "safeguards.h"

namespace
{
#define VERSION_DIR "/var/tmp/version1/"

// A model, and the names of packages that it takes. The models with one format alone take those of
// their full sisters.
struct Model {
    const char* unit = nullptr; // class, as the unit's name begins
    DEVTYPE type = DEVTYPE_UNKNOWN;
    const char* model = nullptr;
    const char* names[2] = {};
};
constexpr Model models[] = {
    {"PNL", DEVTYPE_QRD11, "QRD11", {"QRD11"}},
    {"PNL", DEVTYPE_QRD11A, "QRD11A", {"QRD11A"}},
    {"PNL", DEVTYPE_QRD21, "QRD21", {"QRD21"}},
    {"PNL", DEVTYPE_QRD22, "QRD22", {"QRD22"}},
    {"PNL", DEVTYPE_QRD21A, "QRD21A", {"QRD21A"}},
    {"PNL", DEVTYPE_QRD22A, "QRD22A", {"QRD22A"}},
    {"PNL", DEVTYPE_QRD31, "QRD31", {"QRD31"}},
    {"PNL", DEVTYPE_QRD32, "QRD32", {"QRD32"}},
    {"PNL", DEVTYPE_QRD33, "QRD33", {"QRD33"}},
    {"PNL", DEVTYPE_QRD11B, "QRD11B", {"QRD11B"}},
    {"SWR", DEVTYPE_KTR40, "KTR40", {"KTR40"}},
    {"SWR", DEVTYPE_KTR40SF, "KTR40SF", {"KTR40SF", "KTR40"}},
    {"SWR", DEVTYPE_LTR50, "LTR50", {"LTR50"}},
    {"SWR", DEVTYPE_LTR50SF, "LTR50SF", {"LTR50SF", "LTR50"}},
    {"SWR", DEVTYPE_KTR40A, "KTR40A", {"KTR40A"}},
    {"SWR", DEVTYPE_KTR40ASF, "KTR40ASF", {"KTR40ASF", "KTR40A"}},
    {"SWR", DEVTYPE_KTR40G, "KTR40G", {"KTR40G"}},
    {"SWR", DEVTYPE_KTR40GSF, "KTR40GSF", {"KTR40GSF", "KTR40G"}},
    {"SWR", DEVTYPE_KTR40E, "KTR40E", {"KTR40E"}},
    {"SWR", DEVTYPE_KTR40X, "KTR40X", {"KTR40X"}},
    {"SWR", DEVTYPE_KTR40XSF, "KTR40XSF", {"KTR40XSF", "KTR40X"}},
    {"SWR", DEVTYPE_NTR40, "NTR40", {"NTR40"}},
    {"DME", DEVTYPE_FXU40, "FXU40", {"FXU40"}},
    {"DME", DEVTYPE_HLDB7, "HLDB7", {"HLDB7"}},
    {"DME", DEVTYPE_FXU50, "FXU50", {"FXU50"}},
    {"DME", DEVTYPE_FXU40A, "FXU40A", {"FXU40A"}},
    {"DME", DEVTYPE_QRD51, "QRD51", {"QRD51"}},
    {"DME", DEVTYPE_QRD52E, "QRD52E", {"QRD52E"}},
    {"DME", DEVTYPE_QRD53X, "QRD53X", {"QRD53X"}},
    {"DME", DEVTYPE_ZRD52, "ZRD52", {"ZRD52"}},
};

// A part of "TARGET" or of the title, in the order of trial.
struct TargetWord {
    const char* word;
    int target;
};
constexpr TargetWord target_words[] = {
    {"SCS", TARGET_SCS}, {"MENU", TARGET_UI}, {"PNL", TARGET_CTRL}, {"CTRL", TARGET_CTRL},
    {"DCU", TARGET_DCU}, {"SWR", TARGET_SWR}, {"DME", TARGET_DME},  {"UI", TARGET_UI},
};
constexpr const char* kind_words[] = {"Upgrade", "Full"};
} // namespace

// --- Packages ---

// As the title writes it: all of it in one case, or a capital first.
static bool has_kind(const char* title, const char* kind)
{
    char other[16];
    CopyText(other, kind);
    StrUpr(other);
    if (strstr(title, kind) || strstr(title, other))
        return true;
    StrLwr(other);
    return strstr(title, other) != nullptr;
}

static const char* kind_of(const char* title)
{
    for (const char* kind : kind_words)
        if (has_kind(title, kind))
            return kind;
    return "";
}

static int target_in(const char* text)
{
    for (const TargetWord& t : target_words)
        if (StrIStr(text, t.word))
            return t.target;
    return -1;
}

static void read_line(InstallPackage* package, char* target, size_t size, char* line)
{
    const char *keyword, *value;
    Install_SplitLine(line, &keyword, &value);
    if (StrICmp(keyword, "TITLE") == 0)
        CopyText(package->title, value);
    else if (StrICmp(keyword, "VERSION") == 0)
        CopyText(package->version, value);
    else if (StrICmp(keyword, "TARGET") == 0)
        ktr_strncpy(target, value, size);
}

int Install_ReadPackage(InstallPackage* package, const char* path)
{
    *package = {};
    CopyText(package->path, path);
    FILE* fp = fopen(path, "re");
    if (!fp)
        return -1;
    char target[64] = "";
    char line[INSTALL_LINE + 3];
    while (fgets(line, sizeof line, fp))
        read_line(package, target, sizeof target, line);
    fclose(fp);
    package->kind = kind_of(package->title);
    package->target = target_in(target);
    if (package->target < 0)
        package->target = target_in(package->title);
    return 0;
}

// Where two versions differ, numbers by their value: "5.10" is newer than "5.9".
static int compare_versions(const char* a, const char* b)
{
    while (*a && *b) {
        if (isdigit(uint8_t(*a)) && isdigit(uint8_t(*b))) {
            char *a_end, *b_end;
            const unsigned long long na = strtoull(a, &a_end, 10), nb = strtoull(b, &b_end, 10);
            if (na != nb)
                return na < nb ? -1 : 1;
            a = a_end;
            b = b_end;
        } else if (*a != *b) {
            return *a < *b ? -1 : 1;
        } else {
            a++;
            b++;
        }
    }
    return int(*a != '\0') - int(*b != '\0');
}

static int kind_rank(const InstallPackage& p)
{
    return strcmp(p.kind, kind_words[0]) == 0 ? 0 : 1;
}

int newinstall_qsort_compare(const void* a, const void* b)
{
    const auto& pa = *static_cast<const InstallPackage*>(a);
    const auto& pb = *static_cast<const InstallPackage*>(b);
    if (pa.target != pb.target)
        return pa.target < pb.target ? -1 : 1;
    if (const int newer = compare_versions(pb.version, pa.version))
        return newer;
    if (const int rank = kind_rank(pa) - kind_rank(pb))
        return rank;
    if (const int title = StrICmp(pa.title, pb.title))
        return title;
    return strcmp(pa.path, pb.path);
}

// --- Units ---

void newinstall_versioninfo(const char* path, char* text, int size)
{
    char line[256] = "";
    ktr_strncpy(text, "--", size_t(size));
    FILE* fp = fopen(path, "re");
    if (!fp)
        return;
    const bool has_line = fgets(line, sizeof line, fp) != nullptr;
    fclose(fp);
    if (!has_line)
        return;
    line[strcspn(line, "\r\n")] = '\0';
    const char* from = strchr(line, ':');
    from = from ? from + 1 : line;
    from += strspn(from, " \t");
    if (GL_DetailInfoFull)
        ktr_strncpy(text, from, size_t(size));
    else
        Strip_VersionStr(text, from, size);
    if (BeginsWith(text, "Version "))
        memmove(text, text + 8, strlen(text + 8) + 1);
}

static const Model* find_model(const char* unit, int type)
{
    for (const Model& m : models)
        if (m.type == type && BeginsWith(unit, m.unit))
            return &m;
    return nullptr;
}

const char* newinstall_modelinfo(const char* unit, int type)
{
    const Model* const m = find_model(unit, type);
    return m ? m->model : "--";
}

static InstallUnit* add_unit(InstallUnit* units, int& count, const char* name, int target, int uid)
{
    if (count == INSTALL_UNITS)
        return nullptr;
    InstallUnit* const unit = &units[count++];
    *unit = {};
    CopyText(unit->name, name);
    CopyText(unit->model, "--");
    CopyText(unit->version, "--");
    unit->target = target;
    unit->uid = uid;
    return unit;
}

// A unit's id is "SWR001D002": class, group, own number.
static void add_device(InstallUnit* units, int& count, const DEVICE& dev, int target,
                       const char* prefix)
{
    const int uid = Device_UnitNumber(dev);
    InstallUnit* const unit = add_unit(units, count, dev.name, target, uid);
    if (!unit)
        return;
    char group[4] = "";
    char path[PATH_SIZE];
    strncpy_close(group, strlen(dev.id) > 6 ? dev.id + 3 : "0", 3);
    PrintText(path, VERSION_DIR "%s%02d%s00", prefix, Decimal(group),
              strlen(dev.id) > 8 ? dev.id + 8 : "00");
    newinstall_versioninfo(path, unit->version, sizeof unit->version);
    CopyText(unit->model, newinstall_modelinfo(dev.name, dev.type));
}

static void add_devices(InstallUnit* units, int& count, DEVICE* const* own, int target,
                        const char* prefix)
{
    for (; *own; own++)
        add_device(units, count, **own, target, prefix);
}

static void add_dcus(InstallUnit* units, int& count)
{
    for (int n = 1; n <= DCU_MAX; n++) {
        char text[PATH_SIZE];
        PrintText(text, "DCU%d", n);
        InstallUnit* const unit = add_unit(units, count, text, TARGET_DCU, n);
        if (!unit)
            return;
        PrintText(text, VERSION_DIR "SIU%02d%02d00", SYS_GroupID, n);
        newinstall_versioninfo(text, unit->version, sizeof unit->version);
    }
}

int Install_Units(InstallUnit* units)
{
    int count = 0;
    if (InstallUnit* const scs = add_unit(units, count, "SCS", TARGET_SCS, 1))
        newinstall_versioninfo(VERSION_DIR "SCS1", scs->version, sizeof scs->version);
    if (InstallUnit* const menu = add_unit(units, count, "Menu/UI", TARGET_UI, SYS_UnitID))
        PrintText(menu->version, "V%s", GL_Version);
    add_devices(units, count, DEV_MyPnl, TARGET_CTRL, "PNC");
    add_dcus(units, count);
    add_devices(units, count, DEV_MySwr, TARGET_SWR, "SWR");
    add_devices(units, count, DEV_MyDme, TARGET_DME, "DME");
    return count;
}

// --- What fits ---

// Whether a text has this word: nothing of a name stands beside it.
static bool has_word(const char* text, const char* word)
{
    const size_t n = strlen(word);
    for (const char* at = StrIStr(text, word); at; at = StrIStr(at + 1, word))
        if ((at == text || !isalnum(uint8_t(at[-1]))) && !isalnum(uint8_t(at[n])))
            return true;
    return false;
}

static bool takes(const Model& m, const char* title)
{
    for (const char* name : m.names)
        if (name && has_word(title, name))
            return true;
    return false;
}

// A package whose title has no model's name is for all units of its kind.
int newinstall_calc_model(const InstallUnit* tgt, const InstallPackage* p)
{
    if (p->target != tgt->target)
        return 0;
    bool is_for_some = false;
    for (const Model& m : models) {
        if (!takes(m, p->title))
            continue;
        is_for_some = true;
        if (strcmp(m.model, tgt->model) == 0)
            return 1;
    }
    return !is_for_some;
}
