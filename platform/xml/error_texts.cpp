#include "inv_platform/xml_runtime.h"

namespace
{

struct status_text {
    int32_t status;
    const char *text;
};

constexpr status_text texts[] = {
    {XB_OK, "success"},
    {XB_E_NO_MEMORY, "out of memory"},
    {XB_E_CONSTRAINT, "wrong number of octets or of occurrences"},
    {XB_E_NOT_EMPTY, "element must be empty"},
    {XB_E_ATTRIBUTE_UNKNOWN, "unknown attribute"},
    {XB_E_ATTRIBUTE_MISSING, "required attribute missing"},
    {XB_E_RUN_ENDED, "no further occurrence of the element"},
    {XB_E_NO_XSI_TYPE, "element has no xsi:type"},
    {XB_E_UNDECLARED_PREFIX, "namespace prefix is not declared"},
    {XB_E_FILE_OPEN, "file cannot be opened"},
    {XB_E_FILE_READ, "reading failed"},
    {XB_E_MALFORMED, "not well-formed XML"},
    {XB_E_DEPTH, "elements nested too deep"},
    {XB_E_ELEMENT_UNEXPECTED, "unexpected element"},
    {XB_E_ELEMENT_MISSING, "required element missing"},
    {XB_E_ROOT_MISMATCH, "another root element than expected"},
    {XB_E_TEXT_UNEXPECTED, "text between elements or an element inside a value"},
    {XB_E_BAD_INTEGER, "not an integer"},
    {XB_E_OUT_OF_RANGE, "number out of range"},
    {XB_E_BAD_BOOLEAN, "not a boolean"},
    {XB_E_BAD_DECIMAL, "not a decimal number"},
    {XB_E_BAD_HEX, "not a hexadecimal octet string"},
    {XB_E_UNKNOWN_TOKEN, "unknown token"},
    {XB_E_UNKNOWN_TYPE, "type not allowed here"},
    {XB_E_BAD_STATE, "call out of order"},
};

}  // namespace

const char *rtxErrText(int32_t status)
{
    for (const status_text &row : texts) {
        if (row.status == status)
            return row.text;
    }
    return "unknown status";
}
