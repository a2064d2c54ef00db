// Operations of the platform that may fail by contract, though the reference platform has no reason to: the
// decode ends with their status.
#include <gtest/gtest.h>

#include <cstring>

#include "unit/decode_support.h"

using namespace decode_test;

namespace
{

const char *failing;  // operation that fails now; null: none
int calls_left;       // which go well before

bool fails(const char *operation)
{
    return failing != nullptr && strcmp(failing, operation) == 0 && calls_left-- == 0;
}

}  // namespace

// In the place of the platform's own, see CMakeLists.txt.
extern "C" {

int32_t __real_rtXmlpGetAttributeCount(xb_context *ctx);
int32_t __wrap_rtXmlpGetAttributeCount(xb_context *ctx)
{
    return fails("attribute count") ? XB_E_NO_MEMORY : __real_rtXmlpGetAttributeCount(ctx);
}

int32_t __real_rtXmlpDecXSIAttrs(xb_context *ctx);
int32_t __wrap_rtXmlpDecXSIAttrs(xb_context *ctx)
{
    return fails("xsi attributes") ? XB_E_NO_MEMORY : __real_rtXmlpDecXSIAttrs(ctx);
}

xb_data_node *__real_rtxDListAppend(xb_context *ctx, xb_data_list *list, void *data);
xb_data_node *__wrap_rtxDListAppend(xb_context *ctx, xb_data_list *list, void *data)
{
    return fails("append") ? nullptr : __real_rtxDListAppend(ctx, list, data);
}
}

namespace
{

// Foreign attributes at a simple element and at a type that has none of its own are passed over.
const std::string document_text =
    "<module" + std::string(xsi) + identity +
    "><pdNotes xsi:a='1'>a</pdNotes><driverId xsi:a='1'>5</driverId><led" + identity +
    "><ledInfo "
    "xsi:a='1'><color>ORVL_LED_COLOR_RED</color><control>ORVL_LED_CONTROL_ON</control></ledInfo></led>"
    "</module>";

struct failure_case {
    const char *operation;
    int calls_before;
    const char *item;  // that cannot be decoded
    uint32_t step;
};

class DecodePlatformFailures : public testing::TestWithParam<failure_case>
{
};

TEST_P(DecodePlatformFailures, end_the_decode_with_their_status_and_step)
{
    const failure_case &tried = GetParam();
    failing = tried.operation;
    calls_left = tried.calls_before;
    module_document d(document_text);
    failing = nullptr;
    EXPECT_EQ(d.status, XB_E_NO_MEMORY);
    ASSERT_EQ(d.errors(), 1u);
    EXPECT_EQ(d.error().status, XB_E_NO_MEMORY);
    EXPECT_TRUE(d.error().fatal);
    EXPECT_STREQ(d.error().source, decoder_source);
    EXPECT_EQ(d.error().source_line, tried.step) << tried.item;
}

INSTANTIATE_TEST_SUITE_P(Operations, DecodePlatformFailures,
                         testing::Values(failure_case{"attribute count", 0, "module", 61002},
                                         failure_case{"xsi attributes", 0, "pdNotes", 25100},
                                         failure_case{"xsi attributes", 1, "driverId", 25290},
                                         failure_case{"xsi attributes", 2, "ledInfo", 19001},
                                         failure_case{"append", 0, "namespaces of module", 61000},
                                         failure_case{"append", 1, "pdNotes", 25103},
                                         failure_case{"append", 2, "ledInfo", 27123},
                                         failure_case{"append", 3, "led", 62293}));

TEST(DecodePlatform, the_document_is_good_otherwise)
{
    module_document d(document_text);
    EXPECT_EQ(d.status, 0);
    EXPECT_EQ(d.errors(), 0u);
}

}  // namespace
