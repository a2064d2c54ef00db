// The list of layouts names every record of the public headers, with every member.
#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <string>
#include <vector>

#include "support/declared_members.h"

namespace
{

// "record" and "record.member", in the order of the list.
std::vector<std::string> listed_names()
{
    std::vector<std::string> names;
    std::ifstream list(INV_SOURCE_DIR "/tests/abi/record_layouts.txt");
    std::string record;
    for (std::string line; std::getline(list, line);) {
        if (line.starts_with('#'))
            continue;
        std::string name = std::regex_replace(line, std::regex(R"(^ *(\w+).*$)"), "$1");
        if (!line.starts_with(' '))
            record = name;
        names.push_back(line.starts_with(' ') ? record + '.' + name : record);
    }
    return names;
}

// The same from the headers of a folder.
std::vector<std::string> declared_names(const std::string &folder)
{
    std::vector<std::string> names;
    std::string code = public_headers_without_comments(folder);
    static const std::regex record(R"(struct\s+\w+\s*\{([^}]*)\}\s*(\w+);)");
    static const std::regex member(R"((\w+)(\s*\[\w*\]|\s*:\s*\d+)?\s*;)");
    for (std::sregex_iterator each(code.begin(), code.end(), record), last; each != last; ++each) {
        names.push_back((*each)[2]);
        std::string body = (*each)[1];
        for (std::sregex_iterator at(body.begin(), body.end(), member); at != last; ++at)
            names.push_back(std::string((*each)[2]) + '.' + std::string((*at)[1]));
    }
    return names;
}

TEST(RecordList, names_every_record_and_member_of_the_public_headers)
{
    std::vector<std::string> declared = declared_names("/shared_pkg/common/schema/parser/include/inv_parser");
    std::vector<std::string> platform = declared_names("/platform/include/inv_platform");
    declared.insert(declared.end(), platform.begin(), platform.end());
    ASSERT_GT(declared.size(), 500u);
    EXPECT_EQ(listed_names(), declared);
}

}  // namespace
