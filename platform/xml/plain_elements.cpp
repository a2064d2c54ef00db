// The short ways for elements that hold nothing but plain text, which most of a document's do: from its
// octets to the record in one step, without an event. They leave the reader as if it had read them one
// by one; everything else, mistakes above all, is left where it stands for the long way.
//
// Comparisons need no look at where the window's data end: the zeros behind them are equal to no name.
#include "characters.h"
#include "inv_platform/name_hash.h"
#include "name_lookup.h"
#include "plain_store.h"
#include "reading.h"
#include "scan.h"

#include <new>

using namespace inv::xml;

namespace
{

struct plain_leaf {
    std::string_view name;
    std::string_view text;
    const char *behind = nullptr;  // its end tag
};

// What follows the name: >text</name>, everything plain. Inline, as is find_tag(): each is a few steps that
// are taken for every leaf.
[[gnu::always_inline]] inline bool read_rest_of_leaf(const char *at, plain_leaf &leaf)
{
    if (*at != '>')
        return false;
    const size_t length = leaf.name.size();
    const char *text = at + 1;
    const char *tag = *text == '<' ? text : skip_text(text);
    if (tag[0] != '<' || tag[1] != '/' || !same_octets(leaf.name.data(), tag + 2, length) ||
        tag[2 + length] != '>')
        return false;
    leaf.text = std::string_view(text, static_cast<size_t>(tag - text));
    leaf.behind = tag + length + 3;
    return true;
}

// The next '<', behind white space; or another octet.
[[gnu::always_inline]] inline const char *find_tag(const char *at)
{
    return is_white_space(*at) ? skip_blanks(at) : at;
}

bool read_leaf(const char *tag, plain_leaf &leaf)
{
    if (tag[0] != '<' || !is_start_of_name(tag[1]))
        return false;
    const char *end = skip_name(tag + 2);
    leaf.name = std::string_view(tag + 1, static_cast<size_t>(end - tag) - 1);
    return read_rest_of_leaf(end, leaf);
}

// Elements may be read past the reader, as it were, from here on; null: not now.
const char *lent_content(const reader &r)
{
    bool can_read = !r.ahead && r.failure == XB_OK && r.leaf != leaf_state::open && r.tags.depth > 0 &&
                    r.tags.depth < XB_MAX_DEPTH && !has_default_namespace(r.tags.scope) &&
                    r.source.lend != nullptr;
    return can_read ? r.source.lend(r.source.state) : nullptr;
}

// A plain leaf whose start tag is the event ahead.
bool leaf_is_ahead(const reader &r, plain_leaf &leaf)
{
    // Only a start tag that is ahead has a slot for certain.
    if (!r.ahead || r.leaf != leaf_state::ahead || r.text_significant || r.tags.depth == 0 ||
        r.failure != XB_OK)
        return false;
    const element &tag = r.tags.elements[r.tags.depth];
    leaf.name = tag.name;
    leaf.text = r.leaf_text;
    return tag.kind == name_kind::plain && tag.attribute_begin == tag.attribute_end &&
           tag.binding_begin == tag.binding_end;
}

struct element_table {
    const xb_element_row *rows;
    const xb_sequence_row *sequence;
    int32_t row_count;
};

int32_t find_element(const element_table &table, int32_t position, std::string_view name)
{
    const int64_t first = table.sequence[position].first;
    const int64_t stop = first + table.sequence[position].count;
    return find_name(table.rows, table.row_count, name, inv::name_hash(name.data(), name.size()),
                     [first, stop](const xb_element_row &each) {
                         return each.content_index >= first && each.content_index < stop;
                     });
}

// The row that was found at this position last.
row_guess &guess_for(reader &r, const element_table &table, int32_t position)
{
    const auto mixed =
        reinterpret_cast<uintptr_t>(table.rows) / sizeof(xb_element_row) + static_cast<uintptr_t>(position);
    row_guess &guess = r.guesses[mixed % guess_count];
    if (guess.rows != table.rows || guess.sequence != table.sequence || guess.row_count != table.row_count ||
        guess.position != position)
        guess = {table.rows, table.sequence, table.row_count, position, -1};
    return guess;
}

// Reads the leaf and finds its row, -1 when it is no plain leaf or has none.
int32_t read_row(reader &r, const element_table &table, int32_t position, const char *tag, plain_leaf &leaf)
{
    row_guess &guess = guess_for(r, table, position);
    if (guess.row >= 0 && tag[0] == '<') {
        const xb_element_row &row = table.rows[guess.row];
        leaf.name = std::string_view(tag + 1, row.name_length);
        if (same_octets(row.name, tag + 1, row.name_length) && tag[1 + row.name_length] == '>')
            return read_rest_of_leaf(tag + 1 + row.name_length, leaf) ? guess.row : -1;
    }
    if (!read_leaf(tag, leaf))
        return -1;
    const int32_t row = find_element(table, position, leaf.name);
    if (row >= 0)
        guess.row = row;
    return row;
}

bool append_text(heap &memory, const xb_plain_row &row, std::string_view text, void *record)
{
    auto *list = reinterpret_cast<xb_data_list *>(static_cast<char *>(record) + row.offset);
    char *copy = heap_copy_padded_text(memory, text);
    return copy != nullptr && heap_append(memory, *list, copy) != nullptr;
}

// How far the short way has come.
struct progress {
    int32_t reached;        // position in the content
    const char *at;         // in the document
    const char *last_read;  // the tag that the reader would have read last
};

// One item of a list of texts. The end of the list shows only in what follows it, and what is not plain
// has to be found there by the long way: the item is left to it, too.
bool store_item(heap &memory, const xb_plain_row &row, const plain_leaf &leaf, int32_t index, void *record,
                progress &done)
{
    plain_leaf next;
    const char *tag = find_tag(leaf.behind);
    if (!read_leaf(tag, next) || !append_text(memory, row, leaf.text, record))
        return false;
    done = {next.name == leaf.name ? index : index + 1, leaf.behind, tag};
    return true;
}

bool store_leaf(heap &memory, const xb_plain_row &row, const plain_leaf &leaf, int32_t index, void *record,
                progress &done)
{
    if (row.kind == XB_PLAIN_TEXT_LIST)
        return store_item(memory, row, leaf, index, record, done);
    if (!store_plain(memory, row, leaf.text, true, record))
        return false;
    done = {index + 1, leaf.behind, leaf.text.data() + leaf.text.size()};
    return true;
}

// The leaf whose start tag is the event ahead.
int32_t decode_leaf_ahead(xb_context_state &state, const element_table &table, const xb_plain_row *plain,
                          int32_t position, const plain_leaf &leaf, void *record)
{
    reader &r = state.reader;
    const int32_t row = find_element(table, position, leaf.name);
    const int32_t index = row < 0 ? -1 : table.rows[row].content_index;
    if (index < 0 || !store_plain(state.memory, plain[index], leaf.text, true, record))
        return position;
    r.place = r.leaf_end;
    r.ahead = false;
    r.leaf = leaf_state::none;
    r.has_text = r.text_significant = r.text_taken = false;
    r.can_push_back = r.group_mode = false;
    r.selected = no_attribute;
    return index + 1;
}

}  // namespace

