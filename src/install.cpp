#include "install.h"
#include "err.h"
#include "log.h"
#include "process.h"
#include "text.h"
#include "types.h"
#include "version.h"
#include "window.h"
#include <SDL.h>
#include <algorithm>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

#include "safeguards.h"

#define SCS_EXEC "./script/scs_exec.sh "
#define SCS_TRANSFER "./script/scs_transfer.sh "
#define SCS_RESULT "/tmp/scs_update_result"
#define SCS_RESULT_VORN "/vorn/tmp/scs_update_result"
#define RESULT "/var/tmp/scs_update_result"
#define WORD_TIME " time"          // the value asks for an estimate of the time
#define WORD_POLLED "ktrPwsUpdate" // it can be asked how far it is
#define INSTALL_FAILED "Install failed."

const char* const target_str[TARGETS] = {"MENU CPU", "SWR", "DME", "CTRL CPU", "DCU", "SCS", "UI"};

namespace
{
constexpr int COMMAND_SIZE = 4096;
constexpr int POLL_MS = 1000;
constexpr int STEP_OK = 0;
constexpr int STEP_TOLD = -2;     // failed, and window and error list say so already
constexpr int STEP_NO_OK = -1;    // the server's result does not say that it is good
constexpr int STEP_REFUSED = 126; // not run: as the shell has it for what it can't run
constexpr int MINUTES_MAX = 100;  // of an estimate

struct Job {
    cfg_info* info = nullptr;
    int type = 0;
    int uid = 0;
    int number = 0; // of the step, from 1
    int steps = 0;
    uint32_t estimate_ms = 0; // for the next step in the background, 0 none
};

// A keyword of install.cfg, by what its step does.
struct Keyword {
    const char* word;
    int (*run)(Job& job, char* value) = nullptr; // STEP_ or an exit status
    bool needs_file = false;                     // the first word of its value
};
} // namespace

static int failed_code = 0; // see Install_FailedCode

// --- Windows ---

template <size_t N> static void print_args(char (&text)[N], const char* format, va_list ap)
{
    vsnprintf(text, N, format, ap);
}

int display_message(const char* title, const char* format, ...)
{
    char text[CMD_SIZE];
    va_list ap;
    va_start(ap, format);
    print_args(text, format, ap);
    va_end(ap);
    return CreateWindow(WINDOW_MESSAGE, title, {.message = text});
}

int display_progress(const char* title, int percent, const char* format, ...)
{
    char text[CMD_SIZE];
    va_list ap;
    va_start(ap, format);
    print_args(text, format, ap);
    va_end(ap);
    const int result = CreateWindow(WINDOW_PROGRESS, title, {.message = text});
    ProgBox_RedrawProgress(percent);
    return result;
}

int redraw_progress(int percent, const char* format, ...)
{
    char text[CMD_SIZE];
    va_list ap;
    va_start(ap, format);
    print_args(text, format, ap);
    va_end(ap);
    MBox_RedrawMessage(text);
    ProgBox_RedrawProgress(percent);
    return 0;
}

// --- install.cfg ---

void free_stringlist(GList* list)
{
    g_list_free_full(list, g_free);
}

void clear_cfg_info(cfg_info* info)
{
    if (!info)
        return;
    g_string_free(info->title, TRUE);
    g_string_free(info->version, TRUE);
    free_stringlist(info->command);
    free_stringlist(info->rest);
    g_free(info->dirname);
    g_free(info);
}

void Install_SplitLine(char* line, const char** keyword, const char** value)
{
    line[strcspn(line, "\r\n")] = '\0';
    std::replace(line, line + strlen(line), '\t', ' ');
    char* rest = line + strcspn(line, " ");
    if (*rest)
        *rest++ = '\0';
    rest += strspn(rest, " ");
    char* end = rest + strlen(rest);
    while (end > rest && end[-1] == ' ')
        end--;
    *end = '\0';
    *keyword = line;
    *value = rest;
}

