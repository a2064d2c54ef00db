// Random forests of muxes and switches against a slow model that knows nothing of indexes.
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"
#include "support/current_file_fixture.h"
#include "unit/access_sequence_world.h"

#include <algorithm>
#include <optional>
#include <random>
#include <set>

using namespace sequence_world;

namespace
{

struct described_destination {
    uint32_t position;
    uint16_t device_id;
};

struct described_port {
    uint8_t number;
    std::vector<described_destination> destinations;
};

// An entity as its document has it. Both kinds of port are drawn, so that the families differ.
struct described_entity {
    uint16_t instance;
    uint8_t device;  // type, model, address and own port follow from it; 0: no device at all
    std::vector<described_port> i2c_ports;
    std::vector<described_port> pcie_ports;

    template <class Family>
    std::vector<described_port> &ports()
    {
        return std::is_same_v<Family, i2c> ? i2c_ports : pcie_ports;
    }
    template <class Family>
    const std::vector<described_port> &ports() const
    {
        return std::is_same_v<Family, i2c> ? i2c_ports : pcie_ports;
    }
};

using forest = std::vector<described_entity>;

// ---- The model ---------------------------------------------------------------------------------------

struct model_hop {
    uint32_t instance;
    uint32_t device;
    uint32_t link;
    uint32_t device_id;
    bool operator==(const model_hop &) const = default;
};

struct outcome {
    uint32_t result = 1;
    bool is_cleared = false;
    std::vector<model_hop> hops;
    id_list traces;
    bool operator==(const outcome &) const = default;
};

struct way_in {
    uint32_t parent = 0;
    uint32_t link = 0;
    uint32_t device_id = 0;
    bool exists = false;
};

const described_entity *last_entity(const forest &document, uint32_t instance)
{
    const described_entity *found = nullptr;
    for (const described_entity &each : document)
        if (each.instance == instance)
            found = &each;
    return found;
}

template <class Family>
way_in last_way_in(const forest &document, uint32_t instance)
{
    way_in found;
    for (const described_entity &owner : document)
        for (const described_port &port : owner.ports<Family>())
            for (const described_destination &each : port.destinations)
                if (each.position == instance)
                    found = {owner.instance, port.number,
                             std::is_same_v<Family, pcie> ? each.device_id : uint32_t{0}, true};
    return found;
}

template <class Family>
outcome model(const forest &document, uint32_t target)
{
    outcome told;
    std::vector<std::pair<uint32_t, const described_entity *>> up;
    std::vector<way_in> ways;
    if (target == 0)
        return told;
    for (uint32_t at = target;;) {
        const described_entity *entity = last_entity(document, at);
        way_in way = last_way_in<Family>(document, at);
        if (entity == nullptr && !way.exists) {
            told.traces.push_back(up.empty() ? Family::no_node : Family::no_parent);
            if (up.empty())
                return told;
            break;
        }
        if (up.size() == static_cast<size_t>(Family::max_hops))
            return told;
        up.emplace_back(at, entity);
        ways.push_back(way);
        if (entity == nullptr && up.size() == 1) {
            told.traces.push_back(Family::no_entity);
            return told;
        }
        if (entity == nullptr || !way.exists)
            break;
        at = way.parent;
    }
    for (size_t i = up.size(); i-- > 0;) {
        if (up[i].first > 10000 || up[i].second == nullptr) {
            told.traces.push_back(up[i].first > 10000 ? Family::too_large : Family::hop_no_entity);
            told.is_cleared = true;
            told.hops.clear();
            return told;
        }
        bool is_last = i == 0;
        told.hops.push_back({up[i].first, up[i].second->device, is_last ? 0 : ways[i - 1].link,
                             is_last ? 0 : ways[i - 1].device_id});
    }
    if (std::is_same_v<Family, i2c> && told.hops.back().device == 0)
        told.hops.pop_back();
    told.result = 0;
    return told;
}

// ---- The library -------------------------------------------------------------------------------------

// The decoded form of one entity; lists point into it.
struct decoded_form {
    BaseEntityType entity = {};
    std::deque<I2cPortType> i2c_ports;
    std::deque<I2cDestType> i2c_destinations;
    std::deque<BasePCIePortType> pcie_ports;
    std::deque<PCIeDestType> pcie_destinations;
    std::deque<uint8_t> octets;
    std::deque<decoded_list> lists;

