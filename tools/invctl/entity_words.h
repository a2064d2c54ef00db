// Schema tokens as the words that people type and read: "ORVL_ENTITY_TYPE_MODULE" is "module".
#ifndef INVCTL_ENTITY_WORDS_H
#define INVCTL_ENTITY_WORDS_H

#include <optional>
#include <string>
#include <vector>

#include "inv_parser/inv_parser.h"

namespace invctl
{

std::string type_word(const sch_base_entity_type &entity);

// The word of the entity's subtype within its type; of another type's subtype the whole token.
std::string subtype_word(const sch_base_entity_type &entity);

std::string owner_word(const sch_base_entity_type &entity);

// "module.mother_board.0": one level of an EID.
std::string eid_level(const sch_base_entity_type &entity);

// A token as a word: without its prefix, in lower case.
std::string schema_word(const char *token, const char *prefix);

// The entity type that a word, a token or a number names.
std::optional<uint8_t> type_of_word(const std::string &word);

// The schema's code of the subtype that a word of subtype_word() names for an entity of the type.
std::optional<uint32_t> subtype_code_of_word(uint8_t type, const std::string &word);

// All words of a kind, in the order of the schema's tokens; subtypes within their types, each word once.
std::vector<std::string> entity_types();
std::vector<std::string> entity_subtypes();
std::vector<std::string> entity_owners();
std::vector<std::string> node_types();

// True when a word of entity_subtypes() names the entity's subtype.
bool has_subtype(const sch_base_entity_type &entity, const std::string &word);

// All words of entity types, for messages: "chassis, backplane, ...".
std::string all_type_words();

}  // namespace invctl

#endif
