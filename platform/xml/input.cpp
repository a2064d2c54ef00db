#include "input.h"

#include "context.h"
#include "errors.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace inv::xml
{

ptrdiff_t input_read(input &from, void *buffer, size_t size, int *error)
{
    if (from.descriptor < 0) {
        const size_t taken = std::min<uint64_t>(size, from.progress.size - from.progress.read);
        if (taken != 0)
            memcpy(buffer, from.octets + from.progress.read, taken);
        from.progress.read += taken;
        return static_cast<ptrdiff_t>(taken);
    }
    for (;;) {
        ssize_t taken = read(from.descriptor, buffer, size);
        if (taken < 0 && errno == EINTR)
            continue;
        from.progress.read += static_cast<size_t>(std::max(taken, ssize_t{0}));
        // Somebody may go on writing behind the size that was seen at the open.
        bool is_too_long = from.progress.read > XB_MAX_FILE_SIZE;
        if (taken >= 0 && !is_too_long)
            return taken;
        *error = is_too_long ? EFBIG : errno;
        return -1;
    }
}

bool input_can_rewind(const input &from)
{
    return from.descriptor < 0 || lseek(from.descriptor, 0, SEEK_CUR) == 0;
}

bool input_rewind(input &from)
{
    from.progress.read = 0;
    return from.descriptor < 0 || lseek(from.descriptor, 0, SEEK_SET) == 0;
}

void input_close(input &which)
{
    if (which.descriptor >= 0)
        close(which.descriptor);
    which = {};
}

namespace
{

// Why a file is not read.
struct refusal {
    int error;  // 0: it is
    const char *reason;
};

refusal refused_by_system(int error)
{
    return {error, strerrordesc_np(error)};
}

// Reading a folder fails only later and with less to say. A pipe or a device may keep the reader waiting, or
// never end.
refusal check_file(int descriptor, uint64_t &size)
{
    struct stat status;
    if (fstat(descriptor, &status) != 0)
        return refused_by_system(errno);
    if (S_ISDIR(status.st_mode))
        return refused_by_system(EISDIR);
    if (!S_ISREG(status.st_mode))
        return {EINVAL, "not a regular file"};
    if (status.st_size > off_t{XB_MAX_FILE_SIZE})
        return refused_by_system(EFBIG);
    size = static_cast<uint64_t>(status.st_size);
    return {0, nullptr};
}

// Returns the descriptor, or -1 with the reason in `why`.
int open_for_reading(const char *file_name, uint64_t &size, refusal &why)
{
    int descriptor;
    do {
        // Not to wait for a writer when the name is that of a pipe.
        descriptor = open(file_name, O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    } while (descriptor < 0 && errno == EINTR);
    why = descriptor < 0 ? refused_by_system(errno) : check_file(descriptor, size);
    if (descriptor < 0 || why.error == 0)
        return descriptor;
    close(descriptor);
    return -1;
}

}  // namespace
}  // namespace inv::xml

using namespace inv::xml;

int32_t rtxStreamFileCreateReader(xb_context *ctx, const char *file_name)
{
    rtxStreamClose(ctx);
    const char *name = file_name == nullptr ? "" : file_name;
    uint64_t size = 0;
    refusal why;
    int descriptor = open_for_reading(name, size, why);
    if (descriptor < 0) {
        int32_t status = why.error == ENOMEM ? XB_E_NO_MEMORY : XB_E_FILE_OPEN;
        add_parameter(*ctx->state, name);
        add_parameter(*ctx->state, why.reason == nullptr ? "unknown error" : why.reason);
        return record_error(*ctx->state, status, true, "", 0);
    }
    ctx->state->in.open = true;
    ctx->state->in.descriptor = descriptor;
    ctx->state->in.progress.size = size;
    ctx->state->memory.document = &ctx->state->in.progress;
    return XB_OK;
}

int32_t rtxStreamMemoryCreateReader(xb_context *ctx, const void *data, size_t size)
{
    rtxStreamClose(ctx);
    ctx->state->in.open = true;
    ctx->state->in.octets = static_cast<const char *>(data);
    ctx->state->in.progress.size = data == nullptr ? 0 : size;
    ctx->state->memory.document = &ctx->state->in.progress;
    return XB_OK;
}

void rtxStreamClose(xb_context *ctx)
{
    if (ctx == nullptr || ctx->state == nullptr)
        return;
    reader_close(ctx->state->reader);
    input_close(ctx->state->in);
}
