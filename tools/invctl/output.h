// Standard output that is checked: a full disk or a closed pipe is an error of the command.
#ifndef INVCTL_OUTPUT_H
#define INVCTL_OUTPUT_H

#include <string>

namespace invctl
{

// Writes text to standard output.
void write_out(const std::string &text);

// Flushes standard output. Returns code, or exit_trouble with a message when anything written since
// the start was lost.
int finish_output(int code);

// Text with control characters and quotes escaped, so that a hostile name cannot forge a line.
std::string printable(const char *text);

// Text that may go into JSON: octets that are no UTF-8 become the replacement character.
std::string valid_utf8(const char *text);

}  // namespace invctl

#endif
