// One loader per document kind: file → decoded records → library records and tree.
#include "inv_parser/loaders.h"

#include "OrvelianInventorySchema.h"
#include "OrvelianInventorySchemaDec.h"
#include "access/slot_lookup.h"
#include "frame/file_memory.h"
#include "frame/trace.h"
#include "inv_parser/record_builders.h"
#include "inv_parser/tree_internal.h"
#include "inv_platform/xml_runtime.h"
#include "inventory_Derivations.h"
#include "records/spent_children.h"
#include "tree/growth.h"
#include "tree/instance_table.h"

#include <sys/stat.h>

sch_chassis_type *chassis_data;
sch_module_type *module_data;
sch_pem_type *pem_data;
sch_power_shelf_type *power_shelf_data;
sch_cxp_fixed_optics_type *cxp_data;
sch_fan_tray_type *fantray_data;

namespace
{

using namespace inv;

// Octets that an entity's text has at least, about.
constexpr size_t least_entity_text = 1024;

// What the five loaders that swallow decode failures have in common.
template <class Start, class Failed>
struct swallowing_document {
    static constexpr bool reports_decode_status = false;
    static void trace_start(const char *file)
    {
        trace<Start>(file);
    }
    static void trace_no_record() {}
    static void trace_no_context(int32_t) {}
    static void trace_decode_failed(const char *file, int32_t)
    {
        trace<Failed>(file);
    }
};

struct chassis_document : swallowing_document<msg::chassis_load_start, msg::chassis_decode_failed> {
    static constexpr loaded_document kind = loaded_chassis_document;
    using record = sch_chassis_type;
    using decoded = ChassisEntityType;
    static constexpr auto initialise = Init_ChassisEntityType;
    static constexpr auto decode = XmlD_chassis;
    static void store(inv_xml_handle *, record *made)
    {
        chassis_data = made;
        root_eid = nullptr;
    }
    static void build(record *made, const decoded *from)
    {
        parser_retrieve_base_entity_data(&made->base, &from->base, nullptr);
        parser_retrieve_chassis_entity_data(made, &from->ext);
    }
};

struct module_document {
    static constexpr loaded_document kind = loaded_module_document;
    using record = sch_module_type;
    using decoded = xb_choice;
    static constexpr auto initialise = Init_BaseModuleType_derivations;
    static constexpr auto decode = XmlD_module;
    static constexpr bool reports_decode_status = true;
    static void store(inv_xml_handle *handle, record *made)
    {
        module_data = made;
        handle->module_record = made;
    }
    static void build(record *made, const decoded *from)
    {
        parser_retrieve_base_module_entity_data(made, static_cast<const BaseModuleType *>(from->value),
                                                nullptr);
    }
    static void trace_start(const char *file)
    {
        trace<msg::module_load_start>(file);
    }
    static void trace_no_record()
    {
        trace<msg::module_no_memory>();
    }
    static void trace_no_context(int32_t status)
    {
        trace<msg::module_context_failed>(status);
    }
    static void trace_decode_failed(const char *file, int32_t status)
    {
        trace<msg::module_decode_failed>(file, status);
    }
};

struct pem_document : swallowing_document<msg::pem_load_start, msg::pem_decode_failed> {
    static constexpr loaded_document kind = loaded_pem_document;
    using record = sch_pem_type;
    using decoded = PEMType;
    static constexpr auto initialise = Init_PEMType;
    static constexpr auto decode = XmlD_pem;
    static void store(inv_xml_handle *, record *made)
    {
        pem_data = made;
    }
    static void build(record *made, const decoded *from)
    {
        parser_retrieve_pem_entity_data(made, from);
    }
};

struct power_shelf_document
    : swallowing_document<msg::power_shelf_load_start, msg::power_shelf_decode_failed> {
    static constexpr loaded_document kind = loaded_power_shelf_document;
    using record = sch_power_shelf_type;
    using decoded = PowerShelfType;
    static constexpr auto initialise = Init_PowerShelfType;
    static constexpr auto decode = XmlD_powerShelf;
    static void store(inv_xml_handle *, record *made)
    {
        power_shelf_data = made;
    }
    static void build(record *made, const decoded *from)
    {
        parser_retrieve_base_entity_data(&made->base, &from->base, nullptr);
        parser_retrieve_power_shelf_entity_data(made, &from->ext);
    }
};

struct cxp_optics_document : swallowing_document<msg::cxp_load_start, msg::cxp_decode_failed> {
    static constexpr loaded_document kind = loaded_optics_document;
    using record = sch_cxp_fixed_optics_type;
    using decoded = OpticsType;
    static constexpr auto initialise = Init_OpticsType;
    static constexpr auto decode = XmlD_optics;
    static void store(inv_xml_handle *, record *made)
    {
        cxp_data = made;
    }
    static void build(record *made, const decoded *from)
    {
        parser_retrieve_cxp_fixed_optics_entity_data(made, from);
    }
};

struct fan_tray_document : swallowing_document<msg::fan_tray_load_start, msg::fan_tray_decode_failed> {
    static constexpr loaded_document kind = loaded_fan_tray_document;
    using record = sch_fan_tray_type;
    using decoded = FanTrayType;
    static constexpr auto initialise = Init_FanTrayType;
    static constexpr auto decode = XmlD_fanTray;
    static void store(inv_xml_handle *, record *made)
    {
        fantray_data = made;
    }
    static void build(record *made, const decoded *from)
    {
        parser_retrieve_fantray_entity_data(made, from);
    }
};

// Decodes the handle's file in a context that is ready, and builds the record.
template <class Document>
int32_t decode_and_build(xb_context *context, inv_xml_handle *handle, typename Document::record *record,
                         size_t expected_entities)
{
    typename Document::decoded decoded;
    Document::initialise(&decoded);
    int32_t status = rtxStreamFileCreateReader(context, handle->file_name);
    if (status == XB_OK)
        status = Document::decode(context, &decoded);
    if (status != XB_OK) {
        Document::trace_decode_failed(handle->file_name, status);
        return Document::reports_decode_status ? status : 0;
    }
    // Only while the builders run does anything get filed under this handle.
    begin_instance_table(handle);
    tree_growth_scope growth(expected_entities);
    slot_lookup_scope slots(handle);
    decoded_scope spent(context);
    parser_set_inv_file_instance(handle);
    Document::build(record, &decoded);
    parser_set_inv_file_instance(nullptr);
    remember_loaded_kind(handle, Document::kind, record);
    return 0;
}

// Of the inventory file; 0 when it is not known.
size_t document_size(const char *file_name)
{
    struct stat status;
    bool is_known = stat(file_name, &status) == 0 && S_ISREG(status.st_mode) && status.st_size > 0;
    return is_known ? static_cast<size_t>(status.st_size) : 0;
}

template <class Document>
int32_t load_record(inv_xml_handle *handle)
{
    // Records take about what the document's text takes.
    const size_t size = document_size(handle->file_name);
    expect_records(size);
    auto *record = record_new<typename Document::record>();
    Document::store(handle, record);
    if (record == nullptr) {
        Document::trace_no_record();
        return 1;
    }
    xb_context context = {};
    int32_t status = rtXmlInitContext(&context);
    if (status != XB_OK) {
        Document::trace_no_context(status);
        rtxFreeContext(&context);
        return status;
    }
    status = decode_and_build<Document>(&context, handle, record, size / least_entity_text);
    rtxStreamClose(&context);
    rtxFreeContext(&context);
    return status;
}

template <class Document>
int32_t load_document(inv_xml_handle *handle)
{
    if (handle == nullptr)
        return 1;
    Document::trace_start(handle->file_name);
    load_scope scope(handle);
    int32_t code = load_record<Document>(handle);
    if (code != 0)
        scope.mark_failed();
    return code;
}

}  // namespace

int32_t parser_retrieve_chassis_data(inv_xml_handle *handle)
{
    return load_document<chassis_document>(handle);
}

int32_t parser_retrieve_module_data(inv_xml_handle *handle)
{
    return load_document<module_document>(handle);
}

int32_t parser_retrieve_pem_xml_data(inv_xml_handle *handle)
{
    return load_document<pem_document>(handle);
}

int32_t parser_retrieve_powershelf_xml_data(inv_xml_handle *handle)
{
    return load_document<power_shelf_document>(handle);
}

int32_t parser_retrieve_cxp_fixed_optics_xml_data(inv_xml_handle *handle)
{
    return load_document<cxp_optics_document>(handle);
}

int32_t parser_retrieve_fantray_xml_data(inv_xml_handle *handle)
{
    return load_document<fan_tray_document>(handle);
}