static int run_install(Job&, char* value);
static int run_fpga(Job&, char* value);
static int run_exec(Job&, char* value);
static int run_sput(Job&, char* value);
static int run_execs(Job&, char* value);
static int run_execs_background(Job&, char* value);

// All that may stand for a step. Those without a function are counted and passed over.
static constexpr Keyword keywords[] = {
    {"INSTALL", run_install, true},
    {"FPGA", run_fpga, true},
    {"EXEC", run_exec},
    {"SPUT", run_sput},
    {"EXECS", run_execs},
    {"EXECS_BG", run_execs_background},
    {"PUT", nullptr, true},
    {"CPUT", nullptr, true},
    {"WAIT"},
    {"RPM"},
    {"EXECA"},
    {"RCVDA"},
    {"UGA"},
    {"REBOOT"},
};

static const Keyword* find_keyword(const char* word)
{
    for (const Keyword& k : keywords)
        if (StrICmp(word, k.word) == 0)
            return &k;
    return nullptr;
}

static void parse_line(cfg_info* info, char* line)
{
    const char *keyword, *value;
    Install_SplitLine(line, &keyword, &value);
    if (StrICmp(keyword, "TITLE") == 0) {
        g_string_assign(info->title, value);
    } else if (StrICmp(keyword, "VERSION") == 0) {
        g_string_assign(info->version, value);
    } else if (find_keyword(keyword)) {
        info->command = g_list_append(info->command, g_strdup(keyword));
        info->rest = g_list_append(info->rest, g_strdup(value));
    }
}

static bool parse_lines(cfg_info* info, FILE* fp)
{
    char line[INSTALL_LINE + 3]; // with both ends of a line, and the terminator
    while (fgets(line, sizeof line, fp)) {
        if (strcspn(line, "\r\n") > INSTALL_LINE) {
            Log_Output(LOG_ALWAYS, MOD_INSTALL, "install.cfg: a line is too long: [%.40s...]",
                       line);
            return false;
        }
        parse_line(info, line);
    }
    return true;
}

cfg_info* parse_cfgfile(const char* cfgfn, int type)
{
    FILE* fp = fopen(cfgfn, "re");
    if (!fp)
        return nullptr;
    cfg_info* info = g_new0(cfg_info, 1);
    info->title = g_string_new("");
    info->version = g_string_new("");
    info->target = type;
    info->dirname = g_path_get_dirname(cfgfn);
    const bool is_whole = parse_lines(info, fp);
    fclose(fp);
    if (is_whole)
        return info;
    clear_cfg_info(info);
    return nullptr;
}

// --- Commands ---

// The status of a script: what it exits with, or as the shell has it for one that was killed.
static int exit_status(int status)
{
    return status != -1 && WIFSIGNALED(status) ? 128 + WTERMSIG(status) : status >> 8 & 0xFF;
}

static int run_command(const char* cmd)
{
    return exit_status(ktr_shell(cmd));
}

// A file of the package. Two names that don't fit into a path name no file.
static const char* package_path(char (&path)[PATH_SIZE], const Job& job, const char* file)
{
    if (PrintText(path, "%s/%s", job.info->dirname, file) >= PATH_SIZE)
        path[0] = '\0';
    return path;
}

// The next word of a value, cut off in place; empty at its end.
static char* next_word(char*& value)
{
    value += strspn(value, " ");
    char* word = value;
    value += strcspn(value, " ");
    if (*value)
        *value++ = '\0';
    value += strspn(value, " ");
    return word;
}

// Run a program with a file of the package and the word that follows it in the value. Both are the
// package's own texts: what could be more than one word to the shell is refused.
static int run_with_file(const Job& job, const char* program, char* value)
{
    char path[PATH_SIZE];
    char cmd[COMMAND_SIZE];
    char words[2][COMMAND_SIZE / 4];
    (void)package_path(path, job, next_word(value));
    if (!path[0] || !ShellWord(words[0], sizeof words[0], path) ||
        !ShellWord(words[1], sizeof words[1], next_word(value)))
        return STEP_REFUSED;
    PrintText(cmd, "%s %s %s", program, words[0], words[1]);
    return run_command(cmd);
}

