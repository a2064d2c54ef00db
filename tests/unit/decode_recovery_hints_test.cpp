// What the reports of armed contexts say might have stood at their place.
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>

#include "decode/recovery.h"
#include "unit/decode_support.h"

using namespace decode_test;
using inv::decode::item_kind;

namespace
{

constexpr int64_t least_int64 = INT64_MIN;
constexpr int64_t greatest_int64 = INT64_MAX;

struct range_case {
    item_kind kind;
    int64_t lowest;
    int64_t highest;
};

constexpr range_case range_cases[] = {
    {item_kind::int8, -128, 127},
    {item_kind::uint8, 0, 255},
    {item_kind::int16, -32768, 32767},
    {item_kind::uint16, 0, 65535},
    {item_kind::int32, -2147483648LL, 2147483647},
    {item_kind::uint32, 0, 4294967295LL},
    {item_kind::int64, least_int64, greatest_int64},
};

// A context with one report, which a value of the kind is the reason of.
struct explained : context {
    xb_error_details details = {};

    explained(item_kind kind, bool armed) : context("<e/>")
    {
        if (armed) {
            EXPECT_EQ(rtxArmContext(&ctx), XB_OK);
        }
        inv::decode::armed_document document(&ctx);
        rtxErrSetNewData(&ctx, XB_E_BAD_INTEGER, "source", 1);
        inv::decode::explain_value(&ctx, kind);
        rtxErrGetDetails(&ctx, 0, &details);
    }
    std::vector<std::string> words() const
    {
        return std::vector<std::string>(details.words, details.words + details.word_count);
    }
};

TEST(DecodeRecoveryHints, an_integer_has_the_range_of_its_type)
{
    for (const range_case &tried : range_cases) {
        explained e(tried.kind, true);
        EXPECT_TRUE(e.details.has_range);
        EXPECT_EQ(e.details.lowest, tried.lowest);
        EXPECT_EQ(e.details.highest, tried.highest);
        EXPECT_EQ(e.details.word_count, 0u);
    }
}

TEST(DecodeRecoveryHints, a_boolean_has_its_four_words)
{
    explained e(item_kind::boolean, true);
    EXPECT_FALSE(e.details.has_range);
    EXPECT_EQ(e.words(), (std::vector<std::string>{"true", "false", "1", "0"}));
}

TEST(DecodeRecoveryHints, a_text_or_record_may_be_anything)
{
    for (item_kind kind : {item_kind::text, item_kind::octets, item_kind::record, item_kind::group}) {
        explained e(kind, true);
        EXPECT_FALSE(e.details.has_range);
        EXPECT_EQ(e.details.word_count, 0u);
    }
}

TEST(DecodeRecoveryHints, a_context_that_is_not_armed_has_none)
{
    explained e(item_kind::int8, false);
    EXPECT_EQ(e.errors(), 1u);
    EXPECT_FALSE(e.details.has_range);
}

TEST(DecodeRecoveryHints, an_unknown_attribute_and_type_have_the_names_of_the_known_ones)
{
    context c("<module" + std::string(xsi) + identity + " bogus='1'><container xsi:type='Nothing'" +
              identity + "/></module>");
    ASSERT_EQ(rtxArmContext(&c.ctx), XB_OK);
    xb_choice record = {};
    EXPECT_EQ(XmlD_module(&c.ctx, &record), XB_E_ATTRIBUTE_UNKNOWN);
    ASSERT_EQ(c.errors(), 2u);
    const char *const known[] = {"xmlInstance", "PemBayType"};
    for (uint32_t i = 0; i < 2; ++i) {
        xb_error_details details = {};
        ASSERT_TRUE(rtxErrGetDetails(&c.ctx, i, &details));
        const std::vector<std::string> words(details.words, details.words + details.word_count);
        EXPECT_NE(std::find(words.begin(), words.end(), known[i]), words.end()) << known[i];
    }
}

}  // namespace
