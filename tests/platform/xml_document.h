// A context over a document in memory, and short forms of the calls that tests make all the time.
#ifndef TESTS_PLATFORM_XML_DOCUMENT_H
#define TESTS_PLATFORM_XML_DOCUMENT_H

#include "inv_platform/xml_runtime.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

struct xml_document {
    xb_context ctx = {};
    std::string text;

    // Opens the text and creates the reader. chunk_size 0: the usual one. slow_road: by way of expat,
    // whatever the document.
    explicit xml_document(std::string_view document, size_t chunk_size = 0, bool slow_road = false);
    // Further reads start tags, one for each name, from the root on.
    xml_document(std::string_view document, std::initializer_list<const char *> path);
    xml_document(const xml_document &) = delete;
    xml_document &operator=(const xml_document &) = delete;
    ~xml_document();
};

// An element table of which every row may appear at every position.
struct element_table {
    std::vector<xb_element_row> rows;
    std::vector<xb_sequence_row> sequence;

    explicit element_table(std::initializer_list<const char *> names);
    int32_t row_count() const
    {
        return static_cast<int32_t>(rows.size());
    }
};

// Reads the next element of any listed name, all optional.
int32_t next_of(xml_document &document, const element_table &table, bool group = false);

// Opens the next element, which has to have this name.
int32_t enter(xml_document &document, const char *name);
int32_t leave(xml_document &document);

// The record made by reporting a status now.
xb_error report(xml_document &document, int32_t status);

std::vector<std::string> parameters_of(const xb_error &error);

// "line:column" of an error.
std::string place_of(const xb_error &error);

#endif
