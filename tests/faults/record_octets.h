// Records in octets that can be compared between two openings of a document: for every field that is not
// zero, by the tables that invctl prints records by, an item of eight octets that stands for field and value.
// Nothing that is a pointer.
#ifndef TESTS_FAULTS_RECORD_OCTETS_H
#define TESTS_FAULTS_RECORD_OCTETS_H

#include "inv_parser/inv_parser.h"

#include <string>

namespace fault_world
{

inline constexpr size_t record_item_size = sizeof(size_t);

// An entity's base record with all that belongs to it.
std::string record_octets(const sch_base_entity_type &entity);

// The record of the file's unit with every entity below it.
std::string unit_octets(const inv_xml_handle &handle);

}  // namespace fault_world

#endif
