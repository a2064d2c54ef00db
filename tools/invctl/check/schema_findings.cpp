#include "schema_findings.h"

#include <algorithm>
#include <string>
#include <vector>

#include "checked_document.h"
#include "nearest.h"
#include "output.h"

namespace
{

using namespace invctl::check;

constexpr schema_row rows[] = {
    {XB_E_MALFORMED, {"not-well-formed", severity::error, "The document is not well-formed XML"}},
    {XB_E_DEPTH, {"nested-too-deep", severity::error, "Elements are nested more than 128 deep"}},
    {XB_E_UNDECLARED_PREFIX, {"prefix-undeclared", severity::error, "A namespace prefix is not declared"}},
    {XB_E_ROOT_MISMATCH, {"root-unknown", severity::error, "The root element is no inventory document's"}},
    {XB_E_ELEMENT_UNEXPECTED,
     {"element-unexpected", severity::error, "An element is unknown, or not at its place"}},
    {XB_E_ELEMENT_MISSING, {"element-missing", severity::error, "A required element is missing"}},
    {XB_E_TEXT_UNEXPECTED,
     {"text-unexpected", severity::error, "Text stands between elements, or an element in a value"}},
    {XB_E_NOT_EMPTY, {"element-not-empty", severity::error, "An element that must be empty has content"}},
    {XB_E_UNKNOWN_TYPE, {"type-unknown", severity::error, "xsi:type names no type that may stand there"}},
    {XB_E_ATTRIBUTE_UNKNOWN, {"attribute-unknown", severity::error, "An element has no such attribute"}},
    {XB_E_ATTRIBUTE_MISSING, {"attribute-missing", severity::error, "A required attribute is missing"}},
    {XB_E_UNKNOWN_TOKEN, {"token-unknown", severity::error, "A value is none of the tokens of its kind"}},
    {XB_E_BAD_INTEGER, {"integer-malformed", severity::error, "A value is no integer"}},
    {XB_E_OUT_OF_RANGE, {"number-out-of-range", severity::error, "A number is beyond the range of its kind"}},
    {XB_E_BAD_BOOLEAN, {"boolean-malformed", severity::error, "A value is no boolean"}},
    {XB_E_BAD_DECIMAL, {"decimal-malformed", severity::error, "A value is no decimal number"}},
    {XB_E_BAD_HEX, {"octets-malformed", severity::error, "A value is no string of hexadecimal octets"}},
    {XB_E_CONSTRAINT,
     {"count-wrong", severity::error, "A value has a wrong number of octets, or an element is needed once"}},
};

// One recorded error with everything around it.
struct failure {
    xb_error error;
    xb_error_details details;

