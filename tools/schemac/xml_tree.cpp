#include "xml_tree.h"

#include <algorithm>

#include "inv_platform/xml_runtime.h"

namespace schemac
{
namespace
{

// The part of XML Schema that inventory schemas are written in.
constexpr const char *known_elements[] = {
    "element",     "annotation",  "documentation",  "attribute",     "enumeration", "simpleType",
    "restriction", "complexType", "complexContent", "extension",     "sequence",    "length",
    "minLength",   "maxLength",   "appinfo",        "sharedElement", "schema"};

bool has_text(const std::string &name)
{
    return name == "documentation" || name == "sharedElement";
}

bool read_attributes(xb_context *ctx, xml_node &node)
{
    int32_t count = rtXmlpGetAttributeCount(ctx);
    for (int32_t i = 0; i < count; ++i) {
        const char *value = nullptr;
        size_t length = 0;
        if (rtXmlpSelectAttribute(ctx, i) < 0)
            return false;
        const char *name = rtXmlpGetAttributeName(ctx, &length);
        std::string key(name, length);
        if (rtXmlpDecXmlStr(ctx, &value) < 0)
            return false;
        node.attributes.emplace_back(std::move(key), value);
    }
    rtXmlpHideAttributes(ctx);
    return count >= 0;
}

// The runtime's element tables know no namespaces, but its start-tag match goes by local name and
// leaves a tag of another name where it is: so the known names are tried in turn.
bool enter_any(xb_context *ctx, std::string &name)
{
    for (const char *known : known_elements) {
        int32_t status = rtXmlpMatchStartTag(ctx, known, -1);
        if (status == XB_OK)
            name = known;
        if (status != XB_E_ROOT_MISMATCH)
            return status == XB_OK;
    }
    return false;
}

bool read_node(xb_context *ctx, xml_node &node)
{
    if (!enter_any(ctx, node.name) || !read_attributes(ctx, node))
        return false;
    if (has_text(node.name)) {
        const char *text = nullptr;
        if (rtXmlpDecXmlStr(ctx, &text) < 0)
            return false;
        node.text = text;
        return rtXmlpMatchEndTag(ctx, -1) == XB_OK;
    }
    for (;;) {
        int32_t status = rtXmlpMatchEndTag(ctx, -1);
        if (status != XB_E_ELEMENT_UNEXPECTED)
            return status == XB_OK;
        if (!read_node(ctx, node.children.emplace_back()))
            return false;
    }
}

// Where reading stopped, by recording a failure there.
std::string place_of_failure(xb_context *ctx, const std::string &file)
{
    xb_error error = {};
    rtxErrSetData(ctx, XB_E_MALFORMED, "schemac", 0);
    if (!rtxErrGet(ctx, 0, &error))
        return file + ": cannot be read";
    return file + ":" + std::to_string(error.line) + ":" + std::to_string(error.column) +
           ": cannot be read (schema elements other than those schemac knows?)";
}

}  // namespace

bool read_tree(const std::string &file, xml_node &root, std::string &message)
{
    xb_context ctx = {};
    bool read = false;
    if (rtXmlInitContext(&ctx) == XB_OK) {
        read = rtxStreamFileCreateReader(&ctx, file.c_str()) == XB_OK && rtXmlpCreateReader(&ctx) == XB_OK &&
               read_node(&ctx, root);
        if (!read)
            message = place_of_failure(&ctx, file);
    }
    rtxFreeContext(&ctx);
    return read;
}

std::string attribute(const xml_node &node, const char *name, const std::string &fallback)
{
    for (const auto &[key, value] : node.attributes) {
        if (key == name)
            return value;
    }
    return fallback;
}

const xml_node *child(const xml_node &node, const char *name)
{
    auto found = std::find_if(node.children.begin(), node.children.end(),
                              [&](const xml_node &c) { return c.name == name; });
    return found == node.children.end() ? nullptr : &*found;
}

}  // namespace schemac
