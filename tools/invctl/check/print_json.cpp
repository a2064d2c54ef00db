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

json json_of(const finding &each)
{
    json object;
    object["code"] = each.row->code;
    object["severity"] = word_of(each.row->level);
    object["title"] = each.row->title;
    if (each.status != 0)
        object["status"] = each.status;
    object["file"] = utf8(each.file);
    if (each.where.line != 0) {
        object["line"] = each.where.line;
        if (each.where.column != 0)
            object["column"] = each.where.column;
        if (each.where.column != 0)
            object["offset"] = each.where.offset;
    }
    if (each.length != 0) {
        object["length"] = each.length;
        object["source"] = utf8(each.source);
        object["source_column"] = each.source_start;
    }
    object["text"] = utf8(each.text);
    if (!each.names.empty())
        object["entity"] = {{"names", utf8(each.names)}, {"eid", each.eid}};
    if (!each.hint.empty())
        object["hint"] = utf8(each.hint);
    return object;
}

}  // namespace

namespace invctl::check
{

std::string findings_as_json(const shown_findings &shown)
{
    json object;
    object["files"] = json::array();
    for (const std::string &file : shown.result->files)
        object["files"].push_back(utf8(file));
    object["total"] = shown.total;
    object["findings"] = json::array();
    for (const finding *each : shown.findings)
        object["findings"].push_back(json_of(*each));
    return object.dump(2) + "\n";
}

}  // namespace invctl::check
