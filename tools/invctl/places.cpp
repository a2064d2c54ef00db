#include "places.h"

#include <fstream>
#include <iterator>

#include "check/checked_document.h"

namespace invctl
{

// The library keeps no places, so the document is decoded once more, by a context that does. It has been
// opened before: whatever goes wrong now only costs the place.
std::string place_of_instance(const std::string &path, uint16_t xml_instance)
{
    std::ifstream file(path, std::ios::binary);
    check::checked_document document;
    document.octets.assign(std::istreambuf_iterator<char>(file), {});
    check::decode_document(document);
    const check::entity *found = nullptr;
    for (const check::entity &each : document.entities)
        if (static_cast<uint16_t>(each.base->xmlInstance) == xml_instance)
            found = &each;
    if (found == nullptr || found->where.line == 0)
        return path;
    return path + ":" + std::to_string(found->where.line) + ":" + std::to_string(found->where.column);
}

}  // namespace invctl
