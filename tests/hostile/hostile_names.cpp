#include "hostile/hostile_names.h"

#include <cstdint>
#include <unordered_map>

namespace hostile
{

namespace
{

// Two texts that leave the hash in the same state.
struct same_step {
    std::string either;
    std::string other;
    uint32_t state;
};

uint32_t hash_on(uint32_t state, const std::string &text)
{
    for (char c : text)
        state = (state ^ static_cast<unsigned char>(c)) * 16777619U;
    return state;
}

// Of some 80,000 texts two agree, unless they are alike.
same_step find_same_step(uint32_t state)
{
    constexpr uint32_t letters = 26;
    std::unordered_map<uint32_t, std::string> seen;
    for (uint32_t number = 1;; ++number) {
        std::string text;
        for (uint32_t rest = number * 2654435769U; rest > 0; rest /= letters)
            text += static_cast<char>('a' + rest % letters);
        const uint32_t reached = hash_on(state, text);
        const auto [found, is_new] = seen.emplace(reached, text);
        if (!is_new)
            return {found->second, text, reached};
    }
}

}  // namespace

std::vector<std::string> names_of_one_hash(unsigned doublings)
{
    std::vector<std::string> names = {""};
    uint32_t state = 2166136261U;
    for (unsigned i = 0; i < doublings; ++i) {
        const same_step step = find_same_step(state);
        std::vector<std::string> doubled;
        for (const std::string &name : names) {
            doubled.push_back(name + step.either);
            doubled.push_back(name + step.other);
        }
        names = std::move(doubled);
        state = step.state;
    }
    return names;
}

std::string prefixes_of_one_hash(unsigned doublings)
{
    const std::vector<std::string> prefixes = names_of_one_hash(doublings);
    std::string text;
    for (const std::string &prefix : prefixes)
        text += " xmlns:" + prefix + "='u'";
    for (const std::string &prefix : prefixes)
        text += " " + prefix + ":a='1'";
    return text;
}

}  // namespace hostile
