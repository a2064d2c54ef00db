#include "fast_tokens.h"

#include <cstring>

namespace inv::xml
{

void end_with(fast_source &source, int32_t status, const char *at, std::string_view reason)
{
    source.where = part::over;
    source.ending = {};
    source.ending.kind = status == XB_OK ? event_kind::end_of_document : event_kind::failure;
    source.ending.status = status;
    source.ending.reason = reason;
    source.ending.place.offset = offset_of(source.lex.view, at);
    locate(source.lex.view, source.ending.place);
}

void end_with(fast_source &source, XML_Error error, const char *at)
{
    const XML_LChar *text = XML_ErrorString(error);
    end_with(source, XB_E_MALFORMED, at, text == nullptr ? "" : text);
}

namespace
{

// Where the last piece begins that expat would have to see the end of: a CR might be half a line end,
// one or two brackets might begin the end of a CDATA section.
const char *last_piece(const window &view, const char *from)
{
    const char *at = view.end;
    if (at > from && at[-1] == '\r')
        return at - 1;
    for (int brackets = 0; brackets < 2 && at > from && at[-1] == ']'; ++brackets)
        --at;
    return at;
}

}  // namespace

void end_with_end(fast_source &source, XML_Error error)
{
    const window &view = source.lex.view;
    const char *cut = cut_character(source.lex);
    const char *at = source.at;
    bool is_in_data = error == XML_ERROR_UNCLOSED_CDATA_SECTION;
    if (is_in_data && view.end - at < character_data_opening) {
        is_in_data = false;
        error = XML_ERROR_UNCLOSED_TOKEN;
        cut = nullptr;  // as expat counts octets there
    }
    if (is_in_data)
        at = cut != nullptr ? cut : last_piece(view, at + character_data_opening);
    else if (error == XML_ERROR_NO_ELEMENTS && view.end > view.octets && view.end[-1] == '\r')
        at = view.end - 1;
    end_with(source, cut != nullptr ? XML_ERROR_PARTIAL_CHAR : error, at);
}

bool read_more(fast_source &source)
{
    window &view = source.lex.view;
    if (!source.reader.keep(source.reader.owner)) {
        end_with(source, XB_E_NO_MEMORY, source.at, {});
        return false;
    }
    auto behind_run = source.at - source.run;
    refill_result result = refill(view, source.run);
    source.at = source.run + behind_run;
    if (result == refill_result::more)
        return true;
    if (result == refill_result::no_memory)
        end_with(source, XB_E_NO_MEMORY, source.at, {});
    else if (view.read_error != 0)
        end_with(source, XB_E_FILE_READ, source.at,
                 strerror_r(view.read_error, source.reason, sizeof source.reason));
    return false;
}

}  // namespace inv::xml