// --- Steps on this machine ---

// Whether that version of the kind runs already, which only system and boot loader are asked.
static bool is_running(const char* kind, const char* version)
{
    static constexpr struct {
        const char* kind;
        int row;
    } kinds[] = {{"LINUX", 1}, {"UBOOT", 2}};
    for (const auto& k : kinds) {
        if (StrICmp(kind, k.kind) != 0 || !version[0])
            continue;
        const char* running = GL_MenuDetailInfoFull[k.row];
        return strcmp(version, running) == 0 ||
               (BeginsWith(running, "Version ") && strcmp(version, running + 8) == 0);
    }
    return false;
}

static int run_install(Job& job, char* value)
{
    char words[INSTALL_LINE + 1];
    CopyText(words, value);
    char* version = words;
    (void)next_word(version); // the file
    const char* const kind = next_word(version);
    if (is_running(kind, version)) {
        Log_Output(LOG_ALWAYS, MOD_INSTALL, "install: %s %s is running already", kind, version);
        return STEP_OK;
    }
    return run_with_file(job, "./script/ui_install.sh", value);
}

// The device's watchdog and its program would go for the registers that are written.
static int run_fpga(Job& job, char* value)
{
    (void)ktr_shell("killall -9 start_app_ksc.sh"); // they need not run
    (void)ktr_shell("killall -9 ksc");
    SDL_Delay(1000);
    return run_with_file(job, "./fpga_updater", value);
}

static int run_exec(Job&, char* value)
{
    (void)ktr_shell(value); // the package's own command: nobody asks what came of it
    return STEP_OK;
}

// --- Steps on the control server ---

static int run_sput(Job& job, char* value)
{
    Log_Output(LOG_ALWAYS, MOD_INSTALL, "install_scs:: SPUT %s", value);
    const int ret = run_with_file(job, SCS_TRANSFER "put", value);
    Log_Output(LOG_ALWAYS, MOD_INSTALL, "install_scs:: ret = %d", ret);
    return ret;
}

// The number stands in place of "%UID" itself, so one hexadecimal digit is all that it can have.
// That is meant: keep it.
static void put_uid(const Job& job, char* value)
{
    char* const place = strstr(value, "%UID");
    if (!place)
        return;
    char uid[16];
    PrintText(uid, "UID%X", unsigned(job.uid));
    Log_Output(LOG_ALWAYS, MOD_INSTALL, "install_scs:: %%UID detected");
    Log_Output(LOG_ALWAYS, MOD_INSTALL, "install_scs:: %s", value);
    memcpy(place, uid, 4);
    Log_Output(LOG_ALWAYS, MOD_INSTALL, "install_scs:: -> %s", value);
}

// What a command of before has left must not pass for this one's.
static void remove_results()
{
    (void)ktr_shell(SCS_EXEC "\"rm " SCS_RESULT "\""); // one of the two is there at most
    (void)ktr_shell(SCS_EXEC "\"rm " SCS_RESULT_VORN "\"");
    (void)unlink(RESULT);
}

static void fetch_results()
{
    (void)ktr_shell(SCS_TRANSFER "get " SCS_RESULT " /var/tmp/"); // the file is asked for below
    (void)ktr_shell(SCS_TRANSFER "get " SCS_RESULT_VORN " /var/tmp/");
}

static int run_on_server(const char* format, const char* value)
{
    char cmd[COMMAND_SIZE];
    const int n = snprintf(cmd, sizeof cmd, format, value);
    return n > 0 && n < COMMAND_SIZE ? run_command(cmd) : STEP_REFUSED;
}

static void show_failure(const Job& job, const char* value)
{
    display_message("Install error", "Target: %s\n\nError code:\n%s\n\nProgram file:\n%s",
                    target_str[job.type], "INSTALL_ERROR", value);
}

