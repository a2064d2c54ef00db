// A document of another kind than a module that is not valid opens with an empty tree, at a bounded cost.
#include "hostile/document_cost.h"
#include "hostile/hostile_texts.h"
#include "hostile/nothing_left.h"

#include <cstring>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace
{

using namespace hostile;

// A valid document of each, in tests/documents/data.
struct kind {
    const char *root;
    const char *file;
    uint32_t pi_hw_type;
};

constexpr kind kinds[] = {{"chassis", "chassis.xml", 1},
                          {"fanTray", "fan_tray.xml", 7},
                          {"powerShelf", "power_shelf.xml", 8},
                          {"pem", "pem.xml", 9},
                          {"optics", "optics.xml", 12}};

void PrintTo(const kind &each, std::ostream *out)
{
    *out << each.root;
}

// What is added to a valid document.
struct attack {
    const char *name;
    std::string (*prolog)(const char *root);
    std::string (*attributes)();
    std::string (*content)();
};

std::string nothing()
{
    return "";
}

std::string no_prolog(const char *)
{
    return "";
}

constexpr attack attacks[] = {
    {"laughs_in_an_attribute",
     [](const char *root) {
         std::string prolog = laughs_of("lol");
         return prolog.replace(prolog.find("module"), strlen("module"), root);
     },
     [] { return std::string(" description='&e9;'"); }, nothing},
    {"one_attribute_many_times", no_prolog, [] { return repeated(" a='1'", million / 10); }, nothing},
    {"unknown_children", no_prolog, nothing, [] { return repeated("<x/>", million / 10); }},
    {"tags_that_do_not_match", no_prolog, nothing,
     [] { return repeated("<!-- -->", million / 10) + "</x>"; }},
};

std::string valid_text(const kind &of)
{
    std::ifstream file(std::string(INV_SOURCE_DIR "/tests/documents/data/") + of.file);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

std::string attacked(const kind &of, const attack &by)
{
    const std::string begin = std::string("<") + of.root, end = std::string("</") + of.root;
    std::string text = valid_text(of);
    text.insert(text.rfind(end), by.content());
    text.insert(text.find(begin) + begin.size(), by.attributes());
    return text.insert(text.find(begin), by.prolog(of.root));
}

class HostileKinds : public testing::TestWithParam<kind>
{
};

INSTANTIATE_TEST_SUITE_P(All, HostileKinds, testing::ValuesIn(kinds),
                         [](const auto &about) { return std::string(about.param.root); });

TEST_P(HostileKinds, open_with_an_empty_tree_at_a_bounded_cost)
{
    document plain = make_document(plain_text(uint64_t{8} << 20));
    const cost of_plain = cost_of(plain, line_card, nullptr);
    remove_document(&plain);
    ASSERT_GT(of_plain.entities, 0);
    for (const attack &each : attacks) {
        SCOPED_TRACE(each.name);
        document hostile = make_document(attacked(GetParam(), each));
        const cost found = cost_of(hostile, GetParam().pi_hw_type, nullptr);
        remove_document(&hostile);
        EXPECT_EQ(found.entities, 0);
        expect_nothing_left(found);
        if (is_instrumented())
            continue;
        EXPECT_LE(found.seconds, of_plain.seconds * 16);
        EXPECT_LE(found.peak_octets, of_plain.peak_octets * 4);
    }
}

// It is what was added that the texts above are refused for.
TEST_P(HostileKinds, open_with_their_tree_where_nothing_was_added)
{
    document valid = make_document(attacked(GetParam(), {"none", no_prolog, nothing, nothing}));
    const cost found = cost_of(valid, GetParam().pi_hw_type, nullptr);
    remove_document(&valid);
    EXPECT_GT(found.entities, 1);
    expect_nothing_left(found);
}

}  // namespace
