// What the tests of opening, loading and closing share: a library in its first state, the documents of
// every kind, both generations of the open call, broken copies of documents.
#ifndef TESTS_UNIT_LOAD_WORLD_H
#define TESTS_UNIT_LOAD_WORLD_H

#include "inv_parser/inv_parser.h"

#include <cstdint>
#include <string>
#include <vector>

namespace load_world
{

// The library as at its start, with an open trace channel. Ends with an empty registry again and
// checks that no more memory is out than was before.
class fresh_library
{
public:
    fresh_library();
    ~fresh_library();
    fresh_library(const fresh_library &) = delete;
    fresh_library &operator=(const fresh_library &) = delete;

    // Blocks and mappings that came out since the start.
    uint64_t live() const;

    // A handle that the contract leaves allocated: checks that it is in no registry and holds nothing,
    // and gives it back.
    void release_kept(inv_xml_handle *handle) const;

private:
    uint64_t live_before;
};

// The local clock of the test build: nothing at all, or always 12:34:56.
void set_clock(bool works);

struct document_case {
    const char *name;     // of the kind
    uint32_t pi_hw_type;  // one that names the kind
    const char *file;     // in tests/documents/data
    uint32_t start_id;    // trace of the loader's start
    uint32_t decode_id;   // ... of a document that cannot be decoded
    uint32_t failed_id;   // ... of the first generation for a load that failed, succeeded, and the root
    uint32_t succeeded_id;
    uint32_t root_id;
    // In the tree of the document: the modules of a fan and all but the first of a shelf are not carried.
    uint32_t entities;
    const void *(*record)();  // what the kind's global holds
};

const std::vector<document_case> &documents();
const document_case &module_document();
const document_case &chassis_document();
std::string path_of(const document_case &document);

// Ways for a document to be unusable, each with a file made for it.
struct fault_case {
    const char *name;
    std::string (*file_for)(const document_case &document);
};
const std::vector<fault_case> &faults();

// A file of this test program; text replaces what it held. Returns its path.
std::string scratch_file(const std::string &name, const std::string &text);
std::string text_of(const std::string &path);
std::string scratch_folder();

// The two generations of the open call under one shape, with the ids of their messages.
struct generation {
    const char *name;
    inv_xml_handle *(*open)(uint32_t pi_hw_type);
    uint32_t lock_failed, unlock_failed, no_handle, parsed_already, start, end, invalid_type, entry;
    uint32_t first_no_memory;
};
const std::vector<generation> &generations();

// Every unit has this file / the file with the number of its pi_hw_type.
inv_xml_handle *open_file(const generation &by, const std::string &path, uint32_t pi_hw_type);
inv_xml_handle *open_document(const document_case &document);

// Ids of the lines that opening, closing and loading write, without those of the record builders.
std::vector<uint32_t> frame_ids();
uint64_t count_of(uint32_t id);
std::string text_of_line(uint32_t id);

// Entities that the tree query of the whole file answers; 0 when it fails.
uint32_t entity_count(inv_xml_handle *handle);

}  // namespace load_world

#endif
