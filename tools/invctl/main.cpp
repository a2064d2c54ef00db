// invctl: looks into inventory documents through the library.
#include <csignal>
#include <cstdio>
#include <exception>
#include <new>
#include <unistd.h>

#include "command_line.h"
#include "exit_codes.h"
#include "output.h"

namespace
{

// Memory runs out also where no exception gets out of: in constructors of static data, in destructors, in
// functions that promise to throw nothing.
[[noreturn]] void end_without_memory()
{
    static constexpr char text[] = "invctl: out of memory\n";
    // A message that nobody takes is no reason to go on.
    [[maybe_unused]] ssize_t written = write(STDERR_FILENO, text, sizeof text - 1);
    _exit(invctl::exit_trouble);
}

// In front of all static data, that of headers of libraries included.
[[gnu::constructor(101)]] void prepare_for_lack_of_memory()
{
    std::set_new_handler(end_without_memory);
}

}  // namespace

int main(int argc, char **argv)
{
    // A closed pipe is reported like a full disk.
    std::signal(SIGPIPE, SIG_IGN);
    try {
        return invctl::finish_output(invctl::run_command_line(argc, argv));
    } catch (const std::bad_alloc &) {
        end_without_memory();
    } catch (const std::exception &error) {
        fprintf(stderr, "invctl: %s\n", error.what());
        return invctl::exit_trouble;
    }
}
