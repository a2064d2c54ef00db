// Decoding of small documents from memory.
#ifndef TESTS_UNIT_DECODE_SUPPORT_H
#define TESTS_UNIT_DECODE_SUPPORT_H

#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "OrvelianInventorySchemaDec.h"
#include "inv_platform/xml_runtime.h"
#include "inventory_DerivationsDec.h"

namespace decode_test
{

inline constexpr const char *decoder_source =
    "orvelian/shared_pkg/common/schema/parser/src/OrvelianInventorySchemaDec";
inline constexpr const char *chooser_source =
    "orvelian/shared_pkg/common/schema/parser/src/inventory_DerivationsDec";

// The six attributes that every entity must have.
inline const std::string identity =
    R"( name="n" type="ORVL_ENTITY_TYPE_MODULE" subtype="ORVL_ENTITY_SUBTYPE_MODULE_SLICE" instance="3")"
    R"( replicationScope="ORVL_REPLICATION_TYPE_NODE" xmlInstance="7" )";

inline constexpr const char *xsi = R"( xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance" )";

struct context {
    xb_context ctx = {};
    std::string text;

    explicit context(std::string document) : text(std::move(document))
    {
        if (rtXmlInitContext(&ctx) == 0)
            rtxStreamMemoryCreateReader(&ctx, text.data(), text.size());
    }
    ~context()
    {
        rtxFreeContext(&ctx);
    }
    context(const context &) = delete;
    context &operator=(const context &) = delete;

    xb_error error(uint32_t index = 0)
    {
        xb_error found = {};
        rtxErrGet(&ctx, index, &found);
        return found;
    }
    uint32_t errors()
    {
        return rtxErrGetCount(&ctx);
    }
    std::vector<std::string> parameters(uint32_t index = 0)
    {
        xb_error found = error(index);
        return std::vector<std::string>(found.parameters, found.parameters + found.parameter_count);
    }
};

// A document decoded by a root decoder.
template <typename Record, int32_t (*Decoder)(xb_context *, Record *)>
struct document : context {
    Record record;
    int32_t status;

    explicit document(std::string text) : context(std::move(text))
    {
        std::memset(static_cast<void *>(&record), 0xA5, sizeof record);
        status = Decoder(&ctx, &record);
    }
};

using module_document = document<xb_choice, XmlD_module>;
using chassis_document = document<ChassisEntityType, XmlD_chassis>;
using shelf_document = document<PowerShelfType, XmlD_powerShelf>;
using pem_document = document<PEMType, XmlD_pem>;
using fan_tray_document = document<FanTrayType, XmlD_fanTray>;
using optics_document = document<OpticsType, XmlD_optics>;

inline const BaseModuleType &module_of(const module_document &d)
{
    return *static_cast<const BaseModuleType *>(d.record.value);
}

// An element <e> decoded by a type's own decoder; the status counts recorded errors too.
template <typename Record, void (*Init)(Record *), int32_t (*Decoder)(xb_context *, Record *)>
struct element : context {
    Record record;
    int32_t status;

    explicit element(std::string text) : context(std::move(text))
    {
        std::memset(static_cast<void *>(&record), 0xA5, sizeof record);
        Init(&record);
        status = rtXmlpCreateReader(&ctx);
        if (status == 0)
            status = rtXmlpMatchStartTag(&ctx, "e", -1);
        if (status == 0)
            status = Decoder(&ctx, &record);
        if (status == 0)
            status = rtXmlpMatchEndTag(&ctx, -1);
        if (status == 0)
            status = rtxErrGetStatus(&ctx);
    }
};

template <typename Record>
const Record &node(const xb_data_list &list, uint32_t index)
{
    const xb_data_node *at = list.head;
    while (index-- > 0)
        at = at->next;
    return *static_cast<const Record *>(at->data);
}

inline std::string text_node(const xb_data_list &list, uint32_t index)
{
    return &node<char>(list, index);
}

// One element without attributes.
inline std::string tag(const std::string &name, const std::string &content)
{
    return "<" + name + ">" + content + "</" + name + ">";
}

// Presence bits that are set.
template <typename Bits>
int bits_set(const Bits &has)
{
    unsigned char octets[sizeof has];
    std::memcpy(octets, &has, sizeof has);
    int count = 0;
    for (unsigned char octet : octets)
        count += __builtin_popcount(octet);
    return count;
}

}  // namespace decode_test

#endif
