#include "document.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "OrvelianInventorySchema.h"
#include "OrvelianInventorySchemaDec.h"
#include "all_memory.h"
#include "exit_codes.h"
#include "inv_platform/lookup.h"
#include "inv_platform/xml_runtime.h"
#include "inventory_Derivations.h"

namespace
{

using invctl::with_all_memory;

// What the library's file lookup is answered with while a document is being opened.
std::string file_to_open;

int32_t decode_module(xb_context *context)
{
    xb_choice decoded;
    return XmlD_module(context, &decoded);
}

template <class Record, int32_t (*Decode)(xb_context *, Record *)>
int32_t decode_as(xb_context *context)
{
    Record decoded;
    return Decode(context, &decoded);
}

struct root_kind {
    const char *element;
    uint32_t pi_hw_type;  // any type of this kind will do
    int32_t (*decode)(xb_context *);
};

const root_kind root_kinds[] = {
    {"module", 3, decode_module},
    {"chassis", 1, decode_as<ChassisEntityType, XmlD_chassis>},
    {"powerShelf", 8, decode_as<PowerShelfType, XmlD_powerShelf>},
    {"pem", 9, decode_as<PEMType, XmlD_pem>},
    {"fanTray", 7, decode_as<FanTrayType, XmlD_fanTray>},
    {"optics", 12, decode_as<OpticsType, XmlD_optics>},
};

void print_errors(const std::string &path, const xb_context *context)
{
    // A context that could not be made has no errors to ask for.
    if (context->state == nullptr) {
        fprintf(stderr, "%s: error[%d]: %s\n", path.c_str(), XB_E_NO_MEMORY, rtxErrText(XB_E_NO_MEMORY));
        return;
    }
    xb_error error;
    for (uint32_t index = 0; rtxErrGet(context, index, &error); ++index) {
        if (error.line != 0)
            fprintf(stderr, "%s:%llu:%llu: error[%d]: %s", path.c_str(),
                    static_cast<unsigned long long>(error.line),
                    static_cast<unsigned long long>(error.column), error.status, rtxErrText(error.status));
        else
            fprintf(stderr, "%s: error[%d]: %s", path.c_str(), error.status, rtxErrText(error.status));
        for (uint32_t i = 0; i < error.parameter_count; ++i)
            fprintf(stderr, "%s%s", i == 0 ? ": " : ", ", error.parameters[i]);
        fputc('\n', stderr);
    }
}

// Reading troubles are the system's, everything else is the document's.
int exit_code_of(int32_t status)
{
    bool system_trouble = status == XB_E_FILE_OPEN || status == XB_E_FILE_READ || status == XB_E_NO_MEMORY;
    return system_trouble ? invctl::exit_trouble : invctl::exit_finding;
}

// Reads as far as the root element's start tag; null with what is wrong recorded and in *status otherwise.
const root_kind *read_kind(xb_context *context, const std::string &file, int32_t *status)
{
    *status = rtXmlInitContext(context);
    if (*status != XB_OK)
        return nullptr;
    *status = rtxStreamFileCreateReader(context, file.c_str());
    if (*status == XB_OK)
        *status = rtXmlpCreateReader(context);
    if (*status == XB_OK)
        *status = rtXmlpMatchStartTag(context, root_kinds[0].element, -1);
    if (*status == XB_OK)
        return &root_kinds[0];
    // The runtime records nothing for a caller who only asks; the name comes with the record.
    rtxErrSetData(context, *status, __FILE__, __LINE__);
    xb_error error;
    if (*status == XB_E_ROOT_MISMATCH && rtxErrGet(context, 0, &error) && error.parameter_count > 0)
        for (const root_kind &kind : root_kinds)
            if (strcmp(error.parameters[0], kind.element) == 0)
                return &kind;
    return nullptr;
}

// The kind of a document; null with *code set when it has none.
const root_kind *kind_of_document(const std::string &path, const std::string &file, int *code)
{
    xb_context context = {};
    int32_t status = XB_OK;
    const root_kind *found = with_all_memory([&] { return read_kind(&context, file, &status); });
    if (found == nullptr) {
        print_errors(path, &context);
        *code = exit_code_of(status);
    }
    rtxStreamClose(&context);
    rtxFreeContext(&context);
    return found;
}

// The library does not hand out what went wrong: decode once more and print what is recorded.
int diagnose(const std::string &path, const std::string &file, const root_kind &kind)
{
    xb_context context = {};
    const int32_t status = with_all_memory([&] {
        int32_t result = rtXmlInitContext(&context);
        if (result == XB_OK)
            result = rtxStreamFileCreateReader(&context, file.c_str());
        return result == XB_OK ? kind.decode(&context) : result;
    });
    if (status == XB_OK)
        fprintf(stderr, "%s: error: the document could be decoded but not loaded\n", path.c_str());
    else
        print_errors(path, &context);
    rtxStreamClose(&context);
    rtxFreeContext(&context);
    return status == XB_OK ? invctl::exit_trouble : exit_code_of(status);
}

// The library refuses names of 256 octets and more; an open file has a short one as well.
std::string short_name(const std::string &path)
{
    if (path.size() < INV_FILE_NAME_SIZE)
        return path;
    int file = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    return file < 0 ? path : "/proc/self/fd/" + std::to_string(file);
}

}  // namespace

extern "C" const char *platform_get_inv_xml_file_name(uint32_t, uint32_t, const char *)
{
    return file_to_open.empty() ? nullptr : file_to_open.c_str();
}

extern "C" const char *platform_get_inv_xml_file_name_v2(const struct fru_xml_loc_info *)
{
    return file_to_open.empty() ? nullptr : file_to_open.c_str();
}

namespace invctl
{

int open_document(const std::string &path, document *opened)
{
    int code = exit_ok;
    std::string file = short_name(path);
    const root_kind *kind = kind_of_document(path, file, &code);
    if (kind == nullptr)
        return code;
    opened->path = path;
    opened->kind = kind->element;
    file_to_open = file;
    opened->handle = with_all_memory([&] { return inv_parser_open_xml_file(0, kind->pi_hw_type, 0, ""); });
    file_to_open.clear();
    if (opened->handle != nullptr && opened->handle->root != nullptr)
        return exit_ok;
    close_document(opened);
    return diagnose(path, file, *kind);
}

void close_document(document *opened)
{
    if (opened->handle != nullptr)
        inv_parser_close_xml_file(opened->handle);
    opened->handle = nullptr;
}

}  // namespace invctl
