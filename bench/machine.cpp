#include "machine.h"

#include <cstdio>
#include <fstream>
#include <memory>
#include <string>
#include <sys/utsname.h>
#include <unistd.h>

namespace inv_bench
{
namespace
{

// What follows the colon in the first line of a file that begins with a key.
std::string value_in(const char *file, const std::string &key)
{
    std::ifstream lines(file);
    std::string line;
    while (std::getline(lines, line)) {
        const std::size_t colon = line.find(':');
        if (line.starts_with(key) && colon + 2 < line.size())
            return line.substr(line.find_first_not_of(" \t", colon + 1));
    }
    return "unknown";
}

std::string output_of(const char *command)
{
    const std::unique_ptr<std::FILE, int (*)(std::FILE *)> pipe(popen(command, "r"), pclose);
    std::string text;
    char part[256];
    while (pipe != nullptr && std::fgets(part, sizeof part, pipe.get()) != nullptr)
        text += part;
    return text;
}

}  // namespace

void write_machine(std::ostream &out)
{
    utsname system = {};
    uname(&system);
    std::string pages = "unknown";
    std::getline(std::ifstream("/sys/kernel/mm/transparent_hugepage/enabled"), pages);
    out << "- " << value_in("/proc/cpuinfo", "model name") << ", " << sysconf(_SC_NPROCESSORS_ONLN)
        << " processors, " << value_in("/proc/meminfo", "MemTotal") << " of memory\n"
        << "- " << system.sysname << ' ' << system.release << ' ' << system.machine << ", huge pages "
        << pages << '\n'
#ifdef __clang__
        << "- " << __VERSION__ << ", release build\n"
#else
        << "- g++ " << __VERSION__ << ", release build\n"
#endif
        << output_of("dpkg-query -W -f '- ${Package} ${Version}\\n' libc6 libpugixml-dev librapidxml-dev "
                     "libxml2-dev libexpat1-dev 2>/dev/null");
}

}  // namespace inv_bench
