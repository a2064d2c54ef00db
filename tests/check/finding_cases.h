// Checks run on small documents: what they report, and what they point at.
#ifndef TESTS_CHECK_FINDING_CASES_H
#define TESTS_CHECK_FINDING_CASES_H

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "checked_document.h"
#include "checks.h"

// Decoded; nothing of it may be refused by the schema.
std::unique_ptr<invctl::check::checked_document> decoded(const std::string &text);

// Names of the entity | what stands over the caret | text.
std::vector<std::string> told(const invctl::check::finding_list &found);

struct finding_case {
    const char *title;
    std::string document;
    std::vector<std::string> findings;
};

void expect_findings(invctl::check::check_function run, const std::vector<finding_case> &cases);

struct catalogue_case {
    const char *title;
    std::vector<std::string> lines;
    std::vector<std::pair<std::string, std::string>> documents;  // file, text
    std::vector<std::string> findings;
};

// The files are written into a folder of their own, the documents decoded.
void expect_catalogue_findings(invctl::check::catalogue_function run,
                               const std::vector<catalogue_case> &cases);

#endif
