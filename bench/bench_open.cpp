// Open and close of line-card documents, and the EID queries on them, by number of entities.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>

#include "generate_document.h"
#include "inv_parser/inv_parser.h"

namespace
{

std::string file_to_open;

// Documents made once and removed at exit.
struct document_store {
    std::filesystem::path folder;
    std::map<uint32_t, std::string> files;

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

    const std::string &of(uint32_t entities)
    {
        std::string &file = files[entities];
        if (file.empty()) {
            file = (folder / (std::to_string(entities) + ".xml")).string();
            inv_bench::document_options options;
            options.entities = entities;
            std::ofstream(file, std::ios::binary) << inv_bench::generate_document(options);
        }
        return file;
    }
};

document_store documents;

inv_xml_handle *open_document(uint32_t entities)
{
    file_to_open = documents.of(entities);
    return inv_parser_open_xml_file(0, 3, 0, "");
}

void count_entities(benchmark::State &state)
{
    state.counters["entities/s"] =
        benchmark::Counter(static_cast<double>(state.range(0)), benchmark::Counter::kIsIterationInvariantRate);
    state.counters["ns/entity"] = benchmark::Counter(
        static_cast<double>(state.range(0)) / 1e9,
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void open_and_close(benchmark::State &state)
{
    auto entities = static_cast<uint32_t>(state.range(0));
    documents.of(entities);
    for (auto _ : state) {
        inv_xml_handle *handle = open_document(entities);
        if (handle == nullptr || handle->root == nullptr) {
            state.SkipWithError("the document did not open");
            return;
        }
        inv_parser_close_xml_file(handle);
    }
    count_entities(state);
}

// All sensors of owner "shelf": a fill, a filter that looks every entry up again, and a copy.
void query_type_of_owner(benchmark::State &state)
{
    inv_xml_handle *handle = open_document(static_cast<uint32_t>(state.range(0)));
    if (handle == nullptr) {
        state.SkipWithError("the document did not open");
        return;
    }
    for (auto _ : state) {
        uint16_t count = 0;
        sch_eid_type *found = nullptr;
        inv_parser_get_eid_by_type(handle, ORVL_ENTITY_OWNER_TYPE_SHELF, ORVL_ENTITY_TYPE_SENSOR, &count, &found);
        benchmark::DoNotOptimize(found);
        inv_parser_free_eid_tree(found);
    }
    inv_parser_close_xml_file(handle);
    count_entities(state);
}

BENCHMARK(open_and_close)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(query_type_of_owner)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

}  // namespace

extern "C" const char *platform_get_inv_xml_file_name(uint32_t, uint32_t, const char *)
{
    return file_to_open.c_str();
}
