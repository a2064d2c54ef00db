// Armed contexts: places of items, going on behind failures, circumstances of errors.
#include <gtest/gtest.h>

#include "platform/xml_document.h"
#include "support/counting_memory.h"

namespace
{

// A document in an armed context, read up to the elements of the path.
struct armed_document {
    xb_context ctx = {};
    std::string text;

    explicit armed_document(std::string document, std::initializer_list<const char *> path = {})
        : text(std::move(document))
    {
        EXPECT_EQ(rtXmlInitContext(&ctx), XB_OK);
        EXPECT_EQ(rtxArmContext(&ctx), XB_OK);
        EXPECT_EQ(rtxStreamMemoryCreateReader(&ctx, text.data(), text.size()), XB_OK);
        EXPECT_EQ(rtXmlpCreateReader(&ctx), XB_OK);
        for (const char *name : path)
            EXPECT_EQ(rtXmlpMatchStartTag(&ctx, name, -1), XB_OK);
    }
    ~armed_document()
    {
        rtxFreeContext(&ctx);
    }
    armed_document(const armed_document &) = delete;
    armed_document &operator=(const armed_document &) = delete;

    std::string place(const void *item)
    {
        xb_place found;
        if (!rtxPlaceOfItem(&ctx, item, &found))
            return "none";
        return std::to_string(found.line) + ":" + std::to_string(found.column) + "+" +
               std::to_string(found.offset);
    }
    const void *parent(const void *item)
    {
        xb_place found = {};
        rtxPlaceOfItem(&ctx, item, &found);
        return found.parent;
    }
    xb_error_details details(uint32_t index)
    {
        xb_error_details found = {};
        EXPECT_TRUE(rtxErrGetDetails(&ctx, index, &found));
        return found;
    }
};

TEST(XmlArmed, a_context_is_armed_before_its_reader_is_made)
{
    xml_document late("<a/>");
    EXPECT_FALSE(rtxIsArmed(&late.ctx));
    EXPECT_EQ(rtxArmContext(&late.ctx), XB_E_BAD_STATE);
    EXPECT_FALSE(rtxIsArmed(&late.ctx));
    armed_document early("<a/>");
    EXPECT_TRUE(rtxIsArmed(&early.ctx));
    EXPECT_EQ(rtxArmContext(&early.ctx), XB_OK);
}

TEST(XmlArmed, an_unarmed_context_knows_no_places_and_passes_nothing_over)
{
    xml_document plain("<a>text<b/></a>", {"a"});
    int item = 0;
    rtxNoteItem(&plain.ctx, &item, true);
    xb_place place;
    EXPECT_FALSE(rtxPlaceOfItem(&plain.ctx, &item, &place));
    EXPECT_EQ(rtxResumeAtEnd(&plain.ctx, XB_E_TEXT_UNEXPECTED), XB_E_TEXT_UNEXPECTED);
    EXPECT_EQ(rtxResumeAtTag(&plain.ctx, XB_E_TEXT_UNEXPECTED, true), XB_E_TEXT_UNEXPECTED);
    rtxErrSetData(&plain.ctx, XB_E_TEXT_UNEXPECTED, "", 0);
    xb_error_details details;
    EXPECT_FALSE(rtxErrGetDetails(&plain.ctx, 0, &details));
}

TEST(XmlArmed, items_have_the_place_of_their_tag_or_attribute)
{
    armed_document d("<a x='1'\n   \xC3\xA4='2' y='3'><b/></a>", {"a"});
    int record = 0, attribute = 0, value = 0;
    rtxNoteItem(&d.ctx, &record, true);
    ASSERT_EQ(rtXmlpSelectAttribute(&d.ctx, 2), XB_OK);
    rtxNoteItem(&d.ctx, &attribute, false);
    ASSERT_EQ(rtXmlpMatchStartTag(&d.ctx, "b", -1), XB_OK);
    rtxNoteItem(&d.ctx, &value, false);
    EXPECT_EQ(d.place(&record), "1:1+0");
    EXPECT_EQ(d.place(&attribute), "2:10+19");
    EXPECT_EQ(d.place(&value), "2:16+25");
    EXPECT_EQ(d.parent(&record), nullptr);
    EXPECT_EQ(d.parent(&attribute), &record);
    EXPECT_EQ(d.parent(&value), &record);
    int unknown = 0;
    EXPECT_EQ(d.place(&unknown), "none");
}

TEST(XmlArmed, a_record_is_no_parent_of_what_stands_in_its_sibling)
{
    armed_document d("<a><b/><b><c/></b></a>", {"a", "b"});
    int first = 0, inner = 0;
    rtxNoteItem(&d.ctx, &first, true);
    ASSERT_EQ(rtXmlpMatchEndTag(&d.ctx, -1), XB_OK);
    ASSERT_EQ(rtXmlpMatchStartTag(&d.ctx, "b", -1), XB_OK);
    ASSERT_EQ(rtXmlpMatchStartTag(&d.ctx, "c", -1), XB_OK);
    rtxNoteItem(&d.ctx, &inner, false);
    EXPECT_EQ(d.parent(&inner), nullptr);
}

TEST(XmlArmed, a_record_of_one_document_is_no_parent_in_the_next)
{
    armed_document d("<a><b/></a>", {"a"});
    int record = 0, item = 0;
    rtxNoteItem(&d.ctx, &record, true);
    rtxStreamClose(&d.ctx);
    ASSERT_EQ(rtxStreamMemoryCreateReader(&d.ctx, d.text.data(), d.text.size()), XB_OK);
    ASSERT_EQ(rtXmlpCreateReader(&d.ctx), XB_OK);
    ASSERT_EQ(rtXmlpMatchStartTag(&d.ctx, "a", -1), XB_OK);
    ASSERT_EQ(rtXmlpMatchStartTag(&d.ctx, "b", -1), XB_OK);
    rtxNoteItem(&d.ctx, &item, false);
    EXPECT_EQ(d.place(&item), "1:4+3");
    EXPECT_EQ(d.parent(&item), nullptr);
}

TEST(XmlArmed, many_items_keep_their_places_and_a_later_note_replaces)
{
    constexpr size_t count = 20000;
    std::string text = "<a>";
    for (size_t i = 0; i < count; ++i)
        text += "<b/>";
    armed_document d(text + "</a>", {"a"});
    std::vector<int> items(count);
    for (int &item : items) {
        ASSERT_EQ(rtXmlpMatchStartTag(&d.ctx, "b", -1), XB_OK);
        rtxNoteItem(&d.ctx, &items[0], false);
        rtxNoteItem(&d.ctx, &item, false);
        ASSERT_EQ(rtXmlpMatchEndTag(&d.ctx, -1), XB_OK);
    }
    for (size_t i = 1; i < count; ++i) {
        xb_place place = {};
        ASSERT_TRUE(rtxPlaceOfItem(&d.ctx, &items[i], &place));
        ASSERT_EQ(place.offset, 3 + 4 * i);
    }
    EXPECT_EQ(d.place(&items[0]), "1:" + std::to_string(4 * count) + "+" + std::to_string(4 * count - 1));
}

TEST(XmlArmed, the_rest_of_an_element_is_passed_over)
{
    armed_document d("<a><b>text<c><d/></c>more</b><e/></a>", {"a", "b"});
    const int32_t failed = rtxErrSetData(&d.ctx, XB_E_TEXT_UNEXPECTED, "", 0);
    EXPECT_EQ(rtxResumeAtEnd(&d.ctx, failed), XB_OK);
    EXPECT_EQ(rtXmlpMatchEndTag(&d.ctx, 2), XB_OK);
    EXPECT_EQ(rtXmlpMatchStartTag(&d.ctx, "e", 2), XB_OK);
    // What fails now is another failure.
    rtxErrSetData(&d.ctx, XB_E_TEXT_UNEXPECTED, "", 0);
    EXPECT_EQ(rtxErrGetCount(&d.ctx), 2u);
}

TEST(XmlArmed, text_and_elements_ahead_are_passed_over)
{
    armed_document d("<a>text<b>1</b>text<c/></a>", {"a"});
    const element_table table({"c"});
    const auto next = [&] {
        return rtXmlpGetNextSeqElemID(&d.ctx, table.rows.data(), table.row_count(), table.sequence.data(), 0,
                                      -1, false);
    };
    ASSERT_EQ(next(), XB_E_TEXT_UNEXPECTED);
    EXPECT_EQ(rtxResumeAtTag(&d.ctx, XB_E_TEXT_UNEXPECTED, false), XB_OK);
    ASSERT_EQ(next(), XB_E_ELEMENT_UNEXPECTED);
    EXPECT_EQ(rtxResumeAtTag(&d.ctx, XB_E_ELEMENT_UNEXPECTED, true), XB_OK);
    ASSERT_EQ(next(), XB_E_TEXT_UNEXPECTED);
    EXPECT_EQ(rtxResumeAtTag(&d.ctx, XB_E_TEXT_UNEXPECTED, false), XB_OK);
    EXPECT_EQ(next(), 0);
}

TEST(XmlArmed, what_cannot_be_read_is_final)
{
    armed_document d("<a><b><c></b></a>", {"a", "b"});
    const int32_t failed = rtxErrSetData(&d.ctx, XB_E_BAD_INTEGER, "", 0);
    EXPECT_EQ(rtxResumeAtEnd(&d.ctx, failed), XB_E_MALFORMED);
    ASSERT_EQ(rtxErrGetCount(&d.ctx), 2u);
    xb_error error;
    ASSERT_TRUE(rtxErrGet(&d.ctx, 1, &error));
    EXPECT_EQ(error.status, XB_E_MALFORMED);
    EXPECT_EQ(error.line, 1u);
    // Passed up, it stays one record.
    rtxErrSetData(&d.ctx, XB_E_MALFORMED, "above", 1);
    EXPECT_EQ(rtxErrGetCount(&d.ctx), 2u);
}

TEST(XmlArmed, memory_and_order_of_calls_are_final)
{
    armed_document d("<a><b/></a>", {"a"});
    EXPECT_EQ(rtxResumeAtEnd(&d.ctx, XB_E_NO_MEMORY), XB_E_NO_MEMORY);
    EXPECT_EQ(rtxResumeAtTag(&d.ctx, XB_E_BAD_STATE, true), XB_E_BAD_STATE);
}

TEST(XmlArmed, the_tag_ahead_is_looked_at_and_left)
{
    armed_document d("<a><x:b xmlns:x='urn:x'/><c/></a>", {"a"});
    const char *local = nullptr;
    const char *name = nullptr;
    uint64_t offset = 0;
    EXPECT_EQ(rtxPeekTag(&d.ctx, &local, &name, &offset), 1);
    EXPECT_EQ(local, nullptr);
    EXPECT_STREQ(name, "x:b");
    EXPECT_EQ(offset, 3u);
    ASSERT_EQ(rtxResumeAtTag(&d.ctx, XB_E_ELEMENT_UNEXPECTED, true), XB_OK);
    EXPECT_EQ(rtxPeekTag(&d.ctx, &local, &name, &offset), 1);
    EXPECT_STREQ(local, "c");
    ASSERT_EQ(rtXmlpMatchStartTag(&d.ctx, "c", 2), XB_OK);
    EXPECT_EQ(rtxPeekTag(&d.ctx, &local, &name, &offset), 0);
}

TEST(XmlArmed, an_error_knows_what_it_stands_in)
{
    armed_document d("<a x='1'><b>7</b></a>", {"a"});
    int record = 0;
    rtxNoteItem(&d.ctx, &record, true);
    ASSERT_EQ(rtXmlpSelectAttribute(&d.ctx, 0), XB_OK);
    rtxErrSetNewData(&d.ctx, XB_E_ATTRIBUTE_UNKNOWN, "", 0);
    const char *words[] = {"y", "z"};
    rtxErrAddWords(&d.ctx, words, 2);
    rtXmlpHideAttributes(&d.ctx);
    rtxErrSetNewData(&d.ctx, XB_E_ATTRIBUTE_MISSING, "", 0);
    ASSERT_EQ(rtXmlpMatchStartTag(&d.ctx, "b", -1), XB_OK);
    uint8_t flag = 0;
    rtxErrSetData(&d.ctx, rtXmlpDecBool(&d.ctx, &flag), "", 0);
    rtxErrAddRange(&d.ctx, 0, 1);
    const xb_error_details attribute = d.details(0);
    EXPECT_TRUE(attribute.at_attribute);
    EXPECT_EQ(attribute.item, &record);
    EXPECT_STREQ(attribute.element, "a");
    ASSERT_EQ(attribute.word_count, 2u);
    EXPECT_STREQ(attribute.words[1], "z");
    EXPECT_TRUE(d.details(1).at_tag);
    const xb_error_details value = d.details(2);
    EXPECT_FALSE(value.at_attribute || value.at_tag);
    EXPECT_EQ(value.item, &record);
    EXPECT_STREQ(value.element, "b");
    EXPECT_TRUE(value.has_range);
    EXPECT_EQ(value.highest, 1);
}

TEST(XmlArmed, errors_are_counted_up_to_a_limit_that_is_final)
{
    armed_document d("<a><b/></a>", {"a"});
    for (int i = 0; i < XB_MAX_ARMED_ERRORS + 5; ++i)
        rtxErrSetNewData(&d.ctx, XB_E_ATTRIBUTE_UNKNOWN, "", 0);
    EXPECT_EQ(rtxErrGetCount(&d.ctx), static_cast<uint32_t>(XB_MAX_ARMED_ERRORS));
    EXPECT_EQ(rtxResumeAtEnd(&d.ctx, XB_E_BAD_INTEGER), XB_E_BAD_INTEGER);
}

// Notes, errors and passing over, whatever memory there is.
void use_armed()
{
    xb_context ctx = {};
    const std::string text = "<a x='1'><b><c>1</c></b><b/></a>";
    int items[3000] = {};
    if (rtXmlInitContext(&ctx) == XB_OK && rtxArmContext(&ctx) == XB_OK &&
        rtxStreamMemoryCreateReader(&ctx, text.data(), text.size()) == XB_OK &&
        rtXmlpCreateReader(&ctx) == XB_OK && rtXmlpMatchStartTag(&ctx, "a", -1) == XB_OK) {
        for (int &item : items)
            rtxNoteItem(&ctx, &item, &item == items);
        const char *words[] = {"b"};
        for (int i = 0; i < 40; ++i) {
            rtxErrSetNewData(&ctx, XB_E_ATTRIBUTE_UNKNOWN, "", 0);
            rtxErrAddWords(&ctx, words, 1);
        }
        const char *local = nullptr;
        const char *name = nullptr;
        uint64_t offset = 0;
        rtxPeekTag(&ctx, &local, &name, &offset);
        rtxResumeAtTag(&ctx, XB_E_ELEMENT_UNEXPECTED, true);
        rtxResumeAtEnd(&ctx, XB_E_ELEMENT_UNEXPECTED);
        xb_place place;
        for (int &item : items)
            rtxPlaceOfItem(&ctx, &item, &place);
    }
    rtxFreeContext(&ctx);
}

TEST(XmlArmed, every_single_failing_request_is_survived_without_a_leak)
{
    const uint64_t live = counting_memory::live();
    for (uint64_t n = 1;; ++n) {
        counting_memory::fail_at(n);
        use_armed();
        const bool failed = counting_memory::failed();
        counting_memory::fail_at(0);
        ASSERT_EQ(counting_memory::live(), live) << "request " << n;
        if (!failed)
            break;
        ASSERT_LT(n, 1000u);
    }
}

TEST(XmlArmed, what_may_stand_there_is_told_of_an_error_only)
{
    armed_document a("<a/>", {"a"});
    const char *const words[] = {"b"};
    rtxErrAddWords(&a.ctx, words, 1);
    rtxErrAddRange(&a.ctx, 1, 2);
    rtxErrAddMisplacement(&a.ctx, XB_NAME_UNKNOWN);
    rtxErrSetNewData(&a.ctx, XB_E_BAD_INTEGER, "s", 1);
    EXPECT_EQ(a.details(0).word_count, 0u);
    EXPECT_FALSE(a.details(0).has_range);
    EXPECT_NE(a.details(0).misplaced, XB_NAME_UNKNOWN);
}

TEST(XmlArmed, a_context_that_is_not_armed_tells_no_tag_ahead)
{
    xml_document document("<a><b/></a>");
    const char *local = "kept";
    const char *name = "kept";
    uint64_t offset = 7;
    EXPECT_EQ(rtxPeekTag(&document.ctx, &local, &name, &offset), XB_E_BAD_STATE);
    EXPECT_STREQ(local, "kept");
    EXPECT_STREQ(name, "kept");
    EXPECT_EQ(offset, 7u);
}

TEST(XmlArmed, a_tag_to_resume_at_that_cannot_be_read_is_final)
{
    armed_document a("<a>text<", {"a"});
    rtxErrSetNewData(&a.ctx, XB_E_TEXT_UNEXPECTED, "s", 1);
    EXPECT_EQ(rtxResumeAtTag(&a.ctx, XB_E_TEXT_UNEXPECTED, false), XB_E_MALFORMED);
    ASSERT_EQ(rtxErrGetCount(&a.ctx), 2u);
    xb_error last = {};
    ASSERT_TRUE(rtxErrGet(&a.ctx, 1, &last));
    EXPECT_EQ(last.status, XB_E_MALFORMED);
    EXPECT_TRUE(last.fatal);
}

}  // namespace
