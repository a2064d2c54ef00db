#include "inv_platform/xml_runtime.h"

#include <cstring>
#include <gtest/gtest.h>

namespace
{

constexpr xb_enum_row table[] = {
    {"A", 2, 1, 2}, {"AB", 1, 2, 1}, {"AC", 0, 2, 0}, {"B", 3, 1, 3}, {"B\xC3\xA9", 4, 3, 4},
};
constexpr uint32_t row_count = sizeof table / sizeof *table;

int32_t find(const char *text)
{
    return rtxLookupEnum(text, strlen(text), table, row_count);
}

TEST(XmlEnumLookup, every_token_is_found_in_its_row)
{
    for (uint32_t row = 0; row < row_count; ++row)
        EXPECT_EQ(find(table[row].token), static_cast<int32_t>(row));
}

TEST(XmlEnumLookup, other_texts_are_not_found)
{
    for (const char *text : {"", "a", "A ", " A", "ABC", "AA", "0", "C", "\xFF"})
        EXPECT_EQ(find(text), XB_E_UNKNOWN_TOKEN) << text;
    EXPECT_EQ(rtxLookupEnum(nullptr, 0, table, row_count), XB_E_UNKNOWN_TOKEN);
    EXPECT_EQ(rtxLookupEnum("A", 1, table, 0), XB_E_UNKNOWN_TOKEN);
}

TEST(XmlEnumLookup, a_table_in_another_order_than_that_of_its_texts_loses_tokens)
{
    constexpr xb_enum_row declared[] = {{"D", 0, 1, 3}, {"C", 1, 1, 2}, {"B", 2, 1, 1}, {"A", 3, 1, 0}};
    EXPECT_EQ(rtxLookupEnum("D", 1, declared, 4), XB_E_UNKNOWN_TOKEN);
    EXPECT_EQ(rtxLookupEnum("A", 1, declared, 4), XB_E_UNKNOWN_TOKEN);
}

TEST(XmlEnumLookup, the_given_length_decides)
{
    EXPECT_EQ(rtxLookupEnum("ABx", 2, table, row_count), 1);
    EXPECT_EQ(rtxLookupEnum("AB", 1, table, row_count), 0);
    EXPECT_EQ(rtxLookupEnum("A\0", 2, table, row_count), XB_E_UNKNOWN_TOKEN);
}

}  // namespace
