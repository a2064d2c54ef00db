// Slots that a control card leads to and no catalogued unit fits.
#include <algorithm>
#include <set>
#include <utility>

#include "catalogue_model.h"
#include "inv_parser/inventory_tokens.h"
#include "slot_model.h"

namespace
{

using namespace invctl::check;

// What fits a kind of slot: documents of a kind, or modules with one of the subtypes. Slots of other kinds
// (for the ECU and its disk, filters, the back plane's ID) may hold parts that have no document.
struct fitting {
    uint32_t container_type;
    document_kind kind;
    uint32_t subtypes[4];  // of modules; 0: no further one
};

constexpr fitting fittings[] = {
    {ORVL_CONTAINER_TYPE_CONTROLCARDSLOT,
     document_kind::module,
     {ORVL_ENTITY_SUBTYPE_MODULE_RP, ORVL_ENTITY_SUBTYPE_MODULE_CC, ORVL_ENTITY_SUBTYPE_MODULE_SC}},
    {ORVL_CONTAINER_TYPE_LINECARDSLOT,
     document_kind::module,
     {ORVL_ENTITY_SUBTYPE_MODULE_MSC, ORVL_ENTITY_SUBTYPE_MODULE_PLIM, ORVL_ENTITY_SUBTYPE_MODULE_MPA,
      ORVL_ENTITY_SUBTYPE_MODULE_XC}},
    {ORVL_CONTAINER_TYPE_FABRICCARDSLOT,
     document_kind::module,
     {ORVL_ENTITY_SUBTYPE_MODULE_FC, ORVL_ENTITY_SUBTYPE_MODULE_SFE}},
    {ORVL_CONTAINER_TYPE_SWITCHCARDSLOT,
     document_kind::module,
     {ORVL_ENTITY_SUBTYPE_MODULE_FCC_SW, ORVL_ENTITY_SUBTYPE_MODULE_SWITCH, ORVL_ENTITY_SUBTYPE_MODULE_SC}},
    {ORVL_CONTAINER_TYPE_SYSTEMCONTSLOT, document_kind::module, {ORVL_ENTITY_SUBTYPE_MODULE_SC}},
    {ORVL_CONTAINER_TYPE_FANTRAYSLOT, document_kind::fan_tray, {ORVL_ENTITY_SUBTYPE_MODULE_FANTRAY}},
    {ORVL_CONTAINER_TYPE_POWERSHELFSLOT,
     document_kind::power_shelf,
     {ORVL_ENTITY_SUBTYPE_MODULE_POWERSHELF, ORVL_ENTITY_SUBTYPE_MODULE_POWERSHELF_AC,
      ORVL_ENTITY_SUBTYPE_MODULE_POWERSHELF_DC}},
    {ORVL_CONTAINER_TYPE_PM, document_kind::pem, {}},
};

bool fits(const fitting &slot, const checked_document &unit)
{
    // A unit that cannot be read may be the one that is missed.
    if (unit.root == nullptr)
        return true;
    if (unit.kind == slot.kind && slot.kind != document_kind::module)
        return true;
    const uint32_t subtype = static_cast<const BaseEntityType *>(unit.root)->subtype;
    return unit.kind == document_kind::module && subtype != 0 &&
           std::find(std::begin(slot.subtypes), std::end(slot.subtypes), subtype) != std::end(slot.subtypes);
}

// Kinds of slots that nothing in the catalogue fits.
std::set<uint32_t> empty_slots(const catalogue_check &catalogue)
{
    std::set<uint32_t> empty;
    for (const fitting &slot : fittings)
        if (std::none_of(catalogue.documents.begin(), catalogue.documents.end(), [&](const auto &each) {
                return each.second != nullptr && fits(slot, *each.second);
            }))
            empty.insert(slot.container_type);
    return empty;
}

std::string what_fits(uint32_t container_type)
{
    std::string text;
    for (const fitting &slot : fittings) {
        if (slot.container_type != container_type)
            continue;
        if (slot.kind != document_kind::module)
            return std::string("a \"") + root_of_kind(slot.kind) + "\" document fits it";
        for (uint32_t subtype : slot.subtypes)
            if (subtype != 0)
                text += (text.empty() ? "" : ", ") + std::string(EidSubType_ToString(subtype));
    }
    return "modules of these subtypes fit it: " + text;
}

}  // namespace

namespace invctl::check
{

void check_slot_without_unit(const catalogue_check &catalogue, finding_list &found)
{
    const std::set<uint32_t> empty = empty_slots(catalogue);
    std::set<std::pair<const checked_document *, uint32_t>> told;  // each kind of slot once for a document
    for (const slot_destination &each : slot_destinations(catalogue)) {
        if (!empty.contains(each.container_type) || !told.emplace(each.document, each.container_type).second)
            continue;
        report(found, *each.document, each.to.owner, &each.to.node->nodeType,
               "no unit of the catalogue fits " + name_of_container_type(each.container_type) +
                   ", where this destination leads")
            .hint = what_fits(each.container_type);
    }
}

}  // namespace invctl::check
