#include "option_values.h"

#include <algorithm>
#include <sstream>

#include "check/checks.h"
#include "check/schema_findings.h"
#include "entity_words.h"

namespace
{

std::vector<std::string> finding_codes()
{
    std::vector<std::string> codes;
    for (const invctl::check::schema_row &each : invctl::check::schema_rows())
        codes.push_back(each.row.code);
    for (const invctl::check::check &each : invctl::check::all_checks())
        codes.push_back(each.row.code);
    for (const invctl::check::catalogue_check_row &each : invctl::check::all_catalogue_checks())
        codes.push_back(each.row.code);
    return codes;
}

struct value_words {
    const char *type_name;
    std::vector<std::string> (*words)();
};

constexpr value_words value_tables[] = {
    {"TYPE", invctl::entity_types},   {"SUBTYPE", invctl::entity_subtypes},
    {"OWNER", invctl::entity_owners}, {"NODETYPE", invctl::node_types},
    {"CODE", finding_codes},
};

// Words that a type name lists itself: "i2c|pcie".
std::vector<std::string> listed_words(const std::string &type_name)
{
    std::vector<std::string> words;
    std::istringstream list(type_name);
    for (std::string word; std::getline(list, word, '|');)
        words.push_back(word);
    return words.size() > 1 ? words : std::vector<std::string>();
}

}  // namespace

namespace invctl
{

std::vector<std::string> words_of_value(const std::string &type_name)
{
    for (const value_words &table : value_tables)
        if (type_name == table.type_name)
            return table.words();
    return listed_words(type_name);
}

bool names_file(const std::string &type_name)
{
    return type_name == "FILE" || type_name == "DIR";
}

}  // namespace invctl
