#include "harness.h"
#include "macro_file.h"
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

constexpr char PATH[] = "/var/tmp/macro_file.PMR";
constexpr char HEAD[] = "PNL 0001PNL_0001.PMRMACROREG";

struct MacroFiles : testing::Test {
    MacroEventList list;
    void TearDown() override
    {
        MacroList_Clear(list);
        unlink(PATH);
    }
    int Read(const std::string& text)
    {
        std::ofstream(PATH, std::ios::binary) << text;
        return MacroFile_Read(PATH, list);
    }
    // The list as "Event 1 MECut P/P|Continue ...".
    std::string Shown() const
    {
        std::string all;
        for (const MacroEvent* e = list.pHead; e; e = e->pNext) {
            all += (all.empty() ? "" : "|") + std::string(e->ContentsWithNo);
            all += *e->Symbol ? " " + std::string(e->Symbol) : "";
            const int n = MacroEvent_IsComment(*e) ? 1 : get_param_count(e->Symbol);
            for (int i = 0; i < n; i++)
                all += " " + std::string(e->Data[i]);
        }
        return all;
    }
    std::string Stored()
    {
        EXPECT_EQ(MacroFile_Write(PATH, list), 0);
        return FileText(PATH);
    }
};

static std::string lines(int n, const std::string& line)
{
    std::string all = std::string(HEAD) + "\n";
    for (int i = 0; i < n; i++)
        all += line + "\n";
    return all;
}

TEST_F(MacroFiles, LinesBecomeEventsAndGoBackWithTheFirstLineEnd)
{
    static const std::tuple<std::string, std::string, const char*> cases[] = {
        // null: as it was
        {"Event?,MECut,ME?,P/P", "Event 1 MECut P/P", nullptr},
        {"Continue?,AuxXpt,AuxBus?,Aux1,Xpt?,5", "Continue AuxXpt Aux1 5 -", nullptr},
        {"Event?,KeySnapshot,ME?,P/P,Register?,3", "Event 1 KeySnapshot P/P - 3", nullptr},
        {"Event?,PatternLimit,ME?,M/E-1,Status?,On,Limit?,7", "Event 1 PatternLimit M/E-1 ToOff 7",
         nullptr},
        {"Event?,PatternLimit,ME?,M/E-1,Status?,Off", "Event 1 PatternLimit M/E-1 ToOn -", nullptr},
        {"#?,cut to one camera", "# cut to one camer", "#?,cut to one camer"},
        {"#?", "# -", "#?,"},
        {"Event?,,,MECut,,ME?,,P/P,", "Event 1 MECut P/P", "Event?,MECut,ME?,P/P"},
        {"Event?,KeyCut,ME?,,Key?,Key2", "Event 1 KeyCut - Key2 -", "Event?,KeyCut,Key?,Key2"},
        {"Event?,MECut,Bank?,5", "Event 1 MECut -", "Event?,MECut"},
        {"Event?,MECut,ME?,P/P,ME?,M/E-1", "Event 1 MECut P/P", "Event?,MECut,ME?,P/P"},
        {"Event?,MECut,ME?,M/E-9", "Event 1 MECut M/E-9", nullptr}, // kept as it came
        {std::string("Event?,MECut,ME?,P/P\0,x", 24), "Event 1 MECut P/P", "Event?,MECut,ME?,P/P"},
        {"Event?,MECut,ME?," + std::string(129, 'x'), "Event 1 MECut " + std::string(128, 'x'), ""},
        {"Event,MECut,ME?,P/P", "", ""},
        {"Events?,MECut,ME?,P/P", "", ""},
        {"Event?,MEDissolve,ME?,P/P", "", ""},
        {"Event?", "", ""},
        {"", "", ""},
        {"?,?,?", "", ""},
    };
    for (const auto& [line, shown, stored] : cases) {
        ASSERT_EQ(Read(std::string(HEAD) + "\n" + line + "\n"), 0);
        EXPECT_EQ(Shown(), shown) << line;
        const std::string back = stored ? stored : line;
        if (shown.empty() || !back.empty()) {
            EXPECT_EQ(Stored(), std::string(HEAD) + "\n" + back + (back.empty() ? "" : "\n"));
        }
    }

    const std::string event = "Event?,MECut,ME?,P/P";
    static const std::tuple<std::string, std::string> ends[] = {
        // of the last line: another, none
        {"\n", "\n"},   {"\r", "\r"},   {"\r\n", "\r\n"}, {"\r\n", "\n"},
        {"\n", "\r\n"}, {"\r", "\r\n"}, {"\r\n", ""}};
    for (const auto& [first, second] : ends) {
        ASSERT_EQ(Read(HEAD + first + event + first + event + second), 0);
        EXPECT_EQ(Shown(), "Event 1 MECut P/P|Event 2 MECut P/P");
        EXPECT_EQ(Stored(), HEAD + first + event + first + event + first);
    }
}

