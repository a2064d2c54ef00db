// Slots of chassis that contradict themselves, or that control cards name and no chassis has.
#include <map>
#include <unordered_map>

#include "catalogue_model.h"
#include "inv_parser/inventory_tokens.h"
#include "slot_model.h"

namespace
{

using namespace invctl::check;

const ChassisEntityType *chassis_of(const checked_document *document)
{
    const bool is_chassis =
        document != nullptr && document->root != nullptr && document->kind == document_kind::chassis;
    return is_chassis ? static_cast<const ChassisEntityType *>(document->root) : nullptr;
}

template <class Each>
void for_each_list(const ChassisEntityType &chassis, Each each)
{
    for (const xb_data_node *node = chassis.ext.entityContainerList.head; node != nullptr; node = node->next)
        if (node->data != nullptr)
            each(*static_cast<const BaseContainerListType *>(node->data));
}

template <class Each>
void for_each_container(const BaseContainerListType &list, Each each)
{
    for (const xb_data_node *node = list.entityContainer.head; node != nullptr; node = node->next) {
        const auto *choice = static_cast<const xb_choice *>(node->data);
        if (choice != nullptr && choice->value != nullptr)
            each(*static_cast<const BaseContainerType *>(choice->value));
    }
}

using positions = std::unordered_map<int32_t, const BaseContainerType *>;

// One container: within the list's bounds and at a position of its own.
void check_container(const checked_document &document, const BaseContainerListType &list,
                     const BaseContainerType &container, positions &taken, finding_list &found)
{
    if (!container.has.position)
        return;
    const std::string position = "position " + std::to_string(container.position);
    const entity *of = entity_of(document, &container);
    if (container.position < 0 || container.position >= list.maxContainers)
        report(found, document, of, &container.position,
               position + " is not below maxContainers, " + std::to_string(list.maxContainers))
            .hint = "positions count from 0";
    auto [at, is_new] = taken.emplace(container.position, &container);
    if (!is_new)
        report(found, document, of, &container.position,
               position + " of this kind of slot is that of " + quoted(at->second->base.name) + " already")
            .hint = "give each slot of a kind a position of its own";
}

void check_chassis(const checked_document &document, const ChassisEntityType &chassis, finding_list &found)
{
    std::map<uint32_t, positions> taken;  // by kind of slot
    for_each_list(chassis, [&](const BaseContainerListType &list) {
        const uint32_t count = list.entityContainer.count;
        if (list.maxContainers < 0 || count > static_cast<uint32_t>(list.maxContainers))
            report(found, document, entity_of(document, &list), &list.maxContainers,
                   "the list has " + std::to_string(count) + " containers; maxContainers is " +
                       std::to_string(list.maxContainers))
                .hint = "correct the number, or leave out what is too many";
        for_each_container(list, [&](const BaseContainerType &container) {
            check_container(document, list, container, taken[list.containerType], found);
        });
    });
}

void add_positions(const ChassisEntityType &chassis, std::map<uint32_t, positions> &all)
{
    for_each_list(chassis, [&](const BaseContainerListType &list) {
        positions &kind = all[list.containerType];
        for_each_container(
            list, [&](const BaseContainerType &container) { kind.emplace(container.position, &container); });
    });
    // The slot for the ECU is in no list.
    if (const auto *slot = static_cast<const BaseContainerType *>(chassis.ext.ecuSlot.value))
        all[ORVL_CONTAINER_TYPE_ECUSLOT].emplace(slot->position, slot);
}

// The positions that any chassis has, by kind of slot. A kind may be there without any position.
std::map<uint32_t, positions> all_positions(const catalogue_check &catalogue)
{
    std::map<uint32_t, positions> all;
    for (const auto &[file, document] : catalogue.documents)
        if (const ChassisEntityType *chassis = chassis_of(document.get()))
            add_positions(*chassis, all);
    return all;
}

void check_destination(const slot_destination &each, const std::map<uint32_t, positions> &all,
                       finding_list &found)
{
    const std::string slots = name_of_container_type(each.container_type);
    auto at = all.find(each.container_type);
    if (at == all.end())
        report(found, *each.document, each.to.owner, &each.to.node->nodeType,
               "no chassis of the catalogue has " + slots + ", where this destination leads")
            .hint = "add the slots to the chassis, or correct the node type";
    else if (!at->second.contains(each.to.node->nodePosition))
        report(found, *each.document, each.to.owner, each.to.item(),
               "no " + slots + " of a catalogued chassis has position " +
                   std::to_string(each.to.node->nodePosition))
            .hint = "the chassis' container lists say which positions there are";
}

}  // namespace

namespace invctl::check
{

void check_slot_positions(const catalogue_check &catalogue, finding_list &found)
{
    bool has_chassis = false;
    for (const auto &[file, document] : catalogue.documents)
        if (const ChassisEntityType *chassis = chassis_of(document.get())) {
            has_chassis = true;
            check_chassis(*document, *chassis, found);
        }
    // Without a chassis there is nothing to compare destinations with.
    if (!has_chassis)
        return;
    const std::map<uint32_t, positions> all = all_positions(catalogue);
    for (const slot_destination &each : slot_destinations(catalogue))
        check_destination(each, all, found);
}

}  // namespace invctl::check
