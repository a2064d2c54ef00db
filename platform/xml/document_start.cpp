#include "document_start.h"

#include "characters.h"

#include <algorithm>
#include <strings.h>

namespace inv::xml
{

namespace
{

constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";
// Room for the longest declaration that is plain, with some white space.
constexpr ptrdiff_t start_octets = 512;

bool take(std::string_view &text, std::string_view wanted)
{
    if (!text.starts_with(wanted))
        return false;
    text.remove_prefix(wanted.size());
    return true;
}

void take_space(std::string_view &text)
{
    text.remove_prefix(std::min(text.find_first_not_of(white_space), text.size()));
}

// name = "value", white space in front of it included.
bool take_assignment(std::string_view &text, std::string_view name, std::string_view &value)
{
    std::string_view rest = text;
    take_space(rest);
    if (rest.size() == text.size() || !take(rest, name))
        return false;
    take_space(rest);
    if (!take(rest, "="))
        return false;
    take_space(rest);
    std::string_view quote = rest.substr(0, 1);
    if (quote != "\"" && quote != "'")
        return false;
    size_t length = rest.find(quote, 1);
    if (length == std::string_view::npos)
        return false;
    value = rest.substr(1, length - 1);
    text = rest.substr(length + 1);
    return true;
}

bool is_utf8(std::string_view name)
{
    constexpr std::string_view utf8 = "UTF-8";
    return name.size() == utf8.size() && strncasecmp(name.data(), utf8.data(), utf8.size()) == 0;
}

// From behind the "<?xml" on.
bool take_plain_declaration(std::string_view &text)
{
    std::string_view version, encoding, standalone;
    if (!take_assignment(text, "version", version) || version != "1.0")
        return false;
    if (take_assignment(text, "encoding", encoding) && !is_utf8(encoding))
        return false;
    if (take_assignment(text, "standalone", standalone) && standalone != "yes" && standalone != "no")
        return false;
    take_space(text);
    return take(text, "?>");
}

}  // namespace

lexed lex_document_start(lexer &lex, const char *&at)
{
    const window &view = lex.view;
    if (view.end - at < start_octets && !view.at_end)
        return lexed::need_more;
    std::string_view text(at, static_cast<size_t>(std::min(view.end - at, start_octets)));
    if (take(text, byte_order_mark))
        lex.view.start = lex.view.found = {1, 0, 0};
    bool is_declared = text.starts_with("<?xml") && text.size() > 5 && is_white_space(text[5]);
    if (is_declared) {
        text.remove_prefix(5);
        if (!take_plain_declaration(text))
            return fail_at(lex, at);
    }
    // Zero octets are UTF-16 or UTF-32, or no XML at all.
    bool is_plain = !text.empty() && (text[0] == '<' || is_white_space(text[0])) &&
                    text.substr(0, 4).find('\0') == std::string_view::npos;
    if (!is_plain)
        return fail_at(lex, at);
    at = text.data();
    return lexed::ok;
}

}  // namespace inv::xml
