#include "autoload.h"
#include "log.h"
#include "text.h"
#include "tree.h"
#include <climits>

static constexpr const char* units[] = {"PNL", "SWR1", "SWR2", "DME1", "DME2", "DME3", "DME4"};
static constexpr int AGAIN_MS = 1000;
static constexpr int QUESTIONS = 60; // of each kind and unit; nobody is there then
static const std::string EXIST = "Info@Auto Load@Data Exist@";
static const std::string START = "Info@Auto Load@Start@";

static struct {
    size_t unit = std::size(units); // that is asked now; none behind the last
    bool is_starting = false;       // it has data: the second question
    bool is_loading = false;        // and it has begun
    int asked = 0;
    int64_t due_ms = 0;
} al;

static void next_unit()
{
    ++al.unit;
    al.is_starting = al.is_loading = false;
    al.asked = 0;
    al.due_ms = 0;
}

void Autoload_Start()
{
    al = {};
    al.unit = 0;
    Tree_Show("Info@Operation Setup Data@Auto Load", "1");
}

bool Autoload_Put(const std::string& path, const std::string& value)
{
    if (!Text_Begins(path, EXIST) && !Text_Begins(path, START))
        return false;
    Log_Note("auto load: %s#%s", path.c_str(), value.c_str());
    if (al.unit >= std::size(units))
        return true;
    const bool is_yes = value == "true";
    if (path == EXIST + units[al.unit] && !al.is_starting) {
        if (!is_yes)
            next_unit();
        al.is_starting = is_yes;
        al.asked = 0;
        al.due_ms = 0;
    } else if (path == START + units[al.unit]) {
        if (!is_yes)
            next_unit();
        al.is_loading = is_yes;
    }
    return true;
}

int64_t Autoload_Tick(int64_t now)
{
    if (al.unit >= std::size(units) || al.is_loading)
        return INT64_MAX;
    if (al.due_ms > now)
        return al.due_ms;
    if (al.asked++ == QUESTIONS)
        next_unit();
    if (al.unit >= std::size(units))
        return INT64_MAX;
    const std::string path = (al.is_starting ? START : EXIST) + units[al.unit];
    // Not a value: who follows is asked, and asked again.
    if (const Node* node = Tree_Get(path))
        Tree_Tell(*node, "true", 0);
    al.due_ms = now + AGAIN_MS;
    return al.due_ms;
}
