// A document decoded and built outside of a load, as a client may do that calls the builders itself: its
// records come from the process heap and go one by one. The first octet says which kind of document it is.
// The same document is then opened and closed, which from here on has to look for such records, too.
#include "memory_file.h"
#include "query_everything.h"

#include "OrvelianInventorySchema.h"
#include "OrvelianInventorySchemaDec.h"
#include "frame/file_memory.h"
#include "inv_parser/frame.h"
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"
#include "inv_parser/tree_internal.h"
#include "inv_platform/xml_runtime.h"
#include "inventory_Derivations.h"

#include <iterator>

#if defined(__SANITIZE_ADDRESS__)
#define FUZZ_FINDS_LEAKS 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define FUZZ_FINDS_LEAKS 1
#endif
#endif
#ifdef FUZZ_FINDS_LEAKS
#include <sanitizer/lsan_interface.h>
#endif

namespace
{

// Kept by contract: some parts of records made by hand are released by nobody.
struct expected_leaks {
    expected_leaks()
    {
#ifdef FUZZ_FINDS_LEAKS
        __lsan_disable();
#endif
    }
    ~expected_leaks()
    {
#ifdef FUZZ_FINDS_LEAKS
        __lsan_enable();
#endif
    }
};

// Decodes and builds one kind; null when the document is refused.
template <class Record, class Decoded, auto initialise, auto decode, auto build>
Record *made_by_hand(xb_context *context)
{
    Decoded decoded;
    initialise(&decoded);
    if (decode(context, &decoded) != XB_OK)
        return nullptr;
    auto *record = inv::record_new<Record>();
    build(record, decoded);
    return record;
}

void build_chassis(sch_chassis_type *record, const ChassisEntityType &decoded)
{
    parser_retrieve_base_entity_data(&record->base, &decoded.base, nullptr);
    parser_retrieve_chassis_entity_data(record, &decoded.ext);
}

void build_module(sch_module_type *record, const xb_choice &decoded)
{
    parser_retrieve_base_module_entity_data(record, static_cast<const BaseModuleType *>(decoded.value),
                                            nullptr);
}

void build_fan_tray(sch_fan_tray_type *record, const FanTrayType &decoded)
{
    parser_retrieve_fantray_entity_data(record, &decoded);
}

void build_power_shelf(sch_power_shelf_type *record, const PowerShelfType &decoded)
{
    parser_retrieve_base_entity_data(&record->base, &decoded.base, nullptr);
    parser_retrieve_power_shelf_entity_data(record, &decoded.ext);
}

void build_pem(sch_pem_type *record, const PEMType &decoded)
{
    parser_retrieve_pem_entity_data(record, &decoded);
}

void build_optics(sch_cxp_fixed_optics_type *record, const OpticsType &decoded)
{
    parser_retrieve_cxp_fixed_optics_entity_data(record, &decoded);
}

template <auto make>
void *make_any(xb_context *context)
{
    return make(context);
}

struct kind {
    uint32_t pi_hw_type;
    void *(*make)(xb_context *);
    void (*release)(inv_xml_handle *);
};

constexpr kind kinds[] = {
    {1,
     make_any<made_by_hand<sch_chassis_type, ChassisEntityType, Init_ChassisEntityType, XmlD_chassis,
                           build_chassis>>,
     inv_schema_free_chassis_data},
    {3,
     make_any<made_by_hand<sch_module_type, xb_choice, Init_BaseModuleType_derivations, XmlD_module,
                           build_module>>,
     inv_schema_free_base_module_data},
    {7,
     make_any<made_by_hand<sch_fan_tray_type, FanTrayType, Init_FanTrayType, XmlD_fanTray, build_fan_tray>>,
     inv_schema_free_fan_tray_data},
    {8,
     make_any<made_by_hand<sch_power_shelf_type, PowerShelfType, Init_PowerShelfType, XmlD_powerShelf,
                           build_power_shelf>>,
     inv_schema_free_power_shelf_data},
    {9, make_any<made_by_hand<sch_pem_type, PEMType, Init_PEMType, XmlD_pem, build_pem>>,
     inv_schema_free_pem_data},
    {12,
     make_any<
         made_by_hand<sch_cxp_fixed_optics_type, OpticsType, Init_OpticsType, XmlD_optics, build_optics>>,
     inv_schema_free_port_module_data},
};

void empty_indexes(inv_xml_handle *handle)
{
    parser_avl_delete_inst_tree(&handle->i2c_xml_inst_index, parser_xml_inst_compare);
    parser_avl_delete_inst_tree(&handle->pcie_xml_inst_index, parser_xml_inst_compare);
    parser_free_cc_slot_xml_inst(handle->i2c_cc_slot_lists);
    parser_free_cc_slot_xml_inst(handle->pcie_cc_slot_lists);
}

void build_by_hand(const kind &which, const uint8_t *data, size_t size)
{
    expected_leaks from_here;
    xb_context context = {};
    auto *handle = inv::record_new<inv_xml_handle>();
    void *record = nullptr;
    root_eid = nullptr;
    parser_set_inv_file_instance(handle);
    if (rtXmlInitContext(&context) == XB_OK && rtxStreamMemoryCreateReader(&context, data, size) == XB_OK)
        record = which.make(&context);
    rtxFreeContext(&context);
    parser_set_inv_file_instance(nullptr);
    handle->root = root_eid;
    if (which.pi_hw_type == 3)
        handle->module_record = static_cast<sch_module_type *>(record);
    if (handle->root != nullptr)
        query_everything(handle);
    root_eid = nullptr;
    empty_indexes(handle);
    if (record != nullptr)
        which.release(handle);
    else
        inv::record_free(handle);
}

void open_and_close(const kind &which)
{
    inv_xml_handle *handle = inv_parser_open_xml_file(0, which.pi_hw_type, 0, "");
    const bool stays = handle != nullptr && handle->root == nullptr;
    if (handle != nullptr) {
        inv_parser_close_xml_file(handle);
    } else {
        handle = inv_parser_get_xml_handle(0, which.pi_hw_type, 0, "");
        inv_schema_update_the_xml_handle_list(handle);
        inv_schema_free_base_module_data(handle);
    }
    // Kept by contract: a handle without a tree stays allocated after its close.
    if (stays)
        inv_schema_free_base_module_data(handle);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
    const kind &which = kinds[data[0] % std::size(kinds)];
    build_by_hand(which, data + 1, size - 1);
    const memory_file document = make_memory_file(data + 1, size - 1);
    file_to_open = document.name;
    if (!document.name.empty())
        open_and_close(which);
    remove_memory_file(document);
    return 0;
}
