#include "file_job.h"
#include "link.h"
#include "log.h"
#include "text.h"
#include "tree.h"
#include <algorithm>
#include <climits>
#include <cstdio>
#include <deque>
#include <unistd.h>

static constexpr int64_t BYTES_PER_MS = 20000;
static constexpr size_t JOBS_MAX = 20000; // a panel that asks for more is told so
static constexpr size_t ROWS_A_STEP = 200;
static constexpr int TURN_MS = 5; // of steps, then the links have their turn

static struct {
    std::deque<Job> jobs; // a job stays where it is while it runs: commands may ask for more
    unsigned last_ack = 0;
    double slow = 1;
    int fail_next = 0;
    std::string fail_words;
} jb;

// --- Telling ---

static void job_tell(const Job& job, const std::string& text)
{
    if (job.is_mute)
        return;
    const std::string line = Text_Format("%s@Status#%u,", job.command->path, job.ack) + text;
    if (job.client)
        Link_SendLine(job.client, line);
    else
        Log_Note("%s", line.c_str());
}

bool FileJob_End(Job& job, const std::string& error)
{
    job.result = error.empty() ? "OK" : error;
    return true;
}

static void job_drop_part(const Job& job)
{
    if (!job.part.empty())
        unlink(job.part.c_str());
}

// --- Requests ---

static const FileCommand* job_command(const std::string& path)
{
    for (const auto& set : {file_commands, frame_commands})
        for (const FileCommand& command : set)
            if (path == command.path)
                return &command;
    return nullptr;
}

// "L<number>", or "Lx" from one who doesn't want to hear of it.
static bool parse_label(const std::string& text, std::string* label)
{
    if (text.size() < 2 || text[0] != 'L')
        return false;
    *label = text.substr(1);
    return *label == "x" || label->find_first_not_of("0123456789") == std::string::npos;
}

static bool job_place(Job& job)
{
    for (size_t i = 0; i < job.command->paths; ++i) {
        Place place;
        if (!Drive_Place(job.args[i], &place))
            return false;
        job.places.push_back(place);
    }
    return true;
}

int64_t FileJob_Duration(int ms)
{
    return int64_t(ms * jb.slow);
}

static int64_t job_duration_ms(const Job& job)
{
    const bool has_source = !job.places.empty() && !job.places[0].local.empty();
    const int64_t bytes = has_source ? Drive_Bytes(job.places[0].local) : 0;
    return FileJob_Duration(job.command->base_ms + int(bytes / BYTES_PER_MS));
}

// Who takes part in a job names it by its work number.
static bool job_cancel(const std::string& value)
{
    long ack = 0;
    const size_t comma = value.find(',');
    if (comma == std::string::npos || !Text_ToInt(value.substr(comma + 1), &ack))
        return true;
    for (Job& job : jb.jobs)
        if (job.result.empty() && long(job.ack) == ack)
            job.result = "Cancel";
    return true;
}

// Pictures have a road of their own where a switcher's data port is set to it; panels show which.
static void job_tell_route(const Job& job)
{
    const std::string command = job.command->path;
    const bool is_picture = command == "File@Frame Memory@PutV3" ||
                            (command == "File@Frame Memory@Get" && !job.args.empty() &&
                             job.args[0].find(".SFT") == std::string::npos);
    const Node* const node = Tree_Get("Info@System Setup Data@FM Data Port Disable@SWR1");
    if (!is_picture || job.is_mute || !job.client || !node)
        return;
    const bool is_port = atoi(node->value.c_str()) & 127;
    Link_SendLine(job.client,
                  Text_Format("FILEXFER@Transfer Route#%u,0,%d", job.ack, int(is_port)));
}

// Whether a switcher's data port is connected: the console sets it.
static void job_tell_port(int client, const std::string& path, const std::string& label)
{
    const Node* const node = Tree_Get(path);
    const bool is_on = node && node->value == "1";
    Link_SendLine(client, path + "#" + label.substr(0, 20) + (is_on ? ",1" : ",0"));
}

bool FileJob_Put(int client, const std::string& path, const std::string& value)
{
    if (client && Text_Begins(path, "File@Status@FM Data Port Status@")) {
        job_tell_port(client, path, value);
        return true;
    }
    if (path == "File@Transfer@Cancel" || path == "File@Access@Cancel" ||
        path == "File@Remote Access@Cancel")
        return job_cancel(value);
    const FileCommand* const command = job_command(path);
    if (!command)
        return false;
    Job job;
    job.command = command;
    job.client = client;
    job.args = Text_Split(value, ',');
    std::string label;
    if (!parse_label(job.args[0], &label)) {
        Log_Note("client %d: no label: %.200s", client, value.c_str());
        return true;
    }
    job.args.erase(job.args.begin());
    job.is_mute = label == "x";
    job.ack = ++jb.last_ack;
    if (!job.is_mute && client)
        Link_SendLine(client, path + Text_Format("#L%s,%u", label.c_str(), job.ack));
    job_tell_route(job);
    const bool is_full = jb.jobs.size() >= JOBS_MAX;
    if (is_full || job.args.size() < command->args)
        (void)FileJob_End(job, is_full ? "NG(Too Many Requests)" : "NG(Invalid Parameter)");
    else if (!job_place(job))
        (void)FileJob_End(job, "NG(Invalid Path)");
    job.due_ms = Now_Ms() + job_duration_ms(job);
    jb.jobs.push_back(job);
    return true;
}

// --- Steps ---

static void job_step(Job& job)
{
    if (jb.fail_next > 0 && job.done_bytes == 0 && job.rows.empty()) {
        --jb.fail_next;
        job.result = "NG(" + jb.fail_words + ")";
        return;
    }
    (void)job.command->step(job); // its result tells
}

static void job_tell_rows(Job& job)
{
    const size_t count = std::min(job.rows.size(), ROWS_A_STEP);
    for (size_t i = 0; i < count; ++i)
        job_tell(job, job.rows[i]);
    job.rows.erase(job.rows.begin(), job.rows.begin() + long(count));
}

int64_t FileJob_Tick(int64_t now)
{
    int64_t next = INT64_MAX;
    // By number: a step may bring more jobs.
    for (size_t i = 0; i < jb.jobs.size(); ++i) {
        Job& job = jb.jobs[i];
        if (Now_Ms() - now > TURN_MS) {
            next = now;
            break;
        }
        if (job.due_ms > now && job.result != "Cancel") {
            next = std::min(next, job.due_ms);
            continue;
        }
        if (job.result.empty())
            job_step(job);
        if (job.result == "Cancel") {
            job.rows.clear();
            job_drop_part(job);
        }
        job_tell_rows(job);
        job.is_told = !job.result.empty() && job.rows.empty();
        if (job.is_told)
            job_tell(job, job.result);
        else
            next = now;
    }
    std::erase_if(jb.jobs, [](const Job& job) { return job.is_told; });
    return next;
}

void FileJob_Forget()
{
    for (const Job& job : jb.jobs)
        job_drop_part(job);
    jb.jobs.clear();
}

// --- The console ---

void FileJob_SetSlow(double factor)
{
    jb.slow = factor;
}

void FileJob_FailNext(int count, const std::string& words)
{
    jb.fail_next = count;
    jb.fail_words = words;
    std::replace(jb.fail_words.begin(), jb.fail_words.end(), ',', ' '); // it isn't to be a row
}

void FileJob_Print()
{
    for (const Job& job : jb.jobs) {
        printf("%u %s", job.ack, job.command->path);
        for (const std::string& arg : job.args)
            printf(" %s", arg.c_str());
        printf("\n");
    }
}
