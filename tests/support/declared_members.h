// What the public headers declare, read from their text: tables about records are checked against it.
#ifndef TESTS_SUPPORT_DECLARED_MEMBERS_H
#define TESTS_SUPPORT_DECLARED_MEMBERS_H

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

// The headers of a folder below the sources, in the order of their names.
inline std::string public_headers_without_comments(
    const std::string &folder = "/shared_pkg/common/schema/parser/include/inv_parser")
{
    std::set<std::filesystem::path> headers;
    for (const auto &entry : std::filesystem::directory_iterator(INV_SOURCE_DIR + folder))
        headers.insert(entry.path());
    std::stringstream text;
    for (const auto &header : headers)
        text << std::ifstream(header).rdbuf();
    std::string code;
    bool comment = false;
    std::string all = text.str();
    for (size_t i = 0; i < all.size(); ++i) {
        if (all.compare(i, 2, "/*") == 0 || all.compare(i, 2, "*/") == 0)
            comment = all[i++] == '/';
        else if (!comment)
            code += all[i];
    }
    return code;
}

// The members of sch_<record>_type in their order; none when no header declares it.
inline std::vector<std::string> declared_members(const std::string &record)
{
    static const std::string code = public_headers_without_comments();
    size_t end = code.find("} sch_" + record + "_type;");
    size_t begin = end == std::string::npos ? end : code.rfind('{', end);
    if (begin == std::string::npos)
        return {};
    std::vector<std::string> names;
    std::string body = code.substr(begin + 1, end - begin - 1);
    static const std::regex member(R"((\w+)(\s*\[\d+\]|\s*:\s*\d+)?\s*;)");
    for (std::sregex_iterator each(body.begin(), body.end(), member), last; each != last; ++each)
        names.push_back((*each)[1]);
    return names;
}

#endif
