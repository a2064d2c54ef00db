#include "known_names.h"

namespace inv::xml
{

known_name *know_name(known_names &all, std::string_view text, uint32_t hash)
{
    if (text.empty() || text.size() > known_name::greatest_length)
        return nullptr;
    size_t slot = hash % known_names::slot_count;
    for (; all.slots[slot] != 0; slot = (slot + 1) % known_names::slot_count) {
        known_name &name = all.names[all.slots[slot] - 1];
        if (name.hash == hash && std::string_view(name.octets, name.length) == text)
            return &name;
    }
    if (all.count == known_names::limit)
        return nullptr;
    known_name &name = all.names[all.count];
    name.bit = uint64_t{1} << all.count++;
    all.slots[slot] = static_cast<uint8_t>(all.count);
    memcpy(name.octets, text.data(), text.size());
    memset(&name.last_mask, 0xFF, (text.size() - 1) % 8 + 1);
    name.length = static_cast<uint32_t>(text.size());
    name.hash = hash;
    return &name;
}

}  // namespace inv::xml
