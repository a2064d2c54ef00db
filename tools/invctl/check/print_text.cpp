#include "output.h"
#include "print_findings.h"

namespace
{

using namespace invctl::check;

// Escape sequences of terminals, or nothing.
struct paint {
    bool on;

    std::string operator()(const char *code, const std::string &text) const
    {
        return on ? std::string("\x1b[") + code + "m" + text + "\x1b[0m" : text;
    }
};

constexpr const char *bold = "1";
constexpr const char *caret_colour = "1;32";

const char *colour_of(severity level)
{
    switch (level) {
    case severity::error:
        return "1;31";
    case severity::warning:
        return "1;35";
    case severity::note:
        break;
    }
    return "1;36";
}

bool continues_character(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

// One column for each character: a hostile document cannot move the cursor.
std::string shown_source(const std::string &source)
{
    std::string text = source;
    for (char &c : text)
        if ((static_cast<unsigned char>(c) < 0x20 && c != '\t') || c == 0x7f)
            c = '?';
    return invctl::valid_utf8(text.c_str());
}

// Tabs are kept, so that the caret stands right however wide they are.
std::string caret_line(const finding &each)
{
    std::string line;
    uint64_t column = each.source_start;
    for (size_t i = 0; i < each.source.size() && column < each.where.column; ++i) {
        if (i + 1 < each.source.size() && continues_character(each.source[i + 1]))
            continue;
        line += each.source[i] == '\t' ? '\t' : ' ';
        ++column;
    }
    line.append(static_cast<size_t>(each.where.column - column), ' ');
    return line + '^' + std::string(static_cast<size_t>(each.length - 1), '~');
}

std::string place_text(const finding &each)
{
    std::string text = each.file == "-" ? "<stdin>" : invctl::printable(each.file.c_str());
    if (each.where.line != 0)
        text += ":" + std::to_string(each.where.line);
    if (each.where.line != 0 && each.where.column != 0)
        text += ":" + std::to_string(each.where.column);
    return text + ": ";
}

std::string text_of(const finding &each, const paint &in)
{
    const std::string kind = std::string(word_of(each.row->level)) + "[" + each.row->code + "]:";
    std::string text = in(bold, place_text(each)) + in(colour_of(each.row->level), kind) + " " +
                       in(bold, invctl::valid_utf8(each.text.c_str()));
    if (each.status != 0)
        text += " (status " + std::to_string(each.status) + ")";
    text += "\n";
    if (each.length != 0) {
        // A caret's line ends with the caret, and a source line of blanks only is still one.
        text += "  " + shown_source(each.source) + "\n";
        const std::string caret = caret_line(each);
        const size_t at = caret.find('^');
        text += "  " + caret.substr(0, at) + in(caret_colour, caret.substr(at)) + "\n";
    }
    if (!each.names.empty())
        text += "  in " + invctl::valid_utf8(invctl::printable(each.names.c_str()).c_str()) +
                (each.eid.empty() ? "" : " (" + each.eid + ")") + "\n";
    if (!each.hint.empty())
        text += "  hint: " + invctl::valid_utf8(each.hint.c_str()) + "\n";
    return text;
}

}  // namespace

namespace invctl::check
{

std::string findings_as_text(const shown_findings &shown, bool colour)
{
    const paint in = {colour};
    std::string text;
    for (const finding *each : shown.findings)
        text += text_of(*each, in);
    if (shown.total > shown.findings.size())
        text += std::to_string(shown.findings.size()) + " of " + std::to_string(shown.total) +
                " findings shown; --max changes that\n";
    else if (shown.total > 0)
        text += std::to_string(shown.total) + (shown.total == 1 ? " finding\n" : " findings\n");
    return text;
}

}  // namespace invctl::check
