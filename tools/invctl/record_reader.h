// Reads fields out of records by their tables.
#ifndef INVCTL_RECORD_READER_H
#define INVCTL_RECORD_READER_H

#include <string>

#include "record_table.h"

namespace invctl
{

const void *field_address(const record_field &field, const void *record);

// A number of any width; a negative one widened with its sign.
uint64_t number_in(const record_field &field, const void *record);

const void *pointer_in(const record_field &field, const void *record);

std::string text_in(const record_field &field, const void *record);

// False for an item that the document does not give: its presence bit is clear.
bool is_given(const record_table &table, const record_field &field, const void *record);

// The record that follows in its list; null at the end and for records that stand in no list.
const void *next_in_list(const record_table &table, const void *record);

// The schema's word for a code; null when the code has none.
const char *token_in(const record_field &field, const void *record);

}  // namespace invctl

#endif
