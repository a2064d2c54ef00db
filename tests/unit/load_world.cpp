#include "load_world.h"

#include "frame/file_memory.h"
#include "frame/registry.h"
#include "inv_parser/loaders.h"
#include "inv_parser/tree_internal.h"
#include "support/counting_memory.h"
#include "support/failing_lock.h"
#include "support/fake_platform.h"
#include "support/trace_recorder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace
{

using namespace load_world;
using inv::frame::xml_file_list_handle;

bool clock_works = true;

template <auto &global>
const void *held_by()
{
    return global;
}

std::string missing_file(const document_case &document)
{
    return scratch_folder() + "/no_such_" + document.file;
}

// Ends in the middle.
std::string malformed_file(const document_case &document)
{
    std::string text = text_of(path_of(document));
    return scratch_file("malformed_" + std::string(document.file), text.substr(0, text.size() / 2));
}

std::string file_without_attribute(const document_case &document)
{
    std::string text = text_of(path_of(document));
    size_t from = text.find(" xmlInstance=");
    size_t to = text.find('"', text.find('"', from) + 1) + 1;
    return scratch_file("incomplete_" + std::string(document.file), text.erase(from, to - from));
}

std::string file_with_other_root(const document_case &document)
{
    return scratch_file("foreign_" + std::string(document.file), "<inventory/>\n");
}

inv_xml_handle *open_first_generation(uint32_t pi_hw_type)
{
    return inv_parser_open_xml_file(7, pi_hw_type, 100 + pi_hw_type, "PID-1");
}

inv_xml_handle *open_second_generation(uint32_t pi_hw_type)
{
    fru_xml_loc_info loc = {};
    loc.pi_hw_type = pi_hw_type;
    loc.pd_hw_type = 100 + pi_hw_type;
    loc.hw_maj_ver = 2;
    loc.hw_min_ver = 5;
    strcpy(loc.pid, "PID-2");
    return inv_parser_open_xml_file_v2(7, &loc);
}

void forget_all_files()
{
    while (xml_file_list_handle != nullptr) {
        inv_xml_handle *first = xml_file_list_handle;
        inv_schema_update_the_xml_handle_list(first);
        parser_avl_delete_inst_tree(&first->i2c_xml_inst_index, parser_xml_inst_compare);
        parser_avl_delete_inst_tree(&first->pcie_xml_inst_index, parser_xml_inst_compare);
        inv::handle_forget(first);
    }
    root_eid = nullptr;
}

}  // namespace

// The linker leads the library's calls here (--wrap).
extern "C" tm *__wrap_localtime_r(const time_t *, tm *clock);

extern "C" tm *__wrap_localtime_r(const time_t *, tm *clock)
{
    if (!clock_works)
        return nullptr;
    *clock = {};
    clock->tm_hour = 12;
    clock->tm_min = 34;
    clock->tm_sec = 56;
    return clock;
}

