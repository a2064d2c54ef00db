// The list of all files known to the library.
#ifndef FRAME_REGISTRY_H
#define FRAME_REGISTRY_H

#include "inv_parser/handle.h"

namespace inv::frame
{

// First handle, in order of registration; null when no file is known. File names in the list are unique.
extern inv_xml_handle *xml_file_list_handle;

}  // namespace inv::frame

#endif
