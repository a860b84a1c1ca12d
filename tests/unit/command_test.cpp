#include "command.h"
#include "page.h"
#include <cstring>
#include <gtest/gtest.h>
#include <string>
#include <vector>

using Parts = std::vector<std::string>;

static Parts Cut(int (*split)(char*, char**, int), std::string text, int vn)
{
    std::vector<char*> v(size_t(vn) + 1, text.data()); // one more, that must stay as it is
    const int count = split(text.data(), v.data(), vn);
    EXPECT_EQ(v[size_t(vn)], text.data());
    Parts parts;
    for (int i = 0; i < vn; i++) {
        EXPECT_EQ(v[size_t(i)] != nullptr, i < count);
        if (i < count)
            parts.emplace_back(v[size_t(i)]);
    }
    return parts;
}

TEST(Command, ValuesBeginBehindTheFirstMarkAndAreCutAtTheirSeparator)
{
    for (const auto& [split, text, vn, parts] :
         {std::tuple<int (*)(char*, char**, int), const char*, int, Parts>{
              &SplitVars, "a,b, c", 8, {"a", "b", "c"}},
          {&SplitVars, "a,b,c", 2, {"a", "b,c"}},
          {&SplitVars, ",b", 1, {",b"}},
          {&SplitVars, "", 4, {""}},
          {&SplitVars, "a,", 4, {"a", ""}},
          {&SplitVars, "a,  b", 4, {"a", " b"}}, // one blank is the operator's, two are the value's
          {&SplitVars, "a,b", 0, {}},
          {&SplitCmds, "M/E-1@Key 1@ Type", 8, {"M/E-1", "Key 1", " Type"}},
          {&SplitSHPValues, "CAPACITY:: 1,2", 8, {"CAPACITY", "", "1,2"}}})
        EXPECT_EQ(Cut(split, text, vn), parts) << text;
    char some[] = "x";
    char* v[] = {some, some};
    EXPECT_EQ(SplitVars(nullptr, v, 2), 0);
    EXPECT_TRUE(!v[0] && !v[1]);
    static const struct {
        const char *text, *var, *row;
    } cases[] = {
        {"A@B#c#d", "c#d", ""},           {"A@B#", "", ""}, {"A@B", "", ""}, {"", "", ""},
        {"CS1.File:a:b#c", "c", "a:b#c"},
    };
    for (const auto& c : cases) {
        std::string text = c.text;
        EXPECT_STREQ(FindVarPointer(c.text), c.var) << c.text;
        EXPECT_STREQ(FindSHPRowIDPointer(text.data()), c.row) << c.text;
    }
}

TEST(Command, TemplatesBecomePathsOfTheCurrentPage)
{
    static const char* const key[PAGE_DEPTH] = {"M/E-1", "Key1", "Type"};
    static const char* const gap[PAGE_DEPTH] = {"M/E-1", nullptr, "Type"};
    static const char* const deep[PAGE_DEPTH] = {"1", "2", "3", "4", "5", "6", "7", "8"};
    constexpr uint32_t main_key = 0x11110000, main_wipe = 0x11510000, sub_wipe = 0x15510000;
    static const struct {
        uint32_t page;
        const char* const* tree;
        const char *text, *var, *path;
    } cases[] = {
        {main_key, key, "~@Key Type#Luminance", "", "M/E-1@Key1@Type@Key Type#Luminance"},
        {main_key, key, "A~@B", "", "A~@B"}, // only at the start
        {main_wipe, key, "~1@X", "", "M/E-1@X"},
        {sub_wipe, key, "~2@X", "", "M/E-1 SUB@Key1@X"},
        {0x21110000, gap, "~2@X", "", "M/E-1@X"}, // depth counts the empty segment
        {0x21110000, nullptr, "~X", "", "X"},     // before the first page
        {0x21110000, deep, "~", "", "1@2@3@4@5@6@7@8"},
        {0x21110000, deep, "~6@X", "", "1@2@3@4@5@6@X"},
        {0x21110000, deep, "~7", "", "1@2@3@4@5@6@7@87"}, // no depth
        {0x21110000, deep, "~0", "", "1@2@3@4@5@6@7@80"},
        {main_key, key, "~1@$@X#$", "5", "M/E-1@5@X#"}, // used up by the first
        {main_key, key, "A#$$B", nullptr, "A#B"},
    };
    for (const auto& c : cases) {
        GL_NowPage = c.page;
        GL_NowTree = c.tree;
        char path[CMD_SIZE];
        DecodeCommandWithVar(path, c.text, c.var, sizeof path);
        EXPECT_STREQ(path, c.path) << c.text;
        if (strchr(c.text, '$'))
            continue;
        DecodeCommand(path, c.text, sizeof path);
        EXPECT_STREQ(path, c.path) << c.text;
    }
}

TEST(Command, ABufferThatIsShortGetsTheBeginning)
{
    static const char* const key[PAGE_DEPTH] = {"M/E-1", "Key1"};
    GL_NowPage = 0x11110000;
    GL_NowTree = key;
    // null: without one
    for (const auto& [text, var, path] : {std::tuple{"~@Type", "", std::string("M/E-1@Key1@Type")},
                                          {"~@Type", nullptr, "M/E-1@Key1@Type"},
                                          {"~1@$@X", "55", "M/E-1@55@X"},
                                          {"A@B#c", "", "A@B#c"},
                                          {"A@B#c", nullptr, "A@B#c"},
                                          {nullptr, "", ""},
                                          {nullptr, nullptr, ""}})
        for (size_t size = 0; size <= path.size() + 2; size++) {
            std::string buffer(32, '*');
            if (var)
                DecodeCommandWithVar(buffer.data(), text, var, int(size));
            else
                DecodeCommand(buffer.data(), text, int(size));
            EXPECT_EQ(buffer.substr(size), std::string(32 - size, '*')) << size;
            if (size > 0) {
                EXPECT_EQ(buffer.c_str(), path.substr(0, size - 1)) << size;
            }
        }
}

TEST(Command, AConditionDisablesAtItsValues)
{
    for (const auto& [cond, var, disabled] : {std::tuple{"Off, Auto", "Auto", 1},
                                              {"Off", "Off2", 0},
                                              {"!On", "Off", 1},
                                              {"!On", "On", 0},
                                              {"!A,!B", "A", 1},
                                              {"!A,B", "A", 0},
                                              {"", "", 1},
                                              {"A,", "", 1},
                                              {nullptr, "", 0},
                                              {"", nullptr, 1},
                                              {"Off, Auto", "uto", 0},
                                              {"XOn", "On", 0}})
        EXPECT_EQ(IsDisableCondition(cond, var), disabled) << testing::PrintToString(cond);
}

TEST(Command, SumsSwitchesAndOwnPaths)
{
    EXPECT_EQ(Hash("a\xFF"), 97u + 255);
    EXPECT_STREQ(Bool(7), "true");
    EXPECT_STREQ(ToggleBool(7), "false");
    EXPECT_TRUE(IsLocal("LOCAL@A"));
    EXPECT_FALSE(IsLocal("M/E-1@LOCAL") || IsLocal(nullptr));
}