static int server_failed(const Job& job, const char* value, int code)
{
    failed_code = code;
    show_failure(job, value);
    (void)Err_Add(INSTALL_FAILED);
    return STEP_TOLD;
}

// The lines of a result go to the error list, those before its end or before one that begins with
// the word. True when there was such a line.
static bool tell_results(FILE* fp, const char* word)
{
    char line[256];
    while (fgets(line, sizeof line, fp)) {
        line[strcspn(line, "\r\n")] = '\0';
        if (word && BeginsWith(line, word))
            return true;
        (void)Err_Add("%s", line);
    }
    return false;
}

// Until its command has ended the estimate is all that there is to show.
static int run_execs(Job& job, char* value)
{
    put_uid(job, value);
    remove_results();
    Log_Output(LOG_ALWAYS, MOD_INSTALL, "install_scs:: EXECS %s", value);
    const int status = run_on_server(SCS_EXEC "\"%s\"", value);
    if (strstr(value, WORD_TIME)) {
        Log_Output(LOG_ALWAYS, MOD_INSTALL, "install_scs:: remain = %d", status);
        const bool is_kept = status >= 1 && status <= MINUTES_MAX;
        job.estimate_ms = is_kept ? uint32_t(status) * 60000 : 0;
        return STEP_OK;
    }
    if (status == 0)
        return STEP_OK;
    (void)server_failed(job, value, status);
    fetch_results();
    if (FILE* fp = fopen(RESULT, "re")) {
        (void)tell_results(fp, nullptr); // the status has said that it failed
        fclose(fp);
    }
    return STEP_TOLD;
}

static void show_processing(const Job& job, const char* value, int percent)
{
    redraw_progress((job.number - 1) * 100 / job.steps,
                    "Target: %s\n\nProgram file:\n%s\n\nInstalling\n[%d/%d] - Processing... %d%%",
                    target_str[job.type], value, job.number, job.steps, percent);
}

// The server's command leaves a file when it ends. It is waited for without a limit: it alone knows
// how far it is, and switching it off half way is worse than waiting.
static int await_result(const Job& job, const char* value, uint32_t estimate_ms)
{
    const uint32_t begin = SDL_GetTicks();
    FILE* fp = nullptr;
    while (!fp) {
        SDL_Delay(POLL_MS);
        const uint64_t used = SDL_GetTicks() - begin;
        if (estimate_ms > 0)
            show_processing(job, value, int(std::min<uint64_t>(used * 100 / estimate_ms, 100)));
        fetch_results();
        fp = fopen(RESULT, "re");
    }
    const bool is_good = tell_results(fp, "OK");
    fclose(fp);
    return is_good ? STEP_OK : STEP_NO_OK;
}

static int await_status(Job& job, const char* value)
{
    constexpr int DONE = 100;
    for (;;) {
        SDL_Delay(POLL_MS);
        const int status = run_on_server(SCS_EXEC "\"%sStatus\"", value);
        if (status > DONE)
            return server_failed(job, value, status);
        show_processing(job, value, status);
        if (status == DONE)
            return STEP_OK;
    }
}

static int run_execs_background(Job& job, char* value)
{
    const uint32_t estimate_ms = std::exchange(job.estimate_ms, 0);
    put_uid(job, value);
    remove_results();
    Log_Output(LOG_ALWAYS, MOD_INSTALL, "install_scs:: EXECS_BG %s", value);
    const int status = run_on_server(SCS_EXEC "\"%s\" &", value);
    if (status != 0)
        return server_failed(job, value, status);
    return strstr(value, WORD_POLLED) ? await_status(job, value)
                                      : await_result(job, value, estimate_ms);
}

// --- The install of one unit ---

static bool is_regular(const char* path)
{
    struct stat st;
    return stat(path, &st) == 0 && S_ISREG(st.st_mode);
}

