// Values of every kind at their limits.
#include <gtest/gtest.h>

#include "unit/decode_support.h"

using namespace decode_test;

namespace
{

using texts = std::vector<std::string>;

// Extension parts have no initialiser of their own.
template <typename Record>
void cleared(Record *record)
{
    *record = {};
}

// A document with one value in it, and where it goes.
template <typename Record, void (*Init)(Record *), int32_t (*Decoder)(xb_context *, Record *)>
int32_t status_of(const std::string &before, const std::string &value, const std::string &after,
                  int64_t (*get)(const Record &), int64_t *result)
{
    element<Record, Init, Decoder> d(before + value + after);
    *result = d.status == 0 ? get(d.record) : 0;
    return d.status;
}

struct integer_kind {
    const char *kind;
    int32_t (*decode)(const std::string &value, int64_t *result);
    int64_t least;
    int64_t greatest;
    const char *below;
    const char *above;
};

int32_t as_int8(const std::string &value, int64_t *result)
{
    return status_of<BaseIdEEPROMType_2, cleared<BaseIdEEPROMType_2>, XmlDT_BaseIdEEPROMType_2>(
        "<e><checkSum>", value, "</checkSum></e>",
        [](const BaseIdEEPROMType_2 &r) -> int64_t { return r.checkSum; }, result);
}

int32_t as_uint8(const std::string &value, int64_t *result)
{
    return status_of<BaseIdEEPROMType_2, cleared<BaseIdEEPROMType_2>, XmlDT_BaseIdEEPROMType_2>(
        "<e><hardwareVersion>", value, "</hardwareVersion></e>",
        [](const BaseIdEEPROMType_2 &r) -> int64_t { return r.hardwareVersion; }, result);
}

int32_t as_uint16(const std::string &value, int64_t *result)
{
    return status_of<BaseIdEEPROMType_2, cleared<BaseIdEEPROMType_2>, XmlDT_BaseIdEEPROMType_2>(
        "<e><boardID>", value, "</boardID></e>",
        [](const BaseIdEEPROMType_2 &r) -> int64_t { return r.boardID; }, result);
}

int32_t as_int16(const std::string &value, int64_t *result)
{
    return status_of<PCIeNodeType, Init_PCIeNodeType, XmlDT_PCIeNodeType>(
        "<e><deviceType>ORVL_DEV_TYPE_PCITARGET</deviceType><numOfFunctions>", value, "</numOfFunctions></e>",
        [](const PCIeNodeType &r) -> int64_t { return r.numOfFunctions; }, result);
}

int32_t as_int32(const std::string &value, int64_t *result)
{
    return status_of<BaseVoltageMarginType_2, cleared<BaseVoltageMarginType_2>,
                     XmlDT_BaseVoltageMarginType_2>(
        "<e><highValue>", value,
        "</highValue><lowValue>0</lowValue><operation>ORVL_VOLT_MARGIN_OFF</operation></e>",
        [](const BaseVoltageMarginType_2 &r) -> int64_t { return r.highValue; }, result);
}

int32_t as_uint32(const std::string &value, int64_t *result)
{
    return status_of<HardwareRegistersType, Init_HardwareRegistersType, XmlDT_HardwareRegistersType>(
        "<e wordOffset=\"", value, "\"/>",
        [](const HardwareRegistersType &r) -> int64_t { return r.wordOffset; }, result);
}

int32_t as_int64(const std::string &value, int64_t *result)
{
    return status_of<BasePortType_2, cleared<BasePortType_2>, XmlDT_BasePortType_2>(
        "<e><maxBandWidth>", value,
        "</maxBandWidth><operatingBandWidth>1</operatingBandWidth><hwBoardIdentifier>x</hwBoardIdentifier></"
        "e>",
        [](const BasePortType_2 &r) -> int64_t { return r.maxBandWidth; }, result);
}

constexpr integer_kind integer_kinds[] = {
    {"int8", as_int8, INT8_MIN, INT8_MAX, "-129", "128"},
    {"uint8", as_uint8, 0, UINT8_MAX, "-1", "256"},
    {"int16", as_int16, INT16_MIN, INT16_MAX, "-32769", "32768"},
    {"uint16", as_uint16, 0, UINT16_MAX, "-1", "65536"},
    {"int32", as_int32, INT32_MIN, INT32_MAX, "-2147483649", "2147483648"},
    {"uint32", as_uint32, 0, UINT32_MAX, "-1", "4294967296"},
    {"int64", as_int64, INT64_MIN, INT64_MAX, "-9223372036854775809", "9223372036854775808"},
};

TEST(DecodeValues, integers_hold_both_limits)
{
    for (const integer_kind &k : integer_kinds) {
        int64_t result = 0;
        EXPECT_EQ(k.decode(std::to_string(k.least), &result), 0) << k.kind;
        EXPECT_EQ(result, k.least) << k.kind;
        EXPECT_EQ(k.decode(std::to_string(k.greatest), &result), 0) << k.kind;
        EXPECT_EQ(result, k.greatest) << k.kind;
    }
}

TEST(DecodeValues, integers_one_beyond_either_limit_fail)
{
    for (const integer_kind &k : integer_kinds) {
        int64_t result = 0;
        EXPECT_EQ(k.decode(k.below, &result), XB_E_OUT_OF_RANGE) << k.kind;
        EXPECT_EQ(k.decode(k.above, &result), XB_E_OUT_OF_RANGE) << k.kind;
    }
}

TEST(DecodeValues, integers_take_blanks_and_signs_around_digits_only)
{
    for (const integer_kind &k : integer_kinds) {
        int64_t result = 0;
        EXPECT_EQ(k.decode(" +12 ", &result), 0) << k.kind;
        EXPECT_EQ(result, 12) << k.kind;
        for (const char *bad : {"1x", "0x1", "1 2", "--1", "1.0", "+"})
            EXPECT_EQ(k.decode(bad, &result), XB_E_BAD_INTEGER) << k.kind << " " << bad;
    }
}

template <typename Address, int32_t (*Decoder)(xb_context *, Address *)>
struct address : context {
    Address value = {};
    int32_t status;

