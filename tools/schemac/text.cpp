#include "text.h"

#include <sstream>

namespace schemac
{

std::string heading()
{
    return "/* Generated from schema/OrvelianInventory.xsd by schemac; edit the schema instead. */\n";
}

std::string header_begin(const std::string &guard, const std::vector<std::string> &includes)
{
    std::string text = heading() + "#ifndef " + guard + "\n#define " + guard + "\n\n";
    for (const std::string &include : includes)
        text += include.empty() ? "\n" : "#include " + include + "\n";
    if (!includes.empty())
        text += "\n";
    return text + "#ifdef __cplusplus\nextern \"C\" {\n#endif\n\n";
}

std::string header_end(const std::string &guard)
{
    return "\n#ifdef __cplusplus\n}\n#endif\n\n#endif /* " + guard + " */\n";
}

std::string wrapped(const std::string &first_indent, const std::string &indent,
                    const std::vector<std::string> &words)
{
    std::string text;
    std::string line = first_indent;
    bool begun = false;
    for (const std::string &word : words) {
        if (begun && line.size() + 1 + word.size() > line_width) {
            text += line + "\n";
            line = indent;
            begun = false;
        }
        line += (begun ? " " : "") + word;
        begun = true;
    }
    return text + line + "\n";
}

std::string wrapped(const std::string &first_indent, const std::string &indent, const std::string &text)
{
    std::vector<std::string> words;
    std::istringstream in(text);
    for (std::string word; in >> word;)
        words.push_back(word);
    return wrapped(first_indent, indent, words);
}

std::string comment(const std::string &text)
{
    return text.empty() ? "" : wrapped("/* ", " * ", text + " */");
}

std::string table_row(const std::vector<std::string> &fields)
{
    std::vector<std::string> words;
    for (size_t i = 0; i < fields.size(); ++i)
        words.push_back(fields[i] + (i + 1 == fields.size() ? "}," : ","));
    return wrapped("    {", "     ", words);
}

std::string function(const std::string &head, const std::vector<std::string> &body)
{
    std::string text = head + "\n{\n";
    for (const std::string &line : body)
        text += "    " + line + "\n";
    return text + "}\n\n";
}

std::string quoted(const std::string &text)
{
    return "\"" + text + "\"";
}

}  // namespace schemac
