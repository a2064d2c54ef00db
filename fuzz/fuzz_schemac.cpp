// A schema document through the schema compiler: read, understood, and written out as every file that it
// makes.
#include "memory_file.h"
#include "read_schema.h"
#include "writers.h"

namespace
{

void write_everything(const schemac::schema &schema)
{
    using namespace schemac;
    std::string text, message;
    if (!write_tokens_header(schema, text, message))
        return;
    for (auto write :
         {write_records_header, write_records_source, write_decoders_header, write_decoders_source,
          write_derivations_header, write_derivations_source, write_choosers_header, write_choosers_source})
        write(schema);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    memory_file file = make_memory_file(data, size);
    schemac::xml_node tree;
    schemac::schema schema;
    std::string message;
    if (!file.name.empty() && schemac::read_tree(file.name, tree, message) &&
        schemac::read_schema(tree, schema, message))
        write_everything(schema);
    remove_memory_file(file);
    return 0;
}
