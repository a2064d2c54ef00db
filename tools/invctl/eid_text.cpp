#include "eid_text.h"

#include <charconv>
#include <string_view>
#include <vector>

#include "OrvelianInventorySchema.h"
#include "entity_words.h"
#include "inv_parser/record_builders.h"

namespace
{

std::vector<std::string> split(std::string_view text, char separator)
{
    std::vector<std::string> parts;
    size_t begin = 0;
    for (size_t at = text.find(separator); at != std::string_view::npos; at = text.find(separator, begin)) {
        parts.emplace_back(text.substr(begin, at - begin));
        begin = at + 1;
    }
    parts.emplace_back(text.substr(begin));
    return parts;
}

// A decimal number of nothing but digits that the type can hold.
template <class Number>
std::optional<Number> number_of(const std::string &text)
{
    Number value = 0;
    const char *end = text.data() + text.size();
    auto [stop, error] = std::from_chars(text.data(), end, value);
    if (text.empty() || error != std::errc() || stop != end)
        return std::nullopt;
    return value;
}

// The subtype within the type, as the library counts it.
std::optional<uint8_t> subtype_of_word(uint8_t type, const std::string &word)
{
    if (std::optional<uint8_t> number = number_of<uint8_t>(word))
        return number;
    BaseEntityType decoded = {};
    if (EidSubType_ToEnum(word.data(), static_cast<int32_t>(word.size()), &decoded.subtype) != 0) {
        std::optional<uint32_t> code = invctl::subtype_code_of_word(type, word);
        if (!code)
            return std::nullopt;
        decoded.subtype = *code;
    }
    sch_base_entity_type entity = {};
    entity.type = type;
    parser_convert_subtype(&entity, &decoded);
    return static_cast<uint8_t>(entity.subtype);
}

std::optional<sch_eid_level_type> level_of_text(const std::string &text)
{
    std::vector<std::string> parts = split(text, '.');
    if (parts.size() != 3)
        return std::nullopt;
    std::optional<uint8_t> type = number_of<uint8_t>(parts[0]);
    if (!type)
        type = invctl::type_of_word(parts[0]);
    std::optional<uint8_t> subtype = type ? subtype_of_word(*type, parts[1]) : std::nullopt;
    std::optional<uint16_t> instance = number_of<uint16_t>(parts[2]);
    if (!subtype || !instance)
        return std::nullopt;
    return sch_eid_level_type{*type, *subtype, *instance};
}

}  // namespace

namespace invctl
{

std::optional<sch_eid_type> parse_eid(const std::string &text)
{
    std::vector<std::string> levels = split(text, '/');
    if (levels.size() > INV_EID_MAX_DEPTH)
        return std::nullopt;
    sch_eid_type eid = {};
    eid.reserved0 = INV_EID_RESERVED_WORD;
    eid.reserved1 = INV_EID_RESERVED_WORD;
    for (const std::string &each : levels) {
        std::optional<sch_eid_level_type> level = level_of_text(each);
        if (!level)
            return std::nullopt;
        eid.levels[eid.depth++] = *level;
    }
    return eid;
}

}  // namespace invctl
