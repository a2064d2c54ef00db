#include "run_checks.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <sstream>
#include <sys/stat.h>
#include <system_error>
#include <unordered_set>

#include "all_memory.h"
#include "catalogue_model.h"
#include "checks.h"
#include "read_octets.h"
#include "schema_findings.h"

namespace
{

using namespace invctl::check;

// What the system is to blame for is no finding.
bool is_system_trouble(int32_t status)
{
    return status == XB_E_NO_MEMORY || status == XB_E_FILE_OPEN || status == XB_E_FILE_READ ||
           status == XB_E_BAD_STATE;
}

// Null when the file cannot be read.
std::unique_ptr<checked_document> read_document(const std::string &file, check_result &result)
{
    auto document = std::make_unique<checked_document>();
    document->file = file;
    if (const std::string reason = read_octets(file, &document->octets); !reason.empty()) {
        result.troubles.push_back(file + ": " + reason);
        return nullptr;
    }
    const int32_t status = invctl::with_all_memory([&] {
        decode_document(*document);
        return document->status;
    });
    if (!is_system_trouble(status))
        return document;
    result.troubles.push_back(file + ": " + rtxErrText(status));
    return nullptr;
}

// Entities that a schema finding is about: what else is found wrong with them may follow from it.
std::unordered_set<const entity *> spoilt_entities(const finding_list &found)
{
    std::unordered_set<const entity *> spoilt;
    for (const finding &each : found.all)
        if (each.status != 0 && each.about != nullptr)
            spoilt.insert(each.about);
    return spoilt;
}

void run_all(checked_document &document, finding_list &found)
{
    report_schema_findings(document, found);
    const std::unordered_set<const entity *> spoilt = spoilt_entities(found);
    for (const check &each : all_checks()) {
        if (each.needs_clean_schema && document.has_schema_findings)
            continue;
        found.current = &each.row;
        each.run(document, found);
    }
    std::erase_if(found.all,
                  [&](const finding &each) { return each.status == 0 && spoilt.contains(each.about); });
    std::stable_sort(found.all.begin(), found.all.end(),
                     [](const finding &a, const finding &b) { return a.where.offset < b.where.offset; });
}

// The document does not outlive its findings' use of it.
void append(check_result &result, finding_list &found)
{
    for (finding &each : found.all) {
        each.about = nullptr;
        result.found.all.push_back(std::move(each));
    }
}

void check_document(checked_document &document, check_result &result)
{
    finding_list found;
    run_all(document, found);
    result.files.push_back(document.file);
    append(result, found);
}

std::vector<catalogue_line> lines_of(const std::string &text)
{
    std::vector<catalogue_line> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back({lines.size() + 1, line});
    return lines;
}

// Reads the catalogued documents. Those that cannot be read are left to the checks.
void read_documents(catalogue_check &catalogue, check_result &result)
{
    for (const catalogued_unit &unit : units_of(catalogue)) {
        struct stat status = {};
        if (catalogue.documents.contains(unit.file) || stat(unit.file.c_str(), &status) != 0 ||
            !S_ISREG(status.st_mode))
            continue;
        if (auto document = read_document(unit.file, result))
            catalogue.documents.emplace(unit.file, std::move(document));
    }
}

}  // namespace

namespace invctl::check
{

void check_file(const std::string &file, check_result &result)
{
    if (auto document = read_document(file, result))
        check_document(*document, result);
}

void check_folder(const std::string &folder, check_result &result)
{
    std::vector<std::string> files;
    std::error_code error;
    std::filesystem::directory_iterator entries(folder, error);
    for (; !error && entries != std::filesystem::directory_iterator(); entries.increment(error)) {
        // A pipe would keep the check waiting; what cannot be asked is told of when it is opened.
        std::error_code unknown;
        bool may_be_read = entries->is_regular_file(unknown) || unknown;
        if (entries->path().extension() == ".xml" && may_be_read)
            files.push_back(entries->path().string());
    }
    if (error)
        result.troubles.push_back(folder + ": " + error.message());
    else if (files.empty())
        result.troubles.push_back(folder + ": no documents (*.xml) in this folder");
    std::sort(files.begin(), files.end());
    for (const std::string &file : files)
        check_file(file, result);
}

void check_catalogue(const std::string &file, check_result &result)
{
    std::string text;
    if (const std::string reason = read_octets(file, &text); !reason.empty()) {
        result.troubles.push_back(file + ": " + reason);
        return;
    }
    catalogue_check catalogue;
    catalogue.catalogue = file;
    catalogue.folder = std::filesystem::path(file).parent_path().string();
    catalogue.lines = lines_of(text);
    read_documents(catalogue, result);
    finding_list found;
    for (const catalogue_check_row &each : all_catalogue_checks()) {
        found.current = &each.row;
        each.run(catalogue, found);
    }
    result.files.push_back(file);
    append(result, found);
    for (auto &[name, document] : catalogue.documents)
        check_document(*document, result);
}

std::vector<const check_row *> all_rows()
{
    std::vector<const check_row *> rows;
    for (const schema_row &each : schema_rows())
        rows.push_back(&each.row);
    for (const check &each : all_checks())
        rows.push_back(&each.row);
    for (const catalogue_check_row &each : all_catalogue_checks())
        rows.push_back(&each.row);
    return rows;
}

}  // namespace invctl::check
