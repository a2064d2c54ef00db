// schemaman XSD: writes the manual page inventory(5) to standard output.
#include <cstdio>

#include "manual.h"

int main(int argc, char **argv)
{
    if (argc != 2) {
        fprintf(stderr, "usage: schemaman XSD\n");
        return 2;
    }
    schemac::xml_node schema;
    std::string message;
    if (!schemac::read_tree(argv[1], schema, message)) {
        fprintf(stderr, "%s\n", message.c_str());
        return 2;
    }
    std::string page = schemaman::page_of(schema);
    bool written = fwrite(page.data(), 1, page.size(), stdout) == page.size() && fflush(stdout) == 0;
    return written ? 0 : 2;
}
