// Decoding in armed contexts: one report for each mistake, and everything else decoded all the same.
#include <gtest/gtest.h>

#include <algorithm>

#include "support/counting_memory.h"
#include "unit/decode_support.h"

using namespace decode_test;

namespace
{

const std::string led_info =
    "<ledInfo><color>ORVL_LED_COLOR_RED</color><control>ORVL_LED_CONTROL_ON</control></ledInfo>";

std::string module(const std::string &content)
{
    return "<module" + std::string(xsi) + identity + ">" + content + "</module>";
}

std::string entity(const std::string &name, const std::string &content)
{
    return "<" + name + identity + ">" + content + "</" + name + ">";
}

// A module document in a context that is armed or not.
struct decoded : context {
    xb_choice record = {};
    int32_t status;

    explicit decoded(std::string document, bool armed = true) : context(std::move(document))
    {
        if (armed) {
            EXPECT_EQ(rtxArmContext(&ctx), XB_OK);
        }
        status = XmlD_module(&ctx, &record);
    }
    const BaseModuleType &top() const
    {
        return *static_cast<const BaseModuleType *>(record.value);
    }
    std::vector<int32_t> statuses()
    {
        std::vector<int32_t> list;
        for (uint32_t i = 0; i < errors(); ++i)
            list.push_back(error(i).status);
        return list;
    }
    // What stands at the place of an error.
    std::string text_at(uint32_t index, size_t length)
    {
        return text.substr(error(index).offset, length);
    }
};

struct recovery_case {
    const char *what;
    std::string content;               // of the module
    std::vector<int32_t> statuses;     // in order
    std::vector<const char *> places;  // the text that each points at
};

const std::string fan = entity("led", led_info);

const recovery_case recovery_cases[] = {
    {"nothing wrong", "<pdNotes>a</pdNotes><driverId>5</driverId>" + fan, {}, {}},
    {"an unknown element",
     "<pdNotes>a</pdNotes><bogus><x/></bogus><driverId>5</driverId>" + fan,
     {XB_E_ELEMENT_UNEXPECTED},
     {"<bogus"}},
    {"an unknown element within a run",
     "<pdNotes>a</pdNotes><bogus/><pdNotes>b</pdNotes>" + fan,
     {XB_E_ELEMENT_UNEXPECTED},
     {"<bogus"}},
    {"an unknown element before everything",
     "<bogus/><pdNotes>a</pdNotes>" + fan,
     {XB_E_ELEMENT_UNEXPECTED},
     {"<bogus"}},
    {"an unknown element behind everything", fan + "<bogus/>", {XB_E_ELEMENT_UNEXPECTED}, {"<bogus"}},
    {"elements out of order",
     "<driverId>5</driverId><pdNotes>a</pdNotes>" + fan,
     {XB_E_ELEMENT_UNEXPECTED},
     {"<pdNotes"}},
    {"an element twice",
     "<driverId>5</driverId><driverId>6</driverId>" + fan,
     {XB_E_ELEMENT_UNEXPECTED},
     {"<driverId>6"}},
    {"a list taken up again",
     "<pdNotes>a</pdNotes><openQuestion>b</openQuestion><pdNotes>c</pdNotes>",
     {XB_E_ELEMENT_UNEXPECTED},
     {"<pdNotes>c"}},
    {"an inherited element behind own ones",
     fan + "<driverId>5</driverId>",
     {XB_E_ELEMENT_UNEXPECTED},
     {"<driverId"}},
    {"an element with a namespace",
     "<pdNotes xmlns='urn:a'>a</pdNotes>" + fan,
     {XB_E_ELEMENT_UNEXPECTED},
     {"<pdNotes"}},
    {"text between elements",
     "<pdNotes>a</pdNotes>text<driverId>5</driverId>" + fan,
     {XB_E_TEXT_UNEXPECTED},
     {"text<"}},
    {"text within a run", "<pdNotes>a</pdNotes>text<pdNotes>b</pdNotes>", {XB_E_TEXT_UNEXPECTED}, {"text<"}},
    {"text behind a single element",
     "<softwareVersion>1</softwareVersion>text<driverId>5</driverId>" + fan,
     {XB_E_TEXT_UNEXPECTED},
     {"text<"}},
    {"text and a misplaced element behind the last inherited element",
     "<driverId>5</driverId>text<softwareVersion>1</softwareVersion>" + fan,
     {XB_E_TEXT_UNEXPECTED, XB_E_ELEMENT_UNEXPECTED},
     {"text<", "<softwareVersion"}},
    {"text around an unknown element behind the last inherited element",
     "<driverId>5</driverId>text<bogus/>text" + fan,
     {XB_E_TEXT_UNEXPECTED, XB_E_ELEMENT_UNEXPECTED, XB_E_TEXT_UNEXPECTED},
     {"text<b", "<bogus", "text<l"}},
    {"text behind the last inherited element",
     "<driverId>5</driverId>text" + fan,
     {XB_E_TEXT_UNEXPECTED},
     {"text<"}},
    {"an inherited part missing whose elements are required",
     entity("storageSPI", "<channel>1</channel><blockSizeKB>01</blockSizeKB>"),
     {XB_E_ELEMENT_MISSING},
     {"<channel"}},
    {"the first element of an inherited part missing whose others are there",
     entity("storageSPI", "<speed>1</speed><channel>1</channel><blockSizeKB>01</blockSizeKB>"),
     {XB_E_ELEMENT_MISSING},
     {"<speed"}},
    {"the first element of a part missing",
     entity("storageSPI", "<maxCapacity>01</maxCapacity><blockSizeKB>01</blockSizeKB>"),
     {XB_E_ELEMENT_MISSING},
     {"<blockSizeKB"}},
    {"text at the end", fan + "text", {XB_E_TEXT_UNEXPECTED}, {"text<"}},
    {"an element in a value", "<driverId>5<x/>6</driverId>" + fan, {XB_E_TEXT_UNEXPECTED}, {"<x/>"}},
    {"a wrong value", "<driverId>five</driverId>" + fan, {XB_E_BAD_INTEGER}, {"five"}},
    {"a missing element",
     entity("led", "<ledInfo><control>ORVL_LED_CONTROL_ON</control></ledInfo>"),
     {XB_E_ELEMENT_MISSING},
     {"<control"}},
    {"an empty content", entity("led", "<ledInfo/>"), {XB_E_ELEMENT_MISSING}, {"<ledInfo/"}},
    {"a required element misspelt",
     entity("led", "<ledInfo><colour>x</colour><control>ORVL_LED_CONTROL_ON</control></ledInfo>"),
     {XB_E_ELEMENT_MISSING},
     {"<colour"}},
    {"required elements swapped",
     entity("led",
            "<ledInfo><control>ORVL_LED_CONTROL_ON</control><color>ORVL_LED_COLOR_RED</color></ledInfo>"),
     {XB_E_ELEMENT_MISSING},
     {"<control"}},
    {"an unknown element before a required one of the extension",
     entity("storageSPI", "<driverId>5</driverId><bogus/><maxCapacity>01</maxCapacity>"
                          "<channel>1</channel><blockSizeKB>01</blockSizeKB>"),
     {XB_E_ELEMENT_MISSING},
     {"<bogus"}},
    {"a counted element missing", entity("led", ""), {XB_E_CONSTRAINT}, {"</led"}},
    {"a counted element missing, and a mistake behind it",
     entity("led", "") + "<bogus/>",
     {XB_E_CONSTRAINT, XB_E_ELEMENT_UNEXPECTED},
     {"</led", "<bogus"}},
    {"a counted element misspelt", entity("led", "<ledinfo/>"), {XB_E_ELEMENT_UNEXPECTED}, {"<ledinfo"}},
    {"an unknown xsi:type",
     "<container xsi:type='Nothing'" + identity + "/>" + fan,
     {XB_E_UNKNOWN_TYPE},
     {"xsi:type"}},
    {"several in one element",
     "<driverId>five</driverId>" + entity("led", "<bogus/><ledInfo/>"),
     {XB_E_BAD_INTEGER, XB_E_ELEMENT_UNEXPECTED, XB_E_ELEMENT_MISSING},
     {"five", "<bogus", "<ledInfo"}},
    {"several of one status",
     "<bogus/><pdNotes>a</pdNotes><bogus/>" + fan + "<bogus/>",
     {XB_E_ELEMENT_UNEXPECTED, XB_E_ELEMENT_UNEXPECTED, XB_E_ELEMENT_UNEXPECTED},
     {"<bogus", "<bogus", "<bogus"}},
};

TEST(DecodeRecovery, each_mistake_is_reported_once_at_its_place)
{
    for (const recovery_case &tried : recovery_cases) {
        decoded d(module(tried.content));
        EXPECT_EQ(d.statuses(), tried.statuses) << tried.what;
        for (uint32_t i = 0; i < tried.places.size() && i < d.errors(); ++i)
            EXPECT_EQ(d.text_at(i, strlen(tried.places[i])), tried.places[i]) << tried.what;
        EXPECT_EQ(d.status, tried.statuses.empty() ? 0 : tried.statuses[0]) << tried.what;
    }
}

TEST(DecodeRecovery, the_first_report_is_the_one_that_ends_a_load)
{
    for (const recovery_case &tried : recovery_cases) {
        decoded load(module(tried.content), false);
        decoded armed(module(tried.content));
        // A load breaks off within the content and counts what it has, before it says where.
        if (load.status == XB_E_CONSTRAINT && armed.status == XB_E_ELEMENT_UNEXPECTED)
            continue;
        EXPECT_EQ(load.status, armed.status) << tried.what;
        if (load.status == 0)
            continue;
        EXPECT_EQ(load.errors(), 1u) << tried.what;
        EXPECT_EQ(load.error().offset, armed.error().offset) << tried.what;
        EXPECT_EQ(load.error().line, armed.error().line) << tried.what;
        EXPECT_EQ(load.parameters(), armed.parameters()) << tried.what;
    }
}

TEST(DecodeRecovery, what_stands_behind_a_failure_is_decoded)
{
    decoded d(module("<pdNotes>a</pdNotes><bogus/><pdNotes>b</pdNotes><driverId>x</driverId>" +
                     entity("led", "<ledInfo/>" + led_info) + fan));
    ASSERT_NE(d.record.value, nullptr);
    const BaseModuleType &top = d.top();
    EXPECT_EQ(top.base.pdNotes.count, 2u);
    EXPECT_EQ(top.base.has.driverId, 0);
    EXPECT_EQ(top.has.ext, 1);
    decoded text_in_run(module("<pdNotes>a</pdNotes>text<pdNotes>b</pdNotes><driverId>5</driverId>"));
    EXPECT_EQ(text_in_run.top().base.pdNotes.count, 2u);
    EXPECT_EQ(text_in_run.top().base.driverId, 5);
    ASSERT_EQ(top.ext.led.count, 2u);
    EXPECT_EQ(node<BaseLEDType>(top.ext.led, 0).ext.ledInfo.count, 2u);
    EXPECT_EQ(node<BaseLEDType>(top.ext.led, 1).ext.ledInfo.count, 1u);
}

TEST(DecodeRecovery, an_element_out_of_order_is_decoded_from_there_on)
{
    decoded d(module("<driverId>5</driverId><pdNotes>a</pdNotes><openQuestion>b</openQuestion>" + fan));
    EXPECT_EQ(d.statuses(), std::vector<int32_t>{XB_E_ELEMENT_UNEXPECTED});
    EXPECT_EQ(d.top().base.pdNotes.count, 1u);
    EXPECT_EQ(d.top().base.openQuestion.count, 1u);
}

TEST(DecodeRecovery, an_inherited_part_whose_first_element_is_missing_is_decoded_all_the_same)
{
    decoded d(
        module(entity("storageSPI", "<speed>7</speed><channel>9</channel><blockSizeKB>01</blockSizeKB>")));
    EXPECT_EQ(d.statuses(), std::vector<int32_t>{XB_E_ELEMENT_MISSING});
    ASSERT_EQ(d.top().ext.storageSPI.count, 1u);
    const auto &flash = node<BaseSpiFlash>(d.top().ext.storageSPI, 0);
    EXPECT_EQ(flash.base.ext.speed, 7u);
    EXPECT_EQ(flash.ext.channel, 9u);
}

TEST(DecodeRecovery, of_a_list_of_codes_those_that_are_none_stay_out)
{
    decoded d(
        module(entity("pcieSwitch", "<configGen>ORVL_PCI_GEN_GEN4</configGen><configGen>GEN9</configGen>"
                                    "<configGen>ORVL_PCI_GEN_DMI2</configGen>")));
    EXPECT_EQ(d.statuses(), std::vector<int32_t>{XB_E_UNKNOWN_TOKEN});
    ASSERT_EQ(d.top().ext.pcieSwitch.count, 1u);
    const auto &codes = node<BasePCIeSwitchType>(d.top().ext.pcieSwitch, 0).ext.configGen;
    ASSERT_EQ(codes.count, 2u);
    EXPECT_EQ(node<uint32_t>(codes, 0), 6u);
    EXPECT_EQ(node<uint32_t>(codes, 1), 1u);
}

TEST(DecodeRecovery, what_was_decoded_before_a_final_failure_is_there)
{
    decoded d(module("<pdNotes>a</pdNotes>" + entity("led", led_info + "<x>")));
    EXPECT_EQ(d.statuses().back(), XB_E_MALFORMED);
    ASSERT_NE(d.record.value, nullptr);
    ASSERT_EQ(d.top().ext.led.count, 1u);
    EXPECT_STREQ(node<BaseLEDType>(d.top().ext.led, 0).base.name, "n");
}

TEST(DecodeRecovery, items_have_places_unless_they_failed)
{
    decoded d(module("<pdNotes>a</pdNotes><driverId>x</driverId>" + fan));
    const BaseModuleType &top = d.top();
    xb_place place;
    const auto text_of = [&](const void *item, size_t length) {
        return rtxPlaceOfItem(&d.ctx, item, &place) ? d.text.substr(place.offset, length) : "none";
    };
    EXPECT_EQ(text_of(&top, 7), "<module");
    EXPECT_EQ(text_of(&top.base.name, 8), "name=\"n\"");
    EXPECT_EQ(text_of(top.base.pdNotes.head->data, 8), "<pdNotes");
    EXPECT_EQ(text_of(&top.base.driverId, 1), "none");
    EXPECT_EQ(text_of(&top.base.softwareVersion, 1), "none");
    const auto &led = node<BaseLEDType>(top.ext.led, 0);
    EXPECT_EQ(text_of(&led, 4), "<led");
    EXPECT_EQ(place.parent, &top);
    const auto &info = node<BaseLedInfoType>(led.ext.ledInfo, 0);
    EXPECT_EQ(text_of(&info.color, 6), "<color");
    EXPECT_EQ(place.parent, &info);
}

TEST(DecodeRecovery, reports_say_what_may_stand_there)
{
    decoded d(
        module("<driverId>70000</driverId><bogus/>" +
               entity("led", "<ledInfo><color>RED</color><control>ORVL_LED_CONTROL_ON</control></ledInfo>")));
    ASSERT_EQ(d.errors(), 3u);
    xb_error_details details = {};
    ASSERT_TRUE(rtxErrGetDetails(&d.ctx, 0, &details));
    EXPECT_TRUE(details.has_range);
    EXPECT_EQ(details.highest, 32767);
    ASSERT_TRUE(rtxErrGetDetails(&d.ctx, 1, &details));
    EXPECT_EQ(details.misplaced, XB_NAME_UNKNOWN);
    const std::vector<std::string> elements(details.words, details.words + details.word_count);
    EXPECT_NE(std::find(elements.begin(), elements.end(), "led"), elements.end());
    EXPECT_EQ(std::find(elements.begin(), elements.end(), "driverId"), elements.end());
    ASSERT_TRUE(rtxErrGetDetails(&d.ctx, 2, &details));
    EXPECT_EQ(details.word_count, 4u);
}

std::vector<std::string> words_of_first_error(decoded &d)
{
    xb_error_details details = {};
    EXPECT_TRUE(rtxErrGetDetails(&d.ctx, 0, &details));
    return {details.words, details.words + details.word_count};
}

TEST(DecodeRecovery, what_may_stand_there_ends_with_the_first_required_element)
{
    decoded in_extension(module(entity("storageSPI", "<bogus/>")));
    EXPECT_EQ(words_of_first_error(in_extension).back(), "maxCapacity");
    decoded behind_inherited(module(entity("storageSPI", "<driverId>5</driverId><bogus/>")));
    EXPECT_EQ(words_of_first_error(behind_inherited), std::vector<std::string>{"maxCapacity"});
}

TEST(DecodeRecovery, what_may_stand_there_is_named_once)
{
    decoded d(module("<container" + identity + "xsi:type='PemBayType'><bogus/></container>"));
    const std::vector<std::string> words = words_of_first_error(d);
    EXPECT_EQ(std::count(words.begin(), words.end(), "i2cIDPROM"), 1);
    EXPECT_EQ(std::count(words.begin(), words.end(), "i2cSensorAccess"), 1);
}

TEST(DecodeRecovery, all_ways_to_write_a_truth_value_are_named)
{
    decoded d(module("<driverRegistered>x</driverRegistered>"));
    EXPECT_EQ(words_of_first_error(d), (std::vector<std::string>{"true", "false", "1", "0"}));
}

TEST(DecodeRecovery, reports_say_whether_the_element_is_known_elsewhere)
{
    const std::pair<const char *, int> cases[] = {
        {"<bogus/>", XB_NAME_UNKNOWN},
        {"<driverId>5</driverId><hardwareVersion>a</hardwareVersion>", XB_NAME_ELSEWHERE},
        {"<pdNotes xmlns='urn:a'>a</pdNotes>", XB_NAME_FOREIGN},
        {"<driverId>x</driverId>", XB_NAME_FITS},
    };
    for (const auto &[content, expected] : cases) {
        decoded d(module(content));
        xb_error_details details = {};
        ASSERT_TRUE(rtxErrGetDetails(&d.ctx, 0, &details)) << content;
        EXPECT_EQ(details.misplaced, expected) << content;
    }
}

TEST(DecodeRecovery, an_element_out_of_order_is_decoded_and_a_second_one_is_not)
{
    decoded late(module("<driverId>5</driverId><hardwareVersion>a</hardwareVersion>"));
    ASSERT_NE(late.record.value, nullptr);
    ASSERT_EQ(late.top().base.has.hardwareVersion, 1);
    EXPECT_STREQ(late.top().base.hardwareVersion, "a");
    decoded twice(module("<driverId>5</driverId><driverId>6</driverId>"));
    ASSERT_NE(twice.record.value, nullptr);
    EXPECT_EQ(twice.top().base.driverId, 5);
}

TEST(DecodeRecovery, a_thousand_mistakes_cost_their_number)
{
    std::string content;
    for (int i = 0; i < 1000; ++i)
        content += "<bogus/>" + entity("led", "<ledInfo><color>x</color></ledInfo>");
    decoded d(module(content));
    EXPECT_EQ(d.errors(), 3000u);
    EXPECT_EQ(d.top().ext.led.count, 1000u);
}

TEST(DecodeRecovery, the_number_of_reports_is_limited)
{
    std::string content;
    for (int i = 0; i < XB_MAX_ARMED_ERRORS + 10; ++i)
        content += "<bogus/>";
    decoded d(module(content));
    EXPECT_EQ(d.errors(), static_cast<uint32_t>(XB_MAX_ARMED_ERRORS));
}

TEST(DecodeRecovery, every_single_failing_request_ends_the_decode_without_a_leak)
{
    const std::string text =
        module("<bogus/><driverId>x</driverId>" + entity("led", "<ledInfo><color>x</color></ledInfo>") + fan);
    const uint64_t live = counting_memory::live();
    for (uint64_t n = 1;; ++n) {
        counting_memory::fail_at(n);
        {
            xb_context ctx = {};
            xb_choice record = {};
            if (rtXmlInitContext(&ctx) == XB_OK && rtxArmContext(&ctx) == XB_OK &&
                rtxStreamMemoryCreateReader(&ctx, text.data(), text.size()) == XB_OK) {
                EXPECT_NE(XmlD_module(&ctx, &record), XB_OK);
            }
            rtxFreeContext(&ctx);
        }
        const bool failed = counting_memory::failed();
        counting_memory::fail_at(0);
        ASSERT_EQ(counting_memory::live(), live) << "request " << n;
        if (!failed)
            break;
        ASSERT_LT(n, 1000u);
    }
}

}  // namespace
