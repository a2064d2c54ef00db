#include "xml/window.h"

#include "support/counting_memory.h"
#include "support/document_generator.h"

#include <gtest/gtest.h>
#include <string>

using namespace inv::xml;
using namespace inv_testing;

namespace
{

std::string random_lines(random_source &random)
{
    static constexpr std::string_view pieces[] = {"\n",
                                                  "\r",
                                                  "\r\n",
                                                  "\r\r\n\n",
                                                  "x",
                                                  "some text",
                                                  "\xC3\xBC",
                                                  "\xE2\x82\xAC",
                                                  "\xF0\x9F\x98\x80",
                                                  "\t",
                                                  "0123456789012345678901234567890123456789"};
    std::string text;
    for (size_t count = draw_below(random, 200); count > 0; --count)
        text += pieces[draw_below(random, std::size(pieces))];
    return text;
}

// From the document's start on, octet by octet. `first_column` is 0 in front of a byte order mark.
position slow_place(std::string_view text, size_t offset, uint64_t first_column)
{
    position place = {1, first_column, offset};
    for (size_t i = 0; i < offset; ++i) {
        if (text[i] == '\n' || (text[i] == '\r' && text.substr(i + 1, 1) != "\n"))
            place = {place.line + 1, 1, offset};
        else if ((static_cast<unsigned char>(text[i]) & 0xC0) != 0x80)
            ++place.column;
    }
    return place;
}

struct reading {
    input in;
    window view;