    explicit decoded_form(const described_entity &from)
    {
        entity = decoded_entity("entity", static_cast<int16_t>(from.instance));
        entity.has.i2cNode = entity.has.pcieNode = from.device != 0;
        entity.i2cNode.deviceType = entity.pcieNode.deviceType = from.device;
        entity.i2cNode.has.deviceAddress = 1;
        entity.i2cNode.deviceAddress = {1, {from.device}};
        entity.pcieNode.has.portNumber = 1;
        entity.pcieNode.portNumber = {1, {from.device}};
        decoded_list &over_i2c = lists.emplace_back();
        for (const described_port &port : from.i2c_ports)
            over_i2c.add(i2c_port(port));
        entity.i2cPort = over_i2c;
        decoded_list &over_pcie = lists.emplace_back();
        for (const described_port &port : from.pcie_ports)
            over_pcie.add(pcie_port(port));
        entity.pciePort = over_pcie;
    }
    decoded_form(const decoded_form &) = delete;
    decoded_form &operator=(const decoded_form &) = delete;

    static NodeInfoType node_info(const described_destination &to)
    {
        NodeInfoType node = {};
        node.has.nodePosition = 1;
        node.nodeType = SCH_NODE_TYPE_ENTITY;
        node.nodePosition = static_cast<int16_t>(to.position);
        return node;
    }
    I2cPortType *i2c_port(const described_port &from)
    {
        decoded_list &destinations = lists.emplace_back();
        for (const described_destination &each : from.destinations) {
            I2cDestType &to = i2c_destinations.emplace_back();
            to.nodeInfo = node_info(each);
            destinations.add(&to);
        }
        I2cPortType &port = i2c_ports.emplace_back();
        octets.push_back(from.number);
        port.channelNumber = {1, &octets.back()};
        port.dstInfo = destinations;
        return &port;
    }
    BasePCIePortType *pcie_port(const described_port &from)
    {
        decoded_list &destinations = lists.emplace_back();
        for (const described_destination &each : from.destinations) {
            PCIeDestType &to = pcie_destinations.emplace_back();
            to.nodeInfo = node_info(each);
            to.has.deviceId = 1;
            to.deviceId = {
                4, {0, 0, static_cast<uint8_t>(each.device_id >> 8), static_cast<uint8_t>(each.device_id)}};
            destinations.add(&to);
        }
        BasePCIePortType &port = pcie_ports.emplace_back();
        port.portNumber = {1, {from.number}};
        port.dstInfo = destinations;
        return &port;
    }
};

uint32_t device_of(const sch_i2c_access_hop_type &hop)
{
    return hop.device_type == hop.device_address ? hop.device_type : 999;
}

uint32_t device_of(const sch_pcie_access_hop_type &hop)
{
    return hop.device_type == hop.port_number ? hop.device_type : 999;
}

uint32_t device_id_of(const sch_i2c_access_hop_type &)
{
    return 0;
}

uint32_t device_id_of(const sch_pcie_access_hop_type &hop)
{
    return hop.device_id;
}

template <class Family>
outcome ask(inv_xml_handle *file, uint32_t target)
{
    static typename Family::hop mark;
    auto *const untouched = reinterpret_cast<typename Family::sequence *>(&mark);
    auto *made = untouched;
    trace_recorder::clear();
    outcome told;
    told.result = Family::by_xml_inst(file, static_cast<int32_t>(target), &made);
    told.traces = trace_recorder::ids();
    told.is_cleared = made == nullptr;
    if (made == nullptr || made == untouched)
        return told;
    for (int i = 0; i < made->hop_count; ++i) {
        const typename Family::hop &hop = made->hops[i];
        told.hops.push_back({hop.xml_instance, device_of(hop), Family::link(hop), device_id_of(hop)});
    }
    Family::release(made);
    return told;
}

// ---- The drawing -------------------------------------------------------------------------------------

class drawing
{
public:
    explicit drawing(uint32_t seed) : random(seed) {}

