// Counts what one open asks for: the octets of records, tree nodes and index nodes, and of decoded data. The
// linker puts the functions below in front of the library's own (see CMakeLists.txt), so that nothing of how
// the memory is got, kept and rounded counts.
#include "child.h"
#include "our_open.h"

#include "inv_platform/xml_runtime.h"

#include "heap.h"

#include <cstdio>
#include <cstring>
#include <string_view>

namespace
{

std::size_t record_octets;
std::size_t decoded_octets;
const void *last_text;  // the newest text and its size, as long as it can be taken back
std::size_t last_text_octets;

void count_text(const char *text)
{
    last_text = text;
    last_text_octets = std::strlen(text) + 1;
    decoded_octets += last_text_octets;
}

}  // namespace

extern "C" {

void *__real__ZN3inv14record_requestEm(std::size_t size);
void *__real_rtxMemHeapAlloc(xb_context *ctx, std::size_t size);
void __real_rtxMemHeapFreePtr(xb_context *ctx, void *block);
xb_data_node *__real_rtxDListAppend(xb_context *ctx, xb_data_list *list, void *data);
int32_t __real_rtXmlpDecXmlStr(xb_context *ctx, const char **text);
int32_t __real_rtXmlpDecDynUTF8Str(xb_context *ctx, char **text);
bool __real__ZN3inv3xml11store_valueERNS0_4heapERK12xb_plain_rowSt17basic_string_viewIcSt11char_traitsIcEEbPv(
    inv::xml::heap &memory, const xb_plain_row &row, std::string_view text, bool is_padded, void *to);
xb_data_node *__real__ZN3inv3xml11heap_appendERNS0_4heapER12xb_data_listPv(inv::xml::heap &from,
                                                                           xb_data_list &list, void *data);

// inv::record_request(size_t), seen from its callers.
void *__wrap__ZN3inv14record_requestEm(std::size_t size)
{
    record_octets += size;
    return __real__ZN3inv14record_requestEm(size);
}

void *__wrap_rtxMemHeapAlloc(xb_context *ctx, std::size_t size)
{
    decoded_octets += size;
    return __real_rtxMemHeapAlloc(ctx, size);
}

// Tokens are decoded to a text that goes when it has been looked up.
void __wrap_rtxMemHeapFreePtr(xb_context *ctx, void *block)
{
    if (block != nullptr && block == last_text)
        decoded_octets -= last_text_octets;
    last_text = nullptr;
    __real_rtxMemHeapFreePtr(ctx, block);
}

xb_data_node *__wrap_rtxDListAppend(xb_context *ctx, xb_data_list *list, void *data)
{
    decoded_octets += sizeof(xb_data_node);
    return __real_rtxDListAppend(ctx, list, data);
}

int32_t __wrap_rtXmlpDecXmlStr(xb_context *ctx, const char **text)
{
    const int32_t status = __real_rtXmlpDecXmlStr(ctx, text);
    if (status >= 0)
        count_text(*text);
    return status;
}

int32_t __wrap_rtXmlpDecDynUTF8Str(xb_context *ctx, char **text)
{
    const int32_t status = __real_rtXmlpDecDynUTF8Str(ctx, text);
    if (status >= 0)
        count_text(*text);
    return status;
}
// inv::xml::store_value(): plain values go straight from the document into records; texts and octets of any
// length go into the heap.
bool __wrap__ZN3inv3xml11store_valueERNS0_4heapERK12xb_plain_rowSt17basic_string_viewIcSt11char_traitsIcEEbPv(
    inv::xml::heap &memory, const xb_plain_row &row, std::string_view text, bool is_padded, void *to)
{
    const bool is_stored =
        __real__ZN3inv3xml11store_valueERNS0_4heapERK12xb_plain_rowSt17basic_string_viewIcSt11char_traitsIcEEbPv(
            memory, row, text, is_padded, to);
    if (is_stored && row.kind == XB_PLAIN_TEXT)
        decoded_octets += text.size() + 1;
    if (is_stored && row.kind == XB_PLAIN_OCTETS)
        decoded_octets += text.size() / 2;
    return is_stored;
}

// inv::xml::heap_append(): beside rtxDListAppend() plain texts of a list are appended by it.
xb_data_node *__wrap__ZN3inv3xml11heap_appendERNS0_4heapER12xb_data_listPv(inv::xml::heap &from,
                                                                           xb_data_list &list, void *data)
{
    decoded_octets += sizeof(xb_data_node) + std::strlen(static_cast<const char *>(data)) + 1;
    return __real__ZN3inv3xml11heap_appendERNS0_4heapER12xb_data_listPv(from, list, data);
}
}

namespace
{

// Every entity has a record and a node at the least; fewer octets than that were not all counted.
bool is_plausible(inv_xml_handle *card)
{
    sch_eid_type *eids = nullptr;
    uint32_t entities = 0;
    if (inv_parser_get_eid_tree(card, ORVL_ENTITY_OWNER_TYPE_ALL, nullptr, &eids, &entities) != 0)
        return false;
    inv_parser_free_eid_tree(eids);
    return record_octets >= entities * (sizeof(sch_base_entity_type) + sizeof(eid_chain_node)) &&
           decoded_octets >= entities;
}

}  // namespace

int main(int argc, char **argv)
{
    inv_xml_handle *card = argc == 2 ? inv_bench::open_card(argv[1]) : nullptr;
    if (card == nullptr) {
        std::fprintf(stderr, "inv_bench_count: the document did not open\n");
        return 1;
    }
    // A query asks for no records of the file.
    if (!is_plausible(card)) {
        std::fprintf(stderr, "inv_bench_count: the library asks for memory in ways that are not counted\n");
        return 1;
    }
    inv_bench::print_figures({{"octets", static_cast<double>(record_octets + decoded_octets)},
                              {"records", static_cast<double>(record_octets)},
                              {"decoded", static_cast<double>(decoded_octets)}});
    return 0;
}
