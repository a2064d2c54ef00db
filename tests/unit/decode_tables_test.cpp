// The tables that are computed from item rows.
#include <gtest/gtest.h>

#include "decode/tables.h"

using namespace inv::decode;

namespace
{

constexpr item required_then_optional[] = {
    {.name = "a", .occurs = occurrence::required},
    {.name = "b", .occurs = occurrence::optional},
    {.name = "c", .occurs = occurrence::repeated},
    {.name = "d", .occurs = occurrence::optional},
};

constexpr item optional_then_required[] = {
    {.name = "first", .occurs = occurrence::optional},
    {.name = "second", .occurs = occurrence::counted},
    {.name = "third", .occurs = occurrence::required},
    {.name = "fourth", .occurs = occurrence::required},
};

template <size_t N>
void expect_rows(const std::array<xb_sequence_row, N> &rows, const int32_t (&expected)[N][3])
{
    for (size_t i = 0; i < N; ++i) {
        EXPECT_EQ(rows[i].first, expected[i][0]) << i;
        EXPECT_EQ(rows[i].count, expected[i][1]) << i;
        EXPECT_EQ(rows[i].end, expected[i][2]) << i;
    }
}

TEST(DecodeTables, a_position_reaches_up_to_the_next_required_row_or_the_end)
{
    expect_rows(sequence_rows(required_then_optional), {{0, 1, -1}, {1, 3, -1}, {2, 2, -1}, {3, 1, -1}});
    expect_rows(sequence_rows(optional_then_required), {{0, 3, -1}, {1, 2, -1}, {2, 1, -1}, {3, 1, -1}});
}

TEST(DecodeTables, the_last_required_row_is_known)
{
    EXPECT_EQ(last_required_of(required_then_optional), 0);
    EXPECT_EQ(last_required_of(optional_then_required), 3);
    EXPECT_TRUE(any_counted(optional_then_required));
    EXPECT_FALSE(any_counted(required_then_optional));
}

TEST(DecodeTables, inherited_rows_map_to_group_0_and_leading_extension_rows_to_group_1)
{
    constexpr auto rows =
        joined(base_group_rows(required_then_optional), leading_rows<optional_then_required>());
    static_assert(rows.size() == 7, "four inherited, three that can begin the extension");
    for (size_t i = 0; i < rows.size(); ++i)
        EXPECT_EQ(rows[i].content_index, i < 4 ? 0 : 1) << rows[i].name;
    EXPECT_STREQ(rows[6].name, "third");
    EXPECT_EQ(rows[6].name_length, 5);
}

TEST(DecodeTables, presence_bits_run_through_octets_from_the_lowest_bit)
{
    EXPECT_EQ(bit(16, 0).offset, 16u);
    EXPECT_EQ(bit(16, 0).mask, 1);
    EXPECT_EQ(bit(16, 7).mask, 0x80);
    EXPECT_EQ(bit(16, 8).offset, 17u);
    EXPECT_EQ(bit(16, 8).mask, 1);
}

}  // namespace
