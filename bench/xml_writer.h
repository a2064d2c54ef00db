/* The little XML writing that the document generator needs. */
#ifndef INV_BENCH_XML_WRITER_H
#define INV_BENCH_XML_WRITER_H

#include <cstdint>
#include <string>
#include <string_view>

namespace inv_bench
{

struct xml_writer {
    std::string text;
    bool indented = true;
    unsigned depth = 0;
    bool tag_open = false;  // a start tag still takes attributes
};

/* Names and values come from the generator's own tables: nothing here needs escaping. */
void open_element(xml_writer &out, std::string_view name);
void attribute(xml_writer &out, std::string_view name, std::string_view value);
void attribute(xml_writer &out, std::string_view name, std::int64_t value);
void element(xml_writer &out, std::string_view name, std::string_view value);
void element(xml_writer &out, std::string_view name, std::int64_t value);
void hex_element(xml_writer &out, std::string_view name, std::uint32_t value, unsigned digits);
void close_element(xml_writer &out, std::string_view name);

}  // namespace inv_bench

#endif