int32_t rtXmlpDecPlainElements(xb_context *ctx, const xb_element_row *table, int32_t row_count,
                               const xb_sequence_row *sequence, const xb_plain_row *plain, int32_t position,
                               int32_t position_count, void *record)
{
    reader &r = ctx->state->reader;
    const element_table elements = {table, sequence, row_count};
    plain_leaf leaf;
    // An armed context wants the place of each item.
    if (ctx->state->armed != nullptr)
        return position;
    if (position < position_count && leaf_is_ahead(r, leaf))
        position = decode_leaf_ahead(*ctx->state, elements, plain, position, leaf, record);
    progress done = {position, lent_content(r), nullptr};
    if (done.at == nullptr)
        return position;
    while (done.reached < position_count) {
        const int32_t row = read_row(r, elements, done.reached, find_tag(done.at), leaf);
        const int32_t index = row < 0 ? 0 : table[row].content_index;
        if (row < 0 || !store_leaf(ctx->state->memory, plain[index], leaf, index, record, done))
            break;
    }
    if (done.last_read != nullptr) {
        r.source.take_back(r.source.state, done.at);
        r.place = r.source.place_of(r.source.state, done.last_read);
        r.can_push_back = r.group_mode = false;
        r.selected = no_attribute;
    }
    return done.reached;
}

int32_t rtXmlpSeePlainElement(xb_context *ctx, const xb_element_row *table, int32_t row_count,
                              const xb_sequence_row *sequence, int32_t position)
{
    reader &r = ctx->state->reader;
    const element_table elements = {table, sequence, row_count};
    plain_leaf leaf;
    int32_t row = -1;
    if (leaf_is_ahead(r, leaf)) {
        row = find_element(elements, position, leaf.name);
        r.place = r.ahead_place;
    } else {
        const char *at = lent_content(r);
        if (at == nullptr)
            return XB_E_BAD_STATE;
        at = find_tag(at);
        row = read_row(r, elements, position, at, leaf);
        if (row < 0 && leaf.behind == nullptr)
            return XB_E_BAD_STATE;
        r.place = r.source.place_of(r.source.state, at);
    }
    r.group_mode = false;
    r.selected = no_attribute;
    return row < 0 ? XB_END_OF_CONTENT : table[row].content_index;
}
