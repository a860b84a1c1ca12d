#include "timeline_edit.h"
#include "system.h"
#include <algorithm>

namespace
{
struct EditKey {
    const char* word = "";
    void (*func)(Timeline& line, bool is_constant) = nullptr;
};
} // namespace

static struct {
    Keyframe copied;
    bool has_copied = false;
} ed;

// Between two keyframes the segment is divided. On one, it is halved with constant duration;
// without, what follows moves back by a second.
static void edit_insert(Timeline& line, bool is_constant)
{
    auto& keys = line.effect.keys;
    const int key = line.key();
    if (key == 0)
        return keys.push_back({});
    Keyframe& before = keys[size_t(key - 1)];
    int into = std::max(line.time - line.delay() - line.effect.position(key), 0);
    int rest = before.duration - into;
    if (into == 0 && is_constant) {
        into = before.duration / 2;
        rest -= into;
    } else if (into == 0) {
        into = System_FrameRate();
    }
    before.duration = into;
    keys.insert(keys.begin() + key, Keyframe{rest, false});
}

// With constant duration the keyframe before reaches to the next one; without, what follows moves
// up.
static void edit_delete(Timeline& line, bool is_constant)
{
    auto& keys = line.effect.keys;
    const int key = line.key();
    if (key == 0)
        return;
    const int gone = keys[size_t(key - 1)].duration;
    keys.erase(keys.begin() + key - 1);
    if (key == 1)
        return;
    Keyframe& before = keys[size_t(key - 2)];
    if (is_constant)
        before.duration = std::min(before.duration + gone, KEYFRAME_FRAMES);
    else if (key > int(keys.size()))
        before.duration = 0;
}

static void edit_copy(Timeline& line, bool)
{
    const int key = line.key();
    ed.has_copied = key > 0;
    if (key > 0)
        ed.copied = line.effect.keys[size_t(key - 1)];
}

static void edit_paste(Timeline& line, bool)
{
    if (ed.has_copied)
        line.effect.keys.insert(line.effect.keys.begin() + line.key(), ed.copied);
}

static void edit_undo(Timeline& line, bool)
{
    std::swap(line.effect, line.undo);
}

// No loop and no cursor reaches past the end.
static void edit_settle(Timeline& line)
{
    Effect& effect = line.effect;
    const int count = int(effect.keys.size());
    if (effect.loop_last > count)
        effect.loop_last = count;
    if (effect.loop_first >= effect.loop_last)
        effect.loop_first = effect.loop_last = 0;
    line.time = std::min(line.time, line.end());
}

static constexpr EditKey edit_keys[] = {{"Insert", edit_insert},
                                        {"Delete", edit_delete},
                                        {"Copy", edit_copy},
                                        {"Paste", edit_paste},
                                        {"Undo", edit_undo}};

bool Edit_Do(Timeline& line, const std::string& word, bool is_constant)
{
    const Effect before = line.effect;
    const bool is_full = before.keys.size() >= TIMELINE_KEYFRAMES;
    for (const EditKey& key : edit_keys)
        if (word == key.word && !(is_full && (key.func == edit_insert || key.func == edit_paste)))
            key.func(line, is_constant);
    if (line.effect.keys == before.keys)
        return false;
    if (word != "Undo")
        line.undo = before;
    edit_settle(line);
    return true;
}

void Edit_Forget()
{
    ed = {};
}
