#include "xml/scan.h"

#include "platform/xml_scan_functions.h"
#include "support/document_generator.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <vector>

using namespace inv_testing;

scan_functions usual_scan_functions()
{
    using namespace inv::xml;
    return {"usual",    octet_block::size, skip_blanks,  skip_white_space, skip_name,
            skip_value, skip_text,         skip_to_mark, count_octets,     count_characters};
}

namespace
{

constexpr size_t padding = 64;
const std::string_view white = " \t\r\n";

// Each search octet by octet: whether it goes on over an octet.
bool is_letter_or_digit(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

bool is_plain(char c, std::string_view stops)
{
    return static_cast<unsigned char>(c) >= 0x20 && static_cast<unsigned char>(c) < 0x80 &&
           stops.find(c) == std::string_view::npos;
}

template <typename GoesOn>
const char *model(const char *at, GoesOn goes_on)
{
    while (goes_on(*at))
        ++at;
    return at;
}

// Alike with both forms and every octet; `at` is followed by zeros in the end.
void compare_searches(const scan_functions &scan, const char *at)
{
    EXPECT_EQ(scan.skip_blanks(at), model(at, [](char c) { return c == ' ' || c == '\t' || c == '\n'; }));
    EXPECT_EQ(scan.skip_white_space(at), model(at, [](char c) { return white.find(c) != white.npos; }));
    EXPECT_EQ(scan.skip_name(at),
              model(at, [](char c) { return is_letter_or_digit(c) || c == '-' || c == '.' || c == '_'; }));
    EXPECT_EQ(scan.skip_text(at), model(at, [](char c) { return is_plain(c, "<&]"); }));
    EXPECT_EQ(scan.skip_value(at, '"'), model(at, [](char c) { return is_plain(c, "<&\""); }));
    EXPECT_EQ(scan.skip_value(at, '\''), model(at, [](char c) { return is_plain(c, "<&'"); }));
    EXPECT_EQ(scan.skip_to_mark(at, '-'), model(at, [](char c) { return is_plain(c, "-"); }));
    EXPECT_EQ(scan.skip_to_mark(at, '?'), model(at, [](char c) { return is_plain(c, "?"); }));
    EXPECT_EQ(scan.skip_to_mark(at, ']'), model(at, [](char c) { return is_plain(c, "]"); }));
}

class XmlScan : public testing::TestWithParam<scan_functions>
{
};

TEST_P(XmlScan, every_octet_stops_a_search_or_does_not_at_every_index_of_a_block)
{
    // What surrounds the octet is passed over by one of the searches each.
    for (char filler : {'a', ' ', '\n', '0', '.', '\xFF', '\x80', '\x7F'}) {
        for (int octet = 0; octet < 256; ++octet) {
            for (size_t index = 0; index < 2 * GetParam().block_size; ++index) {
                std::vector<char> data(index + 1 + 20 + padding, '\0');
                memset(data.data(), filler, index + 21);
                data[index] = static_cast<char>(octet);
                compare_searches(GetParam(), data.data());
            }
        }
        ASSERT_FALSE(HasFailure());
    }
}

// Long runs of what the searches pass over, broken by anything.
std::string random_octets(random_source &random)
{
    static constexpr std::string_view runs[] = {"    ",  "\n\t ",      "\r\n", "abcXYZ",
                                                "0-9._", "plain text", "\x7F"};
    std::string text;
    for (size_t parts = draw_below(random, 12); parts > 0; --parts) {
        for (size_t times = 1 + draw_below(random, 8); times > 0; --times)
            text += runs[draw_below(random, std::size(runs))];
        if (one_in(random, 2))
            text += static_cast<char>(draw_below(random, 256));
    }
    return text;
}

TEST_P(XmlScan, random_octets_are_searched_as_one_by_one_at_every_alignment)
{
    random_source random{1};
    for (int i = 0; i < 3000 && !HasFailure(); ++i) {
        const std::string text = random_octets(random);
        std::vector<char> data(16 + text.size() + padding, '\0');
        for (size_t alignment = 0; alignment < 16; ++alignment) {
            std::fill(data.begin(), data.end(), '\0');
            std::copy(text.begin(), text.end(), data.begin() + static_cast<ptrdiff_t>(alignment));
            compare_searches(GetParam(), data.data() + alignment);
        }
    }
}

TEST_P(XmlScan, searches_look_at_no_more_than_the_padding)
{
    // A sanitizer sees what lies beyond.
    for (size_t length = 0; length < 40; ++length) {
        for (char filler : {'a', ' '}) {
            std::vector<char> data(length + padding, '\0');
            std::fill_n(data.begin(), length, filler);
            compare_searches(GetParam(), data.data());
        }
    }
}

TEST_P(XmlScan, octets_are_counted_between_any_two_places)
{
    random_source random{2};
    for (int i = 0; i < 2000; ++i) {
        std::string text = random_octets(random);
        if (one_in(random, 50))  // more than the sums of one octet hold
            text += std::string(9000, '\n');
        const std::vector<char> data(text.begin(), text.end());
        const size_t from = draw_below(random, data.size() + 1);
        const size_t to = from + draw_below(random, data.size() - from + 1);
        for (char wanted : {'\n', '\r', '\0', '\xFF', ' '}) {
            const char *start = data.data() + from;
            const char *end = data.data() + to;
            ASSERT_EQ(GetParam().count_octets(start, end, wanted),
                      static_cast<uint64_t>(std::count(start, end, wanted)));
        }
    }
}

TEST_P(XmlScan, characters_are_counted_by_the_octets_that_begin_one)
{
    random_source random{3};
    for (int i = 0; i < 2000; ++i) {
        std::string text = one_in(random, 50) ? std::string(9000, '\x80') : std::string();
        for (size_t octets = draw_below(random, 300); octets > 0; --octets)
            text += static_cast<char>(draw_below(random, 256));
        const std::vector<char> data(text.begin(), text.end());
        const size_t from = draw_below(random, data.size() + 1);
        const char *start = data.data() + from;
        const char *end = start + draw_below(random, data.size() - from + 1);
        const auto beginnings = std::count_if(start, end, [](char c) {
            auto octet = static_cast<unsigned char>(c);
            return octet < 0x80 || octet > 0xBF;
        });
        ASSERT_EQ(GetParam().count_characters(start, end), static_cast<uint64_t>(beginnings));
    }
}

INSTANTIATE_TEST_SUITE_P(Forms, XmlScan, testing::Values(usual_scan_functions(), scan_functions_by_words()),
                         [](const auto &form) { return std::string(form.param.name); });

}  // namespace
