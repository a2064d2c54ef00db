#include "stress/documents.h"

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace stress
{

namespace
{

// pi_hw_type by document; its number is the pd_hw_type.
std::vector<uint32_t> kinds;

}  // namespace

bool use_documents()
{
    const char *catalogue = INV_SOURCE_DIR "/tests/stress/catalog.txt";
    kinds.clear();
    std::ifstream file(catalogue);
    for (std::string line; std::getline(file, line);) {
        uint32_t kind = 0;
        size_t number = 0;
        std::istringstream columns(line);
        if (line.starts_with('#') || !(columns >> kind >> number) || number != kinds.size())
            continue;
        kinds.push_back(kind);
    }
    return kinds.size() == document_count && setenv("INV_CATALOG", catalogue, 1) == 0;
}

inv_xml_handle *open_document(size_t number, bool second_generation)
{
    constexpr uint32_t kind_of_nothing = 3;
    fru_xml_loc_info loc = {};
    loc.pi_hw_type = number < kinds.size() ? kinds[number] : kind_of_nothing;
    loc.pd_hw_type = static_cast<uint32_t>(number);
    if (second_generation)
        return inv_parser_open_xml_file_v2(0, &loc);
    return inv_parser_open_xml_file(0, loc.pi_hw_type, loc.pd_hw_type, "");
}

}  // namespace stress
