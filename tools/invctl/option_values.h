// The words that the values of options are chosen from.
#ifndef INVCTL_OPTION_VALUES_H
#define INVCTL_OPTION_VALUES_H

#include <string>
#include <vector>

namespace invctl
{

// The values that an option of this type name takes: TYPE, SUBTYPE, OWNER, "text|json" and the like. Empty
// when any text will do.
std::vector<std::string> words_of_value(const std::string &type_name);

// A type name of options and arguments whose values name files.
bool names_file(const std::string &type_name);

}  // namespace invctl

#endif
