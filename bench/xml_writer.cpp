#include "xml_writer.h"

namespace inv_bench
{
namespace
{

void end_start_tag(xml_writer &out)
{
    if (out.tag_open)
        out.text += '>';
    out.tag_open = false;
}

void new_line(xml_writer &out)
{
    if (!out.indented)
        return;
    out.text += '\n';
    out.text.append(2 * std::size_t{out.depth}, ' ');
}

}  // namespace

void open_element(xml_writer &out, std::string_view name)
{
    end_start_tag(out);
    new_line(out);
    out.text += '<';
    out.text += name;
    out.tag_open = true;
    ++out.depth;
}

void attribute(xml_writer &out, std::string_view name, std::string_view value)
{
    out.text += ' ';
    out.text += name;
    out.text += "=\"";
    out.text += value;
    out.text += '"';
}

void attribute(xml_writer &out, std::string_view name, std::int64_t value)
{
    attribute(out, name, std::string_view{std::to_string(value)});
}

void element(xml_writer &out, std::string_view name, std::string_view value)
{
    end_start_tag(out);
    new_line(out);
    out.text += '<';
    out.text += name;
    out.text += '>';
    out.text += value;
    out.text += "</";
    out.text += name;
    out.text += '>';
}

void element(xml_writer &out, std::string_view name, std::int64_t value)
{
    element(out, name, std::string_view{std::to_string(value)});
}

void hex_element(xml_writer &out, std::string_view name, std::uint32_t value, unsigned digits)
{
    constexpr char hex_digits[] = "0123456789ABCDEF";
    std::string text(digits, '0');
    for (unsigned i = digits; i-- > 0; value >>= 4)
        text[i] = hex_digits[value & 15];
    element(out, name, std::string_view{text});
}

void close_element(xml_writer &out, std::string_view name)
{
    --out.depth;
    if (out.tag_open) {
        out.text += "/>";
        out.tag_open = false;
        return;
    }
    new_line(out);
    out.text += "</";
    out.text += name;
    out.text += '>';
}

}  // namespace inv_bench
