#include "checked_document.h"

#include <algorithm>
#include <cstring>

#include "OrvelianInventorySchemaDec.h"

namespace
{

using namespace invctl::check;

// A root record in the context's heap, and what it is when the decode is over.
template <class Record, int32_t (*Decode)(xb_context *, Record *)>
void decode_root(checked_document &document)
{
    void *record = rtxMemHeapAlloc(&document.context, sizeof(Record));
    if (record == nullptr) {
        document.status = XB_E_NO_MEMORY;
        return;
    }
    memset(record, 0, sizeof(Record));
    document.status = Decode(&document.context, static_cast<Record *>(record));
    document.root = record;
}

void decode_module(checked_document &document)
{
    decode_root<xb_choice, XmlD_module>(document);
    if (document.root == nullptr)
        return;
    const auto *chosen = static_cast<const xb_choice *>(document.root);
    document.root = chosen->value;
    document.root_tag = chosen->tag;
}

struct root_row {
    const char *element;
    document_kind kind;
    void (*decode)(checked_document &);
};

constexpr root_row roots[] = {
    {"module", document_kind::module, decode_module},
    {"chassis", document_kind::chassis, decode_root<ChassisEntityType, XmlD_chassis>},
    {"powerShelf", document_kind::power_shelf, decode_root<PowerShelfType, XmlD_powerShelf>},
    {"pem", document_kind::pem, decode_root<PEMType, XmlD_pem>},
    {"fanTray", document_kind::fan_tray, decode_root<FanTrayType, XmlD_fanTray>},
    {"optics", document_kind::optics, decode_root<OpticsType, XmlD_optics>},
};

// A fresh context with the document opened, armed.
int32_t begin_reading(checked_document &document)
{
    rtxFreeContext(&document.context);
    int32_t status = rtXmlInitContext(&document.context);
    if (status == XB_OK)
        status = rtxArmContext(&document.context);
    if (status == XB_OK)
        status =
            rtxStreamMemoryCreateReader(&document.context, document.octets.data(), document.octets.size());
    return status;
}

// The root's kind by its start tag; null with the failure recorded.
const root_row *find_kind(checked_document &document)
{
    xb_context *context = &document.context;
    document.status = begin_reading(document);
    if (document.status == XB_OK)
        document.status = rtXmlpCreateReader(context);
    // The tag that does not match is left for the next try; only the last try's parameters are recorded.
    if (document.status != XB_OK)
        return nullptr;
    const char *local = nullptr;
    const char *name = nullptr;
    uint64_t offset = 0;
    int32_t tag = rtxPeekTag(context, &local, &name, &offset);
    if (tag == XB_E_NO_MEMORY) {
        document.status = tag;
        return nullptr;
    }
    for (const root_row &row : roots)
        if (tag == 1 && local != nullptr && strcmp(local, row.element) == 0)
            return &row;
    document.status = rtXmlpMatchStartTag(context, roots[0].element, -1);
    if (document.status != XB_OK)
        rtxErrSetData(context, document.status, "", 0);
    const char *names[std::size(roots)];
    std::transform(std::begin(roots), std::end(roots), names,
                   [](const root_row &row) { return row.element; });
    if (document.status == XB_E_ROOT_MISMATCH)
        rtxErrAddWords(context, names, std::size(names));
    return nullptr;
}

// ---- Source lines ------------------------------------------------------------------------------------

// How much of a long line is shown around the caret.
constexpr size_t shown_before = 120;
constexpr size_t shown_behind = 120;

bool ends_line(char c)
{
    return c == '\n' || c == '\r';
}

bool continues_character(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

uint64_t characters_of(std::string_view text)
{
    return static_cast<uint64_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return !continues_character(c); }));
}

bool is_name_end(char c)
{
    return strchr(" \t\r\n/>=<\"'", c) != nullptr;
}

size_t end_of_name(std::string_view text, size_t at)
{
    while (at < text.size() && !is_name_end(text[at]))
        ++at;
    return at;
}

// name = "value", the closing quote included.
size_t end_of_attribute(std::string_view text)
{
    size_t at = end_of_name(text, 0);
    const size_t quote = text.find_first_of("\"'>", at);
    if (quote == std::string_view::npos || text[quote] == '>')
        return at;
    const size_t end = text.find(text[quote], quote + 1);
    return end == std::string_view::npos ? text.size() : end + 1;
}

size_t end_of_value(std::string_view text)
{
    const size_t end = text.find_last_not_of(" \t", std::min(text.find('<'), text.size()) - 1);
    return end == std::string_view::npos ? 1 : end + 1;
}

// Octets of the item that stands at the head of the rest of its line.
size_t length_at(std::string_view rest, bool in_value)
{
    if (rest.empty())
        return 0;
    if (rest[0] == '<')
        return end_of_name(rest, rest.starts_with("</") ? 2 : 1);
    return in_value ? end_of_value(rest) : end_of_attribute(rest);
}

}  // namespace

namespace invctl::check
{

checked_document::~checked_document()
{
    rtxFreeContext(&context);
}

void decode_document(checked_document &document)
{
    const root_row *row = find_kind(document);
    if (row != nullptr) {
        document.kind = row->kind;
        document.root_element = row->element;
        document.status = begin_reading(document);
        if (document.status == XB_OK)
            row->decode(document);
    }
    rtxStreamClose(&document.context);
    list_entities(document);
    for (const entity &each : document.entities)
        document.by_record.emplace(each.record, &each);
}

std::optional<place> place_of(const checked_document &document, const void *item)
{
    xb_place found;
    if (document.context.state == nullptr || item == nullptr ||
        !rtxPlaceOfItem(&document.context, item, &found))
        return std::nullopt;
    return place{found.line, found.column, found.offset};
}

const entity *entity_of(const checked_document &document, const void *item)
{
    xb_place found;
    while (item != nullptr) {
        auto entry = document.by_record.find(item);
        if (entry != document.by_record.end())
            return entry->second;
        item = rtxPlaceOfItem(&document.context, item, &found) ? found.parent : nullptr;
    }
    return nullptr;
}

void show_source(const checked_document &document, finding &at, bool in_value)
{
    const std::string_view text = document.octets;
    const size_t offset = static_cast<size_t>(std::min<uint64_t>(at.where.offset, text.size()));
    size_t begin = offset;
    while (begin > 0 && !ends_line(text[begin - 1]) &&
           (offset - begin < shown_before || continues_character(text[begin])))
        --begin;
    size_t end = offset;
    while (end < text.size() && !ends_line(text[end]) &&
           (end - offset < shown_behind || continues_character(text[end])))
        ++end;
    at.source = text.substr(begin, end - begin);
    at.source_start =
        at.where.column - std::min(characters_of(text.substr(begin, offset - begin)), at.where.column - 1);
    const std::string_view rest = text.substr(offset, end - offset);
    at.length = std::max<uint64_t>(characters_of(rest.substr(0, length_at(rest, in_value))), 1);
}

}  // namespace invctl::check
