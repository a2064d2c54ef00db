#include "read_octets.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "inv_platform/xml_runtime.h"

namespace
{

constexpr const char *standard_input = "-";

std::string reason_of(int error)
{
    return std::generic_category().message(error);
}

// Empty when the file may be read: a pipe would keep the check waiting, a device might never end.
std::string refusal_of(int file)
{
    struct stat status = {};
    if (fstat(file, &status) != 0)
        return reason_of(errno);
    if (S_ISDIR(status.st_mode))
        return reason_of(EISDIR);
    if (!S_ISREG(status.st_mode))
        return "not a regular file";
    return status.st_size > off_t{XB_MAX_FILE_SIZE} ? reason_of(EFBIG) : "";
}

std::string read_to_end(int file, std::string *octets)
{
    char block[1 << 16];
    for (;;) {
        const ssize_t size = read(file, block, sizeof block);
        if (size < 0 && errno == EINTR)
            continue;
        if (size <= 0)
            return size == 0 ? "" : reason_of(errno);
        octets->append(block, static_cast<size_t>(size));
        if (octets->size() > size_t{XB_MAX_FILE_SIZE})
            return reason_of(EFBIG);
    }
}

}  // namespace

namespace invctl::check
{

std::string read_octets(const std::string &file, std::string *octets)
{
    if (file == standard_input)
        return read_to_end(STDIN_FILENO, octets);
    int opened;
    do {
        // Not to wait for a writer when the name is that of a pipe.
        opened = open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    } while (opened < 0 && errno == EINTR);
    if (opened < 0)
        return reason_of(errno);
    std::string reason = refusal_of(opened);
    if (reason.empty())
        reason = read_to_end(opened, octets);
    close(opened);
    return reason;
}

}  // namespace invctl::check