    forest draw()
    {
        forest document = trees();
        for (uint32_t faults = below(4); faults > 0; --faults)
            add_fault(document);
        std::shuffle(document.begin(), document.end(), random);
        return document;
    }

private:
    uint32_t below(uint32_t limit)
    {
        return static_cast<uint32_t>(random() % limit);
    }
    uint8_t octet()
    {
        return static_cast<uint8_t>(below(256));
    }
    described_entity &any(forest &document)
    {
        return document[below(static_cast<uint32_t>(document.size()))];
    }
    template <class Family>
    void lead(described_entity &owner, uint32_t position)
    {
        auto &ports = owner.ports<Family>();
        if (ports.empty() || below(2) == 0)
            ports.push_back({octet(), {}});
        ports[below(static_cast<uint32_t>(ports.size()))].destinations.push_back(
            {position, static_cast<uint16_t>(below(65536))});
    }
    // Each entity below an earlier one, or on its own; sometimes a long line.
    forest trees()
    {
        bool is_line = below(8) == 0;
        uint32_t count = is_line ? 8 + below(22) : 1 + below(12);
        std::vector<uint16_t> instances(60);
        for (uint16_t i = 0; i < instances.size(); ++i)
            instances[i] =
                static_cast<uint16_t>(i < 55 ? i + 1 : i + 9942);  // the last ones are 9997 to 10001
        std::shuffle(instances.begin(), instances.end(), random);
        forest document;
        for (uint32_t i = 0; i < count; ++i) {
            document.push_back({instances[i], below(6) == 0 ? uint8_t{0} : octet(), {}, {}});
            if (i == 0 || (!is_line && below(4) == 0))
                continue;
            lead<i2c>(document[is_line ? i - 1 : below(i)], instances[i]);
            lead<pcie>(document[is_line ? i - 1 : below(i)], instances[i]);
        }
        return document;
    }
    void add_fault(forest &document)
    {
        switch (below(6)) {
        case 0:  // a second way, a loop or a port to itself
            lead<i2c>(any(document), any(document).instance);
            break;
        case 1:
            lead<pcie>(any(document), any(document).instance);
            break;
        case 2:  // a destination without entity
            lead<i2c>(any(document), 70 + below(3));
            lead<pcie>(any(document), 70 + below(3));
            break;
        case 3:  // an instance twice
            document.push_back({any(document).instance, octet(), {}, {}});
            break;
        case 4:  // instance 0 as a parent
            document.push_back({0, octet(), {}, {}});
            lead<i2c>(document.back(), document.front().instance);
            lead<pcie>(document.back(), document.front().instance);
            break;
        default:  // its destinations come from nowhere
            any(document).instance = static_cast<uint16_t>(100 + below(3));
        }
    }

    std::mt19937 random;
};

class AccessSequenceProperty : public CurrentFile
{
protected:
    template <class Family>
    void compare(const forest &document, uint32_t seed)
    {
        std::set<uint32_t> targets = {0, 70, 71, 72, 73, 100, 10001};
        for (const described_entity &each : document)
            targets.insert(each.instance);
        for (uint32_t target : targets) {
            outcome expected = model<Family>(document, target);
            outcome told = ask<Family>(&handle, target);
            ASSERT_EQ(told.result, expected.result) << "seed " << seed << " target " << target;
            ASSERT_EQ(told.traces, expected.traces) << "seed " << seed << " target " << target;
            ASSERT_TRUE(told == expected) << "seed " << seed << " target " << target;
            succeeded += told.result == 0;
            failed += told.result != 0;
            longest = std::max(longest, told.hops.size());
        }
    }

    size_t succeeded = 0;
    size_t failed = 0;
    size_t longest = 0;
};

TEST_F(AccessSequenceProperty, ten_thousand_random_forests_agree_with_a_slow_model)
{
    for (uint32_t seed = 1; seed <= 10000; ++seed) {
        forest document = drawing(seed).draw();
        std::deque<sch_base_entity_type> records;
        for (const described_entity &each : document) {
            decoded_form decoded(each);
            ASSERT_EQ(parser_retrieve_base_entity_data(&records.emplace_back(), &decoded.entity, nullptr),
                      0u);
        }
        compare<i2c>(document, seed);
        compare<pcie>(document, seed);
        take_down();
        for (sch_base_entity_type &record : records)
            inv_schema_free_base_entity_data(&record);
        if (HasFatalFailure())
            return;
        parser_set_inv_file_instance(&handle);
    }
    EXPECT_GT(succeeded, 50000u);
    EXPECT_GT(failed, 50000u);
    EXPECT_EQ(longest, 25u) << "some chains are as long as they may be";
}

}  // namespace