// Three lines of the error list, and one of the log.
static int refuse(const char* problem, const char* path, const char* advice)
{
    (void)Err_Add("%s", problem);
    (void)Err_Add("%s", path);
    (void)Err_Add("%s", advice);
    Log_Output(LOG_ALWAYS, MOD_INSTALL, "%s%s%s", problem, path, advice);
    return -1;
}

static int refuse_device(int type, const char* path)
{
    char problem[64];
    PrintText(problem, "[Error] The install device [%d] is invalid.", type);
    return refuse(problem, path, "    Please check \"TARGET\" on install.cfg, and try again.");
}

// Nothing runs before all its files are there.
static bool files_are_there(const Job& job)
{
    bool is_good = true;
    const GList* rest = job.info->rest;
    for (const GList* step = job.info->command; step; step = step->next, rest = rest->next) {
        const char* const word = static_cast<const char*>(step->data);
        const Keyword* const keyword = find_keyword(word);
        if (!keyword || !keyword->needs_file)
            continue;
        char value[INSTALL_LINE + 1];
        char path[PATH_SIZE];
        CopyText(value, static_cast<const char*>(rest->data));
        char* words = value;
        if (is_regular(package_path(path, job, next_word(words))))
            continue;
        char problem[INSTALL_LINE];
        PrintText(problem, "[Error] %s: The following package file is not found.", keyword->word);
        (void)refuse(problem, path,
                     "    Please check your memory card. (Or, install.cfg has a mistake)");
        is_good = false;
    }
    return is_good;
}

static int step_failed(const Job& job, const char* value, int code)
{
    if (code == STEP_TOLD)
        return -1;
    failed_code = code;
    show_failure(job, value);
    char problem[64];
    PrintText(problem, "[Error] Install failure : code = [%d]", code);
    return refuse(problem, value, "    Please check the file on your memory card, and try again.");
}

static int run_step(Job& job, const char* word, const char* text)
{
    char value[INSTALL_LINE + 1]; // the step cuts it up
    redraw_progress((job.number - 1) * 100 / job.steps,
                    "Target: %s\n\nProgram file:\n%s\n\nInstalling\n[%d/%d]", target_str[job.type],
                    text, job.number, job.steps);
    const Keyword* const keyword = find_keyword(word);
    if (!keyword || !keyword->run)
        return 0;
    CopyText(value, text);
    const int code = keyword->run(job, value);
    return code == STEP_OK ? 0 : step_failed(job, text, code);
}

static int run_steps(Job& job)
{
    const GList* rest = job.info->rest;
    for (const GList* step = job.info->command; step; step = step->next, rest = rest->next) {
        job.number++;
        if (run_step(job, static_cast<const char*>(step->data),
                     static_cast<const char*>(rest->data)) != 0)
            return -1;
    }
    (void)CloseWindow(); // a step's command cannot have closed it
    return 0;
}

static int install_package(Job& job, const char* cfgfn)
{
    if (!files_are_there(job))
        return -1;
    // The menu's own processor is a target of packages, but not of an install.
    if (job.type < TARGET_SWR)
        return refuse_device(job.type, cfgfn);
    job.steps = int(g_list_length(job.info->command));
    display_progress("Install", 0, "Target: %s\n\nProgram file:\n\n\nInstalling\n",
                     target_str[job.type]);
    return run_steps(job);
}

int SystemInstall(const char* cfgfn, int type, int uid)
{
    failed_code = 0;
    if (!is_regular(cfgfn))
        return refuse("[Error] \"install.cfg\" is not found.", cfgfn,
                      "    Please check your memory card, and try again.");
    if (type < 0 || type >= TARGETS)
        return refuse_device(type, cfgfn);
    Job job = {.info = parse_cfgfile(cfgfn, type), .type = type, .uid = uid};
    if (!job.info)
        return refuse("[Error] Can't open \"install.cfg\".", cfgfn,
                      "    Please check your memory card, and try again.");
    const int result = install_package(job, cfgfn);
    clear_cfg_info(job.info);
    return result;
}

int Install_FailedCode()
{
    return failed_code;
}
