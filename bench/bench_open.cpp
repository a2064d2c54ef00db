// Open and close of documents of every kind and the memory that an open one takes, and the EID queries
// on a line card, by number of entities.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <unistd.h>

#include "generate_document.h"
#include "generate_unit_document.h"
#include "inv_parser/inv_parser.h"

namespace
{

std::string file_to_open;

struct document_kind {
    const char *name;
    uint32_t pi_hw_type;
    std::string (*text)(uint32_t entities);
};

std::string card_text(uint32_t entities)
{
    inv_bench::document_options options;
    options.entities = entities;
    return inv_bench::generate_document(options);
}

template <inv_bench::unit_kind Kind>
std::string unit_text(uint32_t entities)
{
    return inv_bench::generate_unit_document(Kind, entities);
}

using inv_bench::unit_kind;
constexpr document_kind kinds[] = {
    {"module", 3, card_text},
    {"chassis", 1, unit_text<unit_kind::chassis>},
    {"fan tray", 7, unit_text<unit_kind::fan_tray>},
    {"power shelf", 8, unit_text<unit_kind::power_shelf>},
    {"PEM", 9, unit_text<unit_kind::pem>},
    {"CXP optics", 12, unit_text<unit_kind::optics>},
};
constexpr size_t line_card = 0;

// Documents made once and removed at exit.
struct document_store {
    std::filesystem::path folder;
    std::map<std::pair<size_t, uint32_t>, std::string> files;

    document_store()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "inv_bench_XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr)
            std::abort();
        folder = pattern;
    }
    ~document_store()
    {
        std::filesystem::remove_all(folder);
    }

    const std::string &of(size_t kind, uint32_t entities)
    {
        std::string &file = files[{kind, entities}];
        if (file.empty()) {
            file = (folder / (std::string(kinds[kind].name) + std::to_string(entities) + ".xml")).string();
            std::ofstream(file, std::ios::binary) << kinds[kind].text(entities);
        }
        return file;
    }
};

document_store documents;

inv_xml_handle *open_document(size_t kind, uint32_t entities)
{
    file_to_open = documents.of(kind, entities);
    return inv_parser_open_xml_file(0, kinds[kind].pi_hw_type, 0, "");
}

void count_entities(benchmark::State &state, int64_t entities)
{
    auto count = static_cast<double>(entities);
    state.counters["entities/s"] = benchmark::Counter(count, benchmark::Counter::kIsIterationInvariantRate);
    state.counters["ns/entity"] = benchmark::Counter(
        count / 1e9, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

// Pages of this process that are in memory; what was mapped and never touched is none.
int64_t resident_octets()
{
    int64_t all = 0, resident = 0;
    std::ifstream("/proc/self/statm") >> all >> resident;
    return resident * sysconf(_SC_PAGESIZE);
}

// What one more open file keeps; the first one has warmed the heaps that every load uses again.
double octets_of_open_document(size_t kind, uint32_t entities)
{
    inv_parser_close_xml_file(open_document(kind, entities));
    int64_t before = resident_octets();
    inv_xml_handle *handle = open_document(kind, entities);
    int64_t after = resident_octets();
    inv_parser_close_xml_file(handle);
    return static_cast<double>(after - before);
}

void open_and_close(benchmark::State &state)
{
    auto kind = static_cast<size_t>(state.range(0));
    auto entities = static_cast<uint32_t>(state.range(1));
    state.SetLabel(kinds[kind].name);
    documents.of(kind, entities);
    for (auto _ : state) {
        inv_xml_handle *handle = open_document(kind, entities);
        if (handle == nullptr || handle->root == nullptr) {
            state.SkipWithError("the document did not open");
            return;
        }
        inv_parser_close_xml_file(handle);
    }
    count_entities(state, entities);
    state.counters["bytes/entity"] = octets_of_open_document(kind, entities) / entities;
}

// All sensors of owner "shelf": a fill, a filter that looks every entry up again, and a copy.
void query_type_of_owner(benchmark::State &state)
{
    inv_xml_handle *handle = open_document(line_card, static_cast<uint32_t>(state.range(0)));
    if (handle == nullptr) {
        state.SkipWithError("the document did not open");
        return;
    }
    for (auto _ : state) {
        uint16_t count = 0;
        sch_eid_type *found = nullptr;
        inv_parser_get_eid_by_type(handle, ORVL_ENTITY_OWNER_TYPE_SHELF, ORVL_ENTITY_TYPE_SENSOR, &count,
                                   &found);
        benchmark::DoNotOptimize(found);
        inv_parser_free_eid_tree(found);
    }
    inv_parser_close_xml_file(handle);
    count_entities(state, state.range(0));
}

BENCHMARK(open_and_close)
    ->ArgsProduct({benchmark::CreateDenseRange(0, std::size(kinds) - 1, 1), {1000, 10000, 100000}})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(query_type_of_owner)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

}  // namespace

extern "C" const char *platform_get_inv_xml_file_name(uint32_t, uint32_t, const char *)
{
    return file_to_open.c_str();
}
