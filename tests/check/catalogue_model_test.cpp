#include "catalogue_model.h"

#include "check/finding_cases.h"

using namespace invctl::check;

TEST(CatalogueModel, joins_relative_file_names_with_the_folder)
{
    catalogue_check catalogue;
    EXPECT_EQ(opened_name(catalogue, "card.xml"), "card.xml");
    catalogue.folder = "a/b";
    EXPECT_EQ(opened_name(catalogue, "c/card.xml"), "a/b/c/card.xml");
    EXPECT_EQ(opened_name(catalogue, "/card.xml"), "/card.xml");
    catalogue.folder = "/";
    EXPECT_EQ(opened_name(catalogue, "card.xml"), "/card.xml");
}

TEST(CatalogueModel, lists_the_units_of_readable_lines)
{
    catalogue_check catalogue;
    catalogue.folder = "f";
    catalogue.lines = {{1, "# comment"}, {2, "3 17 LC-* 1.0-2.9 a card.xml"}, {3, "3 17"}, {4, ""}};
    const std::vector<catalogued_unit> units = units_of(catalogue);
    ASSERT_EQ(units.size(), 1u);
    EXPECT_EQ(units[0].line, &catalogue.lines[1]);
    EXPECT_EQ(units[0].file, "f/a card.xml");
    EXPECT_EQ(units[0].document, nullptr);
}

TEST(CatalogueModel, points_at_a_part_of_a_line_in_characters)
{
    catalogue_check catalogue;
    catalogue.catalogue = "catalog.txt";
    const catalogue_line line = {7, "  3 17 \xC3\xA4* * card.xml \r"};
    finding_list found;
    const std::string_view part = std::string_view(line.text).substr(line.text.find("card.xml"), 8);
    const finding &at_part = report_line(found, catalogue, line, part, "text");
    EXPECT_EQ(at_part.where.line, 7u);
    EXPECT_EQ(at_part.where.column, 13u);
    EXPECT_EQ(at_part.length, 8u);
    const finding &at_line = report_line(found, catalogue, line, {}, "text");
    EXPECT_EQ(at_line.where.column, 3u);
    EXPECT_EQ(at_line.length, 18u);
    EXPECT_EQ(at_line.source, "  3 17 \xC3\xA4* * card.xml");
}

TEST(CatalogueModel, knows_the_kind_of_every_hardware_type)
{
    const char *const roots[] = {"",       "chassis", "chassis",    "module", "module", "module",
                                 "module", "fanTray", "powerShelf", "pem",    "",       "module",
                                 "optics", "module",  "module",     "module", "module", "module",
                                 "module", "module",  "chassis",    "module", ""};
    for (uint32_t type = 0; type < std::size(roots); ++type) {
        const auto kind = kind_of_hardware(type);
        EXPECT_STREQ(kind ? root_of_kind(*kind) : "", roots[type]) << type;
    }
}
