// Fields of records and the items of documents that fill them, as tables: for each record a document
// around it, the items that may stand in it, and one row for each field.
#ifndef TESTS_DOCUMENTS_RECORD_FIELDS_H
#define TESTS_DOCUMENTS_RECORD_FIELDS_H

#include "inv_parser/inv_parser.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace record_fields
{

// A text that an item may have and what the field then holds: a number, stored in the field's width, or
// a text of its own.
struct sample {
    std::string text;
    int64_t number = 0;
    std::string held = {};
};
using samples = std::vector<sample>;

struct place {
    const char *member;
    size_t offset;
    size_t width;
};

// What a field holds is compared as one of these.
enum class held_as { number, text, list };

struct field_row {
    place field;
    held_as as;
    std::string item;  // "@name": attribute; empty: no item fills the field
    samples texts;
    uint32_t bit = 0;         // in the record's mask
    std::string markup = {};  // the element around the text, "%"; empty: <item>%</item>
    int64_t when_absent = 0;
    std::string also_changes = {};  // another member that the item fills as well
};

// An item that may stand in the document's element, in the order of the schema. One that has to stand
// there has a usual text, which has to be a sample of each of its rows.
struct item {
    std::string name;
    std::string usual = {};
    bool is_required = false;
    std::string usual_markup = {};
};

struct record_case {
    std::string record;   // sch_<record>_type
    uint32_t pi_hw_type;  // of the document's kind
    std::string before;   // the document up to the attributes of the record's element
    std::string after;    // from the end of its content
    std::vector<item> items;
    std::function<const void *(const inv_xml_handle &)> find;
    place mask;  // width 0: the record has none
    std::vector<field_row> rows;
    std::vector<std::string> others = {};  // members that are no document's business: links
};

// `record` is the record type in whose table these stand.
#define FIELD(name)                                                                                          \
    record_fields::place                                                                                     \
    {                                                                                                        \
#name, offsetof(record, name), sizeof(record::name)                                                  \
    }
#define FIELD_INSIDE(name, type, inner)                                                                      \
    record_fields::place                                                                                     \
    {                                                                                                        \
#name, offsetof(record, name) + offsetof(type, inner), sizeof(type::inner)                           \
    }

const std::vector<record_case> &access_cases();
const std::vector<record_case> &entity_cases();
const std::vector<record_case> &port_cases();
const std::vector<record_case> &device_cases();
const std::vector<record_case> &unit_cases();

// Hardware types of the document kinds.
constexpr uint32_t chassis_kind = 1, module_kind = 3, fan_tray_kind = 7, power_shelf_kind = 8, pem_kind = 9,
                   optics_kind = 12;

// Texts at both limits of a width, and what they become.
samples boolean();
samples signed_8();
samples unsigned_8();
samples signed_16();
samples unsigned_16();
samples signed_32();
samples unsigned_32();
samples signed_64();
samples hex_octet();        // one octet
samples hex_word();         // four octets, the first the most significant
samples hex_first_octet();  // any number of octets, of which the first counts
samples power(uint32_t width_in_bits);
samples text_up_to(size_t limit);
// First and last token of an enumeration and the last one's code.
samples tokens(const char *first, const char *last, int64_t last_code);

field_row number(place field, const std::string &item, samples texts, uint32_t bit = 0);
field_row text(place field, const std::string &item, samples texts, uint32_t bit = 0);
// A list of one element when the item is there.
field_row list(place field, const std::string &item, const std::string &markup);
// Always zero, whatever the item says.
field_row untouched(place field, const std::string &item = "", const std::string &markup = "");
field_row with_markup(field_row row, const std::string &markup);

// "<element" with the attributes of an entity, all but xmlInstance.
std::string entity(const std::string &element, const std::string &more = "");
// A whole element of an entity; xmlInstance is 2 unless said otherwise.
std::string whole_entity(const std::string &element, const std::string &more = "",
                         const std::string &content = "", const std::string &xml_instance = "2");
// The document of a module around one of its elements.
std::string module_before();
std::string module_after();
// The document of a chassis up to its container lists.
std::string chassis_before();

item required(const std::string &name, const std::string &usual, const std::string &markup = "");
// The items of an entity's element: its xml instance, then those given.
std::vector<item> entity_items(std::vector<item> items);
// The base record at the head of a record, told by its xml instance.
field_row base_row(const char *member);
// An entity inside a record, told by its xml instance; place: that of the xml instance.
field_row inner_entity(place xml_instance, const std::string &item, const std::string &more,
                       const std::string &content, uint32_t bit = 0);

extern const char *const seq_type_and_description;
extern const char *const power_zone_element;
extern const char *const sensor_content;
extern const char *const fpga_content;
extern const char *const storage_content;
extern const char *const led_content;

}  // namespace record_fields

#endif