    std::string parameter(uint32_t index) const
    {
        return index < error.parameter_count ? invctl::printable(error.parameters[index]) : "";
    }
    std::string last_parameter() const
    {
        return error.parameter_count == 0 ? "" : parameter(error.parameter_count - 1);
    }
};

std::string tag(const std::string &name)
{
    return name.starts_with('/') ? "the end of <" + name.substr(1) + ">" : "<" + name + ">";
}

std::string element_of(const failure &failed)
{
    return failed.details.element == nullptr ? "the document"
                                             : "<" + invctl::printable(failed.details.element) + ">";
}

// Where a value stands: in an attribute (the last parameter names it) or in an element.
std::string holder_of(const failure &failed)
{
    if (failed.details.at_attribute)
        return "attribute " + failed.last_parameter() + " of " + element_of(failed);
    return element_of(failed);
}

std::string value_text(const failure &failed, const char *what)
{
    const std::string value = failed.parameter(0);
    return holder_of(failed) + (value.empty() ? " is empty, which is " : ": \"" + value + "\" is ") + what;
}

std::string count_text(const failure &failed)
{
    const std::string type = failed.parameter(0);
    const std::string count = failed.parameter(1);
    // Of elements the parameter is type.element.count.
    const size_t begin = type.find('.');
    if (begin != std::string::npos)
        return element_of(failed) + " lacks <" + type.substr(begin + 1, type.rfind('.') - begin - 1) +
               ">, which is needed at least once";
    return holder_of(failed) + " has " + count + (count == "1" ? " octet" : " octets");
}

// What stands there may be as wrong as what does not.
std::string missing_text(const failure &failed)
{
    const std::string expected = tag(failed.parameter(0));
    const std::string there = tag(failed.parameter(1));
    if (failed.details.misplaced != XB_NAME_FITS)
        return there + " is not expected here in " + element_of(failed) + ", where " + expected +
               " is still missing";
    return expected + " is missing in " + element_of(failed) + " before " + there;
}

// Reasons come from the reader; some of them begin this way.
std::string malformed_text(const std::string &reason)
{
    return reason.starts_with("not well-formed") ? reason : "not well-formed: " + reason;
}

std::string text_of(const failure &failed)
{
    switch (failed.error.status) {
    case XB_E_MALFORMED:
        return malformed_text(failed.parameter(0));
    case XB_E_DEPTH:
        return "elements are nested more than " + std::to_string(XB_MAX_DEPTH) + " deep";
    case XB_E_UNDECLARED_PREFIX:
        return "the namespace prefix of " + failed.last_parameter() + " is not declared";
    case XB_E_ROOT_MISMATCH:
        return tag(failed.parameter(0)) + " is the root of no inventory document";
    case XB_E_ELEMENT_UNEXPECTED:
        return tag(failed.parameter(0)) + " is not expected here in " + element_of(failed);
    case XB_E_ELEMENT_MISSING:
        return missing_text(failed);
    case XB_E_TEXT_UNEXPECTED:
        return failed.details.at_tag ? "no element may stand in the value of " + element_of(failed)
                                     : "no text may stand between the elements of " + element_of(failed);
    case XB_E_NOT_EMPTY:
        return element_of(failed) + " must be empty";
    case XB_E_UNKNOWN_TYPE:
        return "\"" + failed.parameter(0) + "\" is no type that " + element_of(failed) + " may have";
    case XB_E_ATTRIBUTE_UNKNOWN:
        return element_of(failed) + " has no attribute " + failed.last_parameter();
    case XB_E_ATTRIBUTE_MISSING:
        return element_of(failed) + " lacks the attribute " + failed.last_parameter();
    case XB_E_UNKNOWN_TOKEN:
        return value_text(failed, "no token of this kind");
    case XB_E_BAD_INTEGER:
        return value_text(failed, "no integer");
    case XB_E_OUT_OF_RANGE:
        return value_text(failed, "out of range");
    case XB_E_BAD_BOOLEAN:
        return value_text(failed, "no boolean");
    case XB_E_BAD_DECIMAL:
        return value_text(failed, "no decimal number");
    case XB_E_BAD_HEX:
        return value_text(failed, "no string of hexadecimal octets");
    case XB_E_CONSTRAINT:
        return count_text(failed);
    default:
        return rtxErrText(failed.error.status);
    }
}

// A long list helps nobody.
constexpr size_t most_listed = 12;

std::string listed(const std::vector<std::string> &words)
{
    std::string list;
    for (size_t i = 0; i < words.size() && i < most_listed; ++i)
        list += (i == 0 ? "" : ", ") + words[i];
    return words.size() > most_listed ? list + ", ..." : list;
}

// What was written where one of the words belongs.
std::string written_word(const failure &failed)
{
    switch (failed.error.status) {
    case XB_E_ELEMENT_MISSING:
        return failed.parameter(1);
    case XB_E_ATTRIBUTE_UNKNOWN:
        return failed.last_parameter();
    default:
        return failed.parameter(0);
    }
}

std::string lower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return text;
}

// The word that was meant; one that differs in case only is the nearest of all.
std::string near_word(const std::string &written, const std::vector<std::string> &words)
{
    for (const std::string &word : words)
        if (written != word && lower(written) == lower(word))
            return word;
    return invctl::nearest_word(written, words);
}

