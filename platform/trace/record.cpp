#include "trace/record.h"

#include <errno.h>
#include <pthread.h>
#include <string.h>
#include <time.h>
#include <unistd.h>

namespace inv::trace
{

namespace
{

// 0: not asked for yet.
thread_local uint32_t thread_id = 0;

void forget_thread()
{
    thread_id = 0;
}

// Zero before the library is initialised: nothing is kept until then.
const bool forgets_after_fork = pthread_atfork(nullptr, nullptr, forget_thread) == 0;

// The child of a fork goes on with the memory of the thread that forked, but not with its id.
uint32_t this_thread()
{
    if (thread_id != 0)
        return thread_id;
    const auto id = static_cast<uint32_t>(gettid());
    if (forgets_after_fork)
        thread_id = id;
    return id;
}

uint64_t now()
{
    timespec clock{};
    clock_gettime(CLOCK_REALTIME, &clock);
    return static_cast<uint64_t>(clock.tv_sec) * 1'000'000'000u + static_cast<uint64_t>(clock.tv_nsec);
}

template <typename value_type>
uint8_t *append(uint8_t *end, value_type value)
{
    memcpy(end, &value, sizeof value);
    return end + sizeof value;
}

uint8_t *append_text(uint8_t *end, const char *text)
{
    if (text == nullptr)
        return append(end, null_text);
    size_t length = strnlen(text, QTRACE_MAX_TEXT);
    end = append(end, static_cast<uint16_t>(length));
    memcpy(end, text, length);
    return end + length;
}

}  // namespace

int32_t make_record(record &out, uint32_t id, const char *kinds, const char *format, va_list arguments)
{
    uint8_t *end = out.values;
    for (size_t i = 0; kinds[i] != '\0'; ++i) {
        if (i == QTRACE_MAX_ARGUMENTS)
            return E2BIG;
        switch (kinds[i]) {
        case 's':
            end = append_text(end, va_arg(arguments, const char *));
            break;
        case 'd':
            end = append(end, va_arg(arguments, int32_t));
            break;
        case 'D':
            end = append(end, va_arg(arguments, uint64_t));
            break;
        default:
            return EINVAL;
        }
    }
    size_t values_size = static_cast<size_t>(end - out.values);
    size_t size = sizeof(record_header) + values_size;
    size = (size + record_alignment - 1) / record_alignment * record_alignment;
    out.header = {.size = static_cast<uint32_t>(size),
                  .id = id,
                  .time = now(),
                  .kinds = kinds,
                  .format = format,
                  .thread = this_thread(),
                  .values_size = static_cast<uint32_t>(values_size)};
    return 0;
}

}  // namespace inv::trace
