// Everything behind an xb_context.
#ifndef PLATFORM_XML_CONTEXT_H
#define PLATFORM_XML_CONTEXT_H

#include "armed.h"
#include "errors.h"
#include "heap.h"
#include "input.h"
#include "inv_platform/xml_runtime.h"
#include "reader.h"

struct xb_context_state {
    inv::xml::heap memory;
    inv::xml::error_log errors;
    inv::xml::input in;
    inv::xml::reader reader;
    inv::xml::armed_state *armed = nullptr;  // null: not armed
    size_t chunk_size;                       // octets read at once; tests make it small
    bool slow_road;                          // every document by way of expat; tests compare the two
};

#endif
