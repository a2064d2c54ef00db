#include "inv_platform/lookup.h"

#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

#include "inv_parser/handle.h"
#include "inv_platform/system_memory.h"
#include "lookup/catalogue.h"

namespace
{

using namespace inv::lookup;

struct catalogue_text {
    char *octets;  // null when it could not be read
    size_t size;
};

const char *catalogue_path()
{
    const char *path = secure_getenv("INV_CATALOG");
    return path == nullptr || *path == '\0' ? INV_INSTALLED_CATALOG : path;
}

// Reads until `size` octets or the file's end, whichever comes first. False after an error.
bool read_octets(int file, char *octets, size_t size, size_t &count)
{
    count = 0;
    while (count < size) {
        ssize_t got = read(file, octets + count, size - count);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            return got == 0;
        count += static_cast<size_t>(got);
    }
    return true;
}

// Returns null or why the file was not read. What is appended meanwhile is left for the next lookup.
const char *read_file(int file, catalogue_text &out)
{
    struct stat status;
    if (fstat(file, &status) != 0)
        return strerrordesc_np(errno);
    if (!S_ISREG(status.st_mode))
        return "not a regular file";
    auto size = static_cast<size_t>(status.st_size);
    if (size > max_catalogue_size)
        return "larger than 16 MiB";
    out.octets = static_cast<char *>(inv::memory::request(size + 1));
    if (out.octets == nullptr)
        return strerrordesc_np(ENOMEM);
    if (read_octets(file, out.octets, size, out.size))
        return nullptr;
    const char *reason = strerrordesc_np(errno);
    inv::memory::release(out.octets);
    out.octets = nullptr;
    return reason;
}

catalogue_text read_catalogue(const char *path)
{
    catalogue_text text{};
    int file;
    do {
        // Not to wait for a writer when somebody names a FIFO.
        file = open(path, O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    } while (file < 0 && errno == EINTR);
    const char *reason = file < 0 ? strerrordesc_np(errno) : read_file(file, text);
    if (reason != nullptr)
        fprintf(stderr, "%s: %s\n", path, reason);
    if (file >= 0)
        close(file);
    return text;
}

struct result_path {
    char text[PATH_MAX];
};

// Writes folder of the catalogue, "/" and file, or the file alone when it is absolute or the
// catalogue has no folder. False when that is longer than a path can be.
bool join_path(result_path &out, std::string_view catalogue, std::string_view file)
{
    size_t folder = file.starts_with('/') ? 0 : catalogue.rfind('/') + 1;
    if (folder + file.size() >= sizeof out.text)
        return false;
    memcpy(out.text, catalogue.data(), folder);
    memcpy(out.text + folder, file.data(), file.size());
    out.text[folder + file.size()] = '\0';
    return true;
}

// Goes through all lines, so that each broken one is reported however early the unit is found.
bool find_unit(std::string_view text, const char *path, const unit &wanted, result_path &out)
{
    bool found = false;
    for (size_t number = 1; !text.empty(); ++number) {
        size_t length = text.find('\n');
        std::string_view line_text = text.substr(0, length);
        text.remove_prefix(length == std::string_view::npos ? text.size() : length + 1);
        catalogue_line line;
        const char *reason = nullptr;
        line_kind kind = parse_line(line_text, line, &reason);
        if (kind == line_kind::unit && !found && fits(line, wanted)) {
            found = join_path(out, path, line.file);
            if (!found)
                reason = "the file's path is too long";
        }
        if (reason != nullptr)
            fprintf(stderr, "%s:%zu: %s\n", path, number, reason);
    }
    return found;
}

const char *find(const unit &wanted)
{
    thread_local result_path result;
    const char *path = catalogue_path();
    catalogue_text text = read_catalogue(path);
    if (text.octets == nullptr)
        return nullptr;
    bool found = find_unit({text.octets, text.size}, path, wanted, result);
    inv::memory::release(text.octets);
    return found ? result.text : nullptr;
}

}  // namespace

const char *platform_get_inv_xml_file_name(uint32_t pi_hw_type, uint32_t pd_hw_type, const char *pid)
{
    return find({.pi_hw_type = pi_hw_type,
                 .pd_hw_type = pd_hw_type,
                 .pid = pid == nullptr ? "" : pid,
                 .has_version = false,
                 .hw_version = {}});
}

const char *platform_get_inv_xml_file_name_v2(const fru_xml_loc_info *loc)
{
    if (loc == nullptr)
        return nullptr;
    return find({.pi_hw_type = loc->pi_hw_type,
                 .pd_hw_type = loc->pd_hw_type,
                 .pid = {loc->pid, strnlen(loc->pid, sizeof loc->pid)},
                 .has_version = true,
                 .hw_version = {loc->hw_maj_ver, loc->hw_min_ver}});
}
