// What every command of invctl ends with.
#ifndef INVCTL_EXIT_CODES_H
#define INVCTL_EXIT_CODES_H

namespace invctl
{

enum exit_code {
    exit_ok = 0,
    exit_finding = 1,  // the document is at fault
    exit_trouble = 2,  // usage, or input and output
};

}  // namespace invctl

#endif
