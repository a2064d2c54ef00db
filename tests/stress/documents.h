// The documents that the stress and the soak open, through the reference platform's lookup.
#ifndef TESTS_STRESS_DOCUMENTS_H
#define TESTS_STRESS_DOCUMENTS_H

#include "inv_parser/inv_parser.h"

#include <cstddef>

namespace stress
{

inline constexpr size_t document_count = 16;

// The first two rows of catalog.txt.
inline constexpr size_t control_card_number = 0;
inline constexpr size_t chassis_number = 1;

// Reads catalog.txt and has the platform's lookup use it. To be called once, before there are threads. False
// when it does not name document_count documents.
bool use_documents();

// Null when the library opens nothing, as for a number without document.
inv_xml_handle *open_document(size_t number, bool second_generation);

}  // namespace stress

#endif