    reading(std::string_view text, size_t chunk_size)
    {
        in.open = true;
        in.octets = text.data();
        in.progress.size = text.size();
        EXPECT_TRUE(open_window(view, in, chunk_size));
    }
    ~reading()
    {
        close_window(view);
    }
    std::string_view content() const
    {
        return std::string_view(view.octets, static_cast<size_t>(view.end - view.octets));
    }
};

// Places in any order, some far apart.
void compare_places(reading &r, std::string_view text, uint64_t first_column, random_source &random)
{
    for (size_t count = draw_below(random, 6); count > 0; --count) {
        size_t offset = r.view.start.offset + draw_below(random, r.content().size() + 1);
        // What follows a CR at the window's end decides whether it ends a line.
        bool is_open = offset > 0 && offset < text.size() && offset == offset_of(r.view, r.view.end) &&
                       text[offset - 1] == '\r';
        if (is_open)
            continue;
        position found = {0, 0, offset};
        locate(r.view, found);
        position expected = slow_place(text, offset, first_column);
        ASSERT_EQ(found.offset, expected.offset);
        ASSERT_EQ(found.line, expected.line) << "at " << offset;
        ASSERT_EQ(found.column, expected.column) << "at " << offset;
    }
}

TEST(XmlWindow, lines_and_columns_are_those_of_a_slow_count_wherever_the_window_stands)
{
    random_source random{1};
    for (int i = 0; i < 3000 && !HasFailure(); ++i) {
        const bool has_mark = one_in(random, 5);
        const std::string text = (has_mark ? "\xEF\xBB\xBF" : "") + random_lines(random);
        reading r(text, 1 + draw_below(random, 100));
        const uint64_t first_column = has_mark ? 0 : 1;
        r.view.start.column = r.view.found.column = first_column;
        size_t kept_offset = 0;
        for (bool more = true; more && !HasFailure();) {
            compare_places(r, text, first_column, random);
            // The place that is kept never goes back.
            size_t kept_at = kept_offset - r.view.start.offset;
            kept_at += draw_below(random, r.content().size() - kept_at + 1);
            kept_offset = r.view.start.offset + kept_at;
            const char *keep = r.view.octets + kept_at;
            more = refill(r.view, keep) == refill_result::more;
            ASSERT_EQ(offset_of(r.view, keep), kept_offset);
            ASSERT_EQ(r.content(), std::string_view(text).substr(r.view.start.offset, r.content().size()));
            ASSERT_EQ(r.view.start.line, slow_place(text, r.view.start.offset, first_column).line);
            ASSERT_EQ(r.view.start.column, slow_place(text, r.view.start.offset, first_column).column);
        }
        ASSERT_TRUE(r.view.at_end);
        compare_places(r, text, first_column, random);
    }
}

TEST(XmlWindow, zeros_follow_the_data_at_all_times)
{
    const std::string text(10000, 'x');
    reading r(text, 333);
    for (bool more = true; more;) {
        for (size_t i = 0; i < window_padding; ++i)
            ASSERT_EQ(r.view.end[i], '\0');
        const char *keep = r.view.end;
        more = refill(r.view, keep) == refill_result::more;
    }
}

TEST(XmlWindow, what_is_kept_doubles_at_least_with_each_refill)
{
    const std::string text(100000, 'x');
    reading r(text, 1);
    const char *keep = r.view.octets;
    for (size_t expected = 1; !r.view.at_end; expected *= 2) {
        refill(r.view, keep);
        ASSERT_GE(r.content().size(), std::min(expected, text.size()));
        ASSERT_EQ(keep, r.view.octets);
    }
    EXPECT_EQ(r.content(), text);
}

TEST(XmlWindow, does_not_grow_while_nothing_is_kept)
{
    const std::string text(1 << 20, 'x');
    reading r(text, 4096);
    const char *keep = r.view.octets;
    refill(r.view, keep);
    const size_t capacity = r.view.capacity;
    while (!r.view.at_end) {
        keep = r.view.end;
        refill(r.view, keep);
    }
    EXPECT_EQ(r.view.capacity, capacity);
}

TEST(XmlWindow, the_end_and_a_failure_of_the_input_are_told_apart)
{
    reading r("ab", 100);
    const char *keep = r.view.octets;
    EXPECT_EQ(refill(r.view, keep), refill_result::more);
    EXPECT_FALSE(r.view.at_end);
    EXPECT_EQ(refill(r.view, keep), refill_result::end_of_input);
    EXPECT_TRUE(r.view.at_end);
    EXPECT_EQ(r.view.read_error, 0);

    reading broken("", 100);
    broken.in.descriptor = 1 << 20;  // none that is open
    keep = broken.view.octets;
    EXPECT_EQ(refill(broken.view, keep), refill_result::end_of_input);
    EXPECT_EQ(broken.view.read_error, EBADF);
}

TEST(XmlWindow, that_cannot_grow_keeps_what_it_has)
{
    const std::string text(20000, 'x');
    reading r(text, 4096);
    const char *keep = r.view.octets;
    ASSERT_EQ(refill(r.view, keep), refill_result::more);
    const std::string before(r.content());
    counting_memory::fail_at(1, true);
    refill_result result = refill_result::more;
    while (result == refill_result::more && !r.view.at_end)
        result = refill(r.view, keep);
    counting_memory::fail_at(0);
    EXPECT_EQ(result, refill_result::no_memory);
    EXPECT_TRUE(r.content().starts_with(before));
}

TEST(XmlWindow, that_cannot_grow_leaves_what_is_kept_where_it_is_to_be_found)
{
    const std::string text = std::string(1000, 'x') + std::string(20000, 'y');
    reading r(text, 4096);
    const char *keep = r.view.octets;
    refill_result result = refill(r.view, keep);
    keep += 1000;
    counting_memory::fail_at(1, true);
    while (result == refill_result::more && !r.view.at_end) {
        result = refill(r.view, keep);
        ASSERT_EQ(offset_of(r.view, keep), 1000U);
        EXPECT_EQ(*keep, 'y');
        for (size_t i = 0; i < window_padding; ++i)
            ASSERT_EQ(r.view.end[i], '\0') << i;
    }
    counting_memory::fail_at(0);
    EXPECT_EQ(result, refill_result::no_memory);
    EXPECT_EQ(r.view.start.offset, 1000U);
}

}  // namespace
