#include "inv_platform/trace.h"

#include <atomic>
#include <errno.h>
#include <new>
#include <pthread.h>
#include <stdarg.h>
#include <stdio.h>
#include <string.h>

#include "inv_platform/system_memory.h"
#include "trace/format.h"
#include "trace/print.h"
#include "trace/record.h"
#include "trace/ring.h"

namespace
{

using namespace inv::trace;

// Nothing closes a channel: a writer may come as late as the last destructor of the process.
struct channel {
    channel *next_channel;
    const char *name;
    const char *path;
    const char *catalogue_id;
    uint32_t flags;
    uint32_t zero;
    pthread_mutex_t ring_lock;
    ring records;
    std::atomic<bool> live;
    std::atomic<bool> dump_on_exit;
    pthread_mutex_t settings_lock;  // taken before ring_lock where both are
    char *dump_path;                // or null
};

std::atomic<channel *> all_channels;

// Copies text with its NUL to *end and moves *end behind it.
const char *keep_text(char *&end, const char *text)
{
    size_t size = strlen(text) + 1;
    const char *kept = static_cast<const char *>(memcpy(end, text, size));
    end += size;
    return kept;
}

const char *or_empty(const char *text)
{
    return text == nullptr ? "" : text;
}

// A channel without its ring, its texts behind it in the same block; or null.
channel *new_channel(const char *name, const char *path, const char *catalogue_id)
{
    size_t texts = strlen(name) + strlen(path) + strlen(catalogue_id) + 3;
    void *block = inv::memory::request(sizeof(channel) + texts);
    if (block == nullptr)
        return nullptr;
    auto *made = new (block) channel{};
    char *end = static_cast<char *>(block) + sizeof(channel);
    made->name = keep_text(end, name);
    made->path = keep_text(end, path);
    made->catalogue_id = keep_text(end, catalogue_id);
    pthread_mutex_init(&made->ring_lock, nullptr);
    pthread_mutex_init(&made->settings_lock, nullptr);
    return made;
}

// Hands the records now in the ring to use(const record &), oldest first, without the lock: use may
// trace. Returns their number.
template <typename use_type>
uint32_t for_each_record(channel *from, const use_type &use)
{
    pthread_mutex_lock(&from->ring_lock);
    uint64_t position = from->records.begin;
    uint64_t limit = from->records.end;
    pthread_mutex_unlock(&from->ring_lock);
    for (uint32_t count = 0;; ++count) {
        record copy;
        pthread_mutex_lock(&from->ring_lock);
        bool found = next(from->records, position, limit, copy);
        pthread_mutex_unlock(&from->ring_lock);
        if (!found)
            return count;
        use(copy);
    }
}

void dump(channel *from)
{
    pthread_mutex_lock(&from->settings_lock);
    FILE *file = from->dump_path == nullptr ? nullptr : fopen(from->dump_path, "we");
    pthread_mutex_unlock(&from->settings_lock);
    if (file == nullptr)
        return;
    pthread_mutex_lock(&from->ring_lock);
    uint64_t dropped = from->records.dropped;
    pthread_mutex_unlock(&from->ring_lock);
    fprintf(file, "# channel %s flags 0x%x catalogue %s path %s\n", from->name, from->flags,
            from->catalogue_id, from->path);
    fprintf(file, "# older records dropped: %llu\n", static_cast<unsigned long long>(dropped));
    for_each_record(from, [file](const record &one) { print_record(file, one); });
    fclose(file);
}

// Runs after every atexit() handler of the process, so that their lines are in the dump as well.
[[gnu::destructor]] void dump_armed_channels()
{
    for (channel *one = all_channels; one != nullptr; one = one->next_channel)
        if (one->dump_on_exit)
            dump(one);
}

// Reads as much of a client's configuration as its size word covers; the rest is absent.
bool read_configuration(const void *config, qtrace_configuration &out)
{
    constexpr size_t least = offsetof(qtrace_configuration, live) + sizeof out.live;
    uint32_t size;
    memcpy(&size, config, sizeof size);
    if (size < least)
        return false;
    qtrace_configuration given{};
    bool whole = size >= offsetof(qtrace_configuration, dump_path) + sizeof given.dump_path;
    memcpy(&given, config, whole ? sizeof given : least);
    out = given;
    return true;
}

}  // namespace

int32_t qtrace_open_internal(void **handle, const char *name, uint32_t buffer_size, uint32_t flags,
                             const char *path, const char *catalogue_id, uint32_t zero)
{
    if (handle == nullptr || buffer_size < QTRACE_MIN_BUFFER)
        return EINVAL;
    channel *made = new_channel(or_empty(name), or_empty(path), or_empty(catalogue_id));
    if (made == nullptr)
        return ENOMEM;
    made->records.capacity = buffer_size / record_alignment * record_alignment;
    made->records.octets = static_cast<uint8_t *>(inv::memory::request(made->records.capacity));
    if (made->records.octets == nullptr) {
        inv::memory::release(made);
        return ENOMEM;
    }
    made->flags = flags;
    made->zero = zero;
    made->next_channel = all_channels;
    while (!all_channels.compare_exchange_weak(made->next_channel, made)) {
    }
    *handle = made;
    return 0;
}

int32_t qtrace_internal(void *handle, uint32_t id, uint32_t, uint32_t, const char *kinds, const char *format,
                        ...)
{
    if (handle == nullptr || format == nullptr)
        return EINVAL;
    auto *to = static_cast<channel *>(handle);
    record made;
    va_list arguments;
    va_start(arguments, format);
    int32_t result = make_record(made, id, or_empty(kinds), format, arguments);
    va_end(arguments);
    if (result != 0)
        return result;
    if (to->live.load(std::memory_order_relaxed)) {
        int kept_errno = errno;
        print_record(stderr, made);
        errno = kept_errno;
    }
    pthread_mutex_lock(&to->ring_lock);
    bool fits = put(to->records, made);
    pthread_mutex_unlock(&to->ring_lock);
    return fits ? 0 : ENOSPC;
}

int32_t qtrace_enable_configuration(void *handle, void *config)
{
    if (handle == nullptr)
        return EINVAL;
    auto *to = static_cast<channel *>(handle);
    qtrace_configuration wanted{};
    if (config != nullptr && !read_configuration(config, wanted))
        return EINVAL;
    char *dump_path = nullptr;
    if (wanted.dump_path != nullptr) {
        size_t size = strlen(wanted.dump_path) + 1;
        dump_path = static_cast<char *>(inv::memory::request(size));
        if (dump_path == nullptr)
            return ENOMEM;
        memcpy(dump_path, wanted.dump_path, size);
    }
    pthread_mutex_lock(&to->settings_lock);
    char *previous = to->dump_path;
    to->dump_path = dump_path;
    to->live = wanted.live != 0;
    pthread_mutex_unlock(&to->settings_lock);
    inv::memory::release(previous);
    return 0;
}

int32_t qtrace_set_dump_on_exit(void *handle, uint32_t on)
{
    if (handle == nullptr)
        return EINVAL;
    static_cast<channel *>(handle)->dump_on_exit = on != 0;
    return 0;
}

uint32_t qtrace_read(void *handle, qtrace_line_reader reader, void *user)
{
    if (handle == nullptr)
        return 0;
    return for_each_record(static_cast<channel *>(handle), [reader, user](const record &one) {
        if (reader == nullptr)
            return;
        char text[max_line];
        format_record(one, text);
        reader(user, one.header.id, text);
    });
}
