// Sample documents with one fault each: the fault is found where it stands, and nothing else is.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>

#include "OrvelianInventorySchemaDec.h"
#include "check/checked_document.h"
#include "check/run_checks.h"
#include "support/document_generator.h"

namespace
{

namespace fs = std::filesystem;
using namespace invctl::check;

constexpr size_t mutant_count = 500;

std::vector<std::string> sample_documents()
{
    std::vector<fs::path> files;
    for (const auto &entry : fs::directory_iterator(fs::path(INV_SOURCE_DIR) / "inventories"))
        if (entry.path().extension() == ".xml")
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    std::vector<std::string> documents;
    for (const fs::path &file : files) {
        std::ifstream stream(file, std::ios::binary);
        documents.emplace_back(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
    }
    return documents;
}

template <class Record, int32_t (*Decode)(xb_context *, Record *)>
int32_t decode_as(xb_context *context)
{
    Record record = {};
    return Decode(context, &record);
}

constexpr int32_t (*decoders[])(xb_context *) = {
    decode_as<xb_choice, XmlD_module>,          decode_as<ChassisEntityType, XmlD_chassis>,
    decode_as<PowerShelfType, XmlD_powerShelf>, decode_as<PEMType, XmlD_pem>,
    decode_as<FanTrayType, XmlD_fanTray>,       decode_as<OpticsType, XmlD_optics>,
};

// As a load has it; that of the first decoder that knows the root element.
int32_t load_status(const std::string &document)
{
    int32_t status = XB_E_ROOT_MISMATCH;
    for (auto decode : decoders) {
        xb_context context = {};
        rtXmlInitContext(&context);
        rtxStreamMemoryCreateReader(&context, document.data(), document.size());
        status = decode(&context);
        rtxFreeContext(&context);
        if (status != XB_E_ROOT_MISMATCH)
            break;
    }
    return status;
}

struct outcome {
    std::deque<finding> findings;
    bool points_at_fault = false;
};

outcome check_mutant(const inv_testing::mutant &made)
{
    const fs::path file = fs::temp_directory_path() / ("mutant_" + std::to_string(getpid()) + ".xml");
    std::ofstream(file, std::ios::binary) << made.document;
    check_result result;
    check_file(file.string(), result);
    fs::remove(file);
    outcome found = {std::move(result.found.all), false};
    for (const finding &each : found.findings)
        for (const inv_testing::text_place &place : made.places)
            found.points_at_fault =
                found.points_at_fault || (each.where.line == place.line && each.where.column == place.column);
    return found;
}

std::string told(const inv_testing::mutant &made, const outcome &found)
{
    std::string text = made.fault + " at";
    for (size_t i = 0; i < made.places.size() && i < 3; ++i)
        text += " " + std::to_string(made.places[i].line) + ":" + std::to_string(made.places[i].column);
    text += ", found:";
    for (const finding &each : found.findings)
        text += "\n  " + std::to_string(each.where.line) + ":" + std::to_string(each.where.column) + " " +
                each.row->code + ": " + each.text;
    return text;
}

TEST(Mutation, one_fault_is_pointed_at_and_little_else_is_reported)
{
    const std::vector<std::string> documents = sample_documents();
    ASSERT_FALSE(documents.empty());
    size_t tried = 0;
    size_t alone = 0;
    std::map<std::string, int> classes;
    for (uint64_t seed = 1; tried < mutant_count; ++seed) {
        ASSERT_LT(seed, mutant_count * 10);
        const inv_testing::mutant made = inv_testing::mutate(documents[seed % documents.size()], seed);
        const int32_t status = load_status(made.document);
        if (status == XB_OK)  // no fault to the library
            continue;
        ++tried;
        ++classes[made.fault];
        const outcome found = check_mutant(made);
        EXPECT_TRUE(found.points_at_fault) << "seed " << seed << ": " << told(made, found);
        ASSERT_FALSE(found.findings.empty()) << "seed " << seed;
        const bool has_status = std::any_of(found.findings.begin(), found.findings.end(),
                                            [&](const finding &each) { return each.status == status; });
        // A load whose content breaks off counts what it has, before it says where.
        EXPECT_TRUE(has_status || status == XB_E_CONSTRAINT)
            << "seed " << seed << ": a load says " << status << "; " << told(made, found);
        if (found.findings.size() == 1)
            ++alone;
        else if (getenv("INV_VERBOSE") != nullptr)
            printf("seed %llu: %s\n", static_cast<unsigned long long>(seed), told(made, found).c_str());
    }
    EXPECT_GE(alone * 100, tried * 95) << alone << " of " << tried;
    // The draw reaches most kinds of faults.
    EXPECT_GE(classes.size(), 25u);
    printf("nothing else in %zu of %zu\n", alone, tried);
}

}  // namespace