std::string misplacement_hint(const failure &failed)
{
    switch (failed.details.misplaced) {
    case XB_NAME_ELSEWHERE:
        return "it belongs elsewhere, or is given already;";
    case XB_NAME_FOREIGN:
        return "elements of inventory documents have no namespace;";
    case XB_NAME_FITS:
    case XB_NAME_UNKNOWN:
        break;
    }
    return "";
}

std::string hint_from_words(const failure &failed)
{
    const std::vector<std::string> words(failed.details.words,
                                         failed.details.words + failed.details.word_count);
    const bool is_element = failed.error.status == XB_E_ELEMENT_MISSING;
    const bool may_be_misspelt = failed.details.misplaced == XB_NAME_UNKNOWN ||
                                 (failed.details.misplaced == XB_NAME_FITS && !is_element);
    const std::string near = may_be_misspelt ? near_word(written_word(failed), words) : "";
    const bool of_kind = failed.error.status == XB_E_UNKNOWN_TOKEN || failed.error.status == XB_E_BAD_BOOLEAN;
    std::string hint = near.empty() ? misplacement_hint(failed) : "did you mean " + near + "?";
    const bool says_all = words.size() == 1 && (!near.empty() || words[0] == failed.parameter(0));
    if (!says_all && (words.size() <= most_listed || near.empty()))
        hint += (hint.empty() ? "" : " ") + std::string(of_kind ? "allowed: " : "expected: ") + listed(words);
    return hint;
}

std::string hint_of(const failure &failed)
{
    if (failed.error.status == XB_E_TEXT_UNEXPECTED)
        return failed.details.at_tag ? "" : "only elements, comments and white space may stand there";
    if (failed.details.has_range)
        return "allowed: " + std::to_string(failed.details.lowest) + " to " +
               std::to_string(failed.details.highest);
    if (failed.details.word_count > 0)
        return hint_from_words(failed);
    switch (failed.error.status) {
    case XB_E_CONSTRAINT:
        if (failed.parameter(0).find("Hex32") != std::string::npos)
            return "give 4 octets: 8 hexadecimal digits";
        if (failed.parameter(0).find("Hex8") != std::string::npos)
            return "give 1 octet: 2 hexadecimal digits";
        return "";
    case XB_E_BAD_HEX:
        return "an even number of the digits 0 to 9 and A to F";
    case XB_E_BAD_DECIMAL:
        return "digits, with a point where there is a fraction, and no exponent";
    case XB_E_UNDECLARED_PREFIX:
        return "inventory documents need no prefix but xsi";
    default:
        return "";
    }
}

const check_row *row_of(int32_t status)
{
    for (const schema_row &each : rows)
        if (each.status == status)
            return &each.row;
    return nullptr;
}

// The place of these is an attribute's or a tag's, whatever is selected.
bool is_value_fault(const failure &failed)
{
    const int32_t status = failed.error.status;
    return !failed.details.at_attribute && !failed.details.at_tag && status != XB_E_UNKNOWN_TYPE &&
           status != XB_E_UNDECLARED_PREFIX;
}

}  // namespace

namespace invctl::check
{

std::span<const schema_row> schema_rows()
{
    return rows;
}

void report_schema_findings(checked_document &document, finding_list &found)
{
    failure failed = {};
    for (uint32_t index = 0; rtxErrGet(&document.context, index, &failed.error); ++index) {
        failed.details = {};
        rtxErrGetDetails(&document.context, index, &failed.details);
        found.current = row_of(failed.error.status);
        if (found.current == nullptr)
            continue;
        document.has_schema_findings = true;
        const entity *of = entity_of(document, failed.details.item);
        finding &added = report(found, document, of, nullptr, text_of(failed));
        added.hint = hint_of(failed);
        added.status = failed.error.status;
        added.where = {failed.error.line, failed.error.column, failed.error.offset};
        if (added.where.line != 0)
            show_source(document, added, is_value_fault(failed));
        if (failed.error.status == XB_E_MALFORMED)
            added.length = 1;
    }
}

}  // namespace invctl::check