TEST_F(MacroFiles, AFileWithoutItsHeaderIsNoneAndAStoreThatFailsLeavesTheOldOne)
{
    const std::string event = "\nEvent?,MECut,ME?,P/P\n";
    for (const std::string head : {"", "PNL", "PNL 0001PNL_0001.PM", "PNX 0001PNL_0001.PMRNAME",
                                   "PNL 0001SWR_0001.PMRNAME", "PNL 0001PNL_0001.PMANAME"}) {
        EXPECT_EQ(Read(head + event), 0);
        EXPECT_EQ(list.count, 0) << head;
        EXPECT_STREQ(list.MacroFileName, "") << head;
    }
    EXPECT_EQ(Read(""), 0);
    EXPECT_EQ(Read(HEAD), 0);
    EXPECT_EQ(list.count, 0);
    EXPECT_EQ(Stored(), std::string(HEAD) + "\n") << "a header only";
    unlink(PATH);
    EXPECT_EQ(MacroFile_Read(PATH, list), -1);
    EXPECT_EQ(MacroFile_Write(PATH, list), -1) << "there must be a file to replace";

    const std::string old = lines(1, "Event?,MECut,ME?,P/P");
    ASSERT_EQ(Read(old), 0);
    const std::string beside = std::string(PATH) + ".new";
    mkdir(beside.c_str(), 0755);
    EXPECT_EQ(MacroFile_Write(PATH, list), -1) << "there is no place for a new one";
    rmdir(beside.c_str());
    (void)add_node(list, list.pTail); // blank: no symbol
    EXPECT_EQ(MacroFile_Write(PATH, list), -1);
    EXPECT_EQ(FileText(PATH), old);
    EXPECT_NE(access(beside.c_str(), F_OK), 0);
}

TEST_F(MacroFiles, LimitsCutWhatIsTooMuchAndTheCursorOutlivesItsLine)
{
    ASSERT_EQ(Read(lines(1023, "Event?,MECut,ME?,P/P") + "Event?,MECut,ME?,M/E-1\n"), 0);
    EXPECT_EQ(list.count, 1023);
    EXPECT_STREQ(list.pTail->Data[0], "P/P");
    EXPECT_EQ(add_node(list, list.pTail), nullptr);

    // The line's last letter is character 1023, or one or two further.
    for (const int more : {0, 1, 2}) {
        const std::string pad(size_t(1004 + more), ',');
        ASSERT_EQ(Read(lines(1, "Event?" + pad + "MECut,ME?,P/P") + "Event?,MECut,ME?,P/P\n"), 0);
        EXPECT_EQ(list.pHead->Data[0], std::string("P/P").substr(0, size_t(3 - more))) << more;
        EXPECT_EQ(list.count, 2) << "the rest of a long line is no line";
    }

    ASSERT_EQ(Read(lines(3, "Event?,MECut,ME?,P/P")), 0);
    MacroEvent* const last = list.pTail;
    list.pMacroEventEditList = last->pPrev;
    del_node(list, last->pPrev);
    EXPECT_EQ(list.pMacroEventEditList, last);
    del_node(list, last);
    EXPECT_EQ(list.pMacroEventEditList, list.pHead);
    del_node(list, list.pHead);
    EXPECT_EQ(list.pMacroEventEditList, nullptr);
    EXPECT_EQ(list.pTail, nullptr);
}
