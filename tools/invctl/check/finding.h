// Findings of `invctl check`: what they say and where they point.
#ifndef INVCTL_CHECK_FINDING_H
#define INVCTL_CHECK_FINDING_H

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>

namespace invctl::check
{

struct checked_document;
struct entity;

enum class severity : uint8_t { note, warning, error };

// One kind of finding. Codes are stable: people and programs select by them, and each has its page
// docs/findings/<code>.md.
struct check_row {
    const char *code;  // lower case, words joined by '-'
    severity level;
    const char *title;  // a sentence without its full stop
};

struct place {
    uint64_t line = 0;    // 1-based; 0: no place, the finding is about the whole file
    uint64_t column = 0;  // 1-based, in characters
    uint64_t offset = 0;  // 0-based, in octets
};

struct finding {
    const check_row *row = nullptr;
    std::string file;  // as the user wrote it
    place where;
    uint64_t length = 0;            // characters under the caret; 0: no caret
    std::string source;             // the line that the caret stands under, or its part around the caret
    uint64_t source_start = 1;      // column of the first character of `source`
    std::string text;               // what is wrong, with the names and values of this case
    std::string names;              // of the entity and those above it: "Card/Control FPGA"; may be empty
    std::string eid;                // of that entity, as far as it is known: "module.msc.0/module.fpga.0"
    std::string hint;               // what may be meant, or how to mend it; may be empty
    int32_t status = 0;             // of the XML runtime, for what the decoding itself refuses; else 0
    const entity *about = nullptr;  // null: no entity, or not known
};

// Findings in the order in which they were reported, of one check at a time.
struct finding_list {
    std::deque<finding> all;             // references stay valid
    const check_row *current = nullptr;  // whose findings are being reported; set by whoever runs a check
};

// Reports a finding at a decoded item: the record of an element (its start tag is pointed at), or a member
// that an attribute or a simple element fills. Of an item that the document does not give the finding
// points at the entity; of a null item at the whole file. The entity may be null. The caller may complete
// what comes back, the hint for example.
finding &report(finding_list &found, const checked_document &in, const entity *of, const void *item,
                std::string text);

// A finding without a document: about a file that is missing, or a line of the catalogue.
finding &report_file(finding_list &found, std::string file, place where, std::string text);

const char *word_of(severity level);  // "note", "warning", "error"

}  // namespace invctl::check

#endif
