#include "platform/xml_document.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

namespace
{

struct file_context {
    xb_context ctx = {};
    file_context()
    {
        EXPECT_EQ(rtXmlInitContext(&ctx), XB_OK);
    }
    ~file_context()
    {
        rtxFreeContext(&ctx);
    }
};

struct temporary_file {
    char name[32] = "/tmp/xml_input_XXXXXX";
    explicit temporary_file(const std::string &content)
    {
        int descriptor = mkstemp(name);
        EXPECT_GE(descriptor, 0);
        EXPECT_EQ(write(descriptor, content.data(), content.size()), static_cast<ssize_t>(content.size()));
        close(descriptor);
    }
    ~temporary_file()
    {
        unlink(name);
    }
};

// The lowest number that the next file to be opened gets.
int next_descriptor()
{
    int descriptor = open("/dev/null", O_RDONLY);
    close(descriptor);
    return descriptor;
}

TEST(XmlInput, a_file_is_read_from_beginning_to_end)
{
    temporary_file file("<r>12</r>\n");
    file_context context;
    int descriptor = next_descriptor();
    ASSERT_EQ(rtxStreamFileCreateReader(&context.ctx, file.name), XB_OK);
    ASSERT_EQ(rtXmlpCreateReader(&context.ctx), XB_OK);
    ASSERT_EQ(rtXmlpMatchStartTag(&context.ctx, "r", -1), XB_OK);
    int32_t value = 0;
    EXPECT_EQ(rtXmlpDecInt(&context.ctx, &value), XB_OK);
    EXPECT_EQ(value, 12);
    EXPECT_EQ(rtXmlpMatchEndTag(&context.ctx, -1), XB_OK);
    rtxStreamClose(&context.ctx);
    rtxStreamClose(&context.ctx);
    EXPECT_EQ(next_descriptor(), descriptor);
}

TEST(XmlInput, what_cannot_be_opened_is_recorded_with_its_name_and_the_reason)
{
    struct {
        const char *name;
        const char *reason;
    } cases[] = {{"/tmp/xml_input_is_not_there.xml", "No such file or directory"},
                 {"/tmp", "Is a directory"},
                 {"", "No such file or directory"},
                 {nullptr, "No such file or directory"}};
    for (const auto &c : cases) {
        file_context context;
        EXPECT_EQ(rtxStreamFileCreateReader(&context.ctx, c.name), XB_E_FILE_OPEN);
        ASSERT_EQ(rtxErrGetCount(&context.ctx), 1U);
        xb_error error = {};
        rtxErrGet(&context.ctx, 0, &error);
        EXPECT_EQ(error.status, XB_E_FILE_OPEN);
        EXPECT_TRUE(error.fatal);
        EXPECT_EQ(error.line, 0U);
        EXPECT_STREQ(error.source, "");
        EXPECT_EQ(parameters_of(error),
                  (std::vector<std::string>{c.name == nullptr ? "" : c.name, c.reason}));
        EXPECT_EQ(rtXmlpCreateReader(&context.ctx), XB_E_BAD_STATE);
    }
}

TEST(XmlInput, a_failing_read_is_reported_with_the_systems_reason)
{
    // Reading one's own memory from address 0 fails.
    file_context context;
    ASSERT_EQ(rtxStreamFileCreateReader(&context.ctx, "/proc/self/mem"), XB_OK);
    ASSERT_EQ(rtXmlpCreateReader(&context.ctx), XB_OK);
    EXPECT_EQ(rtXmlpMatchStartTag(&context.ctx, "r", -1), XB_E_FILE_READ);
    rtxErrSetData(&context.ctx, XB_E_FILE_READ, "s", 1);
    xb_error error = {};
    ASSERT_TRUE(rtxErrGet(&context.ctx, 0, &error));
    EXPECT_EQ(parameters_of(error), std::vector<std::string>{"Input/output error"});
}

TEST(XmlInput, an_empty_file_is_malformed)
{
    temporary_file file("");
    file_context context;
    ASSERT_EQ(rtxStreamFileCreateReader(&context.ctx, file.name), XB_OK);
    ASSERT_EQ(rtXmlpCreateReader(&context.ctx), XB_OK);
    EXPECT_EQ(rtXmlpMatchStartTag(&context.ctx, "r", -1), XB_E_MALFORMED);
}

TEST(XmlInput, memory_of_no_octets_is_malformed)
{
    file_context context;
    ASSERT_EQ(rtxStreamMemoryCreateReader(&context.ctx, nullptr, 0), XB_OK);
    ASSERT_EQ(rtXmlpCreateReader(&context.ctx), XB_OK);
    EXPECT_EQ(rtXmlpMatchStartTag(&context.ctx, "r", -1), XB_E_MALFORMED);
}

TEST(XmlInput, has_one_reader)
{
    file_context context;
    EXPECT_EQ(rtXmlpCreateReader(&context.ctx), XB_E_BAD_STATE);
    EXPECT_EQ(rtXmlpMatchStartTag(&context.ctx, "r", -1), XB_E_BAD_STATE);
    rtxStreamMemoryCreateReader(&context.ctx, "<r/>", 4);
    EXPECT_EQ(rtXmlpCreateReader(&context.ctx), XB_OK);
    EXPECT_EQ(rtXmlpCreateReader(&context.ctx), XB_E_BAD_STATE);
}

TEST(XmlInput, a_context_reads_one_document_after_another_and_keeps_what_it_decoded)
{
    file_context context;
    const char *texts[2] = {};
    const char *documents[] = {"<r>first</r>", "<r><broken>"};
    for (int i = 0; i < 2; ++i) {
        rtxStreamMemoryCreateReader(&context.ctx, documents[i], strlen(documents[i]));
        ASSERT_EQ(rtXmlpCreateReader(&context.ctx), XB_OK);
        ASSERT_EQ(rtXmlpMatchStartTag(&context.ctx, "r", -1), XB_OK);
        int32_t status = rtXmlpDecXmlStr(&context.ctx, &texts[i]);
        EXPECT_EQ(status, i == 0 ? XB_OK : XB_E_TEXT_UNEXPECTED);
        if (status != XB_OK)
            rtxErrSetData(&context.ctx, status, "s", 1);
    }
    rtxStreamClose(&context.ctx);
    EXPECT_STREQ(texts[0], "first");
    EXPECT_EQ(rtxErrGetStatus(&context.ctx), XB_E_TEXT_UNEXPECTED);
}

TEST(XmlInput, closing_what_was_never_opened_does_nothing)
{
    xb_context none = {};
    rtxStreamClose(&none);
    EXPECT_EQ(none.state, nullptr);
    rtxStreamClose(nullptr);
    file_context context;
    rtxStreamClose(&context.ctx);
    EXPECT_EQ(rtXmlpCreateReader(&context.ctx), XB_E_BAD_STATE);
}

}  // namespace
