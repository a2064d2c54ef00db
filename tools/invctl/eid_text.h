// EIDs as people write them: "module.msc.0/sensor.temp_value.3", words or numbers.
#ifndef INVCTL_EID_TEXT_H
#define INVCTL_EID_TEXT_H

#include <optional>
#include <string>

#include "inv_parser/inv_parser.h"

namespace invctl
{

// Reads type.subtype.instance for each level, the top entity's first, levels parted by '/'. Types and
// subtypes are words, tokens of the schema or numbers; a subtype's number is that of the EID, counted
// within its type. Nothing when the text is no EID.
std::optional<sch_eid_type> parse_eid(const std::string &text);

}  // namespace invctl

#endif
