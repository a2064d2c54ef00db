#include "xml/namespaces.h"
#include "xml/text_stack.h"

#include <gtest/gtest.h>
#include <string>

using namespace inv::xml;

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

TEST(XmlNamespaces, buckets_grow_with_the_declarations)
{
    scope_under_test s;
    for (int i = 0; i < 10000; ++i)
        s.declare("n" + std::to_string(i), "u" + std::to_string(i));
    for (int i = 0; i < 10000; ++i)
        ASSERT_EQ(s.find("n" + std::to_string(i)), "u" + std::to_string(i));
    EXPECT_GE(s.scope.buckets.count, s.scope.bindings.count);
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
