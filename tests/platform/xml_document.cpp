#include "platform/xml_document.h"

#include "xml/context.h"

#include <cstring>

xml_document::xml_document(std::string_view document, size_t chunk_size, bool slow_road) : text(document)
{
    if (rtXmlInitContext(&ctx) != XB_OK)
        abort();
    if (chunk_size != 0)
        ctx.state->chunk_size = chunk_size;
    ctx.state->slow_road = slow_road;
    rtxStreamMemoryCreateReader(&ctx, text.data(), text.size());
    if (rtXmlpCreateReader(&ctx) != XB_OK)
        abort();
}

xml_document::xml_document(std::string_view document, std::initializer_list<const char *> path)
    : xml_document(document)
{
    for (const char *name : path) {
        if (rtXmlpMatchStartTag(&ctx, name, -1) != XB_OK)
            abort();
    }
}

xml_document::~xml_document()
{
    rtxFreeContext(&ctx);
}

element_table::element_table(std::initializer_list<const char *> names)
{
    int32_t index = 0;
    for (const char *name : names) {
        rows.push_back({name, static_cast<uint16_t>(strlen(name)), index, {}});
        sequence.push_back({index, static_cast<int32_t>(names.size()) - index, -1});
        ++index;
    }
}

int32_t next_of(xml_document &document, const element_table &table, bool group)
{
    return rtXmlpGetNextSeqElemID(&document.ctx, table.rows.data(), table.row_count(), table.sequence.data(),
                                  0, -1, group);
}

int32_t enter(xml_document &document, const char *name)
{
    return rtXmlpMatchStartTag(&document.ctx, name, -1);
}

int32_t leave(xml_document &document)
{
    return rtXmlpMatchEndTag(&document.ctx, -1);
}

xb_error report(xml_document &document, int32_t status)
{
    rtxErrSetNewData(&document.ctx, status, "test", 1);
    xb_error error = {};
    rtxErrGet(&document.ctx, rtxErrGetCount(&document.ctx) - 1, &error);
    return error;
}

std::vector<std::string> parameters_of(const xb_error &error)
{
    return {error.parameters, error.parameters + error.parameter_count};
}

std::string place_of(const xb_error &error)
{
    return std::to_string(error.line) + ":" + std::to_string(error.column);
}
