// invctl json: a whole document as JSON.
#ifndef INVCTL_COMMAND_JSON_H
#define INVCTL_COMMAND_JSON_H

#include <string>

namespace invctl
{

struct json_options {
    std::string file;
    bool schema = false;  // the schema of the output instead of a document
};

// Prints every entity with its full record, one a line, and returns the exit code. Nothing printed depends
// on the run, the machine or where the document lies.
int run_json(const json_options &options);

}  // namespace invctl

#endif
