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
        if (taken >= 0) {
            from.progress.read += static_cast<size_t>(taken);
            return taken;
        }
        if (errno != EINTR) {
            *error = errno;
            return -1;
        }
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

// Returns the descriptor, or -1 with the reason in errno. Folders are refused here because
// reading them fails only later and with less to say.
int open_for_reading(const char *file_name, uint64_t *size)
{
    int descriptor;
    do {
        descriptor = open(file_name, O_RDONLY | O_CLOEXEC);
    } while (descriptor < 0 && errno == EINTR);
    struct stat status;
    if (descriptor < 0 || fstat(descriptor, &status) != 0)
        return descriptor;
    if (S_ISDIR(status.st_mode)) {
        close(descriptor);
        errno = EISDIR;
        return -1;
    }
    *size = S_ISREG(status.st_mode) ? static_cast<uint64_t>(status.st_size) : 0;
    return descriptor;
}

}  // namespace
}  // namespace inv::xml

using namespace inv::xml;

int32_t rtxStreamFileCreateReader(xb_context *ctx, const char *file_name)
{
    rtxStreamClose(ctx);
    const char *name = file_name == nullptr ? "" : file_name;
    uint64_t size = 0;
    int descriptor = open_for_reading(name, &size);
    if (descriptor < 0) {
        int32_t status = errno == ENOMEM ? XB_E_NO_MEMORY : XB_E_FILE_OPEN;
        char text[128];
        const char *reason = strerror_r(errno, text, sizeof text);
        add_parameter(*ctx->state, name);
        add_parameter(*ctx->state, reason);
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
