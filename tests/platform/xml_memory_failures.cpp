#include "platform/xml_document.h"
#include "support/counting_memory.h"
#include "xml/context.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace inv::xml;

namespace
{

struct small_document {
    std::string text;
    size_t chunk_size;
    int32_t status;  // that reading it ends with
    uint32_t items = 5;
};

std::string document_with(const std::string &in_front, const std::string &reference,
                          const std::string &behind)
{
    return in_front +
           "<r xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' xmlns:p='u' xsi:type='T' a='1' p:b=' 2 "
           "'>\n"
           "<v>12</v><s>some " +
           reference + " text</s><h>00ff</h>\r\n<h>0102030405</h><any><x y='z'>w</x><![CDATA[]]></any></r>" +
           behind;
}

std::string many(const std::string &what, size_t count)
{
    std::string text;
    for (size_t i = 0; i < count; ++i)
        text += what;
    return text;
}

std::string attributes(size_t count)
{
    std::string text;
    for (size_t i = 0; i < count; ++i)
        text += " a" + std::to_string(i) + "='1'";
    return text;
}

// Every buffer grows at each of the places that write to it: what an item needs is more than all before it.
std::string growing_document(const std::string &in_front)
{
    return in_front +
           "<r xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' xmlns:p='u' xsi:type='T' a='1'>" +
           "<s>" + many("a", 300) + "<!-- -->b</s><s>x<![CDATA[" + many("c", 1000) + "]]></s><s>" +
           many("d", 3000) + "<![CDATA[e]]></s><s>&amp;" + many("f", 10000) + "</s><s>" + many("g", 30000) +
           "&amp;</s><s>" + many("h", 100000) + "\r\n</s><s" + attributes(100) + " long='" +
           many("z", 200000) + "'>i</s><h>" + many("0f", 20000) + "</h><any>" + many("j", 300) + "<" +
           many("k", 2000) + "/></any><any>123" + many("<l>m</l>", 40) + "</any>" + many("<v>1</v>", 1100) +
           "</r>";
}

constexpr uint32_t growing_items = 10 + 1100;

// By way of expat, and in place: within one piece of the document and in many.
const small_document small_documents[] = {
    {document_with("<!DOCTYPE r [<!ENTITY e 'entity'><!ATTLIST r d CDATA 'default'>]>", "&e;", ""), 4096,
     XB_OK},
    {document_with("", "&amp;", ""), 4096, XB_OK},
    {document_with("", "&amp;", "<!-- -->"), 1, XB_OK},
    {document_with("", std::string(10000, 'x'), ""), 64, XB_OK},
    {document_with("", "&amp;", "x y"), 16, XB_E_MALFORMED},
    {growing_document("<!DOCTYPE r>"), 1 << 20, XB_OK, growing_items},
    {growing_document(""), 1 << 20, XB_OK, growing_items},
    {document_with("", "&amp;", "\njunk"), 4096, XB_E_MALFORMED},
};

const xb_type_name_row types[] = {{"T", 1}};

// The furthest place that has been read.
uint64_t furthest;

int32_t noted(xb_context *ctx, int32_t status)
{
    if (status >= 0)
        furthest = std::max(furthest, ctx->state->reader.place.offset);
    return status;
}

int32_t walk_attributes(xb_context *ctx, xb_data_list *declarations)
{
    int32_t status = rtXmlpGetXmlnsAttrs(ctx, declarations);
    if (status == XB_OK)
        status = rtXmlpGetXSITypeIndex(ctx, types, 1);
    for (int32_t i = 0; status == XB_OK && i < rtXmlpGetAttributeCount(ctx); ++i) {
        char *text = nullptr;
        status = rtXmlpSelectAttribute(ctx, i);
        if (status == XB_OK)
            status = rtXmlpDecDynUTF8Str(ctx, &text);
        rtxErrAddStrParm(ctx, "note");
        rtxErrSetNewData(ctx, XB_E_ATTRIBUTE_UNKNOWN, "walk", 1);
    }
    rtXmlpHideAttributes(ctx);
    return status;
}

int32_t decode_item(xb_context *ctx, int32_t index)
{
    int32_t number = 0;
    const char *text = nullptr;
    xb_octets octets = {};
    char *any = nullptr;
    switch (index) {
    case 0:
        return rtXmlpDecInt(ctx, &number);
    case 1:
        return rtXmlpDecXmlStr(ctx, &text);
    case 2:
        return rtXmlpDecDynHexStr(ctx, &octets);
    default:
        return rtXmlpDecAny(ctx, &any);
    }
}

int32_t walk_elements(xb_context *ctx, xb_data_list *list)
{
    const element_table table({"v", "s", "h", "any"});
    for (;;) {
        int32_t index = noted(ctx, rtXmlpGetNextSeqElemID(ctx, table.rows.data(), table.row_count(),
                                                          table.sequence.data(), 0, -1, false));
        if (index == XB_END_OF_CONTENT)
            return rtXmlpMatchEndTag(ctx, -1);
        int32_t status = index < 0 ? index : noted(ctx, decode_item(ctx, index));
        if (status == XB_OK)
            status = noted(ctx, rtXmlpMatchEndTag(ctx, -1));
        if (status == XB_OK && rtxDListAppend(ctx, list, ctx) == nullptr)
            status = XB_E_NO_MEMORY;
        if (status != XB_OK)
            return status;
    }
}

int32_t walk_document(xb_context *ctx, const small_document &document)
{
    xb_data_list declarations = {};
    xb_data_list items = {};
    ctx->state->chunk_size = document.chunk_size;
    rtxStreamMemoryCreateReader(ctx, document.text.data(), document.text.size());
    int32_t status = rtXmlpCreateReader(ctx);
    if (status == XB_OK)
        status = noted(ctx, rtXmlpMatchStartTag(ctx, "r", -1));
    if (status == XB_OK)
        status = walk_attributes(ctx, &declarations);
    if (status == XB_OK)
        status = walk_elements(ctx, &items);
    if (status != XB_OK)
        return rtxErrSetData(ctx, status, "walk", 2);
    EXPECT_EQ(declarations.count, 2U);
    EXPECT_EQ(items.count, document.items);
    return XB_OK;
}

position place_in(std::string_view text, uint64_t offset)
{
    position place = {1, 1, offset};
    for (char c : text.substr(0, offset)) {
        place.column = c == '\n' ? 1 : place.column + 1;
        place.line += c == '\n';
    }
    return place;
}

std::string readable(const position &place)
{
    return std::to_string(place.line) + ":" + std::to_string(place.column) + "+" +
           std::to_string(place.offset);
}

struct outcome {
    int32_t status;
    position place;
    bool failed;  // a request did
};

// Walks the document with the n-th request failing; 0: none.
outcome walk_with_failure(const small_document &document, uint64_t n, bool all_after)
{
    uint64_t live = counting_memory::live();
    counting_memory::fail_at(n, all_after);
    xb_context ctx = {};
    furthest = 0;
    outcome found = {rtXmlInitContext(&ctx), {1, 1, 0}, false};
    if (found.status == XB_OK) {
        found.status = walk_document(&ctx, document);
        found.place = error_place(*ctx.state, found.status);
    }
    found.failed = counting_memory::failed();
    counting_memory::reset();
    rtxFreeContext(&ctx);
    EXPECT_EQ(counting_memory::live(), live) << "request " << n;
    return found;
}

// Walks the document with each request failing in turn; each walk that ends for want of memory says a place
// of the document that is not in front of what has been read.
void walk_with_each_failure(const small_document &document, bool all_after)
{
    const outcome whole = walk_with_failure(document, 0, false);
    ASSERT_EQ(whole.status, document.status);
    outcome found = {XB_OK, {}, true};
    uint64_t n = 1;
    for (; found.failed; ++n) {
        SCOPED_TRACE("request " + std::to_string(n) + " of " + document.text.substr(0, 60));
        found = walk_with_failure(document, n, all_after);
        const bool is_whole = found.status == whole.status && !(found.failed && all_after);
        EXPECT_TRUE(is_whole || found.status == XB_E_NO_MEMORY) << found.status;
        EXPECT_EQ(readable(found.place),
                  readable(is_whole ? whole.place : place_in(document.text, found.place.offset)));
        EXPECT_GE(found.place.offset, furthest);
        EXPECT_LE(found.place.offset, document.text.size());
    }
    EXPECT_GT(n, 10U);
}

TEST(XmlMemoryFailures, every_single_failing_request_is_survived_without_a_leak)
{
    for (const small_document &document : small_documents)
        walk_with_each_failure(document, false);
}

TEST(XmlMemoryFailures, memory_that_stays_out_ends_the_walk_with_no_memory)
{
    for (const small_document &document : small_documents)
        walk_with_each_failure(document, true);
}

}  // namespace
