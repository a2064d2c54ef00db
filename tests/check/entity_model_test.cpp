// The list of entities against what the library itself makes of the same documents.
#include "entity_model.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <unistd.h>

#include "check/finding_cases.h"
#include "check/small_document.h"
#include "document.h"
#include "entity_words.h"
#include "support/document_generator.h"

using namespace invctl::check;

namespace
{

namespace fs = std::filesystem;

// "eid "name" xml": enough to tell entities apart.
std::string told(const std::string &eid, const char *name, uint32_t xml_instance)
{
    return eid + " " + std::string(name).substr(0, 64) + " " + std::to_string(xml_instance);
}

void add_tree(const eid_chain_node *first, const std::string &above, std::vector<std::string> &entities)
{
    for (const eid_chain_node *node = first; node != nullptr; node = node->next_sibling) {
        const sch_base_entity_type &record = *node->record;
        const std::string eid = above + invctl::eid_level(record);
        entities.push_back(told(eid, record.name, record.xml_instance));
        add_tree(node->first_child, eid + "/", entities);
    }
}

std::vector<std::string> entities_of_library(const std::string &file)
{
    std::vector<std::string> entities;
    invctl::document opened;
    EXPECT_EQ(invctl::open_document(file, &opened), 0) << file;
    if (opened.handle != nullptr)
        add_tree(opened.handle->root, "", entities);
    invctl::close_document(&opened);
    std::sort(entities.begin(), entities.end());
    return entities;
}

std::vector<std::string> entities_of_model(const checked_document &document)
{
    std::vector<std::string> entities;
    for (const entity &each : document.entities)
        if (each.in_tree)
            entities.push_back(
                told(each.eid, each.base->name, static_cast<uint16_t>(each.base->xmlInstance)));
    std::sort(entities.begin(), entities.end());
    return entities;
}

std::string read_file(const fs::path &path)
{
    std::ifstream stream(path, std::ios::binary);
    std::stringstream text;
    text << stream.rdbuf();
    return text.str();
}

void expect_ordered(const checked_document &document)
{
    const entity *first = document.entities.data();
    ASSERT_FALSE(document.entities.empty());
    EXPECT_EQ(first->parent, nullptr);
    for (const entity &each : document.entities) {
        EXPECT_EQ(each.record, each.base);
        EXPECT_NE(each.where.line, 0u) << each.names;
        if (&each == first)
            continue;
        ASSERT_NE(each.parent, nullptr);
        EXPECT_LT(each.parent, &each);
        EXPECT_LT((&each)[-1].where.offset, each.where.offset) << each.names;
    }
}

}  // namespace

TEST(EntityModel, lists_what_the_library_hangs_into_its_tree)
{
    size_t documents = 0;
    for (const auto &file : fs::directory_iterator(fs::path(INV_SOURCE_DIR) / "inventories")) {
        if (file.path().extension() != ".xml")
            continue;
        SCOPED_TRACE(file.path());
        auto document = decoded(read_file(file.path()));
        expect_ordered(*document);
        EXPECT_EQ(entities_of_model(*document), entities_of_library(file.path()));
        ++documents;
    }
    EXPECT_EQ(documents, 10u);
}

TEST(EntityModel, agrees_with_the_library_about_random_documents)
{
    const fs::path file = fs::temp_directory_path() / ("entities_" + std::to_string(getpid()) + ".xml");
    size_t left_out = 0;
    for (uint64_t seed = 1; seed <= 300; ++seed) {
        const auto kind = static_cast<inv_testing::document_kind>(seed % inv_testing::document_kind_count);
        const std::string text = inv_testing::random_document(seed, kind);
        SCOPED_TRACE("seed " + std::to_string(seed));
        std::ofstream(file, std::ios::binary) << text;
        auto document = decoded(text);
        expect_ordered(*document);
        const std::vector<std::string> expected = entities_of_library(file.string());
        EXPECT_EQ(entities_of_model(*document), expected);
        left_out += document->entities.size() - expected.size();
    }
    fs::remove(file);
    EXPECT_GT(left_out, 100u);  // the documents have entities that are not read, too
}

TEST(EntityModel, gives_each_entity_its_way_from_the_root)
{
    auto document =
        decoded(small::card(small::sensor("B", 4) + small::module("M", 2, small::sensor("A", 3))));
    ASSERT_EQ(document->entities.size(), 4u);
    const entity &a = document->entities[3];
    EXPECT_EQ(a.names, "Card/M/A");
    EXPECT_EQ(a.eid, "module.msc.0/module.slice.0/sensor.temp_value.0");
    EXPECT_EQ(a.kind, entity_kind::sensor);
    EXPECT_EQ(a.parent, &document->entities[2]);
    EXPECT_EQ(a.where.line, 6u);
    EXPECT_EQ(document->entities[2].parent, &document->entities[0]);
}

TEST(EntityModel, cuts_names_that_are_longer_than_records_hold)
{
    EXPECT_EQ(shown_name(nullptr), "?");
    EXPECT_EQ(shown_name(""), "");
    EXPECT_EQ(shown_name(std::string(64, 'x').c_str()), std::string(64, 'x'));
    EXPECT_EQ(shown_name(std::string(65, 'x').c_str()), std::string(64, 'x') + "...");
    const std::string umlaut_in_the_way = std::string(63, 'x') + "\xC3\xA4" + "y";
    EXPECT_EQ(shown_name(umlaut_in_the_way.c_str()), std::string(63, 'x') + "...");
    auto document = decoded(
        small::entity({"module", std::string(100, 'n'), "MODULE", "MODULE_MSC", 1, small::sensor("A", 2)}));
    EXPECT_EQ(document->entities[1].names, std::string(64, 'n') + ".../A");
}

TEST(EntityModel, survives_documents_with_faults)
{
    size_t entities = 0;
    for (uint64_t seed = 1; seed <= 300; ++seed) {
        const auto kind = static_cast<inv_testing::document_kind>(seed % inv_testing::document_kind_count);
        checked_document document;
        document.octets = inv_testing::mutate(inv_testing::random_document(seed, kind), seed).document;
        decode_document(document);
        finding_list found;
        for (const check &each : all_checks()) {
            found.current = &each.row;
            each.run(document, found);
        }
        entities += document.entities.size();
    }
    EXPECT_GT(entities, 1000u);
}
