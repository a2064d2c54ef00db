// The command line of invctl, built from the command table.
#ifndef INVCTL_COMMAND_LINE_H
#define INVCTL_COMMAND_LINE_H

namespace invctl
{

// Reads the command line, runs what it says and returns the exit code. Usage errors go to standard error
// with a hint when something near was meant.
int run_command_line(int argc, char **argv);

}  // namespace invctl

#endif
