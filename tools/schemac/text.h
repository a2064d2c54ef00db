// Text of a generated file under construction.
#ifndef SCHEMAC_TEXT_H
#define SCHEMAC_TEXT_H

#include <string>
#include <vector>

namespace schemac
{

inline constexpr size_t line_width = 110;

// First line of every generated file, as a C comment.
std::string heading();

// Include guard and C linkage around a header's declarations.
std::string header_begin(const std::string &guard, const std::vector<std::string> &includes);
std::string header_end(const std::string &guard);

// A comment in C style, broken into lines.
std::string comment(const std::string &text);

// "{.a = 1, .b = 2}," as one table row, broken where the line is full.
std::string table_row(const std::vector<std::string> &fields);

// The words joined, each line begun with the indent and kept within the width.
std::string wrapped(const std::string &first_indent, const std::string &indent,
                    const std::vector<std::string> &words);

// The same for a text, broken at its blanks.
std::string wrapped(const std::string &first_indent, const std::string &indent, const std::string &text);

// A function definition; the body's lines without indent.
std::string function(const std::string &head, const std::vector<std::string> &body);

std::string quoted(const std::string &text);

}  // namespace schemac

#endif
