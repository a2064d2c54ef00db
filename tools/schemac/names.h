// Names and small texts of the generated code.
#ifndef SCHEMAC_NAMES_H
#define SCHEMAC_NAMES_H

#include "model.h"

namespace schemac
{

// C type of a field: "int16_t ", "const char *" - ready for a name to follow.
std::string field_type(const item &i);
// What a comment says of a field whose C type does not tell.
std::string field_note(const item &i);

// "required", "optional", "counted", "repeated".
std::string occurrence_name(occurrence occurs);

// Whether content can be left out, as the lookup sees it: required, counted or optional.
occurrence content_occurrence(const std::vector<item> &elements);
occurrence content_occurrence(const schema &s, const complex_type &type);

// Presence bits of a record in order: "ext" first where there is an extension, then optional items.
std::vector<std::string> presence_bits(const complex_type &type);
std::vector<std::string> presence_bits(const std::vector<item> &items);

// True when a cleared record of the type is not yet an initialised one.
bool has_initial_values(const schema &s, const complex_type &type);

// A token as C enumerator.
std::string enumerator(const std::string &token);

}  // namespace schemac

#endif
