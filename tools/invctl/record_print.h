// A whole record as text and as JSON, every field by its name.
#ifndef INVCTL_RECORD_PRINT_H
#define INVCTL_RECORD_PRINT_H

#include <string>

#include <nlohmann/json.hpp>

#include "entity_records.h"
#include "record_table.h"

namespace invctl
{

// Lines "name: value", two blanks deeper for each record inside a record; "absent" for what the
// document does not give and has no default. Entities inside are named by their EID level, not printed.
std::string record_text(const record_table &table, const void *record, const entity_records &known,
                        size_t indent);

// The same with null for what is absent; keys in the order of the record. Codes without a token and
// flags that are neither 0 nor 1 are numbers.
nlohmann::ordered_json record_json(const record_table &table, const void *record,
                                   const entity_records &known);

// The value of a field that is no record and holds none, as the two print it.
std::string value_text(const record_field &field, const void *record);
nlohmann::ordered_json value_json(const record_field &field, const void *record);

}  // namespace invctl

#endif
