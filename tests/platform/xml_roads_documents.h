// Random documents of arbitrary XML, well formed or nearly so, and mutants of documents at the level of
// octets. The same source of random numbers gives the same documents.
#ifndef TESTS_PLATFORM_XML_ROADS_DOCUMENTS_H
#define TESTS_PLATFORM_XML_ROADS_DOCUMENTS_H

#include "support/document_generator.h"

// Nested elements with everything that XML has: references, namespaces, CDATA sections, comments,
// instructions, all line ends, characters of all lengths, declarations, byte order marks and, in some, a
// document type with entities.
std::string random_markup(inv_testing::random_source &random);

// One to four changes: octets changed, put in, taken out, doubled or moved, the rest cut off. What is put
// in is markup more often than not.
std::string damaged(const std::string &document, inv_testing::random_source &random);

#endif
