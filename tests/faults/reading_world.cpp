#include "faults/reading_world.h"

#include "faults/system_calls.h"
#include "inv_platform/xml_runtime.h"
#include "support/trace_recorder.h"

#include <algorithm>

namespace fault_world
{

void ReadingFaults::SetUp()
{
    library = std::make_unique<load_world::fresh_library>();
    beside = std::make_unique<bystanders>();
    inv_xml_handle *handle = open_unit(GetParam());
    ASSERT_NE(handle, nullptr);
    questions = all_questions(beside->beside(handle));
    answers = ask_all(questions, beside->beside(handle));
    inv_parser_close_xml_file(handle);
    descriptors_before = descriptors();
}

void ReadingFaults::TearDown()
{
    system_calls::reset();
    expect_all_well();
    beside.reset();
    library.reset();
}

ending ReadingFaults::open_instead(const std::string &path)
{
    trace_recorder::clear();
    unit which = GetParam();
    which.path = path;
    inv_xml_handle *handle = open_unit(which);
    system_calls::reset();
    EXPECT_EQ(descriptors(), descriptors_before);
    if (handle == nullptr || handle->root == nullptr) {
        // 245, 249, 251, 253, 256 and 258: the document of this kind cannot be decoded.
        const std::vector<uint32_t> ids = trace_recorder::ids();
        EXPECT_TRUE(std::any_of(ids.begin(), ids.end(), [](uint32_t id) { return id >= 245 && id <= 258; }));
        EXPECT_EQ(handle == nullptr, which.is_module());
    }
    ending found = ending::refused;
    if (handle != nullptr && handle->root != nullptr)
        found = ask_all(questions, beside->beside(handle)) == answers ? ending::right : ending::other;
    const bool stays = handle != nullptr && handle->root == nullptr;
    if (handle != nullptr)
        inv_parser_close_xml_file(handle);
    if (stays)
        library->release_kept(handle);
    EXPECT_EQ(descriptors(), descriptors_before);
    return found;
}

void ReadingFaults::expect_all_well()
{
    system_calls::reset();
    EXPECT_TRUE(beside->are_whole());
    EXPECT_EQ(open_under_trouble(), ending::right);
}

std::string ReadingFaults::diagnosis(const std::string &path)
{
    xb_context context = {};
    EXPECT_EQ(rtXmlInitContext(&context), XB_OK);
    int32_t status = rtxStreamFileCreateReader(&context, path.c_str());
    if (status == XB_OK)
        status = rtXmlpCreateReader(&context);
    if (status == XB_OK)
        status = rtXmlpMatchStartTag(&context, "no such root", -1);
    if (rtxErrGetCount(&context) == 0)
        rtxErrSetData(&context, status, "", 0);
    xb_error error = {};
    EXPECT_TRUE(rtxErrGet(&context, 0, &error));
    std::string text = std::to_string(error.status);
    for (uint32_t i = 0; i < error.parameter_count; ++i)
        text += path == error.parameters[i] ? " FILE" : std::string(" ") + error.parameters[i];
    rtxFreeContext(&context);
    return text;
}

std::string unit_name(const testing::TestParamInfo<unit> &info)
{
    return info.param.name;
}

}  // namespace fault_world
