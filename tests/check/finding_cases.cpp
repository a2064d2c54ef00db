#include "check/finding_cases.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "catalogue_model.h"

using namespace invctl::check;

namespace
{

constexpr check_row any_row = {"any", severity::error, "Any"};

std::string under_caret(const finding &each)
{
    if (each.length == 0)
        return "";
    return each.source.substr(each.where.column - each.source_start, each.length);
}

}  // namespace

std::unique_ptr<checked_document> decoded(const std::string &text)
{
    auto document = std::make_unique<checked_document>();
    document->file = "document.xml";
    document->octets = text;
    decode_document(*document);
    EXPECT_EQ(document->status, XB_OK) << text;
    return document;
}

std::vector<std::string> told(const finding_list &found)
{
    std::vector<std::string> texts;
    for (const finding &each : found.all)
        texts.push_back((each.names.empty() ? each.file : each.names) + " | " + under_caret(each) + " | " +
                        each.text);
    return texts;
}

void expect_findings(check_function run, const std::vector<finding_case> &cases)
{
    for (const finding_case &each : cases) {
        SCOPED_TRACE(each.title);
        auto document = decoded(each.document);
        finding_list found;
        found.current = &any_row;
        run(*document, found);
        EXPECT_EQ(told(found), each.findings);
        for (const finding &reported : found.all)
            EXPECT_NE(reported.hint, "");
    }
}

void expect_catalogue_findings(catalogue_function run, const std::vector<catalogue_case> &cases)
{
    const std::filesystem::path before = std::filesystem::current_path();
    for (const catalogue_case &each : cases) {
        SCOPED_TRACE(each.title);
        std::string folder = (std::filesystem::temp_directory_path() / "catalogue_XXXXXX").string();
        ASSERT_NE(mkdtemp(folder.data()), nullptr);
        std::filesystem::current_path(folder);
        catalogue_check catalogue;
        catalogue.catalogue = "catalog.txt";
        for (const std::string &line : each.lines)
            catalogue.lines.push_back({catalogue.lines.size() + 1, line});
        for (const auto &[file, text] : each.documents) {
            std::ofstream(file, std::ios::binary) << text;
            for (const catalogued_unit &unit : units_of(catalogue))
                if (unit.file == file && !catalogue.documents.contains(file)) {
                    auto &document = catalogue.documents[file] = decoded(text);
                    document->file = file;
                }
        }
        finding_list found;
        found.current = &any_row;
        run(catalogue, found);
        EXPECT_EQ(told(found), each.findings);
        std::filesystem::current_path(before);
        std::filesystem::remove_all(folder);
    }
}
