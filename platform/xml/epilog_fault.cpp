#include "epilog_fault.h"

#include "inv_platform/system_memory.h"

#include <algorithm>

namespace inv::xml
{

namespace
{

constexpr std::string_view root = "<r/>";

}  // namespace

bool open_epilog_fault(epilog_fault &fault, const position &start)
{
    constexpr XML_Memory_Handling_Suite memory_suite = {memory::request, memory::resize, memory::release};
    fault = {XML_ParserCreate_MM("UTF-8", &memory_suite, nullptr), start};
    if (fault.parser == nullptr)
        return false;
    if (!look_for_fault(fault, root, false))
        return true;
    XML_ParserFree(fault.parser);
    fault.parser = nullptr;
    return false;
}

std::string_view whole_tokens(std::string_view octets)
{
    constexpr size_t longest_held = 1024;
    const size_t looked_at = std::min(octets.size(), longest_held);
    const size_t end = octets.substr(octets.size() - looked_at).find_last_of(" \t\n>");
    if (end != std::string_view::npos)
        return octets.substr(0, octets.size() - looked_at + end + 1);
    if (looked_at < longest_held)
        return {};
    const bool may_end_literal = octets.back() == '"' || octets.back() == '\'';
    return octets.substr(0, octets.size() - (may_end_literal ? 1 : 0));
}

bool look_for_fault(epilog_fault &fault, std::string_view octets, bool is_last)
{
    return XML_Parse(fault.parser, octets.data(), static_cast<int>(octets.size()), is_last) != XML_STATUS_OK;
}

XML_Error close_epilog_fault(epilog_fault &fault, position &place)
{
    const XML_Error error = XML_GetErrorCode(fault.parser);
    const uint64_t line = XML_GetCurrentLineNumber(fault.parser);
    const uint64_t column = XML_GetCurrentColumnNumber(fault.parser);
    const auto index = static_cast<uint64_t>(XML_GetCurrentByteIndex(fault.parser));
    if (error != XML_ERROR_NO_MEMORY) {
        place.line = fault.start.line + line - 1;
        place.column = line == 1 ? fault.start.column + column - root.size() : column + 1;
        place.offset = fault.start.offset + index - root.size();
    }
    XML_ParserFree(fault.parser);
    fault.parser = nullptr;
    return error;
}

}  // namespace inv::xml
