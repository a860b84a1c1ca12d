// install_stick: packages in a folder of the test's own, and scripts of the device that note how
// they were called and end as they are told to.
#pragma once
#include "err.h"
#include "harness.h"
#include "install.h"
#include "log.h"
#include "server_page.h"
#include "text.h"
#include "version.h"
#include "window.h"
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

#define STICK "/tmp/install_test"

struct InstallStick {
    std::string before = std::filesystem::current_path();
    std::string search = ::getenv("PATH");

    InstallStick()
    {
        std::filesystem::remove_all(STICK);
        (void)!::system("mkdir -p " STICK "/script " STICK "/bin " STICK "/status /var/tmp");
        // A status file has one line a call; the last line stays. A result appears with the n-th
        // "get" of a pair.
        Put("script/scs_exec.sh", R"sh(#!/bin/sh
cd )sh" STICK R"sh(
n=$(basename "$0" .sh)
line=$n; for w in "$@"; do line="$line [$w]"; done; echo "$line" >>calls
case "$1 $2" in
"rm "* | *Update\ *[!s]\ ) exit 0 ;; # the start of what can be asked goes on beside the test
"get /tmp/"*) left=$(cat after 2>/dev/null || echo 0); echo $((left - 1)) >after
    [ -f result ] && [ "$left" -le 0 ] && cp result /var/tmp/scs_update_result; exit 0 ;;
esac
s=$(head -n 1 "status/$n" 2>/dev/null || echo 0)
[ "$(cat "status/$n" 2>/dev/null | wc -l)" -gt 1 ] && sed -i 1d "status/$n"
exit "$s"
)sh");
        ::chmod(STICK "/script/scs_exec.sh", 0755);
        for (const char* name : {"script/scs_transfer.sh", "script/ui_install.sh", "fpga_updater",
                                 "bin/killall", "bin/step"})
            std::filesystem::create_symlink(STICK "/script/scs_exec.sh",
                                            std::string(STICK "/") + name);
        // The programs' folder is the stick from here on, with the bitmaps.
        std::filesystem::create_symlink(before + "/graphics", STICK "/graphics");
        std::filesystem::current_path(STICK);
        ::setenv("PATH", (STICK "/bin:" + search).c_str(), 1);
        Err_Clear();
    }
    ~InstallStick()
    {
        std::filesystem::current_path(before);
        ::setenv("PATH", search.c_str(), 1);
        std::error_code error; // a script in the background may be about to write
        std::filesystem::remove_all(STICK, error);
        (void)CloseWindow();
        Err_Clear();
    }
    InstallStick(const InstallStick&) = delete;
    InstallStick& operator=(const InstallStick&) = delete;

    static void Put(const std::string& path, const std::string& text)
    {
        const std::filesystem::path file = std::string(STICK "/") + path;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << text;
    }
    static void Ends(const std::string& name, const std::string& status)
    {
        Put("status/" + name, status + "\n");
    }
    // How the scripts were called since the last time, without the removal and fetching of results.
    static Strings Calls()
    {
        Strings calls;
        std::ifstream file(STICK "/calls");
        for (std::string line; std::getline(file, line);)
            if (line.find("[rm ") == std::string::npos && line.find("[get]") == std::string::npos)
                calls.push_back(line);
        (void)unlink(STICK "/calls");
        return calls;
    }
    static Strings Errors()
    {
        (void)unlink("/var/log2/tm3err.log");
        Err_Create();
        Strings lines;
        std::ifstream file("/var/log2/tm3err.log");
        for (std::string line; std::getline(file, line);)
            lines.push_back(line.substr(line.find("] ") + 2));
        return lines;
    }
};

// The pages of Install/Unit Config with the stick, and what the units say that they run.
struct InstallPage : ServerPage {
    std::unique_ptr<InstallStick> stick;

    void SetUp() override
    {
        ServerPage::SetUp();
        stick = std::make_unique<InstallStick>();
        std::filesystem::remove_all("/var/tmp/version1");
        CopyText(GL_ImportDataPath, STICK "/usb/");
        CopyText(GL_Version, "5.10");
    }
    void TearDown() override
    {
        (void)Leave();
        CopyText(GL_Version, "--");
        stick.reset();
        ServerPage::TearDown();
    }
    static void Unit(const std::string& file, const std::string& line)
    {
        std::filesystem::create_directories("/var/tmp/version1");
        std::ofstream("/var/tmp/version1/" + file) << line;
    }
    // A title and a version for a kind of unit, and one step.
    static void Package(const std::string& title, const std::string& version,
                        const std::string& target, const std::string& step = "EXEC step")
    {
        static int n = 0;
        InstallStick::Put("usb/p" + std::to_string(++n) + "/install.cfg",
                          "TITLE\t" + title + "\nVERSION " + version + "\nTARGET " + target + "\n" +
                              step + " " + target + version + "\n");
    }
};
