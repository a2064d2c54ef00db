// What the tests of a failing system share: documents, every question that a client can ask about one, and
// files that lie open beside it.
#ifndef TESTS_FAULTS_FAULT_WORLD_H
#define TESTS_FAULTS_FAULT_WORLD_H

#include "inv_parser/inv_parser.h"
#include "unit/load_world.h"

#include <cstdint>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace fault_world
{

// A document with a hardware type of its kind.
struct unit {
    std::string name;
    std::string path;
    uint32_t pi_hw_type;

    bool is_module() const;
};
void PrintTo(const unit &which, std::ostream *out);

// Every sample, a small document of each kind, and these once more with a document type in front, which has
// them read by way of expat.
const std::vector<unit> &units();

// The small documents only, by both ways of reading.
std::vector<unit> small_units();

inv_xml_handle *open_unit(const unit &which, size_t generation = 0);

// False where the tree is empty, or headed by another entity of the file: of a unit's node for which there
// was no memory.
bool has_unit(const inv_xml_handle &handle);

// What a call has answered, in octets that can be compared between two openings of a document.
struct answer {
    bool failed = true;
    std::string octets;
    // Of an answer that has parts: octets in front of them, and of each. 0: it has none.
    size_t head = 0;
    size_t part = 0;

    bool operator==(const answer &) const = default;
};

// Some parts of the whole answer, and nothing that is none.
bool is_part_of(const answer &given, const answer &whole);

// The file that is asked about, and those that some calls need as well.
struct files {
    inv_xml_handle *handle;
    inv_xml_handle *card;
    inv_xml_handle *chassis;
};

struct question {
    std::string entry_point;  // as the library exports it
    std::function<answer(const files &)> ask;
};

// Every entry point: about the file, then about each of its entities and slots. Asks about the file itself,
// so nothing may fail meanwhile.
std::vector<question> all_questions(const files &about);

// The first answered question of each entry point.
std::vector<question> one_of_each(const std::vector<question> &all, const files &about);

std::vector<answer> ask_all(const std::vector<question> &questions, const files &about);

// A route processor, a chassis and a PEM under names of their own, open as long as this lives.
class bystanders
{
public:
    bystanders();
    ~bystanders();
    bystanders(const bystanders &) = delete;
    bystanders &operator=(const bystanders &) = delete;

    files beside(inv_xml_handle *handle) const
    {
        return {handle, card, chassis};
    }
    // They answer what they answered at first.
    bool are_whole() const;

private:
    inv_xml_handle *card;
    inv_xml_handle *chassis;
    inv_xml_handle *pem;
    std::vector<question> questions;
    std::vector<answer> answers;
};

// Open descriptors of this process.
size_t descriptors();

}  // namespace fault_world

#endif
