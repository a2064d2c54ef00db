// The short ways for plain elements leave the reader as the long way would.
#include "platform/xml_document.h"
#include "xml/context.h"

#include <cstddef>
#include <gtest/gtest.h>

using namespace inv::xml;

namespace
{

struct numbers {
    int32_t v;
    int32_t w;
};

const element_table table({"v", "w"});
constexpr xb_plain_row plain[] = {{nullptr, offsetof(numbers, v), 0, 0, XB_PLAIN_INT32, 0},
                                  {nullptr, offsetof(numbers, w), 0, 0, XB_PLAIN_INT32, 0}};

int32_t decode_plain(xml_document &document, numbers *record)
{
    return rtXmlpDecPlainElements(&document.ctx, table.rows.data(), table.row_count(), table.sequence.data(),
                                  plain, 0, table.row_count(), record);
}

int32_t see_plain(xml_document &document)
{
    return rtXmlpSeePlainElement(&document.ctx, table.rows.data(), table.row_count(), table.sequence.data(),
                                 0);
}

// With an attribute selected; is_ahead: the first element has been read ahead.
struct selecting {
    xml_document document;

    explicit selecting(bool is_ahead) : document("<r a='1'><v>5</v><w>6</w><x/></r>", {"r"})
    {
        EXPECT_FALSE(is_ahead && rtXmlpIsEmptyElement(&document.ctx));
        EXPECT_EQ(rtXmlpSelectAttribute(&document.ctx, 0), XB_OK);
    }
};

TEST(XmlPlainElements, that_are_read_end_the_selection_of_an_attribute)
{
    for (bool is_ahead : {false, true}) {
        selecting s(is_ahead);
        numbers record = {};
        EXPECT_EQ(decode_plain(s.document, &record), 2);
        EXPECT_EQ(record.v, 5);
        EXPECT_EQ(record.w, 6);
        EXPECT_EQ(s.document.ctx.state->reader.selected, no_attribute);
        EXPECT_EQ(place_of(report(s.document, XB_E_CONSTRAINT)), "1:22");
    }
}

TEST(XmlPlainElements, that_are_seen_end_the_selection_of_an_attribute)
{
    for (bool is_ahead : {false, true}) {
        selecting s(is_ahead);
        EXPECT_EQ(see_plain(s.document), 0);
        EXPECT_EQ(s.document.ctx.state->reader.selected, no_attribute);
        EXPECT_EQ(place_of(report(s.document, XB_E_CONSTRAINT)), "1:10");
    }
}

TEST(XmlPlainElements, whether_an_element_is_empty_may_be_asked_with_an_attribute_selected)
{
    selecting s(false);
    EXPECT_FALSE(rtXmlpIsEmptyElement(&s.document.ctx));
    int32_t value = 0;
    EXPECT_EQ(rtXmlpDecInt(&s.document.ctx, &value), XB_OK);
    EXPECT_EQ(value, 1);
}

TEST(XmlPlainElements, are_none_where_no_further_element_may_be_open)
{
    for (bool is_ahead : {false, true}) {
        std::string text;
        for (int i = 0; i < XB_MAX_DEPTH; ++i)
            text += "<v>";
        xml_document document(text + "<v>5</v>");
        for (int i = 0; i < XB_MAX_DEPTH; ++i)
            ASSERT_EQ(enter(document, "v"), XB_OK);
        if (is_ahead) {
            EXPECT_TRUE(rtXmlpIsEmptyElement(&document.ctx));
        }
        numbers record = {};
        EXPECT_EQ(decode_plain(document, &record), 0);
        EXPECT_EQ(see_plain(document), XB_E_BAD_STATE);
        EXPECT_EQ(record.v, 0);
        EXPECT_EQ(next_of(document, table), XB_E_DEPTH);
    }
}

}  // namespace