    explicit address(const std::string &text) : context("<e>" + text + "</e>")
    {
        rtXmlpCreateReader(&ctx);
        rtXmlpMatchStartTag(&ctx, "e", -1);
        status = Decoder(&ctx, &value);
    }
};

using address8 = address<Hex8BitHexAddressType, XmlDT_Hex8BitHexAddressType>;
using address32 = address<Hex32BitHexAddressType, XmlDT_Hex32BitHexAddressType>;

TEST(DecodeValues, addresses_have_exactly_their_octets)
{
    address8 one(" aF ");
    EXPECT_EQ(one.status, 0);
    EXPECT_EQ(one.value.count, 1u);
    EXPECT_EQ(one.value.octets[0], 0xAF);
    address32 four("01020304");
    EXPECT_EQ(four.status, 0);
    EXPECT_EQ(four.value.count, 4u);
    EXPECT_EQ(four.value.octets[3], 4);
}

TEST(DecodeValues, addresses_with_fewer_octets_fail_with_name_and_count)
{
    address8 none("");
    EXPECT_EQ(none.status, XB_E_CONSTRAINT);
    EXPECT_EQ(none.parameters(), (texts{"Hex8BitHexAddressType", "0"}));
    address32 three("010203");
    EXPECT_EQ(three.status, XB_E_CONSTRAINT);
    EXPECT_EQ(three.parameters(), (texts{"Hex32BitHexAddressType", "3"}));
    EXPECT_EQ(three.value.count, 0u);
}

TEST(DecodeValues, addresses_longer_than_their_buffer_fail_with_name_and_count)
{
    address8 two("0102");
    EXPECT_EQ(two.status, XB_E_CONSTRAINT);
    EXPECT_EQ(two.value.count, 0u);
    EXPECT_EQ(two.parameters(), (texts{"Hex8BitHexAddressType", "2"}));
    address32 five("0102030405");
    EXPECT_EQ(five.status, XB_E_CONSTRAINT);
    EXPECT_EQ(five.parameters(), (texts{"Hex32BitHexAddressType", "5"}));
    EXPECT_EQ(address32(std::string(200000, 'a')).status, XB_E_CONSTRAINT);
}

TEST(DecodeValues, odd_digits_and_other_letters_are_no_octets)
{
    for (const char *bad : {"0", "012", "0g", "0x01", "01 2"}) {
        EXPECT_EQ(address8(bad).status, XB_E_BAD_HEX) << bad;
        EXPECT_EQ(address32(bad).status, XB_E_BAD_HEX) << bad;
    }
}

TEST(DecodeValues, octet_strings_have_any_length)
{
    using spi_port = element<SpiPortType, Init_SpiPortType, XmlDT_SpiPortType>;
    spi_port empty("<e><channel/></e>");
    EXPECT_EQ(empty.status, 0);
    EXPECT_EQ(empty.record.channel.count, 0u);
    spi_port many("<e><channel>" + std::string(2000, '7') + "</channel></e>");
    ASSERT_EQ(many.status, 0);
    EXPECT_EQ(many.record.channel.count, 1000u);
    EXPECT_EQ(many.record.channel.octets[999], 0x77);
}

TEST(DecodeValues, an_address_that_fails_as_attribute_is_recorded_and_holds_no_octets)
{
    using sensor = element<BaseSensorType, Init_BaseSensorType, XmlDT_BaseSensorType>;
    sensor d("<e" + identity +
             R"(marginRegister="0102030405"><value>1</value><lastValue>1</lastValue>)"
             R"(<unit>ORVL_SENSOR_UNIT_RPM</unit><scale>ORVL_SENSOR_SCALE_UNITS</scale></e>)");
    EXPECT_EQ(d.status, XB_E_CONSTRAINT);
    EXPECT_FALSE(d.error().fatal);
    EXPECT_EQ(d.parameters(), (texts{"Hex32BitHexAddressType", "5", "BaseSensorType", "marginRegister"}));
    EXPECT_EQ(d.record.has.marginRegister, 0);
    EXPECT_EQ(d.record.marginRegister.count, 0u);
    EXPECT_EQ(d.record.ext.value, 1);
}

TEST(DecodeValues, power_is_a_decimal)
{
    using producer = element<PowerProducerType, Init_PowerProducerType, XmlDT_PowerProducerType>;
    producer d("<e><maxPower> -0.25 </maxPower><currentPower>1500</currentPower></e>");
    ASSERT_EQ(d.status, 0);
    EXPECT_EQ(d.record.maxPower, -0.25);
    EXPECT_EQ(d.record.currentPower, 1500);
    for (const char *bad : {"1e3", "NaN", "INF", "", "1,5"})
        EXPECT_EQ(producer("<e><maxPower>" + std::string(bad) + "</maxPower></e>").status, XB_E_BAD_DECIMAL)
            << bad;
}

TEST(DecodeValues, booleans_are_true_false_1_and_0)
{
    auto status = [](const std::string &value) {
        return module_document("<module" + identity + ">" + tag("driverRequired", value) + "</module>")
            .status;
    };
    for (const char *good : {"true", "false", "1", "0", " true\n"})
        EXPECT_EQ(status(good), 0) << good;
    for (const char *bad : {"TRUE", "yes", "2", "tru e"})
        EXPECT_EQ(status(bad), XB_E_BAD_BOOLEAN) << bad;
}

TEST(DecodeValues, texts_and_tokens_keep_their_white_space)
{
    module_document d("<module" + identity + "><kbrsReference> a  b </kbrsReference></module>");
    ASSERT_EQ(d.status, 0);
    EXPECT_STREQ(module_of(d).base.kbrsReference, " a  b ");
    module_document token("<module" + identity +
                          "><pdHardwareModel>ORVL_HW_MODEL_UNKNOWN </pdHardwareModel></module>");
    EXPECT_EQ(token.status, XB_E_UNKNOWN_TOKEN);
    EXPECT_EQ(token.parameters(), texts{"ORVL_HW_MODEL_UNKNOWN "});
}

TEST(DecodeValues, an_element_inside_a_value_fails)
{
    EXPECT_EQ(module_document("<module" + identity + "><driverId>1<b/></driverId></module>").status,
              XB_E_TEXT_UNEXPECTED);
    EXPECT_EQ(module_document("<module" + identity + "><kbrsReference>a<b/></kbrsReference></module>").status,
              XB_E_TEXT_UNEXPECTED);
}

}  // namespace
