#include "entity_words.h"

#include <algorithm>
#include <cctype>
#include <set>
#include <string_view>

#include "OrvelianInventorySchema.h"

namespace
{

constexpr std::string_view type_prefix = "ORVL_ENTITY_TYPE_";
constexpr std::string_view subtype_prefix = "ORVL_ENTITY_SUBTYPE_";
constexpr std::string_view owner_prefix = "ORVL_ENTITY_OWNER_TYPE_";
constexpr std::string_view node_prefix = "ORVL_NODE_TYPE_";
constexpr uint8_t type_count = 13;

std::string lower(std::string_view text)
{
    std::string word(text);
    std::transform(word.begin(), word.end(), word.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return word;
}

std::string without_prefix(std::string_view token, std::string_view prefix)
{
    return lower(token.starts_with(prefix) ? token.substr(prefix.size()) : token);
}

// The words of an enumeration without gaps: past its last code no token has the prefix.
std::vector<std::string> words_of(const char *(*token)(uint32_t), std::string_view prefix)
{
    std::vector<std::string> words;
    for (uint32_t code = 0; std::string_view(token(code)).starts_with(prefix); ++code)
        words.push_back(without_prefix(token(code), prefix));
    return words;
}

// A subtype's word without that of the type it belongs to.
std::string without_type(const std::string &subtype)
{
    for (const std::string &type : words_of(EidType_ToString, type_prefix))
        if (subtype.starts_with(type + "_"))
            return subtype.substr(type.size() + 1);
    return subtype;
}

}  // namespace

namespace invctl
{

std::string type_word(const sch_base_entity_type &entity)
{
    return without_prefix(EidType_ToString(entity.type), type_prefix);
}

std::string subtype_word(const sch_base_entity_type &entity)
{
    std::string subtype = without_prefix(EidSubType_ToString(entity.global_subtype), subtype_prefix);
    std::string type = type_word(entity) + "_";
    return subtype.starts_with(type) ? subtype.substr(type.size()) : subtype;
}

std::string owner_word(const sch_base_entity_type &entity)
{
    return without_prefix(EntityOwnerType_ToString(entity.owner), owner_prefix);
}

std::string eid_level(const sch_base_entity_type &entity)
{
    return type_word(entity) + "." + subtype_word(entity) + "." + std::to_string(entity.instance);
}

std::string schema_word(const char *token, const char *prefix)
{
    return without_prefix(token, prefix);
}

std::optional<uint8_t> type_of_word(const std::string &word)
{
    for (uint8_t type = 0; type < type_count; ++type) {
        const char *token = EidType_ToString(type);
        if (lower(word) == without_prefix(token, type_prefix) || word == token ||
            word == std::to_string(type))
            return type;
    }
    return std::nullopt;
}

std::optional<uint32_t> subtype_code_of_word(uint8_t type, const std::string &word)
{
    sch_base_entity_type entity = {};
    entity.type = type;
    for (uint16_t code = 0; code <= ORVL_ENTITY_SUBTYPE_INVALID; ++code) {
        entity.global_subtype = code;
        if (lower(word) == subtype_word(entity))
            return code;
    }
    return std::nullopt;
}

std::vector<std::string> entity_types()
{
    return words_of(EidType_ToString, type_prefix);
}

std::vector<std::string> entity_subtypes()
{
    std::vector<std::string> words;
    std::set<std::string> known;
    for (const std::string &whole : words_of(EidSubType_ToString, subtype_prefix))
        if (known.insert(without_type(whole)).second)
            words.push_back(without_type(whole));
    return words;
}

std::vector<std::string> entity_owners()
{
    return words_of(EntityOwnerType_ToString, owner_prefix);
}

std::vector<std::string> node_types()
{
    return words_of(NodeInfoType_nodeType_ToString, node_prefix);
}

bool has_subtype(const sch_base_entity_type &entity, const std::string &word)
{
    return word == without_type(without_prefix(EidSubType_ToString(entity.global_subtype), subtype_prefix));
}

std::string all_type_words()
{
    std::string words;
    for (const std::string &word : entity_types())
        words += (words.empty() ? "" : ", ") + word;
    return words;
}

}  // namespace invctl
