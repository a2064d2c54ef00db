// Preloaded under invctl: makes every request of memory fail once, from the first constructor of static data
// on. Before a request is granted the process is copied; in the copy it fails. How the copy ends is judged,
// then the process goes on to its next request.
//
//   INV_FAULTS_REPORT     file that gets the result: a line for each bad end, then one of counts
//   INV_FAULTS_ALL_AFTER  set: in the copy every later request fails as well
//
// Fails: malloc, calloc, realloc, the aligned ones (operator new ends in these) and mmap, whoever calls.
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

// The C library's own, under the names that nothing takes over.
extern "C" {
void *__libc_malloc(size_t size);
void *__libc_calloc(size_t count, size_t size);
void *__libc_realloc(void *block, size_t size);
void *__libc_memalign(size_t alignment, size_t size);
}

namespace
{

constexpr unsigned greatest_seconds = 20;  // of one copy
constexpr unsigned bad_ends_told = 20;

// What a run has printed and how it ended.
struct run_end {
    int out;
    int err;
    int status;
};

struct counts {
    unsigned points;
    unsigned right_answers;
    unsigned told_troubles;
    unsigned bad_ends;
};

enum class part { bystander, sweeper, copy };

part playing = part::bystander;
bool all_after;
int report = -1;
run_end wanted;  // of a run in which nothing fails
counts all;

int new_file(const char *name)
{
    return static_cast<int>(syscall(SYS_memfd_create, name, 0U));
}

size_t read_at(int file, off_t offset, char *into, size_t size)
{
    const ssize_t count = pread(file, into, size, offset);
    return count < 0 ? 0 : static_cast<size_t>(count);
}

bool is_same_text(int a, int b)
{
    static char left[1 << 16];
    static char right[1 << 16];
    for (off_t at = 0;; at += static_cast<off_t>(sizeof left)) {
        const size_t count = read_at(a, at, left, sizeof left);
        if (count != read_at(b, at, right, sizeof right) || memcmp(left, right, count) != 0)
            return false;
        if (count < sizeof left)
            return true;
    }
}

// The beginning of what was printed, on one line.
const char *one_line(int file)
{
    static char text[400];
    const size_t count = read_at(file, 0, text, sizeof text - 1);
    text[count] = '\0';
    for (char *at = text; *at != '\0'; ++at)
        if (*at == '\n')
            *at = '|';
    return text;
}

// Where the process prints from now on, behind what it has printed already.
void print_to(int file, int standard)
{
    static char block[1 << 16];
    size_t count = sizeof block;
    for (off_t at = 0; count == sizeof block; at += static_cast<off_t>(count)) {
        count = read_at(standard, at, block, sizeof block);
        if (write(file, block, count) != static_cast<ssize_t>(count))
            _exit(99);
    }
    dup2(file, standard);
    close(file);
}

// A refusal that says nothing, or something else, has the status and the empty output of a right one.
bool is_right_answer(const run_end &end)
{
    return end.status == wanted.status && is_same_text(end.out, wanted.out) &&
           is_same_text(end.err, wanted.err);
}

// The documented status, and a message that names what is wrong.
bool is_told_trouble(const run_end &end)
{
    return WIFEXITED(end.status) && WEXITSTATUS(end.status) == 2 &&
           strcasestr(one_line(end.err), "memory") != nullptr;
}

void judge(const run_end &end)
{
    ++all.points;
    if (is_right_answer(end)) {
        ++all.right_answers;
    } else if (is_told_trouble(end)) {
        ++all.told_troubles;
    } else if (++all.bad_ends <= bad_ends_told) {
        const bool by_signal = WIFSIGNALED(end.status);
        dprintf(report, "request %u: %s %d: %s\n", all.points, by_signal ? "signal" : "exit",
                by_signal ? WTERMSIG(end.status) : WEXITSTATUS(end.status), one_line(end.err));
    }
}

// False in the copy.
bool run_copy(run_end &end)
{
    end = {new_file("out"), new_file("err"), 0};
    // Without the handlers of fork(): the request may come from anywhere in the C library.
    const pid_t copy = _Fork();
    if (copy == 0) {
        playing = part::copy;
        print_to(end.out, STDOUT_FILENO);
        print_to(end.err, STDERR_FILENO);
        alarm(greatest_seconds);
        return false;
    }
    while (waitpid(copy, &end.status, 0) < 0 && errno == EINTR) {
    }
    return true;
}

// A copy reads from the same open files: what it has read is read again afterwards.
struct places {
    off_t at[32];

    places()
    {
        for (int file = 0; file < 32; ++file)
            at[file] = lseek(file, 0, SEEK_CUR);
    }
    void go_back() const
    {
        for (int file = 0; file < 32; ++file)
            if (at[file] >= 0)
                lseek(file, at[file], SEEK_SET);
    }
};

bool refuse()
{
    if (playing == part::copy && all_after) {
        errno = ENOMEM;
        return true;
    }
    if (playing != part::sweeper)
        return false;
    const int before = errno;
    const places known;
    run_end end;
    if (!run_copy(end)) {
        errno = ENOMEM;
        return true;
    }
    known.go_back();
    judge(end);
    close(end.out);
    close(end.err);
    errno = before;
    return false;
}

}  // namespace

extern "C" {

void *malloc(size_t size)
{
    return refuse() ? nullptr : __libc_malloc(size);
}

void *calloc(size_t count, size_t size)
{
    return refuse() ? nullptr : __libc_calloc(count, size);
}

void *realloc(void *block, size_t size)
{
    return refuse() ? nullptr : __libc_realloc(block, size);
}

void *memalign(size_t alignment, size_t size)
{
    return refuse() ? nullptr : __libc_memalign(alignment, size);
}

void *aligned_alloc(size_t alignment, size_t size)
{
    return refuse() ? nullptr : __libc_memalign(alignment, size);
}

int posix_memalign(void **block, size_t alignment, size_t size)
{
    if (refuse())
        return ENOMEM;
    *block = __libc_memalign(alignment, size);
    return *block == nullptr ? ENOMEM : 0;
}

void *mmap(void *address, size_t size, int protection, int flags, int file, off_t offset)
{
    if (refuse())
        return MAP_FAILED;
    const long mapped = syscall(SYS_mmap, address, size, protection, flags, file, offset);
    return mapped == -1 ? MAP_FAILED : reinterpret_cast<void *>(mapped);
}

}  // extern "C"

namespace
{

[[gnu::constructor]] void begin()
{
    const char *name = getenv("INV_FAULTS_REPORT");
    if (name == nullptr || strcmp(program_invocation_short_name, "invctl") != 0)
        return;
    report = open(name, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    const places known;
    if (!run_copy(wanted))
        return;
    known.go_back();
    all_after = getenv("INV_FAULTS_ALL_AFTER") != nullptr;
    playing = part::sweeper;
}

[[gnu::destructor]] void finish()
{
    if (playing != part::sweeper)
        return;
    playing = part::bystander;
    dprintf(report, "status %d points %u right %u told %u bad %u\n",
            WIFEXITED(wanted.status) ? WEXITSTATUS(wanted.status) : -1, all.points, all.right_answers,
            all.told_troubles, all.bad_ends);
}

}  // namespace
