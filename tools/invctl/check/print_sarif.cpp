// SARIF 2.1.0, the exchange format of static analysis: one run of one tool, rules by code.
#include <cstring>
#include <set>

#include <nlohmann/json.hpp>

#include "output.h"
#include "print_findings.h"

namespace
{

using namespace invctl::check;
using json = nlohmann::ordered_json;

std::string utf8(const std::string &text)
{
    return invctl::valid_utf8(text.c_str());
}

// A relative reference or a file URI; everything but unreserved characters and slashes is escaped.
std::string uri_of(const std::string &file)
{
    static const char digits[] = "0123456789ABCDEF";
    if (file == "-")
        return "stdin";
    std::string uri = file.starts_with('/') ? "file://" : "";
    for (char c : file) {
        const auto octet = static_cast<unsigned char>(c);
        if (isalnum(octet) != 0 || strchr("-._~/", c) != nullptr) {
            uri += c;
        } else {
            uri += '%';
            uri += digits[octet >> 4];
            uri += digits[octet & 15];
        }
    }
    return uri;
}

json rules()
{
    json list = json::array();
    for (const check_row *row : all_rows()) {
        json rule;
        rule["id"] = row->code;
        rule["shortDescription"] = {{"text", std::string(row->title) + "."}};
        rule["defaultConfiguration"] = {{"level", word_of(row->level)}};
        list.push_back(rule);
    }
    return list;
}

size_t index_of(const check_row *wanted)
{
    const std::vector<const check_row *> rows = all_rows();
    return static_cast<size_t>(std::find(rows.begin(), rows.end(), wanted) - rows.begin());
}

json region_of(const finding &each)
{
    json region;
    region["startLine"] = each.where.line;
    if (each.where.column == 0)
        return region;
    region["startColumn"] = each.where.column;
    if (each.length != 0) {
        region["endColumn"] = each.where.column + each.length;
        region["byteOffset"] = each.where.offset;
        region["snippet"] = {{"text", utf8(each.source)}};
    }
    return region;
}

json location_of(const finding &each)
{
    json location;
    location["physicalLocation"]["artifactLocation"] = {{"uri", uri_of(each.file)}};
    if (each.where.line != 0)
        location["physicalLocation"]["region"] = region_of(each);
    if (!each.names.empty()) {
        json logical = {{"fullyQualifiedName", utf8(each.names)}, {"decoratedName", each.eid}};
        location["logicalLocations"] = json::array({logical});
    }
    return location;
}

json result_of(const finding &each)
{
    json result;
    result["ruleId"] = each.row->code;
    result["ruleIndex"] = index_of(each.row);
    result["level"] = word_of(each.row->level);
    result["message"] = {{"text", utf8(each.text)}};
    result["locations"] = json::array({location_of(each)});
    if (each.status != 0)
        result["properties"]["status"] = each.status;
    if (!each.hint.empty())
        result["properties"]["hint"] = utf8(each.hint);
    return result;
}

json invocation_of(const check_result &result)
{
    json invocation;
    invocation["executionSuccessful"] = result.troubles.empty();
    for (const std::string &trouble : result.troubles)
        invocation["toolExecutionNotifications"].push_back(
            {{"level", "error"}, {"message", {{"text", utf8(trouble)}}}});
    return invocation;
}

}  // namespace

namespace invctl::check
{

std::string findings_as_sarif(const shown_findings &shown)
{
    json run;
    run["tool"]["driver"] = {{"name", "invctl"}, {"version", INVCTL_VERSION}, {"rules", rules()}};
    run["columnKind"] = "unicodeCodePoints";
    run["invocations"] = json::array({invocation_of(*shown.result)});
    run["artifacts"] = json::array();
    // Each file once, however often it was named.
    std::set<std::string> listed;
    for (const std::string &file : shown.result->files)
        if (listed.insert(file).second)
            run["artifacts"].push_back({{"location", {{"uri", uri_of(file)}}}});
    run["results"] = json::array();
    for (const finding *each : shown.findings)
        run["results"].push_back(result_of(*each));
    json log;
    log["$schema"] = "https://json.schemastore.org/sarif-2.1.0.json";
    log["version"] = "2.1.0";
    log["runs"] = json::array({run});
    return log.dump(2) + "\n";
}

}  // namespace invctl::check
