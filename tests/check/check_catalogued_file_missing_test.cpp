#include "check/finding_cases.h"
#include "check/small_document.h"

TEST(CataloguedFileMissing, tells_files_that_cannot_be_read)
{
    expect_catalogue_findings(
        invctl::check::check_catalogued_file_missing,
        {
            {"there", {"3 17 LC-* * card.xml"}, {{"card.xml", small::card("")}}, {}},
            {"not there",
             {"# units", "3 17 LC-* * trad.xml"},
             {{"card.xml", small::card("")}},
             {"catalog.txt | trad.xml | trad.xml: No such file or directory"}},
            {"a folder", {"3 17 LC-* * ."}, {}, {"catalog.txt | . | .: Is a directory"}},
            {"an absolute name",
             {"3 17 LC-* * /nowhere/card.xml"},
             {},
             {"catalog.txt | /nowhere/card.xml | /nowhere/card.xml: No such file or directory"}},
            {"on every line that names it",
             {"3 17 A * a.xml", "3 17 B * a.xml"},
             {},
             {"catalog.txt | a.xml | a.xml: No such file or directory",
              "catalog.txt | a.xml | a.xml: No such file or directory"}},
        });
}

TEST(CataloguedFileMissing, asks_for_the_document_that_may_have_been_meant)
{
    invctl::check::catalogue_check catalogue;
    catalogue.catalogue = "catalog.txt";
    catalogue.folder = INV_SOURCE_DIR "/inventories";
    catalogue.lines = {{1, "1 1 CH-* * chasis.xml"}, {2, "3 17 LC-* * nowhere.xml"}};
    invctl::check::finding_list found;
    invctl::check::check_catalogued_file_missing(catalogue, found);
    ASSERT_EQ(found.all.size(), 2u);
    EXPECT_EQ(found.all[0].hint, "did you mean chassis.xml?");
    EXPECT_EQ(found.all[1].hint, "file names start at the catalogue's folder");
}
