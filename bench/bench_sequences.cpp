// Access sequences on a document with 1,000 and with 10,000 entities: cost goes with the hops, not with the
// document. By EID the lookup of the entity comes first and costs more than the sequence.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>
#include <vector>

#include "generate_document.h"
#include "inv_parser/inv_parser.h"

namespace
{

std::string file_to_open;

// The document is needed for the open only; the handle is this one's own.
inv_xml_handle *open_card(uint32_t entities)
{
    std::string name = (std::filesystem::temp_directory_path() / "inv_bench_XXXXXX").string();
    int file = mkstemp(name.data());
    if (file < 0)
        return nullptr;
    close(file);
    inv_bench::document_options options;
    options.entities = entities;
    std::ofstream(name, std::ios::binary) << inv_bench::generate_document(options);
    file_to_open = name;
    fru_xml_loc_info unit = {};
    unit.pi_hw_type = 3;
    inv_xml_handle *handle = inv_parser_open_xml_file_v2(0, &unit);
    std::filesystem::remove(name);
    return handle;
}

// A line card's sensors, each with its EID.
struct sensors_of_card {
    inv_xml_handle *handle = nullptr;
    std::vector<sch_eid_type> eids;
    std::vector<uint16_t> instances;

    explicit sensors_of_card(uint32_t entities) : handle(open_card(entities))
    {
        uint16_t count = 0;
        sch_eid_type *found = nullptr;
        if (handle == nullptr || inv_parser_get_eid_by_type(handle, ORVL_ENTITY_OWNER_TYPE_ALL,
                                                            ORVL_ENTITY_TYPE_SENSOR, &count, &found) != 0)
            return;
        // Spread over the document; the first 64 would all be near its start.
        for (uint32_t i = 0; i < 64 && count > 0; ++i) {
            sch_base_entity_type *entity = nullptr;
            const sch_eid_type &eid = found[i * count / 64];
            if (inv_parser_get_eid_data(handle, &entity, eid) != 0)
                continue;
            eids.push_back(eid);
            instances.push_back(entity->xml_instance);
        }
        inv_parser_free_eid_tree(found);
    }
    ~sensors_of_card()
    {
        if (handle != nullptr)
            inv_parser_close_xml_file(handle);
    }
    sensors_of_card(const sensors_of_card &) = delete;
    sensors_of_card &operator=(const sensors_of_card &) = delete;
};

// Asks for one sensor's sequence after the other; `ask` gets the number of the sensor.
template <class Ask>
void measure(benchmark::State &state, const Ask &ask)
{
    sensors_of_card card(static_cast<uint32_t>(state.range(0)));
    if (card.eids.empty()) {
        state.SkipWithError("no sensors");
        return;
    }
    size_t next = 0;
    int64_t hops = 0;
    for (auto _ : state) {
        sch_i2c_access_seq_type *sequence = nullptr;
        ask(card, next, &sequence);
        next = (next + 1) % card.eids.size();
        if (sequence == nullptr) {
            state.SkipWithError("no sequence");
            return;
        }
        hops += sequence->hop_count;
        inv_parser_free_i2c_access_sequence(sequence);
    }
    state.SetItemsProcessed(state.iterations());
    state.counters["hops"] =
        benchmark::Counter(static_cast<double>(hops), benchmark::Counter::kAvgIterations);
}

void sequence_by_instance(benchmark::State &state)
{
    measure(state, [](const sensors_of_card &card, size_t i, sch_i2c_access_seq_type **out) {
        inv_parser_get_i2c_access_sequence_by_xml_inst(card.handle, card.instances[i], out);
    });
}

void sequence_by_eid(benchmark::State &state)
{
    measure(state, [](const sensors_of_card &card, size_t i, sch_i2c_access_seq_type **out) {
        inv_parser_get_i2c_access_sequence_by_eid(card.handle, &card.eids[i], out);
    });
}

BENCHMARK(sequence_by_instance)->Arg(1000)->Arg(10000);
BENCHMARK(sequence_by_eid)->Arg(1000)->Arg(10000);

}  // namespace

// Benchmarks of other files open by the first generation of the call.
extern "C" const char *platform_get_inv_xml_file_name_v2(const struct fru_xml_loc_info *)
{
    return file_to_open.c_str();
}
