#include "device.h"
#include "global.h"
#include "macro_symbol.h"
#include <gtest/gtest.h>
#include <vector>

// A word that the grammar could not carry would be lost in a file.
TEST(MacroSymbols, EveryWordFitsTheFileAndEverySymbolIsAnEventThatMayFollowOrMayNot)
{
    MacroSymbols_ForSystem();
    for (const auto& row : SymbolParamTable)
        for (const MACROPARAM& slot : row) {
            EXPECT_EQ(slot.entry == MACROENTRY_LIST && *slot.parametername,
                      slot.paramvaluetbl != nullptr)
                << slot.symbol << " " << slot.parametername;
            int i = 0;
            for (const ParamValueTBL* v = slot.paramvaluetbl; v && v->index >= 0; v++, i++) {
                const std::string word = v->paramvalue;
                EXPECT_EQ(v->index, i) << slot.symbol;
                EXPECT_EQ(word.find_first_of(",?\r\n"), std::string::npos) << word;
                EXPECT_TRUE(!word.empty() && word != "-" && word.size() < MACRO_VALUE_SIZE) << word;
                EXPECT_EQ(MacroValue_Find(slot.paramvaluetbl, v->paramvalue), i) << word;
            }
            EXPECT_LE(i, 97);
        }

    int may_follow = 0;
    for (int i = 1; i <= MACRO_SYMBOLS; i++) {
        EXPECT_GT(get_param_count(EVNT[i].paramvalue), 0) << EVNT[i].paramvalue;
        const bool follows = MacroValue_Find(Continue, EVNT[i].paramvalue) > 0;
        EXPECT_NE(follows, MacroSymbol_IsContinueGray(EVNT[i].paramvalue)) << EVNT[i].paramvalue;
        may_follow += follows;
    }
    EXPECT_EQ(may_follow, CONTINUE_ROWS - 1);
    for (int i = 0; i <= MACRO_SYMBOLS; i++)
        EXPECT_EQ(EVNT[i].index, i);
    for (int i = 0; i < CONTINUE_ROWS; i++)
        EXPECT_EQ(Continue[i].index, i);
    EXPECT_EQ(EVNT[MACRO_SYMBOLS + 1].index, -1);
    EXPECT_EQ(Continue[CONTINUE_ROWS].index, -1);
    EXPECT_EQ(get_param_count("NextTransition"), MACRO_SLOTS);
    EXPECT_EQ(get_param_count("Event"), -1);
}

static const MACROPARAM& parameter(const char* symbol, const char* name)
{
    static const MACROPARAM none;
    const MACROPARAM* slots = MacroSymbol_Find(symbol);
    for (int i = 0; i < get_param_count(symbol); i++)
        if (std::string(slots[i].parametername) == name)
            return slots[i];
    ADD_FAILURE() << symbol << " " << name;
    return none;
}

TEST(MacroSymbols, ValuesAreCheckedByTheirKindAndAPatternLimitShowsWhatItDoes)
{
    MacroSymbols_ForSystem();
    using Texts = std::vector<const char*>;
    static const std::tuple<const char*, const char*, Texts, Texts> cases[] = {
        {"MECut", "ME", {"P/P"}, {"M/E-6", "-", ""}},
        {"Play", "Speed", {"-400"}, {"-401", "-", "10x"}},
        {"Pause", "Time", {"1"}, {"0", " 5", "99999999999999999999"}},
        {"FadeToBlack", "Time", {}, {"x"}},
        {"Cue", "Timecode", {"23:59:59:29"}, {"24:00:00:00", "1:00:00:00", "00:00:00;00"}},
        {"DiskFileLoad", "FileName", {"sixteen_chars_16"}, {"", "seventeen_chars17", "a,b"}},
    };
    for (const auto& [symbol, name, legal, others] : cases) {
        for (const char* text : legal)
            EXPECT_TRUE(MacroValue_IsLegal(parameter(symbol, name), text)) << text;
        for (const char* text : others)
            EXPECT_FALSE(MacroValue_IsLegal(parameter(symbol, name), text)) << text;
    }

    EXPECT_STREQ(MacroValue_Shown("PatternLimit", 1, "On"), "ToOff");
    EXPECT_STREQ(MacroValue_Shown("PatternLimit", 1, "Off"), "ToOn");
    EXPECT_STREQ(MacroValue_Shown("AuxMix", 1, "On"), "On");
    EXPECT_STREQ(MacroValue_Shown("PatternLimit", 0, "On"), "On");
    for (const char* stored : {"On", "Off", "-", "rubbish"})
        EXPECT_STREQ(
            MacroValue_Stored("PatternLimit", 1, MacroValue_Shown("PatternLimit", 1, stored)),
            stored);
}

TEST(MacroSymbols, TheSystemDecidesWhichWordsThereAre)
{
    const auto has = [](const char* symbol, const char* name, const char* word) {
        return MacroValue_Find(parameter(symbol, name).paramvaluetbl, word) >= 0;
    };
    const DEVTYPE switcher = SYS_RefSwrType;
    SYS_RefSwrType = DEVTYPE_NTR40;
    multiprogram2_me[1] = 1;
    MacroSymbols_ForSystem();
    EXPECT_FALSE(has("AuxXpt", "AuxBus", "Aux48"));
    EXPECT_FALSE(has("TransitionType", "TransitionType", "Stinger"));
    EXPECT_TRUE(has("MEXpt", "ME", "M/E-1 Sub"));
    EXPECT_TRUE(has("TimelineFF", "Region", "P/P Sub"));
    EXPECT_FALSE(has("KeySnapshot", "ME", "M/E-1 Sub"));
    SYS_RefSwrType = switcher;
    multiprogram2_me[1] = 0;
    MacroSymbols_ForSystem();
    for (int bus = 1; bus <= 48; bus++)
        EXPECT_TRUE(has("AuxXpt", "AuxBus", ("Aux" + std::to_string(bus)).c_str())) << bus;
    EXPECT_FALSE(has("MEXpt", "ME", "M/E-1 Sub"));
    EXPECT_FALSE(has("Snapshot", "Region", "M/E-1 Sub"));
}
