// invctl: looks into inventory documents through the library.
#include <csignal>
#include <cstdio>
#include <exception>

#include "command_line.h"
#include "exit_codes.h"
#include "output.h"

int main(int argc, char **argv)
{
    // A closed pipe is reported like a full disk.
    std::signal(SIGPIPE, SIG_IGN);
    try {
        return invctl::finish_output(invctl::run_command_line(argc, argv));
    } catch (const std::exception &error) {
        fprintf(stderr, "invctl: %s\n", error.what());
        return invctl::exit_trouble;
    }
}
