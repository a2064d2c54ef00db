// JSON against its published schema.
#ifndef TESTS_CLI_JSON_CHECKS_H
#define TESTS_CLI_JSON_CHECKS_H

#include "invctl_fixture.h"

// Names every place where a file breaks the schema; empty when none does.
inline std::string schema_faults(const std::string &schema, const fs::path &file)
{
    fs::path faults = file.string() + ".faults";
    std::string command = std::string("'") + INV_PYTHON +
                          "' '" INV_SOURCE_DIR "/tests/cli/validate_json.py' '" + INV_SOURCE_DIR "/schema/" +
                          schema + "' " + quoted(file) + " >" + quoted(faults) + " 2>&1";
    int status = std::system(command.c_str());
    std::string text = read_file(faults);
    return status == 0 ? text : "exit " + std::to_string(WEXITSTATUS(status)) + ": " + text;
}

#endif
