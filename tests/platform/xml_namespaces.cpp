#include "xml/namespaces.h"
#include "xml/text_stack.h"

#include "hostile/hostile_names.h"
#include "support/document_generator.h"

#include <gtest/gtest.h>
#include <string>

using namespace inv::xml;
using namespace inv_testing;

namespace
{

struct scope_under_test {
    namespace_scope scope;
    text_stack texts;

    ~scope_under_test()
    {
        scope_release(scope);
        release_texts(texts);
    }
    void declare(std::string_view prefix, std::string_view uri)
    {
        std::string_view kept_prefix, kept_uri;
        ASSERT_TRUE(push_text(texts, prefix, kept_prefix) && push_text(texts, uri, kept_uri));
        ASSERT_TRUE(scope_declare(scope, kept_prefix, kept_uri));
    }
    // "-" when the prefix is not bound.
    std::string find(std::string_view prefix) const
    {
        std::string_view uri;
        return scope_find(scope, prefix, uri) ? std::string(uri) : "-";
    }
};

TEST(XmlNamespaces, the_innermost_declaration_counts)
{
    scope_under_test s;
    EXPECT_EQ(s.find("p"), "-");
    EXPECT_EQ(s.find(""), "-");
    EXPECT_EQ(s.find("xml"), xml_uri);
    s.declare("p", "outer");
    s.declare("", "default");
    s.declare("p", "inner");
    EXPECT_EQ(s.find("p"), "inner");
    EXPECT_EQ(s.find(""), "default");
    s.declare("", "");
    s.declare("p", "");
    EXPECT_EQ(s.find(""), "-");
    EXPECT_EQ(s.find("p"), "-");
    EXPECT_EQ(s.find("pp"), "-");
}

TEST(XmlNamespaces, a_scope_that_was_left_can_be_entered_again)
{
    scope_under_test s;
    s.declare("p", "outer");
    s.declare("p", "inner");
    s.declare("q", "other");
    scope_leave(s.scope, 1);
    EXPECT_EQ(s.find("p"), "outer");
    EXPECT_EQ(s.find("q"), "-");
    scope_enter_again(s.scope, 3);
    EXPECT_EQ(s.find("p"), "inner");
    EXPECT_EQ(s.find("q"), "other");
    scope_leave(s.scope, 0);
    EXPECT_EQ(s.find("p"), "-");
}

TEST(XmlNamespaces, each_of_many_declarations_is_found)
{
    scope_under_test s;
    for (int i = 0; i < 10000; ++i)
        s.declare("n" + std::to_string(i), "u" + std::to_string(i));
    for (int i = 0; i < 10000; ++i)
        ASSERT_EQ(s.find("n" + std::to_string(i)), "u" + std::to_string(i));
    EXPECT_EQ(s.find("n"), "-");
    EXPECT_EQ(s.find("n10000"), "-");
    EXPECT_EQ(s.find("n99999"), "-");
    EXPECT_GE(s.scope.buckets.count, s.scope.bindings.count);
}

// From the newest declaration on.
std::string find_slowly(const namespace_scope &scope, std::string_view prefix)
{
    for (size_t i = scope.bindings.count; i > 0; --i) {
        const namespace_binding &binding = scope.bindings.items[i - 1];
        if (binding.prefix == prefix)
            return binding.uri.empty() ? "-" : std::string(binding.uri);
    }
    return "-";
}

// Few letters and lengths, so that prefixes begin with one another and are declared again; octets beyond
// ASCII, too.
std::string random_prefix(random_source &random)
{
    static constexpr std::string_view letters[] = {"a", "b", "c", "\xC3\xBC", "\xC3\xBD"};
    std::string prefix;
    for (size_t length = draw_below(random, 5); length > 0; --length)
        prefix += letters[draw_below(random, std::size(letters))];
    return prefix;
}

TEST(XmlNamespaces, a_scope_finds_what_a_search_from_the_newest_declaration_on_finds)
{
    random_source random{1};
    for (int round = 0; round < 200 && !HasFailure(); ++round) {
        scope_under_test s;
        size_t declared = 0;
        for (int step = 0; step < 200 && !HasFailure(); ++step) {
            const size_t kind = draw_below(random, 4);
            if (kind == 0) {
                scope_leave(s.scope, draw_below(random, s.scope.bindings.count + 1));
            } else if (kind == 1) {
                const size_t count = s.scope.bindings.count;
                scope_enter_again(s.scope, count + draw_below(random, declared - count + 1));
            } else {
                s.declare(random_prefix(random), one_in(random, 10) ? "" : "u" + std::to_string(step));
                declared = s.scope.bindings.count;
            }
            for (int i = 0; i < 5; ++i) {
                const std::string prefix = random_prefix(random);
                ASSERT_EQ(s.find(prefix), find_slowly(s.scope, prefix)) << prefix;
            }
        }
    }
}

TEST(XmlNamespaces, prefixes_of_one_hash_are_told_apart)
{
    const std::vector<std::string> prefixes = hostile::names_of_one_hash(7);
    random_source random{2};
    scope_under_test s;
    for (int step = 0; step < 2000; ++step) {
        if (one_in(random, 20))
            scope_leave(s.scope, draw_below(random, s.scope.bindings.count + 1));
        // Every second one is never declared.
        s.declare(prefixes[draw_below(random, prefixes.size() / 2) * 2], "u" + std::to_string(step));
        for (int i = 0; i < 20; ++i) {
            const std::string &prefix = prefixes[draw_below(random, prefixes.size())];
            ASSERT_EQ(s.find(prefix), find_slowly(s.scope, prefix)) << prefix;
        }
    }
}

TEST(XmlNamespaces, names_are_split_at_an_inner_colon)
{
    struct {
        const char *name, *prefix, *local;
    } cases[] = {{"a", "", "a"},   {"p:a", "p", "a"},     {":a", "", ":a"},
                 {"a:", "", "a:"}, {"a:b:c", "a", "b:c"}, {":", "", ":"}};
    for (const auto &c : cases) {
        split_name parts = split_qualified_name(c.name);
        EXPECT_EQ(parts.prefix, c.prefix) << c.name;
        EXPECT_EQ(parts.local, c.local) << c.name;
    }
}

}  // namespace
