// What may have been meant by a mistyped word.
#include "nearest.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{

const std::vector<std::string> words = {"tree", "show", "path",       "find",
                                        "json", "diff", "completion", "--instance"};

TEST(Nearest, finds_the_word_behind_the_usual_mistakes)
{
    struct {
        const char *typed;
        const char *meant;
    } cases[] = {
        {"tre", "tree"},    // a letter left out
        {"treee", "tree"},  // one too many
        {"shaw", "show"},   // another one
        {"jsno", "json"},   // two swapped
        {"fnid", "find"},   //
        {"completoin", "completion"},
        {"compleetoin", "completion"},
        {"--instace", "--instance"},
        {"--instnace", "--instance"},
    };
    for (const auto &each : cases)
        EXPECT_EQ(invctl::nearest_word(each.typed, words), each.meant) << each.typed;
}

TEST(Nearest, has_no_word_for_what_is_far_or_known)
{
    for (const char *typed : {"", "x", "zz", "banana", "tree", "--version"})
        EXPECT_EQ(invctl::nearest_word(typed, {words.data(), 7}), "") << typed;
}

TEST(Nearest, takes_the_first_of_equally_near_words)
{
    const std::vector<std::string> twins = {"cat", "bat"};
    EXPECT_EQ(invctl::nearest_word("aat", twins), "cat");
}

TEST(Nearest, survives_hostile_lengths)
{
    EXPECT_EQ(invctl::nearest_word(std::string(100000, 'a'), words), "");
    const std::vector<std::string> endless = {std::string(100000, 'a')};
    EXPECT_EQ(invctl::nearest_word("aaaa", endless), "");
}

}  // namespace
