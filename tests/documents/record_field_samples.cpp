#include "record_fields.h"

namespace record_fields
{

samples boolean()
{
    return {{"false", 0}, {"true", 1}, {"0", 0}, {"1", 1}};
}

samples signed_8()
{
    return {{"0", 0}, {"-128", -128}, {"127", 127}};
}

samples unsigned_8()
{
    return {{"0", 0}, {"255", 255}};
}

samples signed_16()
{
    return {{"0", 0}, {"-32768", -32768}, {"32767", 32767}, {"-1", -1}};
}

samples unsigned_16()
{
    return {{"0", 0}, {"65535", 65535}};
}

samples signed_32()
{
    return {{"0", 0}, {"-2147483648", INT32_MIN}, {"2147483647", INT32_MAX}};
}

samples unsigned_32()
{
    return {{"0", 0}, {"4294967295", UINT32_MAX}};
}

samples signed_64()
{
    return {{"0", 0}, {"-9223372036854775808", INT64_MIN}, {"9223372036854775807", INT64_MAX}};
}

samples hex_octet()
{
    return {{"00", 0}, {"FF", 0xff}, {"a5", 0xa5}};
}

samples hex_word()
{
    return {{"00000000", 0}, {"FFFFFFFF", 0xffffffff}, {"12345678", 0x12345678}, {"80000001", 0x80000001}};
}

samples hex_first_octet()
{
    return {{"00", 0}, {"FF", 0xff}, {"12345678", 0x12}, {"", 0}};
}

samples power(uint32_t width_in_bits)
{
    int64_t limit = int64_t{1} << width_in_bits;
    return {{"0", 0},
            {std::to_string(limit - 1), limit - 1},
            {std::to_string(limit), 0},
            {std::to_string(limit - 1) + ".99", limit - 1},
            {"99.9", 99},
            {"-0.9", 0},
            {"-1.5", -1}};
}

samples text_up_to(size_t limit)
{
    std::string full;
    for (size_t i = 0; i < limit; ++i)
        full += static_cast<char>('a' + i % 26);
    return {{"a", 0, "a"}, {full, 0, full}, {full + "!", 0, full}, {full + full, 0, full}};
}

samples tokens(const char *first, const char *last, int64_t last_code)
{
    return {{first, 0}, {last, last_code}};
}

field_row number(place field, const std::string &item, samples texts, uint32_t bit)
{
    return {field, held_as::number, item, std::move(texts), bit};
}

field_row text(place field, const std::string &item, samples texts, uint32_t bit)
{
    return {field, held_as::text, item, std::move(texts), bit};
}

field_row list(place field, const std::string &item, const std::string &markup)
{
    field_row row = {field, held_as::list, item, {{"", 1}}};
    row.markup = markup;
    return row;
}

field_row untouched(place field, const std::string &item, const std::string &markup)
{
    field_row row = {field, held_as::text, item, {{"not carried"}}};
    row.markup = markup;
    return row;
}

field_row with_markup(field_row row, const std::string &markup)
{
    row.markup = markup;
    return row;
}

std::string entity(const std::string &element, const std::string &more)
{
    return "<" + element +
           " name=\"n\" type=\"ORVL_ENTITY_TYPE_MODULE\" subtype=\"ORVL_ENTITY_SUBTYPE_MODULE_MSC\" "
           "instance=\"0\""
           " replicationScope=\"ORVL_REPLICATION_TYPE_NODE\"" +
           (more.empty() ? "" : " " + more);
}

std::string whole_entity(const std::string &element, const std::string &more, const std::string &content,
                         const std::string &xml_instance)
{
    return entity(element, more) + " xmlInstance=\"" + xml_instance + "\">" + content + "</" + element + ">";
}

std::string module_before()
{
    return entity("module") + " xmlInstance=\"1\">";
}

std::string module_after()
{
    return "</module>";
}

std::string chassis_before()
{
    return entity("chassis") +
           " xmlInstance=\"1\"><fruBits>0</fruBits><instanceBits>0</instanceBits><rackNumber>0</rackNumber>"
           "<availablePower>0</availablePower><powerInfo>" +
           power_zone_element + "</powerInfo>";
}

item required(const std::string &name, const std::string &usual, const std::string &markup)
{
    return {name, usual, true, markup};
}

std::vector<item> entity_items(std::vector<item> items)
{
    items.insert(items.begin(), required("@xmlInstance", "-32768"));
    return items;
}

field_row base_row(const char *member)
{
    place xml_instance = {member, offsetof(sch_base_entity_type, xml_instance), sizeof(uint16_t)};
    return number(xml_instance, "@xmlInstance", signed_16());
}

field_row inner_entity(place xml_instance, const std::string &item, const std::string &more,
                       const std::string &content, uint32_t bit)
{
    return with_markup(number(xml_instance, item, signed_16(), bit), whole_entity(item, more, content, "%"));
}

const char *const seq_type_and_description = "<seqType>ORVL_SEQ_FULL</seqType><description/>";
const char *const power_zone_element =
    "<powerZone><zone>ORVL_POWER_ZONE_UNKNOWN</zone><powerOnOffCapability>0</powerOnOffCapability>"
    "<powerApplied>0</powerApplied><totalPowerRequired>0</totalPowerRequired><mainZone>0</mainZone>"
    "<pdZoneNumber>0</pdZoneNumber></powerZone>";
const char *const sensor_content =
    "<value>0</value><lastValue>0</lastValue><unit>ORVL_SENSOR_UNIT_DUMMY</unit>"
    "<scale>ORVL_SENSOR_SCALE_DUMMY</scale>";
const char *const fpga_content = "<fieldUpgradable>0</fieldUpgradable><size>0</size>";
const char *const storage_content = "<maxCapacity>00</maxCapacity>";
const char *const led_content =
    "<ledInfo><color>ORVL_LED_COLOR_BLUE</color><control>ORVL_LED_CONTROL_ON</control></ledInfo>";

}  // namespace record_fields
