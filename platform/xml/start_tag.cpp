// A start tag is read in two steps. The first finds its parts and whether they are well formed; most
// tags need no more. The second, in document order, looks for attributes given twice and rewrites
// values in which references or white space stand for something else.
#include "start_tag.h"

#include "characters.h"
#include "inv_platform/name_hash.h"
#include "scan.h"

#include <algorithm>
#include <cstring>

namespace inv::xml
{

namespace
{

// What the first step has noticed about the tag as a whole.
struct tag_traits {
    bool has_colons = false;
    bool has_declarations = false;
    bool has_rewrites = false;  // attributes with made_value
    bool may_repeat = false;    // two names may be the same
    uint64_t seen = 0;          // bits of known names
};

constexpr size_t few_attributes = 64;

const char *skip_space(const char *at)
{
    return is_white_space(*at) ? skip_white_space(at) : at;
}

// The rest of a value from an octet on that is not plain; stops in front of the quote.
lexed lex_odd_value(lexer &lex, const char *&at, char quote, bool &needs_rewrite)
{
    while (*at != quote) {
        lexed result;
        reference found;
        if (*at == '&') {
            needs_rewrite = true;
            result = lex_reference(lex, at, found);
        } else if (*at == '<') {
            result = fail_at(lex, at);
        } else {
            needs_rewrite = needs_rewrite || static_cast<unsigned char>(*at) < 0x20;
            result = lex_character(lex, at);
        }
        if (result != lexed::ok)
            return result;
        at = skip_value(at, quote);
    }
    return lexed::ok;
}

void note_name(tag_traits &traits, const known_name &name)
{
    traits.may_repeat = traits.may_repeat || (traits.seen & name.bit) != 0;
    traits.seen |= name.bit;
}

// What follows the name.
lexed lex_value(lexer &lex, const char *&at, attribute &item)
{
    at = skip_space(at);
    if (*at != '=')
        return unexpected(lex, at);
    at = skip_space(at + 1);
    const char quote = *at;
    if (quote != '"' && quote != '\'')
        return unexpected(lex, at);
    item.value = ++at;
    item.made_value = false;
    at = skip_value(at, quote);
    if (*at != quote) {
        lexed result = lex_odd_value(lex, at, quote, item.made_value);
        if (result != lexed::ok)
            return result;
    }
    item.value_length = static_cast<uint32_t>(at - item.value);
    ++at;
    return lexed::ok;
}

// Moves *last to the name's known form, if it has one.
lexed lex_attribute(lexer &lex, const char *&at, attribute &item, tag_traits &traits, known_name *&last)
{
    item.name = at;
    bool has_colon = false;
    lexed result = lex_name(lex, at, has_colon);
    if (result != lexed::ok)
        return result;
    const auto length = static_cast<size_t>(at - item.name);
    item.name_length = static_cast<uint32_t>(length);
    item.name_hash = name_hash(item.name, length);
    result = lex_value(lex, at, item);
    if (result != lexed::ok)
        return result;
    const bool is_declaration = length >= 5 && *item.name == 'x' && memcmp(item.name, "xmlns", 5) == 0;
    traits.has_colons = traits.has_colons || has_colon;
    traits.has_rewrites = traits.has_rewrites || item.made_value;
    traits.has_declarations = traits.has_declarations || is_declaration;
    known_name *known =
        has_colon || is_declaration ? nullptr : know_name(lex.names, name_of(item), item.name_hash);
    traits.may_repeat = traits.may_repeat || known == nullptr;
    if (known != nullptr) {
        note_name(traits, *known);
        last = last->next = known;
    }
    return lexed::ok;
}

// The usual form of an attribute whose name is expected: one blank, the name, a plain value in double
// quotes. False: it is not that, and is read by lex_attribute().
bool lex_expected_attribute(const char *&at, attribute &item, tag_traits &traits, known_name *&last)
{
    known_name *expected = last->next;
    if (expected == nullptr || at[0] != ' ' || !begins_with(at + 1, *expected))
        return false;
    const char *behind = at + 1 + expected->length;
    if (behind[0] != '=' || behind[1] != '"')
        return false;
    const char *value = behind + 2;
    const char *end = skip_value(value, '"');
    if (*end != '"')
        return false;
    item.name = at + 1;
    item.value = value;
    item.name_length = expected->length;
    item.value_length = static_cast<uint32_t>(end - value);
    item.name_hash = expected->hash;
    item.made_value = false;
    note_name(traits, *expected);
    last = expected;
    at = end + 1;
    return true;
}

lexed lex_end_of_tag(lexer &lex, const char *&at, bool &is_empty)
{
    is_empty = *at == '/';
    if (is_empty && *++at != '>')
        return unexpected(lex, at);
    ++at;
    return lexed::ok;
}

// The tag's attributes and its end.
lexed lex_attributes(lexer &lex, const char *&at, const char *tag, growing_array<attribute> &attributes,
                     tag_traits &traits, bool &is_empty)
{
    known_name *last = &lex.names.start;
    for (;;) {
        if (!make_room(attributes, 1))
            return lexed::no_memory;
        attribute &item = attributes.items[attributes.count];
        if (!lex_expected_attribute(at, item, traits, last)) {
            const char *before = at;
            at = skip_space(at);
            if (*at == '>' || *at == '/')
                return lex_end_of_tag(lex, at, is_empty);
            if (at == before)
                return unexpected(lex, at);
            lexed result = lex_attribute(lex, at, item, traits, last);
            if (result != lexed::ok)
                return result;
        }
        item.markup_at = static_cast<uint32_t>(item.name - tag);
        item.kind = name_kind::plain;
        ++attributes.count;
    }
}

// The lowest index in a run of attributes with one hash whose name an earlier one has, or `repeated`.
size_t repeated_in_run(const attribute *items, uint64_t *begin, uint64_t *end, size_t repeated)
{
    const auto name = [items](uint64_t key) { return name_of(items[static_cast<uint32_t>(key)]); };
    if (end - begin < 2)
        return repeated;
    if (name(begin[0]) == name(begin[1]))
        return std::min<size_t>(repeated, static_cast<uint32_t>(begin[1]));
    std::sort(begin, end, [name](uint64_t a, uint64_t b) {
        int by_name = name(a).compare(name(b));
        return by_name != 0 ? by_name < 0 : a < b;
    });
    for (uint64_t *at = begin + 1; at < end; ++at) {
        if (name(at[-1]) == name(at[0]))
            repeated = std::min<size_t>(repeated, static_cast<uint32_t>(*at));
    }
    return repeated;
}

// Index of the first attribute whose name an earlier one has, or `count`. Few are compared with each
// other; many are sorted by their hashes, and by name where these agree, so that no choice of names makes
// this slow.
lexed find_repeated(const attribute *items, size_t count, size_t &repeated)
{
    repeated = count;
    if (count <= few_attributes) {
        for (size_t i = 1; i < count && repeated == count; ++i) {
            for (size_t k = 0; k < i; ++k) {
                if (items[i].name_hash == items[k].name_hash && name_of(items[i]) == name_of(items[k]))
                    repeated = i;
            }
        }
        return lexed::ok;
    }
    growing_array<uint64_t> keys;  // hash, then index
    if (count > UINT32_MAX || !make_room(keys, count))
        return lexed::no_memory;
    for (size_t i = 0; i < count; ++i)
        keys.items[i] = uint64_t{items[i].name_hash} << 32 | i;
    std::sort(keys.items, keys.items + count);
    for (size_t start = 0, i = 1; i <= count; ++i) {
        if (i < count && keys.items[i] >> 32 == keys.items[start] >> 32)
            continue;
        repeated = repeated_in_run(items, keys.items + start, keys.items + i, repeated);
        start = i;
    }
    release_array(keys);
    return lexed::ok;
}

// White space becomes blanks, line ends one blank each, references what they stand for; none of this
// is longer than what it replaces.
lexed rewrite_value(lexer &lex, const char *tag, text_stack &texts, attribute &item)
{
    char *made = push_octets(texts, item.value_length);
    if (made == nullptr)
        return lexed::no_memory;
    char *to = made;
    const char *end = item.value + item.value_length;
    for (const char *at = item.value; at < end;) {
        if (*at == '&') {
            const char *start = at;
            reference found;
            lex_reference(lex, at, found);
            // As on the other road, an unknown entity is the tag's fault.
            if (found.character == no_character)
                return fail_at(lex, found.error == XML_ERROR_UNDEFINED_ENTITY ? tag : start, found.error);
            to = put_character(to, found.character);
        } else if (is_white_space(*at)) {
            at += at[0] == '\r' && at[1] == '\n' ? 2 : 1;
            *to++ = ' ';
        } else {
            *to++ = *at++;
        }
    }
    item.value = made;
    auto length = static_cast<size_t>(to - made);
    shrink_last(texts, item.value_length - length);
    item.value_length = static_cast<uint32_t>(length);
    return lexed::ok;
}

lexed finish_attributes(lexer &lex, const char *tag, text_stack &texts, attribute *items, size_t count,
                        const tag_traits &traits)
{
    size_t repeated = count;
    if (traits.may_repeat || count > few_attributes) {
        lexed result = find_repeated(items, count, repeated);
        if (result != lexed::ok)
            return result;
    }
    for (size_t i = 0; traits.has_rewrites && i < repeated; ++i) {
        lexed result = items[i].made_value ? rewrite_value(lex, tag, texts, items[i]) : lexed::ok;
        if (result != lexed::ok)
            return result;
    }
    return repeated < count ? fail_at(lex, items[repeated].name, XML_ERROR_DUPLICATE_ATTRIBUTE) : lexed::ok;
}

}  // namespace

lexed lex_start_tag(lexer &lex, const char *&at, const event_reader &reader, event &out, bool &is_empty)
{
    growing_array<attribute> &attributes = *reader.attributes;
    const size_t before = attributes.count;
    const char *tag = at;
    tag_traits traits;
    is_empty = false;
    ++at;
    lexed result = lex_name(lex, at, traits.has_colons);
    if (result != lexed::ok)
        return result;
    out.name = std::string_view(tag + 1, static_cast<size_t>(at - tag) - 1);
    result = lex_attributes(lex, at, tag, attributes, traits, is_empty);
    const size_t count = attributes.count - before;
    bool is_plain = !traits.has_rewrites && !traits.may_repeat && count <= few_attributes;
    if (result == lexed::ok && !is_plain)
        result = finish_attributes(lex, tag, *reader.texts, attributes.items + before, count, traits);
    if (result != lexed::ok) {
        attributes.count = before;
        return result;
    }
    out.name_hash = name_hash(out.name.data(), out.name.size());
    out.attribute_count = count;
    out.markup = std::string_view(tag, static_cast<size_t>(at - tag));
    out.has_colons = traits.has_colons;
    out.has_declarations = traits.has_declarations;
    out.stable = false;
    return lexed::ok;
}

}  // namespace inv::xml
