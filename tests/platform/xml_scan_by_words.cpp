// The searches with 64-bit words. They get a namespace of their own: the program has the others, too.
#define INV_SCAN_BY_WORDS
#define xml xml_by_words
#include "xml/scan.cpp"
#undef xml

#include "platform/xml_scan_functions.h"

scan_functions scan_functions_by_words()
{
    using namespace inv::xml_by_words;
    return {"words",    octet_block::size, skip_blanks,  skip_white_space, skip_name,
            skip_value, skip_text,         skip_to_mark, count_octets,     count_characters};
}