namespace load_world
{

fresh_library::fresh_library()
{
    forget_all_files();
    counting_memory::reset();
    failing_lock::reset();
    fake_platform::set_only_file_name(nullptr);
    trace_recorder::reset();
    trace_recorder::start();
    set_clock(true);
    live_before = counting_memory::live();
}

fresh_library::~fresh_library()
{
    counting_memory::reset();
    failing_lock::reset();
    forget_all_files();
    EXPECT_EQ(counting_memory::live(), live_before);
    EXPECT_EQ(counting_memory::mapped_octets(), 0u);
    EXPECT_EQ(failing_lock::depth(), 0);
}

uint64_t fresh_library::live() const
{
    return counting_memory::live() - live_before;
}

void fresh_library::release_kept(inv_xml_handle *handle) const
{
    for (inv_xml_handle *each = xml_file_list_handle; each != nullptr; each = each->next)
        EXPECT_NE(each, handle);
    EXPECT_EQ(handle->root, nullptr);
    EXPECT_EQ(handle->module_record, nullptr);
    EXPECT_EQ(handle->i2c_xml_inst_index, nullptr);
    EXPECT_EQ(handle->pcie_xml_inst_index, nullptr);
    inv::handle_forget(handle);
}

void set_clock(bool works)
{
    clock_works = works;
}

const std::vector<document_case> &documents()
{
    static const std::vector<document_case> all = {
        {"chassis", 1, "chassis.xml", 244, 245, 19, 20, 21, 12, held_by<chassis_data>},
        {"module", 3, "module.xml", 246, 249, 22, 23, 24, 20, held_by<module_data>},
        {"fan_tray", 7, "fan_tray.xml", 257, 258, 25, 26, 27, 7, held_by<fantray_data>},
        {"power_shelf", 8, "power_shelf.xml", 252, 253, 28, 29, 30, 9, held_by<power_shelf_data>},
        {"pem", 9, "pem.xml", 250, 251, 31, 32, 33, 5, held_by<pem_data>},
        {"cxp_optics", 12, "optics.xml", 255, 256, 34, 35, 36, 3, held_by<cxp_data>},
    };
    return all;
}

const document_case &module_document()
{
    return documents()[1];
}

const document_case &chassis_document()
{
    return documents()[0];
}

std::string path_of(const document_case &document)
{
    return std::string(INV_SOURCE_DIR) + "/tests/documents/data/" + document.file;
}

const std::vector<fault_case> &faults()
{
    static const std::vector<fault_case> all = {
        {"missing file", missing_file},
        {"malformed", malformed_file},
        {"required attribute missing", file_without_attribute},
        {"other root element", file_with_other_root},
    };
    return all;
}

std::string scratch_folder()
{
    static const std::string folder = [] {
        std::string pattern = ::testing::TempDir() + "inv_load_XXXXXX";
        const char *made = mkdtemp(pattern.data());
        std::string path = made == nullptr ? ::testing::TempDir() : made;
        static std::string to_remove;
        to_remove = path;
        if (made != nullptr)
            atexit([] { std::filesystem::remove_all(to_remove); });
        return path;
    }();
    return folder;
}

std::string scratch_file(const std::string &name, const std::string &text)
{
    std::string path = scratch_folder() + "/" + name;
    std::ofstream(path, std::ios::binary) << text;
    return path;
}

std::string text_of(const std::string &path)
{
    std::ifstream stream(path, std::ios::binary);
    EXPECT_TRUE(stream.good()) << path;
    std::stringstream text;
    text << stream.rdbuf();
    return text.str();
}

const std::vector<generation> &generations()
{
    static const std::vector<generation> both = {
        {"first", open_first_generation, 14, 39, 16, 17, 18, 38, 37, 15, 2},
        {"second", open_second_generation, 40, 51, 43, 44, 45, 50, 46, 42, 8},
    };
    return both;
}

inv_xml_handle *open_file(const generation &by, const std::string &path, uint32_t pi_hw_type)
{
    fake_platform::set_only_file_name(path.c_str());
    return by.open(pi_hw_type);
}

inv_xml_handle *open_document(const document_case &document)
{
    return open_file(generations()[0], path_of(document), document.pi_hw_type);
}

std::vector<uint32_t> frame_ids()
{
    std::vector<uint32_t> kept;
    for (uint32_t id : trace_recorder::ids()) {
        if (id < 121 || id > 243)
            kept.push_back(id);
    }
    return kept;
}

uint64_t count_of(uint32_t id)
{
    uint64_t found = 0;
    for (uint32_t each : trace_recorder::ids())
        found += each == id ? 1 : 0;
    return found;
}

std::string text_of_line(uint32_t id)
{
    for (const trace_recorder::line &each : trace_recorder::lines()) {
        if (each.id == id)
            return each.text;
    }
    return "";
}

uint32_t entity_count(inv_xml_handle *handle)
{
    sch_eid_type *all = nullptr;
    uint32_t count = 0;
    if (inv_parser_get_eid_tree(handle, ORVL_ENTITY_OWNER_TYPE_ALL, nullptr, &all, &count) != 0)
        return 0;
    inv_parser_free_eid_tree(all);
    return count;
}

}  // namespace load_world
