// One function per generated file; each gives the whole text.
#ifndef SCHEMAC_WRITERS_H
#define SCHEMAC_WRITERS_H

#include "model.h"

namespace schemac
{

// Records, enumerations and initialisers.
std::string write_records_header(const schema &s);
std::string write_records_source(const schema &s);

// Decoders of types, enumerations and document roots.
std::string write_decoders_header(const schema &s);
std::string write_decoders_source(const schema &s);

// Tables of the decoders, for the head of their source. Steps number the failures.
// Declares the enumerations' token tables, which the two source files share.
std::string token_declarations(const schema &s);

std::string write_type_tables(const schema &s);
uint32_t first_step_of(const schema &s, const std::string &type, bool is_extension);

// Choices: initialisers with type-name tables, and choosers.
std::string write_derivations_header(const schema &s);
std::string write_derivations_source(const schema &s);
std::string write_choosers_header(const schema &s);
std::string write_choosers_source(const schema &s);

// C enumerators of all tokens. False with a message when two tokens would be one enumerator.
bool write_tokens_header(const schema &s, std::string &text, std::string &message);

}  // namespace schemac

#endif
