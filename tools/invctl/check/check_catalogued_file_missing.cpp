// Files that the catalogue names and nobody can read.
#include <cerrno>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "catalogue_model.h"
#include "nearest.h"
#include "output.h"

namespace
{

// Empty when the file can be read.
std::string trouble_with(const std::string &file)
{
    struct stat status = {};
    if (stat(file.c_str(), &status) != 0)
        return std::generic_category().message(errno);
    if (S_ISDIR(status.st_mode))
        return std::generic_category().message(EISDIR);
    if (!S_ISREG(status.st_mode))
        return "not a regular file";
    return access(file.c_str(), R_OK) == 0 ? "" : std::generic_category().message(errno);
}

// Looking for what was meant reads a folder; a catalogue that names nothing right must not take forever.
constexpr const char *plain_hint = "file names start at the catalogue's folder";
constexpr size_t most_looked_for = 100;

// The document in the same folder that may have been meant.
std::string hint_for(const std::string &file)
{
    const std::filesystem::path path = file;
    const std::vector<std::string> names = invctl::check::document_names_in(path.parent_path().string());
    const std::string meant = invctl::nearest_word(path.filename().string(), names);
    return meant.empty() ? plain_hint : "did you mean " + invctl::printable(meant.c_str()) + "?";
}

}  // namespace

namespace invctl::check
{

void check_catalogued_file_missing(const catalogue_check &catalogue, finding_list &found)
{
    size_t missing = 0;
    for (const catalogued_unit &unit : units_of(catalogue)) {
        if (unit.document != nullptr && unit.document->root != nullptr)
            continue;
        if (const std::string trouble = trouble_with(unit.file); !trouble.empty())
            report_line(found, catalogue, *unit.line, unit.columns.file,
                        printable(std::string(unit.columns.file).c_str()) + ": " + trouble)
                .hint = ++missing <= most_looked_for ? hint_for(unit.file) : plain_hint;
    }
}

}  // namespace invctl::check
